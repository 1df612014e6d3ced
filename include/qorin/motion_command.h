/**
 * @file motion_command.h
 * Motion commands: moves that a robot runs from a queue.
 *
 * A motion command is an object of the control box's. The client holds no copy: it gets an id, sets one parameter after
 * another by that id, and queues it. Ids are good on the control box that gave them, whoever asks there.
 *
 * @code
 * unsigned int id[32] = {0}; // 128 bytes are read from an output
 * qorin_rpc_motion_command_robot_joint_create(cbox_id, id);
 * const unsigned int move = id[0];
 * qorin_rpc_motion_command_robot_robot_id_set(cbox_id, move, robot_id); // ahead of all parameters of the robot
 * for (unsigned int joint = 0; joint < 6; ++joint)
 *     qorin_rpc_motion_command_robot_joint_angle_end_set(cbox_id, move, joint, 10.0);
 * qorin_rpc_motion_command_speed_max_set(cbox_id, move, 30.0);
 * if (qorin_rpc_motion_command_is_runnable(cbox_id, move) == QORIN_API_RESULT_OK) // a check of a copy; may be left out
 * {
 *     qorin_rpc_motion_command_queue_add(cbox_id, move);
 *     qorin_rpc_motion_command_queue_flush(cbox_id); // runs the queue; qorin_rpc_motion_command_queue_clear() drops it
 *     // events of the group QORIN_EVENT_GRP_MOTION_COMMAND: started, almost completed, profile completed, settled down
 * }
 * qorin_rpc_motion_command_destroy(cbox_id, move);
 * @endcode
 *
 * Everything here is a command: system.h tells what commands have in common, among it that a command reads 128 bytes
 * from each pointer. Each returns as every command does. The control box answers among others
 *   - QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID for an id that it does not know,
 *   - QORIN_API_RESULT_ERROR_ROBOT_ID_MUST_BE_SET_FIRST for a parameter of the robot's before the robot is told,
 *   - QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE for a parameter outside its range,
 *   - QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY for a command that lacks what it needs,
 *   - QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE and the rest of the codes from 104000 to 104014 when the motion
 *     cannot be made or taken.
 *
 * Angles are in degrees, positions in the unit of the status mirror. Where no unit is told, the control box defines it.
 */
#ifndef QORIN_MOTION_COMMAND_H
#define QORIN_MOTION_COMMAND_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/* Life of a motion command. */

/**
 * Creates a move in joint space: start and end angles for each joint.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  output: id of the new motion command.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_joint_create(unsigned int cbox_id, unsigned int* command_id);

/**
 * Creates a move of the TCP along a path: start, mid and end positions, start and end orientations.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  output: id of the new motion command.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_create(unsigned int cbox_id, unsigned int* command_id);

/**
 * Creates a move of the TCP along a path with the parameters of welding: weave and arc sensing.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  output: id of the new motion command.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_create(unsigned int cbox_id,
                                                                             unsigned int* command_id);

/**
 * Copies a motion command with all its parameters.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param copy_id     output: id of the copy.
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
 * Destroys all motion commands of the control box, those of other clients included.
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
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param robot_id    output: robot id.
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
 * @param name        output: the first 4 bytes of the name, with no terminator behind them; needs room for 4 bytes.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_name_get(unsigned int cbox_id, unsigned int command_id, char* name);

/* Queue. */

/**
 * Has the control box check a copy of a motion command as it stands.
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
 * Puts a TCP move into the control box's own sequence, as qorin_rpc_motion_command_queue_add() does into the queue.
 *
 * What the control box makes of it is its own.
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
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param command_id    motion command id.
 * @param running_time  output: time that the command takes; the control box defines the unit.
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
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param profile     output: a QORIN_VELOCITY_PROFILE value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_velocity_profiler_get(unsigned int cbox_id, unsigned int command_id,
                                                                          QORIN_VELOCITY_PROFILE* profile);

/**
 * Sets the largest acceleration of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param acc_max     largest acceleration.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_acc_max_set(unsigned int cbox_id, unsigned int command_id,
                                                                double acc_max);

/**
 * Asks for the largest acceleration of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param acc_max     output: largest acceleration.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_acc_max_get(unsigned int cbox_id, unsigned int command_id,
                                                                double* acc_max);

/**
 * Sets the largest deceleration of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param dec_max     largest deceleration.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_dec_max_set(unsigned int cbox_id, unsigned int command_id,
                                                                double dec_max);

/**
 * Asks for the largest deceleration of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param dec_max     output: largest deceleration.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_dec_max_get(unsigned int cbox_id, unsigned int command_id,
                                                                double* dec_max);

/**
 * Sets the largest speed of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param speed_max   largest speed.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_speed_max_set(unsigned int cbox_id, unsigned int command_id,
                                                                  double speed_max);

/**
 * Asks for the largest speed of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param speed_max   output: largest speed.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_speed_max_get(unsigned int cbox_id, unsigned int command_id,
                                                                  double* speed_max);

/**
 * Sets the jerk percentage of a motion command.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param command_id       motion command id.
 * @param jerk_percentage  share of the ramps that is rounded, in percent.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_jerk_percentage_set(unsigned int cbox_id, unsigned int command_id,
                                                                        double jerk_percentage);

/**
 * Asks for the jerk percentage of a motion command.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param command_id       motion command id.
 * @param jerk_percentage  output: share of the ramps that is rounded, in percent.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_jerk_percentage_get(unsigned int cbox_id, unsigned int command_id,
                                                                        double* jerk_percentage);

/* Blending. */

