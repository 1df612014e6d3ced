#ifndef KINEMATICS_ANGLES_H
#define KINEMATICS_ANGLES_H

#include <cmath>
#include <numbers>

// The interface speaks degrees, the solver radians: these are the crossings.
namespace savrent::kinematics
{
[[nodiscard]] inline double radians(double degrees)
{
    return degrees * (std::numbers::pi / 180.0);
}
[[nodiscard]] inline double degrees(double radians)
{
    return radians * (180.0 / std::numbers::pi);
}

/// Cosine and sine of one angle, kept together since nearly every use needs both.
struct direction
{
    double c = 1.0;
    double s = 0.0;
};

[[nodiscard]] inline direction direction_of(double angle)
{
    return {std::cos(angle), std::sin(angle)};
}
} // namespace savrent::kinematics

#endif
