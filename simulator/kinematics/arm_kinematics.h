#ifndef SIMULATOR_KINEMATICS_ARM_KINEMATICS_H
#define SIMULATOR_KINEMATICS_ARM_KINEMATICS_H

#include <cstddef>
#include <memory>
#include <optional>

#include "kinematics/arm_solver.h"
#include "simulator/kinematics/kinematics_module.h"

namespace cbox_simulator
{
/**
 * Where a robot's joints put its flange and the other way round: by the solver of the arms that this box knows, or by a
 * kinematics module that its user has brought.
 *
 * Of a module with fewer than six joints the last angles are 0. Copies share nothing that a call changes. To be used by
 * one thread at a time, as a module of somebody's making may want it.
 */
class arm_kinematics
{
public:
    using joint_array = savrent::kinematics::joint_array;
    using dh_table = savrent::kinematics::dh_table;
    using flange_pose = savrent::kinematics::flange_pose;
    using link_points = savrent::kinematics::link_points;

    explicit arm_kinematics(const dh_table& table) : solver_(table), table_(table) {}
    arm_kinematics(std::shared_ptr<const kinematics_module> module, QORIN_ROBOT_MODEL model);

    [[nodiscard]] std::size_t joint_count() const;
    [[nodiscard]] const dh_table& table() const { return table_; }
    /// The same robot with another table. A module can do with it what it likes.
    [[nodiscard]] arm_kinematics with_table(const dh_table& table) const;

    [[nodiscard]] flange_pose forward(const joint_array& joints) const;
    /// Nothing for a module: its table need not tell where its links are.
    [[nodiscard]] std::optional<link_points> links(const joint_array& joints) const
    {
        return module_ ? std::nullopt : std::optional(solver_.links(joints));
    }
    /// The solution that is nearest to the reference. Nothing when the pose is out of reach.
    [[nodiscard]] std::optional<joint_array> inverse(const flange_pose& target, const joint_array& reference) const;

    /// Joints 4 and 6 of an arm with a spherical wrist turn about one axis then. Never for other robots.
    [[nodiscard]] bool is_wrist_straight(const joint_array& joints) const;

private:
    savrent::kinematics::arm_solver solver_;
    dh_table table_;
    std::shared_ptr<const kinematics_module> module_; ///< null for the arms that this box knows
    std::shared_ptr<void> instance_;
    QORIN_ROBOT_MODEL model_ = QORIN_ROBOT_MODEL_NONE;
};
} // namespace cbox_simulator

#endif
