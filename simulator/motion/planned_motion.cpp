#include "simulator/motion/planned_motion.h"

#include <algorithm>
#include <utility>

#include "simulator/motion/pose_frame.h"

namespace cbox_simulator::motion
{
namespace
{
using Eigen::Quaterniond;
using Eigen::Vector3d;

/// Of two ways that share a corner: what is left of the one and what is gone on the other, both laid off from it.
path_point blended(const path_point& ending, double ending_speed, const path_point& starting, double starting_speed,
                   const pose& corner)
{
    path_point made = starting;
    const Quaterniond gone = rotation_of(starting.target) * rotation_of(corner).conjugate();
    made.target = pose_of(position_of(ending.target) + (position_of(starting.target) - position_of(corner)),
                          gone * rotation_of(ending.target));
    const Vector3d speed = vector_of(ending.direction) * ending_speed + vector_of(starting.direction) * starting_speed;
    if (const double size = speed.norm(); size > 0)
        made.direction = vector3_of(speed / size);
    return made;
}
void add(joint_array& joints, const joint_array& more, double factor)
{
    for (std::size_t joint = 0; joint < joint_count; ++joint)
        joints[joint] += factor * more[joint];
}
} // namespace

blended_profile::blended_profile(const speed_ramp& arriving, const speed_profile& middle, const speed_ramp& leaving)
    : arriving_(arriving), middle_(middle), leaving_(leaving), leaving_start_(arriving.duration() + middle.duration())
{
}

profile_sample blended_profile::at(double time) const
{
    if (time < arriving_.duration())
        return arriving_.at(std::max(time, 0.0));
    const double into_leaving = time - leaving_start_;
    const bool leaves = into_leaving >= 0 && leaving_.duration() > 0;
    profile_sample sample =
        leaves ? leaving_.at(std::min(into_leaving, leaving_.duration())) : middle_.at(time - arriving_.duration());
    sample.position += arriving_.distance() + (leaves ? middle_.length() : 0);
    return sample;
}

planned_motion::planned_motion(any_motion motion)
{
    const speed_profile profile =
        std::visit([](const auto& told) { return speed_profile::plan(told.limits(), told.length()); }, motion);
    times_.push_back({0, profile.duration(), profile.duration()});
    commands_.push_back({std::move(motion), {{}, profile, {}}});
}

planned_motion::planned_motion(std::vector<command> commands) : commands_(std::move(commands))
{
    double start = 0;
    for (const command& one : commands_)
    {
        const double next = start + one.profile.leaving_start();
        times_.push_back({start, next, start + one.profile.duration()});
        start = next;
    }
}

motion_sample planned_motion::sample_of(std::size_t index, double time) const
{
    const any_motion& motion = commands_[index].motion;
    profile_sample on_way = commands_[index].profile.at(time - times_[index].start);
    motion_sample made;
    made.path_speed = on_way.speed;
    const bool ended = time >= times_[index].end;
    if (const auto* joints = std::get_if<joint_motion>(&motion))
    {
        made.joints = ended ? joints->end() : joints->along(on_way.position);
        return made;
    }
    const pose_path& path = std::get<tcp_motion>(motion).path();
    made.point = {ended ? path.end() : path.at(on_way.position), std::get<tcp_motion>(motion).pose_type(),
                  path.direction_at(on_way.position)};
    return made;
}

motion_sample planned_motion::blend(std::size_t index, double time) const
{
    const motion_sample ending = sample_of(index - 1, time);
    motion_sample made = sample_of(index, time);
    const any_motion& before = commands_[index - 1].motion;
    if (ending.point && made.point)
    {
        const pose& corner = std::get<tcp_motion>(before).path().end();
        made.point = blended(*ending.point, ending.path_speed, *made.point, made.path_speed, corner);
    }
    else if (ending.point)
    {
        add(made.joints, std::get<joint_motion>(commands_[index].motion).start(), -1);
        made.point = ending.point;
    }
    else
    {
        add(made.joints, ending.joints, 1);
        add(made.joints, std::get<joint_motion>(before).end(), -1);
    }
    made.path_speed = std::max(ending.path_speed, made.path_speed);
    return made;
}

double planned_motion::share_of_way(std::size_t index, double time) const
{
    const double length = std::visit([](const auto& motion) { return motion.length(); }, commands_[index].motion);
    return length > 0 ? commands_[index].profile.at(time - times_[index].start).position / length : 1;
}

motion_sample planned_motion::at(double time) const
{
    const auto after = std::upper_bound(times_.begin() + 1, times_.end(), time,
                                        [](double when, const command_times& times) { return when < times.start; });
    const auto index = static_cast<std::size_t>(after - times_.begin()) - 1;
    return index > 0 && time < times_[index - 1].end ? blend(index, time) : sample_of(index, time);
}
} // namespace cbox_simulator::motion