/**
 * Sets the blending of the path into the next one of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param mode        QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_blending_motion_mode_set(unsigned int cbox_id,
                                                                             unsigned int command_id,
                                                                             QORIN_SWITCH mode);

/**
 * Asks for the blending of the path into the next one of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param mode        output: QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
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
 * @param auto_start  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_blending_auto_start_set(unsigned int cbox_id,
                                                                            unsigned int command_id,
                                                                            QORIN_SWITCH auto_start);

/**
 * Asks for the automatic start of blending of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param auto_start  output: QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
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
 * @param stop_mode   QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_blending_stop_mode_set(unsigned int cbox_id,
                                                                           unsigned int command_id,
                                                                           QORIN_SWITCH stop_mode);

/**
 * Asks for the stop mode of blending of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param stop_mode   output: QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_blending_stop_mode_get(unsigned int cbox_id,
                                                                           unsigned int command_id,
                                                                           QORIN_SWITCH* stop_mode);

/**
 * Sets the blending radius of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param radius      radius about the end of the path within which it is blended.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_radius_for_blending_set(unsigned int cbox_id,
                                                                            unsigned int command_id, double radius);

/**
 * Asks for the blending radius of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param radius      output: radius about the end of the path within which it is blended.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_radius_for_blending_get(unsigned int cbox_id,
                                                                            unsigned int command_id, double* radius);

/* Start condition, I/O and events. */

/**
 * Makes a motion command wait for an I/O value before it starts.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param io_type     a QORIN_IO_TYPE value.
 * @param channel     channel of that type.
 * @param value       value to wait for.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_start_condition_set(unsigned int cbox_id, unsigned int command_id,
                                                                        QORIN_IO_TYPE io_type, unsigned int channel,
                                                                        int value);

/**
 * Makes a motion command set an output on its way.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param condition   a QORIN_IO_CONTROL_CONDITION value: from where on the path the point is counted, and in what.
 * @param point       time or percentage, as the condition tells.
 * @param io_type     a QORIN_IO_TYPE value.
 * @param channel     channel of that type.
 * @param value       value to put out.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_io_command_type_set(unsigned int cbox_id, unsigned int command_id,
                                                                        QORIN_IO_CONTROL_CONDITION condition,
                                                                        double point, QORIN_IO_TYPE io_type,
                                                                        unsigned int channel, double value);

/**
 * Switches the events of weaving.
 *
 * Read back from the robot, by robot id, with qorin_rpc_motion_command_robot_weaving_event_get().
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param command_id    motion command id.
 * @param event_switch  QORIN_SWITCH_ON for an event at each section of the weave.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_weaving_event_set(unsigned int cbox_id,
                                                                            unsigned int command_id,
                                                                            QORIN_SWITCH event_switch);

/* Path in joint space. */

/**
 * Sets the start angle of a joint of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param joint       joint, 0 for the first.
 * @param angle       angle in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_joint_angle_start_set(unsigned int cbox_id,
                                                                                unsigned int command_id,
                                                                                unsigned int joint, double angle);

/**
 * Asks for the start angle of a joint of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param joint       joint, 0 for the first.
 * @param angle       output: angle in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_joint_angle_start_get(unsigned int cbox_id,
                                                                                unsigned int command_id,
                                                                                unsigned int joint, double* angle);

/**
 * Sets the end angle of a joint of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param joint       joint, 0 for the first.
 * @param angle       angle in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_joint_angle_end_set(unsigned int cbox_id,
                                                                              unsigned int command_id,
                                                                              unsigned int joint, double angle);

/**
 * Asks for the end angle of a joint of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param joint       joint, 0 for the first.
 * @param angle       output: angle in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_joint_angle_end_get(unsigned int cbox_id,
                                                                              unsigned int command_id,
                                                                              unsigned int joint, double* angle);

/* Path of the TCP. */

