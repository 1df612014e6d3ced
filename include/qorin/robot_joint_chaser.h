/**
 * @file robot_joint_chaser.h
 * The joint chaser: a robot that follows joint targets which the application streams at its own rate.
 *
 * The stream. Each target is one UDP datagram of 56 bytes, beside the three links of the connection, to port 50001 plus
 * the robot id. Nothing is confirmed: neither that a datagram went out, nor that it arrived, nor that the robot follows
 * it. What the robot does shows in the status mirror. Angles are in degrees.
 *
 * The usual order is qorin_rpc_robot_joint_chaser_ip_set(), qorin_rpc_robot_joint_chaser_switch_set() with on, many
 * times qorin_rpc_robot_joint_chaser_move(), qorin_rpc_robot_joint_chaser_switch_set() with off. Switching needs the
 * control, as it is a command in the end; whether the chaser is on is the control box's state, in the mirror.
 *
 * The address. Datagrams go to the address that was given ahead of the first use of a robot's stream, which is any of
 * setting the address, switching and a move that gets as far as sending. Without one they go to an address that is
 * built into the library: a private one of the control box's internal network. Either is kept until the process ends.
 *
 * Safety. A move looks at the mirror before it sends. What fails ends the stream, as
 * qorin_rpc_robot_joint_chaser_move() tells. That is no substitute for the limits that the control box keeps.
 *
 * Threads. Any thread may call, but the first use of a robot's stream must not come from two threads at a time. A move
 * takes no lock, so a stream runs beside commands. Switching holds the lock of all commands while it sleeps: for 1.1
 * seconds when switching off, for 0.1 seconds when switching on.
 *
 * The functions with `internal` in their names do the same work as those without, with no lock and no call line of
 * their own. Applications have no need of them.
 */
#ifndef QORIN_ROBOT_JOINT_CHASER_H
#define QORIN_ROBOT_JOINT_CHASER_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/**
 * Sets the address that a robot's targets are sent to.
 *
 * Counts at the first use of the robot's stream only: later it changes nothing, and says so no more than a malformed
 * address does, for which nothing is ever sent. Takes the lock of all commands and writes a call line; sends nothing
 * and does not block beyond that lock.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect(). Not looked up: it is part of the stream's name.
 * @param robot_id  robot, 0 or 1. Not judged: the port is 50001 plus this, cut to 16 bits.
 * @param address   IPv4 address in dotted form. Null counts as malformed.
 * @return QORIN_API_RESULT_OK.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_chaser_ip_set(unsigned int cbox_id, unsigned int robot_id,
                                                               const char* address);

/**
 * Switches the joint chaser of a robot on or off.
 *
 * Off: sends the stop datagram, gives the robot 1 second to come to rest, then tells the control box, whatever the
 * robot is doing. On: asks the mirror whether the robot is at rest, then tells the control box. Either way it waits
 * another 0.1 seconds, so that the new state has come into the mirror. What is neither counts as on and is judged by
 * the control box. The control box is told by qorin_rpc_robot_joint_chaser_state_set(), which writes no call line of
 * its own here. Holds the lock of all commands all the time, and blocks for the reply.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param value     on or off.
 * @return as qorin_rpc_robot_joint_chaser_state_set(): with an unknown cbox_id the stop datagram is sent all the same;
 *         QORIN_API_RESULT_ROBOT_IS_MOVING_STATE, with nothing else done, when switching on and the mirror tells
 * neither QORIN_MOVING_STATE_IDLE nor QORIN_MOVING_STATE_STOPPED, or nothing, as for a robot that does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_chaser_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                   QORIN_SWITCH value);

/**
 * The same as qorin_rpc_robot_joint_chaser_state_get(): whether the chaser is on, by the status mirror.
 *
 * A getter: no lock, no line, no traffic, no blocking.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id    robot, 0 or 1.
 * @param[out] value  on while the robot follows streamed joint angles, else off. Must not be null.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 *         QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_chaser_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                   QORIN_SWITCH* value);

/**
 * Sends one target to a robot that follows the stream.
 *
 * Looks at the mirror in this order: measured angles of the joints, the targets beside them, the chaser's state, the
 * robot's motion. Then sends one datagram. Takes no lock, writes no call line, sends nothing over the three links and
 * does not block, unless it ends the stream: a failed test switches the chaser off, when it is on, as
 * qorin_rpc_robot_joint_chaser_switch_set() does. That takes 1.1 seconds, and the call line of the command in it is
 * written. The results say which tests do this.
 *
 * A target that is not a number passes the test of distance; the control box judges it.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param count     number of joints whose distance is tested, from the first. 0 tests none; above 6 counts as 6.
 * @param joints    [6] targets, degrees. Six doubles (48 bytes) are read and sent, whatever `count` is.
 * @return QORIN_API_RESULT_OK when the datagram was handed over, whatever became of it;
 *         QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected and `count` is not 0;
 *         QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist and `count` is not 0;
 *         QORIN_API_RESULT_ERROR_ROBOT_JOINT_PARAM_OUT_OF_RANGE when a target is more than 100 degrees away: the stream
 *         ends; also when `joints` is null: nothing is done then;
 *         QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE when the chaser is not on;
 *         QORIN_API_RESULT_ROBOT_IS_MOVING_STATE when the robot moves in another way: the stream ends.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_chaser_move(unsigned int cbox_id, unsigned int robot_id,
                                                             unsigned int count, const double* joints);

/**
 * Tells the control box to follow a robot's stream, or to end it: the bare command of
 * qorin_rpc_robot_joint_chaser_switch_set(), with no datagram, test or wait.
 *
 * A command, as system.h says.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param state     on or off.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_joint_chaser_state_set(unsigned int cbox_id, unsigned int robot_id,
                                                                  QORIN_SWITCH state);

/**
 * The work of qorin_rpc_robot_joint_chaser_ip_set().
 *
 * @param cbox_id   as there.
 * @param robot_id  as there.
 * @param address   as there.
 * @return as there.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_internal_robot_joint_chaser_ip_set(unsigned int cbox_id, unsigned int robot_id,
                                                                        const char* address);

/**
 * The work of qorin_rpc_robot_joint_chaser_switch_set(). The lock is taken for the command in it alone.
 *
 * @param cbox_id   as there.
 * @param robot_id  as there.
 * @param value     as there.
 * @return as there.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_internal_robot_joint_chaser_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                            QORIN_SWITCH value);

/**
 * The work of qorin_rpc_robot_joint_chaser_switch_get().
 *
 * @param cbox_id     as there.
 * @param robot_id    as there.
 * @param[out] value  as there.
 * @return as there.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_internal_robot_joint_chaser_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                            QORIN_SWITCH* value);

/**
 * The work of qorin_rpc_robot_joint_chaser_move().
 *
 * @param cbox_id   as there.
 * @param robot_id  as there.
 * @param count     as there.
 * @param joints    [6] as there.
 * @return as there.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_internal_robot_joint_chaser_move(unsigned int cbox_id, unsigned int robot_id,
                                                                      unsigned int count, const double* joints);

QORIN_API_C_END

#endif
