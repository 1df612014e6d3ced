#include "simulator/motion/speed_cap.h"

#include <algorithm>

namespace cbox_simulator::motion
{
namespace
{
/// What goes on although the motion stands, as a belt does, must not bring the factor to 0.
constexpr double least = 1e-6;
} // namespace

double speed_cap::advance(bool in_force, double share_of_limit, bool stops, double seconds)
{
    const double wanted = share_of_limit / factor_;
    const double change = active_ ? wanted - wanted_ : 0;
    wanted_ = wanted;
    if (in_force != in_force_)
    {
        allowed_ = std::max(share_of_limit, 1.0);
        slope_ = in_force ? (allowed_ - 1) / fade : std::max(rise, (wanted - share_of_limit) / fade);
    }
    in_force_ = in_force;
    allowed_ = std::max(std::min(allowed_ - slope_ * seconds, share_of_limit), 1.0);
    if (!stops)
    {
        const double next = std::max(wanted + change, 0.0);
        const double most =
            in_force ? std::min(allowed_, share_of_limit + rise * seconds) : share_of_limit + slope_ * seconds;
        factor_ = next > most ? std::max(most / next, least) : 1;
    }
    active_ = in_force || factor_ < 1;
    return factor_;
}
} // namespace cbox_simulator::motion
