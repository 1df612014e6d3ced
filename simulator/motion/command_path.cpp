#include "simulator/motion/command_path.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "simulator/motion/orientation_course.h"
#include "simulator/motion/pose_frame.h"
#include "simulator/motion/position_curve.h"

namespace cbox_simulator::motion
{
namespace
{
using Eigen::Quaterniond;
using Eigen::Vector3d;

struct told_curve
{
    QORIN_API_RESULT result = QORIN_API_RESULT_OK;
    curve_pointer curve;
};

/// What a command tells, seen from the base.
class told_points
{
public:
    told_points(const tcp_path& told, const pose& start)
        : told_(told), start_(position_of(start)), turn_(rotation_of(start))
    {
    }

    [[nodiscard]] const Vector3d& start() const { return start_; }
    [[nodiscard]] const Quaterniond& start_orientation() const { return turn_; }

    [[nodiscard]] Vector3d seen_from_base(const vector3& position) const
    {
        if (told_.coordinate == QORIN_REF_COORDINATE_TCP)
            return start_ + turn_ * vector_of(position);
        return told_.offset_mode == QORIN_SWITCH_ON ? Vector3d(start_ + vector_of(position)) : vector_of(position);
    }

    [[nodiscard]] Vector3d end() const
    {
        if (told_.direction)
        {
            const Vector3d way = vector_of(*told_.direction);
            return (told_.position_start ? seen_from_base(*told_.position_start) : start_) +
                   (told_.coordinate == QORIN_REF_COORDINATE_TCP ? Vector3d(turn_ * way) : way);
        }
        return told_.position_end ? seen_from_base(*told_.position_end) : start_;
    }

    /// Nothing when none is told.
    [[nodiscard]] std::optional<Quaterniond> end_orientation() const
    {
        if (!told_.orientation_end)
            return {};
        const vector3& o = *told_.orientation_end;
        const Quaterniond end = rotation_of(pose{0, 0, 0, o[0], o[1], o[2]});
        if (told_.coordinate == QORIN_REF_COORDINATE_TCP)
            return turn_ * end;
        return told_.offset_mode == QORIN_SWITCH_ON ? end * turn_ : end;
    }

