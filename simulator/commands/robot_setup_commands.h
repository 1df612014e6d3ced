#ifndef SIMULATOR_COMMANDS_ROBOT_SETUP_COMMANDS_H
#define SIMULATOR_COMMANDS_ROBOT_SETUP_COMMANDS_H

#include <span>

#include "simulator/commands/command_table.h"

namespace cbox_simulator
{
/// Collision handling, dynamics calibration, tool and payload.
[[nodiscard]] std::span<const command_row> robot_setup_commands();
} // namespace cbox_simulator

#endif
