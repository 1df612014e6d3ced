#ifndef SIMULATOR_COMMANDS_RECORDING_COMMANDS_H
#define SIMULATOR_COMMANDS_RECORDING_COMMANDS_H

#include <span>

#include "simulator/commands/command_table.h"

namespace cbox_simulator
{
/// Recording of a robot's motion, playback, and the files of recordings.
[[nodiscard]] std::span<const command_row> recording_commands();
} // namespace cbox_simulator

#endif
