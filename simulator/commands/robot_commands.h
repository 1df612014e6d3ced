#ifndef SIMULATOR_COMMANDS_ROBOT_COMMANDS_H
#define SIMULATOR_COMMANDS_ROBOT_COMMANDS_H

#include <span>

#include "simulator/commands/command_table.h"

namespace cbox_simulator
{
/// Robots come and go, get their kinematics, and begin and end to follow streamed targets. All of it needs the control.
[[nodiscard]] std::span<const command_row> robot_commands();
} // namespace cbox_simulator

#endif
