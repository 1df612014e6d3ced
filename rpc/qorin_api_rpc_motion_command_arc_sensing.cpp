// Arc sensing of welding motions.
#include "qorin/motion_command_arc_sensing.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::command;

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
