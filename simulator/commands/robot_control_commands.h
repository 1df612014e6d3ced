#ifndef SIMULATOR_COMMANDS_ROBOT_CONTROL_COMMANDS_H
#define SIMULATOR_COMMANDS_ROBOT_CONTROL_COMMANDS_H

#include <span>

#include "simulator/commands/command_table.h"

namespace cbox_simulator
{
/// Stopping, servo power, override, control mode, velocity control, home position, jog and direct teaching.
[[nodiscard]] std::span<const command_row> robot_control_commands();
} // namespace cbox_simulator

#endif
