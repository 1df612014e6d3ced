#ifndef SIMULATOR_MODEL_ROBOT_STATE_H
#define SIMULATOR_MODEL_ROBOT_STATE_H

#include <optional>

#include "kinematics/arm_models.h"
#include "kinematics/arm_solver.h"
#include "qorin/result.h"
#include "simulator/model/bounding_shape.h"
#include "simulator/model/dynamics_calibration.h"
#include "simulator/model/external_profiler.h"
#include "simulator/model/pose.h"
#include "simulator/model/recordings.h"
#include "simulator/model/robot_settings.h"
#include "simulator/model/safety_planes.h"

namespace cbox_simulator
{
/// Joints, and the poses that they make.
struct stance
{
    savrent::kinematics::joint_array joints{};
    pose flange{};
    pose tcp{};
};

/**
 * One robot: its arm, where it stands, and what it is set to.
 *
 * The drives are ideal, so that what is commanded and what is measured are one, save while the arm runs after streamed
 * targets. The poses are computed when the joints, the table or the tool change; reading them costs nothing. An
 * operation that refuses changes nothing.
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
    [[nodiscard]] const joint_array& joint_angles() const { return actual_.joints; }
    [[nodiscard]] const joint_array& joint_speeds() const { return joint_speeds_; } ///< Degrees per second.
    [[nodiscard]] const pose& tcp_from_flange() const { return tcp_from_flange_; }
    [[nodiscard]] const pose& flange_pose() const { return actual_.flange; }
    [[nodiscard]] const pose& tcp_pose() const { return actual_.tcp; }
    [[nodiscard]] const stance& commanded() const { return commanded_; }
    [[nodiscard]] QORIN_MOVING_STATE moving_state() const { return moving_state_; }
    [[nodiscard]] const robot_settings& settings() const { return settings_; }
    [[nodiscard]] robot_settings& settings() { return settings_; }
    [[nodiscard]] const safety_planes& planes() const { return planes_; }
    [[nodiscard]] safety_planes& planes() { return planes_; }
    [[nodiscard]] std::optional<bounding_shape>& tcp_shape() { return tcp_shape_; }
    [[nodiscard]] const external_profiler& profiler() const { return profiler_; }
    [[nodiscard]] external_profiler& profiler() { return profiler_; }
    [[nodiscard]] dynamics_calibration& calibration() { return calibration_; }
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

    /// Kilograms, and millimetres in the flange frame. Mass and centre have a result of their own for each thing that
    /// cannot be.
    QORIN_API_RESULT set_payload(const payload& carried);

    /// What a motion does. Running after streamed targets is none: clients end their stream when they see a motion.
    void set_moving_state(QORIN_MOVING_STATE state) { moving_state_ = state; }

    /// Makes the arm run after streamed targets, or stand still again. A number that is no switch is
    /// QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE; switching on while a motion runs is
    /// QORIN_API_RESULT_ROBOT_IS_MOVING_STATE.
    QORIN_API_RESULT set_joint_chaser(QORIN_SWITCH value);

    /// The next streamed target; what is beyond the arm's range becomes the end of the range. False when the chaser is
    /// off or a target is no finite number.
    bool chase(const joint_array& targets);

    /// Ends the run after the last target where the arm is. False when the chaser is off.
    bool stop_chasing();

    /// Lets a control cycle pass. The arm follows the profiler's points while its servo is on, passing over those that
    /// it cannot reach. After streamed targets each joint goes a share of its way, no faster than its safety limit.
    void run_cycle(double seconds);

private:
    [[nodiscard]] bool chases() const { return settings_.switches.joint_chaser == QORIN_SWITCH_ON; }
    void take_profiler_point();
    void run_after_stream(double seconds);
    void stand_still();
    void follow_joints(stance& which) const;
    void follow_tool(stance& which) const;

    const savrent::kinematics::arm_model* arm_;
    savrent::kinematics::arm_solver solver_;
    pose tcp_from_flange_{};
    stance actual_;
    stance commanded_;
    joint_array joint_speeds_{};
    QORIN_MOVING_STATE moving_state_ = QORIN_MOVING_STATE_IDLE;
    robot_settings settings_;
    safety_planes planes_;
    std::optional<bounding_shape> tcp_shape_;
    external_profiler profiler_;
    dynamics_calibration calibration_;
    cbox_simulator::recordings recordings_;
};
} // namespace cbox_simulator

#endif
