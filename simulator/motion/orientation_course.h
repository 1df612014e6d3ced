#ifndef SIMULATOR_MOTION_ORIENTATION_COURSE_H
#define SIMULATOR_MOTION_ORIENTATION_COURSE_H

#include <memory>
#include <optional>

#include <Eigen/Geometry>

#include "simulator/motion/position_curve.h"

namespace cbox_simulator::motion
{
/// The orientations of a way by the share of it that is gone, from 0 to 1. Never changes.
class orientation_course
{
public:
    virtual ~orientation_course() = default;

    /// What it would turn over all at its greatest rate. Radians.
    [[nodiscard]] virtual double turn() const = 0;
    [[nodiscard]] virtual Eigen::Quaterniond at(double share) const = 0;
    /// Seen from the base: the axis, as long as the radians that a whole share would turn at this rate.
    [[nodiscard]] virtual Eigen::Vector3d turning_at(double share) const = 0;
};
using course_pointer = std::shared_ptr<const orientation_course>;

/// At a steady rate about one axis. Seen from the base; the axis is of length 1.
[[nodiscard]] course_pointer turn_about_axis(const Eigen::Quaterniond& start, const Eigen::Vector3d& axis,
                                             double angle);

/// The shortest turn from start to end, at a steady rate.
[[nodiscard]] course_pointer shortest_turn(const Eigen::Quaterniond& start, const Eigen::Quaterniond& end);

/// Turns with the direction of the curve, so that it keeps its angles to it; what is left to the end, if one is told,
/// is turned at a steady rate on the way.
[[nodiscard]] course_pointer turn_along(curve_pointer curve, const Eigen::Quaterniond& start,
                                        const std::optional<Eigen::Quaterniond>& end);
} // namespace cbox_simulator::motion

#endif
