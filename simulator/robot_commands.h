#ifndef SIMULATOR_ROBOT_COMMANDS_H
#define SIMULATOR_ROBOT_COMMANDS_H

#include <span>

#include "simulator/command_table.h"

namespace cbox_simulator
{
/// Robots come and go, and get their kinematics. All of it needs the control.
[[nodiscard]] std::span<const command_row> robot_commands();
} // namespace cbox_simulator

#endif
