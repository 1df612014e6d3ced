#ifndef KINEMATICS_CLOSED_FORM_INVERSE_H
#define KINEMATICS_CLOSED_FORM_INVERSE_H

#include <optional>

#include <Eigen/Core>

#include "kinematics/dh_table.h"
#include "kinematics/rotation.h"
#include "kinematics/spherical_wrist_arm.h"

// The closed-form inverse in its three steps: shoulder, elbow, wrist. Angles are rotations of the joints in radians,
// that is joint angle plus theta of the table. Each step has two branches; where a step is singular it takes the
// rotation that it is given to keep.
namespace savrent::kinematics
{
/// Where joint 6 has to bring the wrist: the target without the flange's fixed place behind joint 6.
struct wrist_target
{
    Eigen::Vector3d centre;
    Eigen::Matrix3d rotation;
};

/// One branch of joint 1, and the wrist centre as the arm plane then sees it from the shoulder.
struct shoulder_branch
{
    double rotation1 = 0.0;
    double x = 0.0;
    double y = 0.0;
};

/// The triangle of shoulder, elbow and wrist centre. Both elbow branches come from it.
struct arm_triangle
{
    double wrist_angle = 0.0; ///< Direction from the shoulder to the wrist centre.
    double shoulder = 0.0;    ///< Angle between that direction and the upper arm. 0 to pi.
    double elbow = 0.0;       ///< Angle from the upper arm's direction to the forearm's. 0 to pi.
    bool folded_onto_shoulder = false;
};

struct elbow_branch
{
    double rotation2 = 0.0;
    double rotation3 = 0.0;
};

/// The nonflip branch of the wrist; flip is its mirror.
struct wrist_branch
{
    double rotation4 = 0.0;
    double rotation5 = 0.0;
    double rotation6 = 0.0;
    bool straight = false;
};

/// Nothing when the wrist centre is nearer to joint 1's axis than the arm plane passes beside it.
[[nodiscard]] std::optional<shoulder_branch>
solve_shoulder(const spherical_wrist_arm& arm, const Eigen::Vector3d& centre, bool rear, double kept_rotation1);

/// Nothing when upper arm and forearm are too short, or too unequal, to span from the shoulder to the wrist centre.
[[nodiscard]] std::optional<arm_triangle> solve_arm_triangle(const spherical_wrist_arm& arm,
                                                             const shoulder_branch& shoulder);

[[nodiscard]] elbow_branch solve_elbow(const spherical_wrist_arm& arm, const arm_triangle& triangle, bool rear,
                                       bool below, double kept_rotation2);

[[nodiscard]] wrist_branch solve_wrist(const spherical_wrist_arm& arm, const Eigen::Matrix3d& hand_rotation,
                                       double kept_rotation4);
/// Joints 4 to 6 turned to the branch of the other sign of joint 5, for the same orientation.
[[nodiscard]] wrist_branch mirrored(const wrist_branch& wrist);

/// Rotation of frame 3, which carries the wrist, seen from the base.
[[nodiscard]] Eigen::Matrix3d forearm_rotation(const spherical_wrist_arm& arm, double rotation1,
                                               const elbow_branch& elbow);
} // namespace savrent::kinematics

#endif
