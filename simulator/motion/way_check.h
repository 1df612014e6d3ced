#ifndef SIMULATOR_MOTION_WAY_CHECK_H
#define SIMULATOR_MOTION_WAY_CHECK_H

#include <limits>

#include "qorin/result.h"
#include "simulator/motion/planned_motion.h"

namespace cbox_simulator::motion
{
/// The arm as far as a motion's way needs it.
struct moving_arm
{
    const arm_kinematics& solver;
    joint_bounds bounds;
    pose tool{}; ///< The TCP seen from the flange.
};

[[nodiscard]] bool is_within(const joint_bounds& bounds, const joint_array& joints);
/// The factor to a motion's speed with which every joint is as fast as it may be, when they go from one place to the
/// other in the time. Infinite when none moves.
[[nodiscard]] double speed_margin(const joint_bounds& bounds, const joint_array& from, const joint_array& to,
                                  double seconds);

struct way_report
{
    /// QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_MOTION_OUT_OF_ANGLE_RANGE where the way leaves the reach of the arm
    /// or the range of a joint; QORIN_API_RESULT_ERROR_MOTION_SINGULARITY_POINT where it runs into a straight wrist, or
    /// so near to one that the joints could follow at less than a fiftieth of the speed only.
    QORIN_API_RESULT result = QORIN_API_RESULT_OK;
    double failed_at = 0; ///< Seconds into the motion.
    /// The speed along the way up to which no joint exceeds its own, in the units of the way: a motion that is told no
    /// more than that can be run. Infinite when no joint does.
    double speed_limit = std::numeric_limits<double>::infinity();
    joint_array end_joints{}; ///< Where the arm stands after it, or after the last step that went well.
};

/// Walks the motion in steps, closer ones where the joints move much, from where the arm stands.
[[nodiscard]] way_report check_way(const planned_motion& motion, const moving_arm& arm, const joint_array& start);
} // namespace cbox_simulator::motion

#endif
