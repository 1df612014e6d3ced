#include "savrent/ctrl/algorithm/robot_kinematics.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include <boost/dll/shared_library.hpp>
#include <boost/exception/diagnostic_information.hpp>
#include <boost/filesystem/directory.hpp>
#include <boost/system/system_error.hpp>

#include "protocol/limits.h"
#include "qorin/result.h"
#include "savrent/cc/debug_print.h"
#include "savrent/cc/enum_name.h"
#include "savrent/cc/os_util.h"
#include "savrent/cc/shared_data_manager.h"

namespace savrent::ctrl::algorithm
{
namespace
{
using cc::math::vector3;
using protocol::joint_limit;

constexpr std::size_t solution_count = 8;
constexpr std::size_t model_limit = 1024; // of one module; there are some twenty models

using joint_buffer = std::array<double, joint_limit>;

joint_buffer joints_from(const double* values, std::uint32_t count)
{
    joint_buffer joints = {};
    if (values != nullptr)
        std::copy_n(values, count, joints.begin());
    return joints;
}

/// The directory that a configured path stands for.
std::string module_directory(std::string path)
{
    const bool is_absolute = cc::os_util::is_abs_path(path);
    if (!is_absolute)
        cc::os_util::fix_path(path);
    std::string directory = path;
    if (const char* installation = std::getenv("SAVRENT_V3"); !is_absolute && installation != nullptr)
        directory = installation + path;

    std::error_code ignored;
    const std::filesystem::file_type type = std::filesystem::status(directory, ignored).type();
    if (type == std::filesystem::file_type::not_found || type == std::filesystem::file_type::none)
        directory = std::filesystem::current_path().string() + path;
    QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_INFO, "robot kinematics path: %s\n", directory.c_str());
    return directory;
}

/// "x.so" is a candidate, and so is "x.so1", but "x.so.1" is not.
bool is_candidate(const std::string& file_name)
{
    return file_name.size() >= 4 && file_name.find(".so", file_name.size() - 4) != std::string::npos;
}

/// A function of a module. It keeps the module mapped for as long as it lives.
template <class Function>
std::function<Function> module_function(const std::string& file, const char* symbol)
{
    const auto library = std::make_shared<boost::dll::shared_library>(file);
    Function* function = &library->get<Function>(symbol);
    return [library, function](auto... arguments) { return function(arguments...); };
}

template <class Function>
void bind(std::function<Function>& member, const std::string& file, const char* symbol)
{
    member = module_function<Function>(file, symbol);
}
} // namespace

robot_kinematics::robot_kinematics(QORIN_ROBOT_MODEL model, std::string path)
{
    try
    {
        load(model, module_directory(std::move(path)));
    }
    catch (const boost::exception&)
    {
        QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_ERROR, "%s\n", boost::current_exception_diagnostic_information().c_str());
    }
    catch (const boost::system::system_error&) // Boost.Filesystem throws its errors without boost::exception
    {
        QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_ERROR, "%s\n", boost::current_exception_diagnostic_information().c_str());
    }
    catch (...)
    {
        QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_ERROR, "kinematics load error\n");
    }
    if (loaded_)
        return;
    const char* name = cc::get_string_from_enum_internal(model);
    QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_ERROR, "cannot find robot kinematics module, model: %s\n",
                      name == nullptr ? "nullptr" : name);
    if (cc::system_data* data = cc::get_system_data())
        data->error_code = QORIN_API_RESULT_ROBOT_SERVER_KINEMATICS_MODULE_LOAD_FAILURE;
}

robot_kinematics::~robot_kinematics()
{
    if (loaded_)
        destroy_(&handle_);
    handle_ = nullptr;
}

void robot_kinematics::load(QORIN_ROBOT_MODEL model, const std::string& path)
{
    for (const boost::filesystem::directory_entry& entry : boost::filesystem::directory_iterator(path))
    {
        if (!is_candidate(entry.path().filename().string()) || !serves(entry.path().string(), model))
            continue;
        use_module(entry.path().string(), model);
        return;
    }
    if (model >= QORIN_ROBOT_MODEL_DONOT_USE_ARM_BELOW)
        return;
    use_default_kinematics();
    QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_INFO, "cannot find kinemaitcs module, set default kinematics. robot model: %d\n",
                      static_cast<int>(model));
}

bool robot_kinematics::serves(const std::string& file, QORIN_ROBOT_MODEL model)
{
    const auto get_num_of_models = module_function<int()>(file, "savrent_kinematics_get_num_of_models");
    const auto get_model_name = module_function<void(int*)>(file, "savrent_kinematics_get_model_name");
    const auto get_num_of_joints = module_function<int()>(file, "savrent_kinematics_get_num_of_joints");

    const auto count = static_cast<std::size_t>(std::max(get_num_of_models(), 0));
    num_of_joints_ = static_cast<std::uint32_t>(get_num_of_joints());
    std::array<int, model_limit> models = {};
    if (count > models.size())
    {
        QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_ERROR, "too many models in kinematics module: %s\n", file.c_str());
        return false;
    }
    get_model_name(models.data());
    const auto end = models.begin() + static_cast<std::ptrdiff_t>(count);
    if (std::find(models.begin(), end, static_cast<int>(model)) == end)
        return false;
    // The module itself writes into the joint buffers, and it writes as many joints as it has.
    if (num_of_joints_ > joint_limit)
    {
        QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_ERROR, "too many joints in kinematics module: %s\n", file.c_str());
        return false;
    }
    return true;
}

