/**
 * @file robot_recording.h
 * Recordings of a robot's motion: taken, trimmed, resampled, kept in a file, played back.
 *
 * A recording is in a buffer on the control box, which gives it an id. Files are the control box's as well; the client
 * sees neither.
 *
 * @code
 * unsigned int id[32] = {0}; // 128 bytes are read from an output
 * unsigned int value[32] = {0};
 * qorin_rpc_robot_recording_create(cbox_id, robot_id, id);
 * const unsigned int buffer = id[0];
 * qorin_rpc_robot_recording_start(cbox_id, robot_id);
 * // the robot is moved by hand
 * qorin_rpc_robot_recording_end(cbox_id, robot_id, buffer);
 * qorin_rpc_robot_recording_trim(cbox_id, robot_id, buffer); // may be left out
 * // the robot is brought to where the recording starts
 * qorin_rpc_robot_recording_playback(cbox_id, robot_id, buffer, value);
 * qorin_rpc_robot_recording_destroy(cbox_id, robot_id, buffer);
 * @endcode
 *
 * Everything here is a command: system.h tells what commands have in common. Each returns as every command does. The
 * control box answers among others
 *   - QORIN_API_RESULT_ROBOT_INVALID_RECORDING_BUFFER_ID for a buffer that it does not know,
 *   - QORIN_API_RESULT_ERROR_ROBOT_RECORDING_EMPTY_BUFFER for one that holds nothing,
 *   - QORIN_API_RESULT_ERROR_ROBOT_RECORDING_INFO_MODULUS_FAILURE, ..._SPEED_FACTOR_OUT_OF_RANGE,
 *     ..._INTERPOLATION_FAILURE and ..._INVERSE_FAILURE for data that it cannot use.
 *
 * The event QORIN_EVENT_SUBGRP_NOTIFICATION_ROBOT_RECORDING_TIME_OUT tells that a recording ran out of its time. Angles
 * are in degrees.
 */
#ifndef QORIN_ROBOT_RECORDING_H
#define QORIN_ROBOT_RECORDING_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/* Buffers. */

/**
 * Creates an empty recording buffer.
 *
 * @param cbox_id         control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id        robot id, 0 or 1.
 * @param[out] buffer_id  id of the new buffer.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_recording_create(unsigned int cbox_id, unsigned int robot_id,
                                                            unsigned int* buffer_id);

/**
 * Creates a recording buffer from a file.
 *
 * @param cbox_id         control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id        robot id, 0 or 1.
 * @param file            name of a file of the control box; 128 bytes are read.
 * @param[out] buffer_id  id of the new buffer.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_recording_create_from_file(unsigned int cbox_id, unsigned int robot_id,
                                                                      const char* file, unsigned int* buffer_id);

/**
 * Destroys a recording buffer.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param buffer_id  recording buffer id.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_recording_destroy(unsigned int cbox_id, unsigned int robot_id,
                                                             unsigned int buffer_id);

/**
 * Gives back the memory that a buffer does not use.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param buffer_id  recording buffer id.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_recording_buffer_memory_optimize(unsigned int cbox_id, unsigned int robot_id,
                                                                            unsigned int buffer_id);

/* Recording. */

/**
 * Starts recording.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_ALREADY_RECORDING_RUNNING_STATE while one runs.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_recording_start(unsigned int cbox_id, unsigned int robot_id);

/**
 * Ends recording into a buffer.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_ALREADY_RECORDING_STOP_STATE when none runs.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param buffer_id  recording buffer id.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_recording_end(unsigned int cbox_id, unsigned int robot_id,
                                                         unsigned int buffer_id);

/**
 * Ends recording into a buffer without the control box's check of what was recorded.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param buffer_id  recording buffer id.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_recording_end_without_error_check(unsigned int cbox_id,
                                                                             unsigned int robot_id,
                                                                             unsigned int buffer_id);

/* Use. */

/**
 * Trims a recording. The control box decides what goes.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param buffer_id  recording buffer id.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_recording_trim(unsigned int cbox_id, unsigned int robot_id,
                                                          unsigned int buffer_id);

/**
 * Resamples a recording.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id       robot id, 0 or 1.
 * @param buffer_id      recording buffer id.
 * @param interpolation  QORIN_RECORDING_INTERPOLATION_TCP or QORIN_RECORDING_INTERPOLATION_JOINT: the space of the
 *                       resampling.
 * @param value_1        a number whose meaning the control box defines.
 * @param value_2        another such number.
 * @param[out] result    a number whose meaning the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_recording_interpolate(unsigned int cbox_id, unsigned int robot_id,
                                                                 unsigned int buffer_id,
                                                                 QORIN_RECORDING_INTERPOLATION interpolation,
                                                                 unsigned int value_1, double value_2,
                                                                 unsigned int* result);

/**
 * Plays a recording back.
 *
 * The control box answers QORIN_API_RESULT_ROBOT_TARGET_START_POSE_NOT_MATCHED when the robot does not stand at its
 * start; the start angles below tell where that is.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id     robot id, 0 or 1.
 * @param buffer_id    recording buffer id.
 * @param[out] result  a number whose meaning the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_recording_playback(unsigned int cbox_id, unsigned int robot_id,
                                                              unsigned int buffer_id, unsigned int* result);

/**
 * Saves a recording to a file.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param buffer_id  recording buffer id.
 * @param file       name of a file of the control box; 128 bytes are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_recording_file_save(unsigned int cbox_id, unsigned int robot_id,
                                                               unsigned int buffer_id, const char* file);

/* Angles. */

/**
 * Asks for the angle of a joint at the start of a recording.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param buffer_id   recording buffer id.
 * @param joint       joint, 0 for the first.
 * @param[out] angle  angle in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_recording_angle_start_get(unsigned int cbox_id, unsigned int robot_id,
                                                                     unsigned int buffer_id, unsigned int joint,
                                                                     double* angle);

/**
 * Asks for the angle of a joint at the end of a recording.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param buffer_id   recording buffer id.
 * @param joint       joint, 0 for the first.
 * @param[out] angle  angle in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_recording_angle_end_get(unsigned int cbox_id, unsigned int robot_id,
                                                                   unsigned int buffer_id, unsigned int joint,
                                                                   double* angle);

/**
 * Asks for the angle of a joint at the start of a recording in a file.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param file        name of a file of the control box; 128 bytes are read.
 * @param joint       joint, 0 for the first.
 * @param[out] angle  angle in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_recording_angle_start_from_file_get(unsigned int cbox_id,
                                                                               unsigned int robot_id, const char* file,
                                                                               unsigned int joint, double* angle);

/**
 * Asks for the angle of a joint at the end of a recording in a file.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot id, 0 or 1.
 * @param file        name of a file of the control box; 128 bytes are read.
 * @param joint       joint, 0 for the first.
 * @param[out] angle  angle in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_recording_angle_end_from_file_get(unsigned int cbox_id,
                                                                             unsigned int robot_id, const char* file,
                                                                             unsigned int joint, double* angle);

QORIN_API_C_END

#endif
