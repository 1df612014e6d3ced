#ifndef SIMULATOR_COMMANDS_FIELDBUS_COMMANDS_H
#define SIMULATOR_COMMANDS_FIELDBUS_COMMANDS_H

#include <span>

#include "simulator/commands/command_table.h"

namespace cbox_simulator
{
/// Modbus, EtherNet/IP, the RDM link, the external registers, and the data of devices on the EtherCAT network.
[[nodiscard]] std::span<const command_row> fieldbus_commands();
} // namespace cbox_simulator

#endif
