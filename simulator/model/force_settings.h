#ifndef SIMULATOR_MODEL_FORCE_SETTINGS_H
#define SIMULATOR_MODEL_FORCE_SETTINGS_H

#include <array>

#include "qorin/enumerations.h"

/// Settings of force control and of its sensors. An axis array is in the order x, y, z, rx, ry, rz.
namespace cbox_simulator
{
using axis_values = std::array<double, 6>;
using axis_switches = std::array<QORIN_SWITCH, 6>;

inline constexpr axis_switches all_axes_off = {QORIN_SWITCH_OFF, QORIN_SWITCH_OFF, QORIN_SWITCH_OFF,
                                               QORIN_SWITCH_OFF, QORIN_SWITCH_OFF, QORIN_SWITCH_OFF};

struct force_control
{
    QORIN_SWITCH active = QORIN_SWITCH_OFF;
    QORIN_SWITCH sensorless_bias = QORIN_SWITCH_OFF;
    QORIN_REF_COORDINATE coordinate = QORIN_REF_COORDINATE_BASE;
    double low_pass_filter = 0;
    axis_switches direction = all_axes_off;
    axis_switches force_value_bias = all_axes_off;
    axis_values force{};
    axis_values velocity{};
    axis_values acceleration{};
    axis_values deceleration{};
    axis_values damping_ratio{};
    axis_values inertia{};
    axis_values approach_velocity{};
    axis_values stiffness{};
    axis_values bias{};           ///< What was there when the switches of the biases were told; in the TCP frame.
    axis_values without_sensor{}; ///< The same, of the bias without a sensor.
};

/// The sensor at the flange. It measures with what the robot presses, and what its load weighs.
struct force_torque_sensor
{
    QORIN_SWITCH active = QORIN_SWITCH_OFF;
    QORIN_SWITCH bias = QORIN_SWITCH_OFF;
    QORIN_SWITCH bias_clear = QORIN_SWITCH_OFF;
    QORIN_FORCE_TORQUE_SENSOR_FILTER filter = QORIN_FORCE_TORQUE_SENSOR_FILTER_NO_FILTER;
    QORIN_FORCE_TORQUE_SENSOR_SAMPLE_RATE sample_rate = QORIN_FORCE_TORQUE_SENSOR_FILTER_SAMPLE_RATE_975HZ;
    QORIN_FORCE_TORQUE_SENSOR_CALIBRATION calibration = QORIN_FORCE_TORQUE_SENSOR_CALIBRATION_RANGE_0;
    axis_values zero{}; ///< What it takes for nothing.
};

/// Force and torque of a sensor that the application has, and feeds to the box. While the input is on, force control
/// takes them for that with which the robot presses.
struct external_force_torque
{
    QORIN_SWITCH active = QORIN_SWITCH_OFF;
    axis_values force_torque{};
};

/// How the world touches a robot.
struct touch
{
    axis_values force_torque{}; ///< With which the TCP presses, along its axes: newtons, then newton metres.
    axis_values hand{};         ///< How fast a hand would turn each joint in direct teaching: degrees per second.
    /// A plane that gives way to the TCP like a spring: its normal and its distance from the base along that, in
    /// millimetres; stiffness in newtons a millimetre, without which there is none; friction as a share of the force.
    axis_values contact_plane{};
};
} // namespace cbox_simulator

#endif
