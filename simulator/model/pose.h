#ifndef SIMULATOR_MODEL_POSE_H
#define SIMULATOR_MODEL_POSE_H

#include <array>

namespace cbox_simulator
{
/// x, y, z in millimetres, then rx, ry, rz in degrees: the rotation Rz(rz) * Ry(ry) * Rx(rx).
using pose = std::array<double, 6>;

/// The pose in the base frame of what has the pose `local` in the frame `outer`.
[[nodiscard]] pose placed(const pose& outer, const pose& local);

/// The orientation as a pose has it. The quaternion may have any length but 0.
[[nodiscard]] std::array<double, 3> orientation_of_quaternion(double x, double y, double z, double w);
/// The frame in which what has the pose `inner` in the base frame has the pose `local`.
[[nodiscard]] pose outer_of(const pose& inner, const pose& local);

/// The turn from one orientation to the other, as a vector along its axis seen from the base. Degrees.
[[nodiscard]] std::array<double, 3> turn_from_to(const pose& from, const pose& to);

[[nodiscard]] bool is_finite(const std::array<double, 6>& values);
} // namespace cbox_simulator

#endif
