#include "qorin/robot_external_move_status.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::from_mirror;

QORIN_API_RESULT qorin_rpc_robot_ext_profiler_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                         QORIN_SWITCH* profiler_switch)
{
    return from_mirror(cbox_id, qorin_robot_ext_profiler_switch_get, robot_id, profiler_switch);
}

QORIN_API_RESULT qorin_rpc_robot_ext_profiler_period_get(unsigned int cbox_id, unsigned int robot_id,
                                                         unsigned int* period)
{
    return from_mirror(cbox_id, qorin_robot_ext_profiler_period_get, robot_id, period);
}

QORIN_API_RESULT qorin_rpc_robot_ext_profiler_buffer_size_get(unsigned int cbox_id, unsigned int robot_id,
                                                              unsigned int* size)
{
    return from_mirror(cbox_id, qorin_robot_ext_profiler_buffer_size_get, robot_id, size);
}

QORIN_API_RESULT qorin_rpc_robot_ext_profiler_tcp_type_get(unsigned int cbox_id, unsigned int robot_id,
                                                           QORIN_POSE_TYPE* type)
{
    return from_mirror(cbox_id, qorin_robot_ext_profiler_tcp_type_get, robot_id, type);
}

QORIN_API_RESULT qorin_rpc_robot_conveyor_mode_get(unsigned int cbox_id, unsigned int robot_id,
                                                   QORIN_CONVEYOR_MODE* mode)
{
    return from_mirror(cbox_id, qorin_robot_conveyor_mode_get, robot_id, mode);
}

QORIN_API_RESULT qorin_rpc_robot_conveyor_encoder_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                             QORIN_SWITCH* encoder_switch)
{
    return from_mirror(cbox_id, qorin_robot_conveyor_encoder_switch_get, robot_id, encoder_switch);
}
