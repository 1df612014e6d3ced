/**
 * @file motion_command_path.h
 * Motion commands: the path of the joints or of the TCP, and moves in one request.
 *
 * motion_command.h tells what motion commands are and what these functions have in common. Positions and orientations
 * are in the frame that qorin_rpc_motion_command_robot_tcp_coordinate_set() tells.
 */
#ifndef QORIN_MOTION_COMMAND_PATH_H
#define QORIN_MOTION_COMMAND_PATH_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/* Path in joint space. */

/**
 * Sets the angle at which a joint starts.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param joint       joint, 0 for the first.
 * @param angle       angle at the start, in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_joint_angle_start_set(unsigned int cbox_id,
                                                                                unsigned int command_id,
                                                                                unsigned int joint, double angle);

/**
 * Asks for the angle at which a joint starts.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param joint       joint, 0 for the first.
 * @param[out] angle  angle at the start, in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_joint_angle_start_get(unsigned int cbox_id,
                                                                                unsigned int command_id,
                                                                                unsigned int joint, double* angle);

/**
 * Sets the angle at which a joint ends.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param joint       joint, 0 for the first.
 * @param angle       angle at the end, in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_joint_angle_end_set(unsigned int cbox_id,
                                                                              unsigned int command_id,
                                                                              unsigned int joint, double angle);

/**
 * Asks for the angle at which a joint ends.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param joint       joint, 0 for the first.
 * @param[out] angle  angle at the end, in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_joint_angle_end_get(unsigned int cbox_id,
                                                                              unsigned int command_id,
                                                                              unsigned int joint, double* angle);

/* Path of the TCP. */

