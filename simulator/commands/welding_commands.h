#ifndef SIMULATOR_COMMANDS_WELDING_COMMANDS_H
#define SIMULATOR_COMMANDS_WELDING_COMMANDS_H

#include <span>

#include "simulator/commands/command_table.h"

namespace cbox_simulator
{
/// What only the motion commands for welding have: weave and arc sensing.
[[nodiscard]] std::span<const command_row> welding_commands();
} // namespace cbox_simulator

#endif
