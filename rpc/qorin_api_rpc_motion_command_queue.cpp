// Motion commands: made, queued and run on the control box, and what all kinds of them have.
#include "qorin/motion_command_queue.h"

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