/**
 * Sets the start position of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param x           position along x.
 * @param y           position along y.
 * @param z           position along z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_start_set(unsigned int cbox_id,
                                                                                 unsigned int command_id, double x,
                                                                                 double y, double z);

/**
 * Asks for the start position of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param x           output: position along x.
 * @param y           output: position along y.
 * @param z           output: position along z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_start_get(unsigned int cbox_id,
                                                                                 unsigned int command_id, double* x,
                                                                                 double* y, double* z);

/**
 * Sets the mid position of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param x           position along x.
 * @param y           position along y.
 * @param z           position along z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_mid_set(unsigned int cbox_id,
                                                                               unsigned int command_id, double x,
                                                                               double y, double z);

/**
 * Asks for the mid position of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param x           output: position along x.
 * @param y           output: position along y.
 * @param z           output: position along z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_mid_get(unsigned int cbox_id,
                                                                               unsigned int command_id, double* x,
                                                                               double* y, double* z);

/**
 * Sets the end position of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param x           position along x.
 * @param y           position along y.
 * @param z           position along z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_end_set(unsigned int cbox_id,
                                                                               unsigned int command_id, double x,
                                                                               double y, double z);

/**
 * Asks for the end position of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param x           output: position along x.
 * @param y           output: position along y.
 * @param z           output: position along z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_end_get(unsigned int cbox_id,
                                                                               unsigned int command_id, double* x,
                                                                               double* y, double* z);

/**
 * Sets the end position of a motion command from a direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param value_1     first number; the control box defines it.
 * @param value_2     second number.
 * @param value_3     third number.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_end_set_from_direction(
    unsigned int cbox_id, unsigned int command_id, double value_1, double value_2, double value_3);

/**
 * Sets the end position and the end orientation of a motion command from a direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param value_1     first number; the control box defines it.
 * @param value_2     second number.
 * @param value_3     third number.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_and_orientation_end_set_from_direction(
    unsigned int cbox_id, unsigned int command_id, double value_1, double value_2, double value_3);

/**
 * Sets the start orientation of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param rx          rotation about x, in degrees.
 * @param ry          rotation about y, in degrees.
 * @param rz          rotation about z, in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_orientation_start_set(unsigned int cbox_id,
                                                                                    unsigned int command_id, double rx,
                                                                                    double ry, double rz);

/**
 * Asks for the start orientation of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param rx          output: rotation about x, in degrees.
 * @param ry          output: rotation about y, in degrees.
 * @param rz          output: rotation about z, in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_orientation_start_get(unsigned int cbox_id,
                                                                                    unsigned int command_id, double* rx,
                                                                                    double* ry, double* rz);

/**
 * Sets the end orientation of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param rx          rotation about x, in degrees.
 * @param ry          rotation about y, in degrees.
 * @param rz          rotation about z, in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_orientation_end_set(unsigned int cbox_id,
                                                                                  unsigned int command_id, double rx,
                                                                                  double ry, double rz);

/**
 * Asks for the end orientation of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param rx          output: rotation about x, in degrees.
 * @param ry          output: rotation about y, in degrees.
 * @param rz          output: rotation about z, in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_orientation_end_get(unsigned int cbox_id,
                                                                                  unsigned int command_id, double* rx,
                                                                                  double* ry, double* rz);

/**
 * Sets the start speed of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param speed       speed of the TCP.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_speed_start_set(unsigned int cbox_id,
                                                                              unsigned int command_id, double speed);

/**
 * Asks for the start speed of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param speed       output: speed of the TCP.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_speed_start_get(unsigned int cbox_id,
                                                                              unsigned int command_id, double* speed);

/**
 * Sets the end speed of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param speed       speed of the TCP.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_speed_end_set(unsigned int cbox_id,
                                                                            unsigned int command_id, double speed);

/**
 * Asks for the end speed of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param speed       output: speed of the TCP.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_speed_end_get(unsigned int cbox_id,
                                                                            unsigned int command_id, double* speed);

/**
 * Asks for the speed of a motion command as the control box has adjusted it.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param speed       output: speed of the TCP.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_adjusted_speed_get(unsigned int cbox_id,
                                                                                 unsigned int command_id,
                                                                                 double* speed);

/**
 * Sets the radius of the path of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param radius      radius.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_radius_set(unsigned int cbox_id, unsigned int command_id,
                                                                         double radius);

/**
 * Asks for the radius of the path of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param radius      output: radius.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_radius_get(unsigned int cbox_id, unsigned int command_id,
                                                                         double* radius);

/**
 * Sets the frame of reference of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param coordinate  a QORIN_REF_COORDINATE value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_coordinate_set(unsigned int cbox_id,
                                                                             unsigned int command_id,
                                                                             QORIN_REF_COORDINATE coordinate);

/**
 * Asks for the frame of reference of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param coordinate  output: a QORIN_REF_COORDINATE value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_coordinate_get(unsigned int cbox_id,
                                                                             unsigned int command_id,
                                                                             QORIN_REF_COORDINATE* coordinate);

/**
 * Tells whether the poses of a motion command are those of the flange or of the TCP.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param pose_type   QORIN_POSE_TYPE_FLANGE or QORIN_POSE_TYPE_TCP.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_pose_type_set(unsigned int cbox_id,
                                                                            unsigned int command_id,
                                                                            QORIN_POSE_TYPE pose_type);

/**
 * Sets the offset mode of a motion command.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param command_id   motion command id.
 * @param offset_mode  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_offset_mode_set(unsigned int cbox_id,
                                                                              unsigned int command_id,
                                                                              QORIN_SWITCH offset_mode);

/**
 * Asks for the offset mode of a motion command.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param command_id   motion command id.
 * @param offset_mode  output: QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_offset_mode_get(unsigned int cbox_id,
                                                                              unsigned int command_id,
                                                                              QORIN_SWITCH* offset_mode);

/**
 * Sets the shape of the path of a motion command.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param command_id    motion command id.
 * @param interpolator  a QORIN_INTERPOLATOR value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_interpolator_set(unsigned int cbox_id,
                                                                               unsigned int command_id,
                                                                               QORIN_INTERPOLATOR interpolator);

/**
 * Asks for the shape of the path of a motion command.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param command_id    motion command id.
 * @param interpolator  output: a QORIN_INTERPOLATOR value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_interpolator_get(unsigned int cbox_id,
                                                                               unsigned int command_id,
                                                                               QORIN_INTERPOLATOR* interpolator);

/**
 * Sets how the orientation runs along the path of a motion command.
 *
 * @param cbox_id           control box id from qorin_rpc_system_cbox_connect().
 * @param command_id        motion command id.
 * @param orientation_mode  a QORIN_ORIENTATION_MODE value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_orientation_mode_set(unsigned int cbox_id,
                                                                               unsigned int command_id,
                                                                               QORIN_ORIENTATION_MODE orientation_mode);

/**
 * Asks for how the orientation runs along the path of a motion command.
 *
 * @param cbox_id           control box id from qorin_rpc_system_cbox_connect().
 * @param command_id        motion command id.
 * @param orientation_mode  output: a QORIN_ORIENTATION_MODE value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_orientation_mode_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ORIENTATION_MODE* orientation_mode);

/**
 * Gives a motion command the points of a free path.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param count       number of points. It is sent as it stands, yet no more than 16 points travel.
 * @param x           x of each point; 16 doubles are read whatever the count says.
 * @param y           y of each point; 16 doubles are read.
 * @param z           z of each point; 16 doubles are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_free_path_points_set(unsigned int cbox_id,
                                                                                   unsigned int command_id,
                                                                                   unsigned int count, const double* x,
                                                                                   const double* y, const double* z);

/* Welding: weave. */

