#ifndef SIMULATOR_COMMANDS_COMMAND_TABLE_H
#define SIMULATOR_COMMANDS_COMMAND_TABLE_H

#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "simulator/commands/argument_type.h"
#include "simulator/commands/reply_writer.h"
#include "simulator/commands/request_reader.h"
#include "simulator/model/box_model.h"

namespace cbox_simulator
{
/// Performs one command: reads its arguments, changes the model, writes its outputs, returns its result.
using command_handler = QORIN_API_RESULT (*)(box_model& model, client_id client, request_reader& arguments,
                                             reply_writer& outputs);

struct command_row
{
    std::string_view wire_name; ///< a literal: the table keeps the view
    command_handler handler;
    std::span<const argument_type> arguments; ///< what the handler takes from a request, in its order
};

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

/// Text from a link as one printable line in quotes: other bytes show as \xNN.
[[nodiscard]] std::string printable(std::string_view text);
} // namespace cbox_simulator

#endif
