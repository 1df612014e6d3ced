#ifndef QORIN_CPP_RESULT_HPP
#define QORIN_CPP_RESULT_HPP

#include <cerrno>
#include <exception>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <version>

#include <sys/mman.h>
#include <unistd.h>

#include "qorin/catalogue.h"
#include "qorin/result.h"
#include "qorin/system.h"

// Sources with std::expected and sources without it may meet in one program: their functions have names of their own.
#ifdef __cpp_lib_expected
#include <expected>
#define QORIN_LAYER with_std_expected
#else
#define QORIN_LAYER with_own_expected
#endif

namespace qorin::inline QORIN_LAYER
{
/// What these headers were made for: the version text of the library, and of a control box that fits it.
inline constexpr std::string_view header_version = "QORIN.v3.008.000.004_U2";

/// A file that is in memory alone, for functions that take paths. Lasts as long as the object.
class memory_file
{
public:
    explicit memory_file(const std::string& text = {}) : descriptor_(memfd_create("qorin", MFD_CLOEXEC))
    {
        for (std::string_view rest = text; !rest.empty();)
        {
            const ssize_t written = write(descriptor_, rest.data(), rest.size());
            if (written < 0 && errno != EINTR)
                return;
            rest.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
        }
    }
    memory_file(const memory_file&) = delete;
    memory_file& operator=(const memory_file&) = delete;
    ~memory_file() { close(descriptor_); }

    [[nodiscard]] std::string path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }
    [[nodiscard]] std::string text() const
    {
        std::string all;
        char piece[4096];
        for (ssize_t size = 0; (size = pread(descriptor_, piece, sizeof piece, static_cast<off_t>(all.size()))) > 0;)
            all.append(piece, static_cast<std::size_t>(size));
        return all;
    }

private:
    int descriptor_;
};

/// Why a call gave no value. Texts are looked up when they are asked for; making and copying an error costs nothing.
class error
{
public:
    constexpr error(QORIN_API_RESULT code, std::string_view function) : code_(code), function_(function) {}

    [[nodiscard]] constexpr QORIN_API_RESULT code() const { return code_; }
    [[nodiscard]] constexpr std::string_view function() const { return function_; } ///< of the C interface

    /// The command link is gone, and will not come back: what remains is a new connection.
    [[nodiscard]] constexpr bool is_lost_link() const { return code_ == QORIN_API_RESULT{}; }

    [[nodiscard]] std::string name() const
    {
        return is_lost_link() ? "LINK_LOST" : qorin_system_api_result_string_get(code_);
    }

    [[nodiscard]] std::string text() const
    {
        if (is_lost_link())
            return "The command link to the control box is lost.";
        std::string text = qorin_system_api_result_description_get(code_);
        if (code_ == QORIN_API_RESULT_ERROR_SW_VER_NOT_MATCHED)
        {
            const char* const box = qorin_rpc_system_control_sw_version_get(0);
            text += " Headers: " + std::string(header_version) + ", library: " + qorin_system_api_version_get() +
                    ", control box: " + (box != nullptr ? box : "not asked") + ".";
        }
        return text;
    }

    /// What to do about it. Of the library's catalogue, which tells most of it in the form of a file alone.
    [[nodiscard]] std::string advice() const
    {
        if (is_lost_link())
            return "Connect again: the new connection has a new id.";
        const memory_file file;
        qorin_system_api_result_description_all_xml_save(file.path().c_str());
        const std::string catalogue = file.text();
        const std::size_t row = catalogue.find("<Code>" + std::to_string(code_) + "</Code>");
        const std::size_t begin = catalogue.find("<HowToHandle>", row);
        return row == std::string::npos ? ""
                                        : catalogue.substr(begin + 13, catalogue.find('<', begin + 1) - begin - 13);
    }

    /// All of it in one line.
    [[nodiscard]] std::string message() const
    {
        const std::string what_to_do = advice();
        return std::string(function_) + ": " + std::to_string(code_) + " " + name() + ": " + text() +
               (what_to_do.empty() ? "" : " " + what_to_do);
    }

    friend constexpr bool operator==(const error& left, const error& right) { return left.code_ == right.code_; }

private:
    QORIN_API_RESULT code_;
    std::string_view function_;
};

#ifdef __cpp_lib_expected
using failure_base = std::bad_expected_access<void>;
#else
using failure_base = std::exception;
#endif

/// What value() throws when there is none.
class failure : public failure_base
{
public:
    explicit failure(const qorin::error& cause) : cause_(cause), what_(cause.message()) {}
    [[nodiscard]] const qorin::error& error() const noexcept { return cause_; }
    [[nodiscard]] const char* what() const noexcept override { return what_.c_str(); }

private:
    qorin::error cause_;
    std::string what_;
};

#ifdef __cpp_lib_expected
template <class Value>
using result = std::expected<Value, error>;
using unexpected = std::unexpected<error>;
#else
struct unexpected
{
    explicit constexpr unexpected(const error& why) : cause(why) {}
    error cause;
};

/// A value, or why there is none: the interface of std::expected.
template <class Value>
class [[nodiscard]] result
{
    using stored = std::conditional_t<std::is_void_v<Value>, std::monostate, Value>;

public:
    using value_type = Value;
    using error_type = qorin::error;

    constexpr result() = default;
    template <class Given = stored>
    requires(std::is_constructible_v<stored, Given> &&
             !std::is_same_v<std::remove_cvref_t<Given>, result>) constexpr result(Given&& value)
        : held_(std::in_place_index<0>, std::forward<Given>(value))
    {
    }
    constexpr result(unexpected why) : held_(std::in_place_index<1>, why.cause) {}

    [[nodiscard]] constexpr bool has_value() const noexcept { return held_.index() == 0; }
    [[nodiscard]] constexpr explicit operator bool() const noexcept { return has_value(); }
    [[nodiscard]] constexpr const qorin::error& error() const { return *std::get_if<1>(&held_); }

    constexpr std::add_lvalue_reference_t<Value> value() &
    {
        expect_value();
        return **this;
    }
    constexpr std::add_lvalue_reference_t<const Value> value() const&
    {
        expect_value();
        return **this;
    }
    constexpr Value value() &&
    {
        expect_value();
        if constexpr (!std::is_void_v<Value>)
            return std::move(**this);
    }

    constexpr std::add_lvalue_reference_t<Value> operator*()
    {
        if constexpr (!std::is_void_v<Value>)
            return *std::get_if<0>(&held_);
    }
    constexpr std::add_lvalue_reference_t<const Value> operator*() const
    {
        if constexpr (!std::is_void_v<Value>)
            return *std::get_if<0>(&held_);
    }
    constexpr stored* operator->() { return std::get_if<0>(&held_); }
    constexpr const stored* operator->() const { return std::get_if<0>(&held_); }

    [[nodiscard]] constexpr stored value_or(stored otherwise) const
    {
        return has_value() ? *std::get_if<0>(&held_) : std::move(otherwise);
    }

private:
    constexpr void expect_value() const
    {
        if (!has_value())
            throw failure(error());
    }

    std::variant<stored, qorin::error> held_;
};
#endif
} // namespace qorin::inline QORIN_LAYER

#ifdef __cpp_lib_expected
/// With the texts of the error, which the one of the standard library does not know.
template <>
class std::bad_expected_access<qorin::error> : public qorin::failure
{
public:
    using qorin::failure::failure;
};
#endif

#endif