/**
 * Sets the weave of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param weaving     QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_weaving_motion_switch_set(unsigned int cbox_id,
                                                                                                unsigned int command_id,
                                                                                                QORIN_SWITCH weaving);

/**
 * Asks for the weave of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param weaving     output: QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_weaving_motion_switch_get(unsigned int cbox_id,
                                                                                                unsigned int command_id,
                                                                                                QORIN_SWITCH* weaving);

/**
 * Sets the pattern of the weave of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param pattern     a QORIN_WELDING_WEAVING_PATTERN value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_weaving_pattern_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_WELDING_WEAVING_PATTERN pattern);

/**
 * Asks for the pattern of the weave of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param pattern     output: a QORIN_WELDING_WEAVING_PATTERN value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_weaving_pattern_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_WELDING_WEAVING_PATTERN* pattern);

/**
 * Sets the amplitude to the left of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param amplitude   amplitude.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_amplitude_set(unsigned int cbox_id,
                                                                                         unsigned int command_id,
                                                                                         double amplitude);

/**
 * Asks for the amplitude to the left of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param amplitude   output: amplitude.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_amplitude_get(unsigned int cbox_id,
                                                                                         unsigned int command_id,
                                                                                         double* amplitude);

/**
 * Sets the amplitude to the right of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param amplitude   amplitude.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_amplitude_set(unsigned int cbox_id,
                                                                                          unsigned int command_id,
                                                                                          double amplitude);

/**
 * Asks for the amplitude to the right of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param amplitude   output: amplitude.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_amplitude_get(unsigned int cbox_id,
                                                                                          unsigned int command_id,
                                                                                          double* amplitude);

/**
 * Sets the frequency of the weave of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param frequency   frequency.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_frequency_set(unsigned int cbox_id,
                                                                                    unsigned int command_id,
                                                                                    double frequency);

/**
 * Asks for the frequency of the weave of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param frequency   output: frequency.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_frequency_get(unsigned int cbox_id,
                                                                                    unsigned int command_id,
                                                                                    double* frequency);

/**
 * Sets the time of rest on the left of a motion command.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param settling_time  time.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_stop_settling_time_set(
    unsigned int cbox_id, unsigned int command_id, double settling_time);

/**
 * Asks for the time of rest on the left of a motion command.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param settling_time  output: time.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_stop_settling_time_get(
    unsigned int cbox_id, unsigned int command_id, double* settling_time);

/**
 * Sets the time of rest on the right of a motion command.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param settling_time  time.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_stop_settling_time_set(
    unsigned int cbox_id, unsigned int command_id, double settling_time);

/**
 * Asks for the time of rest on the right of a motion command.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param settling_time  output: time.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_stop_settling_time_get(
    unsigned int cbox_id, unsigned int command_id, double* settling_time);

/**
 * Sets the time of rest in the middle of a motion command.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param settling_time  time.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_middle_stop_settling_time_set(
    unsigned int cbox_id, unsigned int command_id, double settling_time);

/**
 * Asks for the time of rest in the middle of a motion command.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param settling_time  output: time.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_middle_stop_settling_time_get(
    unsigned int cbox_id, unsigned int command_id, double* settling_time);

/**
 * Sets the tilt of the weaving plane of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param angle       angle of the tilt.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_plane_tilt_angle_set(unsigned int cbox_id,
                                                                                           unsigned int command_id,
                                                                                           double angle);

/**
 * Asks for the tilt of the weaving plane of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param angle       output: angle of the tilt.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_plane_tilt_angle_get(unsigned int cbox_id,
                                                                                           unsigned int command_id,
                                                                                           double* angle);

/**
 * Sets the four ratios of a zigzag of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param ratio_1     first ratio.
 * @param ratio_2     second ratio.
 * @param ratio_3     third ratio.
 * @param ratio_4     fourth ratio.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_zigzag_ratio_set(unsigned int cbox_id,
                                                                                       unsigned int command_id,
                                                                                       double ratio_1, double ratio_2,
                                                                                       double ratio_3, double ratio_4);

/**
 * Asks for the four ratios of a zigzag of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param ratio_1     output: first ratio.
 * @param ratio_2     output: second ratio.
 * @param ratio_3     output: third ratio.
 * @param ratio_4     output: fourth ratio.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_zigzag_ratio_get(
    unsigned int cbox_id, unsigned int command_id, double* ratio_1, double* ratio_2, double* ratio_3, double* ratio_4);

/**
 * Sets the fixing of the position of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param fix         QORIN_SWITCH_ON to fix the position, else QORIN_SWITCH_OFF.
 * @param value_1     first number; the control box defines it.
 * @param value_2     second number.
 * @param value_3     third number.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_position_fix_swtich_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_SWITCH fix, double value_1, double value_2, double value_3);

/**
 * Asks for the fixing of the position of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param fix         output: QORIN_SWITCH_ON to fix the position, else QORIN_SWITCH_OFF.
 * @param value_1     output: first number; the control box defines it.
 * @param value_2     output: second number.
 * @param value_3     output: third number.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_position_fix_swtich_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_SWITCH* fix, double* value_1, double* value_2,
    double* value_3);

/* Welding: changes to a weave. */