/**
 * Sets the start position of the path.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param x           coordinate of that position along x.
 * @param y           coordinate of that position along y.
 * @param z           coordinate of that position along z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_start_set(unsigned int cbox_id,
                                                                                 unsigned int command_id, double x,
                                                                                 double y, double z);

/**
 * Asks for the start position of the path.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param[out] x      coordinate of that position along x.
 * @param[out] y      coordinate of that position along y.
 * @param[out] z      coordinate of that position along z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_start_get(unsigned int cbox_id,
                                                                                 unsigned int command_id, double* x,
                                                                                 double* y, double* z);

/**
 * Sets the mid position of the path.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param x           coordinate of that position along x.
 * @param y           coordinate of that position along y.
 * @param z           coordinate of that position along z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_mid_set(unsigned int cbox_id,
                                                                               unsigned int command_id, double x,
                                                                               double y, double z);

/**
 * Asks for the mid position of the path.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param[out] x      coordinate of that position along x.
 * @param[out] y      coordinate of that position along y.
 * @param[out] z      coordinate of that position along z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_mid_get(unsigned int cbox_id,
                                                                               unsigned int command_id, double* x,
                                                                               double* y, double* z);

/**
 * Sets the end position of the path.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param x           coordinate of that position along x.
 * @param y           coordinate of that position along y.
 * @param z           coordinate of that position along z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_end_set(unsigned int cbox_id,
                                                                               unsigned int command_id, double x,
                                                                               double y, double z);

/**
 * Asks for the end position of the path.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param[out] x      coordinate of that position along x.
 * @param[out] y      coordinate of that position along y.
 * @param[out] z      coordinate of that position along z.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_end_get(unsigned int cbox_id,
                                                                               unsigned int command_id, double* x,
                                                                               double* y, double* z);

/**
 * Sets the end position of the path from a direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param value_1     first of three numbers for the direction; the control box defines them.
 * @param value_2     second of these.
 * @param value_3     third of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_end_set_from_direction(
    unsigned int cbox_id, unsigned int command_id, double value_1, double value_2, double value_3);

/**
 * Sets the end position and the end orientation of the path from a direction.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param value_1     first of three numbers for the direction; the control box defines them.
 * @param value_2     second of these.
 * @param value_3     third of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_position_and_orientation_end_set_from_direction(
    unsigned int cbox_id, unsigned int command_id, double value_1, double value_2, double value_3);

/**
 * Sets the start orientation of the path.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param rx          rotation about x at the start, in degrees.
 * @param ry          rotation about y at the start, in degrees.
 * @param rz          rotation about z at the start, in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_orientation_start_set(unsigned int cbox_id,
                                                                                    unsigned int command_id, double rx,
                                                                                    double ry, double rz);

/**
 * Asks for the start orientation of the path.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param[out] rx     rotation about x at the start, in degrees.
 * @param[out] ry     rotation about y at the start, in degrees.
 * @param[out] rz     rotation about z at the start, in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_orientation_start_get(unsigned int cbox_id,
                                                                                    unsigned int command_id, double* rx,
                                                                                    double* ry, double* rz);

/**
 * Sets the end orientation of the path.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param rx          rotation about x at the end, in degrees.
 * @param ry          rotation about y at the end, in degrees.
 * @param rz          rotation about z at the end, in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_orientation_end_set(unsigned int cbox_id,
                                                                                  unsigned int command_id, double rx,
                                                                                  double ry, double rz);

/**
 * Asks for the end orientation of the path.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param[out] rx     rotation about x at the end, in degrees.
 * @param[out] ry     rotation about y at the end, in degrees.
 * @param[out] rz     rotation about z at the end, in degrees.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_orientation_end_get(unsigned int cbox_id,
                                                                                  unsigned int command_id, double* rx,
                                                                                  double* ry, double* rz);

/**
 * Sets the speed of the TCP at the start of the path.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param speed       speed of the TCP at the start.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_speed_start_set(unsigned int cbox_id,
                                                                              unsigned int command_id, double speed);

/**
 * Asks for the speed of the TCP at the start of the path.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param[out] speed  speed of the TCP at the start.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_speed_start_get(unsigned int cbox_id,
                                                                              unsigned int command_id, double* speed);

/**
 * Sets the speed of the TCP at the end of the path.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param speed       speed of the TCP at the end.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_speed_end_set(unsigned int cbox_id,
                                                                            unsigned int command_id, double speed);

/**
 * Asks for the speed of the TCP at the end of the path.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param[out] speed  speed of the TCP at the end.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_speed_end_get(unsigned int cbox_id,
                                                                            unsigned int command_id, double* speed);

/**
 * Asks for the speed of the TCP as the control box has adjusted it.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param[out] speed  adjusted speed of the TCP.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_adjusted_speed_get(unsigned int cbox_id,
                                                                                 unsigned int command_id,
                                                                                 double* speed);

/**
 * Sets the radius of a path that has one.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param command_id  motion command id.
 * @param radius      radius of the path, in the unit of positions.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_radius_set(unsigned int cbox_id, unsigned int command_id,
                                                                         double radius);

/**
 * Asks for the radius of a path that has one.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param command_id   motion command id.
 * @param[out] radius  radius of the path, in the unit of positions.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_radius_get(unsigned int cbox_id, unsigned int command_id,
                                                                         double* radius);

/**
 * Sets the frame that positions and orientations are told in.
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
 * Asks for the frame that positions and orientations are told in.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param command_id       motion command id.
 * @param[out] coordinate  a QORIN_REF_COORDINATE value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_coordinate_get(unsigned int cbox_id,
                                                                             unsigned int command_id,
                                                                             QORIN_REF_COORDINATE* coordinate);

/**
 * Tells whether the poses of the path are those of the flange or of the TCP. No call reads it back.
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
 * @param offset_mode  QORIN_SWITCH_ON or QORIN_SWITCH_OFF; what is offset then, the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_offset_mode_set(unsigned int cbox_id,
                                                                              unsigned int command_id,
                                                                              QORIN_SWITCH offset_mode);

/**
 * Asks for the offset mode of a motion command.
 *
 * @param cbox_id           control box id from qorin_rpc_system_cbox_connect().
 * @param command_id        motion command id.
 * @param[out] offset_mode  QORIN_SWITCH_ON or QORIN_SWITCH_OFF; what is offset then, the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_offset_mode_get(unsigned int cbox_id,
                                                                              unsigned int command_id,
                                                                              QORIN_SWITCH* offset_mode);

/**
 * Sets the shape of the path.
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
 * Asks for the shape of the path.
 *
 * @param cbox_id            control box id from qorin_rpc_system_cbox_connect().
 * @param command_id         motion command id.
 * @param[out] interpolator  a QORIN_INTERPOLATOR value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_interpolator_get(unsigned int cbox_id,
                                                                               unsigned int command_id,
                                                                               QORIN_INTERPOLATOR* interpolator);

/**
 * Sets the way in which the orientation turns along the path.
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
 * Asks for the way in which the orientation turns along the path.
 *
 * @param cbox_id                control box id from qorin_rpc_system_cbox_connect().
 * @param command_id             motion command id.
 * @param[out] orientation_mode  a QORIN_ORIENTATION_MODE value.
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
 * @param x           [count] x of each point; 16 doubles are read whatever the count says.
 * @param y           [count] y of each point; 16 doubles are read.
 * @param z           [count] z of each point; 16 doubles are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_motion_command_robot_tcp_free_path_points_set(unsigned int cbox_id,
                                                                                   unsigned int command_id,
                                                                                   unsigned int count, const double* x,
                                                                                   const double* y, const double* z);

/* Moves in one request. */

