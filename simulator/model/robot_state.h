#ifndef SIMULATOR_MODEL_ROBOT_STATE_H
#define SIMULATOR_MODEL_ROBOT_STATE_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "kinematics/arm_models.h"
#include "qorin/result.h"
#include "simulator/kinematics/arm_catalogue.h"
#include "simulator/model/bounding_shape.h"
#include "simulator/model/dynamics_calibration.h"
#include "simulator/model/external_move.h"
#include "simulator/model/external_profiler.h"
#include "simulator/model/pose.h"
#include "simulator/model/recordings.h"
#include "simulator/model/robot_settings.h"
#include "simulator/model/safety_planes.h"
#include "simulator/model/stance.h"
#include "simulator/motion/arm_load.h"
#include "simulator/motion/drive_lag.h"
#include "simulator/motion/joint_motion.h"

namespace cbox_simulator
{
/**
 * One robot: its arm, where it stands, and what it is set to.
 *
 * The drives follow what they are commanded with a little lag, so that commanded and measured stances differ while the
 * arm moves. The poses are computed when the joints, the table or the tool change; reading them costs nothing. Who
 * moves the arm is of no matter here: the robot is told the drives' next command in each control cycle. An operation
 * that refuses changes nothing.
 */
class robot_state
{
public:
    using joint_array = savrent::kinematics::joint_array;
    using dh_table = savrent::kinematics::dh_table;

    /// Stands ready: wrist before the base, bent, the flange looking down. The safety limits are those of the arm.
    /// Other robots than arms stand with all joints at 0.
    explicit robot_state(const arm_catalogue::entry& robot) : robot_state(robot.data, robot.kinematics) {}
    explicit robot_state(const savrent::kinematics::arm_model& arm) : robot_state(arm, arm_kinematics(arm.table)) {}

    [[nodiscard]] const savrent::kinematics::arm_model& arm() const { return *arm_; }
    [[nodiscard]] const arm_kinematics& kinematics() const { return kinematics_; }
    [[nodiscard]] const dh_table& table() const { return kinematics_.table(); }
    [[nodiscard]] std::size_t joint_count() const { return kinematics_.joint_count(); }
    [[nodiscard]] const joint_array& joint_angles() const { return actual_.joints; }
    [[nodiscard]] const pose& tcp_from_flange() const { return tcp_from_flange_; }
    [[nodiscard]] const pose& flange_pose() const { return actual_.flange; }
    [[nodiscard]] const pose& tcp_pose() const { return actual_.tcp; }
    [[nodiscard]] const stance& commanded() const { return commanded_; }
    [[nodiscard]] const stance& actual() const { return actual_; }
    [[nodiscard]] QORIN_MOVING_STATE moving_state() const { return moving_state_; }
    [[nodiscard]] const std::string& motion_name() const { return motion_name_; }
    [[nodiscard]] const robot_settings& settings() const { return settings_; }
    [[nodiscard]] robot_settings& settings() { return settings_; }
    [[nodiscard]] const safety_planes& planes() const { return planes_; }
    [[nodiscard]] safety_planes& planes() { return planes_; }
    [[nodiscard]] const std::optional<bounding_shape>& tcp_shape() const { return tcp_shape_; }
    [[nodiscard]] std::optional<bounding_shape>& tcp_shape() { return tcp_shape_; }
    [[nodiscard]] const external_profiler& profiler() const { return profiler_; }
    [[nodiscard]] external_profiler& profiler() { return profiler_; }
    [[nodiscard]] const external_move& ext_move() const { return ext_move_; }
    [[nodiscard]] external_move& ext_move() { return ext_move_; }
    [[nodiscard]] const motion::arm_load& load() const { return load_; }
    [[nodiscard]] dynamics_calibration& calibration() { return calibration_; }
    [[nodiscard]] const cbox_simulator::recordings& recordings() const { return recordings_; }
    [[nodiscard]] cbox_simulator::recordings& recordings() { return recordings_; }

