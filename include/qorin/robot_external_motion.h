/**
 * @file robot_external_motion.h
 * Motion from outside the queue: the external profiler, external move, conveyors.
 *
 * The external profiler takes a stream of points at a fixed period, external move single targets, and conveyor mode
 * makes a robot go along with a belt. What is set of the profiler and of conveyor mode shows in the status mirror; the
 * getters are in robot_external_move_status.h. The control box is asked for the switches of external move.
 *
 * @code
 * const double target[16] = {10.0, 0.0, 90.0, 0.0, 90.0, 0.0}; // 16 doubles are read
 * qorin_rpc_robot_ext_profiler_period_set(cbox_id, robot_id, 4);
 * qorin_rpc_robot_ext_profiler_switch_set(cbox_id, robot_id, QORIN_SWITCH_ON);
 * while (qorin_rpc_robot_ext_profiler_joint_add(cbox_id, robot_id, 6, target) ==
 *        QORIN_API_RESULT_ERROR_ROBOT_EXT_PROFILER_BUF_FULL)
 * {
 *     // the buffer is full: wait a little, and send the same point again
 * }
 * qorin_rpc_robot_ext_profiler_switch_set(cbox_id, robot_id, QORIN_SWITCH_OFF);
 * @endcode
 *
 * Everything here is a command: system.h tells what commands have in common. Each returns as every command does. An add
 * call is one request and its reply, which bounds the rate at which one thread can feed points; the client queues
 * nothing and repeats nothing. The control box answers among others QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID and
 * QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE.
 *
 * Angles are in degrees, positions in the unit of the status mirror. Where no unit is told, the control box defines it.
 */
#ifndef QORIN_ROBOT_EXTERNAL_MOTION_H
#define QORIN_ROBOT_EXTERNAL_MOTION_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/* External profiler. */

/**
 * Switches the external profiler.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id         robot id, 0 or 1.
 * @param profiler_switch  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_profiler_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                   QORIN_SWITCH profiler_switch);

/**
 * Sets the period of the points.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param period    period in milliseconds. The control box holds it in control cycles.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_profiler_period_set(unsigned int cbox_id, unsigned int robot_id,
                                                                   unsigned int period);

/**
 * Tells whether the poses are those of the flange or of the TCP.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param pose_type  QORIN_POSE_TYPE_FLANGE or QORIN_POSE_TYPE_TCP.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_profiler_tcp_type_set(unsigned int cbox_id, unsigned int robot_id,
                                                                     QORIN_POSE_TYPE pose_type);

/**
 * Adds a pose with Euler angles.
 *
 * The control box answers QORIN_API_RESULT_ERROR_ROBOT_EXT_PROFILER_BUF_FULL when points come faster than it takes
 * them; the point is to be sent again then.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param x         position along x.
 * @param y         position along y.
 * @param z         position along z.
 * @param rx        rotation about x, in degrees.
 * @param ry        rotation about y, in degrees.
 * @param rz        rotation about z, in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_profiler_pos_ort_euler_add(unsigned int cbox_id, unsigned int robot_id,
                                                                          double x, double y, double z, double rx,
                                                                          double ry, double rz);

/**
 * Adds a pose with a quaternion.
 *
 * The control box answers QORIN_API_RESULT_ERROR_ROBOT_EXT_PROFILER_BUF_FULL when points come faster than it takes
 * them; the point is to be sent again then.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id      robot id, 0 or 1.
 * @param x             position along x.
 * @param y             position along y.
 * @param z             position along z.
 * @param quaternion_1  first number of the orientation's quaternion; the control box defines the order.
 * @param quaternion_2  second of these.
 * @param quaternion_3  third of these.
 * @param quaternion_4  fourth of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_profiler_pos_ort_quat_add(unsigned int cbox_id, unsigned int robot_id,
                                                                         double x, double y, double z,
                                                                         double quaternion_1, double quaternion_2,
                                                                         double quaternion_3, double quaternion_4);

/**
 * Adds a point in joint space.
 *
 * The control box answers QORIN_API_RESULT_ERROR_ROBOT_EXT_PROFILER_BUF_FULL when points come faster than it takes
 * them; the point is to be sent again then.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param count     number of joints.
 * @param angles    [count] angle of each joint, in degrees; 16 doubles are read whatever the count says.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_profiler_joint_add(unsigned int cbox_id, unsigned int robot_id,
                                                                  unsigned int count, const double* angles);

/* External move. */

