#include "simulator/commands/families.h"

#include "simulator/commands/robot_setters.h"
#include "simulator/commands/typed_command.h"
#include "simulator/commands/when_ready.h"
#include "simulator/model/moving_state.h"

namespace cbox_simulator
{
namespace
{
using settings = robot_settings;
using stop_kind = motion_executor::stop_kind;

constexpr double degrees_per_second_of_rpm = 6.0;

bool is_linked(const box_model& model)
{
    return model.cbox().ecat_connection_state() == QORIN_ECAT_CONN_STATE_CONNECTED;
}

QORIN_API_RESULT reset(box_model& model, robot_state& robot)
{
    if (!is_at_rest(robot.moving_state()))
        return QORIN_API_RESULT_ERROR_ROBOT_COULD_NOT_RESET_STATE;
    robot.set_safety_violation(0);
    robot.set_collision(0);
    model.motion_of(robot).reset();
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT stop_auto_time(box_model& model, robot_state& robot)
{
    model.motion_of(robot).stop(stop_kind::ordinary);
    return QORIN_API_RESULT_OK;
}

template <stop_kind kind>
QORIN_API_RESULT stop(box_model& model, robot_state& robot, double seconds)
{
    if (!is_magnitude(seconds))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    model.motion_of(robot).stop(kind, seconds);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT pause_auto_time(box_model& model, robot_state& robot)
{
    model.motion_of(robot).pause({});
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT pause(box_model& model, robot_state& robot, double seconds)
{
    if (!is_magnitude(seconds))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    model.motion_of(robot).pause(seconds);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT resume(box_model& model, robot_state& robot)
{
    model.motion_of(robot).resume();
    return QORIN_API_RESULT_OK;
}

/// A share of the speed that motions are told, so that none becomes faster than it was judged to be.
QORIN_API_RESULT speed_factor_set(box_model& model, robot_state& robot, double factor)
{
    if (!(factor >= 0 && factor <= 1))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    robot.settings().speed_factor = factor;
    model.motion_of(robot).take_speed_factor();
    return QORIN_API_RESULT_OK;
}

/// Power can be taken away at any time.
QORIN_API_RESULT servo_switch_set(box_model& model, robot_state& robot, QORIN_SWITCH value)
{
    const auto refusal = value == QORIN_SWITCH_ON ? refusal_of(model.readiness().hindrance_to_servo(robot),
                                                               QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE)
                                                  : QORIN_API_RESULT_OK;
    return refusal == QORIN_API_RESULT_OK ? robot.set_servo(value) : refusal;
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

QORIN_API_RESULT answer_of_homed_drives(box_model& model, robot_state&)
{
    return model.homing_result();
}

/// The drives are asked, without power, and have their home where it was.
QORIN_API_RESULT home_position_reset(box_model& model, robot_state& robot)
{
    return is_linked(model) ? while_standing<while_unpowered<answer_of_homed_drives>>(model, robot)
                            : QORIN_API_RESULT_ROBOT_ECAT_NOT_CONNECTED;
}

QORIN_API_RESULT home_joint_position_reset(box_model& model, robot_state& robot, std::uint32_t joint)
{
    return joint < robot.joint_count() ? home_position_reset(model, robot)
                                       : QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE;
}

/// These put their own control mode in force.
template <auto handler>
constexpr auto in_own_mode =
    while_standing<when_ready<handler, QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE, drive_use::any>>;

constexpr auto switches = &settings::switches;
constexpr auto targets = &settings::targets;

constexpr command_row rows[] = {
    controlled<reset>("qorin_robot_reset"),
    controlled<stop_auto_time>("qorin_robot_stop_auto_time"),
    controlled<pause_auto_time>("qorin_robot_pause_auto_time"),
    controlled<resume>("qorin_robot_resume"),
    controlled<stop<stop_kind::ordinary>>("qorin_robot_stop"),
    controlled<stop<stop_kind::emergency>>("qorin_robot_emergency_stop"),
    controlled<pause>("qorin_robot_pause"),
    controlled<speed_factor_set>("qorin_robot_speed_factor_set"),
    controlled<servo_switch_set>("qorin_robot_servo_switch_set"),
    controlled<keep<possible, switches, &robot_switches::acc_dec_auto_adjustment>>(
        "qorin_robot_acc_dec_auto_adjustment_set"),
    controlled<keep<possible, switches, &robot_switches::motion_auto_adjustment>>(
        "qorin_robot_motion_auto_adjust_swith_set"),
    controlled<while_standing<while_unpowered<installation_mount_set>>>("qorin_robot_installation_mount_set"),
    controlled<unless_enable_switch<while_standing<keep<possible, &settings::control_mode>>>>(
        "qorin_robot_control_mode_set"),
    controlled<keep_for_joint<possible, targets, &velocity_targets::velocity>>("qorin_robot_joint_target_velocity_set"),
    controlled<keep_for_joint<possible, targets, &velocity_targets::acceleration>>(
        "qorin_robot_joint_target_acceleration_set"),
    controlled<target_set_in_rpm<&velocity_targets::velocity>>("qorin_robot_joint_target_velocity_rpm_set"),
    controlled<target_set_in_rpm<&velocity_targets::acceleration>>("qorin_robot_joint_target_acceleration_rpm_set"),
    controlled<in_own_mode<velocity_control_switch_set>>("qorin_robot_velocity_control_switch_set"),
    controlled<home_position_reset>("qorin_robot_home_position_reset"),
    controlled<home_position_reset>("qorin_robot_home_position_auto_reset"),
    controlled<home_joint_position_reset>("qorin_robot_home_joint_position_reset"),
    controlled<in_own_mode<direct_teaching_force_to_switch_on>>("qorin_robot_direct_teaching_force_to_switch_on"),
    controlled<in_own_mode<direct_teaching_switch_set>>("qorin_robot_direct_teaching_switch_set"),
    controlled<keep<possible, &settings::teaching_payload_sensitivity>>(
        "qorin_robot_direct_teaching_payload_sensitivity_set"),
};
} // namespace

std::span<const command_row> robot_control_commands()
{
    return rows;
}
} // namespace cbox_simulator
