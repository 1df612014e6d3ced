/**
 * @file robot_safety_limit.h
 * Limits that the control box enforces on a robot: joints, TCP, reduced mode, work space planes, bounding shape.
 *
 * A robot has up to 10 planes, whose ids, 0 to 9, the control box gives out, and one bounding shape about its TCP. What
 * is set shows in the status mirror; the getters are in robot_safety_status.h. Of the bounding shape only its switch
 * shows.
 *
 * @code
 * unsigned int floor[32] = {0}; // 128 bytes are read from an output
 * qorin_rpc_robot_safety_limit_joint_angle_set(cbox_id, robot_id, 0, -90.0, 90.0);
 * qorin_rpc_robot_safety_limit_plane_create_with_norm_distance(cbox_id, robot_id, 0.0, 0.0, 1.0, 0.0, floor);
 * qorin_rpc_robot_safety_limit_switch_set(cbox_id, robot_id, QORIN_SWITCH_ON);
 * // the robot is kept within
 * qorin_rpc_robot_safety_limit_plane_remove(cbox_id, robot_id, floor[0]);
 * @endcode
 *
 * Everything here is a command: system.h tells what commands have in common. Each returns as every command does. The
 * client judges nothing: ids, ranges and the order of limits are the control box's, which answers among others
 *   - QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID and QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE,
 *   - QORIN_API_RESULT_ERROR_ROBOT_SERVO_ON_STATE where the servo must be off,
 *   - QORIN_API_RESULT_WARNING_ROBOT_WORK_SPACE_ALREADY_DELETED for deleting what is gone.
 *
 * Angles are in degrees. Where no unit is told, the control box defines it.
 */
#ifndef QORIN_ROBOT_SAFETY_LIMIT_H
#define QORIN_ROBOT_SAFETY_LIMIT_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/* Joints and TCP. */

/**
 * Switches the safety limits of a robot.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id      robot id, 0 or 1.
 * @param limit_switch  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                   QORIN_SWITCH limit_switch);

/**
 * Sets the range of a joint.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param joint     joint, 0 for the first.
 * @param angle_1   one end of the range, in degrees.
 * @param angle_2   other end of the range, in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_joint_angle_set(unsigned int cbox_id, unsigned int robot_id,
                                                                        unsigned int joint, double angle_1,
                                                                        double angle_2);

/**
 * Sets the largest speed of a joint.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param joint      joint, 0 for the first.
 * @param speed_max  largest speed, in degrees per second.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_joint_speed_max_set(unsigned int cbox_id, unsigned int robot_id,
                                                                            unsigned int joint, double speed_max);

/**
 * Sets the largest acceleration of a joint.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param joint     joint, 0 for the first.
 * @param acc_max   largest acceleration, in degrees per second squared.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_joint_acc_max_set(unsigned int cbox_id, unsigned int robot_id,
                                                                          unsigned int joint, double acc_max);

/**
 * Sets the largest speed of the TCP.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param speed_max  largest speed.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_speed_max_set(unsigned int cbox_id, unsigned int robot_id,
                                                                          double speed_max);

/**
 * Sets the largest acceleration of the TCP.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param acc_max   largest acceleration.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_acc_max_set(unsigned int cbox_id, unsigned int robot_id,
                                                                        double acc_max);

/* Reduced mode. */

/**
 * Sets the speeds that are allowed in reduced mode.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param velocity_1  first limit; the control box defines it.
 * @param velocity_2  second limit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_velocity_in_reduced_mode_set(unsigned int cbox_id,
                                                                                     unsigned int robot_id,
                                                                                     double velocity_1,
                                                                                     double velocity_2);

/**
 * Sets the force at the TCP that counts as a collision in reduced mode.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param force     threshold.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_collision_detection_tcp_force_in_reduced_mode_set(
    unsigned int cbox_id, unsigned int robot_id, double force);

/**
 * Sets the joint torques that count as a collision in reduced mode.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param count     number of joints.
 * @param torque    [count] threshold of each joint; 16 doubles are read whatever the count says.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_collision_detection_torque_in_reduced_mode_set(
    unsigned int cbox_id, unsigned int robot_id, unsigned int count, const double* torque);

/* Work space planes. */

