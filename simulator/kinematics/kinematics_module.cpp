#include "simulator/kinematics/kinematics_module.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include <dlfcn.h>
#include <fmt/format.h>

#include "kinematics/dh_table.h"

namespace cbox_simulator
{
namespace
{
constexpr int most_models = 1024; // there are some twenty

[[noreturn]] void refuse(const std::filesystem::path& file, const std::string& reason)
{
    throw std::invalid_argument(fmt::format("{} is no kinematics module: {}", file.string(), reason));
}

template <class Function>
void bind(void* library, const std::filesystem::path& file, const char* symbol, Function*& function)
{
    function = reinterpret_cast<Function*>(dlsym(library, symbol));
    if (function == nullptr)
        refuse(file, fmt::format("it has no function {}", symbol));
}
} // namespace

kinematics_module::kinematics_module(const std::filesystem::path& file)
{
    void* library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr)
        refuse(file, dlerror());
    decltype(&savrent_kinematics_get_num_of_models) get_num_of_models = nullptr;
    decltype(&savrent_kinematics_get_model_name) get_model_name = nullptr;
    decltype(&savrent_kinematics_get_num_of_joints) get_num_of_joints = nullptr;
    decltype(&savrent_kinematics_inverse_all_solutions) clients_only_1 = nullptr;
    decltype(&savrent_kinematics_inverse_from_posture) clients_only_2 = nullptr;
    bind(library, file, "savrent_kinematics_get_num_of_models", get_num_of_models);
    bind(library, file, "savrent_kinematics_get_model_name", get_model_name);
    bind(library, file, "savrent_kinematics_get_num_of_joints", get_num_of_joints);
    bind(library, file, "savrent_kinematics_create", create);
    bind(library, file, "savrent_kinematics_destroy", destroy);
    bind(library, file, "savrent_kinematics_set_model_name", set_model_name);
    bind(library, file, "savrent_kinematics_forward", forward);
    bind(library, file, "savrent_kinematics_inverse", inverse);
    bind(library, file, "savrent_kinematics_inverse_all_solutions", clients_only_1);
    bind(library, file, "savrent_kinematics_inverse_from_posture", clients_only_2);
    bind(library, file, "savrent_kinematics_set_dh_parameter", set_dh_parameter);
    bind(library, file, "savrent_kinematics_get_dh_parameter", get_dh_parameter);

    const int count = get_num_of_models();
    if (count < 1 || count > most_models)
        refuse(file, fmt::format("it serves {} models", count));
    std::vector<int> numbers(static_cast<std::size_t>(count));
    get_model_name(numbers.data());
    std::ranges::transform(numbers, std::back_inserter(models_),
                           [](int number) { return static_cast<QORIN_ROBOT_MODEL>(number); });
    const int joints = get_num_of_joints();
    if (joints < 1 || joints > static_cast<int>(savrent::kinematics::joint_count))
        refuse(file, fmt::format("it has {} joints", joints));
    joint_count_ = static_cast<std::size_t>(joints);
}
} // namespace cbox_simulator
