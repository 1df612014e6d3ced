#include "simulator/motion/blend_junction.h"

#include <algorithm>
#include <cmath>

#include "simulator/motion/pose_frame.h"

namespace cbox_simulator::motion
{
namespace
{
/// How long two motions that meet at speed take to go over into each other, at most. Seconds.
constexpr double passing_time = 0.05;
/// The cosine of the greatest angle at which two motions may meet at speed: one degree.
constexpr double same_direction = 0.99984769515639;

/// Between the lower of both limits and the longer of both jerk shares.
struct blend_limits
{
    blend_limits(const motion_limits& before, const motion_limits& after)
        : acceleration(std::min(before.dec_max, after.acc_max)),
          jerk_share(std::max(before.jerk_share(), after.jerk_share()))
    {
    }

    /// The shortest time in which a speed can change by what one would go in half of that time.
    [[nodiscard]] double time_for(double change, double greatest) const
    {
        return std::sqrt(2 * change / (greatest * (1 - jerk_share / 2)));
    }
    [[nodiscard]] double time_for(double change) const { return time_for(change, acceleration); }

    double acceleration;
    double jerk_share;
};

/// Millimetres of the position as the way's own units.
double in_units(const pose_path& path, double millimetres)
{
    return path.way() > 0 ? millimetres * path.length() / path.way() : millimetres;
}

Eigen::Vector3d tcp_position(const joint_array& joints, const arm_kinematics& solver, const pose& tool)
{
    const auto flange = solver.forward(joints);
    const auto& [p, o] = flange;
    return position_of(placed({p[0], p[1], p[2], o[0], o[1], o[2]}, tool));
}

/// How far from a corner (its start or its end) a joint motion stays within the radius, up to half of it. Degrees.
double length_within(const joint_motion& motion, bool from_end, double radius, const arm_kinematics& solver,
                     const pose& tool)
{
    constexpr int looks = 32;
    constexpr int halvings = 20;
    const auto tcp_at = [&](double length)
    { return tcp_position(motion.along(from_end ? motion.length() - length : length), solver, tool); };
    const Eigen::Vector3d corner = tcp_at(0);
    const auto is_within = [&](double length) { return (tcp_at(length) - corner).norm() <= radius; };

    double within = 0;
    double beyond = 0;
    const double step = motion.length() / 2 / looks;
    for (int i = 1; i <= looks && is_within(step * i); ++i)
        within = step * i;
    beyond = within + step;
    if (beyond > motion.length() / 2 + step / 2)
        return within;
    for (int i = 0; i < halvings; ++i)
    {
        const double middle = (within + beyond) / 2;
        (is_within(middle) ? within : beyond) = middle;
    }
    return within;
}

double blend_time(const joint_motion& before, const joint_motion& after, const junction& at, const blend_limits& limits)
{
    double time = 0;
    for (std::size_t joint = 0; joint < joint_count; ++joint)
    {
        const double change = (after.end()[joint] - after.start()[joint]) / after.length() * at.arriving -
                              (before.end()[joint] - before.start()[joint]) / before.length() * at.leaving;
        const double greatest = std::min(
            {limits.acceleration, before.bounds()[joint].acceleration_max, after.bounds()[joint].acceleration_max});
        time = std::max(time, limits.time_for(std::abs(change), greatest));
    }
    return time;
}

double blend_time(const tcp_motion& before, const tcp_motion& after, const junction& at, const blend_limits& limits)
{
    const pose_path& first = before.path();
    const pose_path& second = after.path();
    const Eigen::Vector3d turned =
        vector_of(second.turning_at(0)) * at.arriving - vector_of(first.turning_at(first.length())) * at.leaving;
    const Eigen::Vector3d gone =
        vector_of(second.direction_at(0)) * (second.way() / second.length() * at.arriving) -
        vector_of(first.direction_at(first.length())) * (first.way() / first.length() * at.leaving);
    return limits.time_for(std::max(turned.norm(), gone.norm()));
}

/// Joints and space have no common measure of acceleration: each side keeps its own.
template <class Before, class After>
double blend_time(const Before& before, const After& after, const junction& at, const blend_limits& limits)
{
    return std::max(limits.time_for(at.leaving, before.limits().dec_max),
                    limits.time_for(at.arriving, after.limits().acc_max));
}

struct blend_maker
{
    double radius;
    const arm_kinematics& solver;
    const pose& tool;
    junction& made;

