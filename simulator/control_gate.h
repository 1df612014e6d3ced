#ifndef SIMULATOR_CONTROL_GATE_H
#define SIMULATOR_CONTROL_GATE_H

#include "simulator/command_table.h"

namespace cbox_simulator
{
/// A handler for the client in control only. The control is judged before anything else of the command.
template <command_handler handler>
QORIN_API_RESULT in_control(box_model& model, client_id client, request_reader& arguments, reply_writer& outputs)
{
    return model.holds_control(client) ? handler(model, client, arguments, outputs)
                                       : QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL;
}
} // namespace cbox_simulator

#endif
