#ifndef SIMULATOR_KINEMATICS_KINEMATICS_MODULE_H
#define SIMULATOR_KINEMATICS_KINEMATICS_MODULE_H

#include <cstddef>
#include <filesystem>
#include <vector>

#include "qorin/savrent_kinematics.h"

namespace cbox_simulator
{
/// A shared object with the interface of savrent_kinematics.h, mapped from its construction to the end of the process:
/// what it has registered for that end must be there.
class kinematics_module
{
public:
    /// Throws std::invalid_argument, with one line that names the file, for what is no module, lacks one of the twelve
    /// functions, serves no model, or has no joints or more than six.
    explicit kinematics_module(const std::filesystem::path& file);

    [[nodiscard]] const std::vector<QORIN_ROBOT_MODEL>& models() const { return models_; }
    [[nodiscard]] std::size_t joint_count() const { return joint_count_; }

    decltype(&savrent_kinematics_create) create = nullptr;
    decltype(&savrent_kinematics_destroy) destroy = nullptr;
    decltype(&savrent_kinematics_set_model_name) set_model_name = nullptr;
    decltype(&savrent_kinematics_forward) forward = nullptr;
    decltype(&savrent_kinematics_inverse) inverse = nullptr;
    decltype(&savrent_kinematics_set_dh_parameter) set_dh_parameter = nullptr;
    decltype(&savrent_kinematics_get_dh_parameter) get_dh_parameter = nullptr;

private:
    std::vector<QORIN_ROBOT_MODEL> models_;
    std::size_t joint_count_ = 0;
};
} // namespace cbox_simulator

#endif
