#ifndef SIMULATOR_MOTION_POSITION_CURVE_H
#define SIMULATOR_MOTION_POSITION_CURVE_H

#include <memory>
#include <span>

#include <Eigen/Geometry>

namespace cbox_simulator::motion
{
/// The positions of a way by the length gone on it. Millimetres. Never changes.
class position_curve
{
public:
    virtual ~position_curve() = default;

    /// All lengths that are told to a curve are from 0 to this one.
    [[nodiscard]] virtual double length() const = 0;
    [[nodiscard]] virtual Eigen::Vector3d at(double length) const = 0;
    /// Of length 1; 0 when the curve is a point.
    [[nodiscard]] virtual Eigen::Vector3d direction_at(double length) const = 0;
    /// How the direction turns there: the axis, as long as the radians for a millimetre.
    [[nodiscard]] virtual Eigen::Vector3d bend_at(double length) const = 0;
    /// The turn that takes the direction at the start along the bends to the direction there, without a twist about it.
    [[nodiscard]] virtual Eigen::Quaterniond carried_to(double length) const = 0;
};
using curve_pointer = std::shared_ptr<const position_curve>;

[[nodiscard]] curve_pointer line_between(const Eigen::Vector3d& start, const Eigen::Vector3d& end);

/// From start through mid to end. Null when they lie in one line.
[[nodiscard]] curve_pointer arc_through(const Eigen::Vector3d& start, const Eigen::Vector3d& mid,
                                        const Eigen::Vector3d& end);
/// The whole turn through the three points, from start to start. Null when they lie in one line.
[[nodiscard]] curve_pointer circle_through(const Eigen::Vector3d& start, const Eigen::Vector3d& mid,
                                           const Eigen::Vector3d& end);
/// Leaves the start in a direction of length 1. A line where the end lies straight ahead; null where it lies behind.
[[nodiscard]] curve_pointer arc_at_tangent(const Eigen::Vector3d& start, const Eigen::Vector3d& direction,
                                           const Eigen::Vector3d& end);
/// The shorter of the arcs with the radius, or the longer one, that bulge away from the line between the ends towards
/// `bulge`, of any length but not along that line. Null when the radius does not span it.
[[nodiscard]] curve_pointer arc_of_radius(const Eigen::Vector3d& start, const Eigen::Vector3d& end, double radius,
                                          const Eigen::Vector3d& bulge, bool longer);
/// Smooth through all points, of which no two neighbours are in one place; its direction and its bend never leap.
[[nodiscard]] curve_pointer curve_through(std::span<const Eigen::Vector3d> points);
} // namespace cbox_simulator::motion

#endif
