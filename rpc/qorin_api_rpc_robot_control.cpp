// Control of one robot: state, servo, override, jog, teaching, calibration, tool and payload.
#include "qorin/robot_control.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::command;

QORIN_API_RESULT qorin_rpc_robot_reset(unsigned int cbox_id, unsigned int robot_id)
{
    return command<"qorin_robot_reset">(cbox_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_robot_stop(unsigned int cbox_id, unsigned int robot_id, double stop_time)
{
    return command<"qorin_robot_stop">(cbox_id, robot_id, stop_time);
}

QORIN_API_RESULT qorin_rpc_robot_stop_auto_time(unsigned int cbox_id, unsigned int robot_id)
{
    return command<"qorin_robot_stop_auto_time">(cbox_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_robot_emergency_stop(unsigned int cbox_id, unsigned int robot_id, double stop_time)
{
    return command<"qorin_robot_emergency_stop">(cbox_id, robot_id, stop_time);
}

QORIN_API_RESULT qorin_rpc_robot_pause(unsigned int cbox_id, unsigned int robot_id, double stop_time)
{
    return command<"qorin_robot_pause">(cbox_id, robot_id, stop_time);
}

QORIN_API_RESULT qorin_rpc_robot_pause_auto_time(unsigned int cbox_id, unsigned int robot_id)
{
    return command<"qorin_robot_pause_auto_time">(cbox_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_robot_resume(unsigned int cbox_id, unsigned int robot_id)
{
    return command<"qorin_robot_resume">(cbox_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_robot_servo_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                  QORIN_SWITCH servo_switch)
{
    return command<"qorin_robot_servo_switch_set">(cbox_id, robot_id, servo_switch);
}

QORIN_API_RESULT qorin_rpc_robot_speed_factor_set(unsigned int cbox_id, unsigned int robot_id, double speed_factor)
{
    return command<"qorin_robot_speed_factor_set">(cbox_id, robot_id, speed_factor);
}

QORIN_API_RESULT qorin_rpc_robot_acc_dec_auto_adjustment_set(unsigned int cbox_id, unsigned int robot_id,
                                                             QORIN_SWITCH adjustment)
{
    return command<"qorin_robot_acc_dec_auto_adjustment_set">(cbox_id, robot_id, adjustment);
}

QORIN_API_RESULT qorin_rpc_robot_motion_auto_adjust_swith_set(unsigned int cbox_id, unsigned int robot_id,
                                                              QORIN_SWITCH auto_adjust)
{
    return command<"qorin_robot_motion_auto_adjust_swith_set">(cbox_id, robot_id, auto_adjust);
}

QORIN_API_RESULT qorin_rpc_robot_installation_mount_set(unsigned int cbox_id, unsigned int robot_id, double angle_1,
                                                        double angle_2)
{
    return command<"qorin_robot_installation_mount_set">(cbox_id, robot_id, angle_1, angle_2);
}

QORIN_API_RESULT qorin_rpc_robot_control_mode_set(unsigned int cbox_id, unsigned int robot_id,
                                                  QORIN_DRIVE_CONTROL_MODE mode)
{
    return command<"qorin_robot_control_mode_set">(cbox_id, robot_id, mode);
}

QORIN_API_RESULT qorin_rpc_robot_velocity_control_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                             QORIN_SWITCH velocity_control)
{
    return command<"qorin_robot_velocity_control_switch_set">(cbox_id, robot_id, velocity_control);
}

QORIN_API_RESULT qorin_rpc_robot_joint_target_velocity_set(unsigned int cbox_id, unsigned int robot_id,
                                                           unsigned int joint, double velocity)
{
    return command<"qorin_robot_joint_target_velocity_set">(cbox_id, robot_id, joint, velocity);
}

QORIN_API_RESULT qorin_rpc_robot_joint_target_acceleration_set(unsigned int cbox_id, unsigned int robot_id,
                                                               unsigned int joint, double acceleration)
{
    return command<"qorin_robot_joint_target_acceleration_set">(cbox_id, robot_id, joint, acceleration);
}

QORIN_API_RESULT qorin_rpc_robot_joint_target_velocity_rpm_set(unsigned int cbox_id, unsigned int robot_id,
                                                               unsigned int joint, double velocity)
{
    return command<"qorin_robot_joint_target_velocity_rpm_set">(cbox_id, robot_id, joint, velocity);
}

QORIN_API_RESULT qorin_rpc_robot_joint_target_acceleration_rpm_set(unsigned int cbox_id, unsigned int robot_id,
                                                                   unsigned int joint, double acceleration)
{
    return command<"qorin_robot_joint_target_acceleration_rpm_set">(cbox_id, robot_id, joint, acceleration);
}

QORIN_API_RESULT qorin_rpc_robot_home_position_reset(unsigned int cbox_id, unsigned int robot_id)
{
    return command<"qorin_robot_home_position_reset">(cbox_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_robot_home_position_auto_reset(unsigned int cbox_id, unsigned int robot_id)
{
    return command<"qorin_robot_home_position_auto_reset">(cbox_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_robot_home_joint_position_reset(unsigned int cbox_id, unsigned int robot_id,
                                                           unsigned int joint)
{
    return command<"qorin_robot_home_joint_position_reset">(cbox_id, robot_id, joint);
}

QORIN_API_RESULT qorin_rpc_robot_jog_joint(unsigned int cbox_id, unsigned int robot_id, unsigned int joint,
                                           QORIN_DIRECTION direction, double value_1, double value_2)
{
    return command<"qorin_robot_jog_joint">(cbox_id, robot_id, joint, direction, value_1, value_2);
}

QORIN_API_RESULT qorin_rpc_robot_jog_tcp_position(unsigned int cbox_id, unsigned int robot_id,
                                                  QORIN_REF_COORDINATE coordinate, double value_1, double value_2,
                                                  double value_3, double value_4, double value_5)
{
    return command<"qorin_robot_jog_tcp_position">(cbox_id, robot_id, coordinate, value_1, value_2, value_3, value_4,
                                                   value_5);
}

QORIN_API_RESULT qorin_rpc_robot_jog_tcp_orientation(unsigned int cbox_id, unsigned int robot_id,
                                                     QORIN_REF_COORDINATE coordinate, double value_1, double value_2,
                                                     double value_3, double value_4, double value_5)
{
    return command<"qorin_robot_jog_tcp_orientation">(cbox_id, robot_id, coordinate, value_1, value_2, value_3, value_4,
                                                      value_5);
}

QORIN_API_RESULT qorin_rpc_robot_jog_tcp_position_x(unsigned int cbox_id, unsigned int robot_id,
                                                    QORIN_REF_COORDINATE coordinate, QORIN_DIRECTION direction,
                                                    double value_1, double value_2)
{
    return command<"qorin_robot_jog_tcp_position_x">(cbox_id, robot_id, coordinate, direction, value_1, value_2);
}

QORIN_API_RESULT qorin_rpc_robot_jog_tcp_position_y(unsigned int cbox_id, unsigned int robot_id,
                                                    QORIN_REF_COORDINATE coordinate, QORIN_DIRECTION direction,
                                                    double value_1, double value_2)
{
    return command<"qorin_robot_jog_tcp_position_y">(cbox_id, robot_id, coordinate, direction, value_1, value_2);
}

QORIN_API_RESULT qorin_rpc_robot_jog_tcp_position_z(unsigned int cbox_id, unsigned int robot_id,
                                                    QORIN_REF_COORDINATE coordinate, QORIN_DIRECTION direction,
                                                    double value_1, double value_2)
{
    return command<"qorin_robot_jog_tcp_position_z">(cbox_id, robot_id, coordinate, direction, value_1, value_2);
}

QORIN_API_RESULT qorin_rpc_robot_jog_tcp_orientation_x(unsigned int cbox_id, unsigned int robot_id,
                                                       QORIN_REF_COORDINATE coordinate, QORIN_DIRECTION direction,
                                                       double value_1, double value_2)
{
    return command<"qorin_robot_jog_tcp_orientation_x">(cbox_id, robot_id, coordinate, direction, value_1, value_2);
}

QORIN_API_RESULT qorin_rpc_robot_jog_tcp_orientation_y(unsigned int cbox_id, unsigned int robot_id,
                                                       QORIN_REF_COORDINATE coordinate, QORIN_DIRECTION direction,
                                                       double value_1, double value_2)
{
    return command<"qorin_robot_jog_tcp_orientation_y">(cbox_id, robot_id, coordinate, direction, value_1, value_2);
}

QORIN_API_RESULT qorin_rpc_robot_jog_tcp_orientation_z(unsigned int cbox_id, unsigned int robot_id,
                                                       QORIN_REF_COORDINATE coordinate, QORIN_DIRECTION direction,
                                                       double value_1, double value_2)
{
    return command<"qorin_robot_jog_tcp_orientation_z">(cbox_id, robot_id, coordinate, direction, value_1, value_2);
}

QORIN_API_RESULT qorin_rpc_robot_direct_teaching_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                            QORIN_SWITCH teaching_switch)
{
    return command<"qorin_robot_direct_teaching_switch_set">(cbox_id, robot_id, teaching_switch);
}

QORIN_API_RESULT qorin_rpc_robot_direct_teaching_force_to_switch_on(unsigned int cbox_id, unsigned int robot_id)
{
    return command<"qorin_robot_direct_teaching_force_to_switch_on">(cbox_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_robot_direct_teaching_payload_sensitivity_set(unsigned int cbox_id, unsigned int robot_id,
                                                                         int sensitivity)
{
    return command<"qorin_robot_direct_teaching_payload_sensitivity_set">(cbox_id, robot_id, sensitivity);
}

QORIN_API_RESULT qorin_rpc_robot_collision_detection_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                QORIN_SWITCH detection)
{
    return command<"qorin_robot_collision_detection_switch_set">(cbox_id, robot_id, detection);
}

QORIN_API_RESULT qorin_rpc_robot_collision_detection_clear(unsigned int cbox_id, unsigned int robot_id)
{
    return command<"qorin_robot_collision_detection_clear">(cbox_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_robot_collision_mitigation_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                 QORIN_SWITCH mitigation)
{
    return command<"qorin_robot_collision_mitigation_switch_set">(cbox_id, robot_id, mitigation);
}

QORIN_API_RESULT qorin_rpc_robot_collision_detection_threshold_joint_torque_set(unsigned int cbox_id,
                                                                                unsigned int robot_id,
                                                                                unsigned int joint, double torque)
{
    return command<"qorin_robot_collision_detection_threshold_joint_torque_set">(cbox_id, robot_id, joint, torque);
}

QORIN_API_RESULT qorin_rpc_robot_collision_detection_threshold_tcp_force_set(unsigned int cbox_id,
                                                                             unsigned int robot_id, double x, double y,
                                                                             double z, double rx, double ry, double rz)
{
    return command<"qorin_robot_collision_detection_threshold_tcp_force_set">(cbox_id, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_collision_detection_threshold_tcp_resultant_force_set(unsigned int cbox_id,
                                                                                       unsigned int robot_id,
                                                                                       double force)
{
    return command<"qorin_robot_collision_detection_threshold_tcp_resultant_force_set">(cbox_id, robot_id, force);
}

QORIN_API_RESULT qorin_rpc_robot_dynamics_calibration_start(unsigned int cbox_id, unsigned int robot_id)
{
    return command<"qorin_robot_dynamics_calibration_start">(cbox_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_robot_dynamics_calibration_save(unsigned int cbox_id, unsigned int robot_id)
{
    return command<"qorin_robot_dynamics_calibration_save">(cbox_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_robot_joint_dynamics_calibration_start(unsigned int cbox_id, unsigned int robot_id,
                                                                  unsigned int joint)
{
    return command<"qorin_robot_joint_dynamics_calibration_start">(cbox_id, robot_id, joint);
}

QORIN_API_RESULT qorin_rpc_robot_joint_dynamics_calibration_save(unsigned int cbox_id, unsigned int robot_id,
                                                                 unsigned int joint)
{
    return command<"qorin_robot_joint_dynamics_calibration_save">(cbox_id, robot_id, joint);
}

QORIN_API_RESULT qorin_rpc_robot_dynamics_friction_feedrate_set(unsigned int cbox_id, unsigned int robot_id,
                                                                unsigned int joint, double feedrate)
{
    return command<"qorin_robot_dynamics_friction_feedrate_set">(cbox_id, robot_id, joint, feedrate);
}

QORIN_API_RESULT qorin_rpc_robot_dynamics_dry_run_start(unsigned int cbox_id, unsigned int robot_id, double value_1,
                                                        unsigned int value_2)
{
    return command<"qorin_robot_dynamics_dry_run_start">(cbox_id, robot_id, value_1, value_2);
}

QORIN_API_RESULT qorin_rpc_robot_dynamics_dry_run_end(unsigned int cbox_id, unsigned int robot_id)
{
    return command<"qorin_robot_dynamics_dry_run_end">(cbox_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_robot_dynamics_dry_run_state_get(unsigned int cbox_id, unsigned int robot_id,
                                                            QORIN_SWITCH* dry_run)
{
    return command<"qorin_robot_dynamics_dry_run_state_get">(cbox_id, robot_id, dry_run);
}

QORIN_API_RESULT qorin_rpc_robot_tcp_from_flange_set(unsigned int cbox_id, unsigned int robot_id, double x, double y,
                                                     double z, double rx, double ry, double rz)
{
    return command<"qorin_robot_tcp_from_flange_set">(cbox_id, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_tcp_from_flange_multiple_position_set(
    unsigned int cbox_id, unsigned int robot_id, unsigned int count, const double* coordinate_1,
    const double* coordinate_2, const double* coordinate_3, const double* coordinate_4, const double* coordinate_5,
    const double* coordinate_6, double* result)
{
    return command<"qorin_robot_tcp_from_flange_multiple_position_set">(cbox_id, robot_id, count, coordinate_1,
                                                                        coordinate_2, coordinate_3, coordinate_4,
                                                                        coordinate_5, coordinate_6, result);
}

QORIN_API_RESULT qorin_rpc_robot_tcp_from_flange_multiple_orientation_set(unsigned int cbox_id, unsigned int robot_id,
                                                                          double value_1, double value_2,
                                                                          double value_3, double* result)
{
    return command<"qorin_robot_tcp_from_flange_multiple_orientation_set">(cbox_id, robot_id, value_1, value_2, value_3,
                                                                           result);
}

QORIN_API_RESULT qorin_rpc_robot_tcp_payload_set(unsigned int cbox_id, unsigned int robot_id, double mass, double x,
                                                 double y, double z)
{
    return command<"qorin_robot_tcp_payload_set">(cbox_id, robot_id, mass, x, y, z);
}
