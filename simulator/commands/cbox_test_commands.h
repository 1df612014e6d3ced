#ifndef SIMULATOR_COMMANDS_CBOX_TEST_COMMANDS_H
#define SIMULATOR_COMMANDS_CBOX_TEST_COMMANDS_H

#include <span>

#include "simulator/commands/command_table.h"

namespace cbox_simulator
{
/// Events on demand, inputs and faults of the control box, and the service data of its modules. They stand for the
/// outside world, so that nobody needs the control for them.
[[nodiscard]] std::span<const command_row> cbox_test_commands();
} // namespace cbox_simulator

#endif