    /// What a joint can do: the arm's range, cut down by the safety limit that is set. How fast it is allowed to be in
    /// reduced mode does not count here, as a motion is slowed down by that and not planned for it.
    [[nodiscard]] savrent::kinematics::joint_range range_of(std::size_t joint) const;
    [[nodiscard]] motion::joint_bounds bounds() const;
    /// Within the ranges of all joints; false for what is no number.
    [[nodiscard]] bool can_stand_at(const joint_array& angles) const;
    [[nodiscard]] pose flange_pose_at(const joint_array& angles) const;
    /// The solution that is nearest to the reference, whatever the arm's range. Nothing when it is out of reach.
    [[nodiscard]] std::optional<joint_array> joints_at(const pose& flange, const joint_array& reference) const;

    /// Puts the arm there at once. An angle beyond a joint's range is
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

    /// It is to be destroyed, and only comes to rest.
    [[nodiscard]] bool is_leaving() const { return leaving_; }
    void leave() { leaving_ = true; }

    /// Of the command that runs; empty when none does.
    void set_motion_name(std::string_view name) { motion_name_ = name; }

    /// Switches off what moves the arm from outside: chaser, profiler, external move, targets of velocity control,
    /// force control, conveyor mode.
    void switch_streams_off();

    /// Stands until the robot is reset, and keeps it from being moved: the event that told of it, 0 when there is none.
    [[nodiscard]] std::uint32_t safety_violation() const { return safety_violation_; }
    void set_safety_violation(std::uint32_t why) { safety_violation_ = why; }

    /// Something that the arm has hit, likewise. It can also be cleared by itself, and leaves the power on.
    [[nodiscard]] std::uint32_t collision() const { return collision_; }
    void set_collision(std::uint32_t what) { collision_ = what; }

    /// How the arm would be commanded in the control cycle that passes, if it were commanded there.
    [[nodiscard]] stance commanded_to(const joint_array& joints, double seconds) const
    {
        return moved(commanded_, joints, seconds);
    }
    /// The drives' command for the control cycle that passes. What the arm measures then is also recorded.
    void command(const stance& next, double seconds);
    void command(const joint_array& joints, double seconds) { command(commanded_to(joints, seconds), seconds); }
    /// Something holds a joint fast, or lets it go.
    void hold_joint(std::size_t joint, bool held) { drives_.hold(joint, held); }
    /// The first joint that is farther from its command than any motion leaves it behind.
    [[nodiscard]] std::optional<std::size_t> joint_left_behind() const;
    /// From now on the arm is commanded to where it is.
    void give_in() { put_at(actual_.joints); }
    /// Whether the arm stands where it is commanded to, but for what no getter's reader would notice.
    [[nodiscard]] bool has_settled() const { return drives_.has_settled(); }
    /// Whether nothing would change if the same was commanded again.
    [[nodiscard]] bool rests() const { return commanded_.rests() && actual_.rests(); }

private:
    robot_state(const savrent::kinematics::arm_model& arm, const arm_kinematics& kinematics);
    void put_at(const joint_array& angles);
    void follow_joints(stance& which) const;
    [[nodiscard]] stance moved(const stance& before, const joint_array& joints, double seconds) const;
    void follow_tool(stance& which) const;

    const savrent::kinematics::arm_model* arm_;
    arm_kinematics kinematics_;
    motion::arm_load load_;
    pose tcp_from_flange_{};
    stance actual_;
    stance commanded_;
    motion::drive_lag drives_;
    QORIN_MOVING_STATE moving_state_ = QORIN_MOVING_STATE_IDLE;
    std::string motion_name_;
    std::uint32_t safety_violation_ = 0;
    std::uint32_t collision_ = 0;
    bool leaving_ = false;
    robot_settings settings_;
    safety_planes planes_;
    std::optional<bounding_shape> tcp_shape_;
    external_profiler profiler_;
    external_move ext_move_;
    dynamics_calibration calibration_;
    cbox_simulator::recordings recordings_;
};
} // namespace cbox_simulator

#endif
