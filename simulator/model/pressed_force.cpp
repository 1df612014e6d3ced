#include "simulator/model/pressed_force.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include <Eigen/Geometry>

#include "kinematics/angles.h"
#include "kinematics/rotation.h"
#include "simulator/model/pose_rotation.h"

namespace cbox_simulator
{
namespace
{
using Eigen::Matrix3d;
using Eigen::Vector3d;

/// Friction is there in full when the TCP slides this fast: it must not leap when it turns back. Millimetres per
/// second.
constexpr double full_friction_at = 1;
constexpr double metres = 1e-3; // from millimetres

Vector3d vector(const std::array<double, 3>& values)
{
    return Vector3d::Map(values.data());
}

axis_values turned(const Matrix3d& rotation, const axis_values& values)
{
    axis_values result;
    Vector3d::Map(&result[0]) = rotation * Vector3d::Map(&values[0]);
    Vector3d::Map(&result[3]) = rotation * Vector3d::Map(&values[3]);
    return result;
}

/// Asked for each frame, in which most arms touch nothing.
axis_values from_tcp_to_base(const robot_state& robot, const axis_values& values)
{
    return values == axis_values{} ? values : turned(rotation_of(robot.tcp_pose()), values);
}

axis_values sum_of(axis_values a, const axis_values& b, double times = 1)
{
    for (std::size_t axis = 0; axis < a.size(); ++axis)
        a[axis] += times * b[axis];
    return a;
}

/// With what the TCP presses into the plane and rubs along it, along the axes of the base.
Vector3d force_into_plane(const robot_state& robot)
{
    const auto& [x, y, z, distance, stiffness, friction] = robot.settings().touch.contact_plane;
    const Vector3d normal = Vector3d(x, y, z).normalized();
    const double depth = distance - normal.dot(Vector3d::Map(robot.tcp_pose().data()));
    if (depth <= 0)
        return Vector3d::Zero();
    const Vector3d velocity = vector(robot.actual().tcp_velocity);
    const Vector3d sliding = velocity - normal * normal.dot(velocity);
    const Vector3d rubbing = sliding / std::max(sliding.norm(), full_friction_at) * friction;
    return (rubbing - normal) * stiffness * depth;
}

/// With what the flange holds its load, along the axes of the TCP and about it.
axis_values force_of_load(const robot_state& robot)
{
    const auto& [mass, centre] = robot.settings().tcp_payload;
    const Matrix3d flange = rotation_of(robot.flange_pose());
    const Vector3d from_tcp =
        flange * vector(centre) + Vector3d::Map(robot.flange_pose().data()) - Vector3d::Map(robot.tcp_pose().data());
    const Vector3d force = -vector(down_from_base(robot)) * mass * motion::arm_load::gravity;
    const Vector3d torque = (from_tcp * metres).cross(force);
    axis_values along_base;
    Vector3d::Map(&along_base[0]) = force;
    Vector3d::Map(&along_base[3]) = torque;
    return turned(rotation_of(robot.tcp_pose()).transpose(), along_base);
}

/// What force control goes by, along the axes of the TCP.
axis_values felt_force(const robot_state& robot)
{
    const auto& external = robot.settings().external_ft;
    return external.active == QORIN_SWITCH_ON ? external.force_torque : pressed_force(robot);
}

bool has_sensor(const robot_settings& settings)
{
    return settings.ft_sensor.active == QORIN_SWITCH_ON || settings.external_ft.active == QORIN_SWITCH_ON;
}
} // namespace

std::array<double, 3> down_from_base(const robot_state& robot)
{
    const auto& mount = robot.settings().installation_mount;
    if (mount == std::array<double, 2>{})
        return {0, 0, -1};
    const double tilt = savrent::kinematics::radians(mount[0]);
    const double turn = savrent::kinematics::radians(mount[1]);
    return {std::sin(tilt) * std::cos(turn), -std::sin(tilt) * std::sin(turn), -std::cos(tilt)};
}

axis_values pressed_force(const robot_state& robot)
{
    const auto& touch = robot.settings().touch;
    auto force = touch.force_torque;
    if (const double stiffness = touch.contact_plane[4]; stiffness == 0)
        return force;
    Vector3d::Map(force.data()) += rotation_of(robot.tcp_pose()).transpose() * force_into_plane(robot);
    return force;
}

axis_values measured_force(const robot_state& robot)
{
    return sum_of(sum_of(pressed_force(robot), force_of_load(robot)), robot.settings().ft_sensor.zero, -1);
}

axis_values controlled_force(const robot_state& robot)
{
    const auto& settings = robot.settings();
    auto force = sum_of(felt_force(robot), settings.force.bias, -1);
    if (!has_sensor(settings))
        force = sum_of(force, settings.force.without_sensor, -1);
    return along_axes_of_control(robot, force);
}

void take_sensor_bias(robot_state& robot)
{
    auto& sensor = robot.settings().ft_sensor;
    sensor.zero = {};
    if (sensor.bias == QORIN_SWITCH_ON)
        sensor.zero = measured_force(robot);
}

void take_force_biases(robot_state& robot)
{
    auto& control = robot.settings().force;
    const auto felt = felt_force(robot);
    for (std::size_t axis = 0; axis < felt.size(); ++axis)
        control.bias[axis] = control.force_value_bias[axis] == QORIN_SWITCH_ON ? felt[axis] : 0;
}

void take_bias_without_sensor(robot_state& robot)
{
    auto& control = robot.settings().force;
    control.without_sensor = control.sensorless_bias == QORIN_SWITCH_ON ? felt_force(robot) : axis_values{};
}

axis_values along_axes_of_control(const robot_state& robot, const axis_values& along_tcp)
{
    return robot.settings().force.coordinate == QORIN_REF_COORDINATE_TCP ? along_tcp
                                                                         : from_tcp_to_base(robot, along_tcp);
}

robot_state::joint_array joint_torques(const robot_state& robot)
{
    const auto& settings = robot.settings();
    if (settings.switches.servo != QORIN_SWITCH_ON || !savrent::kinematics::find_arm_model(robot.arm().model))
        return {};
    const auto pressed = from_tcp_to_base(robot, pressed_force(robot));
    const auto& tcp = robot.tcp_pose();
    return robot.load().torques(
        {robot.actual().joints, robot.actual().speeds, robot.actual().accelerations},
        {settings.tcp_payload.mass, settings.tcp_payload.centre_of_mass}, down_from_base(robot),
        {{pressed[0], pressed[1], pressed[2]}, {pressed[3], pressed[4], pressed[5]}, {tcp[0], tcp[1], tcp[2]}});
}

robot_state::joint_array drive_currents(const robot_state& robot, const robot_state::joint_array& torques)
{
    robot_state::joint_array currents{};
    for (std::size_t joint = 0; joint < currents.size(); ++joint)
        currents[joint] = torques[joint] / robot.load().rated_torques()[joint] * motion::arm_load::rated_current;
    return currents;
}
} // namespace cbox_simulator
