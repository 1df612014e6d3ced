/**
 * @file robot_path.h
 * Aids to planning, computed in the client: poses from a user frame, forms of orientation, points on a circle, and the
 * run-up to a conveyor.
 *
 * No function here locks, writes a line in the log or sends anything. Only
 * qorin_rpc_robot_conveyor_offset_calculate_with_encoder() and the file conversion take noticeable time. Any thread may
 * call.
 *
 * A robot id is known when it is 0 or 1 and this process has created the robot with qorin_rpc_robot_create() and not
 * destroyed it. Functions without a robot id want a connection alone.
 *
 * Orientations rx, ry, rz are Euler angles in degrees with the rotation Rz(rz) * Ry(ry) * Rx(rx). The unit of position
 * is the caller's; the library scales nothing.
 *
 * Outputs stay untouched unless the result is QORIN_API_RESULT_OK. No pointer may be null.
 *
 * Each function has a local form without cbox_id, for the control box that was asked last, by any thread. Those without
 * a robot id need no control box.
 */
#ifndef QORIN_ROBOT_PATH_H
#define QORIN_ROBOT_PATH_H

#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/**
 * Turns a file of poses in a user frame into a file of poses in the base frame.
 *
 * A line of the input is a pose, x, y, z, rx, ry, rz with commas between; its numbers are taken in single precision. A
 * line of the output is the same pose in the base frame, with ", " between and six significant digits.
 *
 * The output file is removed and made anew, also when the input file is missing. Both may be the same file. Blocks for
 * as long as the files are read and written.
 *
 * Throws C++ exceptions, which leave the output written up to the line before: std::invalid_argument when a field is no
 * number or a line has fewer than six, std::out_of_range when a number does not fit a float. A program in C must be
 * sure of its file.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id     robot id, 0 or 1.
 * @param input_file   path of the file to read.
 * @param output_file  path of the file to write.
 * @param x            x of the user frame's origin in the base frame.
 * @param y            y of that origin.
 * @param z            z of that origin.
 * @param rx           rx of the user frame's orientation, in degrees.
 * @param ry           ry of that orientation.
 * @param rz           rz of that orientation.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 *         QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot is not known;
 *         QORIN_API_RESULT_ERROR_ROBOT_FILE_LOAD_FAILURE when a file cannot be opened.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_util_common_to_base_coordinate_convert(
    unsigned int cbox_id, unsigned int robot_id, const char* input_file, const char* output_file, double x, double y,
    double z, double rx, double ry, double rz);

