#ifndef KINEMATICS_ARM_SOLVER_H
#define KINEMATICS_ARM_SOLVER_H

#include <array>
#include <cstddef>
#include <optional>

#include "kinematics/angles.h"
#include "kinematics/dh_table.h"
#include "kinematics/spherical_wrist_arm.h"

namespace savrent::kinematics
{
inline constexpr std::size_t solution_count = 8;

/// The flange seen from the base: millimetres, and degrees with the rotation Rz(rz) * Ry(ry) * Rx(rx).
struct flange_pose
{
    std::array<double, 3> position{};    ///< x, y, z
    std::array<double, 3> orientation{}; ///< rx, ry, rz
};

/// Where the links of an arm bend, from the base on: for each row of the table the point behind its d, then the one
/// behind its a, which is the origin of the row's frame. Millimetres, seen from the base.
using link_points = std::array<std::array<double, 3>, 2 * joint_count>;

/**
 * Branch of the inverse. The definitions follow the links, so that they hold for every table:
 * - front: the wrist centre lies on the side of joint 1's axis to which the x axis of link 1 points; rear: beyond it.
 * - above: in the arm plane, the elbow lies over the line from shoulder to wrist centre when that line is laid down
 *   level in the arm's own direction (ahead for front, behind for rear); below: under it.
 * - nonflip: the sine of joint 5's rotation (its angle plus theta of the table) is positive; flip: negative.
 */
struct posture
{
    bool rear = false;
    bool below = false;
    bool nonflip = false;

    /// 0 to 7, in the order of the QORIN_ROBOT_POSTURE values.
    [[nodiscard]] constexpr std::size_t index() const
    {
        return (rear ? 4U : 0U) + (below ? 2U : 0U) + (nonflip ? 1U : 0U);
    }

    bool operator==(const posture&) const = default;
};

/// All solutions for one pose, each in the place of its posture's index. Joints without a solution are 0.
struct solution_set
{
    std::array<joint_array, solution_count> joints{};
    std::array<bool, solution_count> valid{};
};

/**
 * Forward and inverse kinematics of an arm of six turning joints.
 *
 * Forward takes any table. The inverse is in closed form, for arms with a spherical wrist (see spherical_wrist_arm);
 * for other tables every inverse is refused. It knows no joint limits and no collisions: these are the controller's.
 *
 * A value without mutable state: any number of threads may use one object at once. Nothing allocates or throws.
 *
 * Where a pose does not determine the joints, the solution is still exact:
 * - wrist straight: joint 4 keeps the reference's value, joint 6 makes the orientation, flip and nonflip coincide;
 * - wrist centre on joint 1's axis: joint 1 keeps the reference's value, front and rear coincide in it;
 * - wrist centre on joint 2's axis: joint 2 keeps the reference's value;
 * - elbow stretched or folded: above and below coincide.
 * Without a reference, the reference is 0.
 */
class arm_solver
{
public:
    explicit arm_solver(const dh_table& table);

    [[nodiscard]] const dh_table& table() const { return table_; }
    /// Whether the inverse can be solved at all for this table.
    [[nodiscard]] bool has_closed_form() const { return closed_form_.has_value(); }

    [[nodiscard]] flange_pose forward(const joint_array& joints) const;
    [[nodiscard]] link_points links(const joint_array& joints) const;

    /**
     * The solution with the least sum of squared joint differences from the reference, each joint within +-180 degrees
     * of it. Nothing when the pose is out of reach or a number is not finite, or when a joint of the reference is
     * beyond a hundred turns from 0, where the rounding of an angle would show in the pose.
     */
    [[nodiscard]] std::optional<joint_array> inverse(const flange_pose& target, const joint_array& reference) const;

    /// Each joint within +-180 degrees of the reference's; none valid where inverse() yields nothing.
    [[nodiscard]] solution_set inverse_all_solutions(const flange_pose& target,
                                                     const joint_array& reference = {}) const;

    /// Each joint within +-180 degrees.
    [[nodiscard]] std::optional<joint_array> inverse_from_posture(const flange_pose& target, posture wanted) const;

private:
    dh_table table_;
    std::array<direction, joint_count> twists_; ///< Of alpha.
    std::optional<spherical_wrist_arm> closed_form_;
};
} // namespace savrent::kinematics

#endif
