#include <cmath>
#include <cstddef>
#include <vector>

#include "savrent/cc/math/custum_util.h"
#include "savrent/cc/math/operations.h"
#include "savrent/cc/math/plane.h"
#include "savrent/cc/math/ray.h"
#include "savrent/cc/math/util.h"

namespace savrent::cc::math_savrent
{
using math::plane;
using math::ray;

namespace
{
/// Bend in degrees below which three points are in line, and the deviation up to which a path turns straight back.
constexpr double straight_limit = 1.0;
/// Distance between the two constructions of a centre from which on there is none.
constexpr double centre_gap = 0.001;
// The further limits are single-precision values, as is the pi of circumferences.
constexpr double same_limit = 0.001F;
constexpr double circle_pi = static_cast<float>(math::detail::pi);

double circumference_of(const vector3& point, const vector3& centre)
{
    return 2.0 * point.distance(centre) * circle_pi;
}

/// Where a line meets a plane; the ray is turned round when the plane lies behind it.
vector3 meet(ray line, const plane& across)
{
    std::pair<bool, double> hit = line.intersects(across);
    if (!hit.first)
    {
        line.setDirection(-line.getDirection());
        hit = line.intersects(across);
    }
    return line.getPoint(hit.second);
}

/// Whether the three points, seen from a centre, lie in one plane with it.
bool in_one_plane(const vector3& p1, const vector3& p2, const vector3& p3, const vector3& centre)
{
    const vector3 u1 = (centre - p1).normalisedCopy();
    const vector3 u2 = (centre - p2).normalisedCopy();
    const vector3 u3 = (centre - p3).normalisedCopy();
    const vector3 outer = u1.crossProduct(u3); // stands in for neighbours that face each other
    const bool cancel_12 = (u1 + u2).length() < same_limit;
    const bool cancel_23 = (u2 + u3).length() < same_limit;
    const vector3 c1 = (cancel_12 ? outer : u1.crossProduct(u2)).normalisedCopy();
    const vector3 c2 = (cancel_23 ? outer : u2.crossProduct(u3)).normalisedCopy();
    return (c1 - c2).length() <= same_limit || (c1 + c2).length() <= same_limit;
}

/// The angle in degrees that an arc covers.
double arc_angle(const vector3& start, const vector3& mid, const vector3& end, const vector3& centre)
{
    const vector3 to_start = start - centre;
    const vector3 to_mid = mid - centre;
    const vector3 to_end = end - centre;
    const double a = to_start.angleBetween(to_mid).valueDegrees();
    const double b = to_mid.angleBetween(to_end).valueDegrees();
    const double c = to_start.angleBetween(to_end).valueDegrees();
    return std::fabs(a + b - c) < same_limit ? c : 360.0 - c;
}

/**
 * The control polygon whose uniform cubic B-spline passes through the points.
 *
 * At each knot the spline is (left + 4 middle + right) / 6. With straight ends the first and last control
 * point are the points themselves, and Thomas' elimination solves for those between.
 */
std::vector<vector3> control_polygon_through(std::span<const vector3> points)
{
    std::vector<vector3> polygon(points.begin(), points.end());
    std::vector<double> pivot(points.size(), 0.0);
    for (std::size_t i = 1; i + 1 < points.size(); ++i)
    {
        pivot[i] = 1.0 / (4.0 - pivot[i - 1]);
        polygon[i] = (6.0 * points[i] - polygon[i - 1]) * pivot[i];
    }
    for (std::size_t i = points.size() - 1; i-- > 1;)
        polygon[i] -= polygon[i + 1] * pivot[i];
    return polygon;
}
} // namespace

bool custum_util::is_straight_line_three_pts(const vector3& p1, const vector3& p2, const vector3& p3)
{
    vector3 first = p1 - p2;
    vector3 second = p2 - p3;
    if (!(first.normalise() > 0.0) || !(second.normalise() > 0.0))
        return true;
    const double bend = first.angleBetween(second).valueDegrees();
    return bend < straight_limit || 180.0 - bend <= straight_limit;
}

bool custum_util::get_outer_circle_center(const vector3& p1, const vector3& p2, const vector3& p3, vector3& centre)
{
    const vector3 m12 = p1.midPoint(p2);
    const vector3 m23 = p2.midPoint(p3);
    const vector3 m31 = p3.midPoint(p1);
    const vector3 d12 = p2 - p1;
    const vector3 d23 = p3 - p2;
    const vector3 d31 = p1 - p3;
    const vector3 n = d12.crossProduct(d23);
    const vector3 b23 = d23.crossProduct(n).normalisedCopy();
    const vector3 b31 = d31.crossProduct(n).normalisedCopy();

    const plane bisector(d12, m12);
    const vector3 a = meet({m23, b23}, bisector);
    const vector3 b = meet({m31, b31}, bisector);
    if (!(a.distance(b) < centre_gap))
        return false;
    const double r1 = a.distance(p1);
    const double r2 = a.distance(p2);
    const double r3 = a.distance(p3);
    if (std::fabs(r1 - r2) > same_limit || std::fabs(r3 - r2) > same_limit || !in_one_plane(p1, p2, p3, a))
        return false;
    centre = a;
    return true;
}

bool custum_util::get_arc_length(const vector3& start, const vector3& mid, const vector3& end, const vector3& centre,
                                 double& length)
{
    length = arc_angle(start, mid, end, centre) * circumference_of(start, centre) / 360.0;
    return true;
}

bool custum_util::get_point_on_circle_by_delta_distance(const vector3& start, const vector3& centre,
                                                        const vector3& axis, double distance, vector3& point)
{
    const double circumference = circumference_of(start, centre);
    if (distance > circumference)
        distance -= circumference;
    vector3 spoke;
    rotate_vector(start - centre, axis, distance / circumference * 360.0, spoke);
    point = centre + spoke;
    return true;
}

bool custum_util::calc_end_ort_in_arc(const vector3& start, const vector3& mid, const vector3& end,
                                      const vector3& start_orientation, vector3& end_orientation)
{
    vector3 centre;
    if (is_straight_line_three_pts(start, mid, end) || !get_outer_circle_center(start, mid, end, centre))
    {
        end_orientation = start_orientation;
        return false;
    }
    const vector3 axis = (mid - start).crossProduct(end - mid).normalisedCopy();
    matrix3 turn;
    turn.FromAngleAxis(axis, math::degree(arc_angle(start, mid, end, centre)));
    matrix3 orientation;
    convert_euler_angle_to_rot_mat(start_orientation, orientation);
    convert_rot_mat_to_euler_angle(turn * orientation, end_orientation);
    return true;
}

bool custum_util::get_tangent_pts_and_inscribed_circle_center_between_two_vectors(
    const vector3& corner, const vector3& direction_1, const vector3& direction_2, double radius,
    vector3& tangent_point_1, vector3& tangent_point_2, vector3& centre)
{
    const vector3 u1 = direction_1.normalisedCopy();
    const vector3 u2 = direction_2.normalisedCopy();
    const double double_sine = u1.crossProduct(u2).length();
    if (!(double_sine > 1e-9))
        return false;
    // With h the half of the corner's angle: the tangent points lie at radius / tan h, and the centre on
    // the bisector at radius / sin h, that is at radius / sin 2h along each direction.
    const vector3 from = corner;
    const double to_tangent = radius * (1.0 + u1.dotProduct(u2)) / double_sine;
    tangent_point_1 = from + u1 * to_tangent;
    tangent_point_2 = from + u2 * to_tangent;
    centre = from + (u1 + u2) * (radius / double_sine);
    return true;
}

bool custum_util::get_points_by_bspline(std::span<const vector3> control_points, std::span<vector3> points)
{
    if (control_points.size() < 2 || points.size() < 2)
        return false;
    const std::vector<vector3> polygon = control_polygon_through(control_points);
    const std::size_t last_span = polygon.size() - 2;
    const double step = static_cast<double>(polygon.size() - 1) / static_cast<double>(points.size() - 1);
    for (std::size_t k = 0; k < points.size(); ++k)
    {
        const double parameter = static_cast<double>(k) * step;
        const std::size_t i = std::min(static_cast<std::size_t>(parameter), last_span);
        const double t = parameter - static_cast<double>(i);
        const double s = 1.0 - t;
        // Straight ends: the polygon goes on mirrored at its first and last point.
        const vector3 before = i > 0 ? polygon[i - 1] : 2.0 * polygon[0] - polygon[1];
        const vector3 after = i < last_span ? polygon[i + 2] : 2.0 * polygon[i + 1] - polygon[i];
        points[k] = (before * (s * s * s) + polygon[i] * (4.0 - 6.0 * t * t + 3.0 * t * t * t) +
                     polygon[i + 1] * (4.0 - 6.0 * s * s + 3.0 * s * s * s) + after * (t * t * t)) /
                    6.0;
    }
    return true;
}
} // namespace savrent::cc::math_savrent
