#ifndef SIMULATOR_COMMANDS_ROBOT_TEST_COMMANDS_H
#define SIMULATOR_COMMANDS_ROBOT_TEST_COMMANDS_H

#include <span>

#include "simulator/commands/command_table.h"

namespace cbox_simulator
{
/// Inputs and drive values of a robot. They stand for the outside world, so that nobody needs the control for them.
[[nodiscard]] std::span<const command_row> robot_test_commands();
} // namespace cbox_simulator

#endif
