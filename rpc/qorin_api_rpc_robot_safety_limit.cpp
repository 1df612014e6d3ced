// Limits that the control box enforces on a robot.
#include "qorin/robot_safety_limit.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::command;

QORIN_API_RESULT qorin_rpc_robot_safety_limit_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                         QORIN_SWITCH limit_switch)
{
    return command<"qorin_robot_safety_limit_switch_set">(cbox_id, robot_id, limit_switch);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_joint_angle_set(unsigned int cbox_id, unsigned int robot_id,
                                                              unsigned int joint, double angle_1, double angle_2)
{
    return command<"qorin_robot_safety_limit_joint_angle_set">(cbox_id, robot_id, joint, angle_1, angle_2);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_joint_speed_max_set(unsigned int cbox_id, unsigned int robot_id,
                                                                  unsigned int joint, double speed_max)
{
    return command<"qorin_robot_safety_limit_joint_speed_max_set">(cbox_id, robot_id, joint, speed_max);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_joint_acc_max_set(unsigned int cbox_id, unsigned int robot_id,
                                                                unsigned int joint, double acc_max)
{
    return command<"qorin_robot_safety_limit_joint_acc_max_set">(cbox_id, robot_id, joint, acc_max);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_speed_max_set(unsigned int cbox_id, unsigned int robot_id,
                                                                double speed_max)
{
    return command<"qorin_robot_safety_limit_tcp_speed_max_set">(cbox_id, robot_id, speed_max);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_acc_max_set(unsigned int cbox_id, unsigned int robot_id,
                                                              double acc_max)
{
    return command<"qorin_robot_safety_limit_tcp_acc_max_set">(cbox_id, robot_id, acc_max);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_velocity_in_reduced_mode_set(unsigned int cbox_id, unsigned int robot_id,
                                                                           double velocity_1, double velocity_2)
{
    return command<"qorin_robot_safety_limit_velocity_in_reduced_mode_set">(cbox_id, robot_id, velocity_1, velocity_2);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_collision_detection_tcp_force_in_reduced_mode_set(unsigned int cbox_id,
                                                                                                unsigned int robot_id,
                                                                                                double force)
{
    return command<"qorin_robot_safety_limit_collision_detection_tcp_force_in_reduced_mode_set">(cbox_id, robot_id,
                                                                                                 force);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_collision_detection_torque_in_reduced_mode_set(unsigned int cbox_id,
                                                                                             unsigned int robot_id,
                                                                                             unsigned int count,
                                                                                             const double* torque)
{
    return command<"qorin_robot_safety_limit_collision_detection_torque_in_reduced_mode_set">(cbox_id, robot_id, count,
                                                                                              torque);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_plane_create_with_norm_origin(unsigned int cbox_id, unsigned int robot_id,
                                                                            double norm_x, double norm_y, double norm_z,
                                                                            double origin_x, double origin_y,
                                                                            double origin_z, unsigned int* plane_id)
{
    return command<"qorin_robot_safety_limit_plane_create_with_norm_origin">(cbox_id, robot_id, norm_x, norm_y, norm_z,
                                                                             origin_x, origin_y, origin_z, plane_id);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_plane_create_with_norm_distance(unsigned int cbox_id,
                                                                              unsigned int robot_id, double norm_x,
                                                                              double norm_y, double norm_z,
                                                                              double distance, unsigned int* plane_id)
{
    return command<"qorin_robot_safety_limit_plane_create_with_norm_distance">(cbox_id, robot_id, norm_x, norm_y,
                                                                               norm_z, distance, plane_id);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_plane_remove(unsigned int cbox_id, unsigned int robot_id,
                                                           unsigned int plane_id)
{
    return command<"qorin_robot_safety_limit_plane_remove">(cbox_id, robot_id, plane_id);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_plane_remove_all(unsigned int cbox_id, unsigned int robot_id)
{
    return command<"qorin_robot_safety_limit_plane_remove_all">(cbox_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_bounding_shape_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                            QORIN_SWITCH shape_switch)
{
    return command<"qorin_robot_safety_limit_tcp_bounding_shape_switch_set">(cbox_id, robot_id, shape_switch);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_bounding_shape_delete(unsigned int cbox_id, unsigned int robot_id)
{
    return command<"qorin_robot_safety_limit_tcp_bounding_shape_delete">(cbox_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_bounding_box_set(
    unsigned int cbox_id, unsigned int robot_id, QORIN_REF_COORDINATE coordinate, double value_1, double value_2,
    double value_3, double value_4, double value_5, double value_6, double value_7, double value_8, double value_9,
    double value_10, double value_11, double value_12, double value_13, double value_14, double value_15,
    double value_16, double value_17, double value_18, double value_19, double value_20, double value_21,
    double value_22, double value_23, double value_24)
{
    return command<"qorin_robot_safety_limit_tcp_bounding_box_set">(
        cbox_id, robot_id, coordinate, value_1, value_2, value_3, value_4, value_5, value_6, value_7, value_8, value_9,
        value_10, value_11, value_12, value_13, value_14, value_15, value_16, value_17, value_18, value_19, value_20,
        value_21, value_22, value_23, value_24);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_bounding_sphere_set(unsigned int cbox_id, unsigned int robot_id,
                                                                      QORIN_REF_COORDINATE coordinate, double value_1,
                                                                      double value_2, double value_3, double value_4)
{
    return command<"qorin_robot_safety_limit_tcp_bounding_sphere_set">(cbox_id, robot_id, coordinate, value_1, value_2,
                                                                       value_3, value_4);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_bounding_cylinder_set(unsigned int cbox_id, unsigned int robot_id,
                                                                        QORIN_REF_COORDINATE coordinate, double value_1,
                                                                        double value_2, double value_3, double value_4,
                                                                        double value_5, double value_6, double value_7,
                                                                        double value_8)
{
    return command<"qorin_robot_safety_limit_tcp_bounding_cylinder_set">(
        cbox_id, robot_id, coordinate, value_1, value_2, value_3, value_4, value_5, value_6, value_7, value_8);
}

QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_bounding_cone_set(unsigned int cbox_id, unsigned int robot_id,
                                                                    QORIN_REF_COORDINATE coordinate, double value_1,
                                                                    double value_2, double value_3, double value_4,
                                                                    double value_5, double value_6, double value_7,
                                                                    double value_8)
{
    return command<"qorin_robot_safety_limit_tcp_bounding_cone_set">(
        cbox_id, robot_id, coordinate, value_1, value_2, value_3, value_4, value_5, value_6, value_7, value_8);
}
