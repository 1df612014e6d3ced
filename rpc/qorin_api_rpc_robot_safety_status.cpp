#include "qorin/robot_safety_status.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::from_mirror;

QORIN_API_RESULT qorin_rpc_robot_state_safety_get(unsigned int cbox_id, unsigned int robot_id,
                                                  QORIN_ROBOT_SAFETY_STATE* state)
{
    return from_mirror(cbox_id, qorin_robot_state_safety_get, robot_id, state);
}

QORIN_API_RESULT qorin_rpc_robot_safety_crc32_get(unsigned int cbox_id, unsigned int robot_id, unsigned int* crc32)
{
    return from_mirror(cbox_id, qorin_robot_safety_crc32_get, robot_id, crc32);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                         QORIN_SWITCH* limit_switch)
{
    return from_mirror(cbox_id, qorin_robot_safety_limit_switch_get, robot_id, limit_switch);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_speed_max_get(unsigned int cbox_id, unsigned int robot_id,
                                                                double* speed_max)
{
    return from_mirror(cbox_id, qorin_robot_safety_limit_tcp_speed_max_get, robot_id, speed_max);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_acc_max_get(unsigned int cbox_id, unsigned int robot_id,
                                                              double* acc_max)
{
    return from_mirror(cbox_id, qorin_robot_safety_limit_tcp_acc_max_get, robot_id, acc_max);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_joint_angle_get(unsigned int cbox_id, unsigned int robot_id,
                                                              unsigned int joint, double* angle_1, double* angle_2)
{
    return from_mirror(cbox_id, qorin_robot_safety_limit_joint_angle_get, robot_id, joint, angle_1, angle_2);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_joint_speed_max_get(unsigned int cbox_id, unsigned int robot_id,
                                                                  unsigned int joint, double* speed_max)
{
    return from_mirror(cbox_id, qorin_robot_safety_limit_joint_speed_max_get, robot_id, joint, speed_max);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_joint_acc_max_get(unsigned int cbox_id, unsigned int robot_id,
                                                                unsigned int joint, double* acc_max)
{
    return from_mirror(cbox_id, qorin_robot_safety_limit_joint_acc_max_get, robot_id, joint, acc_max);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_velocity_in_reduced_mode_get(unsigned int cbox_id, unsigned int robot_id,
                                                                           double* velocity_1, double* velocity_2)
{
    return from_mirror(cbox_id, qorin_robot_safety_limit_velocity_in_reduced_mode_get, robot_id, velocity_1,
                       velocity_2);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_collision_detection_tcp_force_in_reduced_mode_get(unsigned int cbox_id,
                                                                                                unsigned int robot_id,
                                                                                                double* force)
{
    return from_mirror(cbox_id, qorin_robot_safety_limit_collision_detection_tcp_force_in_reduced_mode_get, robot_id,
                       force);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_collision_detection_torque_in_reduced_mode_get(unsigned int cbox_id,
                                                                                             unsigned int robot_id,
                                                                                             unsigned int count,
                                                                                             double* torque)
{
    return from_mirror(cbox_id, qorin_robot_safety_limit_collision_detection_torque_in_reduced_mode_get, robot_id,
                       count, torque);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_bounding_shape_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                            QORIN_SWITCH* shape_switch)
{
    return from_mirror(cbox_id, qorin_robot_safety_limit_tcp_bounding_shape_switch_get, robot_id, shape_switch);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_plane_norm_distance_get(unsigned int cbox_id, unsigned int robot_id,
                                                                      unsigned int plane, double* norm_x,
                                                                      double* norm_y, double* norm_z, double* distance)
{
    return from_mirror(cbox_id, qorin_robot_safety_limit_plane_norm_distance_get, robot_id, plane, norm_x, norm_y,
                       norm_z, distance);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_plane_norm_origin_get(unsigned int cbox_id, unsigned int robot_id,
                                                                    unsigned int plane, double* norm_x, double* norm_y,
                                                                    double* norm_z, double* origin_x, double* origin_y,
                                                                    double* origin_z)
{
    return from_mirror(cbox_id, qorin_robot_safety_limit_plane_norm_origin_get, robot_id, plane, norm_x, norm_y, norm_z,
                       origin_x, origin_y, origin_z);
}

QORIN_API_RESULT qorin_rpc_robot_collision_detection_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                QORIN_SWITCH* detection_switch)
{
    return from_mirror(cbox_id, qorin_robot_collision_detection_switch_get, robot_id, detection_switch);
}

QORIN_API_RESULT qorin_rpc_robot_collision_detection_threshold_tcp_resultant_force_get(unsigned int cbox_id,
                                                                                       unsigned int robot_id,
                                                                                       double* force)
{
    return from_mirror(cbox_id, qorin_robot_collision_detection_threshold_tcp_resultant_force_get, robot_id, force);
}

QORIN_API_RESULT qorin_rpc_robot_collision_detection_threshold_tcp_force_get(unsigned int cbox_id,
                                                                             unsigned int robot_id, double* x,
                                                                             double* y, double* z, double* rx,
                                                                             double* ry, double* rz)
{
    return from_mirror(cbox_id, qorin_robot_collision_detection_threshold_tcp_force_get, robot_id, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_rpc_robot_collision_detection_threshold_joint_torque_get(unsigned int cbox_id,
                                                                                unsigned int robot_id,
                                                                                unsigned int joint, double* torque)
{
    return from_mirror(cbox_id, qorin_robot_collision_detection_threshold_joint_torque_get, robot_id, joint, torque);
}

QORIN_API_RESULT qorin_rpc_robot_collision_mitigation_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                 QORIN_SWITCH* mitigation_switch)
{
    return from_mirror(cbox_id, qorin_robot_collision_mitigation_switch_get, robot_id, mitigation_switch);
}