/**
 * Changes the amplitude to the left of a motion command.
 *
 * The parameter of qorin_rpc_motion_command_robot_tcp_welding_left_amplitude_set(). The control box decides how a weave
 * that runs takes it on.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param amplitude   amplitude.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_amplitude_change(unsigned int cbox_id,
                                                                                            unsigned int command_id,
                                                                                            double amplitude);

/**
 * Changes the amplitude to the right of a motion command.
 *
 * The parameter of qorin_rpc_motion_command_robot_tcp_welding_right_amplitude_set(). The control box decides how a
 * weave that runs takes it on.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param amplitude   amplitude.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_amplitude_change(unsigned int cbox_id,
                                                                                             unsigned int command_id,
                                                                                             double amplitude);

/**
 * Changes the frequency of the weave of a motion command.
 *
 * The parameter of qorin_rpc_motion_command_robot_tcp_welding_frequency_set(). The control box decides how a weave that
 * runs takes it on.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param frequency   frequency.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_frequency_change(unsigned int cbox_id,
                                                                                       unsigned int command_id,
                                                                                       double frequency);

/**
 * Changes the time of rest on the left of a motion command.
 *
 * The parameter of qorin_rpc_motion_command_robot_tcp_welding_left_stop_settling_time_set(). The control box decides
 * how a weave that runs takes it on.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param settling_time  time.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_left_stop_settling_time_change(
    unsigned int cbox_id, unsigned int command_id, double settling_time);

/**
 * Changes the time of rest on the right of a motion command.
 *
 * The parameter of qorin_rpc_motion_command_robot_tcp_welding_right_stop_settling_time_set(). The control box decides
 * how a weave that runs takes it on.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param settling_time  time.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_right_stop_settling_time_change(
    unsigned int cbox_id, unsigned int command_id, double settling_time);

/**
 * Changes the time of rest in the middle of a motion command.
 *
 * The parameter of qorin_rpc_motion_command_robot_tcp_welding_middle_stop_settling_time_set(). The control box decides
 * how a weave that runs takes it on.
 *
 * @param cbox_id        control box id from qorin_rpc_system_cbox_connect().
 * @param command_id     motion command id.
 * @param settling_time  time.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_middle_stop_settling_time_change(
    unsigned int cbox_id, unsigned int command_id, double settling_time);

/**
 * Changes the vertical offset of the position of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param offset      offset.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_vertical_offset_pos_change(
    unsigned int cbox_id, unsigned int command_id, double offset);

/**
 * Changes the horizontal offset of the position of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param offset      offset.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_horizontal_offset_pos_change(
    unsigned int cbox_id, unsigned int command_id, double offset);

/**
 * Changes the offset of the position of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param value_1     first number; the control box defines it.
 * @param value_2     second number.
 * @param value_3     third number.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_welding_offset_pos_change(unsigned int cbox_id,
                                                                                        unsigned int command_id,
                                                                                        double value_1, double value_2,
                                                                                        double value_3);

/* Welding: arc sensing. */

