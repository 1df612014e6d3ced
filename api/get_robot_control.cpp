#include "qorin/robot_status.h"

#include <cstring>

#include "api/frame_read.h"

namespace
{
using protocol::joint_data_t;
using protocol::joint_module_data_t;
using protocol::robot_data_t;
using qorin_api::read_drive;
using qorin_api::read_joint;
using qorin_api::read_joint_element;
using qorin_api::read_robot;

/// Turns what a getter has answered from degrees per second to revolutions per minute.
QORIN_API_RESULT in_rpm(QORIN_API_RESULT result, double* value)
{
    if (result == QORIN_API_RESULT_OK)
        *value /= 6.0;
    return result;
}
} // namespace

QORIN_API_RESULT qorin_robot_model_name_get(unsigned int robot_id, QORIN_ROBOT_MODEL* model)
{
    return read_robot(robot_id, &robot_data_t::model_name, model);
}

QORIN_API_RESULT qorin_robot_number_of_joints_get(unsigned int robot_id, unsigned int* count)
{
    return read_robot(robot_id, &robot_data_t::number_of_joints, count);
}

QORIN_API_RESULT qorin_robot_servo_switch_get(unsigned int robot_id, QORIN_SWITCH* servo_switch)
{
    return read_robot(robot_id, &robot_data_t::servo_switch, servo_switch);
}

QORIN_API_RESULT qorin_robot_control_mode_get(unsigned int robot_id, QORIN_DRIVE_CONTROL_MODE* mode)
{
    return read_robot(robot_id, &robot_data_t::control_mode, mode);
}

QORIN_API_RESULT qorin_robot_velocity_control_switch_get(unsigned int robot_id, QORIN_SWITCH* control_switch)
{
    return read_robot(robot_id,
                      [&](const robot_data_t& robot)
                      {
                          const bool is_on = robot.control_mode == QORIN_DRIVE_CONTROL_MODE_VELOCITY_PROFILE ||
                                             robot.control_mode == QORIN_DRIVE_CONTROL_MODE_VELOCITY;
                          *control_switch = is_on ? QORIN_SWITCH_ON : QORIN_SWITCH_OFF;
                      });
}

QORIN_API_RESULT qorin_robot_direct_teaching_switch_get(unsigned int robot_id, QORIN_SWITCH* teaching_switch)
{
    return read_robot(robot_id,
                      [&](const robot_data_t& robot)
                      {
                          const bool is_on = robot.control_mode == QORIN_DRIVE_CONTROL_MODE_TORQUE;
                          *teaching_switch = is_on ? QORIN_SWITCH_ON : QORIN_SWITCH_OFF;
                      });
}

QORIN_API_RESULT qorin_robot_joint_chaser_state_get(unsigned int robot_id, QORIN_SWITCH* state)
{
    return read_robot(robot_id, &robot_data_t::joint_chaser_state, state);
}

QORIN_API_RESULT qorin_robot_state_moving_get(unsigned int robot_id, QORIN_MOVING_STATE* state)
{
    return read_robot(robot_id, &robot_data_t::state_moving, state);
}

QORIN_API_RESULT qorin_robot_current_motion_name_get(unsigned int robot_id, char* name)
{
    return read_robot(robot_id,
                      [&](const robot_data_t& robot)
                      {
                          const std::size_t length =
                              strnlen(robot.current_motion_name, sizeof(robot.current_motion_name) - 1);
                          std::memcpy(name, robot.current_motion_name, length);
                          name[length] = '\0';
                      });
}

QORIN_API_RESULT qorin_robot_speed_factor_get(unsigned int robot_id, double* speed_factor)
{
    return read_robot(robot_id, &robot_data_t::speed_factor, speed_factor);
}

QORIN_API_RESULT qorin_robot_acc_dec_auto_adjustment_get(unsigned int robot_id, QORIN_SWITCH* adjustment_switch)
{
    return read_robot(robot_id, &robot_data_t::acc_dec_auto_adjustment, adjustment_switch);
}

QORIN_API_RESULT qorin_motion_command_robot_weaving_event_get(unsigned int robot_id, QORIN_SWITCH* event_switch)
{
    return read_robot(robot_id, &robot_data_t::weaving_event, event_switch);
}

