#include "simulator/cbox_test_commands.h"

#include "simulator/fault_injection.h"

namespace cbox_simulator
{
namespace
{
QORIN_API_RESULT event_echo(box_model& model, client_id, request_reader& arguments, reply_writer&)
{
    event_info event{};
    event.group = arguments.next_u32();
    event.subgroup = arguments.next_u32();
    event.sender_id = arguments.next_u32();
    for (std::size_t index = 0; index < std::size(event.parameter); ++index)
        event.parameter[index] = arguments.next_i32();
    model.events().post(event);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT fault_inject(box_model& model, client_id, request_reader& arguments, reply_writer&)
{
    const auto fault = static_cast<injected_fault>(arguments.next_u32());
    const auto value_1 = arguments.next_u32();
    const auto value_2 = arguments.next_u32();
    return inject_fault(model, fault, value_1, value_2);
}

/// A channel and its value.
template <auto set>
QORIN_API_RESULT inject(box_model& model, client_id, request_reader& arguments, reply_writer&)
{
    const auto channel = arguments.next_u32();
    const auto value = arguments.next_u32();
    return (model.cbox().*set)(channel, value);
}

/// A channel and its value; without a number the module is the first.
template <auto set>
QORIN_API_RESULT inject_first(box_model& model, client_id, request_reader& arguments, reply_writer&)
{
    const auto channel = arguments.next_u32();
    const auto value = arguments.next_u32();
    return (model.cbox().*set)(0, channel, value);
}

/// A module, its channel and the value.
template <auto set>
QORIN_API_RESULT inject_module(box_model& model, client_id, request_reader& arguments, reply_writer&)
{
    const auto module = arguments.next_u32();
    const auto channel = arguments.next_u32();
    const auto value = arguments.next_u32();
    return (model.cbox().*set)(module, channel, value);
}

constexpr command_row rows[] = {
    {"qorin_ts_event_echo", event_echo},
    {"qorin_ts_fault_inject", fault_inject},
    {"qorin_ts_cbox_io_digital_input_set", inject_first<&cbox_state::set_digital_input>},
    {"qorin_ts_cbox_redundant_io_digital_input_set", inject_first<&cbox_state::set_redundant_input>},
    {"qorin_ts_cbox_redundant_io_digital_output_set", inject_first<&cbox_state::set_redundant_output>},
    {"qorin_ts_gen_cbox_io_digital_input_set", inject_module<&cbox_state::set_digital_input>},
    {"qorin_ts_gen_cbox_redundant_io_digital_input_set", inject_module<&cbox_state::set_redundant_input>},
    {"qorin_ts_gen_cbox_redundant_io_digital_output_set", inject_module<&cbox_state::set_redundant_output>},
    {"qorin_ts_safety_module_redundant_io_digital_input_set", inject<&cbox_state::set_safety_redundant_input>},
    {"qorin_ts_epc_io_digital_input_set", inject<&cbox_state::set_epc_input>},
};
} // namespace

std::span<const command_row> cbox_test_commands()
{
    return rows;
}
} // namespace cbox_simulator
