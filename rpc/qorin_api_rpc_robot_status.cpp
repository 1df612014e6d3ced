#include "qorin/robot_status.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::from_mirror;

QORIN_API_RESULT qorin_rpc_robot_model_name_get(unsigned int cbox_id, unsigned int robot_id, QORIN_ROBOT_MODEL* model)
{
    return from_mirror(cbox_id, qorin_robot_model_name_get, robot_id, model);
}

QORIN_API_RESULT qorin_rpc_robot_number_of_joints_get(unsigned int cbox_id, unsigned int robot_id, unsigned int* count)
{
    return from_mirror(cbox_id, qorin_robot_number_of_joints_get, robot_id, count);
}

QORIN_API_RESULT qorin_rpc_robot_servo_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                  QORIN_SWITCH* servo_switch)
{
    return from_mirror(cbox_id, qorin_robot_servo_switch_get, robot_id, servo_switch);
}

QORIN_API_RESULT qorin_rpc_robot_control_mode_get(unsigned int cbox_id, unsigned int robot_id,
                                                  QORIN_DRIVE_CONTROL_MODE* mode)
{
    return from_mirror(cbox_id, qorin_robot_control_mode_get, robot_id, mode);
}

QORIN_API_RESULT qorin_rpc_robot_velocity_control_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                             QORIN_SWITCH* control_switch)
{
    return from_mirror(cbox_id, qorin_robot_velocity_control_switch_get, robot_id, control_switch);
}

QORIN_API_RESULT qorin_rpc_robot_direct_teaching_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                            QORIN_SWITCH* teaching_switch)
{
    return from_mirror(cbox_id, qorin_robot_direct_teaching_switch_get, robot_id, teaching_switch);
}

QORIN_API_RESULT qorin_rpc_robot_joint_chaser_state_get(unsigned int cbox_id, unsigned int robot_id,
                                                        QORIN_SWITCH* state)
{
    return from_mirror(cbox_id, qorin_robot_joint_chaser_state_get, robot_id, state);
}

QORIN_API_RESULT qorin_rpc_robot_state_moving_get(unsigned int cbox_id, unsigned int robot_id,
                                                  QORIN_MOVING_STATE* state)
{
    return from_mirror(cbox_id, qorin_robot_state_moving_get, robot_id, state);
}

QORIN_API_RESULT qorin_rpc_robot_current_motion_name_get(unsigned int cbox_id, unsigned int robot_id, char* name)
{
    return from_mirror(cbox_id, qorin_robot_current_motion_name_get, robot_id, name);
}

QORIN_API_RESULT qorin_rpc_robot_speed_factor_get(unsigned int cbox_id, unsigned int robot_id, double* speed_factor)
{
    return from_mirror(cbox_id, qorin_robot_speed_factor_get, robot_id, speed_factor);
}