/**
 * Sets the source of the sensed data of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param source      a QORIN_ARC_SENSING_SRC value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_data_source_set(unsigned int cbox_id,
                                                                                          unsigned int command_id,
                                                                                          QORIN_ARC_SENSING_SRC source);

/**
 * Asks for the source of the sensed data of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param source      output: a QORIN_ARC_SENSING_SRC value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_data_source_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_SRC* source);

/**
 * Sets the shift of the reference of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param shift       shift.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_reference_shift_set(unsigned int cbox_id,
                                                                                              unsigned int command_id,
                                                                                              double shift);

/**
 * Asks for the shift of the reference of a motion command.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param shift       output: shift.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_reference_shift_get(unsigned int cbox_id,
                                                                                              unsigned int command_id,
                                                                                              double* shift);

/**
 * Sets arc sensing of a motion command in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param sensing     QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_switch_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, QORIN_SWITCH sensing);

/**
 * Asks for arc sensing of a motion command in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param sensing     output: QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_switch_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, QORIN_SWITCH* sensing);

/**
 * Sets the period at which the reference begins of a motion command in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param period      period; the control box defines the unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_start_ref_period_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, unsigned int period);

/**
 * Asks for the period at which the reference begins of a motion command in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param period      output: period; the control box defines the unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_start_ref_period_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, unsigned int* period);

/**
 * Sets the period at which tracking begins of a motion command in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param period      period; the control box defines the unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_start_tracking_period_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, unsigned int period);

/**
 * Asks for the period at which tracking begins of a motion command in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param period      output: period; the control box defines the unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_start_tracking_period_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, unsigned int* period);

/**
 * Sets the limit of the whole correction of a motion command in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param distance    distance.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_total_limit_distance_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double distance);

/**
 * Asks for the limit of the whole correction of a motion command in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param distance    output: distance.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_total_limit_distance_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* distance);

/**
 * Sets the limit of one correction of a motion command in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param distance    distance.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_limit_distance_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double distance);

/**
 * Asks for the limit of one correction of a motion command in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param distance    output: distance.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_limit_distance_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* distance);

/**
 * Sets the weight of a correction of a motion command in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param factor      factor.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_weighted_factor_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double factor);

/**
 * Asks for the weight of a correction of a motion command in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param factor      output: factor.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_weighted_factor_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* factor);

/**
 * Sets the dead band of a motion command in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param dead_band   dead band.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_dead_band_set(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double dead_band);

/**
 * Asks for the dead band of a motion command in one direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param direction   QORIN_ARC_SENSING_DIRECTION_HORIZONTAL or QORIN_ARC_SENSING_DIRECTION_VERTICAL.
 * @param dead_band   output: dead band.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_dead_band_get(
    unsigned int cbox_id, unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* dead_band);

/**
 * Has the control box save the sensed data to a file of its own.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param file     name of a file of the control box; 128 bytes are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_arc_sensing_data_save(unsigned int cbox_id,
                                                                                    const char* file);

/* Moves in one request. */

