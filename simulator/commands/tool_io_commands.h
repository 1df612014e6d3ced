#ifndef SIMULATOR_COMMANDS_TOOL_IO_COMMANDS_H
#define SIMULATOR_COMMANDS_TOOL_IO_COMMANDS_H

#include <span>

#include "simulator/commands/command_table.h"

namespace cbox_simulator
{
/// The I/O module at a robot's flange, and the RS485 port there.
[[nodiscard]] std::span<const command_row> tool_io_commands();
} // namespace cbox_simulator

#endif
