#ifndef SIMULATOR_MODEL_TOOL_CALIBRATION_H
#define SIMULATOR_MODEL_TOOL_CALIBRATION_H

#include <array>
#include <optional>
#include <span>

#include "simulator/model/pose.h"

namespace cbox_simulator
{
/// Where the tool's tip is in the flange frame, and how well the poses agree on it.
struct tool_position
{
    std::array<double, 3> tip{}; ///< Millimetres.
    double deviation = 0;        ///< Root mean square of the tip's distances from the point it was held at.
};

/**
 * The tip of a tool that stayed at one point while the flange took each of these poses.
 *
 * Nothing when the poses do not tell it: that needs turns about two axes at least.
 */
[[nodiscard]] std::optional<tool_position> tool_position_from(std::span<const pose> flange_poses);

/// The orientation that a tool has in the flange frame, from those that both have in the base frame. All in degrees.
[[nodiscard]] std::array<double, 3> tool_orientation_from(const pose& flange_pose,
                                                          const std::array<double, 3>& tool_orientation);
} // namespace cbox_simulator

#endif
