#ifndef SIMULATOR_MOTION_SPEED_PROFILE_H
#define SIMULATOR_MOTION_SPEED_PROFILE_H

#include "qorin/enumerations.h"

namespace cbox_simulator::motion
{
/// How fast a motion may be, in the units of its way: degrees or millimetres, and seconds. All but the percentage are
/// above 0.
struct motion_limits
{
    double speed_max = 50;
    double acc_max = 100;
    double dec_max = 100;
    /// 0 to 100: the share of each change of speed in which the acceleration changes. 0 is a trapezoid.
    double jerk_percentage = 50;
    QORIN_VELOCITY_PROFILE profile = QORIN_VELOCITY_PROFILE_ASYMMETRIC_S_CURVE;

    /// The percentage as a share from 0 to 1; a trapezoid has none.
    [[nodiscard]] double jerk_share() const;
    /// The mean acceleration and deceleration of a change of speed whose peak is the limit.
    [[nodiscard]] double mean_acceleration() const { return acc_max * (1 - jerk_share() / 2); }
    [[nodiscard]] double mean_deceleration() const { return dec_max * (1 - jerk_share() / 2); }
};

struct profile_sample
{
    double position = 0;
    double speed = 0;
    double acceleration = 0;
    double jerk = 0;
};

/**
 * A change of speed in a told time: the acceleration rises in half of the jerk share, stays, and falls in the other
 * half. It is its own mirror image, so that the mean speed is the mean of both ends.
 */
class speed_ramp
{
public:
    speed_ramp() = default;
    speed_ramp(double start_speed, double end_speed, double duration, double jerk_share);

    [[nodiscard]] double duration() const { return duration_; }
    [[nodiscard]] double distance() const { return (start_speed_ + end_speed_) / 2 * duration_; }
    /// Within the ramp; the position is 0 at its start.
    [[nodiscard]] profile_sample at(double time) const;

private:
    double start_speed_ = 0;
    double end_speed_ = 0;
    double duration_ = 0;
    double jerk_time_ = 0; ///< Of each of the two.
    double peak_ = 0;      ///< Acceleration, with its sign.
};

/**
 * Speed over time along a way of a told length: up, steady, down, in closed formulas.
 *
 * The way is short where the speed limit is not reached; the top speed is then what acceleration and deceleration
 * allow. Where even the way from start to end speed does not fit, the plan changes the speed as far as the limits
 * allow, and end_speed() is what it comes to. Start and end speeds above the limit count as the limit.
 */
class speed_profile
{
public:
    speed_profile() = default;

    [[nodiscard]] static speed_profile plan(const motion_limits& limits, double length, double start_speed = 0,
                                            double end_speed = 0);

    [[nodiscard]] double duration() const { return duration_; }
    [[nodiscard]] double length() const { return length_; }
    [[nodiscard]] double start_speed() const { return start_speed_; }
    [[nodiscard]] double top_speed() const { return top_speed_; }
    [[nodiscard]] double end_speed() const { return end_speed_; }

    /// From time 0; exactly the length from the end of the duration on.
    [[nodiscard]] profile_sample at(double time) const;

private:
    double start_speed_ = 0;
    double top_speed_ = 0;
    double end_speed_ = 0;
    double length_ = 0;
    double duration_ = 0;
    speed_ramp first_;
    speed_ramp last_;
};
} // namespace cbox_simulator::motion

#endif
