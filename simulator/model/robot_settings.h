#ifndef SIMULATOR_MODEL_ROBOT_SETTINGS_H
#define SIMULATOR_MODEL_ROBOT_SETTINGS_H

#include <array>
#include <cstdint>
#include <string>

#include "kinematics/arm_models.h"
#include "protocol/limits.h"
#include "qorin/enumerations.h"
#include "simulator/model/force_settings.h"

/// What a robot is set to beside its place. None of it moves the arm, so that these are plain values: whoever sets one
/// has judged it before. The frame shows all that it has a field for.
namespace cbox_simulator
{
struct robot_switches
{
    QORIN_SWITCH servo = QORIN_SWITCH_OFF;
    QORIN_SWITCH collision_detection = QORIN_SWITCH_OFF;
    QORIN_SWITCH collision_mitigation = QORIN_SWITCH_OFF;
    QORIN_SWITCH weaving_event = QORIN_SWITCH_OFF;
    QORIN_SWITCH joint_chaser = QORIN_SWITCH_OFF;
    QORIN_SWITCH acc_dec_auto_adjustment = QORIN_SWITCH_OFF;
    QORIN_SWITCH motion_auto_adjustment = QORIN_SWITCH_OFF;
    QORIN_SWITCH safety_limit = QORIN_SWITCH_OFF;
    QORIN_SWITCH bounding_shape = QORIN_SWITCH_OFF;
};

/// Of velocity control, for each joint: degrees per second, and per second squared.
struct velocity_targets
{
    std::array<double, 6> velocity{};
    std::array<double, 6> acceleration{};
};

/// Millimetres per second, and per second squared.
struct tcp_limits
{
    double speed_max = 2000;
    double acceleration_max = 10000;
};

struct collision_thresholds
{
    std::array<double, 6> joint_torque{50, 50, 50, 25, 25, 25}; ///< Newton metres.
    std::array<double, 6> tcp_force{150, 150, 150, 15, 15, 15}; ///< Newtons, then newton metres.
    double tcp_resultant_force = 200;                           ///< Newtons.
};

/// In force while the robot runs in reduced mode.
struct reduced_mode_limits
{
    double tcp_speed = 250;  ///< Millimetres per second.
    double joint_speed = 30; ///< Degrees per second.
    std::array<double, 6> collision_joint_torque{25, 25, 25, 12, 12, 12};
    double collision_tcp_force = 75;
    bool in_force = false;
};

struct payload
{
    double mass = 0; ///< Kilograms.
    std::array<double, 3> centre_of_mass{};
};

/// One of the six drives in the robot's joints.
struct drive
{
    std::string sw_version = "SIM.DRIVE.v1.0";
    double voltage = 48;     ///< Volts.
    double temperature = 30; ///< Degrees Celsius.
    std::array<std::uint16_t, 4> error_code{};
    double velocity_feedforward_ratio = 1;
    double torque_feedforward_ratio = 1;
    double torque_feedforward_current = 0; ///< no frame shows it
};

/// The I/O module at the robot's flange. Bit n of a word is channel n.
struct tool_module
{
    static constexpr std::uint32_t digital_channels = protocol::tool_digital_channels;

    std::string hw_name = "SIM.TOOL";
    std::string hw_version = "SIM.TOOL.HW.v1.0";
    std::string sw_version = "SIM.TOOL.v1.0";
    std::uint32_t digital_input = 0;
    std::uint32_t digital_output = 0;
    std::array<QORIN_ANALOG_IO_MODE, 2> analog_input_mode{QORIN_ANALOG_IO_MODE_VOLTAGE, QORIN_ANALOG_IO_MODE_VOLTAGE};
    std::array<double, 2> analog_input{};
    std::array<double, 2> analog_output{};
    QORIN_TOOL_IO_POWER_VOLTAGE_OPTION power_voltage = QORIN_TOOL_POWER_VOLTAGE_OPTION_0;
    std::array<std::uint32_t, 3> led_color{};
};

struct robot_settings
{
    robot_switches switches;
    QORIN_DRIVE_CONTROL_MODE control_mode = QORIN_DRIVE_CONTROL_MODE_POSITION;
    double speed_factor = 1; ///< 1 leaves motions as fast as they are told.
    tcp_limits spec_tcp;
    tcp_limits safety_tcp;
    std::array<savrent::kinematics::joint_range, savrent::kinematics::joint_count> safety_joints{};
    collision_thresholds collision;
    reduced_mode_limits reduced_mode;
    payload tcp_payload;
    std::array<double, 2> installation_mount{}; ///< Degrees; zero is on the floor.
    velocity_targets targets;
    std::int32_t teaching_payload_sensitivity = 0; ///< Of direct teaching.
    std::array<double, 6> friction_feedrate{};     ///< Of the joints in the dynamics model.
    force_control force;
    force_torque_sensor ft_sensor;
    external_force_torque external_ft;
    cbox_simulator::touch touch;
    QORIN_CONVEYOR_MODE conveyor_mode = QORIN_CONVEYOR_MODE_OFF;
    std::array<double, 6> conveyor_start_offset{};
    double belt_speed = 0; ///< As the encoder in use tells it in each cycle: millimetres per second.
    std::array<drive, savrent::kinematics::joint_count> drives;
    tool_module tool;
};
} // namespace cbox_simulator

#endif
