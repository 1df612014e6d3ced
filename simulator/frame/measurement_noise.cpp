#include "simulator/frame/measurement_noise.h"

#include <algorithm>

#include "qorin/enumerations.h"

namespace cbox_simulator
{
namespace
{
using protocol::record_at;

constexpr std::size_t io_module_count = 2;
constexpr std::uint32_t most_robots = 2;
constexpr std::size_t joint_count = 6;

// Amplitudes at a level of 1.
constexpr double of_signal = 0.005;      // volts or milliamperes
constexpr double of_angle = 0.0005;      // degrees
constexpr double of_voltage = 0.05;      // volts
constexpr double of_current = 0.01;      // amperes
constexpr double of_temperature = 0.1;   // degrees Celsius
constexpr double of_joint_torque = 0.05; // newton metres
constexpr double of_force = 0.1;         // newtons
constexpr double of_torque = 0.01;       // newton metres
} // namespace

void measurement_noise::put_on(protocol::shared_data_t& frame)
{
    if (level_ == 0)
        return;
    for (std::size_t module = 0; module < io_module_count; ++module)
    {
        auto& record = record_at<protocol::io_module_data_t>(frame, module);
        for (std::size_t channel = 0; channel < 2; ++channel)
            record.analog_input[channel] = around(record.analog_input[channel], of_signal);
    }
    for (std::uint32_t id = 0; id < std::min<std::uint32_t>(frame.robot_count, most_robots); ++id)
        put_on_robot(frame, id);
}

void measurement_noise::put_on_robot(protocol::shared_data_t& frame, std::uint32_t id)
{
    auto& robot = frame.robots[id];
    if (robot.number_of_joints == 0)
        return; // a place ahead of another robot
    for (std::size_t joint = 0; joint < joint_count; ++joint)
    {
        auto& angle = robot.joint[joint];
        angle.angle_actual = around(angle.angle_actual, of_angle);
        angle.torque_actual = around(angle.torque_actual, of_joint_torque);
        auto& drive = record_at<protocol::joint_module_data_t>(frame, id * joint_count + joint);
        drive.voltage = around(drive.voltage, of_voltage);
        drive.current = around(drive.current, of_current);
        drive.temperature = around(drive.temperature, of_temperature);
    }
    auto& tool = record_at<protocol::tool_module_data_t>(frame, id);
    for (std::size_t channel = 0; channel < 2; ++channel)
        tool.analog_input[channel] = around(tool.analog_input[channel], of_signal);
    auto& sensor = record_at<protocol::ft_sensor_data_t>(frame, id);
    if (sensor.sensor_switch != QORIN_SWITCH_ON)
        return;
    for (std::size_t axis = 0; axis < 3; ++axis)
    {
        sensor.actual_force[axis] = around(sensor.actual_force[axis], of_force);
        sensor.actual_torque[axis] = around(sensor.actual_torque[axis], of_torque);
    }
}

double measurement_noise::around(double value, double amplitude)
{
    // Written out, since the library's distributions differ between compilers.
    const double even = static_cast<double>(chance_() >> 11) * 0x1p-52 - 1;
    return value + amplitude * level_ * even;
}
} // namespace cbox_simulator
