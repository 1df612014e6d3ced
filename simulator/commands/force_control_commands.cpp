#include "simulator/commands/families.h"

#include "simulator/commands/robot_setters.h"
#include "simulator/commands/typed_command.h"
#include "simulator/commands/when_ready.h"
#include "simulator/model/pressed_force.h"

namespace cbox_simulator
{
namespace
{
constexpr auto force = &robot_settings::force;
constexpr auto sensor = &robot_settings::ft_sensor;
constexpr auto external = &robot_settings::external_ft;
using control = force_control;
using ft_sensor = force_torque_sensor;

/// A change is told to everybody: it is the sensor's status.
QORIN_API_RESULT sensor_switch_set(box_model& model, std::uint32_t id, QORIN_SWITCH value)
{
    auto* robot = model.robots().find(id);
    if (!robot)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    const auto before = robot->settings().ft_sensor.active;
    const auto result = keep<possible, sensor, &ft_sensor::active>(*robot, value);
    if (robot->settings().ft_sensor.active != before)
        model.events().post(QORIN_EVENT_GRP_NOTIFICATION, QORIN_EVENT_SUBGRP_NOTIFICATION_FT_SENSOR_STATUS, id);
    return result;
}

/// A stream, a jog or a recording has the arm for itself.
QORIN_API_RESULT control_switch_set(box_model& model, robot_state& robot, QORIN_SWITCH value)
{
    if (value == QORIN_SWITCH_ON && !model.motion_of(robot).can_be_taken_along())
        return QORIN_API_RESULT_ROBOT_IS_MOVING_STATE;
    return keep<possible, force, &control::active>(robot, value);
}

/// A bias counts from what is there when its switch is told.
template <auto keeper, auto take, class... Switches>
QORIN_API_RESULT bias_set(robot_state& robot, Switches... values)
{
    const auto result = keeper(robot, values...);
    if (result == QORIN_API_RESULT_OK)
        take(robot);
    return result;
}

constexpr auto sensor_bias_set = bias_set<keep<possible, sensor, &ft_sensor::bias>, take_sensor_bias, QORIN_SWITCH>;

QORIN_API_RESULT sensor_bias_clear(robot_state& robot, QORIN_SWITCH value)
{
    const auto result = keep<possible, sensor, &ft_sensor::bias_clear>(robot, value);
    return result == QORIN_API_RESULT_OK && value == QORIN_SWITCH_ON ? sensor_bias_set(robot, QORIN_SWITCH_OFF)
                                                                     : result;
}

constexpr command_row rows[] = {
    controlled<keep<magnitude, force, &control::low_pass_filter>>("qorin_robot_force_ctrl_low_pass_filter_set"),
    controlled<when_ready<control_switch_set>>("qorin_robot_force_ctrl_switch_set"),
    controlled<bias_set<keep<possible, force, &control::sensorless_bias>, take_bias_without_sensor, QORIN_SWITCH>>(
        "qorin_robot_force_ctrl_sensorless_bias_set"),
    controlled<keep_six<possible, force, &control::force>>("qorin_robot_force_ctrl_force_set"),
    controlled<keep_six<possible, force, &control::velocity>>("qorin_robot_force_ctrl_velocity_set"),
    controlled<keep_six<possible, force, &control::acceleration>>("qorin_robot_force_ctrl_acc_set"),
    controlled<keep_six<possible, force, &control::deceleration>>("qorin_robot_force_ctrl_dec_set"),
    controlled<keep_six<possible, force, &control::damping_ratio>>("qorin_robot_force_ctrl_damping_ratio_set"),
    controlled<keep_six<possible, force, &control::inertia>>("qorin_robot_force_ctrl_inertia_set"),
    controlled<keep_six<possible, force, &control::approach_velocity>>("qorin_robot_force_ctrl_approach_velocity_set"),
    controlled<keep_six<possible, force, &control::stiffness>>("qorin_robot_force_ctrl_stiffness_set"),
    controlled<keep<possible, force, &control::coordinate>>("qorin_robot_force_ctrl_coordinate_set"),
    controlled<keep_six<possible, force, &control::direction>>("qorin_robot_force_ctrl_direction_switch_set"),
    controlled<bias_set<keep_six<possible, force, &control::force_value_bias>, take_force_biases, QORIN_SWITCH,
                        QORIN_SWITCH, QORIN_SWITCH, QORIN_SWITCH, QORIN_SWITCH, QORIN_SWITCH>>(
        "qorin_robot_force_ctrl_force_value_bias_set"),
    controlled<sensor_switch_set>("qorin_robot_force_torq_sensor_switch_set"),
    controlled<sensor_bias_set>("qorin_robot_force_torq_sensor_bias_switch_set"),
    controlled<sensor_bias_clear>("qorin_robot_force_torq_sensor_bias_clear"),
    controlled<keep<possible, external, &external_force_torque::active>>(
        "qorin_robot_ext_force_torq_sensor_switch_set"),
    controlled<keep_six<possible, external, &external_force_torque::force_torque>>(
        "qorin_robot_ext_force_torq_sensor_force_torque_set"),
    controlled<keep<possible, sensor, &ft_sensor::filter>>("qorin_robot_force_torq_sensor_filter_set"),
    controlled<keep<possible, sensor, &ft_sensor::sample_rate>>("qorin_robot_force_torq_sensor_sample_rate_set"),
    controlled<keep<possible, sensor, &ft_sensor::calibration>>("qorin_robot_force_torq_sensor_calibration_set"),
};
} // namespace

std::span<const command_row> force_control_commands()
{
    return rows;
}
} // namespace cbox_simulator
