#ifndef KINEMATICS_ROTATION_H
#define KINEMATICS_ROTATION_H

#include <array>
#include <cmath>

#include <Eigen/Core>

#include "kinematics/angles.h"

namespace savrent::kinematics
{
/// Rz(z) * Rx(x): the rotation across one row of a Denavit-Hartenberg table.
[[nodiscard]] inline Eigen::Matrix3d rotation_zx(direction z, direction x)
{
    Eigen::Matrix3d m;
    m << z.c, -z.s * x.c, z.s * x.s, //
        z.s, z.c * x.c, -z.c * x.s,  //
        0.0, x.s, x.c;
    return m;
}

/// The rotation Rz(rz) * Ry(ry) * Rx(rx) of an orientation (rx, ry, rz) in degrees.
[[nodiscard]] inline Eigen::Matrix3d rotation_of(const std::array<double, 3>& orientation)
{
    const direction x = direction_of(radians(orientation[0]));
    const direction y = direction_of(radians(orientation[1]));
    const direction z = direction_of(radians(orientation[2]));
    Eigen::Matrix3d m;
    m << z.c * y.c, z.c * y.s * x.s - z.s * x.c, z.c * y.s * x.c + z.s * x.s, //
        z.s * y.c, z.s * y.s * x.s + z.c * x.c, z.s * y.s * x.c - z.c * x.s,  //
        -y.s, y.c * x.s, y.c * x.c;
    return m;
}

/**
 * The orientation (rx, ry, rz) in degrees of a rotation; ry lies within +-90 degrees.
 *
 * rz is found first and taken out of the rotation before ry and rx are read from what is left. So the three angles make
 * up the rotation again to full precision even near ry = +-90 degrees, where rz alone is poorly determined. At that
 * lock itself rz is 0 and rx carries the whole turn.
 */
[[nodiscard]] inline std::array<double, 3> orientation_of(const Eigen::Matrix3d& m)
{
    constexpr double lock = 1e-12;
    const double horizontal = std::sqrt(m(0, 0) * m(0, 0) + m(1, 0) * m(1, 0));
    const direction z = horizontal < lock ? direction{} : direction{m(0, 0) / horizontal, m(1, 0) / horizontal};
    const double ry = std::atan2(-m(2, 0), z.c * m(0, 0) + z.s * m(1, 0));
    const double rx = std::atan2(z.s * m(0, 2) - z.c * m(1, 2), z.c * m(1, 1) - z.s * m(0, 1));
    return {degrees(rx), degrees(ry), degrees(std::atan2(z.s, z.c))};
}
} // namespace savrent::kinematics

#endif
