#include "bindings/python/source/raw.h"

#include "qorin/robot_status.h"

namespace qorin_python
{
namespace
{
constexpr std::size_t joints_most = 6;

[[noreturn]] void refuse(const std::string& why)
{
    throw py::value_error(why);
}
} // namespace

void fail(const char* function, QORIN_API_RESULT result)
{
    const py::object error =
        py::module_::import("qorin.errors").attr("error_of")(static_cast<unsigned int>(result), function);
    PyErr_SetObject(reinterpret_cast<PyObject*>(Py_TYPE(error.ptr())), error.ptr());
    throw py::error_already_set();
}

void check_signals()
{
    if (PyErr_CheckSignals() != 0)
        throw py::error_already_set();
}

std::size_t joint_count(unsigned int cbox_id, unsigned int robot_id)
{
    unsigned int count = 0;
    const bool known = qorin_rpc_robot_number_of_joints_get(cbox_id, robot_id, &count) == QORIN_API_RESULT_OK;
    return known && count > 0 && count <= joints_most ? count : joints_most;
}

QORIN_SWITCH switch_of(unsigned int value)
{
    if (value > 1)
        return static_cast<QORIN_SWITCH>(value);
    return value == 1 ? QORIN_SWITCH_ON : QORIN_SWITCH_OFF;
}

py::object enumerated(const char* enumeration, unsigned int value)
{
    static const py::handle enumerations = py::module_::import("qorin.enumerations").release();
    return enumerations.attr(enumeration)(value);
}

py::object text_or_none(const char* text)
{
    return text != nullptr ? py::object(py::str(text)) : py::none();
}

PyTypeObject* define_structure(py::module_& module, const char* name, const char* doc, PyStructSequence_Field* fields)
{
    int count = 0;
    while (fields[count].name != nullptr)
        ++count;
    const std::string full_name = "qorin.raw." + std::string(name);
    PyStructSequence_Desc description{full_name.c_str(), doc, fields, count};
    PyTypeObject* const type = PyStructSequence_NewType(&description);
    if (type == nullptr)
        throw py::error_already_set();
    module.attr(name) = py::handle(reinterpret_cast<PyObject*>(type));
    return type;
}

py::object structured(PyTypeObject* type, std::initializer_list<py::object> values)
{
    auto structure = py::reinterpret_steal<py::object>(PyStructSequence_New(type));
    if (!structure)
        throw py::error_already_set();
    py::ssize_t index = 0;
    for (const py::object& value : values)
        PyStructSequence_SetItem(structure.ptr(), index++, value.inc_ref().ptr());
    return structure;
}

text_in::text_in(const char* name, const std::string& text, std::size_t room) : bytes_(std::max(text.size() + 1, room))
{
    if (text.find('\0') != std::string::npos)
        refuse(std::string(name) + " holds a zero");
    if (room > 0 && text.size() >= room)
        refuse(std::string(name) + " has " + std::to_string(text.size()) + " bytes, and there is room for " +
               std::to_string(room - 1));
    std::copy(text.begin(), text.end(), bytes_.begin());
}

py::str text_out::value() const
{
    const auto length = static_cast<py::ssize_t>(strnlen(bytes_.data(), most_));
    PyObject* const text = PyUnicode_DecodeUTF8(bytes_.data(), length, "replace");
    if (text == nullptr)
        throw py::error_already_set();
    return py::reinterpret_steal<py::str>(text);
}

void check_count(const char* name, std::size_t given, needs what, std::size_t count)
{
    if (given == count || (what == needs::at_least && given > count) || (what == needs::at_most && given < count))
        return;
    const char* const words[] = {"", "at least ", "at most "};
    refuse(std::string(name) + " has " + std::to_string(given) + " elements in place of " +
           words[static_cast<int>(what)] + std::to_string(count));
}

py::object as_array(const py::object& given)
{
    if (!PyBytes_Check(given.ptr()) && !PyByteArray_Check(given.ptr()))
        return given;
    return py::module_::import("numpy").attr("frombuffer")(given, "uint8");
}
} // namespace qorin_python
