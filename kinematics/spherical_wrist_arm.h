#ifndef KINEMATICS_SPHERICAL_WRIST_ARM_H
#define KINEMATICS_SPHERICAL_WRIST_ARM_H

#include <optional>

#include "kinematics/angles.h"
#include "kinematics/dh_table.h"

namespace savrent::kinematics
{
/**
 * The quantities of an arm for which the inverse is known in closed form, taken from its Denavit-Hartenberg table.
 *
 * Such an arm has
 * - joint 2 at right angles to joint 1 (alpha 1 is +-90 degrees);
 * - joint 3 parallel to joint 2 (alpha 2 is 0 or 180 degrees), so that the upper arm and the forearm move in one plane,
 *   the arm plane, which joint 1 turns;
 * - joints 4, 5 and 6 with axes through one point, the wrist centre, joint 5 at right angles to its neighbours
 *   (alpha 4 and alpha 5 are +-90 degrees; a 4, a 5 and d 5 are 0).
 *
 * The flange may sit anywhere behind joint 6, the forearm may be cranked (a 3), and the arm plane may pass beside the
 * axis of joint 1 (d 2, d 3).
 *
 * Coordinates within the arm plane: x along the x axis of link 1, y along the y axis of link 1, from the shoulder,
 * which is the origin of frame 1. Angles in radians, lengths in millimetres.
 */
struct spherical_wrist_arm
{
    double shoulder_height = 0.0;  ///< Shoulder above the base.
    double shoulder_forward = 0.0; ///< Shoulder from the axis of joint 1, along the x axis of link 1.
    double up = 1.0;               ///< 1 when y of the arm plane points up along the base's z, -1 when down.
    double lateral = 0.0;          ///< Wrist centre beside the arm plane, along the z axis of link 1.

    double upper_arm = 0.0;       ///< Shoulder to elbow, the axis of joint 3. Above 0.
    double forearm = 0.0;         ///< Elbow to wrist centre within the arm plane. Above 0.
    double elbow_sense = 1.0;     ///< 1 when joint 3 turns as joint 2 does, -1 when against it.
    double upper_arm_angle = 0.0; ///< From the x axis of link 2 to the upper arm: 0, or pi when a 2 is negative.
    double forearm_angle = 0.0;   ///< From the x axis of link 2 to the forearm when the rotation of joint 3 is 0.
    direction forearm_twist;      ///< Of alpha 2 + alpha 3, the turn about x from the arm plane to frame 3.

    double alpha4_sign = 1.0; ///< Sign of the sine of alpha 4.
    double alpha5_sign = 1.0; ///< Sign of the sine of alpha 5.

    /// Distances below this cannot be told from zero. Grows with the arm as rounding does.
    double length_tolerance = 0.0;
};

/// Nothing when the table describes an arm of another kind.
[[nodiscard]] std::optional<spherical_wrist_arm> as_spherical_wrist_arm(const dh_table& table);
} // namespace savrent::kinematics

#endif
