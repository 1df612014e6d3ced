#ifndef BINDINGS_PYTHON_RAW_H
#define BINDINGS_PYTHON_RAW_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string>
#include <type_traits>
#include <vector>

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include "qorin/enumerations.h"
#include "qorin/event.h"
#include "qorin/result.h"

/// What the generated functions are made of: arguments and outputs in memory that is as large as the library takes it
/// to be, and the ways of calling it.
namespace qorin_python
{
namespace py = pybind11;

/// Lets other threads of Python go on. Ends by itself when Python ends its threads, so that the destructor may throw.
class without_lock
{
public:
    without_lock() : state_(PyEval_SaveThread()) {}
    without_lock(const without_lock&) = delete;
    without_lock& operator=(const without_lock&) = delete;
    ~without_lock() noexcept(false) { PyEval_RestoreThread(state_); }

private:
    PyThreadState* state_;
};

[[noreturn]] void fail(const char* function, QORIN_API_RESULT result);
void check_signals(); ///< Throws what a handler has raised, as Ctrl-C does.

inline void check(const char* function, QORIN_API_RESULT result)
{
    if (result != QORIN_API_RESULT_OK)
        fail(function, result);
}

/// For what neither waits nor blocks.
template <class Call>
void at_once(const char* function, Call call)
{
    check(function, call());
}

template <class Call>
void unlocked(const char* function, Call call)
{
    check(function,
          [&]
          {
              const without_lock released;
              return call();
          }());
}

constexpr unsigned int slice_ms = 50; ///< How late Ctrl-C may come.

/// Waits in slices until one has told that it is over.
template <class Wait>
void sliced(unsigned int time_out, Wait wait)
{
    for (unsigned int left = time_out;;)
    {
        const unsigned int slice = std::min(left, slice_ms);
        const bool over = [&]
        {
            const without_lock released;
            return wait(slice);
        }();
        check_signals();
        left -= slice;
        if (over || left == 0)
            return;
    }
}

/// Elements of an array that has `by` fewer than a count of the caller's, who may give a negative one.
inline std::size_t less(std::int64_t count, std::int64_t by)
{
    return count > by ? static_cast<std::size_t>(count - by) : 0;
}

std::size_t joint_count(unsigned int cbox_id, unsigned int robot_id);
QORIN_SWITCH switch_of(unsigned int value); ///< True and False, too.
py::object enumerated(const char* enumeration, unsigned int value);
py::object text_or_none(const char* text);
PyTypeObject* define_structure(py::module_& module, const char* name, const char* doc, PyStructSequence_Field* fields);
py::object structured(PyTypeObject* type, std::initializer_list<py::object> values);

/// A C function that hands its events to the thread of Python's handlers, which calls this. It stays for good.
qorin_event_callback callback_of(const py::object& handler);

/// A text with zeroes behind it, as far as a command reads.
class text_in
{
public:
    text_in(const char* name, const std::string& text, std::size_t room);
    [[nodiscard]] const char* at() const { return bytes_.data(); }

private:
    std::vector<char> bytes_;
};

class text_out
{
public:
    text_out(std::size_t most, std::size_t room) : bytes_(std::max(most, room)), most_(most) {}
    [[nodiscard]] char* at() { return bytes_.data(); }
    [[nodiscard]] py::str value() const;

private:
    std::vector<char> bytes_;
    std::size_t most_;
};

enum class needs
{
    exactly,
    at_least,
    at_most
};
void check_count(const char* name, std::size_t given, needs what, std::size_t count);
/// Bytes and the like as an array; all else as it is.
py::object as_array(const py::object& given);

/// An array of Python's. Copied when it is of another type, or shorter than the memory that is read.
template <class Element>
class array_in
{
public:
    array_in(const char* name, const py::object& given, needs what, std::size_t count, std::size_t room)
        : given_(py::array_t<Element, py::array::c_style | py::array::forcecast>::ensure(
              sizeof(Element) == 1 ? as_array(given) : given))
    {
        if (!given_)
            throw py::error_already_set();
        const auto size = static_cast<std::size_t>(given_.size());
        check_count(name, size, what, count);
        if (size * sizeof(Element) >= room)
            return;
        padded_.resize(room / sizeof(Element));
        std::copy_n(given_.data(), size, padded_.begin());
    }
    [[nodiscard]] const Element* at() const { return padded_.empty() ? given_.data() : padded_.data(); }

private:
    py::array_t<Element, py::array::c_style | py::array::forcecast> given_;
    std::vector<Element> padded_;
};

/// The library writes right into the array that Python gets, or for single bytes into what becomes `bytes`.
template <class Element>
class array_out
{
public:
    array_out(std::vector<std::size_t> shape, std::size_t room) : shape_(std::move(shape))
    {
        for (const std::size_t dimension : shape_)
            count_ *= dimension;
        elements_ = py::array_t<Element>(static_cast<py::ssize_t>(std::max(count_, room / sizeof(Element))));
        std::memset(elements_.mutable_data(), 0, static_cast<std::size_t>(elements_.nbytes()));
    }
    [[nodiscard]] Element* at() { return elements_.mutable_data(); }
    [[nodiscard]] py::object value()
    {
        if constexpr (sizeof(Element) == 1 && !std::is_same_v<Element, bool>)
            return py::bytes(reinterpret_cast<const char*>(elements_.data()), count_);
        if (static_cast<std::size_t>(elements_.size()) > count_)
            elements_ = py::array_t<Element>(elements_[py::slice(0, static_cast<py::ssize_t>(count_), 1)]);
        return elements_.reshape(shape_);
    }

private:
    std::vector<std::size_t> shape_;
    std::size_t count_ = 1;
    py::array_t<Element> elements_;
};

template <class Value>
class out
{
public:
    [[nodiscard]] Value* at() { return &value_; }
    [[nodiscard]] Value value() const { return value_; }

private:
    Value value_{};
};

/// An output of a command, which reads a whole slot from it and writes 4 bytes, or 8 of a double.
template <class Value>
class wide_out
{
public:
    [[nodiscard]] Value* at() { return reinterpret_cast<Value*>(slot_.data()); }
    [[nodiscard]] Value value() const
    {
        std::conditional_t<std::is_same_v<Value, long> || sizeof(Value) < 4, int, Value> written{};
        std::memcpy(&written, slot_.data(), sizeof written);
        return static_cast<Value>(written);
    }

private:
    alignas(8) std::array<unsigned char, 128> slot_{};
};
} // namespace qorin_python

#endif