QORIN_API_RESULT qorin_robot_installation_mount_get(unsigned int robot_id, double* mount_1, double* mount_2)
{
    return read_robot(robot_id, &robot_data_t::installation_mount, mount_1, mount_2);
}

QORIN_API_RESULT qorin_robot_tcp_payload_get(unsigned int robot_id, double* mass, double* center_x, double* center_y,
                                             double* center_z)
{
    return read_robot(robot_id, &robot_data_t::tcp_payload, mass, center_x, center_y, center_z);
}

QORIN_API_RESULT qorin_robot_tcp_from_flange_get(unsigned int robot_id, double* x, double* y, double* z, double* rx,
                                                 double* ry, double* rz)
{
    return read_robot(robot_id, &robot_data_t::tcp_from_flange, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_tcp_pose_command_get(unsigned int robot_id, double* x, double* y, double* z, double* rx,
                                                  double* ry, double* rz)
{
    return read_robot(robot_id, &robot_data_t::tcp_pose_command, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_tcp_pose_actual_get(unsigned int robot_id, double* x, double* y, double* z, double* rx,
                                                 double* ry, double* rz)
{
    return read_robot(robot_id, &robot_data_t::tcp_pose_actual, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_flange_pose_command_get(unsigned int robot_id, double* x, double* y, double* z, double* rx,
                                                     double* ry, double* rz)
{
    return read_robot(robot_id, &robot_data_t::flange_pose_command, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_flange_pose_actual_get(unsigned int robot_id, double* x, double* y, double* z, double* rx,
                                                    double* ry, double* rz)
{
    return read_robot(robot_id, &robot_data_t::flange_pose_actual, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_tcp_pos_speed_command_get(unsigned int robot_id, double* x, double* y, double* z)
{
    return read_robot(robot_id, &robot_data_t::tcp_pos_speed_command, x, y, z);
}

QORIN_API_RESULT qorin_robot_tcp_ort_speed_command_get(unsigned int robot_id, double* rx, double* ry, double* rz)
{
    return read_robot(robot_id, &robot_data_t::tcp_ort_speed_command, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_tcp_pos_speed_actual_get(unsigned int robot_id, double* x, double* y, double* z)
{
    return read_robot(robot_id, &robot_data_t::tcp_pos_speed_actual, x, y, z);
}

QORIN_API_RESULT qorin_robot_tcp_ort_speed_actual_get(unsigned int robot_id, double* rx, double* ry, double* rz)
{
    return read_robot(robot_id, &robot_data_t::tcp_ort_speed_actual, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_joint_angle_command_get(unsigned int robot_id, unsigned int joint, double* angle)
{
    return read_joint(robot_id, joint, &joint_data_t::angle_command, angle);
}

QORIN_API_RESULT qorin_robot_joint_angle_actual_get(unsigned int robot_id, unsigned int joint, double* angle)
{
    return read_joint(robot_id, joint, &joint_data_t::angle_actual, angle);
}

QORIN_API_RESULT qorin_robot_joint_speed_command_get(unsigned int robot_id, unsigned int joint, double* speed)
{
    return read_joint(robot_id, joint, &joint_data_t::speed_command, speed);
}

QORIN_API_RESULT qorin_robot_joint_speed_actual_get(unsigned int robot_id, unsigned int joint, double* speed)
{
    return read_joint(robot_id, joint, &joint_data_t::speed_actual, speed);
}

QORIN_API_RESULT qorin_robot_joint_acc_command_get(unsigned int robot_id, unsigned int joint, double* acc)
{
    return read_joint(robot_id, joint, &joint_data_t::acc_command, acc);
}

QORIN_API_RESULT qorin_robot_joint_acc_actual_get(unsigned int robot_id, unsigned int joint, double* acc)
{
    return read_joint(robot_id, joint, &joint_data_t::acc_actual, acc);
}

QORIN_API_RESULT qorin_robot_joint_torque_actual_get(unsigned int robot_id, unsigned int joint, double* torque)
{
    return read_joint(robot_id, joint, &joint_data_t::torque_actual, torque);
}

QORIN_API_RESULT qorin_robot_joint_target_velocity_get(unsigned int robot_id, unsigned int joint, double* velocity)
{
    return read_joint_element(robot_id, joint, &robot_data_t::joint_target_velocity, velocity);
}

QORIN_API_RESULT qorin_robot_joint_target_velocity_rpm_get(unsigned int robot_id, unsigned int joint, double* velocity)
{
    return in_rpm(qorin_robot_joint_target_velocity_get(robot_id, joint, velocity), velocity);
}

QORIN_API_RESULT qorin_robot_joint_target_acceleration_get(unsigned int robot_id, unsigned int joint,
                                                           double* acceleration)
{
    return read_joint_element(robot_id, joint, &robot_data_t::joint_target_acceleration, acceleration);
}

QORIN_API_RESULT qorin_robot_joint_target_acceleration_rpm_get(unsigned int robot_id, unsigned int joint,
                                                               double* acceleration)
{
    return in_rpm(qorin_robot_joint_target_acceleration_get(robot_id, joint, acceleration), acceleration);
}

QORIN_API_RESULT qorin_robot_joint_temperature_get(unsigned int robot_id, unsigned int joint, double* temperature)
{
    return read_drive(robot_id, joint, &joint_module_data_t::temperature, temperature);
}

QORIN_API_RESULT qorin_robot_joint_voltage_get(unsigned int robot_id, unsigned int joint, double* voltage)
{
    return read_drive(robot_id, joint, &joint_module_data_t::voltage, voltage);
}

QORIN_API_RESULT qorin_robot_joint_current_get(unsigned int robot_id, unsigned int joint, double* current)
{
    return read_drive(robot_id, joint, &joint_module_data_t::current, current);
}

QORIN_API_RESULT qorin_robot_joint_error_code_get(unsigned int robot_id, unsigned int joint, unsigned short* code_1,
                                                  unsigned short* code_2, unsigned short* code_3,
                                                  unsigned short* code_4)
{
    return read_drive(robot_id, joint, &joint_module_data_t::error_code, code_1, code_2, code_3, code_4);
}

QORIN_API_RESULT qorin_robot_dynamics_friction_feedrate_get(unsigned int robot_id, unsigned int joint, double* feedrate)
{
    return read_joint(robot_id, joint, &joint_data_t::friction_feedrate, feedrate);
}

QORIN_API_RESULT qorin_ts_robot_joint_velocity_feedforward_ratio_get(unsigned int robot_id, unsigned int joint,
                                                                     double* ratio)
{
    return read_drive(robot_id, joint, &joint_module_data_t::velocity_feedforward_ratio, ratio);
}

QORIN_API_RESULT qorin_ts_robot_joint_torque_feedforward_ratio_get(unsigned int robot_id, unsigned int joint,
                                                                   double* ratio)
{
    return read_drive(robot_id, joint, &joint_module_data_t::torque_feedforward_ratio, ratio);
}

QORIN_API_RESULT qorin_robot_spec_tcp_speed_max_get(unsigned int robot_id, double* speed_max)
{
    return read_robot(robot_id, &robot_data_t::spec_tcp_speed_max, speed_max);
}

QORIN_API_RESULT qorin_robot_spec_tcp_acc_max_get(unsigned int robot_id, double* acc_max)
{
    return read_robot(robot_id, &robot_data_t::spec_tcp_acc_max, acc_max);
}

QORIN_API_RESULT qorin_robot_spec_joint_angle_get(unsigned int robot_id, unsigned int joint, double* angle_1,
                                                  double* angle_2)
{
    return read_joint(robot_id, joint, &joint_data_t::spec_angle, angle_2, angle_1);
}

QORIN_API_RESULT qorin_robot_spec_joint_speed_max_get(unsigned int robot_id, unsigned int joint, double* speed_max)
{
    return read_joint(robot_id, joint, &joint_data_t::spec_speed_max, speed_max);
}

QORIN_API_RESULT qorin_robot_spec_joint_acc_max_get(unsigned int robot_id, unsigned int joint, double* acc_max)
{
    return read_joint(robot_id, joint, &joint_data_t::spec_acc_max, acc_max);
}

const char* qorin_robot_joint_sw_version_get(unsigned int robot_id, unsigned int joint)
{
    const char* text = nullptr;
    (void)read_drive(robot_id, joint, [&](const joint_module_data_t& drive) { text = drive.sw_version; });
    return text;
}
