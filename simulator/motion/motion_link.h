#ifndef SIMULATOR_MOTION_MOTION_LINK_H
#define SIMULATOR_MOTION_MOTION_LINK_H

#include "simulator/motion/planned_motion.h"

namespace cbox_simulator::motion
{
/// One command of a chain. Each starts where the one before it ends.
struct motion_link
{
    any_motion motion;
    /// How far from its end it may already turn towards the next one; 0 is no blending. Degrees of the joint that goes
    /// farthest between two joint motions, else millimetres of the TCP. A blend takes no more than half of a way.
    double blend_radius = 0;
};
} // namespace cbox_simulator::motion

#endif
