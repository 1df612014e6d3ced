#ifndef SIMULATOR_MOTION_BLEND_JUNCTION_H
#define SIMULATOR_MOTION_BLEND_JUNCTION_H

#include "qorin/result.h"
#include "simulator/motion/motion_link.h"

namespace cbox_simulator::motion
{
/// How one motion goes over into the next: for a time, one slows down over what is left of it and the other one speeds
/// up. At rest all is 0. Each length is in the units of its own motion.
struct junction
{
    double leaving = 0;  ///< What is left of the one before.
    double arriving = 0; ///< Where on the one after it is over.
    double time = 0;
    double jerk_share = 0;
    bool at_told_speed = false; ///< Which may not be lowered.

    [[nodiscard]] double leaving_speed() const { return time > 0 ? 2 * leaving / time : 0; }
    [[nodiscard]] double arriving_speed() const { return time > 0 ? 2 * arriving / time : 0; }
};

/// The results are those of plan_chain().
[[nodiscard]] QORIN_API_RESULT meet(const motion_link& before, const any_motion& after, const arm_kinematics& solver,
                                    const pose& tool, junction& made);

/// The fastest speed that a way of the length can change to, or from, at a mean rate.
[[nodiscard]] double speed_change_limit(double speed, double rate, double length);
} // namespace cbox_simulator::motion

#endif
