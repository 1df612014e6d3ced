#ifndef SIMULATOR_COMMANDS_SYSTEM_COMMANDS_H
#define SIMULATOR_COMMANDS_SYSTEM_COMMANDS_H

#include <span>

#include "simulator/commands/command_table.h"

namespace cbox_simulator
{
/// Creation and end of the system, and who has the control.
[[nodiscard]] std::span<const command_row> system_commands();
} // namespace cbox_simulator

#endif