/**
 * Switches external move.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param ext_move  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_move_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                               QORIN_SWITCH ext_move);

/**
 * Asks the control box for the switch of external move.
 *
 * The local form without a control box id tells the client's record instead, which is always off.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id       robot id, 0 or 1.
 * @param[out] ext_move  on or off.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_move_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                               QORIN_SWITCH* ext_move);

/**
 * Sets the stop mode of external move.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param stop_mode  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_move_stop_mode_set(unsigned int cbox_id, unsigned int robot_id,
                                                                  QORIN_SWITCH stop_mode);

/**
 * Asks the control box for the stop mode of external move.
 *
 * The local form without a control box id tells the client's record instead, which is always on.
 *
 * @param cbox_id         control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id        robot id, 0 or 1.
 * @param[out] stop_mode  on or off.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_move_stop_mode_get(unsigned int cbox_id, unsigned int robot_id,
                                                                  QORIN_SWITCH* stop_mode);

/**
 * Adds a target with Euler angles.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param pose_type  QORIN_POSE_TYPE_FLANGE or QORIN_POSE_TYPE_TCP.
 * @param value_1    first of seven numbers whose meaning the control box defines.
 * @param value_2    second of these.
 * @param value_3    third of these.
 * @param value_4    fourth of these.
 * @param value_5    fifth of these.
 * @param value_6    sixth of these.
 * @param value_7    seventh of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_move_pos_ort_euler_add(unsigned int cbox_id, unsigned int robot_id,
                                                                      QORIN_POSE_TYPE pose_type, double value_1,
                                                                      double value_2, double value_3, double value_4,
                                                                      double value_5, double value_6, double value_7);

/**
 * Adds a target with a quaternion.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param pose_type  QORIN_POSE_TYPE_FLANGE or QORIN_POSE_TYPE_TCP.
 * @param value_1    first of eight numbers whose meaning the control box defines.
 * @param value_2    second of these.
 * @param value_3    third of these.
 * @param value_4    fourth of these.
 * @param value_5    fifth of these.
 * @param value_6    sixth of these.
 * @param value_7    seventh of these.
 * @param value_8    eighth of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_move_pos_ort_quat_add(unsigned int cbox_id, unsigned int robot_id,
                                                                     QORIN_POSE_TYPE pose_type, double value_1,
                                                                     double value_2, double value_3, double value_4,
                                                                     double value_5, double value_6, double value_7,
                                                                     double value_8);

/**
 * Moves the joints to a target.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param count     number of joints.
 * @param angles    [count] angle of each joint, in degrees; 16 doubles are read whatever the count says.
 * @param value     a number whose meaning the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_move_joint(unsigned int cbox_id, unsigned int robot_id,
                                                          unsigned int count, const double* angles, double value);

/* Conveyor. */

/**
 * Starts conveyor mode: the robot goes along with the belt.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_conveyor_mode_start(unsigned int cbox_id, unsigned int robot_id);

/**
 * Ends conveyor mode.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_conveyor_mode_end(unsigned int cbox_id, unsigned int robot_id);

/**
 * Switches the use of the belt's encoder.
 *
 * @param cbox_id         control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id        robot id, 0 or 1.
 * @param encoder_switch  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_conveyor_encoder_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                       QORIN_SWITCH encoder_switch);

/**
 * Describes the belt's encoder.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param type      a QORIN_CONVEYOR_ENCODER_TYPE value.
 * @param value_1   first of three numbers whose meaning the control box defines.
 * @param value_2   second of these.
 * @param value_3   third of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_conveyor_encoder_info_set(unsigned int cbox_id, unsigned int robot_id,
                                                                     QORIN_CONVEYOR_ENCODER_TYPE type, double value_1,
                                                                     double value_2, int value_3);

/**
 * Sets the pose from which the offset of the belt is counted.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param x         position along x.
 * @param y         position along y.
 * @param z         position along z.
 * @param rx        rotation about x, in degrees.
 * @param ry        rotation about y, in degrees.
 * @param rz        rotation about z, in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_conveyor_offset_start_pose_set(unsigned int cbox_id, unsigned int robot_id,
                                                                          double x, double y, double z, double rx,
                                                                          double ry, double rz);

QORIN_API_C_END

#endif
