#include "simulator/motion/speed_profile.h"

#include <algorithm>
#include <cmath>

namespace cbox_simulator::motion
{
namespace
{
double mean_rate(const motion_limits& limits, double from, double to)
{
    return to > from ? limits.mean_acceleration() : limits.mean_deceleration();
}

double distance_between(const motion_limits& limits, double from, double to)
{
    return std::abs(to * to - from * from) / (2 * mean_rate(limits, from, to));
}

speed_ramp ramp_between(const motion_limits& limits, double from, double to)
{
    return {from, to, std::abs(to - from) / mean_rate(limits, from, to), limits.jerk_share()};
}

/// The speed after a way of the length in which the speed changes from one towards the other all the time.
double speed_after(const motion_limits& limits, double length, double from, double to)
{
    const double squared = to > from ? from * from + 2 * limits.mean_acceleration() * length
                                     : from * from - 2 * limits.mean_deceleration() * length;
    return std::sqrt(std::max(0.0, squared));
}

/// The greatest speed on a way that is too short for the limit.
double peak_speed(const motion_limits& limits, double length, double start, double end)
{
    const double up = limits.mean_acceleration();
    const double down = limits.mean_deceleration();
    return std::sqrt((2 * length * up * down + start * start * down + end * end * up) / (up + down));
}
} // namespace

double motion_limits::jerk_share() const
{
    return profile == QORIN_VELOCITY_PROFILE_TRAPEZODAL ? 0 : std::clamp(jerk_percentage / 100, 0.0, 1.0);
}

speed_ramp::speed_ramp(double start_speed, double end_speed, double duration, double jerk_share)
    : start_speed_(start_speed), end_speed_(end_speed), duration_(duration), jerk_time_(jerk_share * duration / 2),
      peak_(duration > 0 ? (end_speed - start_speed) / (duration - jerk_time_) : 0)
{
}

profile_sample speed_ramp::at(double time) const
{
    const double jerk = jerk_time_ > 0 ? peak_ / jerk_time_ : 0;
    const double left = duration_ - time;
    if (time < jerk_time_)
        return {time * (start_speed_ + jerk * time * time / 6), start_speed_ + jerk * time * time / 2, jerk * time,
                jerk};
    if (left < jerk_time_)
        return {distance() - left * (end_speed_ - jerk * left * left / 6), end_speed_ - jerk * left * left / 2,
                jerk * left, -jerk};
    const double steady = time - jerk_time_;
    const double speed = start_speed_ + peak_ * jerk_time_ / 2;
    return {jerk_time_ * (start_speed_ + peak_ * jerk_time_ / 6) + steady * (speed + peak_ * steady / 2),
            speed + peak_ * steady, peak_, 0};
}

speed_profile speed_profile::plan(const motion_limits& limits, double length, double start_speed, double end_speed)
{
    speed_profile made;
    made.length_ = length;
    made.start_speed_ = std::min(start_speed, limits.speed_max);
    made.end_speed_ = std::min(end_speed, limits.speed_max);
    const double start = made.start_speed_;
    if (length <= 0)
    {
        made.end_speed_ = made.top_speed_ = start;
        return made;
    }
    if (distance_between(limits, start, made.end_speed_) > length)
    {
        made.end_speed_ = speed_after(limits, length, start, made.end_speed_);
        made.top_speed_ = std::max(start, made.end_speed_);
        made.duration_ = 2 * length / (start + made.end_speed_);
        made.first_ = {start, made.end_speed_, made.duration_, limits.jerk_share()};
        return made;
    }
    const double end = made.end_speed_;
    made.top_speed_ = std::clamp(peak_speed(limits, length, start, end), std::max(start, end), limits.speed_max);
    made.first_ = ramp_between(limits, start, made.top_speed_);
    made.last_ = ramp_between(limits, made.top_speed_, end);
    const double steady = std::max(0.0, length - made.first_.distance() - made.last_.distance());
    made.duration_ = made.first_.duration() + steady / made.top_speed_ + made.last_.duration();
    return made;
}

profile_sample speed_profile::at(double time) const
{
    if (time >= duration_)
        return {length_, end_speed_, 0, 0};
    const double passed = std::max(time, 0.0);
    const double into_last = passed - (duration_ - last_.duration());
    if (passed < first_.duration())
        return first_.at(passed);
    if (into_last < 0)
        return {first_.distance() + top_speed_ * (passed - first_.duration()), top_speed_, 0, 0};
    profile_sample sample = last_.at(into_last);
    sample.position += length_ - last_.distance();
    return sample;
}
} // namespace cbox_simulator::motion
