/**
 * @file robot_external_move_status.h
 * Motion from outside: external profiler and conveyor tracking.
 *
 * Getters over the status mirror: robot_status.h tells what they have in common and when a robot exists.
 */
#ifndef QORIN_ROBOT_EXTERNAL_MOVE_STATUS_H
#define QORIN_ROBOT_EXTERNAL_MOVE_STATUS_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/**
 * External profiler of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] profiler_switch  on or off.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_profiler_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                   QORIN_SWITCH* profiler_switch);

/**
 * Period of the points of the external profiler.
 *
 * The control box counts the period in control cycles. The length of a cycle is taken on the first successful call of
 * the process and then kept, for all control boxes.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] period  period in milliseconds, rounded, halves up.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_profiler_period_get(unsigned int cbox_id, unsigned int robot_id,
                                                                   unsigned int* period);

/**
 * Size of the point buffer of the external profiler.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] size  size of the buffer, as the control box counts it.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_profiler_buffer_size_get(unsigned int cbox_id, unsigned int robot_id,
                                                                        unsigned int* size);

/**
 * What the poses given to the external profiler are poses of.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] type  flange or TCP.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_ext_profiler_tcp_type_get(unsigned int cbox_id, unsigned int robot_id,
                                                                     QORIN_POSE_TYPE* type);

/**
 * Conveyor tracking of a robot.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] mode  on or off.
 * @return as every robot getter.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_conveyor_mode_get(unsigned int cbox_id, unsigned int robot_id,
                                                             QORIN_CONVEYOR_MODE* mode);

/**
 * Whether conveyor tracking uses an encoder.
 *
 * The switch is one for the control box.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param[out] encoder_switch  on or off.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot is not known.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_conveyor_encoder_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                       QORIN_SWITCH* encoder_switch);

/**
 * The same as qorin_rpc_robot_ext_profiler_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] profiler_switch  on or off.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_ext_profiler_switch_get(unsigned int robot_id, QORIN_SWITCH* profiler_switch);

/**
 * The same as qorin_rpc_robot_ext_profiler_period_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] period  period in milliseconds, rounded, halves up.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_ext_profiler_period_get(unsigned int robot_id, unsigned int* period);

/**
 * The same as qorin_rpc_robot_ext_profiler_buffer_size_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] size  size of the buffer, as the control box counts it.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_ext_profiler_buffer_size_get(unsigned int robot_id, unsigned int* size);

/**
 * The same as qorin_rpc_robot_ext_profiler_tcp_type_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] type  flange or TCP.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_ext_profiler_tcp_type_get(unsigned int robot_id, QORIN_POSE_TYPE* type);

/**
 * The same as qorin_rpc_robot_conveyor_mode_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] mode  on or off.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_conveyor_mode_get(unsigned int robot_id, QORIN_CONVEYOR_MODE* mode);

/**
 * The same as qorin_rpc_robot_conveyor_encoder_switch_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] encoder_switch  on or off.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_conveyor_encoder_switch_get(unsigned int robot_id, QORIN_SWITCH* encoder_switch);

QORIN_API_C_END

#endif
