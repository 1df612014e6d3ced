#include "simulator/frame/robot_functions_frame.h"

#include <array>
#include <cstddef>

#include "simulator/frame/frame_array.h"
#include "simulator/model/pressed_force.h"

namespace cbox_simulator
{
namespace
{
using protocol::ft_sensor_data_t;
using protocol::robot_data_t;
using protocol::shared_data_t;

void render_work_space(std::uint32_t id, const robot_state& robot, shared_data_t& frame)
{
    auto& block = frame.safety_planes[id];
    for (std::size_t index = 0; index < safety_planes::capacity; ++index)
    {
        const auto* held = robot.planes().find(index);
        block.plane_switch[index] = held ? QORIN_SWITCH_ON : QORIN_SWITCH_OFF;
        if (!held)
            continue;
        put(&block.plane[index][0], held->normal);
        block.plane[index][3] = held->constant;
    }
    const auto& switches = robot.settings().switches;
    frame.safety_shapes[id].tcp_bounding_shape_switch = switches.bounding_shape;
    frame.safety_limit_switch[id] = switches.safety_limit;
}

void render_force_control(const force_control& control, robot_data_t& record)
{
    record.force_ctrl_switch = control.active;
    record.force_ctrl_sensorless_bias = control.sensorless_bias;
    record.force_ctrl_coordinate = control.coordinate;
    record.force_ctrl_low_pass_filter = control.low_pass_filter;
    put(record.force_ctrl_direction_switch, control.direction);
    put(record.force_ctrl_force_value_bias, control.force_value_bias);
    put(record.force_ctrl_force, control.force);
    put(record.force_ctrl_velocity, control.velocity);
    put(record.force_ctrl_acc, control.acceleration);
    put(record.force_ctrl_dec, control.deceleration);
    put(record.force_ctrl_damping_ratio, control.damping_ratio);
    put(record.force_ctrl_inertia, control.inertia);
    put(record.force_ctrl_approach_velocity, control.approach_velocity);
    put(record.force_ctrl_stiffness, control.stiffness);
}

void put_force_torque(const axis_values& values, void* force, void* torque)
{
    const auto& [x, y, z, rx, ry, rz] = values;
    put(force, std::array{x, y, z});
    put(torque, std::array{rx, ry, rz});
}

void render_force_sensors(std::uint32_t id, const robot_state& of, shared_data_t& frame)
{
    const auto& settings = of.settings();
    auto& sensor = protocol::record_at<ft_sensor_data_t>(frame, id);
    sensor.sensor_switch = settings.ft_sensor.active;
    if (settings.ft_sensor.active == QORIN_SWITCH_ON)
        put_force_torque(measured_force(of), sensor.actual_force, sensor.actual_torque);
    frame.ext_ft_sensors[id].sensor_switch = settings.external_ft.active;
    auto& record = frame.robots[id];
    put_force_torque(controlled_force(of), record.force_ctrl_actual_force, record.force_ctrl_actual_torque);
}

void render_motion_from_outside(const robot_state& robot, robot_data_t& record)
{
    const auto& profiler = robot.profiler();
    record.ext_profiler_switch = profiler.active();
    record.ext_profiler_period = profiler.period_cycles();
    record.ext_profiler_buffer_size = profiler.waiting();
    record.ext_profiler_tcp_type = profiler.pose_type();
    record.conveyor_mode = robot.settings().conveyor_mode;
}
} // namespace

void render_robot_functions(std::uint32_t id, const robot_state& robot, shared_data_t& frame)
{
    const auto& settings = robot.settings();
    auto& record = frame.robots[id];
    render_work_space(id, robot, frame);
    render_force_control(settings.force, record);
    render_force_sensors(id, robot, frame);
    render_motion_from_outside(robot, record);
    put(record.joint_target_velocity, settings.targets.velocity);
    put(record.joint_target_acceleration, settings.targets.acceleration);
}
} // namespace cbox_simulator
