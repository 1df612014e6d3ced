#include <filesystem>
#include <string>

#include <dlfcn.h>
#include <pybind11/pybind11.h>

#include "bindings/python/source/events.h"
#include "bindings/python/source/raw.h"
#include "qorin/catalogue.h"
#include "qorin/cbox.h"
#include "qorin/robot.h"
#include "qorin/system.h"

namespace qorin_python
{
void define_raw_functions(py::module_& module);

namespace
{
py::str text_of(const char* text)
{
    return text != nullptr ? text : "";
}

/// Of the modules that came with the library.
std::string kinematics_directory()
{
    Dl_info library{};
    dladdr(reinterpret_cast<const void*>(&qorin_system_api_version_get), &library);
    return (std::filesystem::absolute(library.dli_fname).parent_path() / "qorin" / "kinematics").string();
}

/// With the id, which there is also when the versions differ.
py::tuple connect(const std::string& config, const std::string& address)
{
    unsigned int cbox_id = 0;
    QORIN_API_RESULT result{};
    {
        const without_lock released;
        result = qorin_rpc_system_cbox_connect(config.c_str(), address.c_str(), &cbox_id);
    }
    return py::make_tuple(static_cast<unsigned int>(result), cbox_id);
}

/// The library attaches a robot of the control box that was asked last.
void attach_robot(unsigned int cbox_id, unsigned int robot_id)
{
    QORIN_CBOX_MODEL model{};
    check("qorin_rpc_cbox_name_get", qorin_rpc_cbox_name_get(cbox_id, &model));
    unlocked("qorin_robot_attach", [&] { return qorin_robot_attach(robot_id); });
}

void define_local_functions(py::module_& module)
{
    module.attr("built_for") = QORIN_PYTHON_VERSION;
    module.def("library_version", [] { return text_of(qorin_system_api_version_get()); });
    module.def("kinematics_directory", &kinematics_directory);
    module.def("result_name", [](unsigned int code)
               { return text_of(qorin_system_api_result_string_get(static_cast<QORIN_API_RESULT>(code))); });
    module.def("result_text", [](unsigned int code)
               { return text_of(qorin_system_api_result_description_get(static_cast<QORIN_API_RESULT>(code))); });
    module.def("save_results",
               [](const std::string& path) { qorin_system_api_result_description_all_xml_save(path.c_str()); });
    module.def("connect", &connect);
    module.def("robot_attach", &attach_robot);
}
} // namespace
} // namespace qorin_python

PYBIND11_MODULE(_native, module)
{
    using namespace qorin_python;
    py::options options;
    options.disable_function_signatures(); // the texts begin with better ones
    define_local_functions(module);
    define_events(module);
    py::module_ raw = module.def_submodule("raw");
    raw.attr("__name__") = "qorin.raw";
    define_raw_functions(raw);
}
