/**
 * @file robot_safety_status.h
 * Safety and collision state of a robot: limits, planes, bounding shape, thresholds.
 *
 * Getters over the status mirror: robot_status.h tells what they have in common, when a robot exists, frames and units.
 */
#ifndef QORIN_ROBOT_SAFETY_STATUS_H
#define QORIN_ROBOT_SAFETY_STATUS_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/**
 * Whether a robot is in a safe state.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] state  QORIN_ROBOT_SAFETY_STATE_SAFE, or QORIN_ROBOT_SAFETY_STATE_NOT_SAFE while a violation stands.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_state_safety_get(unsigned int cbox_id, unsigned int robot_id,
                                                            QORIN_ROBOT_SAFETY_STATE* state);

/**
 * CRC-32 of the safety parameters of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] crc32  the sum that the control box computed.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_crc32_get(unsigned int cbox_id, unsigned int robot_id,
                                                            unsigned int* crc32);

/**
 * Master switch of the safety limits of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] limit_switch  on or off.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot is not known.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                   QORIN_SWITCH* limit_switch);

/**
 * Safety limit of the TCP speed of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] speed_max  largest speed.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_speed_max_get(unsigned int cbox_id, unsigned int robot_id,
                                                                          double* speed_max);

/**
 * Safety limit of the TCP acceleration of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] acc_max  largest acceleration.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_acc_max_get(unsigned int cbox_id, unsigned int robot_id,
                                                                        double* acc_max);

/**
 * Safety angle range of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] angle_1  one end of the range, in degrees; the one that the control box sends second.
 * @param[out] angle_2  the other end, in degrees; the one that the control box sends first.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_joint_angle_get(unsigned int cbox_id, unsigned int robot_id,
                                                                        unsigned int joint, double* angle_1,
                                                                        double* angle_2);

/**
 * Safety speed limit of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] speed_max  largest speed, in degrees per second.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_joint_speed_max_get(unsigned int cbox_id, unsigned int robot_id,
                                                                            unsigned int joint, double* speed_max);

/**
 * Safety acceleration limit of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] acc_max  largest acceleration, in degrees per second squared.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_joint_acc_max_get(unsigned int cbox_id, unsigned int robot_id,
                                                                          unsigned int joint, double* acc_max);

/**
 * Velocity limits of a robot in reduced mode.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] velocity_1  the limit that the control box sends second.
 * @param[out] velocity_2  the limit that the control box sends first.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_velocity_in_reduced_mode_get(unsigned int cbox_id,
                                                                                     unsigned int robot_id,
                                                                                     double* velocity_1,
                                                                                     double* velocity_2);

/**
 * Collision detection threshold of the TCP force of a robot in reduced mode.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] force  threshold.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_collision_detection_tcp_force_in_reduced_mode_get(
    unsigned int cbox_id, unsigned int robot_id, double* force);

/**
 * Collision detection thresholds of the joint torques of a robot in reduced mode.
 *
 * `count` is judged as if it were a joint, so the threshold of the last joint cannot be read. No more than 6 values are
 * written.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param count  number of thresholds to read, below the robot's number of joints; 0 reads none.
 * @param[out] torque  [count] thresholds of the first `count` joints.
 * @return as every robot getter; QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE when count is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_collision_detection_torque_in_reduced_mode_get(
    unsigned int cbox_id, unsigned int robot_id, unsigned int count, double* torque);

/**
 * Whether a bounding shape is in force around the TCP of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] shape_switch  on or off.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot is not known.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_bounding_shape_switch_get(unsigned int cbox_id,
                                                                                      unsigned int robot_id,
                                                                                      QORIN_SWITCH* shape_switch);

/**
 * A safety plane of a robot, as its normal and its distance.
 *
 * The plane is the points p with normal * p = distance. The robot is judged ahead of the plane.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param plane  plane id, 0 to 9.
 * @param[out] norm_x  normal, component x.
 * @param[out] norm_y  normal, component y.
 * @param[out] norm_z  normal, component z.
 * @param[out] distance  the constant term of the plane's equation with its sign turned, as it was set.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot is not known; QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE
 * when plane is out of range; QORIN_API_RESULT_ERROR_ROBOT_INVAILD_WORK_SPACE_ID when the robot has no such plane.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_plane_norm_distance_get(unsigned int cbox_id,
                                                                                unsigned int robot_id,
                                                                                unsigned int plane, double* norm_x,
                                                                                double* norm_y, double* norm_z,
                                                                                double* distance);

/**
 * A safety plane of a robot, as its normal and a point on it: not available.
 *
 * The status mirror keeps no origin. The outputs stay as they are, so preset them;
 * qorin_rpc_robot_safety_limit_plane_norm_distance_get() tells the plane.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot; not judged.
 * @param plane  plane id; not judged.
 * @param[out] norm_x  not written.
 * @param[out] norm_y  not written.
 * @param[out] norm_z  not written.
 * @param[out] origin_x  not written.
 * @param[out] origin_y  not written.
 * @param[out] origin_z  not written.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_plane_norm_origin_get(unsigned int cbox_id,
                                                                              unsigned int robot_id, unsigned int plane,
                                                                              double* norm_x, double* norm_y,
                                                                              double* norm_z, double* origin_x,
                                                                              double* origin_y, double* origin_z);

/**
 * Collision detection of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] detection_switch  on or off.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_collision_detection_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                          QORIN_SWITCH* detection_switch);

/**
 * Collision detection threshold of the resultant TCP force of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] force  threshold.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_collision_detection_threshold_tcp_resultant_force_get(unsigned int cbox_id,
                                                                                                 unsigned int robot_id,
                                                                                                 double* force);

/**
 * Collision detection thresholds of force and torque at the TCP of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  force threshold along x.
 * @param[out] y  force threshold along y.
 * @param[out] z  force threshold along z.
 * @param[out] rx  torque threshold about x.
 * @param[out] ry  torque threshold about y.
 * @param[out] rz  torque threshold about z.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_collision_detection_threshold_tcp_force_get(unsigned int cbox_id,
                                                                                       unsigned int robot_id, double* x,
                                                                                       double* y, double* z, double* rx,
                                                                                       double* ry, double* rz);

/**
 * Collision detection threshold of the torque of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, below the robot's number of joints.
 * @param[out] torque  threshold.
 * @return as every robot getter; QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE when joint is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_collision_detection_threshold_joint_torque_get(unsigned int cbox_id,
                                                                                          unsigned int robot_id,
                                                                                          unsigned int joint,
                                                                                          double* torque);

/**
 * Collision mitigation of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] mitigation_switch  on or off.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_collision_mitigation_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                           QORIN_SWITCH* mitigation_switch);

/**
 * The same as qorin_rpc_robot_state_safety_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] state  QORIN_ROBOT_SAFETY_STATE_SAFE, or QORIN_ROBOT_SAFETY_STATE_NOT_SAFE while a violation stands.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_state_safety_get(unsigned int robot_id, QORIN_ROBOT_SAFETY_STATE* state);

/**
 * The same as qorin_rpc_robot_safety_crc32_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] crc32  the sum that the control box computed.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_crc32_get(unsigned int robot_id, unsigned int* crc32);

/**
 * The same as qorin_rpc_robot_safety_limit_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] limit_switch  on or off.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_switch_get(unsigned int robot_id, QORIN_SWITCH* limit_switch);

/**
 * The same as qorin_rpc_robot_safety_limit_tcp_speed_max_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] speed_max  largest speed.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_tcp_speed_max_get(unsigned int robot_id, double* speed_max);

/**
 * The same as qorin_rpc_robot_safety_limit_tcp_acc_max_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] acc_max  largest acceleration.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_tcp_acc_max_get(unsigned int robot_id, double* acc_max);

/**
 * The same as qorin_rpc_robot_safety_limit_joint_angle_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] angle_1  one end of the range, in degrees; the one that the control box sends second.
 * @param[out] angle_2  the other end, in degrees; the one that the control box sends first.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_joint_angle_get(unsigned int robot_id, unsigned int joint,
                                                                    double* angle_1, double* angle_2);

/**
 * The same as qorin_rpc_robot_safety_limit_joint_speed_max_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] speed_max  largest speed, in degrees per second.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_joint_speed_max_get(unsigned int robot_id, unsigned int joint,
                                                                        double* speed_max);

/**
 * The same as qorin_rpc_robot_safety_limit_joint_acc_max_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param[out] acc_max  largest acceleration, in degrees per second squared.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_joint_acc_max_get(unsigned int robot_id, unsigned int joint,
                                                                      double* acc_max);

/**
 * The same as qorin_rpc_robot_safety_limit_velocity_in_reduced_mode_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] velocity_1  the limit that the control box sends second.
 * @param[out] velocity_2  the limit that the control box sends first.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_velocity_in_reduced_mode_get(unsigned int robot_id,
                                                                                 double* velocity_1,
                                                                                 double* velocity_2);

/**
 * The same as qorin_rpc_robot_safety_limit_collision_detection_tcp_force_in_reduced_mode_get() for the control box that
 * was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] force  threshold.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT
qorin_robot_safety_limit_collision_detection_tcp_force_in_reduced_mode_get(unsigned int robot_id, double* force);

/**
 * The same as qorin_rpc_robot_safety_limit_collision_detection_torque_in_reduced_mode_get() for the control box that
 * was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param count  number of thresholds to read, below the robot's number of joints; 0 reads none.
 * @param[out] torque  [count] thresholds of the first `count` joints.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_collision_detection_torque_in_reduced_mode_get(
    unsigned int robot_id, unsigned int count, double* torque);

/**
 * The same as qorin_rpc_robot_safety_limit_tcp_bounding_shape_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] shape_switch  on or off.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_tcp_bounding_shape_switch_get(unsigned int robot_id,
                                                                                  QORIN_SWITCH* shape_switch);

/**
 * The same as qorin_rpc_robot_safety_limit_plane_norm_distance_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param plane  plane id, 0 to 9.
 * @param[out] norm_x  normal, component x.
 * @param[out] norm_y  normal, component y.
 * @param[out] norm_z  normal, component z.
 * @param[out] distance  the constant term of the plane's equation with its sign turned, as it was set.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_plane_norm_distance_get(unsigned int robot_id, unsigned int plane,
                                                                            double* norm_x, double* norm_y,
                                                                            double* norm_z, double* distance);

/**
 * The same as qorin_rpc_robot_safety_limit_plane_norm_origin_get() for the control box that was asked last.
 *
 * @param robot_id  robot; not judged.
 * @param plane  plane id; not judged.
 * @param[out] norm_x  not written.
 * @param[out] norm_y  not written.
 * @param[out] norm_z  not written.
 * @param[out] origin_x  not written.
 * @param[out] origin_y  not written.
 * @param[out] origin_z  not written.
 * @return QORIN_API_RESULT_OK.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_plane_norm_origin_get(unsigned int robot_id, unsigned int plane,
                                                                          double* norm_x, double* norm_y,
                                                                          double* norm_z, double* origin_x,
                                                                          double* origin_y, double* origin_z);

/**
 * The same as qorin_rpc_robot_collision_detection_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] detection_switch  on or off.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_collision_detection_switch_get(unsigned int robot_id,
                                                                      QORIN_SWITCH* detection_switch);

/**
 * The same as qorin_rpc_robot_collision_detection_threshold_tcp_resultant_force_get() for the control box that was
 * asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] force  threshold.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_collision_detection_threshold_tcp_resultant_force_get(unsigned int robot_id,
                                                                                             double* force);

/**
 * The same as qorin_rpc_robot_collision_detection_threshold_tcp_force_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] x  force threshold along x.
 * @param[out] y  force threshold along y.
 * @param[out] z  force threshold along z.
 * @param[out] rx  torque threshold about x.
 * @param[out] ry  torque threshold about y.
 * @param[out] rz  torque threshold about z.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_collision_detection_threshold_tcp_force_get(unsigned int robot_id, double* x,
                                                                                   double* y, double* z, double* rx,
                                                                                   double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_collision_detection_threshold_joint_torque_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, below the robot's number of joints.
 * @param[out] torque  threshold.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_collision_detection_threshold_joint_torque_get(unsigned int robot_id,
                                                                                      unsigned int joint,
                                                                                      double* torque);

/**
 * The same as qorin_rpc_robot_collision_mitigation_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] mitigation_switch  on or off.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_collision_mitigation_switch_get(unsigned int robot_id,
                                                                       QORIN_SWITCH* mitigation_switch);

QORIN_API_C_END

#endif
