// Motion from outside the queue: external profiler, external move, conveyors.
#include "qorin/robot_external_motion.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::command;

QORIN_API_RESULT qorin_rpc_robot_ext_profiler_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                         QORIN_SWITCH profiler_switch)
{
    return command<"qorin_robot_ext_profiler_switch_set">(cbox_id, robot_id, profiler_switch);
}

QORIN_API_RESULT qorin_rpc_robot_ext_profiler_period_set(unsigned int cbox_id, unsigned int robot_id,
                                                         unsigned int period)
{
    return command<"qorin_robot_ext_profiler_period_set">(cbox_id, robot_id, period);
}

QORIN_API_RESULT qorin_rpc_robot_ext_profiler_tcp_type_set(unsigned int cbox_id, unsigned int robot_id,
                                                           QORIN_POSE_TYPE pose_type)
{
    return command<"qorin_robot_ext_profiler_tcp_type_set">(cbox_id, robot_id, pose_type);
}

QORIN_API_RESULT qorin_rpc_robot_ext_profiler_pos_ort_euler_add(unsigned int cbox_id, unsigned int robot_id, double x,
                                                                double y, double z, double rx, double ry, double rz)
{
    return command<"qorin_robot_ext_profiler_pos_ort_euler_add">(cbox_id, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_ext_profiler_pos_ort_quat_add(unsigned int cbox_id, unsigned int robot_id, double x,
                                                               double y, double z, double quaternion_1,
                                                               double quaternion_2, double quaternion_3,
                                                               double quaternion_4)
{
    return command<"qorin_robot_ext_profiler_pos_ort_quat_add">(cbox_id, robot_id, x, y, z, quaternion_1, quaternion_2,
                                                                quaternion_3, quaternion_4);
}

QORIN_API_RESULT qorin_rpc_robot_ext_profiler_joint_add(unsigned int cbox_id, unsigned int robot_id, unsigned int count,
                                                        const double* angles)
{
    return command<"qorin_robot_ext_profiler_joint_add">(cbox_id, robot_id, count, angles);
}

QORIN_API_RESULT qorin_rpc_robot_ext_move_switch_set(unsigned int cbox_id, unsigned int robot_id, QORIN_SWITCH ext_move)
{
    return command<"qorin_robot_ext_move_switch_set">(cbox_id, robot_id, ext_move);
}

QORIN_API_RESULT qorin_rpc_robot_ext_move_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                     QORIN_SWITCH* ext_move)
{
    return command<"qorin_robot_ext_move_switch_get">(cbox_id, robot_id, ext_move);
}

QORIN_API_RESULT qorin_rpc_robot_ext_move_stop_mode_set(unsigned int cbox_id, unsigned int robot_id,
                                                        QORIN_SWITCH stop_mode)
{
    return command<"qorin_robot_ext_move_stop_mode_set">(cbox_id, robot_id, stop_mode);
}

QORIN_API_RESULT qorin_rpc_robot_ext_move_stop_mode_get(unsigned int cbox_id, unsigned int robot_id,
                                                        QORIN_SWITCH* stop_mode)
{
    return command<"qorin_robot_ext_move_stop_mode_get">(cbox_id, robot_id, stop_mode);
}

QORIN_API_RESULT qorin_rpc_robot_ext_move_pos_ort_euler_add(unsigned int cbox_id, unsigned int robot_id,
                                                            QORIN_POSE_TYPE pose_type, double value_1, double value_2,
                                                            double value_3, double value_4, double value_5,
                                                            double value_6, double value_7)
{
    return command<"qorin_robot_ext_move_pos_ort_euler_add">(cbox_id, robot_id, pose_type, value_1, value_2, value_3,
                                                             value_4, value_5, value_6, value_7);
}

QORIN_API_RESULT qorin_rpc_robot_ext_move_pos_ort_quat_add(unsigned int cbox_id, unsigned int robot_id,
                                                           QORIN_POSE_TYPE pose_type, double value_1, double value_2,
                                                           double value_3, double value_4, double value_5,
                                                           double value_6, double value_7, double value_8)
{
    return command<"qorin_robot_ext_move_pos_ort_quat_add">(cbox_id, robot_id, pose_type, value_1, value_2, value_3,
                                                            value_4, value_5, value_6, value_7, value_8);
}

QORIN_API_RESULT qorin_rpc_robot_ext_move_joint(unsigned int cbox_id, unsigned int robot_id, unsigned int count,
                                                const double* angles, double value)
{
    return command<"qorin_robot_ext_move_joint">(cbox_id, robot_id, count, angles, value);
}

QORIN_API_RESULT qorin_rpc_robot_conveyor_mode_start(unsigned int cbox_id, unsigned int robot_id)
{
    return command<"qorin_robot_conveyor_mode_start">(cbox_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_robot_conveyor_mode_end(unsigned int cbox_id, unsigned int robot_id)
{
    return command<"qorin_robot_conveyor_mode_end">(cbox_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_robot_conveyor_encoder_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                             QORIN_SWITCH encoder_switch)
{
    return command<"qorin_robot_conveyor_encoder_switch_set">(cbox_id, robot_id, encoder_switch);
}

QORIN_API_RESULT qorin_rpc_robot_conveyor_encoder_info_set(unsigned int cbox_id, unsigned int robot_id,
                                                           QORIN_CONVEYOR_ENCODER_TYPE type, double value_1,
                                                           double value_2, int value_3)
{
    return command<"qorin_robot_conveyor_encoder_info_set">(cbox_id, robot_id, type, value_1, value_2, value_3);
}

QORIN_API_RESULT qorin_rpc_robot_conveyor_offset_start_pose_set(unsigned int cbox_id, unsigned int robot_id, double x,
                                                                double y, double z, double rx, double ry, double rz)
{
    return command<"qorin_robot_conveyor_offset_start_pose_set">(cbox_id, robot_id, x, y, z, rx, ry, rz);
}
