#include "simulator/model/stream_sources.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "simulator/model/path_offset.h"

namespace cbox_simulator
{
namespace
{
using joint_array = motion_source::joint_array;

constexpr double arrival_distance = 1e-9; // degrees
constexpr double playback_lead_in = 0.1;  // seconds
constexpr double retreat_speed = 20;      // degrees per second

// Of timed targets, in seconds.
constexpr double shortest_target_time = 0.001;
constexpr double longest_target_time = 3600; // no joint needs more
constexpr double stretching = 1.05;          // until a target's time is long enough

/// Between two places with their speeds, both without acceleration.
struct quintic
{
    double from;
    double to;
    double speed_from; ///< In all of the time.
    double speed_to;

    /// At a share of the time: the place, and how it changes with the share, and that again.
    [[nodiscard]] std::array<double, 3> at(double s) const
    {
        const double way = to - from;
        const double c3 = 10 * way - 6 * speed_from - 4 * speed_to;
        const double c4 = -15 * way + 8 * speed_from + 7 * speed_to;
        const double c5 = 6 * way - 3 * (speed_from + speed_to);
        const double s2 = s * s;
        return {from + s * speed_from + s2 * s * (c3 + s * (c4 + s * c5)),
                speed_from + s2 * (3 * c3 + s * (4 * c4 + s * 5 * c5)), s * (6 * c3 + s * (12 * c4 + s * 20 * c5))};
    }
};

/// Where a joint comes to that is to go a way and can go no further in one cycle.
double stepped(double from, double way, double longest)
{
    return from + std::clamp(way, -longest, longest);
}

/// A place that a joint is to be at by the end of a cycle, and how fast it moves itself.
struct moving_target
{
    double place;
    double speed = 0;
};

/// Makes up for a share of what a joint is behind in each cycle, within its speed and acceleration, and for all of it
/// in the end.
void chase(double& place, double& speed, const moving_target& target, const savrent::kinematics::joint_range& range,
           double seconds)
{
    const double behind = target.place - target.speed * seconds - place;
    const double share = 1 - std::exp(-seconds / chaser_source::chase_time);
    // Slowing down with a quarter of the acceleration leads over into the shares, which begin with half of it.
    const double fastest = std::sqrt(range.acceleration_max * std::abs(behind) / 2);
    const double wanted = std::clamp(target.speed + std::clamp(behind * share / seconds, -fastest, fastest),
                                     -range.speed_max, range.speed_max);
    const double change = range.acceleration_max * seconds;
    // Onto the very target when it is that near; past one that has come too near too suddenly, and back.
    const double onto_it = (target.place - place) / seconds;
    const bool arrives = std::abs(behind) < arrival_distance && std::abs(onto_it - speed) <= change;
    speed = arrives ? onto_it : stepped(speed, wanted - speed, change);
    place = arrives ? target.place : place + speed * seconds;
}
} // namespace

bool turns_by_velocity(const robot_state& robot)
{
    const auto mode = robot.settings().control_mode;
    return (mode == QORIN_DRIVE_CONTROL_MODE_VELOCITY || mode == QORIN_DRIVE_CONTROL_MODE_VELOCITY_PROFILE) &&
           robot.settings().targets.velocity != joint_array{};
}

bool is_streamed_to(const robot_state& robot)
{
    const auto& settings = robot.settings();
    return settings.switches.joint_chaser == QORIN_SWITCH_ON || robot.profiler().active() == QORIN_SWITCH_ON ||
           robot.ext_move().active() == QORIN_SWITCH_ON || turns_by_velocity(robot) || is_taken_along(robot);
}

std::optional<joint_array> chaser_source::advance(const passing_time& time, robot_state& robot)
{
    joint_array joints = robot.commanded().joints;
    for (std::size_t joint = 0; joint < joints.size() && time.motion > 0; ++joint)
    {
        const auto range = robot.range_of(joint);
        const double target = std::min(std::max(target_[joint], range.angle_min), range.angle_max);
        chase(joints[joint], speeds_[joint], {target}, range, time.motion);
    }
    return joints;
}

void profiler_source::take_point(robot_state& robot, double cycle)
{
    const auto point = robot.profiler().take_due_point();
    if (!point)
        return;
    auto target = std::optional(point->values);
    if (point->form == profiler_point::kind::pose)
    {
        const bool of_tcp = robot.profiler().pose_type() == QORIN_POSE_TYPE_TCP;
        target = robot.joints_at(of_tcp ? outer_of(point->values, robot.tcp_from_flange()) : point->values,
                                 robot.commanded().joints);
    }
    if (!target || !robot.can_stand_at(*target))
        return;
    left_ = robot.profiler().period_cycles() * cycle;
    for (std::size_t joint = 0; joint < target->size(); ++joint)
        straight_[joint] = ((*target)[joint] - told_[joint]) / left_;
    target_ = *target;
}

std::optional<joint_array> profiler_source::advance(const passing_time& time, robot_state& robot)
{
    take_point(robot, time.clock);
    const bool moves = left_ > time.motion / 2;
    left_ -= time.motion;
    joint_array joints = robot.commanded().joints;
    for (std::size_t joint = 0; joint < joints.size() && time.motion > 0; ++joint)
    {
        // What is told goes straight from point to point; the arm goes with it as well as it can.
        const double speed = moves ? straight_[joint] : 0;
        told_[joint] = left_ > time.motion / 2 ? told_[joint] + speed * time.motion : target_[joint];
        chase(joints[joint], speeds_[joint], {told_[joint], speed}, robot.range_of(joint), time.motion);
    }
    return joints;
}

std::optional<joint_array> target_source::advance(const passing_time& time, robot_state& robot)
{
    passed_ += time.motion;
    if (passed_ >= duration_)
        go_on(robot);
    joint_array joints = to_.joints;
    for (std::size_t joint = 0; joint < joints.size() && passed_ < duration_; ++joint)
    {
        const quintic curve{from_.joints[joint], to_.joints[joint], from_.speeds[joint] * duration_,
                            to_.speeds[joint] * duration_};
        joints[joint] = curve.at(passed_ / duration_)[0];
    }
    return joints;
}

/// To the next target, from the very moment in which the last one was to be reached.
void target_source::go_on(robot_state& robot)
{
    const auto target = robot.ext_move().take();
    from_ = to_;
    if (!target)
    {
        passed_ = duration_ = 0;
        return;
    }
    passed_ = duration_ > 0 ? passed_ - duration_ : 0;
    to_ = {target->joints, speeds_at(*target, robot)};
    duration_ = std::max(target->seconds, shortest_target_time);
    while (duration_ < longest_target_time && is_too_fast(duration_, robot))
        duration_ *= stretching;
}

/// The arm passes a target when it knows where to go next: halfway between the speeds that both ways want, and at none
/// where a joint turns back.
joint_array target_source::speeds_at(const timed_target& target, const robot_state& robot) const
{
    joint_array speeds{};
    const auto* next = robot.ext_move().next();
    if (!next || robot.ext_move().stop_mode() == QORIN_SWITCH_ON)
        return speeds;
    for (std::size_t joint = 0; joint < speeds.size(); ++joint)
    {
        const double before =
            (target.joints[joint] - from_.joints[joint]) / std::max(target.seconds, shortest_target_time);
        const double behind =
            (next->joints[joint] - target.joints[joint]) / std::max(next->seconds, shortest_target_time);
        const double most = robot.range_of(joint).speed_max / 2;
        speeds[joint] = before * behind > 0 ? std::clamp((before + behind) / 2, -most, most) : 0;
    }
    return speeds;
}

bool target_source::is_too_fast(double seconds, const robot_state& robot) const
{
    constexpr int steps = 32;
    constexpr double between_steps = 0.99; // it may be faster there
    for (std::size_t joint = 0; joint < to_.joints.size(); ++joint)
    {
        const auto range = robot.range_of(joint);
        const quintic curve{from_.joints[joint], to_.joints[joint], from_.speeds[joint] * seconds,
                            to_.speeds[joint] * seconds};
        for (int step = 0; step <= steps; ++step)
        {
            const auto [place, speed, acceleration] = curve.at(static_cast<double>(step) / steps);
            if (std::abs(speed) > between_steps * range.speed_max * seconds ||
                std::abs(acceleration) > between_steps * range.acceleration_max * seconds * seconds)
                return true;
        }
    }
    return false;
}

playback_source::playback_source(recording content, const joint_array& standing) : content_(std::move(content))
{
    for (std::size_t joint = 0; joint < standing.size(); ++joint)
        offset_[joint] = standing[joint] - content_.front()[joint];
}

std::optional<joint_array> playback_source::advance(const passing_time& time, robot_state&)
{
    played_ = std::min(played_ + time.motion / time.clock, last());
    passed_ += time.motion;
    const auto entry = static_cast<std::size_t>(played_);
    const auto& from = content_[entry];
    const auto& to = content_[std::min(entry + 1, content_.size() - 1)];
    const double share = played_ - static_cast<double>(entry);
    // A recording that is shorter than the lead-in ends where it ends.
    const double led = std::min(passed_ / playback_lead_in, 1.0);
    const double off = played_ < last() ? 1 - led * led * (3 - 2 * led) : 0;
    joint_array joints{};
    for (std::size_t joint = 0; joint < joints.size(); ++joint)
        joints[joint] = std::lerp(from[joint], to[joint], share) + offset_[joint] * off;
    return joints;
}

joint_array turning_joints::advance(double seconds, const robot_state& robot, const joint_array& targets,
                                    const joint_array& accelerations)
{
    joint_array joints = robot.commanded().joints;
    for (std::size_t joint = 0; joint < joints.size() && seconds > 0; ++joint)
    {
        const auto range = robot.range_of(joint);
        const double told = std::abs(accelerations[joint]);
        const double change = (told > 0 ? std::min(told, range.acceleration_max) : range.acceleration_max) * seconds;
        auto& speed = speeds_[joint];
        const double target = std::clamp(targets[joint], -range.speed_max, range.speed_max);
        speed = stepped(speed, target - speed, change);
        // Only as fast as it can still come to rest before the end of the range.
        const double end = speed > 0 ? range.angle_max : range.angle_min;
        const double room = std::max((end - joints[joint]) * std::copysign(1.0, speed), 0.0);
        const double fastest = std::sqrt(2 * range.acceleration_max * room);
        speed = std::clamp(speed, -fastest, fastest);
        const double way = std::copysign(std::min(std::abs(speed) * seconds, room), speed);
        joints[joint] += way;
        if (way == 0)
            speed = 0;
    }
    return joints;
}

std::optional<joint_array> velocity_source::advance(const passing_time& time, robot_state& robot)
{
    const auto& targets = robot.settings().targets;
    return joints_.advance(time.motion, robot, targets.velocity, targets.acceleration);
}

std::optional<joint_array> hand_source::advance(const passing_time& time, robot_state& robot)
{
    return joints_.advance(time.motion, robot, speeds_, {});
}

retreating_source::retreating_source(const robot_state& hit) : coasting_source(hit.commanded().speeds)
{
    for (std::size_t joint = 0; joint < behind_.size(); ++joint)
    {
        const auto range = hit.range_of(joint);
        const double before = hit.commanded().joints[joint] - hit.commanded().speeds[joint] * back;
        behind_[joint] = std::min(std::max(before, range.angle_min), range.angle_max);
    }
}

std::optional<joint_array> retreating_source::advance(const passing_time& time, robot_state& robot)
{
    if (!gives_up_ && robot.settings().switches.servo != QORIN_SWITCH_ON)
    {
        gives_up_ = true;
        coast_from(robot.commanded().speeds);
    }
    if (gives_up_ || !coasting_source::has_ended(robot))
        return coasting_source::advance(time, robot);
    if (!retreat_)
        retreat_.emplace(robot.commanded().joints, behind_, motion::motion_limits{.speed_max = retreat_speed},
                         robot.bounds());
    passed_ += time.motion;
    return retreat_->at(passed_);
}
} // namespace cbox_simulator
