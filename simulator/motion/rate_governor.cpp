#include "simulator/motion/rate_governor.h"

#include <algorithm>
#include <cmath>

namespace cbox_simulator::motion
{
namespace
{
/// The greatest slope of a cubic from rest to rest, of its mean slope.
constexpr double peak_of_mean = 1.5;
/// With a steeper start than this, of its mean slope, a cubic goes beyond its end before it comes back.
constexpr double steepest_start = 3;
} // namespace

void eased_value::go_to(double target, double seconds)
{
    const double now = value();
    const double slope_now = slope();
    const double left = left_to_go();
    const double change = target - now;
    to_ = target;
    from_ = now;
    passed_ = 0;
    start_slope_ = slope_now;
    brake_time_ = 0;
    cubic_time_ = std::max(seconds, 0.0);
    if (cubic_time_ > 0 && slope_now != 0 && slope_now * change <= 0)
    {
        brake_time_ = std::min(left / std::abs(slope_now), cubic_time_ / 2);
        from_ = now + slope_now * brake_time_ / 2;
    }
    else if (slope_now * cubic_time_ * change > steepest_start * change * change)
    {
        cubic_time_ = steepest_start * change / slope_now;
    }
}

double eased_value::left_to_go() const
{
    return passed_ < brake_time_ ? std::abs(slope() * (brake_time_ - passed_) / 2) : std::abs(to_ - value());
}

double eased_value::advance(double seconds)
{
    const double before = std::min(passed_, duration());
    passed_ += seconds;
    const double after = std::min(passed_, duration());
    return integral(after) - integral(before) + to_ * (seconds - (after - before));
}

double eased_value::value() const
{
    if (has_arrived())
        return to_;
    if (passed_ < brake_time_)
        return from_ - start_slope_ * (brake_time_ - passed_) * (brake_time_ - passed_) / (2 * brake_time_);
    const double u = (passed_ - brake_time_) / cubic_time_;
    const double slope_way = brake_time_ > 0 ? 0 : start_slope_ * cubic_time_;
    return from_ + (to_ - from_) * u * u * (3 - 2 * u) + slope_way * u * (1 - u) * (1 - u);
}

double eased_value::slope() const
{
    if (has_arrived())
        return 0;
    if (passed_ < brake_time_)
        return start_slope_ * (1 - passed_ / brake_time_);
    const double u = (passed_ - brake_time_) / cubic_time_;
    const double start = brake_time_ > 0 ? 0 : start_slope_;
    return (to_ - from_) / cubic_time_ * 6 * u * (1 - u) + start * (1 - u) * (1 - 3 * u);
}

double eased_value::integral(double time) const
{
    if (time < brake_time_)
    {
        const double left = brake_time_ - time;
        return from_ * time -
               start_slope_ * (brake_time_ * brake_time_ * brake_time_ - left * left * left) / (6 * brake_time_);
    }
    if (cubic_time_ <= 0)
        return 0;
    const double u = (time - brake_time_) / cubic_time_;
    const double slope_way = brake_time_ > 0 ? 0 : start_slope_ * cubic_time_;
    const double braked = from_ * brake_time_ - start_slope_ * brake_time_ * brake_time_ / 6;
    return braked + cubic_time_ * (from_ * u + (to_ - from_) * u * u * u * (1 - u / 2) +
                                   slope_way * u * u * (0.5 - u * (2.0 / 3 - u / 4)));
}

double rate_governor::shortest_time(double rate_change, double speed, double acceleration)
{
    return peak_of_mean * std::abs(rate_change * speed) / acceleration;
}
} // namespace cbox_simulator::motion
