#include "kinematics/closed_form_inverse.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace savrent::kinematics
{
namespace
{
/// Sine of joint 5 below which joint 4 is hardly more than rounding. What is neglected turns the flange by as much.
constexpr double straight_wrist = 1e-12;

double root_of_product(double a, double b)
{
    return std::sqrt(std::max(0.0, a * b));
}
} // namespace

std::optional<shoulder_branch> solve_shoulder(const spherical_wrist_arm& arm, const Eigen::Vector3d& centre, bool rear,
                                              double kept_rotation1)
{
    const double from_axis = std::hypot(centre.x(), centre.y());
    const double beside = std::abs(arm.lateral);
    if (!(from_axis >= beside - arm.length_tolerance))
        return std::nullopt;
    const double along = root_of_product(from_axis - beside, from_axis + beside) * (rear ? -1.0 : 1.0);
    shoulder_branch branch;
    branch.x = along - arm.shoulder_forward;
    branch.y = arm.up * (centre.z() - arm.shoulder_height);
    branch.rotation1 = from_axis < arm.length_tolerance
                           ? kept_rotation1
                           : std::atan2(centre.y(), centre.x()) - std::atan2(-arm.up * arm.lateral, along);
    return branch;
}

std::optional<arm_triangle> solve_arm_triangle(const spherical_wrist_arm& arm, const shoulder_branch& shoulder)
{
    const double reach = std::hypot(shoulder.x, shoulder.y);
    const double longest = arm.upper_arm + arm.forearm;
    const double shortest = std::abs(arm.upper_arm - arm.forearm);
    if (!(reach <= longest + arm.length_tolerance && reach >= shortest - arm.length_tolerance))
        return std::nullopt;
    // Half angles from factored differences: an arccosine would lose half the digits near a stretched or folded elbow.
    const double stretch_left = root_of_product(longest - reach, longest + reach);
    const double fold_left = root_of_product(reach - shortest, reach + shortest);
    const double forearm_ahead = (fold_left * fold_left - stretch_left * stretch_left) / (4.0 * arm.upper_arm);
    const double forearm_aside = stretch_left * fold_left / (2.0 * arm.upper_arm);

    arm_triangle triangle;
    triangle.folded_onto_shoulder = reach < arm.length_tolerance;
    triangle.wrist_angle = std::atan2(shoulder.y, shoulder.x);
    triangle.shoulder = std::atan2(forearm_aside, arm.upper_arm + forearm_ahead);
    triangle.elbow = 2.0 * std::atan2(stretch_left, fold_left);
    return triangle;
}

elbow_branch solve_elbow(const spherical_wrist_arm& arm, const arm_triangle& triangle, bool rear, bool below,
                         double kept_rotation2)
{
    // With the arm level and ahead, the forearm of an elbow above bends downwards: against y when y points up.
    const double bend = (below == rear ? -1.0 : 1.0) * arm.up * arm.elbow_sense;
    elbow_branch branch;
    branch.rotation2 = triangle.folded_onto_shoulder
                           ? kept_rotation2
                           : triangle.wrist_angle - arm.elbow_sense * bend * triangle.shoulder - arm.upper_arm_angle;
    branch.rotation3 = bend * triangle.elbow + arm.upper_arm_angle - arm.forearm_angle;
    return branch;
}

wrist_branch solve_wrist(const spherical_wrist_arm& arm, const Eigen::Matrix3d& hand_rotation, double kept_rotation4)
{
    const Eigen::Matrix3d& m = hand_rotation;
    const double sign5 = arm.alpha5_sign;
    const double sign = -arm.alpha4_sign * arm.alpha5_sign;
    const double sine5 = std::sqrt(m(0, 2) * m(0, 2) + m(1, 2) * m(1, 2));

    // Only joint 4 is read from the short column. It is then taken out, so that joints 5 and 6 make good for its
    // rounding and the orientation stays exact however straight the wrist is.
    wrist_branch wrist;
    wrist.straight = sine5 < straight_wrist;
    const direction j4 =
        wrist.straight ? direction_of(kept_rotation4) : direction{sign5 * m(0, 2) / sine5, sign5 * m(1, 2) / sine5};
    wrist.rotation4 = wrist.straight ? kept_rotation4 : std::atan2(j4.s, j4.c);
    wrist.rotation5 = std::atan2(wrist.straight ? 0.0 : sine5, sign * m(2, 2));
    wrist.rotation6 = std::atan2(sign * (j4.c * m(1, 0) - j4.s * m(0, 0)), sign * (j4.c * m(1, 1) - j4.s * m(0, 1)));
    return wrist;
}

wrist_branch mirrored(const wrist_branch& wrist)
{
    // A straight wrist has no other side: turning joint 4 by half a turn would only move away from the kept value.
    const double half_turn = wrist.straight ? 0.0 : std::numbers::pi;
    return {wrist.rotation4 + half_turn, -wrist.rotation5, wrist.rotation6 + half_turn, wrist.straight};
}

Eigen::Matrix3d forearm_rotation(const spherical_wrist_arm& arm, double rotation1, const elbow_branch& elbow)
{
    // Joints 2 and 3 turn about parallel axes, so the two rotations are one.
    const double rotation23 = elbow.rotation2 + arm.elbow_sense * elbow.rotation3;
    return rotation_zx(direction_of(rotation1), {0.0, arm.up}) *
           rotation_zx(direction_of(rotation23), arm.forearm_twist);
}
} // namespace savrent::kinematics
