#ifndef SIMULATOR_COMMANDS_CBOX_COMMANDS_H
#define SIMULATOR_COMMANDS_CBOX_COMMANDS_H

#include <span>

#include "simulator/commands/command_table.h"

namespace cbox_simulator
{
/// What applications set on the control box: its network, its mode, its outputs, and what its redundant I/O is for.
[[nodiscard]] std::span<const command_row> cbox_commands();
} // namespace cbox_simulator

#endif