/**
 * Moves a robot in joint space in one request, with no motion command of the client's.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param value     a number whose meaning the control box defines.
 * @param count     number of joints.
 * @param joints    [count] target angle of each joint, in degrees; 16 doubles are read whatever the count says.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_just_robot_joint_move(unsigned int cbox_id, unsigned int robot_id, double value,
                                                           unsigned int count, const double* joints);

/**
 * A move with blending in one request; the parameters of qorin_rpc_just_robot_joint_move().
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param value     a number whose meaning the control box defines.
 * @param count     number of joints.
 * @param joints    [count] target angle of each joint, in degrees; 16 doubles are read whatever the count says.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_just_robot_blending_joint_move(unsigned int cbox_id, unsigned int robot_id,
                                                                    double value, unsigned int count,
                                                                    const double* joints);

/**
 * Moves the TCP of a robot in one request, with no motion command of the client's.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param value_1   first of seven numbers whose meaning the control box defines.
 * @param value_2   second of these.
 * @param value_3   third of these.
 * @param value_4   fourth of these.
 * @param value_5   fifth of these.
 * @param value_6   sixth of these.
 * @param value_7   seventh of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_just_robot_tcp_move(unsigned int cbox_id, unsigned int robot_id, double value_1,
                                                         double value_2, double value_3, double value_4, double value_5,
                                                         double value_6, double value_7);

/**
 * A move of the TCP with blending in one request; the parameters of qorin_rpc_just_robot_tcp_move().
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param value_1   first of seven numbers whose meaning the control box defines.
 * @param value_2   second of these.
 * @param value_3   third of these.
 * @param value_4   fourth of these.
 * @param value_5   fifth of these.
 * @param value_6   sixth of these.
 * @param value_7   seventh of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_just_robot_blending_tcp_move(unsigned int cbox_id, unsigned int robot_id,
                                                                  double value_1, double value_2, double value_3,
                                                                  double value_4, double value_5, double value_6,
                                                                  double value_7);

/* Local forms. A client has no motion commands, and finds none. */

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_joint_angle_start_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param joint       not read.
 * @param[out] angle  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_joint_angle_start_get(unsigned int command_id, unsigned int joint,
                                                                            double* angle);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_joint_angle_end_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param joint       not read.
 * @param[out] angle  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_joint_angle_end_get(unsigned int command_id, unsigned int joint,
                                                                          double* angle);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_speed_start_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param[out] speed  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_speed_start_get(unsigned int command_id, double* speed);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_speed_end_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param[out] speed  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_speed_end_get(unsigned int command_id, double* speed);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_position_start_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param[out] x      not written.
 * @param[out] y      not written.
 * @param[out] z      not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_position_start_get(unsigned int command_id, double* x,
                                                                             double* y, double* z);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_position_mid_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param[out] x      not written.
 * @param[out] y      not written.
 * @param[out] z      not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_position_mid_get(unsigned int command_id, double* x,
                                                                           double* y, double* z);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_position_end_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param[out] x      not written.
 * @param[out] y      not written.
 * @param[out] z      not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_position_end_get(unsigned int command_id, double* x,
                                                                           double* y, double* z);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_orientation_start_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param[out] rx     not written.
 * @param[out] ry     not written.
 * @param[out] rz     not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_orientation_start_get(unsigned int command_id, double* rx,
                                                                                double* ry, double* rz);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_orientation_end_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param[out] rx     not written.
 * @param[out] ry     not written.
 * @param[out] rz     not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_orientation_end_get(unsigned int command_id, double* rx,
                                                                              double* ry, double* rz);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_offset_mode_get() asks the control box.
 *
 * @param command_id        motion command id.
 * @param[out] offset_mode  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_offset_mode_get(unsigned int command_id,
                                                                          QORIN_SWITCH* offset_mode);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_interpolator_get() asks the control box.
 *
 * @param command_id         motion command id.
 * @param[out] interpolator  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_interpolator_get(unsigned int command_id,
                                                                           QORIN_INTERPOLATOR* interpolator);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_radius_get() asks the control box.
 *
 * @param command_id   motion command id.
 * @param[out] radius  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_radius_get(unsigned int command_id, double* radius);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_coordinate_get() asks the control box.
 *
 * @param command_id       motion command id.
 * @param[out] coordinate  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_coordinate_get(unsigned int command_id,
                                                                         QORIN_REF_COORDINATE* coordinate);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_orientation_mode_get() asks the control box.
 *
 * @param command_id             motion command id.
 * @param[out] orientation_mode  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_orientation_mode_get(unsigned int command_id,
                                                                           QORIN_ORIENTATION_MODE* orientation_mode);

/**
 * Finds no motion command; qorin_rpc_motion_command_robot_tcp_adjusted_speed_get() asks the control box.
 *
 * @param command_id  motion command id.
 * @param[out] speed  not written.
 * @return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID.
 */
QORIN_API QORIN_API_RESULT qorin_motion_command_robot_tcp_adjusted_speed_get(unsigned int command_id, double* speed);

QORIN_API_C_END

#endif
