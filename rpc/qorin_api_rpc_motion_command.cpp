// Motion commands: built, queued and run on the control box.
#include "qorin/motion_command.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::command;

QORIN_API_RESULT qorin_rpc_motion_command_robot_joint_create(unsigned int cbox_id, unsigned int* command_id)
{
    return command<"qorin_motion_command_robot_joint_create">(cbox_id, command_id);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_create(unsigned int cbox_id, unsigned int* command_id)
{
    return command<"qorin_motion_command_robot_tcp_create">(cbox_id, command_id);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_create(unsigned int cbox_id, unsigned int* command_id)
{
    return command<"qorin_motion_command_robot_tcp_welding_create">(cbox_id, command_id);
}

QORIN_API_RESULT qorin_rpc_motion_command_deep_copy(unsigned int cbox_id, unsigned int command_id,
                                                    unsigned int* copy_id)
{
    return command<"qorin_motion_command_deep_copy">(cbox_id, command_id, copy_id);
}

QORIN_API_RESULT qorin_rpc_motion_command_destroy(unsigned int cbox_id, unsigned int command_id)
{
    return command<"qorin_motion_command_destroy">(cbox_id, command_id);
}

QORIN_API_RESULT qorin_rpc_motion_command_destroy_all(unsigned int cbox_id)
{
    return command<"qorin_motion_command_destroy_all">(cbox_id);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_robot_id_set(unsigned int cbox_id, unsigned int command_id,
                                                             unsigned int robot_id)
{
    return command<"qorin_motion_command_robot_robot_id_set">(cbox_id, command_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_robot_id_get(unsigned int cbox_id, unsigned int command_id,
                                                             unsigned int* robot_id)
{
    return command<"qorin_motion_command_robot_robot_id_get">(cbox_id, command_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_motion_command_name_set(unsigned int cbox_id, unsigned int command_id, const char* name)
{
    return command<"qorin_motion_command_name_set">(cbox_id, command_id, name);
}

QORIN_API_RESULT qorin_rpc_motion_command_name_get(unsigned int cbox_id, unsigned int command_id, char* name)
{
    return command<"qorin_motion_command_name_get">(cbox_id, command_id, name);
}

QORIN_API_RESULT qorin_rpc_motion_command_is_runnable(unsigned int cbox_id, unsigned int command_id)
{
    return command<"qorin_motion_command_is_runnable">(cbox_id, command_id);
}

QORIN_API_RESULT qorin_rpc_motion_command_queue_add(unsigned int cbox_id, unsigned int command_id)
{
    return command<"qorin_motion_command_queue_add">(cbox_id, command_id);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_internal_add(unsigned int cbox_id, unsigned int command_id)
{
    return command<"qorin_motion_command_robot_tcp_internal_add">(cbox_id, command_id);
}

QORIN_API_RESULT qorin_rpc_motion_command_queue_flush(unsigned int cbox_id)
{
    return command<"qorin_motion_command_queue_flush">(cbox_id);
}

QORIN_API_RESULT qorin_rpc_motion_command_queue_clear(unsigned int cbox_id)
{
    return command<"qorin_motion_command_queue_clear">(cbox_id);
}

QORIN_API_RESULT qorin_rpc_motion_command_running_time_get(unsigned int cbox_id, unsigned int command_id,
                                                           double* running_time)
{
    return command<"qorin_motion_command_running_time_get">(cbox_id, command_id, running_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_velocity_profiler_set(unsigned int cbox_id, unsigned int command_id,
                                                                QORIN_VELOCITY_PROFILE profile)
{
    return command<"qorin_motion_command_velocity_profiler_set">(cbox_id, command_id, profile);
}

QORIN_API_RESULT qorin_rpc_motion_command_velocity_profiler_get(unsigned int cbox_id, unsigned int command_id,
                                                                QORIN_VELOCITY_PROFILE* profile)
{
    return command<"qorin_motion_command_velocity_profiler_get">(cbox_id, command_id, profile);
}

QORIN_API_RESULT qorin_rpc_motion_command_acc_max_set(unsigned int cbox_id, unsigned int command_id, double acc_max)
{
    return command<"qorin_motion_command_acc_max_set">(cbox_id, command_id, acc_max);
}

QORIN_API_RESULT qorin_rpc_motion_command_acc_max_get(unsigned int cbox_id, unsigned int command_id, double* acc_max)
{
    return command<"qorin_motion_command_acc_max_get">(cbox_id, command_id, acc_max);
}

QORIN_API_RESULT qorin_rpc_motion_command_dec_max_set(unsigned int cbox_id, unsigned int command_id, double dec_max)
{
    return command<"qorin_motion_command_dec_max_set">(cbox_id, command_id, dec_max);
}

QORIN_API_RESULT qorin_rpc_motion_command_dec_max_get(unsigned int cbox_id, unsigned int command_id, double* dec_max)
{
    return command<"qorin_motion_command_dec_max_get">(cbox_id, command_id, dec_max);
}

QORIN_API_RESULT qorin_rpc_motion_command_speed_max_set(unsigned int cbox_id, unsigned int command_id, double speed_max)
{
    return command<"qorin_motion_command_speed_max_set">(cbox_id, command_id, speed_max);
}

QORIN_API_RESULT qorin_rpc_motion_command_speed_max_get(unsigned int cbox_id, unsigned int command_id,
                                                        double* speed_max)
{
    return command<"qorin_motion_command_speed_max_get">(cbox_id, command_id, speed_max);
}

QORIN_API_RESULT qorin_rpc_motion_command_jerk_percentage_set(unsigned int cbox_id, unsigned int command_id,
                                                              double jerk_percentage)
{
    return command<"qorin_motion_command_jerk_percentage_set">(cbox_id, command_id, jerk_percentage);
}

QORIN_API_RESULT qorin_rpc_motion_command_jerk_percentage_get(unsigned int cbox_id, unsigned int command_id,
                                                              double* jerk_percentage)
{
    return command<"qorin_motion_command_jerk_percentage_get">(cbox_id, command_id, jerk_percentage);
}

QORIN_API_RESULT qorin_rpc_motion_command_blending_motion_mode_set(unsigned int cbox_id, unsigned int command_id,
                                                                   QORIN_SWITCH mode)
{
    return command<"qorin_motion_command_blending_motion_mode_set">(cbox_id, command_id, mode);
}

QORIN_API_RESULT qorin_rpc_motion_command_blending_motion_mode_get(unsigned int cbox_id, unsigned int command_id,
                                                                   QORIN_SWITCH* mode)
{
    return command<"qorin_motion_command_blending_motion_mode_get">(cbox_id, command_id, mode);
}

QORIN_API_RESULT qorin_rpc_motion_command_blending_auto_start_set(unsigned int cbox_id, unsigned int command_id,
                                                                  QORIN_SWITCH auto_start)
{
    return command<"qorin_motion_command_blending_auto_start_set">(cbox_id, command_id, auto_start);
}

QORIN_API_RESULT qorin_rpc_motion_command_blending_auto_start_get(unsigned int cbox_id, unsigned int command_id,
                                                                  QORIN_SWITCH* auto_start)
{
    return command<"qorin_motion_command_blending_auto_start_get">(cbox_id, command_id, auto_start);
}

QORIN_API_RESULT qorin_rpc_motion_command_blending_stop_mode_set(unsigned int cbox_id, unsigned int command_id,
                                                                 QORIN_SWITCH stop_mode)
{
    return command<"qorin_motion_command_blending_stop_mode_set">(cbox_id, command_id, stop_mode);
}

QORIN_API_RESULT qorin_rpc_motion_command_blending_stop_mode_get(unsigned int cbox_id, unsigned int command_id,
                                                                 QORIN_SWITCH* stop_mode)
{
    return command<"qorin_motion_command_blending_stop_mode_get">(cbox_id, command_id, stop_mode);
}

QORIN_API_RESULT qorin_rpc_motion_command_radius_for_blending_set(unsigned int cbox_id, unsigned int command_id,
                                                                  double radius)
{
    return command<"qorin_motion_command_radius_for_blending_set">(cbox_id, command_id, radius);
}

QORIN_API_RESULT qorin_rpc_motion_command_radius_for_blending_get(unsigned int cbox_id, unsigned int command_id,
                                                                  double* radius)
{
    return command<"qorin_motion_command_radius_for_blending_get">(cbox_id, command_id, radius);
}

QORIN_API_RESULT qorin_rpc_motion_command_start_condition_set(unsigned int cbox_id, unsigned int command_id,
                                                              QORIN_IO_TYPE io_type, unsigned int channel, int value)
{
    return command<"qorin_motion_command_start_condition_set">(cbox_id, command_id, io_type, channel, value);
}

QORIN_API_RESULT qorin_rpc_motion_command_io_command_type_set(unsigned int cbox_id, unsigned int command_id,
                                                              QORIN_IO_CONTROL_CONDITION condition, double point,
                                                              QORIN_IO_TYPE io_type, unsigned int channel, double value)
{
    return command<"qorin_motion_command_io_command_type_set">(cbox_id, command_id, condition, point, io_type, channel,
                                                               value);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_weaving_event_set(unsigned int cbox_id, unsigned int command_id,
                                                                  QORIN_SWITCH event_switch)
{
    return command<"qorin_motion_command_robot_weaving_event_set">(cbox_id, command_id, event_switch);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_joint_angle_start_set(unsigned int cbox_id, unsigned int command_id,
                                                                      unsigned int joint, double angle)
{
    return command<"qorin_motion_command_robot_joint_angle_start_set">(cbox_id, command_id, joint, angle);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_joint_angle_start_get(unsigned int cbox_id, unsigned int command_id,
                                                                      unsigned int joint, double* angle)
{
    return command<"qorin_motion_command_robot_joint_angle_start_get">(cbox_id, command_id, joint, angle);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_joint_angle_end_set(unsigned int cbox_id, unsigned int command_id,
                                                                    unsigned int joint, double angle)
{
    return command<"qorin_motion_command_robot_joint_angle_end_set">(cbox_id, command_id, joint, angle);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_joint_angle_end_get(unsigned int cbox_id, unsigned int command_id,
                                                                    unsigned int joint, double* angle)
{
    return command<"qorin_motion_command_robot_joint_angle_end_get">(cbox_id, command_id, joint, angle);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_start_set(unsigned int cbox_id, unsigned int command_id,
                                                                       double x, double y, double z)
{
    return command<"qorin_motion_command_robot_tcp_position_start_set">(cbox_id, command_id, x, y, z);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_start_get(unsigned int cbox_id, unsigned int command_id,
                                                                       double* x, double* y, double* z)
{
    return command<"qorin_motion_command_robot_tcp_position_start_get">(cbox_id, command_id, x, y, z);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_mid_set(unsigned int cbox_id, unsigned int command_id,
                                                                     double x, double y, double z)
{
    return command<"qorin_motion_command_robot_tcp_position_mid_set">(cbox_id, command_id, x, y, z);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_mid_get(unsigned int cbox_id, unsigned int command_id,
                                                                     double* x, double* y, double* z)
{
    return command<"qorin_motion_command_robot_tcp_position_mid_get">(cbox_id, command_id, x, y, z);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_end_set(unsigned int cbox_id, unsigned int command_id,
                                                                     double x, double y, double z)
{
    return command<"qorin_motion_command_robot_tcp_position_end_set">(cbox_id, command_id, x, y, z);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_end_get(unsigned int cbox_id, unsigned int command_id,
                                                                     double* x, double* y, double* z)
{
    return command<"qorin_motion_command_robot_tcp_position_end_get">(cbox_id, command_id, x, y, z);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_end_set_from_direction(unsigned int cbox_id,
                                                                                    unsigned int command_id,
                                                                                    double value_1, double value_2,
                                                                                    double value_3)
{
    return command<"qorin_motion_command_robot_tcp_position_end_set_from_direction">(cbox_id, command_id, value_1,
                                                                                     value_2, value_3);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_and_orientation_end_set_from_direction(
    unsigned int cbox_id, unsigned int command_id, double value_1, double value_2, double value_3)
{
    return command<"qorin_motion_command_robot_tcp_position_and_orientation_end_set_from_direction">(
        cbox_id, command_id, value_1, value_2, value_3);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_orientation_start_set(unsigned int cbox_id, unsigned int command_id,
                                                                          double rx, double ry, double rz)
{
    return command<"qorin_motion_command_robot_tcp_orientation_start_set">(cbox_id, command_id, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_orientation_start_get(unsigned int cbox_id, unsigned int command_id,
                                                                          double* rx, double* ry, double* rz)
{
    return command<"qorin_motion_command_robot_tcp_orientation_start_get">(cbox_id, command_id, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_orientation_end_set(unsigned int cbox_id, unsigned int command_id,
                                                                        double rx, double ry, double rz)
{
    return command<"qorin_motion_command_robot_tcp_orientation_end_set">(cbox_id, command_id, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_orientation_end_get(unsigned int cbox_id, unsigned int command_id,
                                                                        double* rx, double* ry, double* rz)
{
    return command<"qorin_motion_command_robot_tcp_orientation_end_get">(cbox_id, command_id, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_speed_start_set(unsigned int cbox_id, unsigned int command_id,
                                                                    double speed)
{
    return command<"qorin_motion_command_robot_tcp_speed_start_set">(cbox_id, command_id, speed);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_speed_start_get(unsigned int cbox_id, unsigned int command_id,
                                                                    double* speed)
{
    return command<"qorin_motion_command_robot_tcp_speed_start_get">(cbox_id, command_id, speed);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_speed_end_set(unsigned int cbox_id, unsigned int command_id,
                                                                  double speed)
{
    return command<"qorin_motion_command_robot_tcp_speed_end_set">(cbox_id, command_id, speed);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_speed_end_get(unsigned int cbox_id, unsigned int command_id,
                                                                  double* speed)
{
    return command<"qorin_motion_command_robot_tcp_speed_end_get">(cbox_id, command_id, speed);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_adjusted_speed_get(unsigned int cbox_id, unsigned int command_id,
                                                                       double* speed)
{
    return command<"qorin_motion_command_robot_tcp_adjusted_speed_get">(cbox_id, command_id, speed);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_radius_set(unsigned int cbox_id, unsigned int command_id,
                                                               double radius)
{
    return command<"qorin_motion_command_robot_tcp_radius_set">(cbox_id, command_id, radius);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_radius_get(unsigned int cbox_id, unsigned int command_id,
                                                               double* radius)
{
    return command<"qorin_motion_command_robot_tcp_radius_get">(cbox_id, command_id, radius);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_coordinate_set(unsigned int cbox_id, unsigned int command_id,
                                                                   QORIN_REF_COORDINATE coordinate)
{
    return command<"qorin_motion_command_robot_tcp_coordinate_set">(cbox_id, command_id, coordinate);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_coordinate_get(unsigned int cbox_id, unsigned int command_id,
                                                                   QORIN_REF_COORDINATE* coordinate)
{
    return command<"qorin_motion_command_robot_tcp_coordinate_get">(cbox_id, command_id, coordinate);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_pose_type_set(unsigned int cbox_id, unsigned int command_id,
                                                                  QORIN_POSE_TYPE pose_type)
{
    return command<"qorin_motion_command_robot_tcp_pose_type_set">(cbox_id, command_id, pose_type);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_offset_mode_set(unsigned int cbox_id, unsigned int command_id,
                                                                    QORIN_SWITCH offset_mode)
{
    return command<"qorin_motion_command_robot_tcp_offset_mode_set">(cbox_id, command_id, offset_mode);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_offset_mode_get(unsigned int cbox_id, unsigned int command_id,
                                                                    QORIN_SWITCH* offset_mode)
{
    return command<"qorin_motion_command_robot_tcp_offset_mode_get">(cbox_id, command_id, offset_mode);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_interpolator_set(unsigned int cbox_id, unsigned int command_id,
                                                                     QORIN_INTERPOLATOR interpolator)
{
    return command<"qorin_motion_command_robot_tcp_interpolator_set">(cbox_id, command_id, interpolator);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_interpolator_get(unsigned int cbox_id, unsigned int command_id,
                                                                     QORIN_INTERPOLATOR* interpolator)
{
    return command<"qorin_motion_command_robot_tcp_interpolator_get">(cbox_id, command_id, interpolator);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_orientation_mode_set(unsigned int cbox_id, unsigned int command_id,
                                                                     QORIN_ORIENTATION_MODE orientation_mode)
{
    return command<"qorin_motion_command_robot_orientation_mode_set">(cbox_id, command_id, orientation_mode);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_orientation_mode_get(unsigned int cbox_id, unsigned int command_id,
                                                                     QORIN_ORIENTATION_MODE* orientation_mode)
{
    return command<"qorin_motion_command_robot_orientation_mode_get">(cbox_id, command_id, orientation_mode);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_free_path_points_set(unsigned int cbox_id, unsigned int command_id,
                                                                         unsigned int count, const double* x,
                                                                         const double* y, const double* z)
{
    return command<"qorin_motion_command_robot_tcp_free_path_points_set">(cbox_id, command_id, count, x, y, z);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_weaving_motion_switch_set(unsigned int cbox_id,
                                                                                      unsigned int command_id,
                                                                                      QORIN_SWITCH weaving)
{
    return command<"qorin_motion_command_robot_tcp_welding_weaving_motion_switch_set">(cbox_id, command_id, weaving);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_weaving_motion_switch_get(unsigned int cbox_id,
                                                                                      unsigned int command_id,
                                                                                      QORIN_SWITCH* weaving)
{
    return command<"qorin_motion_command_robot_tcp_welding_weaving_motion_switch_get">(cbox_id, command_id, weaving);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_weaving_pattern_set(unsigned int cbox_id,
                                                                                unsigned int command_id,
                                                                                QORIN_WELDING_WEAVING_PATTERN pattern)
{
    return command<"qorin_motion_command_robot_tcp_welding_weaving_pattern_set">(cbox_id, command_id, pattern);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_weaving_pattern_get(unsigned int cbox_id,
                                                                                unsigned int command_id,
                                                                                QORIN_WELDING_WEAVING_PATTERN* pattern)
{
    return command<"qorin_motion_command_robot_tcp_welding_weaving_pattern_get">(cbox_id, command_id, pattern);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_amplitude_set(unsigned int cbox_id,
                                                                               unsigned int command_id,
                                                                               double amplitude)
{
    return command<"qorin_motion_command_robot_tcp_welding_left_amplitude_set">(cbox_id, command_id, amplitude);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_amplitude_get(unsigned int cbox_id,
                                                                               unsigned int command_id,
                                                                               double* amplitude)
{
    return command<"qorin_motion_command_robot_tcp_welding_left_amplitude_get">(cbox_id, command_id, amplitude);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_amplitude_set(unsigned int cbox_id,
                                                                                unsigned int command_id,
                                                                                double amplitude)
{
    return command<"qorin_motion_command_robot_tcp_welding_right_amplitude_set">(cbox_id, command_id, amplitude);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_amplitude_get(unsigned int cbox_id,
                                                                                unsigned int command_id,
                                                                                double* amplitude)
{
    return command<"qorin_motion_command_robot_tcp_welding_right_amplitude_get">(cbox_id, command_id, amplitude);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_frequency_set(unsigned int cbox_id, unsigned int command_id,
                                                                          double frequency)
{
    return command<"qorin_motion_command_robot_tcp_welding_frequency_set">(cbox_id, command_id, frequency);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_frequency_get(unsigned int cbox_id, unsigned int command_id,
                                                                          double* frequency)
{
    return command<"qorin_motion_command_robot_tcp_welding_frequency_get">(cbox_id, command_id, frequency);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_stop_settling_time_set(unsigned int cbox_id,
                                                                                        unsigned int command_id,
                                                                                        double settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_left_stop_settling_time_set">(cbox_id, command_id,
                                                                                         settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_stop_settling_time_get(unsigned int cbox_id,
                                                                                        unsigned int command_id,
                                                                                        double* settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_left_stop_settling_time_get">(cbox_id, command_id,
                                                                                         settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_stop_settling_time_set(unsigned int cbox_id,
                                                                                         unsigned int command_id,
                                                                                         double settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_right_stop_settling_time_set">(cbox_id, command_id,
                                                                                          settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_stop_settling_time_get(unsigned int cbox_id,
                                                                                         unsigned int command_id,
                                                                                         double* settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_right_stop_settling_time_get">(cbox_id, command_id,
                                                                                          settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_middle_stop_settling_time_set(unsigned int cbox_id,
                                                                                          unsigned int command_id,
                                                                                          double settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_middle_stop_settling_time_set">(cbox_id, command_id,
                                                                                           settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_middle_stop_settling_time_get(unsigned int cbox_id,
                                                                                          unsigned int command_id,
                                                                                          double* settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_middle_stop_settling_time_get">(cbox_id, command_id,
                                                                                           settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_plane_tilt_angle_set(unsigned int cbox_id,
                                                                                 unsigned int command_id, double angle)
{
    return command<"qorin_motion_command_robot_tcp_welding_plane_tilt_angle_set">(cbox_id, command_id, angle);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_plane_tilt_angle_get(unsigned int cbox_id,
                                                                                 unsigned int command_id, double* angle)
{
    return command<"qorin_motion_command_robot_tcp_welding_plane_tilt_angle_get">(cbox_id, command_id, angle);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_zigzag_ratio_set(unsigned int cbox_id,
                                                                             unsigned int command_id, double ratio_1,
                                                                             double ratio_2, double ratio_3,
                                                                             double ratio_4)
{
    return command<"qorin_motion_command_robot_tcp_welding_zigzag_ratio_set">(cbox_id, command_id, ratio_1, ratio_2,
                                                                              ratio_3, ratio_4);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_zigzag_ratio_get(unsigned int cbox_id,
                                                                             unsigned int command_id, double* ratio_1,
                                                                             double* ratio_2, double* ratio_3,
                                                                             double* ratio_4)
{
    return command<"qorin_motion_command_robot_tcp_welding_zigzag_ratio_get">(cbox_id, command_id, ratio_1, ratio_2,
                                                                              ratio_3, ratio_4);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_position_fix_swtich_set(unsigned int cbox_id,
                                                                                    unsigned int command_id,
                                                                                    QORIN_SWITCH fix, double value_1,
                                                                                    double value_2, double value_3)
{
    return command<"qorin_motion_command_robot_tcp_welding_position_fix_swtich_set">(cbox_id, command_id, fix, value_1,
                                                                                     value_2, value_3);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_position_fix_swtich_get(unsigned int cbox_id,
                                                                                    unsigned int command_id,
                                                                                    QORIN_SWITCH* fix, double* value_1,
                                                                                    double* value_2, double* value_3)
{
    return command<"qorin_motion_command_robot_tcp_welding_position_fix_swtich_get">(cbox_id, command_id, fix, value_1,
                                                                                     value_2, value_3);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_amplitude_change(unsigned int cbox_id,
                                                                                  unsigned int command_id,
                                                                                  double amplitude)
{
    return command<"qorin_motion_command_robot_tcp_welding_left_amplitude_change">(cbox_id, command_id, amplitude);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_amplitude_change(unsigned int cbox_id,
                                                                                   unsigned int command_id,
                                                                                   double amplitude)
{
    return command<"qorin_motion_command_robot_tcp_welding_right_amplitude_change">(cbox_id, command_id, amplitude);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_frequency_change(unsigned int cbox_id,
                                                                             unsigned int command_id, double frequency)
{
    return command<"qorin_motion_command_robot_tcp_welding_frequency_change">(cbox_id, command_id, frequency);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_stop_settling_time_change(unsigned int cbox_id,
                                                                                           unsigned int command_id,
                                                                                           double settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_left_stop_settling_time_change">(cbox_id, command_id,
                                                                                            settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_stop_settling_time_change(unsigned int cbox_id,
                                                                                            unsigned int command_id,
                                                                                            double settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_right_stop_settling_time_change">(cbox_id, command_id,
                                                                                             settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_middle_stop_settling_time_change(unsigned int cbox_id,
                                                                                             unsigned int command_id,
                                                                                             double settling_time)
{
    return command<"qorin_motion_command_robot_tcp_welding_middle_stop_settling_time_change">(cbox_id, command_id,
                                                                                              settling_time);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_vertical_offset_pos_change(unsigned int cbox_id,
                                                                                       unsigned int command_id,
                                                                                       double offset)
{
    return command<"qorin_motion_command_robot_tcp_welding_vertical_offset_pos_change">(cbox_id, command_id, offset);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_horizontal_offset_pos_change(unsigned int cbox_id,
                                                                                         unsigned int command_id,
                                                                                         double offset)
{
    return command<"qorin_motion_command_robot_tcp_welding_horizontal_offset_pos_change">(cbox_id, command_id, offset);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_offset_pos_change(unsigned int cbox_id,
                                                                              unsigned int command_id, double value_1,
                                                                              double value_2, double value_3)
{
    return command<"qorin_motion_command_robot_tcp_welding_offset_pos_change">(cbox_id, command_id, value_1, value_2,
                                                                               value_3);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_data_source_set(unsigned int cbox_id,
                                                                                unsigned int command_id,
                                                                                QORIN_ARC_SENSING_SRC source)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_data_source_set">(cbox_id, command_id, source);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_data_source_get(unsigned int cbox_id,
                                                                                unsigned int command_id,
                                                                                QORIN_ARC_SENSING_SRC* source)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_data_source_get">(cbox_id, command_id, source);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_reference_shift_set(unsigned int cbox_id,
                                                                                    unsigned int command_id,
                                                                                    double shift)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_reference_shift_set">(cbox_id, command_id, shift);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_reference_shift_get(unsigned int cbox_id,
                                                                                    unsigned int command_id,
                                                                                    double* shift)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_reference_shift_get">(cbox_id, command_id, shift);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_switch_set(unsigned int cbox_id,
                                                                           unsigned int command_id,
                                                                           QORIN_ARC_SENSING_DIRECTION direction,
                                                                           QORIN_SWITCH sensing)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_switch_set">(cbox_id, command_id, direction, sensing);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_switch_get(unsigned int cbox_id,
                                                                           unsigned int command_id,
                                                                           QORIN_ARC_SENSING_DIRECTION direction,
                                                                           QORIN_SWITCH* sensing)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_switch_get">(cbox_id, command_id, direction, sensing);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_start_ref_period_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, unsigned int period)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_start_ref_period_set">(cbox_id, command_id, direction,
                                                                                      period);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_start_ref_period_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, unsigned int* period)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_start_ref_period_get">(cbox_id, command_id, direction,
                                                                                      period);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_start_tracking_period_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, unsigned int period)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_start_tracking_period_set">(cbox_id, command_id,
                                                                                           direction, period);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_start_tracking_period_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, unsigned int* period)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_start_tracking_period_get">(cbox_id, command_id,
                                                                                           direction, period);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_total_limit_distance_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double distance)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_total_limit_distance_set">(cbox_id, command_id,
                                                                                          direction, distance);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_total_limit_distance_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* distance)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_total_limit_distance_get">(cbox_id, command_id,
                                                                                          direction, distance);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_limit_distance_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double distance)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_limit_distance_set">(cbox_id, command_id, direction,
                                                                                    distance);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_limit_distance_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* distance)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_limit_distance_get">(cbox_id, command_id, direction,
                                                                                    distance);
}

QORIN_API_RESULT
qorin_rpc_motion_command_robot_tcp_arc_sensing_weighted_factor_set(unsigned int cbox_id, unsigned int command_id,
                                                                   QORIN_ARC_SENSING_DIRECTION direction, double factor)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_weighted_factor_set">(cbox_id, command_id, direction,
                                                                                     factor);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_weighted_factor_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* factor)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_weighted_factor_get">(cbox_id, command_id, direction,
                                                                                     factor);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_dead_band_set(unsigned int cbox_id,
                                                                              unsigned int command_id,
                                                                              QORIN_ARC_SENSING_DIRECTION direction,
                                                                              double dead_band)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_dead_band_set">(cbox_id, command_id, direction,
                                                                               dead_band);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_dead_band_get(unsigned int cbox_id,
                                                                              unsigned int command_id,
                                                                              QORIN_ARC_SENSING_DIRECTION direction,
                                                                              double* dead_band)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_dead_band_get">(cbox_id, command_id, direction,
                                                                               dead_band);
}

QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_data_save(unsigned int cbox_id, const char* file)
{
    return command<"qorin_motion_command_robot_tcp_arc_sensing_data_save">(cbox_id, file);
}

QORIN_API_RESULT qorin_rpc_just_robot_joint_move(unsigned int cbox_id, unsigned int robot_id, double value,
                                                 unsigned int count, const double* joints)
{
    return command<"qorin_just_robot_joint_move">(cbox_id, robot_id, value, count, joints);
}

QORIN_API_RESULT qorin_rpc_just_robot_blending_joint_move(unsigned int cbox_id, unsigned int robot_id, double value,
                                                          unsigned int count, const double* joints)
{
    return command<"qorin_just_robot_blending_joint_move">(cbox_id, robot_id, value, count, joints);
}

QORIN_API_RESULT qorin_rpc_just_robot_tcp_move(unsigned int cbox_id, unsigned int robot_id, double value_1,
                                               double value_2, double value_3, double value_4, double value_5,
                                               double value_6, double value_7)
{
    return command<"qorin_just_robot_tcp_move">(cbox_id, robot_id, value_1, value_2, value_3, value_4, value_5, value_6,
                                                value_7);
}

QORIN_API_RESULT qorin_rpc_just_robot_blending_tcp_move(unsigned int cbox_id, unsigned int robot_id, double value_1,
                                                        double value_2, double value_3, double value_4, double value_5,
                                                        double value_6, double value_7)
{
    return command<"qorin_just_robot_blending_tcp_move">(cbox_id, robot_id, value_1, value_2, value_3, value_4, value_5,
                                                         value_6, value_7);
}