void robot_kinematics::use_module(const std::string& file, QORIN_ROBOT_MODEL model)
{
    bind(create_, file, "savrent_kinematics_create");
    bind(destroy_, file, "savrent_kinematics_destroy");
    bind(forward_, file, "savrent_kinematics_forward");
    bind(inverse_, file, "savrent_kinematics_inverse");
    bind(inverse_all_solutions_, file, "savrent_kinematics_inverse_all_solutions");
    bind(inverse_from_posture_, file, "savrent_kinematics_inverse_from_posture");
    bind(set_dh_parameter_, file, "savrent_kinematics_set_dh_parameter");
    bind(get_dh_parameter_, file, "savrent_kinematics_get_dh_parameter");
    create_(&handle_);
    module_function<void(void*, QORIN_ROBOT_MODEL)>(file, "savrent_kinematics_set_model_name")(handle_, model);
    QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_INFO, "robot kinematics module loaded successfully\n");
    loaded_ = true;
}

/// One linear axis along x, for robots whose kinematics nobody has written.
void robot_kinematics::use_default_kinematics()
{
    create_ = [](void**) {};
    destroy_ = [](void**) {};
    forward_ = [](void*, const double* joints, double* position, double* orientation)
    {
        std::fill_n(position, 3, 0.0);
        std::fill_n(orientation, 3, 0.0);
        position[0] = joints[0];
    };
    inverse_ = [](void*, const double* position, const double*, const double*, double* joints) -> char
    {
        joints[0] = position[0];
        return 1;
    };
    inverse_all_solutions_ = [](void*, const double*, const double*, double*, char*) {};
    inverse_from_posture_ = [](void*, const double*, const double*, const char*, double*) -> char { return 0; };
    set_dh_parameter_ = [](void*, const double*, const double*, const double*, const double*) {};
    get_dh_parameter_ = [](void*, double*, double*, double*, double*) {};
    loaded_ = true;
}

/// How many values of a joint array count: the buffers hold no more, whatever a file that was asked in vain reported.
std::uint32_t robot_kinematics::joint_count() const
{
    return std::min<std::uint32_t>(num_of_joints_, joint_limit);
}

void robot_kinematics::forward(const double* joints, vector3& position, vector3& orientation)
{
    if (!loaded_)
        return;
    const joint_buffer input = joints_from(joints, joint_count());
    vector3 new_position;
    vector3 new_orientation;
    forward_(handle_, input.data(), new_position.ptr(), new_orientation.ptr());
    position = new_position;
    orientation = new_orientation;
}

bool robot_kinematics::inverse(const vector3& position, const vector3& orientation, const double* reference,
                               double* joints)
{
    if (!loaded_)
        return true;
    const joint_buffer near_to = joints_from(reference, joint_count());
    joint_buffer found = {};
    if (inverse_(handle_, position.ptr(), orientation.ptr(), near_to.data(), found.data()) != 1)
        return false;
    std::copy_n(found.begin(), joint_count(), joints);
    return true;
}

void robot_kinematics::inverse_all_solutions(const vector3& position, const vector3& orientation, double* solutions,
                                             bool* valid)
{
    if (!loaded_)
        return;
    std::array<double, solution_count* joint_limit> found = {};
    std::array<char, solution_count> flags = {};
    inverse_all_solutions_(handle_, position.ptr(), orientation.ptr(), found.data(), flags.data());
    std::transform(flags.begin(), flags.end(), valid, [](char flag) { return flag != 0; });
    std::copy_n(found.begin(), solution_count * joint_count(), solutions);
}

bool robot_kinematics::inverse_from_posture(const vector3& position, const vector3& orientation,
                                            QORIN_ROBOT_POSTURE posture, double* joints)
{
    if (!loaded_)
        return true;
    const unsigned int bits = posture - QORIN_ROBOT_POSTURE_FRONT_ABOVE_FLIP;
    const char is_rear = (bits >> 2 & 1) != 0;
    const char is_below = (bits >> 1 & 1) != 0;
    const char is_nonflip = (bits & 1) != 0;
    const char flags[] = {is_rear, is_below, is_nonflip};
    joint_buffer found = {};
    if (inverse_from_posture_(handle_, position.ptr(), orientation.ptr(), flags, found.data()) != 1)
    {
        QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_ERROR,
                          "inverse from posture kinematics failure, pos(%f, %f, %f), ort(%f, %f, %f), posture: %d\n",
                          position.x, position.y, position.z, orientation.x, orientation.y, orientation.z,
                          static_cast<int>(posture));
        return false;
    }
    std::copy_n(found.begin(), joint_count(), joints);
    return true;
}

void robot_kinematics::set_dh_parameter(const double* parameter_1, const double* parameter_2, const double* parameter_3,
                                        const double* parameter_4)
{
    if (!loaded_)
        return;
    const std::uint32_t count = joint_count();
    set_dh_parameter_(handle_, joints_from(parameter_1, count).data(), joints_from(parameter_2, count).data(),
                      joints_from(parameter_3, count).data(), joints_from(parameter_4, count).data());
}

void robot_kinematics::get_dh_parameter(double* parameter_1, double* parameter_2, double* parameter_3,
                                        double* parameter_4)
{
    joint_buffer table[4] = {};
    get_dh_parameter_(handle_, table[0].data(), table[1].data(), table[2].data(), table[3].data());
    double* const outputs[] = {parameter_1, parameter_2, parameter_3, parameter_4};
    for (std::size_t i = 0; i < std::size(table); ++i)
        std::copy_n(table[i].begin(), joint_count(), outputs[i]);
}
} // namespace savrent::ctrl::algorithm
