#include "simulator/motion/jog.h"

#include <algorithm>
#include <cmath>

#include "simulator/motion/joint_way.h"
#include "simulator/motion/pose_frame.h"

namespace cbox_simulator::motion
{
namespace
{
/// Of the walk to where a jog ends, in its units. The shortest step is also how far a jog stays away from there.
constexpr double longest_step = 20;
constexpr double shortest_step = 1e-3;
/// A step in which a joint goes farther is halved. Degrees.
constexpr double wide = 2;
/// A turn in place may go on for as long as any wrist can.
constexpr double farthest_turn = 720;

motion_limits limits_of(const jog_speed& told)
{
    motion_limits limits;
    limits.speed_max = told.speed;
    limits.acc_max = limits.dec_max = told.acceleration;
    return limits;
}

pose tcp_at(const moving_arm& arm, const joint_array& joints)
{
    const auto [p, o] = arm.solver.forward(joints);
    return placed({p[0], p[1], p[2], o[0], o[1], o[2]}, arm.tool);
}

Eigen::Vector3d unit(const vector3& vector)
{
    return vector_of(vector).normalized();
}

/// How far along the path the arm can go at the speed.
double room_on(const pose_path& path, const moving_arm& arm, const joint_array& start, double speed)
{
    joint_array joints = start;
    double gone = 0;
    double step = std::min(longest_step, path.length());
    while (gone < path.length() && step >= shortest_step)
    {
        const double next = std::min(gone + step, path.length());
        motion_sample sample;
        sample.point = path_point{path.at(next), QORIN_POSE_TYPE_TCP, {}};
        const auto reached = sample.to_joints(arm.solver, arm.tool, joints);
        const double way = reached ? farthest(joints, *reached) : 0;
        if (!reached || way > wide || !is_within(arm.bounds, *reached) || arm.solver.is_wrist_straight(*reached) ||
            speed_margin(arm.bounds, joints, *reached, (next - gone) / speed) < 1)
        {
            step /= 2;
            continue;
        }
        joints = *reached;
        gone = next;
        step = way < wide / 4 ? std::min(2 * step, longest_step) : step;
    }
    return gone;
}

/// A path is made by the length that it is to have.
template <class Maker>
planned_motion jog_along(const Maker& path_of, double farthest_way, const moving_arm& arm, const joint_array& start,
                         const jog_speed& told)
{
    const double room = room_on(path_of(farthest_way), arm, start, told.speed);
    return planned_motion(tcp_motion(path_of(room), limits_of(told)));
}
} // namespace

planned_motion jog_joint(const joint_array& start, std::size_t joint, QORIN_DIRECTION direction, const jog_speed& told,
                         const joint_bounds& bounds)
{
    joint_array end = start;
    end[joint] = direction == QORIN_DIRECTION_POSITIVE ? std::max(start[joint], bounds[joint].angle_max)
                                                       : std::min(start[joint], bounds[joint].angle_min);
    return planned_motion(joint_motion(start, end, limits_of(told), bounds));
}

planned_motion jog_position(const moving_arm& arm, const joint_array& start, const vector3& along,
                            const jog_speed& told, double distance)
{
    const pose from = tcp_at(arm, start);
    const double across_reach = 2 * (total_length(arm.solver.table()) + position_of(arm.tool).norm());
    const auto path_of = [&](double length)
    {
        pose end = from;
        Eigen::Vector3d::Map(end.data()) += unit(along) * length;
        return pose_path::line(from, end);
    };
    return jog_along(path_of, std::min(distance, across_reach), arm, start, told);
}

planned_motion jog_orientation(const moving_arm& arm, const joint_array& start, const vector3& about,
                               const jog_speed& told, double angle)
{
    const pose from = tcp_at(arm, start);
    const auto path_of = [&](double length) { return pose_path::turn_about(from, vector3_of(unit(about)), length); };
    return jog_along(path_of, std::min(angle, farthest_turn), arm, start, told);
}
} // namespace cbox_simulator::motion
