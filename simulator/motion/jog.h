#ifndef SIMULATOR_MOTION_JOG_H
#define SIMULATOR_MOTION_JOG_H

#include <limits>

#include "simulator/motion/way_check.h"

namespace cbox_simulator::motion
{
struct jog_speed
{
    double speed = 10;        ///< Of the joint or the turn in degrees per second, of the position in millimetres.
    double acceleration = 50; ///< Also the deceleration.
};

inline constexpr double no_end = std::numeric_limits<double>::infinity();

/**
 * A jog is a motion that ends at rest at its told distance, or before where the arm can go no further: the range of a
 * joint, the arm's reach, a straight wrist, or where a joint could not keep up with the speed. It is stopped by slowing
 * its time down (see rate_governor), so that it never goes beyond that. Where there is no room it lasts no time.
 */
[[nodiscard]] planned_motion jog_joint(const joint_array& start, std::size_t joint, QORIN_DIRECTION direction,
                                       const jog_speed& told, const joint_bounds& bounds);

/// Of the TCP along a vector, or about it. It is seen from the base and of any length but 0. Millimetres or degrees.
[[nodiscard]] planned_motion jog_position(const moving_arm& arm, const joint_array& start, const vector3& along,
                                          const jog_speed& told, double distance = no_end);
[[nodiscard]] planned_motion jog_orientation(const moving_arm& arm, const joint_array& start, const vector3& about,
                                             const jog_speed& told, double angle = no_end);
} // namespace cbox_simulator::motion

#endif
