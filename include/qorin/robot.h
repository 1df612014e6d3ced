/**
 * @file robot.h
 * Robots: their creation, their Denavit-Hartenberg tables, and what the client itself keeps of them.
 *
 * A robot stands on the control box, which gives it its id. Beside that the library keeps a record of each robot that
 * this process has created or attached, with an open kinematics module for computations in the client. Robot ids of the
 * getters and conversions are judged by it: without a record they answer QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID, and
 * so does an id above 1. The record's key is the robot id alone: robots of two control boxes that have the same id
 * share a record. A record lives until qorin_rpc_robot_destroy() or the end of the process; a lost link does not touch
 * it. Its module is closed ahead of what was there before the robot's creation, and computations then answer as for an
 * unknown robot.
 *
 * Commands. What is told to be a command blocks, locks, logs, reads and writes as system.h says. Creation and
 * destruction change the records under the call lock; getters and conversions read them without a lock. So an
 * application must not destroy a robot while another thread asks for it.
 *
 * Getters. All else answers from the client: no lock, no line, no traffic, no blocking. Outputs stay untouched unless
 * the result is QORIN_API_RESULT_OK; an output pointer must not be null. Functions without cbox_id are local forms, for
 * the control box that was asked last, by any thread.
 *
 * Denavit-Hartenberg tables are four arrays with one double per joint, from the base to the flange. Their order is that
 * of the kinematics module, which says what they mean; in the module that comes with the library they are theta
 * (degrees), d (millimetres), a (millimetres) and alpha (degrees). As many doubles are used as the module has joints,
 * at most 6.
 */
#ifndef QORIN_ROBOT_H
#define QORIN_ROBOT_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/**
 * Makes the control software create a robot, and the client its record.
 *
 * A command. When the control box has created the robot, the client searches the directory at `client.kinematics_path`
 * of config.ini for a module that serves `model`, waits 10 milliseconds for a status frame with the new robot, and
 * hands the Denavit-Hartenberg table of that frame to the module. A robot id that has a record keeps it and its module,
 * also with another model, and gets the table anew.
 *
 * Modules are code of this process. Without the key the working directory is searched, and a path with neither slash
 * nor dot in front is taken from there as well: give the key, as a path from the root, to a directory that trusted
 * users alone can write to.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param model          model of the robot. Models ahead of QORIN_ROBOT_MODEL_DONOT_USE_ARM_BELOW need no module.
 * @param text           text for the control software, which defines its meaning; 128 bytes are read. May be null.
 * @param value          value for the control software, which defines its meaning.
 * @param[out] robot_id  the robot's id, from the reply; only of use when the result is QORIN_API_RESULT_OK. 128 bytes
 *                       are read from here. May be null.
 * @return as every command;
 *         QORIN_API_RESULT_ROBOT_CLIENT_KINEMATICS_MODULE_LOAD_FAILURE when no module serves the model or the directory
 *         cannot be searched: the robot then stands on the control box and has no record here.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_create(unsigned int cbox_id, QORIN_ROBOT_MODEL model, const char* text,
                                                  unsigned int value, unsigned int* robot_id);

/**
 * Makes the client's record of a robot that stands on the control box already: one that another program has created, or
 * this one before it was restarted. Getters and conversions then answer for it.
 *
 * For the control box that was asked last. Neither sends anything nor needs the control: model and Denavit-Hartenberg
 * table are those of the status mirror. Changes the records under the call lock, so it waits for a command under way in
 * another thread. A robot id that has a record keeps it and its module, and gets the table anew. The robot itself is no
 * more than before: qorin_rpc_robot_destroy() is for who created it.
 *
 * @param robot_id  robot, 0 or 1.
 * @return QORIN_API_RESULT_OK;
 *         QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the control box has no such robot or none is connected;
 *         QORIN_API_RESULT_ROBOT_CLIENT_KINEMATICS_MODULE_LOAD_FAILURE as qorin_rpc_robot_create().
 */
QORIN_API QORIN_API_RESULT qorin_robot_attach(unsigned int robot_id);

