/**
 * @file motion_command_queue.h
 * Motion commands: their life, the queue, and what all kinds of them have: velocity profile, blending, start
 * condition, I/O.
 *
 * motion_command.h tells what motion commands are and what these functions have in common.
 */
#ifndef QORIN_MOTION_COMMAND_QUEUE_H
#define QORIN_MOTION_COMMAND_QUEUE_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/* Life of a motion command. */

/**
 * Creates a motion command for joint space: start and end angles for each joint.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param[out] command_id  id of the new motion command.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_joint_create(unsigned int cbox_id, unsigned int* command_id);

/**
 * Creates a motion command for the TCP: start, mid and end positions, start and end orientations.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param[out] command_id  id of the new motion command.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_create(unsigned int cbox_id, unsigned int* command_id);

/**
 * Creates a motion command for the TCP that has the parameters of welding as well: weave and arc sensing.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param[out] command_id  id of the new motion command.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_create(unsigned int cbox_id,
                                                                             unsigned int* command_id);

/**
 * Copies a motion command with all its parameters.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param command_id    motion command id.
 * @param[out] copy_id  id under which the control box keeps the copy.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_deep_copy(unsigned int cbox_id, unsigned int command_id,
                                                              unsigned int* copy_id);

/**
 * Destroys a motion command. Its id is not known afterwards.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_destroy(unsigned int cbox_id, unsigned int command_id);

/**
 * Destroys all motion commands of the control box.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_destroy_all(unsigned int cbox_id);

/**
 * Tells which robot is to run a motion command.
 *
 * To be called before any parameter of the robot's is set; those answer
 * QORIN_API_RESULT_ERROR_ROBOT_ID_MUST_BE_SET_FIRST otherwise.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param robot_id    robot id, 0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_robot_id_set(unsigned int cbox_id, unsigned int command_id,
                                                                       unsigned int robot_id);

/**
 * Asks which robot is to run a motion command.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param[out] robot_id  id of the robot that was told.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_robot_id_get(unsigned int cbox_id, unsigned int command_id,
                                                                       unsigned int* robot_id);

/**
 * Names a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param name        name; 128 bytes are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_name_set(unsigned int cbox_id, unsigned int command_id,
                                                             const char* name);

/**
 * Asks for the name of a motion command. No more than 4 bytes of it come back.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param[out] name   [4 text] the first 4 bytes of the name, with no terminator behind them; needs room for 4 bytes.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_name_get(unsigned int cbox_id, unsigned int command_id, char* name);

/* Queue. */

/**
 * Has the control box check a copy of a motion command as it stands, ahead of queueing it. May be left out.
 *
 * The result is its verdict: QORIN_API_RESULT_OK when the command can be run.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_is_runnable(unsigned int cbox_id, unsigned int command_id);

/**
 * Puts a motion command at the end of the queue.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_queue_add(unsigned int cbox_id, unsigned int command_id);

/**
 * Adds a TCP motion command as qorin_rpc_motion_command_queue_add() does, by a command of its own.
 *
 * What sets the two apart, the control box defines.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_internal_add(unsigned int cbox_id,
                                                                           unsigned int command_id);

/**
 * Sets the queue going. Returns when the control box has answered, not when the motion has ended.
 *
 * Events of the group QORIN_EVENT_GRP_MOTION_COMMAND tell how each command gets on.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_queue_flush(unsigned int cbox_id);

/**
 * Empties the queue without running it.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_queue_clear(unsigned int cbox_id);

/**
 * Asks for the running time of a motion command.
 *
 * @param cbox_id            control box id from qorin_rpc_system_cbox_connect().
 * @param command_id         motion command id.
 * @param[out] running_time  time that the command takes; the control box defines the unit and from when on it knows it.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_running_time_get(unsigned int cbox_id, unsigned int command_id,
                                                                     double* running_time);

/* Velocity profile, of all kinds of motion commands. */

