#ifndef SIMULATOR_ROBOT_STATE_H
#define SIMULATOR_ROBOT_STATE_H

#include <optional>

#include "kinematics/arm_models.h"
#include "kinematics/arm_solver.h"
#include "qorin/result.h"
#include "simulator/pose.h"
#include "simulator/recordings.h"
#include "simulator/robot_settings.h"

namespace cbox_simulator
{
/**
 * One robot: its arm, where it stands, and what it is set to.
 *
 * The drives are ideal, so that what is commanded and what is measured are one. The poses are computed when the
 * joints, the table or the tool change; reading them costs nothing. An operation that refuses changes nothing.
 */
class robot_state
{
public:
    using joint_array = savrent::kinematics::joint_array;
    using dh_table = savrent::kinematics::dh_table;

    /// Stands ready: wrist before the base, bent, the flange looking down. The safety limits are those of the arm.
    explicit robot_state(const savrent::kinematics::arm_model& arm);

    [[nodiscard]] const savrent::kinematics::arm_model& arm() const { return *arm_; }
    [[nodiscard]] const dh_table& table() const { return solver_.table(); }
    [[nodiscard]] const joint_array& joint_angles() const { return joint_angles_; }
    [[nodiscard]] const pose& tcp_from_flange() const { return tcp_from_flange_; }
    [[nodiscard]] const pose& flange_pose() const { return flange_pose_; }
    [[nodiscard]] const pose& tcp_pose() const { return tcp_pose_; }
    [[nodiscard]] const robot_settings& settings() const { return settings_; }
    [[nodiscard]] robot_settings& settings() { return settings_; }
    [[nodiscard]] cbox_simulator::recordings& recordings() { return recordings_; }

    /// Within the arm's range; false for what is no number.
    [[nodiscard]] bool can_stand_at(const joint_array& angles) const;
    [[nodiscard]] pose flange_pose_at(const joint_array& angles) const;
    /// The solution that is nearest to the reference, whatever the arm's range. Nothing when it is out of reach.
    [[nodiscard]] std::optional<joint_array> joints_at(const pose& flange, const joint_array& reference) const;

    /// Puts the arm there at once. An angle beyond the arm's range is
    /// QORIN_API_RESULT_ERROR_ROBOT_JOINT_PARAM_OUT_OF_RANGE.
    QORIN_API_RESULT set_joint_angles(const joint_array& angles);

    /// These refuse what cannot be with QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE: a number that is not finite, a
    /// table whose lengths are all 0, a number that is no switch.
    QORIN_API_RESULT set_tcp_from_flange(const pose& tcp_from_flange);
    QORIN_API_RESULT set_table(const dh_table& table);
    QORIN_API_RESULT set_servo(QORIN_SWITCH value);

private:
    void follow_joints();
    void follow_tool();

    const savrent::kinematics::arm_model* arm_;
    savrent::kinematics::arm_solver solver_;
    joint_array joint_angles_;
    pose tcp_from_flange_{};
    pose flange_pose_{};
    pose tcp_pose_{};
    robot_settings settings_;
    cbox_simulator::recordings recordings_;
};
} // namespace cbox_simulator

#endif
