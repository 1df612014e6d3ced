/**
 * @file custum_util.h
 * Geometry of poses, circles and arcs.
 */
#ifndef SAVRENT_CC_MATH_CUSTUM_UTIL_H
#define SAVRENT_CC_MATH_CUSTUM_UTIL_H

#include <span>

#include "qorin/export.h"
#include "savrent/cc/math/matrix3.h"
#include "savrent/cc/math/matrix4.h"
#include "savrent/cc/math/quaternion.h"
#include "savrent/cc/math/ray.h"
#include "savrent/cc/math/vector3.h"

namespace savrent::cc::math_savrent
{
using math::matrix3;
using math::matrix4;
using math::quaternion;
using math::vector3;

/**
 * Geometry of the robot: the pose convention, and circles and arcs on a path.
 *
 * A pose is a position and an orientation (rx, ry, rz), Euler angles in degrees with the rotation
 * Rz(rz) * Ry(ry) * Rx(rx). Lengths keep the caller's unit. All members are static, have no state, may be
 * called from any thread, and take outputs that are also inputs.
 */
class QORIN_API custum_util
{
public:
    /// @name Conversions
    /// @{
    /**
     * @param euler Degrees. At the gimbal lock, ry of 90 or -90, rz is 0 and rx takes the whole turn.
     * @return False at the gimbal lock.
     */
    static bool convert_rot_mat_to_euler_angle(const matrix3& rotation, vector3& euler);
    static void convert_euler_angle_to_rot_mat(const vector3& euler, matrix3& rotation);
    static void convert_pose_to_trans_mat(const vector3& position, const vector3& orientation, matrix4& transformation);
    static void convert_trans_mat_to_pose(const matrix4& transformation, vector3& position, vector3& orientation);
    /** @param axis Unit; zero for angles of 0 and 180, which the matrix's skew part does not show. @param angle
     * Degrees. */
    static void convert_rot_mat_to_axis_angle(const matrix3& rotation, vector3& axis, double& angle);
    /**
     * @param axis  Of any length; the identity comes out for a zero axis.
     * @param angle Degrees. Below 1e-10, so also when negative, the identity comes out. From 360 on it is
     *              multiplied by its number of whole turns, so it is right below 720 only.
     */
    static void convert_axis_angle_to_rot_mat(const vector3& axis, double angle, matrix3& rotation);
    static void convert_quaternion_to_euler_angle(const quaternion& q, vector3& euler);
    /// @param q Unit.
    static void convert_euler_angle_to_quaternion(const vector3& euler, quaternion& q);
    /**
     * @param q              Of any length but zero.
     * @param rotation_vector Axis times angle in radians, 0 to two PI. Zero below some hundredths of a degree,
     *                       and of single precision only: the sine of the half angle is a float.
     */
    static void convert_quaternion_to_rot_vec(const quaternion& q, vector3& rotation_vector);
    /// @}

    /// @name Tool and flange; the offset is the pose of the TCP seen from the flange
    /// @{
    static void convert_tcp_at_base_to_flange_at_base(const vector3& tcp_position, const vector3& tcp_orientation,
                                                      const vector3& offset_position, const vector3& offset_orientation,
                                                      vector3& flange_position, vector3& flange_orientation);
    static void convert_flange_at_base_to_tcp_at_base(const vector3& flange_position, const vector3& flange_orientation,
                                                      const vector3& offset_position, const vector3& offset_orientation,
                                                      vector3& tcp_position, vector3& tcp_orientation);
    /// @}

    /// @name Circles and arcs
    /// @{
    /**
     * Whether the path bends by less than one degree, or turns back within one degree, the bound included.
     *
     * Points that coincide are in line.
     */
    static bool is_straight_line_three_pts(const vector3& p1, const vector3& p2, const vector3& p3);
    /**
     * Centre of the circle through three points.
     * @return False if the points do not give one within 0.001; the centre is then not to be used.
     */
    static bool get_outer_circle_center(const vector3& p1, const vector3& p2, const vector3& p3, vector3& centre);
    /// Length of the arc from start over mid to end. @return True.
    static bool get_arc_length(const vector3& start, const vector3& mid, const vector3& end, const vector3& centre,
                               double& length);
    /**
     * The point a distance further along a circle.
     *
     * @param axis     Right-handed sense of travel; of any length.
     * @param distance Along the circle; up to twice round.
     * @return True.
     */
    static bool get_point_on_circle_by_delta_distance(const vector3& start, const vector3& centre, const vector3& axis,
                                                      double distance, vector3& point);
    /**
     * Orientation at the end of an arc for a tool that keeps its attitude to the path.
     *
     * The start orientation is turned with the path, about the circle's axis by the angle of the arc.
     *
     * @param end_orientation Euler angles in degrees; the start orientation if the points give no circle.
     * @return False if the points give no circle.
     */
    static bool calc_end_ort_in_arc(const vector3& start, const vector3& mid, const vector3& end,
                                    const vector3& start_orientation, vector3& end_orientation);
    /**
     * Fillet of the corner between two lines: the inscribed circle of a radius and where it touches them.
     *
     * @param corner      Where the lines meet.
     * @param direction_1 From the corner along the first line; of any length.
     * @param direction_2 From the corner along the second line; of any length.
     * @param radius      Above 0.
     * @return False, with the outputs left alone, if the lines are parallel or a direction is zero.
     */
    static bool get_tangent_pts_and_inscribed_circle_center_between_two_vectors(
        const vector3& corner, const vector3& direction_1, const vector3& direction_2, double radius,
        vector3& tangent_point_1, vector3& tangent_point_2, vector3& centre);
    /// @}

    /// @name Motion
    /// @{
    /// (to - from) / time.
    static void calc_linear_velocity(const vector3& from, const vector3& to, double time, vector3& velocity);
    /**
     * @param velocity Degrees per second about the base's axes; zero for a turn of at most 0.001 degrees, and
     *                 also where convert_quaternion_to_rot_vec() gives zero.
     */
    static void calc_angular_velocity(const quaternion& from, const quaternion& to, double time, vector3& velocity);
    /// @}

    /// @name Points and vectors
    /// @{
    /// Foot of p on the line from the origin through q; not finite if both are the same.
    static void get_projection_p_onto_line_from_origin_to_q(const vector3& origin, const vector3& p, const vector3& q,
                                                            vector3& projection);
    /// Turns v right-handed about an axis of any length by an angle in degrees; a zero axis leaves v.
    static void rotate_vector(const vector3& v, const vector3& axis, double angle, vector3& rotated);
    /**
     * Points on a smooth curve through the control points.
     *
     * The curve is the uniform cubic B-spline that interpolates them and is not bent at its ends. It is
     * sampled at equal steps of its parameter, the first and the last control point included.
     *
     * @param control_points At least two.
     * @param points         Filled whole; its size is the number of samples, at least two.
     * @return False, with the points left alone, if there are too few of either.
     */
    static bool get_points_by_bspline(std::span<const vector3> control_points, std::span<vector3> points);
    /// @}
};
} // namespace savrent::cc::math_savrent

#endif