/**
 * Creates a plane from its normal and one of its points.
 *
 * The control box answers QORIN_API_RESULT_ERROR_ROBOT_VECTOR_SIZE_ZERO for a normal of zeroes and
 * QORIN_API_RESULT_ERROR_ROBOT_WORK_SPACE_IS_FULL when all planes are taken. Read back as normal and distance by
 * qorin_rpc_robot_safety_limit_plane_norm_distance_get(); the origin is not kept.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id       robot id, 0 or 1.
 * @param norm_x         normal along x.
 * @param norm_y         normal along y.
 * @param norm_z         normal along z.
 * @param origin_x       point of the plane along x.
 * @param origin_y       point of the plane along y.
 * @param origin_z       point of the plane along z.
 * @param[out] plane_id  plane id. Written whatever the control box answers: 0 when it gave none.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_plane_create_with_norm_origin(
    unsigned int cbox_id, unsigned int robot_id, double norm_x, double norm_y, double norm_z, double origin_x,
    double origin_y, double origin_z, unsigned int* plane_id);

/**
 * Creates a plane from its normal and its distance: the points p with normal * p = distance.
 *
 * The control box answers QORIN_API_RESULT_ERROR_ROBOT_VECTOR_SIZE_ZERO for a normal of zeroes and
 * QORIN_API_RESULT_ERROR_ROBOT_WORK_SPACE_IS_FULL when all planes are taken.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id       robot id, 0 or 1.
 * @param norm_x         normal along x.
 * @param norm_y         normal along y.
 * @param norm_z         normal along z.
 * @param distance       distance of the plane from the origin along a normal of length 1: the constant term of its
 *                       equation, normal * p + constant = 0, with the sign turned. The getter gives it back as it was
 *                       set.
 * @param[out] plane_id  plane id. Written whatever the control box answers: 0 when it gave none.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_plane_create_with_norm_distance(unsigned int cbox_id,
                                                                                        unsigned int robot_id,
                                                                                        double norm_x, double norm_y,
                                                                                        double norm_z, double distance,
                                                                                        unsigned int* plane_id);

/**
 * Removes a plane. Its id is free afterwards.
 *
 * The control box answers QORIN_API_RESULT_ERROR_ROBOT_INVAILD_WORK_SPACE_ID for an id that holds no plane and
 * QORIN_API_RESULT_WARNING_ROBOT_WORK_SPACE_ALREADY_DELETED for one that is gone.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param plane_id  plane id, 0 to 9.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_plane_remove(unsigned int cbox_id, unsigned int robot_id,
                                                                     unsigned int plane_id);

/**
 * Removes all planes of a robot.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_plane_remove_all(unsigned int cbox_id, unsigned int robot_id);

/* Bounding shape of the TCP. */

/**
 * Switches the bounding shape.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id      robot id, 0 or 1.
 * @param shape_switch  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_bounding_shape_switch_set(unsigned int cbox_id,
                                                                                      unsigned int robot_id,
                                                                                      QORIN_SWITCH shape_switch);

/**
 * Deletes the bounding shape.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_bounding_shape_delete(unsigned int cbox_id,
                                                                                  unsigned int robot_id);

/**
 * Makes a box the bounding shape.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param coordinate  frame of reference.
 * @param value_1     first of 24 numbers whose meaning the control box defines.
 * @param value_2     number 2 of these.
 * @param value_3     number 3 of these.
 * @param value_4     number 4 of these.
 * @param value_5     number 5 of these.
 * @param value_6     number 6 of these.
 * @param value_7     number 7 of these.
 * @param value_8     number 8 of these.
 * @param value_9     number 9 of these.
 * @param value_10    number 10 of these.
 * @param value_11    number 11 of these.
 * @param value_12    number 12 of these.
 * @param value_13    number 13 of these.
 * @param value_14    number 14 of these.
 * @param value_15    number 15 of these.
 * @param value_16    number 16 of these.
 * @param value_17    number 17 of these.
 * @param value_18    number 18 of these.
 * @param value_19    number 19 of these.
 * @param value_20    number 20 of these.
 * @param value_21    number 21 of these.
 * @param value_22    number 22 of these.
 * @param value_23    number 23 of these.
 * @param value_24    number 24 of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_bounding_box_set(
    unsigned int cbox_id, unsigned int robot_id, QORIN_REF_COORDINATE coordinate, double value_1, double value_2,
    double value_3, double value_4, double value_5, double value_6, double value_7, double value_8, double value_9,
    double value_10, double value_11, double value_12, double value_13, double value_14, double value_15,
    double value_16, double value_17, double value_18, double value_19, double value_20, double value_21,
    double value_22, double value_23, double value_24);

/**
 * Makes a sphere the bounding shape.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param coordinate  frame of reference.
 * @param value_1     first of four numbers whose meaning the control box defines.
 * @param value_2     second of these.
 * @param value_3     third of these.
 * @param value_4     fourth of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_bounding_sphere_set(unsigned int cbox_id,
                                                                                unsigned int robot_id,
                                                                                QORIN_REF_COORDINATE coordinate,
                                                                                double value_1, double value_2,
                                                                                double value_3, double value_4);

/**
 * Makes a cylinder the bounding shape.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param coordinate  frame of reference.
 * @param value_1     first of eight numbers whose meaning the control box defines.
 * @param value_2     second of these.
 * @param value_3     third of these.
 * @param value_4     fourth of these.
 * @param value_5     fifth of these.
 * @param value_6     sixth of these.
 * @param value_7     seventh of these.
 * @param value_8     eighth of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_bounding_cylinder_set(
    unsigned int cbox_id, unsigned int robot_id, QORIN_REF_COORDINATE coordinate, double value_1, double value_2,
    double value_3, double value_4, double value_5, double value_6, double value_7, double value_8);

/**
 * Makes a cone the bounding shape.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param coordinate  frame of reference.
 * @param value_1     first of eight numbers whose meaning the control box defines.
 * @param value_2     second of these.
 * @param value_3     third of these.
 * @param value_4     fourth of these.
 * @param value_5     fifth of these.
 * @param value_6     sixth of these.
 * @param value_7     seventh of these.
 * @param value_8     eighth of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_safety_limit_tcp_bounding_cone_set(
    unsigned int cbox_id, unsigned int robot_id, QORIN_REF_COORDINATE coordinate, double value_1, double value_2,
    double value_3, double value_4, double value_5, double value_6, double value_7, double value_8);

QORIN_API_C_END

#endif
