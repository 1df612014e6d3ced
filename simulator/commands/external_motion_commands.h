#ifndef SIMULATOR_COMMANDS_EXTERNAL_MOTION_COMMANDS_H
#define SIMULATOR_COMMANDS_EXTERNAL_MOTION_COMMANDS_H

#include <span>

#include "simulator/commands/command_table.h"

namespace cbox_simulator
{
/// External profiler, external move and conveyor.
[[nodiscard]] std::span<const command_row> external_motion_commands();
} // namespace cbox_simulator

#endif
