/**
 * @file motion_command.h
 * Motion commands: moves that a robot runs from a queue.
 *
 * A motion command is an object of the control box's. The client holds no copy: it gets an id, sets one parameter after
 * another by that id, and queues it. Ids are good on the control box that gave them.
 *
 * @code
 * unsigned int id[32] = {0}; // 128 bytes are read from an output
 * char settled = 0;
 * qorin_rpc_motion_command_robot_joint_create(cbox_id, id);
 * const unsigned int move = id[0];
 * qorin_rpc_motion_command_robot_robot_id_set(cbox_id, move, robot_id); // ahead of all parameters of the robot
 * for (unsigned int joint = 0; joint < 6; ++joint)
 *     qorin_rpc_motion_command_robot_joint_angle_end_set(cbox_id, move, joint, 10.0);
 * qorin_rpc_motion_command_speed_max_set(cbox_id, move, 30.0);
 * if (qorin_rpc_motion_command_is_runnable(cbox_id, move) == QORIN_API_RESULT_OK) // a check of a copy; may be left out
 * {
 *     qorin_rpc_system_event_queue_clear(cbox_id); // an event from before would count
 *     qorin_rpc_motion_command_queue_add(cbox_id, move);
 *     qorin_rpc_motion_command_queue_flush(cbox_id); // returns when the control box has answered, not at the end
 *     qorin_rpc_system_wait_event_group_subgroup(cbox_id, QORIN_EVENT_GRP_MOTION_COMMAND,
 *                                                QORIN_EVENT_SUBGRP_MOTION_COMMAND_SETTLED_DOWN, 20000, 1, &settled);
 * }
 * qorin_rpc_motion_command_destroy(cbox_id, move); // behind its end, not ahead of it
 * @endcode
 *
 * The functions stand in four headers, which this one includes:
 *   - motion_command_queue.h: life of a motion command, queue, velocity profile, blending, start condition and I/O,
 *   - motion_command_path.h: paths of joints and of the TCP, moves in one request,
 *   - motion_command_welding.h: weaving,
 *   - motion_command_arc_sensing.h: arc sensing.
 *
 * Everything there is a command: system.h tells what commands have in common, among it that a command reads 128 bytes
 * from each pointer. Each returns as every command does. The control box answers among others
 *   - QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID for an id that it does not know,
 *   - QORIN_API_RESULT_ERROR_ROBOT_ID_MUST_BE_SET_FIRST for a command whose robot has not been told,
 *   - QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE for a parameter outside its range,
 *   - QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY when the queue is empty, whatever its name says,
 *   - QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE and the rest of the codes from 104000 to 104014 when the motion
 *     cannot be made or taken.
 *
 * The client carries parameters and judges none. What a parameter does to the motion is the control box's, beyond what
 * its name says. Angles are in degrees, positions in the unit of the status mirror; where no unit is told, the control
 * box defines it.
 *
 * Local forms, without cbox_id, find no motion command: a client has none. They answer
 * QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
#ifndef QORIN_MOTION_COMMAND_H
#define QORIN_MOTION_COMMAND_H

#include "qorin/motion_command_arc_sensing.h"
#include "qorin/motion_command_path.h"
#include "qorin/motion_command_queue.h"
#include "qorin/motion_command_welding.h"

#endif
