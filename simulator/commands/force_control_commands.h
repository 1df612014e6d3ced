#ifndef SIMULATOR_COMMANDS_FORCE_CONTROL_COMMANDS_H
#define SIMULATOR_COMMANDS_FORCE_CONTROL_COMMANDS_H

#include <span>

#include "simulator/commands/command_table.h"

namespace cbox_simulator
{
/// Force control, the sensor at the flange and the external force-torque input.
[[nodiscard]] std::span<const command_row> force_control_commands();
} // namespace cbox_simulator

#endif
