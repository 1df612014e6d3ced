#include "simulator/kinematics/arm_kinematics.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "kinematics/angles.h"

namespace cbox_simulator
{
namespace
{
/// Of the wrist's angle, from straight: its sine.
constexpr double straight = 1e-6;

std::shared_ptr<void> make_instance(const std::shared_ptr<const kinematics_module>& module, QORIN_ROBOT_MODEL model)
{
    void* handle = nullptr;
    module->create(&handle);
    if (handle == nullptr)
        throw std::runtime_error("a kinematics module has made no instance");
    module->set_model_name(handle, model);
    return {handle, [module](void* instance) { module->destroy(&instance); }};
}

savrent::kinematics::dh_table table_of(const kinematics_module& module, void* instance)
{
    savrent::kinematics::dh_table table;
    module.get_dh_parameter(instance, table.theta.data(), table.d.data(), table.a.data(), table.alpha.data());
    return table;
}
} // namespace

arm_kinematics::arm_kinematics(std::shared_ptr<const kinematics_module> module, QORIN_ROBOT_MODEL model)
    : solver_(dh_table{}), module_(std::move(module)), instance_(make_instance(module_, model)), model_(model)
{
    table_ = table_of(*module_, instance_.get());
    solver_ = savrent::kinematics::arm_solver(table_);
}

std::size_t arm_kinematics::joint_count() const
{
    return module_ ? module_->joint_count() : savrent::kinematics::joint_count;
}

arm_kinematics arm_kinematics::with_table(const dh_table& table) const
{
    if (!module_)
        return arm_kinematics(table);
    arm_kinematics changed(module_, model_);
    module_->set_dh_parameter(changed.instance_.get(), table.theta.data(), table.d.data(), table.a.data(),
                              table.alpha.data());
    changed.table_ = table_of(*module_, changed.instance_.get());
    changed.solver_ = savrent::kinematics::arm_solver(changed.table_);
    return changed;
}

arm_kinematics::flange_pose arm_kinematics::forward(const joint_array& joints) const
{
    if (!module_)
        return solver_.forward(joints);
    flange_pose pose;
    module_->forward(instance_.get(), joints.data(), pose.position.data(), pose.orientation.data());
    return pose;
}

std::optional<arm_kinematics::joint_array> arm_kinematics::inverse(const flange_pose& target,
                                                                   const joint_array& reference) const
{
    if (!module_)
        return solver_.inverse(target, reference);
    joint_array joints{};
    const char result = module_->inverse(instance_.get(), target.position.data(), target.orientation.data(),
                                         reference.data(), joints.data());
    const bool possible = result == 1 && std::ranges::all_of(joints, [](double angle) { return std::isfinite(angle); });
    return possible ? std::optional(joints) : std::nullopt;
}

bool arm_kinematics::is_wrist_straight(const joint_array& joints) const
{
    return joint_count() == savrent::kinematics::joint_count && solver_.has_closed_form() &&
           std::abs(std::sin(savrent::kinematics::radians(joints[4] + table_.theta[4]))) < straight;
}
} // namespace cbox_simulator