    double reach(const tcp_motion& motion, bool /*from_end*/, bool /*with_joints*/) const
    {
        return std::min(in_units(motion.path(), radius), motion.length() / 2);
    }
    double reach(const joint_motion& motion, bool from_end, bool with_joints) const
    {
        return with_joints ? std::min(radius, motion.length() / 2)
                           : length_within(motion, from_end, radius, solver, tool);
    }

    template <class Before, class After>
    QORIN_API_RESULT operator()(const Before& before, const After& after) const
    {
        constexpr bool in_joints = std::is_same_v<Before, joint_motion> && std::is_same_v<After, joint_motion>;
        if constexpr (std::is_same_v<Before, tcp_motion> && std::is_same_v<After, tcp_motion>)
            if (before.pose_type() != after.pose_type())
                return QORIN_API_RESULT_ERROR_COULD_NOT_SET_BLENDING_MODE;
        made.leaving = reach(before, true, in_joints);
        made.arriving = reach(after, false, in_joints);
        if (!(made.leaving > 0 && made.arriving > 0))
        {
            made = {};
            return QORIN_API_RESULT_OK;
        }
        const blend_limits limits(before.limits(), after.limits());
        made.jerk_share = limits.jerk_share;
        made.time = std::max({2 * made.leaving / before.limits().speed_max,
                              2 * made.arriving / after.limits().speed_max, blend_time(before, after, made, limits)});
        return QORIN_API_RESULT_OK;
    }
};

/// Whether two ways go on in the same direction; turns in place turn about the same axis.
bool go_on(const pose_path& before, const pose_path& after)
{
    const bool move = before.way() > 0 && after.way() > 0;
    const Eigen::Vector3d first =
        vector_of(move ? before.direction_at(before.length()) : before.turning_at(before.length()));
    const Eigen::Vector3d second = vector_of(move ? after.direction_at(0) : after.turning_at(0));
    return (before.way() > 0) == (after.way() > 0) &&
           first.dot(second) >= same_direction * first.norm() * second.norm();
}

QORIN_API_RESULT meet_at_speed(const tcp_motion& before, const tcp_motion& after, junction& made)
{
    const double speed = std::min(before.end_speed(), after.start_speed());
    if (!(speed > 0) || !(before.length() > 0 && after.length() > 0))
        return QORIN_API_RESULT_OK;
    if (before.pose_type() != after.pose_type() || !go_on(before.path(), after.path()))
        return QORIN_API_RESULT_ERROR_MOTION_DIRECTION_VECTOR_NOT_SAME;
    const double leaving = std::min(in_units(before.path(), speed), before.limits().speed_max);
    const double arriving = std::min(in_units(after.path(), speed), after.limits().speed_max);
    made.time = std::min({passing_time, before.length() / 2 / leaving, after.length() / 2 / arriving});
    made.leaving = leaving * made.time / 2;
    made.arriving = arriving * made.time / 2;
    made.jerk_share = blend_limits(before.limits(), after.limits()).jerk_share;
    made.at_told_speed = true;
    return QORIN_API_RESULT_OK;
}
} // namespace

QORIN_API_RESULT meet(const motion_link& before, const any_motion& after, const arm_kinematics& solver,
                      const pose& tool, junction& made)
{
    if (before.blend_radius > 0)
        return std::visit(blend_maker{before.blend_radius, solver, tool, made}, before.motion, after);
    const auto* ending = std::get_if<tcp_motion>(&before.motion);
    const auto* starting = std::get_if<tcp_motion>(&after);
    return ending && starting ? meet_at_speed(*ending, *starting, made) : QORIN_API_RESULT_OK;
}

double speed_change_limit(double speed, double rate, double length)
{
    return std::sqrt(speed * speed + 2 * rate * length);
}
} // namespace cbox_simulator::motion
