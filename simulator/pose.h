#ifndef SIMULATOR_POSE_H
#define SIMULATOR_POSE_H

#include <array>

namespace cbox_simulator
{
/// x, y, z in millimetres, then rx, ry, rz in degrees: the rotation Rz(rz) * Ry(ry) * Rx(rx).
using pose = std::array<double, 6>;

/// The pose in the base frame of what has the pose `local` in the frame `outer`.
[[nodiscard]] pose placed(const pose& outer, const pose& local);

/// The frame in which what has the pose `inner` in the base frame has the pose `local`.
[[nodiscard]] pose outer_of(const pose& inner, const pose& local);

[[nodiscard]] bool is_finite(const std::array<double, 6>& values);
} // namespace cbox_simulator

#endif
