/**
 * @file robot_conversion.h
 * Joint angles from poses and poses from joint angles, computed in the client.
 *
 * Everything here asks the robot's kinematics module and the status mirror of the control box, not the control box
 * itself: no lock, no line in the log, no traffic. A call blocks only for as long as it computes, which for the module
 * that comes with the library is some microseconds a solve. The module may be asked by several threads at once; one
 * that cannot bear that makes the application serialise its calls. No robot may be destroyed meanwhile.
 *
 * Robots. A robot must have been created by this process with qorin_rpc_robot_create(). Conversions that read the
 * mirror (the pose of the tool, the number of joints) want the robot there too; their texts say that the robot exists.
 * The others, for which the robot must be known, do not look at the mirror.
 *
 * Poses are two arrays of 3 doubles: a position x, y, z and an orientation rx, ry, rz, Euler angles in degrees with the
 * rotation Rz(rz) * Ry(ry) * Rx(rx), both in the base frame. The unit of position is the robot's, as in its status; the
 * library scales nothing. A pose of the flange is what the module works on. A pose of the TCP is that of the flange
 * moved by the tool, qorin_rpc_robot_tcp_from_flange_get(). Any QORIN_POSE_TYPE but QORIN_POSE_TYPE_TCP means the
 * flange.
 *
 * Joint arrays hold an angle in degrees for each joint in order, from the base on: as many doubles as the robot has
 * joints, at most 6. An array must have room for the joints of the module as well as for those that the mirror tells;
 * for an arm both are 6. Default kinematics, which a model without a module gets, may count none: then no angle reaches
 * a solve or comes out of one.
 *
 * Outputs stay untouched unless the result is QORIN_API_RESULT_OK. Joints may come out in the array of the reference.
 * No pointer may be null.
 *
 * Each function has a local form without cbox_id, for the control box that was asked last, by any thread.
 */
#ifndef QORIN_ROBOT_CONVERSION_H
#define QORIN_ROBOT_CONVERSION_H

