#ifndef KINEMATICS_DH_TABLE_H
#define KINEMATICS_DH_TABLE_H

#include <array>
#include <cstddef>

namespace savrent::kinematics
{
inline constexpr std::size_t joint_count = 6;

/// One value per joint, from the base to the flange. Angles in degrees.
using joint_array = std::array<double, joint_count>;

/**
 * Denavit-Hartenberg table in the standard (distal) form: the frame of link i sits at the far end of the link, and
 * joint i turns about the z axis of frame i - 1. The transform over joint i at joint angle q is
 *
 *     Rz(q + theta[i]) * Tz(d[i]) * Tx(a[i]) * Rx(alpha[i])
 *
 * Frame 0 is the robot's base, frame 6 its flange. Lengths are in millimetres, as those of poses are.
 */
struct dh_table
{
    joint_array theta{}; ///< Added to the joint angle. Degrees.
    joint_array d{};     ///< Along the joint's own axis. Millimetres.
    joint_array a{};     ///< Along the link's x axis, to the next joint's axis. Millimetres.
    joint_array alpha{}; ///< From the joint's axis to the next one's, about the link's x axis. Degrees.

    bool operator==(const dh_table&) const = default;
};

/// Sum of all link lengths and offsets, without signs: no frame is farther from the base.
[[nodiscard]] double total_length(const dh_table& table);

/// Whether every value is a finite number and at least one length is not zero.
[[nodiscard]] bool describes_an_arm(const dh_table& table);
} // namespace savrent::kinematics

#endif