/**
 * Moves a robot in joint space at once, with no motion command of the client's.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param value     a number whose meaning the control box defines.
 * @param count     number of joints.
 * @param joints    target of each joint; 16 doubles are read whatever the count says.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_just_robot_joint_move(unsigned int cbox_id, unsigned int robot_id, double value,
                                                           unsigned int count, const double* joints);

/**
 * As qorin_rpc_just_robot_joint_move(), blended with the move before.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param value     a number whose meaning the control box defines.
 * @param count     number of joints.
 * @param joints    target of each joint; 16 doubles are read whatever the count says.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_just_robot_blending_joint_move(unsigned int cbox_id, unsigned int robot_id,
                                                                    double value, unsigned int count,
                                                                    const double* joints);

/**
 * Moves the TCP of a robot at once, with no motion command of the client's.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param value_1   first of seven numbers whose meaning the control box defines.
 * @param value_2   second number.
 * @param value_3   third number.
 * @param value_4   fourth number.
 * @param value_5   fifth number.
 * @param value_6   sixth number.
 * @param value_7   seventh number.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_just_robot_tcp_move(unsigned int cbox_id, unsigned int robot_id, double value_1,
                                                         double value_2, double value_3, double value_4, double value_5,
                                                         double value_6, double value_7);

/**
 * As qorin_rpc_just_robot_tcp_move(), blended with the move before.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param value_1   first of seven numbers whose meaning the control box defines.
 * @param value_2   second number.
 * @param value_3   third number.
 * @param value_4   fourth number.
 * @param value_5   fifth number.
 * @param value_6   sixth number.
 * @param value_7   seventh number.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_just_robot_blending_tcp_move(unsigned int cbox_id, unsigned int robot_id,
                                                                  double value_1, double value_2, double value_3,
                                                                  double value_4, double value_5, double value_6,
                                                                  double value_7);

/* Local forms. The control software answers them; a client has no motion commands and finds none. */