/**
 * The unit quaternion of an orientation.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param rx       rx in degrees.
 * @param ry       ry in degrees.
 * @param rz       rz in degrees.
 * @param[out] x   x of the vector part.
 * @param[out] y   y of the vector part.
 * @param[out] z   z of the vector part.
 * @param[out] w   the scalar part.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tcp_quaternion_from_orientation_get(unsigned int cbox_id, double rx,
                                                                               double ry, double rz, double* x,
                                                                               double* y, double* z, double* w);

/**
 * The orientation of a quaternion.
 *
 * Where ry is 90 or -90, rz is 0 and rx takes the whole turn.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param x        x of the vector part; the quaternion must have length 1.
 * @param y        y of the vector part.
 * @param z        z of the vector part.
 * @param w        the scalar part.
 * @param[out] rx  rx in degrees, -180 to 180.
 * @param[out] ry  ry in degrees, -90 to 90.
 * @param[out] rz  rz in degrees, -180 to 180.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tcp_orientation_from_quaternion_get(unsigned int cbox_id, double x, double y,
                                                                               double z, double w, double* rx,
                                                                               double* ry, double* rz);

/**
 * Points that divide a circle into equal parts.
 *
 * The circle goes through three points. The first point is the first division and is not written; the others follow in
 * the sense of the three points.
 *
 * @param cbox_id         control box id from qorin_rpc_system_cbox_connect().
 * @param point_1         [3] x, y, z, 3 doubles.
 * @param point_2         [3] x, y, z, 3 doubles.
 * @param point_3         [3] x, y, z, 3 doubles.
 * @param division_count  number of parts, 2 to 180.
 * @param[out] points     [division_count - 1, 3] division_count - 1 points of 3 doubles, one after the other.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 *         QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE for another number of parts;
 *         QORIN_API_RESULT_ERROR_ROBOT_THREE_POINTS_STRAIGHT_LINE when the points are in line within one degree;
 *         QORIN_API_RESULT_ERROR_ROBOT_OUTER_CIRCLE_NOT_FOUND when they give no circle within 0.001.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tcp_divide_circumference_get(unsigned int cbox_id, const double* point_1,
                                                                        const double* point_2, const double* point_3,
                                                                        int division_count, double* points);

/**
 * The distance that a robot covers until it has the speed of a conveyor.
 *
 * speed * speed / acceleration / 2.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id      robot id, 0 or 1.
 * @param[out] offset   the distance; infinite without acceleration.
 * @param speed         speed to be reached, in units of position per second.
 * @param acceleration  acceleration, in units of position per second squared.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 *         QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot is not known.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_conveyor_offset_calculate(unsigned int cbox_id, unsigned int robot_id,
                                                                     double* offset, double speed, double acceleration);

/**
 * The same for the speed that the conveyor's encoder measures.
 *
 * The speed is the median of 7 samples of the status mirror, one each 50 milliseconds: blocks for 350 milliseconds,
 * unless no encoder is in use.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id      robot id, 0 or 1.
 * @param[out] offset   the distance; infinite without acceleration.
 * @param acceleration  acceleration, in units of position per second squared.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 *         QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot is not known;
 *         QORIN_API_RESULT_WARNING_ROBOT_CONVEYOR_ENCODER_NOT_SETTING when no encoder is in use.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_conveyor_offset_calculate_with_encoder(unsigned int cbox_id,
                                                                                  unsigned int robot_id, double* offset,
                                                                                  double acceleration);

/**
 * Local form of qorin_rpc_robot_util_common_to_base_coordinate_convert().
 *
 * @param robot_id     robot id, 0 or 1.
 * @param input_file   path of the file to read.
 * @param output_file  path of the file to write.
 * @param x            x of the user frame's origin in the base frame.
 * @param y            y of that origin.
 * @param z            z of that origin.
 * @param rx           rx of the user frame's orientation, in degrees.
 * @param ry           ry of that orientation.
 * @param rz           rz of that orientation.
 * @return as that one, without QORIN_API_RESULT_ERROR_CBOX_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_robot_util_common_to_base_coordinate_convert(unsigned int robot_id,
                                                                              const char* input_file,
                                                                              const char* output_file, double x,
                                                                              double y, double z, double rx, double ry,
                                                                              double rz);

/**
 * Local form of qorin_rpc_robot_tcp_quaternion_from_orientation_get().
 *
 * @param rx      rx in degrees.
 * @param ry      ry in degrees.
 * @param rz      rz in degrees.
 * @param[out] x  x of the vector part.
 * @param[out] y  y of the vector part.
 * @param[out] z  z of the vector part.
 * @param[out] w  the scalar part.
 * @return as that one, without QORIN_API_RESULT_ERROR_CBOX_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tcp_quaternion_from_orientation_get(double rx, double ry, double rz, double* x,
                                                                           double* y, double* z, double* w);

/**
 * Local form of qorin_rpc_robot_tcp_orientation_from_quaternion_get().
 *
 * @param x        x of the vector part; the quaternion must have length 1.
 * @param y        y of the vector part.
 * @param z        z of the vector part.
 * @param w        the scalar part.
 * @param[out] rx  rx in degrees, -180 to 180.
 * @param[out] ry  ry in degrees, -90 to 90.
 * @param[out] rz  rz in degrees, -180 to 180.
 * @return as that one, without QORIN_API_RESULT_ERROR_CBOX_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tcp_orientation_from_quaternion_get(double x, double y, double z, double w,
                                                                           double* rx, double* ry, double* rz);

/**
 * Local form of qorin_rpc_robot_tcp_divide_circumference_get().
 *
 * @param point_1         [3] x, y, z, 3 doubles.
 * @param point_2         [3] x, y, z, 3 doubles.
 * @param point_3         [3] x, y, z, 3 doubles.
 * @param division_count  number of parts, 2 to 180.
 * @param[out] points     [division_count - 1, 3] division_count - 1 points of 3 doubles, one after the other.
 * @return as that one, without QORIN_API_RESULT_ERROR_CBOX_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tcp_divide_circumference_get(const double* point_1, const double* point_2,
                                                                    const double* point_3, int division_count,
                                                                    double* points);

/**
 * Local form of qorin_rpc_robot_conveyor_offset_calculate().
 *
 * @param robot_id      robot id, 0 or 1.
 * @param[out] offset   the distance; infinite without acceleration.
 * @param speed         speed to be reached, in units of position per second.
 * @param acceleration  acceleration, in units of position per second squared.
 * @return as that one, without QORIN_API_RESULT_ERROR_CBOX_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_robot_conveyor_offset_calculate(unsigned int robot_id, double* offset, double speed,
                                                                 double acceleration);

/**
 * Local form of qorin_rpc_robot_conveyor_offset_calculate_with_encoder().
 *
 * @param robot_id      robot id, 0 or 1.
 * @param[out] offset   the distance; infinite without acceleration.
 * @param acceleration  acceleration, in units of position per second squared.
 * @return as that one; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_conveyor_offset_calculate_with_encoder(unsigned int robot_id, double* offset,
                                                                              double acceleration);

QORIN_API_C_END

#endif
