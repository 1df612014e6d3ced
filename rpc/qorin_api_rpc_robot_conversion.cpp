#include "qorin/robot_conversion.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::from_mirror;

QORIN_API_RESULT qorin_rpc_robot_util_joint_angle_to_pose_convert(unsigned int cbox_id, unsigned int robot_id,
                                                                  QORIN_POSE_TYPE type, const double* joints,
                                                                  double* position, double* orientation)
{
    return from_mirror(cbox_id, qorin_robot_util_joint_angle_to_pose_convert, robot_id, type, joints, position,
                       orientation);
}

QORIN_API_RESULT qorin_rpc_robot_util_pose_to_joint_angle_convert(unsigned int cbox_id, unsigned int robot_id,
                                                                  QORIN_POSE_TYPE type, const double* reference,
                                                                  const double* position, const double* orientation,
                                                                  double* joints)
{
    return from_mirror(cbox_id, qorin_robot_util_pose_to_joint_angle_convert, robot_id, type, reference, position,
                       orientation, joints);
}

QORIN_API_RESULT qorin_rpc_robot_util_pose_to_joint_angle_convert_iterative(
    unsigned int cbox_id, unsigned int robot_id, QORIN_POSE_TYPE type, const double* reference, const double* position,
    const double* orientation, unsigned int steps, double* joints)
{
    return from_mirror(cbox_id, qorin_robot_util_pose_to_joint_angle_convert_iterative, robot_id, type, reference,
                       position, orientation, steps, joints);
}

QORIN_API_RESULT qorin_rpc_robot_util_pose_to_joint_all_possible_angle_convert(unsigned int cbox_id,
                                                                               unsigned int robot_id,
                                                                               const double* position,
                                                                               const double* orientation,
                                                                               double* joints, bool* valid)
{
    return from_mirror(cbox_id, qorin_robot_util_pose_to_joint_all_possible_angle_convert, robot_id, position,
                       orientation, joints, valid);
}

QORIN_API_RESULT qorin_rpc_robot_util_pose_to_posture_joint_angle_convert(unsigned int cbox_id, unsigned int robot_id,
                                                                          QORIN_ROBOT_POSTURE posture,
                                                                          const double* position,
                                                                          const double* orientation, double* joints,
                                                                          bool* success)
{
    return from_mirror(cbox_id, qorin_robot_util_pose_to_posture_joint_angle_convert, robot_id, posture, position,
                       orientation, joints, success);
}

QORIN_API_RESULT qorin_rpc_robot_util_position_trajectory_get(unsigned int cbox_id, unsigned int robot_id,
                                                              unsigned int joint_count, const double* start_joints,
                                                              const double* end_joints, unsigned int point_count,
                                                              QORIN_POSE_TYPE type, double* x, double* y, double* z)
{
    return from_mirror(cbox_id, qorin_robot_util_position_trajectory_get, robot_id, joint_count, start_joints,
                       end_joints, point_count, type, x, y, z);
}
