#include "kinematics/spherical_wrist_arm.h"

#include <cmath>
#include <numbers>

#include "kinematics/angles.h"

namespace savrent::kinematics
{
namespace
{
/// Degrees. Only tables that mean the right angle qualify: at two metres this turns a pose by less than 1e-10 mm.
constexpr double angle_tolerance = 1e-12;

bool is_multiple_of(double angle, double step)
{
    return std::abs(std::remainder(angle, step)) <= angle_tolerance;
}

bool is_right_angle(double alpha)
{
    return is_multiple_of(alpha, 90.0) && !is_multiple_of(alpha, 180.0);
}

double sine_sign(double alpha)
{
    return std::sin(radians(alpha)) < 0.0 ? -1.0 : 1.0;
}
} // namespace

std::optional<spherical_wrist_arm> as_spherical_wrist_arm(const dh_table& table)
{
    const auto& [theta, d, a, alpha] = table;
    const double tolerance = 1e-13 * total_length(table);
    const bool arm_in_a_plane = is_right_angle(alpha[0]) && is_multiple_of(alpha[1], 180.0);
    const bool wrist_axes_meet =
        std::abs(a[3]) <= tolerance && std::abs(a[4]) <= tolerance && std::abs(d[4]) <= tolerance;
    if (!describes_an_arm(table) || !arm_in_a_plane || !wrist_axes_meet || !is_right_angle(alpha[3]) ||
        !is_right_angle(alpha[4]))
        return std::nullopt;

    const direction twist3 = direction_of(radians(alpha[2]));
    const double forearm_x = a[2];
    const double forearm_y = -twist3.s * d[3];

    spherical_wrist_arm arm;
    arm.length_tolerance = tolerance;
    arm.shoulder_height = d[0];
    arm.shoulder_forward = a[0];
    arm.up = sine_sign(alpha[0]);
    arm.elbow_sense = std::cos(radians(alpha[1])) < 0.0 ? -1.0 : 1.0;
    arm.lateral = d[1] + arm.elbow_sense * (d[2] + twist3.c * d[3]);
    arm.upper_arm = std::abs(a[1]);
    arm.upper_arm_angle = a[1] < 0.0 ? std::numbers::pi : 0.0;
    arm.forearm = std::hypot(forearm_x, forearm_y);
    arm.forearm_angle = std::atan2(forearm_y, forearm_x);
    arm.forearm_twist = direction_of(radians(alpha[1] + alpha[2]));
    arm.alpha4_sign = sine_sign(alpha[3]);
    arm.alpha5_sign = sine_sign(alpha[4]);
    if (arm.upper_arm <= tolerance || arm.forearm <= tolerance)
        return std::nullopt;
    return arm;
}
} // namespace savrent::kinematics
