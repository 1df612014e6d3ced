#ifndef SIMULATOR_COMMANDS_MOTION_COMMANDS_H
#define SIMULATOR_COMMANDS_MOTION_COMMANDS_H

#include <span>

#include "simulator/commands/command_table.h"

namespace cbox_simulator
{
/// Motion commands and their queue, and motions in one request.
[[nodiscard]] std::span<const command_row> motion_commands();
} // namespace cbox_simulator

#endif