/**
 * Sets the velocity profile of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param profile     a QORIN_VELOCITY_PROFILE value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_velocity_profiler_set(unsigned int cbox_id, unsigned int command_id,
                                                                          QORIN_VELOCITY_PROFILE profile);

/**
 * Asks for the velocity profile of a motion command.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param command_id    motion command id.
 * @param[out] profile  a QORIN_VELOCITY_PROFILE value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_velocity_profiler_get(unsigned int cbox_id, unsigned int command_id,
                                                                          QORIN_VELOCITY_PROFILE* profile);

/**
 * Sets the largest acceleration of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param acc_max     largest acceleration; of joints or of the TCP, as the command is for one or the other.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_acc_max_set(unsigned int cbox_id, unsigned int command_id,
                                                                double acc_max);

/**
 * Asks for the largest acceleration of a motion command.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param command_id    motion command id.
 * @param[out] acc_max  largest acceleration; of joints or of the TCP, as the command is for one or the other.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_acc_max_get(unsigned int cbox_id, unsigned int command_id,
                                                                double* acc_max);

/**
 * Sets the largest deceleration of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param dec_max     largest deceleration; of joints or of the TCP, as the command is for one or the other.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_dec_max_set(unsigned int cbox_id, unsigned int command_id,
                                                                double dec_max);

/**
 * Asks for the largest deceleration of a motion command.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param command_id    motion command id.
 * @param[out] dec_max  largest deceleration; of joints or of the TCP, as the command is for one or the other.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_dec_max_get(unsigned int cbox_id, unsigned int command_id,
                                                                double* dec_max);

/**
 * Sets the largest speed of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param speed_max   largest speed; of joints or of the TCP, as the command is for one or the other.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_speed_max_set(unsigned int cbox_id, unsigned int command_id,
                                                                  double speed_max);

/**
 * Asks for the largest speed of a motion command.
 *
 * @param cbox_id         control box id from qorin_rpc_system_cbox_connect().
 * @param command_id      motion command id.
 * @param[out] speed_max  largest speed; of joints or of the TCP, as the command is for one or the other.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_speed_max_get(unsigned int cbox_id, unsigned int command_id,
                                                                  double* speed_max);

/**
 * Sets the jerk percentage of a motion command's velocity profile.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param command_id       motion command id.
 * @param jerk_percentage  percentage; of what, the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_jerk_percentage_set(unsigned int cbox_id, unsigned int command_id,
                                                                        double jerk_percentage);

/**
 * Asks for the jerk percentage of a motion command's velocity profile.
 *
 * @param cbox_id               control box id from qorin_rpc_system_cbox_connect().
 * @param command_id            motion command id.
 * @param[out] jerk_percentage  percentage; of what, the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_jerk_percentage_get(unsigned int cbox_id, unsigned int command_id,
                                                                        double* jerk_percentage);

/* Blending. */

/**
 * Sets the blending mode of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param mode        QORIN_SWITCH_ON or QORIN_SWITCH_OFF for blending with its neighbour in the queue; the control box
 *                    defines how.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_blending_motion_mode_set(unsigned int cbox_id,
                                                                             unsigned int command_id,
                                                                             QORIN_SWITCH mode);

/**
 * Asks for the blending mode of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param[out] mode   QORIN_SWITCH_ON or QORIN_SWITCH_OFF for blending with its neighbour in the queue; the control box
 *                    defines how.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_blending_motion_mode_get(unsigned int cbox_id,
                                                                             unsigned int command_id,
                                                                             QORIN_SWITCH* mode);

/**
 * Sets the automatic start of blending of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param auto_start  QORIN_SWITCH_ON or QORIN_SWITCH_OFF; what starts by itself then, the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_blending_auto_start_set(unsigned int cbox_id,
                                                                            unsigned int command_id,
                                                                            QORIN_SWITCH auto_start);

/**
 * Asks for the automatic start of blending of a motion command.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param command_id       motion command id.
 * @param[out] auto_start  QORIN_SWITCH_ON or QORIN_SWITCH_OFF; what starts by itself then, the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_blending_auto_start_get(unsigned int cbox_id,
                                                                            unsigned int command_id,
                                                                            QORIN_SWITCH* auto_start);

/**
 * Sets the stop mode of blending of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param stop_mode   QORIN_SWITCH_ON or QORIN_SWITCH_OFF; how it stops then, the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_blending_stop_mode_set(unsigned int cbox_id,
                                                                           unsigned int command_id,
                                                                           QORIN_SWITCH stop_mode);

/**
 * Asks for the stop mode of blending of a motion command.
 *
 * @param cbox_id         control box id from qorin_rpc_system_cbox_connect().
 * @param command_id      motion command id.
 * @param[out] stop_mode  QORIN_SWITCH_ON or QORIN_SWITCH_OFF; how it stops then, the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_blending_stop_mode_get(unsigned int cbox_id,
                                                                           unsigned int command_id,
                                                                           QORIN_SWITCH* stop_mode);

/**
 * Sets the radius for blending of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param radius      radius, in the unit of positions; what it is the radius of, the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_radius_for_blending_set(unsigned int cbox_id,
                                                                            unsigned int command_id, double radius);

/**
 * Asks for the radius for blending of a motion command.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param command_id   motion command id.
 * @param[out] radius  radius, in the unit of positions; what it is the radius of, the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_radius_for_blending_get(unsigned int cbox_id,
                                                                            unsigned int command_id, double* radius);

/* Start condition and I/O. */