/**
 * Finds no motion command; qorin_rpc_motion_command_velocity_profiler_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param profile     not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_velocity_profiler_get(unsigned int command_id,
                                                                      QORIN_VELOCITY_PROFILE* profile);

/**
 * Finds no motion command; qorin_rpc_motion_command_acc_max_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param acc_max     not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_acc_max_get(unsigned int command_id, double* acc_max);

/**
 * Finds no motion command; qorin_rpc_motion_command_dec_max_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param dec_max     not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_dec_max_get(unsigned int command_id, double* dec_max);

/**
 * Finds no motion command; qorin_rpc_motion_command_speed_max_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param speed_max   not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_speed_max_get(unsigned int command_id, double* speed_max);

/**
 * Finds no motion command; qorin_rpc_motion_command_jerk_percentage_get() asks the control box.
 *
 * @param command_id       motion command id.
 * @param jerk_percentage  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_jerk_percentage_get(unsigned int command_id, double* jerk_percentage);

/**
 * Finds no motion command; qorin_rpc_motion_command_blending_motion_mode_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param mode        not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_blending_motion_mode_get(unsigned int command_id, QORIN_SWITCH* mode);

/**
 * Finds no motion command; qorin_rpc_motion_command_radius_for_blending_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param radius      not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_radius_for_blending_get(unsigned int command_id, double* radius);

/**
 * Finds no motion command; qorin_rpc_motion_command_blending_auto_start_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param auto_start  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_blending_auto_start_get(unsigned int command_id,
                                                                        QORIN_SWITCH* auto_start);

/**
 * Finds no motion command; qorin_rpc_motion_command_blending_stop_mode_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param stop_mode   not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_blending_stop_mode_get(unsigned int command_id,
                                                                       QORIN_SWITCH* stop_mode);

/**
 * Finds no motion command; qorin_rpc_motion_command_name_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param name        not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_name_get(unsigned int command_id, char* name);

/**
 * Finds no motion command; qorin_rpc_motion_command_running_time_get() asks the control box.
 *
 * @param command_id    motion command id.
 * @param running_time  not written.
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
 * @param command_id  motion command id.
 * @param robot_id    not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_robot_id_get(unsigned int command_id, unsigned int* robot_id);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_joint_angle_start_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param joint       not read.
 * @param angle       not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_joint_angle_start_get(unsigned int command_id, unsigned int joint,
                                                                            double* angle);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_joint_angle_end_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param joint       not read.
 * @param angle       not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_joint_angle_end_get(unsigned int command_id, unsigned int joint,
                                                                          double* angle);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_speed_start_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param speed       not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_speed_start_get(unsigned int command_id, double* speed);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_speed_end_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param speed       not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_speed_end_get(unsigned int command_id, double* speed);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_position_start_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param x           not written.
 * @param y           not written.
 * @param z           not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_position_start_get(unsigned int command_id, double* x,
                                                                             double* y, double* z);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_position_mid_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param x           not written.
 * @param y           not written.
 * @param z           not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_position_mid_get(unsigned int command_id, double* x,
                                                                           double* y, double* z);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_position_end_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param x           not written.
 * @param y           not written.
 * @param z           not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_position_end_get(unsigned int command_id, double* x,
                                                                           double* y, double* z);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_orientation_start_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param rx          not written.
 * @param ry          not written.
 * @param rz          not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_orientation_start_get(unsigned int command_id, double* rx,
                                                                                double* ry, double* rz);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_orientation_end_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param rx          not written.
 * @param ry          not written.
 * @param rz          not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_orientation_end_get(unsigned int command_id, double* rx,
                                                                              double* ry, double* rz);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_offset_mode_get() asks the control box.
 *
 * @param command_id   motion command id.
 * @param offset_mode  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_offset_mode_get(unsigned int command_id,
                                                                          QORIN_SWITCH* offset_mode);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_interpolator_get() asks the control box.
 *
 * @param command_id    motion command id.
 * @param interpolator  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_interpolator_get(unsigned int command_id,
                                                                           QORIN_INTERPOLATOR* interpolator);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_radius_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param radius      not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_radius_get(unsigned int command_id, double* radius);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_coordinate_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param coordinate  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_coordinate_get(unsigned int command_id,
                                                                         QORIN_REF_COORDINATE* coordinate);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_orientation_mode_get() asks the control box.
 *
 * @param command_id        motion command id.
 * @param orientation_mode  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_orientation_mode_get(unsigned int command_id,
                                                                           QORIN_ORIENTATION_MODE* orientation_mode);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_adjusted_speed_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param speed       not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_adjusted_speed_get(unsigned int command_id, double* speed);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_data_source_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param source      not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_data_source_get(unsigned int command_id,
                                                                                      QORIN_ARC_SENSING_SRC* source);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_reference_shift_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param shift       not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_reference_shift_get(unsigned int command_id,
                                                                                          double* shift);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_switch_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param direction   not read.
 * @param sensing     not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_switch_get(unsigned int command_id,
                                                                                 QORIN_ARC_SENSING_DIRECTION direction,
                                                                                 QORIN_SWITCH* sensing);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_start_ref_period_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param direction   not read.
 * @param period      not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_start_ref_period_get(
    unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, unsigned int* period);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_start_tracking_period_get() asks the control
 * box.
 *
 * @param command_id  motion command id.
 * @param direction   not read.
 * @param period      not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_start_tracking_period_get(
    unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, unsigned int* period);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_total_limit_distance_get() asks the control
 * box.
 *
 * @param command_id  motion command id.
 * @param direction   not read.
 * @param distance    not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_total_limit_distance_get(
    unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* distance);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_limit_distance_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param direction   not read.
 * @param distance    not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_limit_distance_get(
    unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* distance);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_weighted_factor_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param direction   not read.
 * @param factor      not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_weighted_factor_get(
    unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* factor);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_arc_sensing_dead_band_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param direction   not read.
 * @param dead_band   not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_arc_sensing_dead_band_get(
    unsigned int command_id, QORIN_ARC_SENSING_DIRECTION direction, double* dead_band);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_weaving_motion_switch_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param weaving     not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_weaving_motion_switch_get(unsigned int command_id,
                                                                                            QORIN_SWITCH* weaving);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_weaving_pattern_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param pattern     not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_weaving_pattern_get(
    unsigned int command_id, QORIN_WELDING_WEAVING_PATTERN* pattern);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_left_amplitude_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param amplitude   not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_left_amplitude_get(unsigned int command_id,
                                                                                     double* amplitude);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_right_amplitude_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param amplitude   not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_right_amplitude_get(unsigned int command_id,
                                                                                      double* amplitude);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_frequency_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param frequency   not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_frequency_get(unsigned int command_id,
                                                                                double* frequency);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_zigzag_ratio_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param ratio_1     not written.
 * @param ratio_2     not written.
 * @param ratio_3     not written.
 * @param ratio_4     not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_zigzag_ratio_get(unsigned int command_id,
                                                                                   double* ratio_1, double* ratio_2,
                                                                                   double* ratio_3, double* ratio_4);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_left_stop_settling_time_get() asks the control
 * box.
 *
 * @param command_id     motion command id.
 * @param settling_time  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_left_stop_settling_time_get(unsigned int command_id,
                                                                                              double* settling_time);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_right_stop_settling_time_get() asks the control
 * box.
 *
 * @param command_id     motion command id.
 * @param settling_time  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_right_stop_settling_time_get(unsigned int command_id,
                                                                                               double* settling_time);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_middle_stop_settling_time_get() asks the control
 * box.
 *
 * @param command_id     motion command id.
 * @param settling_time  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_middle_stop_settling_time_get(unsigned int command_id,
                                                                                                double* settling_time);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_position_fix_swtich_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param fix         not written.
 * @param value_1     not written.
 * @param value_2     not written.
 * @param value_3     not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_position_fix_swtich_get(
    unsigned int command_id, QORIN_SWITCH* fix, double* value_1, double* value_2, double* value_3);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_welding_plane_tilt_angle_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param angle       not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_welding_plane_tilt_angle_get(unsigned int command_id,
                                                                                       double* angle);

QORIN_API_C_END

#endif
