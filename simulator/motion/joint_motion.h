#ifndef SIMULATOR_MOTION_JOINT_MOTION_H
#define SIMULATOR_MOTION_JOINT_MOTION_H

#include <array>

#include "kinematics/dh_table.h"
#include "simulator/motion/speed_profile.h"

namespace cbox_simulator::motion
{
using savrent::kinematics::joint_array;
using savrent::kinematics::joint_count;

/// What each joint can do: degrees, degrees per second, degrees per second squared.
struct joint_bound
{
    double angle_min;
    double angle_max;
    double speed_max;
    double acceleration_max;
};
using joint_bounds = std::array<joint_bound, joint_count>;

/**
 * All joints from start to end on a straight line between them, so that they start and end together. The slowest
 * decides: each keeps within the motion's limits and within its own bounds.
 *
 * The length of the way is what the joint with the farthest way goes. Degrees.
 */
class joint_motion
{
public:
    joint_motion(const joint_array& start, const joint_array& end, const motion_limits& limits,
                 const joint_bounds& bounds);

    [[nodiscard]] const joint_array& start() const { return start_; }
    [[nodiscard]] const joint_array& end() const { return end_; }
    [[nodiscard]] double length() const { return length_; }
    /// Of the way, with all bounds taken in.
    [[nodiscard]] const motion_limits& limits() const { return limits_; }
    [[nodiscard]] const joint_bounds& bounds() const { return bounds_; }

    [[nodiscard]] double duration() const { return profile_.duration(); }
    /// Exactly the end from the end of the duration on.
    [[nodiscard]] joint_array at(double time) const { return along(profile_.at(time).position); }
    [[nodiscard]] const speed_profile& profile() const { return profile_; }

    /// By the length of the way.
    [[nodiscard]] joint_array along(double position) const;

private:
    joint_array start_;
    joint_array end_;
    double length_;
    joint_bounds bounds_;
    motion_limits limits_;
    speed_profile profile_;
};
} // namespace cbox_simulator::motion

#endif
