#ifndef SIMULATOR_COMMANDS_COMMAND_TABLE_H
#define SIMULATOR_COMMANDS_COMMAND_TABLE_H

#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "simulator/commands/command_row.h"

namespace cbox_simulator
{
/// All commands that the box knows, by wire name.
class command_table
{
public:
    /// Adds the commands of a family. A name that the table already has is a fault of this program: it throws.
    void add(std::span<const command_row> rows);

    /// Null when the box has no such command.
    [[nodiscard]] const command_row* find(std::string_view wire_name) const;

    /// Every command of the table.
    [[nodiscard]] std::vector<command_row> rows() const;

private:
    std::unordered_map<std::string_view, command_row> rows_;
};

/// The table with every family of the box.
[[nodiscard]] command_table make_command_table();
} // namespace cbox_simulator

#endif