#include <stdbool.h>

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/**
 * The pose of joint angles.
 *
 * Blocks for one forward solve.
 *
 * @param cbox_id           control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id          robot id, 0 or 1.
 * @param type              whether the pose of the flange or of the TCP is asked for.
 * @param joints            [joints] joint angles in degrees, one double per joint.
 * @param[out] position     [3] x, y, z, 3 doubles.
 * @param[out] orientation  [3] rx, ry, rz in degrees, 3 doubles.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 *         QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_util_joint_angle_to_pose_convert(unsigned int cbox_id, unsigned int robot_id,
                                                                            QORIN_POSE_TYPE type, const double* joints,
                                                                            double* position, double* orientation);

/**
 * Joint angles of a pose, near a reference.
 *
 * When the module has no solution near the reference, the pose is approached from the pose of the reference joints in
 * 10 steps along a straight line, each solved from the joints of the one before, with the target's orientation in all
 * of them. So blocks for one inverse solve, or for up to 11 and a forward one.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id     robot id, 0 or 1.
 * @param type         what the pose is a pose of: flange or TCP.
 * @param reference    [joints] joint angles in degrees that the solution shall be near to, one double per joint.
 * @param position     [3] x, y, z, 3 doubles.
 * @param orientation  [3] rx, ry, rz in degrees, 3 doubles.
 * @param[out] joints  [joints] joint angles in degrees, one double per joint.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 *         QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist;
 *         QORIN_API_RESULT_WARNING_ROBOT_INVERSE_FAILURE when a step has no solution.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_util_pose_to_joint_angle_convert(unsigned int cbox_id, unsigned int robot_id,
                                                                            QORIN_POSE_TYPE type,
                                                                            const double* reference,
                                                                            const double* position,
                                                                            const double* orientation, double* joints);

/**
 * Joint angles of a pose, approached from a reference in steps.
 *
 * As qorin_rpc_robot_util_pose_to_joint_angle_convert() does where there is no solution near the reference, but at once
 * and with a number of steps that the caller gives. Blocks for a forward solve and one inverse solve a step.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id     robot id, 0 or 1.
 * @param type         what the pose is a pose of: flange or TCP.
 * @param reference    [joints] joint angles in degrees to start from, one double per joint.
 * @param position     [3] x, y, z, 3 doubles.
 * @param orientation  [3] rx, ry, rz in degrees, 3 doubles; of all steps, it is not interpolated.
 * @param steps        number of steps; 1 solves the target alone, 0 hands back the reference joints.
 * @param[out] joints  [joints] joint angles in degrees, one double per joint.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 *         QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist;
 *         QORIN_API_RESULT_WARNING_ROBOT_INVERSE_FAILURE when a step has no solution.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_util_pose_to_joint_angle_convert_iterative(
    unsigned int cbox_id, unsigned int robot_id, QORIN_POSE_TYPE type, const double* reference, const double* position,
    const double* orientation, unsigned int steps, double* joints);

/**
 * All solutions for a pose of the flange.
 *
 * Which solution stands where is the module's business; in the one that comes with the library solution i has the
 * posture QORIN_ROBOT_POSTURE_FRONT_ABOVE_FLIP + i. Default kinematics have no solution. The numbers of a
 * solution that does not exist mean nothing. Blocks for as long as the module solves.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id     robot id, 0 or 1.
 * @param position     [3] x, y, z of the flange, 3 doubles.
 * @param orientation  [3] rx, ry, rz of the flange in degrees, 3 doubles.
 * @param[out] joints  [8, joints] 8 joint arrays, one after the other: 8 times the joints of the module, 48 doubles for
 *                     6.
 * @param[out] valid   [8] 8 flags, which solutions exist.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 *         QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot is not known; that no solution exists is no error.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_util_pose_to_joint_all_possible_angle_convert(unsigned int cbox_id,
                                                                                         unsigned int robot_id,
                                                                                         const double* position,
                                                                                         const double* orientation,
                                                                                         double* joints, bool* valid);

/**
 * The solution for a pose of the flange in one posture.
 *
 * Blocks for one solve. Where there is no solution, the module's side prints an error line.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id      robot id, 0 or 1.
 * @param posture       one of the 8 postures.
 * @param position      [3] x, y, z of the flange, 3 doubles.
 * @param orientation   [3] rx, ry, rz of the flange in degrees, 3 doubles.
 * @param[out] joints   [joints] joint angles in degrees, one double per joint; untouched without a solution.
 * @param[out] success  whether there is a solution.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 *         QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot is not known; that no solution exists is no error.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_util_pose_to_posture_joint_angle_convert(
    unsigned int cbox_id, unsigned int robot_id, QORIN_ROBOT_POSTURE posture, const double* position,
    const double* orientation, double* joints, bool* success);

/**
 * Positions on the way of a joint move.
 *
 * The joints are interpolated, each for itself, so the positions tell the path of a joint move and not a straight line.
 * The first point is the start and the last one the end. Blocks for a forward solve a point.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id      robot id, 0 or 1.
 * @param joint_count   doubles in each joint array; must be the number of joints that the mirror tells.
 * @param start_joints  [joints] joint angles in degrees at the start.
 * @param end_joints    [joints] joint angles in degrees at the end.
 * @param point_count   number of points; 0 writes nothing. With 1 the point comes from angles that are no numbers.
 * @param type          whether positions of the flange or of the TCP are asked for.
 * @param[out] x        [point_count] x of the points, point_count doubles.
 * @param[out] y        [point_count] y of the points, point_count doubles.
 * @param[out] z        [point_count] z of the points, point_count doubles.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 *         QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist;
 *         QORIN_API_RESULT_ERROR_ROBOT_NUMBER_OF_JOINT_NOT_MATCHED when joint_count is another.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_util_position_trajectory_get(
    unsigned int cbox_id, unsigned int robot_id, unsigned int joint_count, const double* start_joints,
    const double* end_joints, unsigned int point_count, QORIN_POSE_TYPE type, double* x, double* y, double* z);

/**
 * Local form of qorin_rpc_robot_util_joint_angle_to_pose_convert().
 *
 * @param robot_id          robot id, 0 or 1.
 * @param type              whether the pose of the flange or of the TCP is asked for.
 * @param joints            [joints] joint angles in degrees, one double per joint.
 * @param[out] position     [3] x, y, z, 3 doubles.
 * @param[out] orientation  [3] rx, ry, rz in degrees, 3 doubles.
 * @return as that one; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected and the TCP is asked
 *         for.
 */
QORIN_API QORIN_API_RESULT qorin_robot_util_joint_angle_to_pose_convert(unsigned int robot_id, QORIN_POSE_TYPE type,
                                                                        const double* joints, double* position,
                                                                        double* orientation);