/**
 * Makes the control software destroy a robot; when it has, the client's record goes and its module is closed.
 *
 * A command.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id from qorin_rpc_robot_create().
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_destroy(unsigned int cbox_id, unsigned int robot_id);

/**
 * Replaces the Denavit-Hartenberg table of a robot: on the control box, and when that has accepted it, in the client's
 * kinematics module. A robot without a record here is set on the control box alone.
 *
 * A command: 128 bytes are read from each array, a null pointer counts as zeroes. The call line shows no values.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id     robot id from qorin_rpc_robot_create().
 * @param count        number of joints, for the control box. The client takes as many as its module has.
 * @param parameter_1  [joints] first array of the table; theta in degrees for the module that comes with the library.
 * @param parameter_2  [joints] second array; d in millimetres.
 * @param parameter_3  [joints] third array; a in millimetres.
 * @param parameter_4  [joints] fourth array; alpha in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_kinematics_dh_parameter_set(unsigned int cbox_id, unsigned int robot_id,
                                                                       unsigned int count, const double* parameter_1,
                                                                       const double* parameter_2,
                                                                       const double* parameter_3,
                                                                       const double* parameter_4);

/**
 * The Denavit-Hartenberg table of a robot, as the client's kinematics module has it. The control box is not asked.
 *
 * @param cbox_id           control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id          robot id, 0 or 1.
 * @param count             not read: each array takes as many doubles as the module has joints, 6 for the module that
 *                          comes with the library, none with default kinematics.
 * @param[out] parameter_1  [joints] first array; theta in degrees for the module that comes with the library.
 * @param[out] parameter_2  [joints] second array; d in millimetres.
 * @param[out] parameter_3  [joints] third array; a in millimetres.
 * @param[out] parameter_4  [joints] fourth array; alpha in degrees.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 *         QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_kinematics_dh_parameter_get(unsigned int cbox_id, unsigned int robot_id,
                                                                       unsigned int count, double* parameter_1,
                                                                       double* parameter_2, double* parameter_3,
                                                                       double* parameter_4);

/**
 * Automatic adjustment of motions, as the client's record has it: always off, whatever the control box does.
 *
 * @param cbox_id           control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id          robot id, 0 or 1.
 * @param[out] auto_adjust  QORIN_SWITCH_OFF.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 *         QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_motion_auto_adjust_swith_get(unsigned int cbox_id, unsigned int robot_id,
                                                                        QORIN_SWITCH* auto_adjust);

/**
 * Not supported; does nothing.
 *
 * @return QORIN_API_RESULT_ERROR_NO_SUPPORT.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_info_initialze(void);

/**
 * Local form of qorin_rpc_robot_kinematics_dh_parameter_get().
 *
 * @param robot_id          robot id, 0 or 1.
 * @param count             not read.
 * @param[out] parameter_1  [joints] first array, one double per joint of the module.
 * @param[out] parameter_2  [joints] second array.
 * @param[out] parameter_3  [joints] third array.
 * @param[out] parameter_4  [joints] fourth array.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_robot_kinematics_dh_parameter_get(unsigned int robot_id, unsigned int count,
                                                                   double* parameter_1, double* parameter_2,
                                                                   double* parameter_3, double* parameter_4);

/**
 * Local form of qorin_rpc_robot_motion_auto_adjust_swith_get().
 *
 * @param robot_id          robot id, 0 or 1.
 * @param[out] auto_adjust  QORIN_SWITCH_OFF.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_robot_motion_auto_adjust_swith_get(unsigned int robot_id, QORIN_SWITCH* auto_adjust);

/**
 * External move, as the client's record has it: always off. qorin_rpc_robot_ext_move_switch_get() asks the control box.
 *
 * @param robot_id       robot id, 0 or 1, below the robot count of the status mirror.
 * @param[out] ext_move  QORIN_SWITCH_OFF.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_robot_ext_move_switch_get(unsigned int robot_id, QORIN_SWITCH* ext_move);

/**
 * Stop mode of external move, as the client's record has it: always on. qorin_rpc_robot_ext_move_stop_mode_get() asks
 * the control box.
 *
 * @param robot_id        robot id, 0 or 1, below the robot count of the status mirror.
 * @param[out] stop_mode  QORIN_SWITCH_ON.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_robot_ext_move_stop_mode_get(unsigned int robot_id, QORIN_SWITCH* stop_mode);

/**
 * Dry run of the dynamics calibration: never in a client. qorin_rpc_robot_dynamics_dry_run_state_get() asks the control
 * box.
 *
 * @param robot_id      robot id, 0 or 1.
 * @param[out] dry_run  QORIN_SWITCH_OFF.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_robot_dynamics_dry_run_state_get(unsigned int robot_id, QORIN_SWITCH* dry_run);

/**
 * Judges the robot id and gives no angle: recordings are on the control box, which
 * qorin_rpc_robot_recording_angle_start_get() asks.
 *
 * @param robot_id    robot id, 0 or 1.
 * @param buffer_id   not read.
 * @param joint       not read.
 * @param[out] angle  not written.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_robot_recording_angle_start_get(unsigned int robot_id, unsigned int buffer_id,
                                                                 unsigned int joint, double* angle);

/**
 * As qorin_robot_recording_angle_start_get(); qorin_rpc_robot_recording_angle_end_get() asks the control box.
 *
 * @param robot_id    robot id, 0 or 1.
 * @param buffer_id   not read.
 * @param joint       not read.
 * @param[out] angle  not written.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_robot_recording_angle_end_get(unsigned int robot_id, unsigned int buffer_id,
                                                               unsigned int joint, double* angle);

/**
 * As qorin_robot_recording_angle_start_get(); qorin_rpc_robot_recording_angle_start_from_file_get() asks the control
 * box.
 *
 * @param robot_id    robot id, 0 or 1.
 * @param file        not read.
 * @param joint       not read.
 * @param[out] angle  not written.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_robot_recording_angle_start_from_file_get(unsigned int robot_id, const char* file,
                                                                           unsigned int joint, double* angle);

/**
 * As qorin_robot_recording_angle_start_get(); qorin_rpc_robot_recording_angle_end_from_file_get() asks the control box.
 *
 * @param robot_id    robot id, 0 or 1.
 * @param file        not read.
 * @param joint       not read.
 * @param[out] angle  not written.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_robot_recording_angle_end_from_file_get(unsigned int robot_id, const char* file,
                                                                         unsigned int joint, double* angle);

/**
 * A number for the first byte of a text. Local; does not block. Nothing in the library calls it.
 *
 * @param text  a text, not null; its first byte is read.
 * @return the byte as an unsigned number, with 56 added when it is 200 or more.
 */
QORIN_API unsigned int hashFunc(const char* text);

QORIN_API_C_END

#endif
