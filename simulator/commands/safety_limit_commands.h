#ifndef SIMULATOR_COMMANDS_SAFETY_LIMIT_COMMANDS_H
#define SIMULATOR_COMMANDS_SAFETY_LIMIT_COMMANDS_H

#include <span>

#include "simulator/commands/command_table.h"

namespace cbox_simulator
{
/// Limits, work space planes and TCP bounding shapes.
[[nodiscard]] std::span<const command_row> safety_limit_commands();
} // namespace cbox_simulator

#endif
