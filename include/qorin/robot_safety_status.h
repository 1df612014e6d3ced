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
 * @param state  output: QORIN_ROBOT_SAFETY_STATE_SAFE, or QORIN_ROBOT_SAFETY_STATE_NOT_SAFE while a violation stands.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_state_safety_get(unsigned int cbox_id, unsigned int robot_id,
                                                            QORIN_ROBOT_SAFETY_STATE* state);

/**
 * CRC-32 of the safety parameters of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param crc32  output: the sum that the control box computed.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_crc32_get(unsigned int cbox_id, unsigned int robot_id,
                                                            unsigned int* crc32);

/**
 * Master switch of the safety limits of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param limit_switch  output: on or off.
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
 * @param speed_max  output: largest speed.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_speed_max_get(unsigned int cbox_id, unsigned int robot_id,
                                                                          double* speed_max);

/**
 * Safety limit of the TCP acceleration of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param acc_max  output: largest acceleration.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_acc_max_get(unsigned int cbox_id, unsigned int robot_id,
                                                                        double* acc_max);

/**
 * Safety angle range of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param angle_1  output: one end of the range, in degrees; the one that the control box sends second.
 * @param angle_2  output: the other end, in degrees; the one that the control box sends first.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
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
 * @param speed_max  output: largest speed, in degrees per second.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_joint_speed_max_get(unsigned int cbox_id, unsigned int robot_id,
                                                                            unsigned int joint, double* speed_max);

/**
 * Safety acceleration limit of a joint.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param acc_max  output: largest acceleration, in degrees per second squared.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_joint_acc_max_get(unsigned int cbox_id, unsigned int robot_id,
                                                                          unsigned int joint, double* acc_max);

/**
 * Velocity limits of a robot in reduced mode.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param velocity_1  output: the limit that the control box sends second.
 * @param velocity_2  output: the limit that the control box sends first.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
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
 * @param force  output: threshold.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
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
 * @param torque  output: thresholds of the first `count` joints.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist;
 * QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE when count is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_collision_detection_torque_in_reduced_mode_get(
    unsigned int cbox_id, unsigned int robot_id, unsigned int count, double* torque);

/**
 * Whether a bounding shape is in force around the TCP of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param shape_switch  output: on or off.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot is not known.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_bounding_shape_switch_get(unsigned int cbox_id,
                                                                                      unsigned int robot_id,
                                                                                      QORIN_SWITCH* shape_switch);

/**
 * A safety plane of a robot, as its normal and its distance.
 *
 * The robot is judged ahead of the plane.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param plane  plane id, 0 to 9.
 * @param norm_x  output: normal, component x.
 * @param norm_y  output: normal, component y.
 * @param norm_z  output: normal, component z.
 * @param distance  output: distance of the plane along the normal.
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
 * @param norm_x  not written.
 * @param norm_y  not written.
 * @param norm_z  not written.
 * @param origin_x  not written.
 * @param origin_y  not written.
 * @param origin_z  not written.
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
 * @param detection_switch  output: on or off.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_collision_detection_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                          QORIN_SWITCH* detection_switch);

/**
 * Collision detection threshold of the resultant TCP force of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param force  output: threshold.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_collision_detection_threshold_tcp_resultant_force_get(unsigned int cbox_id,
                                                                                                 unsigned int robot_id,
                                                                                                 double* force);

/**
 * Collision detection thresholds of force and torque at the TCP of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param x  output: force threshold along x.
 * @param y  output: force threshold along y.
 * @param z  output: force threshold along z.
 * @param rx  output: torque threshold about x.
 * @param ry  output: torque threshold about y.
 * @param rz  output: torque threshold about z.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
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
 * @param torque  output: threshold.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist;
 * QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE when joint is out of range.
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
 * @param mitigation_switch  output: on or off.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_collision_mitigation_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                           QORIN_SWITCH* mitigation_switch);

/**
 * The same as qorin_rpc_robot_state_safety_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param state  output: QORIN_ROBOT_SAFETY_STATE_SAFE, or QORIN_ROBOT_SAFETY_STATE_NOT_SAFE while a violation stands.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_state_safety_get(unsigned int robot_id, QORIN_ROBOT_SAFETY_STATE* state);

/**
 * The same as qorin_rpc_robot_safety_crc32_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param crc32  output: the sum that the control box computed.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_crc32_get(unsigned int robot_id, unsigned int* crc32);

/**
 * The same as qorin_rpc_robot_safety_limit_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param limit_switch  output: on or off.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_switch_get(unsigned int robot_id, QORIN_SWITCH* limit_switch);

/**
 * The same as qorin_rpc_robot_safety_limit_tcp_speed_max_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param speed_max  output: largest speed.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_tcp_speed_max_get(unsigned int robot_id, double* speed_max);

/**
 * The same as qorin_rpc_robot_safety_limit_tcp_acc_max_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param acc_max  output: largest acceleration.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_tcp_acc_max_get(unsigned int robot_id, double* acc_max);

/**
 * The same as qorin_rpc_robot_safety_limit_joint_angle_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param angle_1  output: one end of the range, in degrees; the one that the control box sends second.
 * @param angle_2  output: the other end, in degrees; the one that the control box sends first.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_joint_angle_get(unsigned int robot_id, unsigned int joint,
                                                                    double* angle_1, double* angle_2);

/**
 * The same as qorin_rpc_robot_safety_limit_joint_speed_max_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param speed_max  output: largest speed, in degrees per second.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_joint_speed_max_get(unsigned int robot_id, unsigned int joint,
                                                                        double* speed_max);

/**
 * The same as qorin_rpc_robot_safety_limit_joint_acc_max_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, 0 for the first. Not bounded: beyond the joints of the robot it reads other state.
 * @param acc_max  output: largest acceleration, in degrees per second squared.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_joint_acc_max_get(unsigned int robot_id, unsigned int joint,
                                                                      double* acc_max);

/**
 * The same as qorin_rpc_robot_safety_limit_velocity_in_reduced_mode_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param velocity_1  output: the limit that the control box sends second.
 * @param velocity_2  output: the limit that the control box sends first.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_velocity_in_reduced_mode_get(unsigned int robot_id,
                                                                                 double* velocity_1,
                                                                                 double* velocity_2);

/**
 * The same as qorin_rpc_robot_safety_limit_collision_detection_tcp_force_in_reduced_mode_get() for the control box that
 * was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param force  output: threshold.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT
qorin_robot_safety_limit_collision_detection_tcp_force_in_reduced_mode_get(unsigned int robot_id, double* force);

/**
 * The same as qorin_rpc_robot_safety_limit_collision_detection_torque_in_reduced_mode_get() for the control box that
 * was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param count  number of thresholds to read, below the robot's number of joints; 0 reads none.
 * @param torque  output: thresholds of the first `count` joints.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_collision_detection_torque_in_reduced_mode_get(
    unsigned int robot_id, unsigned int count, double* torque);

/**
 * The same as qorin_rpc_robot_safety_limit_tcp_bounding_shape_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param shape_switch  output: on or off.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_tcp_bounding_shape_switch_get(unsigned int robot_id,
                                                                                  QORIN_SWITCH* shape_switch);

/**
 * The same as qorin_rpc_robot_safety_limit_plane_norm_distance_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param plane  plane id, 0 to 9.
 * @param norm_x  output: normal, component x.
 * @param norm_y  output: normal, component y.
 * @param norm_z  output: normal, component z.
 * @param distance  output: distance of the plane along the normal.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_safety_limit_plane_norm_distance_get(unsigned int robot_id, unsigned int plane,
                                                                            double* norm_x, double* norm_y,
                                                                            double* norm_z, double* distance);

/**
 * The same as qorin_rpc_robot_safety_limit_plane_norm_origin_get() for the control box that was asked last.
 *
 * @param robot_id  robot; not judged.
 * @param plane  plane id; not judged.
 * @param norm_x  not written.
 * @param norm_y  not written.
 * @param norm_z  not written.
 * @param origin_x  not written.
 * @param origin_y  not written.
 * @param origin_z  not written.
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
 * @param detection_switch  output: on or off.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_collision_detection_switch_get(unsigned int robot_id,
                                                                      QORIN_SWITCH* detection_switch);

/**
 * The same as qorin_rpc_robot_collision_detection_threshold_tcp_resultant_force_get() for the control box that was
 * asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param force  output: threshold.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_collision_detection_threshold_tcp_resultant_force_get(unsigned int robot_id,
                                                                                             double* force);

/**
 * The same as qorin_rpc_robot_collision_detection_threshold_tcp_force_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param x  output: force threshold along x.
 * @param y  output: force threshold along y.
 * @param z  output: force threshold along z.
 * @param rx  output: torque threshold about x.
 * @param ry  output: torque threshold about y.
 * @param rz  output: torque threshold about z.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_collision_detection_threshold_tcp_force_get(unsigned int robot_id, double* x,
                                                                                   double* y, double* z, double* rx,
                                                                                   double* ry, double* rz);

/**
 * The same as qorin_rpc_robot_collision_detection_threshold_joint_torque_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param joint  joint, below the robot's number of joints.
 * @param torque  output: threshold.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_collision_detection_threshold_joint_torque_get(unsigned int robot_id,
                                                                                      unsigned int joint,
                                                                                      double* torque);

/**
 * The same as qorin_rpc_robot_collision_mitigation_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param mitigation_switch  output: on or off.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_collision_mitigation_switch_get(unsigned int robot_id,
                                                                       QORIN_SWITCH* mitigation_switch);

QORIN_API_C_END

#endif