/**
 * Sets the start condition of a motion command: a value that an input or output is to have.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param io_type     a QORIN_IO_TYPE value.
 * @param channel     channel of that type, 0 for the first.
 * @param value       value of the channel with which the condition is met.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_start_condition_set(unsigned int cbox_id, unsigned int command_id,
                                                                        QORIN_IO_TYPE io_type, unsigned int channel,
                                                                        int value);

/**
 * Makes a motion command set an output while it runs.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param condition   when: at the beginning, at a time, at a percentage or at the end; a QORIN_IO_CONTROL_CONDITION
 *                    value.
 * @param point       the time or the percentage, for the conditions that have one; the control box defines the unit of
 *                    time.
 * @param io_type     a QORIN_IO_TYPE value.
 * @param channel     channel of that type, 0 for the first.
 * @param value       value that the channel gets.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_io_command_type_set(unsigned int cbox_id, unsigned int command_id,
                                                                        QORIN_IO_CONTROL_CONDITION condition,
                                                                        double point, QORIN_IO_TYPE io_type,
                                                                        unsigned int channel, double value);

/* Local forms. A client has no motion commands, and finds none. */

/**
 * Finds no motion command; qorin_rpc_motion_command_velocity_profiler_get() asks the control box.
 *
 * @param command_id    motion command id.
 * @param[out] profile  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_velocity_profiler_get(unsigned int command_id,
                                                                      QORIN_VELOCITY_PROFILE* profile);

/**
 * Finds no motion command; qorin_rpc_motion_command_acc_max_get() asks the control box.
 *
 * @param command_id    motion command id.
 * @param[out] acc_max  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_acc_max_get(unsigned int command_id, double* acc_max);

/**
 * Finds no motion command; qorin_rpc_motion_command_dec_max_get() asks the control box.
 *
 * @param command_id    motion command id.
 * @param[out] dec_max  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_dec_max_get(unsigned int command_id, double* dec_max);

/**
 * Finds no motion command; qorin_rpc_motion_command_speed_max_get() asks the control box.
 *
 * @param command_id      motion command id.
 * @param[out] speed_max  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_speed_max_get(unsigned int command_id, double* speed_max);

/**
 * Finds no motion command; qorin_rpc_motion_command_jerk_percentage_get() asks the control box.
 *
 * @param command_id            motion command id.
 * @param[out] jerk_percentage  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_jerk_percentage_get(unsigned int command_id, double* jerk_percentage);

/**
 * Finds no motion command; qorin_rpc_motion_command_blending_motion_mode_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param[out] mode   not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_blending_motion_mode_get(unsigned int command_id, QORIN_SWITCH* mode);

/**
 * Finds no motion command; qorin_rpc_motion_command_radius_for_blending_get() asks the control box.
 *
 * @param command_id   motion command id.
 * @param[out] radius  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_radius_for_blending_get(unsigned int command_id, double* radius);

/**
 * Finds no motion command; qorin_rpc_motion_command_blending_auto_start_get() asks the control box.
 *
 * @param command_id       motion command id.
 * @param[out] auto_start  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_blending_auto_start_get(unsigned int command_id,
                                                                        QORIN_SWITCH* auto_start);

/**
 * Finds no motion command; qorin_rpc_motion_command_blending_stop_mode_get() asks the control box.
 *
 * @param command_id      motion command id.
 * @param[out] stop_mode  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_blending_stop_mode_get(unsigned int command_id,
                                                                       QORIN_SWITCH* stop_mode);

/**
 * Finds no motion command; qorin_rpc_motion_command_name_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param[out] name   [4 text] not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_name_get(unsigned int command_id, char* name);

/**
 * Finds no motion command; qorin_rpc_motion_command_running_time_get() asks the control box.
 *
 * @param command_id         motion command id.
 * @param[out] running_time  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_running_time_get(unsigned int command_id, double* running_time);

/**
 * Finds no motion command; qorin_rpc_motion_command_is_runnable() asks the control box.
 *
 * @param command_id  motion command id.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_is_runnable(unsigned int command_id);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_robot_id_get() asks the control box.
 *
 * @param command_id     motion command id.
 * @param[out] robot_id  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_robot_id_get(unsigned int command_id, unsigned int* robot_id);

QORIN_API_C_END

#endif
