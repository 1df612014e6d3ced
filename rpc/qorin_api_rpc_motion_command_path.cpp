// Paths of motion commands, and moves in one request.
#include "qorin/motion_command_path.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::command;

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