    /// As it is told where it can be, so that a motion ends on the very numbers.
    [[nodiscard]] pose end_pose(const Vector3d& position, const Quaterniond& orientation, const pose& start) const
    {
        pose end = pose_of(position, orientation);
        const bool from_base = told_.coordinate == QORIN_REF_COORDINATE_BASE && told_.offset_mode != QORIN_SWITCH_ON;
        if (told_.orientation_end && from_base)
            std::ranges::copy(*told_.orientation_end, end.begin() + 3);
        else if (!told_.orientation_end && orientation.coeffs() == turn_.coeffs())
            std::copy(start.begin() + 3, start.end(), end.begin() + 3);
        return end;
    }

private:
    const tcp_path& told_;
    Vector3d start_;
    Quaterniond turn_;
};

constexpr auto missing = QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY;
constexpr auto same = QORIN_API_RESULT_ERROR_MOTION_TWO_POSITION_SAME;

told_curve judged(curve_pointer curve, QORIN_API_RESULT otherwise)
{
    const auto result = curve ? QORIN_API_RESULT_OK : otherwise;
    return {result, std::move(curve)};
}

told_curve circular(const tcp_path& told, const told_points& points)
{
    if (!told.position_mid)
        return {missing, {}};
    const Vector3d mid = points.seen_from_base(*told.position_mid);
    const Vector3d end = points.end();
    if (points.start() == mid || mid == end || end == points.start())
        return {same, {}};
    return judged(told.interpolator == QORIN_INTERPOLATOR_CIRCLE ? circle_through(points.start(), mid, end)
                                                                 : arc_through(points.start(), mid, end),
                  QORIN_API_RESULT_ERROR_ROBOT_THREE_POINTS_STRAIGHT_LINE);
}

told_curve at_tangent(const tcp_path& told, const told_points& points, const std::optional<vector3>& arriving)
{
    if (!told.position_mid && !arriving)
        return {missing, {}};
    const Vector3d ahead =
        told.position_mid ? Vector3d(points.seen_from_base(*told.position_mid) - points.start()) : vector_of(*arriving);
    if (points.end() == points.start() || ahead.isZero(0))
        return {same, {}};
    return judged(arc_at_tangent(points.start(), ahead.normalized(), points.end()),
                  QORIN_API_RESULT_ERROR_MOTION_DIRECTION_VECTOR_NOT_SAME);
}

/// To the right for who looks ahead with the tool's work below, so that the arc turns left.
Vector3d bulge_to_the_right(const told_points& points, const Vector3d& ahead)
{
    for (const Vector3d& into_work : {Vector3d(points.start_orientation() * Vector3d::UnitZ()),
                                      Vector3d(-Vector3d::UnitZ()), Vector3d(-Vector3d::UnitX())})
        if (Vector3d right = into_work.cross(ahead); right.norm() > 1e-6 * ahead.norm())
            return right;
    return Vector3d::UnitY();
}

told_curve arc(const tcp_path& told, const told_points& points)
{
    const Vector3d ahead = points.end() - points.start();
    if (ahead.isZero(0))
        return {same, {}};
    Vector3d bulge = bulge_to_the_right(points, ahead);
    bool longer = false;
    if (told.position_mid)
    {
        const Vector3d to_mid = points.seen_from_base(*told.position_mid) - points.start();
        const Vector3d aside = to_mid - to_mid.dot(ahead) / ahead.squaredNorm() * ahead;
        if (aside.norm() <= 1e-9 * ahead.norm())
            return {QORIN_API_RESULT_ERROR_ROBOT_THREE_POINTS_STRAIGHT_LINE, {}};
        bulge = aside;
        longer = aside.norm() > told.radius;
    }
    return judged(arc_of_radius(points.start(), points.end(), told.radius, bulge, longer),
                  QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE);
}

told_curve free_path(const tcp_path& told, const told_points& points)
{
    if (told.free_path_points.empty())
        return {missing, {}};
    std::vector<Vector3d> through{points.start()};
    for (const vector3& point : told.free_path_points)
    {
        through.push_back(points.seen_from_base(point));
        if (through.back() == *(through.end() - 2))
            return {same, {}};
    }
    return {QORIN_API_RESULT_OK, curve_through(through)};
}

told_curve curve_of(const tcp_path& told, const told_points& points, const std::optional<vector3>& arriving)
{
    switch (told.interpolator)
    {
    case QORIN_INTERPOLATOR_CIRCULAR:
    case QORIN_INTERPOLATOR_CIRCLE:
        return circular(told, points);
    case QORIN_INTERPOLATOR_CIRCULAR_TO_TANGENT:
        return at_tangent(told, points, arriving);
    case QORIN_INTERPOLATOR_ARC:
        return arc(told, points);
    case QORIN_INTERPOLATOR_FREE_PATH:
        return free_path(told, points);
    case QORIN_INTERPOLATOR_ORT_JOG:
        return {told.orientation_end ? QORIN_API_RESULT_OK : missing, line_between(points.start(), points.start())};
    default:
        return {QORIN_API_RESULT_OK, line_between(points.start(), points.end())};
    }
}

Vector3d end_position(const tcp_path& told, const told_points& points)
{
    if (told.interpolator == QORIN_INTERPOLATOR_FREE_PATH)
        return points.seen_from_base(told.free_path_points.back());
    const bool stays =
        told.interpolator == QORIN_INTERPOLATOR_CIRCLE || told.interpolator == QORIN_INTERPOLATOR_ORT_JOG;
    return stays ? points.start() : points.end();
}

bool tells_an_end(const tcp_path& told)
{
    return told.position_end || told.direction || told.orientation_end || !told.free_path_points.empty();
}
} // namespace

told_path path_of(const tcp_path& told, const pose& start, const std::optional<vector3>& arriving)
{
    if (!tells_an_end(told))
        return {missing, {}};
    const told_points points(told, start);
    auto [result, curve] = curve_of(told, points, arriving);
    if (result != QORIN_API_RESULT_OK)
        return {result, {}};

    const auto end = points.end_orientation();
    const bool carried = told.orientation_mode == QORIN_ORIENTATION_MODE_AXIS ||
                         (told.orientation_mode == QORIN_ORIENTATION_MODE_AUTO && !end);
    const Quaterniond& from = points.start_orientation();
    course_pointer course = carried ? turn_along(curve, from, end) : shortest_turn(from, end.value_or(from));
    const Quaterniond end_orientation = end ? *end : (carried ? course->at(1) : from);
    const pose end_pose = points.end_pose(end_position(told, points), end_orientation, start);
    return {QORIN_API_RESULT_OK, pose_path(std::move(curve), std::move(course), start, end_pose)};
}
} // namespace cbox_simulator::motion