QORIN_API_RESULT qorin_rpc_robot_acc_dec_auto_adjustment_get(unsigned int cbox_id, unsigned int robot_id,
                                                             QORIN_SWITCH* adjustment_switch)
{
    return from_mirror(cbox_id, qorin_robot_acc_dec_auto_adjustment_get, robot_id, adjustment_switch);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_weaving_event_get(unsigned int cbox_id, unsigned int robot_id,
                                                                  QORIN_SWITCH* event_switch)
{
    return from_mirror(cbox_id, qorin_motion_command_robot_weaving_event_get, robot_id, event_switch);
}

QORIN_API_RESULT qorin_rpc_robot_installation_mount_get(unsigned int cbox_id, unsigned int robot_id, double* mount_1,
                                                        double* mount_2)
{
    return from_mirror(cbox_id, qorin_robot_installation_mount_get, robot_id, mount_1, mount_2);
}

QORIN_API_RESULT qorin_rpc_robot_tcp_payload_get(unsigned int cbox_id, unsigned int robot_id, double* mass,
                                                 double* center_x, double* center_y, double* center_z)
{
    return from_mirror(cbox_id, qorin_robot_tcp_payload_get, robot_id, mass, center_x, center_y, center_z);
}

QORIN_API_RESULT qorin_rpc_robot_tcp_from_flange_get(unsigned int cbox_id, unsigned int robot_id, double* x, double* y,
                                                     double* z, double* rx, double* ry, double* rz)
{
    return from_mirror(cbox_id, qorin_robot_tcp_from_flange_get, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_tcp_pose_command_get(unsigned int cbox_id, unsigned int robot_id, double* x, double* y,
                                                      double* z, double* rx, double* ry, double* rz)
{
    return from_mirror(cbox_id, qorin_robot_tcp_pose_command_get, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_tcp_pose_actual_get(unsigned int cbox_id, unsigned int robot_id, double* x, double* y,
                                                     double* z, double* rx, double* ry, double* rz)
{
    return from_mirror(cbox_id, qorin_robot_tcp_pose_actual_get, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_flange_pose_command_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                         double* y, double* z, double* rx, double* ry, double* rz)
{
    return from_mirror(cbox_id, qorin_robot_flange_pose_command_get, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_flange_pose_actual_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                        double* y, double* z, double* rx, double* ry, double* rz)
{
    return from_mirror(cbox_id, qorin_robot_flange_pose_actual_get, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_tcp_pos_speed_command_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                           double* y, double* z)
{
    return from_mirror(cbox_id, qorin_robot_tcp_pos_speed_command_get, robot_id, x, y, z);
}

QORIN_API_RESULT qorin_rpc_robot_tcp_ort_speed_command_get(unsigned int cbox_id, unsigned int robot_id, double* rx,
                                                           double* ry, double* rz)
{
    return from_mirror(cbox_id, qorin_robot_tcp_ort_speed_command_get, robot_id, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_tcp_pos_speed_actual_get(unsigned int cbox_id, unsigned int robot_id, double* x,
                                                          double* y, double* z)
{
    return from_mirror(cbox_id, qorin_robot_tcp_pos_speed_actual_get, robot_id, x, y, z);
}

QORIN_API_RESULT qorin_rpc_robot_tcp_ort_speed_actual_get(unsigned int cbox_id, unsigned int robot_id, double* rx,
                                                          double* ry, double* rz)
{
    return from_mirror(cbox_id, qorin_robot_tcp_ort_speed_actual_get, robot_id, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_joint_angle_command_get(unsigned int cbox_id, unsigned int robot_id,
                                                         unsigned int joint, double* angle)
{
    return from_mirror(cbox_id, qorin_robot_joint_angle_command_get, robot_id, joint, angle);
}

QORIN_API_RESULT qorin_rpc_robot_joint_angle_actual_get(unsigned int cbox_id, unsigned int robot_id, unsigned int joint,
                                                        double* angle)
{
    return from_mirror(cbox_id, qorin_robot_joint_angle_actual_get, robot_id, joint, angle);
}

QORIN_API_RESULT qorin_rpc_robot_joint_speed_command_get(unsigned int cbox_id, unsigned int robot_id,
                                                         unsigned int joint, double* speed)
{
    return from_mirror(cbox_id, qorin_robot_joint_speed_command_get, robot_id, joint, speed);
}

QORIN_API_RESULT qorin_rpc_robot_joint_speed_actual_get(unsigned int cbox_id, unsigned int robot_id, unsigned int joint,
                                                        double* speed)
{
    return from_mirror(cbox_id, qorin_robot_joint_speed_actual_get, robot_id, joint, speed);
}

QORIN_API_RESULT qorin_rpc_robot_joint_acc_command_get(unsigned int cbox_id, unsigned int robot_id, unsigned int joint,
                                                       double* acc)
{
    return from_mirror(cbox_id, qorin_robot_joint_acc_command_get, robot_id, joint, acc);
}

QORIN_API_RESULT qorin_rpc_robot_joint_acc_actual_get(unsigned int cbox_id, unsigned int robot_id, unsigned int joint,
                                                      double* acc)
{
    return from_mirror(cbox_id, qorin_robot_joint_acc_actual_get, robot_id, joint, acc);
}

QORIN_API_RESULT qorin_rpc_robot_joint_torque_actual_get(unsigned int cbox_id, unsigned int robot_id,
                                                         unsigned int joint, double* torque)
{
    return from_mirror(cbox_id, qorin_robot_joint_torque_actual_get, robot_id, joint, torque);
}

QORIN_API_RESULT qorin_rpc_robot_joint_target_velocity_get(unsigned int cbox_id, unsigned int robot_id,
                                                           unsigned int joint, double* velocity)
{
    return from_mirror(cbox_id, qorin_robot_joint_target_velocity_get, robot_id, joint, velocity);
}

QORIN_API_RESULT qorin_rpc_robot_joint_target_velocity_rpm_get(unsigned int cbox_id, unsigned int robot_id,
                                                               unsigned int joint, double* velocity)
{
    return from_mirror(cbox_id, qorin_robot_joint_target_velocity_rpm_get, robot_id, joint, velocity);
}

QORIN_API_RESULT qorin_rpc_robot_joint_target_acceleration_get(unsigned int cbox_id, unsigned int robot_id,
                                                               unsigned int joint, double* acceleration)
{
    return from_mirror(cbox_id, qorin_robot_joint_target_acceleration_get, robot_id, joint, acceleration);
}

QORIN_API_RESULT qorin_rpc_robot_joint_target_acceleration_rpm_get(unsigned int cbox_id, unsigned int robot_id,
                                                                   unsigned int joint, double* acceleration)
{
    return from_mirror(cbox_id, qorin_robot_joint_target_acceleration_rpm_get, robot_id, joint, acceleration);
}

QORIN_API_RESULT qorin_rpc_robot_joint_temperature_get(unsigned int cbox_id, unsigned int robot_id, unsigned int joint,
                                                       double* temperature)
{
    return from_mirror(cbox_id, qorin_robot_joint_temperature_get, robot_id, joint, temperature);
}

QORIN_API_RESULT qorin_rpc_robot_joint_voltage_get(unsigned int cbox_id, unsigned int robot_id, unsigned int joint,
                                                   double* voltage)
{
    return from_mirror(cbox_id, qorin_robot_joint_voltage_get, robot_id, joint, voltage);
}

QORIN_API_RESULT qorin_rpc_robot_joint_current_get(unsigned int cbox_id, unsigned int robot_id, unsigned int joint,
                                                   double* current)
{
    return from_mirror(cbox_id, qorin_robot_joint_current_get, robot_id, joint, current);
}

QORIN_API_RESULT qorin_rpc_robot_joint_error_code_get(unsigned int cbox_id, unsigned int robot_id, unsigned int joint,
                                                      unsigned short* code_1, unsigned short* code_2,
                                                      unsigned short* code_3, unsigned short* code_4)
{
    return from_mirror(cbox_id, qorin_robot_joint_error_code_get, robot_id, joint, code_1, code_2, code_3, code_4);
}

QORIN_API_RESULT qorin_rpc_robot_dynamics_friction_feedrate_get(unsigned int cbox_id, unsigned int robot_id,
                                                                unsigned int joint, double* feedrate)
{
    return from_mirror(cbox_id, qorin_robot_dynamics_friction_feedrate_get, robot_id, joint, feedrate);
}

QORIN_API_RESULT qorin_rpc_ts_robot_joint_velocity_feedforward_ratio_get(unsigned int cbox_id, unsigned int robot_id,
                                                                         unsigned int joint, double* ratio)
{
    return from_mirror(cbox_id, qorin_ts_robot_joint_velocity_feedforward_ratio_get, robot_id, joint, ratio);
}

QORIN_API_RESULT qorin_rpc_ts_robot_joint_torque_feedforward_ratio_get(unsigned int cbox_id, unsigned int robot_id,
                                                                       unsigned int joint, double* ratio)
{
    return from_mirror(cbox_id, qorin_ts_robot_joint_torque_feedforward_ratio_get, robot_id, joint, ratio);
}

QORIN_API_RESULT qorin_rpc_robot_spec_tcp_speed_max_get(unsigned int cbox_id, unsigned int robot_id, double* speed_max)
{
    return from_mirror(cbox_id, qorin_robot_spec_tcp_speed_max_get, robot_id, speed_max);
}

QORIN_API_RESULT qorin_rpc_robot_spec_tcp_acc_max_get(unsigned int cbox_id, unsigned int robot_id, double* acc_max)
{
    return from_mirror(cbox_id, qorin_robot_spec_tcp_acc_max_get, robot_id, acc_max);
}

QORIN_API_RESULT qorin_rpc_robot_spec_joint_angle_get(unsigned int cbox_id, unsigned int robot_id, unsigned int joint,
                                                      double* angle_1, double* angle_2)
{
    return from_mirror(cbox_id, qorin_robot_spec_joint_angle_get, robot_id, joint, angle_1, angle_2);
}

QORIN_API_RESULT qorin_rpc_robot_spec_joint_speed_max_get(unsigned int cbox_id, unsigned int robot_id,
                                                          unsigned int joint, double* speed_max)
{
    return from_mirror(cbox_id, qorin_robot_spec_joint_speed_max_get, robot_id, joint, speed_max);
}

QORIN_API_RESULT qorin_rpc_robot_spec_joint_acc_max_get(unsigned int cbox_id, unsigned int robot_id, unsigned int joint,
                                                        double* acc_max)
{
    return from_mirror(cbox_id, qorin_robot_spec_joint_acc_max_get, robot_id, joint, acc_max);
}
