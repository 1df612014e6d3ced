#include "simulator/commands/robot_control_commands.h"

#include "simulator/commands/robot_setters.h"
#include "simulator/commands/typed_command.h"
#include "simulator/model/moving_state.h"

namespace cbox_simulator
{
namespace
{
using settings = robot_settings;

constexpr double degrees_per_second_of_rpm = 6.0;

bool is_linked(const box_model& model)
{
    return model.cbox().ecat_connection_state() == QORIN_ECAT_CONN_STATE_CONNECTED;
}

QORIN_API_RESULT reset(robot_state& robot)
{
    return is_at_rest(robot.moving_state()) ? QORIN_API_RESULT_OK : QORIN_API_RESULT_ERROR_ROBOT_COULD_NOT_RESET_STATE;
}

/// Stop, pause and resume in their forms without a time: the arm stands still in each of its states.
QORIN_API_RESULT leave_standing(robot_state&)
{
    return QORIN_API_RESULT_OK;
}

/// The time in which the arm is to come to rest. It rests.
QORIN_API_RESULT leave_standing_within(robot_state&, double seconds)
{
    return is_magnitude(seconds) ? QORIN_API_RESULT_OK : QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
}

/// The drives can be powered while the link to them is up; power can be taken away at any time.
QORIN_API_RESULT servo_switch_set(box_model& model, robot_state& robot, QORIN_SWITCH value)
{
    return value == QORIN_SWITCH_ON && !is_linked(model) ? QORIN_API_RESULT_ROBOT_ECAT_NOT_CONNECTED
                                                         : robot.set_servo(value);
}

QORIN_API_RESULT installation_mount_set(robot_state& robot, double first, double second)
{
    if (!is_possible(first) || !is_possible(second))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    robot.settings().installation_mount = {first, second};
    return QORIN_API_RESULT_OK;
}

template <auto target>
QORIN_API_RESULT target_set_in_rpm(robot_state& robot, std::uint32_t joint, double value)
{
    return keep_for_joint<possible, &settings::targets, target>(robot, joint, value * degrees_per_second_of_rpm);
}

/// Off ends this mode only, and leaves a mode that something else has put in force.
QORIN_API_RESULT switch_mode(robot_state& robot, QORIN_SWITCH value, QORIN_DRIVE_CONTROL_MODE mode, bool in_force)
{
    if (!is_possible(value))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    auto& current = robot.settings().control_mode;
    if (value == QORIN_SWITCH_ON)
        current = mode;
    else if (in_force)
        current = QORIN_DRIVE_CONTROL_MODE_POSITION;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT velocity_control_switch_set(robot_state& robot, QORIN_SWITCH value)
{
    const auto mode = robot.settings().control_mode;
    const bool in_force =
        mode == QORIN_DRIVE_CONTROL_MODE_VELOCITY || mode == QORIN_DRIVE_CONTROL_MODE_VELOCITY_PROFILE;
    return switch_mode(robot, value, QORIN_DRIVE_CONTROL_MODE_VELOCITY, in_force);
}

/// The arm gives way to the hand: its drives hold no position, but the torque against its weight.
QORIN_API_RESULT direct_teaching_switch_set(robot_state& robot, QORIN_SWITCH value)
{
    const bool in_force = robot.settings().control_mode == QORIN_DRIVE_CONTROL_MODE_TORQUE;
    return switch_mode(robot, value, QORIN_DRIVE_CONTROL_MODE_TORQUE, in_force);
}

QORIN_API_RESULT direct_teaching_force_to_switch_on(robot_state& robot)
{
    return direct_teaching_switch_set(robot, QORIN_SWITCH_ON);
}

/// The drives are asked, and ideal drives have their home where it was.
QORIN_API_RESULT home_position_reset(box_model& model, robot_state&)
{
    return is_linked(model) ? QORIN_API_RESULT_OK : QORIN_API_RESULT_ROBOT_ECAT_NOT_CONNECTED;
}

QORIN_API_RESULT home_joint_position_reset(box_model& model, robot_state& robot, std::uint32_t joint)
{
    return joint < savrent::kinematics::joint_count ? home_position_reset(model, robot)
                                                    : QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE;
}

/// A jog is judged only: it has no end of its own, and the simulated arm does not move in time. The arm must be free
/// for it, which it is not while a motion, points from outside, a conveyor or another control mode have it.
template <class... Values>
QORIN_API_RESULT judge_jog(const robot_state& robot, Values... values)
{
    const auto& kept = robot.settings();
    if (!is_at_rest(robot.moving_state()) || kept.control_mode != QORIN_DRIVE_CONTROL_MODE_POSITION ||
        kept.ext_move.active == QORIN_SWITCH_ON || robot.profiler().active() == QORIN_SWITCH_ON ||
        kept.conveyor_mode == QORIN_CONVEYOR_MODE_ON)
        return QORIN_API_RESULT_ROBOT_UNABLE_JOG_STATE;
    return (is_possible(values) && ...) ? QORIN_API_RESULT_OK : QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
}

QORIN_API_RESULT jog_tcp(robot_state& robot, QORIN_REF_COORDINATE coordinate, double a, double b, double c, double d,
                         double e)
{
    return judge_jog(robot, coordinate, a, b, c, d, e);
}

QORIN_API_RESULT jog_tcp_axis(robot_state& robot, QORIN_REF_COORDINATE coordinate, QORIN_DIRECTION direction, double a,
                              double b)
{
    return judge_jog(robot, coordinate, direction, a, b);
}

QORIN_API_RESULT jog_joint(robot_state& robot, std::uint32_t joint, QORIN_DIRECTION direction, double a, double b)
{
    return joint < savrent::kinematics::joint_count ? judge_jog(robot, direction, a, b)
                                                    : QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE;
}

constexpr auto switches = &settings::switches;
constexpr auto targets = &settings::targets;

constexpr command_row rows[] = {
    controlled<reset>("qorin_robot_reset"),
    controlled<leave_standing>("qorin_robot_stop_auto_time"),
    controlled<leave_standing>("qorin_robot_pause_auto_time"),
    controlled<leave_standing>("qorin_robot_resume"),
    controlled<leave_standing_within>("qorin_robot_stop"),
    controlled<leave_standing_within>("qorin_robot_emergency_stop"),
    controlled<leave_standing_within>("qorin_robot_pause"),
    controlled<keep<magnitude, &settings::speed_factor>>("qorin_robot_speed_factor_set"),
    controlled<servo_switch_set>("qorin_robot_servo_switch_set"),
    controlled<keep<possible, switches, &robot_switches::acc_dec_auto_adjustment>>(
        "qorin_robot_acc_dec_auto_adjustment_set"),
    controlled<keep<possible, switches, &robot_switches::motion_auto_adjustment>>(
        "qorin_robot_motion_auto_adjust_swith_set"),
    controlled<installation_mount_set>("qorin_robot_installation_mount_set"),
    controlled<keep<possible, &settings::control_mode>>("qorin_robot_control_mode_set"),
    controlled<keep_for_joint<possible, targets, &velocity_targets::velocity>>("qorin_robot_joint_target_velocity_set"),
    controlled<keep_for_joint<possible, targets, &velocity_targets::acceleration>>(
        "qorin_robot_joint_target_acceleration_set"),
    controlled<target_set_in_rpm<&velocity_targets::velocity>>("qorin_robot_joint_target_velocity_rpm_set"),
    controlled<target_set_in_rpm<&velocity_targets::acceleration>>("qorin_robot_joint_target_acceleration_rpm_set"),
    controlled<velocity_control_switch_set>("qorin_robot_velocity_control_switch_set"),
    controlled<home_position_reset>("qorin_robot_home_position_reset"),
    controlled<home_position_reset>("qorin_robot_home_position_auto_reset"),
    controlled<home_joint_position_reset>("qorin_robot_home_joint_position_reset"),
    controlled<jog_tcp>("qorin_robot_jog_tcp_position"),
    controlled<jog_tcp>("qorin_robot_jog_tcp_orientation"),
    controlled<jog_tcp_axis>("qorin_robot_jog_tcp_position_x"),
    controlled<jog_tcp_axis>("qorin_robot_jog_tcp_position_y"),
    controlled<jog_tcp_axis>("qorin_robot_jog_tcp_position_z"),
    controlled<jog_tcp_axis>("qorin_robot_jog_tcp_orientation_x"),
    controlled<jog_tcp_axis>("qorin_robot_jog_tcp_orientation_y"),
    controlled<jog_tcp_axis>("qorin_robot_jog_tcp_orientation_z"),
    controlled<jog_joint>("qorin_robot_jog_joint"),
    controlled<direct_teaching_force_to_switch_on>("qorin_robot_direct_teaching_force_to_switch_on"),
    controlled<direct_teaching_switch_set>("qorin_robot_direct_teaching_switch_set"),
    controlled<keep<possible, &settings::teaching_payload_sensitivity>>(
        "qorin_robot_direct_teaching_payload_sensitivity_set"),
};
} // namespace

std::span<const command_row> robot_control_commands()
{
    return rows;
}
} // namespace cbox_simulator
