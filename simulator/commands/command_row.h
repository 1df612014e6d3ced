#ifndef SIMULATOR_COMMANDS_COMMAND_ROW_H
#define SIMULATOR_COMMANDS_COMMAND_ROW_H

#include <span>
#include <string_view>

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
} // namespace cbox_simulator

#endif
