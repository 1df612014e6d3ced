#ifndef SIMULATOR_COMMANDS_MEMORY_COMMANDS_H
#define SIMULATOR_COMMANDS_MEMORY_COMMANDS_H

#include <span>

#include "simulator/commands/command_table.h"

namespace cbox_simulator
{
/// The user memory, and the sleep that the box keeps a caller waiting for.
[[nodiscard]] std::span<const command_row> memory_commands();
} // namespace cbox_simulator

#endif
