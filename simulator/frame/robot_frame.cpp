#include "simulator/frame/robot_frame.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <iterator>

#include "simulator/frame/frame_array.h"
#include "simulator/frame/frame_text.h"
#include "simulator/frame/robot_functions_frame.h"
#include "simulator/model/pressed_force.h"

namespace cbox_simulator
{
namespace
{
using protocol::joint_data_t;
using protocol::joint_module_data_t;
using protocol::record_at;
using protocol::robot_data_t;
using protocol::shared_data_t;
using protocol::tool_module_data_t;
using savrent::kinematics::joint_count;

// Robot r has the drives from 6 * r on. Of the last drive's record the stretch holds all fields that are in use, and
// not the reserved end: nothing may be written there.
constexpr std::size_t last_drive = robot_set::robot_limit * joint_count - 1;
static_assert(last_drive * joint_module_data_t::stride + offsetof(joint_module_data_t, reserved_3) <=
              sizeof(shared_data_t::joint_modules));
static_assert(robot_set::robot_limit * tool_module_data_t::stride <= sizeof(shared_data_t::tool_modules));
static_assert(robot_set::robot_limit == std::size(decltype(shared_data_t::robots){}));

constexpr double tool_current = 0.1; // of the module, while its supply is on; amperes

void render_switches(const robot_switches& switches, robot_data_t& record)
{
    record.servo_switch = switches.servo;
    record.collision_detection_switch = switches.collision_detection;
    record.collision_mitigation_switch = switches.collision_mitigation;
    record.weaving_event = switches.weaving_event;
    record.joint_chaser_state = switches.joint_chaser;
    record.acc_dec_auto_adjustment = switches.acc_dec_auto_adjustment;
}

void render_limits(const robot_settings& settings, robot_data_t& record)
{
    record.spec_tcp_speed_max = settings.spec_tcp.speed_max;
    record.spec_tcp_acc_max = settings.spec_tcp.acceleration_max;
    record.safety_tcp_speed_max = settings.safety_tcp.speed_max;
    record.safety_tcp_acc_max = settings.safety_tcp.acceleration_max;
    put(record.collision_threshold_joint_torque, settings.collision.joint_torque);
    put(record.collision_threshold_tcp_force, settings.collision.tcp_force);
    record.collision_threshold_tcp_resultant_force = settings.collision.tcp_resultant_force;
    // Readers hand out the second element first.
    record.velocity_in_reduced_mode[0] = settings.reduced_mode.joint_speed;
    record.velocity_in_reduced_mode[1] = settings.reduced_mode.tcp_speed;
    put(record.collision_torque_in_reduced_mode, settings.reduced_mode.collision_joint_torque);
    record.collision_tcp_force_in_reduced_mode = settings.reduced_mode.collision_tcp_force;
}

void render_poses(const robot_state& robot, robot_data_t& record)
{
    put(record.tcp_from_flange, robot.tcp_from_flange());
    put(record.tcp_pose_command, robot.commanded().tcp);
    put(record.tcp_pose_actual, robot.tcp_pose());
    put(record.tcp_pos_speed_command, robot.commanded().tcp_velocity);
    put(record.tcp_ort_speed_command, robot.commanded().tcp_turning);
    put(record.tcp_pos_speed_actual, robot.actual().tcp_velocity);
    put(record.tcp_ort_speed_actual, robot.actual().tcp_turning);
    put(record.flange_pose_command, robot.commanded().flange);
    put(record.flange_pose_actual, robot.flange_pose());
}

void render_joint(const robot_state& robot, std::size_t joint, joint_data_t& record)
{
    record.angle_command = robot.commanded().joints[joint];
    record.angle_actual = robot.joint_angles()[joint];
    record.speed_command = robot.commanded().speeds[joint];
    record.acc_command = robot.commanded().accelerations[joint];
    record.speed_actual = robot.actual().speeds[joint];
    record.acc_actual = robot.actual().accelerations[joint];
    // Readers hand out the second element first: least, then greatest angle.
    const auto& spec = robot.arm().joints[joint];
    record.spec_angle[0] = spec.angle_max;
    record.spec_angle[1] = spec.angle_min;
    record.spec_speed_max = spec.speed_max;
    record.spec_acc_max = spec.acceleration_max;
    const auto& safety = robot.settings().safety_joints[joint];
    record.safety_angle[0] = safety.angle_max;
    record.safety_angle[1] = safety.angle_min;
    record.safety_speed_max = safety.speed_max;
    record.safety_acc_max = safety.acceleration_max;
    record.friction_feedrate = robot.settings().friction_feedrate[joint];
    const auto& table = robot.table();
    record.dh_parameter_1 = table.theta[joint];
    record.dh_parameter_2 = table.d[joint];
    record.dh_parameter_3 = table.a[joint];
    record.dh_parameter_4 = table.alpha[joint];
}

void render_drive(const drive& source, joint_module_data_t& record)
{
    put_text(record.sw_version, source.sw_version);
    record.voltage = source.voltage;
    record.temperature = source.temperature;
    put(record.error_code, source.error_code);
    record.velocity_feedforward_ratio = source.velocity_feedforward_ratio;
    record.torque_feedforward_ratio = source.torque_feedforward_ratio;
}

void render_tool_module(const tool_module& module, tool_module_data_t& record)
{
    put_text(record.hw_name, module.hw_name);
    put_text(record.hw_version, module.hw_version);
    put_text(record.sw_version, module.sw_version);
    record.digital_input = module.digital_input;
    record.digital_output = module.digital_output;
    for (std::size_t channel = 0; channel < module.analog_input_mode.size(); ++channel)
    {
        const bool current = module.analog_input_mode[channel] == QORIN_ANALOG_IO_MODE_CURRENT;
        record.analog_mode |= (current ? 4u : 0u) << channel;
    }
    put(record.analog_input, module.analog_input);
    put(record.analog_output, module.analog_output);
    record.power_voltage = module.power_voltage;
    record.power_current = module.power_voltage == QORIN_TOOL_POWER_VOLTAGE_OPTION_0 ? 0 : tool_current;
    put(record.led_color, module.led_color);
}

void render_robot(std::uint32_t id, const robot_state& robot, shared_data_t& frame)
{
    auto& record = frame.robots[id];
    const auto& settings = robot.settings();
    record.number_of_joints = static_cast<std::uint32_t>(robot.joint_count());
    record.model_name = robot.arm().model;
    record.control_mode = settings.control_mode;
    record.state_moving = robot.moving_state();
    put_text(record.current_motion_name, robot.motion_name());
    record.safety_violation = robot.safety_violation() != 0 ? robot.safety_violation() : robot.collision();
    record.speed_factor = settings.speed_factor;
    record.tcp_payload[0] = settings.tcp_payload.mass;
    put(&record.tcp_payload[1], settings.tcp_payload.centre_of_mass);
    put(record.installation_mount, settings.installation_mount);
    render_switches(settings.switches, record);
    render_robot_functions(id, robot, frame);
    render_limits(settings, record);
    render_poses(robot, record);

    record.tool_module_index = id;
    render_tool_module(settings.tool, record_at<tool_module_data_t>(frame, id));
    const auto torques = joint_torques(robot);
    const auto currents = drive_currents(robot, torques);
    for (std::uint32_t joint = 0; joint < joint_count; ++joint)
    {
        const auto drive_index = static_cast<std::uint32_t>(id * joint_count + joint);
        record.joint[joint].module_index = drive_index;
        render_joint(robot, joint, record.joint[joint]);
        record.joint[joint].torque_actual = torques[joint];
        render_drive(settings.drives[joint], record_at<joint_module_data_t>(frame, drive_index));
        record_at<joint_module_data_t>(frame, drive_index).current = currents[joint];
    }
}
} // namespace

void render_robots(const robot_set& robots, shared_data_t& frame)
{
    frame.robot_count = robots.record_count();
    for (std::uint32_t id = 0; id < robot_set::robot_limit; ++id)
        if (const auto* robot = robots.find(id))
            render_robot(id, *robot, frame);
}
} // namespace cbox_simulator
