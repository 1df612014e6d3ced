#include "simulator/motion/joint_motion.h"

#include <algorithm>
#include <cmath>

#include "simulator/motion/joint_way.h"

namespace cbox_simulator::motion
{
namespace
{
motion_limits within(motion_limits limits, const joint_array& start, const joint_array& end, double length,
                     const joint_bounds& bounds)
{
    for (std::size_t joint = 0; joint < joint_count; ++joint)
    {
        const double share = std::abs(end[joint] - start[joint]) / length;
        if (!(share > 0))
            continue;
        limits.speed_max = std::min(limits.speed_max, bounds[joint].speed_max / share);
        limits.acc_max = std::min(limits.acc_max, bounds[joint].acceleration_max / share);
        limits.dec_max = std::min(limits.dec_max, bounds[joint].acceleration_max / share);
    }
    return limits;
}
} // namespace

joint_motion::joint_motion(const joint_array& start, const joint_array& end, const motion_limits& limits,
                           const joint_bounds& bounds)
    : start_(start), end_(end), length_(farthest(start, end)), bounds_(bounds),
      limits_(within(limits, start, end, length_, bounds)), profile_(speed_profile::plan(limits_, length_))
{
}

joint_array joint_motion::along(double position) const
{
    if (position >= length_)
        return end_;
    const double share = std::max(0.0, position / length_);
    joint_array joints;
    for (std::size_t joint = 0; joint < joint_count; ++joint)
        joints[joint] = std::lerp(start_[joint], end_[joint], share);
    return joints;
}
} // namespace cbox_simulator::motion