/**
 * Local form of qorin_rpc_robot_util_pose_to_joint_angle_convert().
 *
 * @param robot_id     robot id, 0 or 1.
 * @param type         what the pose is a pose of: flange or TCP.
 * @param reference    [joints] joint angles in degrees that the solution shall be near to, one double per joint.
 * @param position     [3] x, y, z, 3 doubles.
 * @param orientation  [3] rx, ry, rz in degrees, 3 doubles.
 * @param[out] joints  [joints] joint angles in degrees, one double per joint.
 * @return as that one; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected, unless the pose is
 *         the flange's and has a solution near the reference.
 */
QORIN_API QORIN_API_RESULT qorin_robot_util_pose_to_joint_angle_convert(unsigned int robot_id, QORIN_POSE_TYPE type,
                                                                        const double* reference, const double* position,
                                                                        const double* orientation, double* joints);

/**
 * Local form of qorin_rpc_robot_util_pose_to_joint_angle_convert_iterative().
 *
 * @param robot_id     robot id, 0 or 1.
 * @param type         what the pose is a pose of: flange or TCP.
 * @param reference    [joints] joint angles in degrees to start from, one double per joint.
 * @param position     [3] x, y, z, 3 doubles.
 * @param orientation  [3] rx, ry, rz in degrees, 3 doubles; of all steps, it is not interpolated.
 * @param steps        number of steps; 1 solves the target alone, 0 hands back the reference joints.
 * @param[out] joints  [joints] joint angles in degrees, one double per joint.
 * @return as that one; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_util_pose_to_joint_angle_convert_iterative(
    unsigned int robot_id, QORIN_POSE_TYPE type, const double* reference, const double* position,
    const double* orientation, unsigned int steps, double* joints);

/**
 * Local form of qorin_rpc_robot_util_pose_to_joint_all_possible_angle_convert().
 *
 * @param robot_id     robot id, 0 or 1.
 * @param position     [3] x, y, z of the flange, 3 doubles.
 * @param orientation  [3] rx, ry, rz of the flange in degrees, 3 doubles.
 * @param[out] joints  [8, joints] 8 joint arrays, one after the other: 8 times the joints of the module, 48 doubles for
 *                     6.
 * @param[out] valid   [8] 8 flags, which solutions exist.
 * @return as that one, without QORIN_API_RESULT_ERROR_CBOX_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_robot_util_pose_to_joint_all_possible_angle_convert(unsigned int robot_id,
                                                                                     const double* position,
                                                                                     const double* orientation,
                                                                                     double* joints, bool* valid);

/**
 * Local form of qorin_rpc_robot_util_pose_to_posture_joint_angle_convert().
 *
 * @param robot_id      robot id, 0 or 1.
 * @param posture       one of the 8 postures.
 * @param position      [3] x, y, z of the flange, 3 doubles.
 * @param orientation   [3] rx, ry, rz of the flange in degrees, 3 doubles.
 * @param[out] joints   [joints] joint angles in degrees, one double per joint; untouched without a solution.
 * @param[out] success  whether there is a solution.
 * @return as that one, without QORIN_API_RESULT_ERROR_CBOX_ID_INVALID.
 */
QORIN_API QORIN_API_RESULT qorin_robot_util_pose_to_posture_joint_angle_convert(unsigned int robot_id,
                                                                                QORIN_ROBOT_POSTURE posture,
                                                                                const double* position,
                                                                                const double* orientation,
                                                                                double* joints, bool* success);

/**
 * Local form of qorin_rpc_robot_util_position_trajectory_get().
 *
 * @param robot_id      robot id, 0 or 1.
 * @param joint_count   doubles in each joint array; must be the number of joints that the mirror tells.
 * @param start_joints  [joints] joint angles in degrees at the start.
 * @param end_joints    [joints] joint angles in degrees at the end.
 * @param point_count   number of points; 0 writes nothing. With 1 the point comes from angles that are no numbers.
 * @param type          whether positions of the flange or of the TCP are asked for.
 * @param[out] x        [point_count] x of the points, point_count doubles.
 * @param[out] y        [point_count] y of the points, point_count doubles.
 * @param[out] z        [point_count] z of the points, point_count doubles.
 * @return as that one; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_util_position_trajectory_get(unsigned int robot_id, unsigned int joint_count,
                                                                    const double* start_joints,
                                                                    const double* end_joints, unsigned int point_count,
                                                                    QORIN_POSE_TYPE type, double* x, double* y,
                                                                    double* z);

QORIN_API_C_END

#endif
