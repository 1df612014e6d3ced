#include "simulator/commands/families.h"

#include <cstring>

#include "simulator/commands/part_operation.h"
#include "simulator/commands/typed_command.h"
#include "simulator/model/fault_injection.h"

namespace cbox_simulator
{
namespace
{
QORIN_API_RESULT event_echo(box_model& model, std::uint32_t group, std::uint32_t subgroup, std::uint32_t sender,
                            std::int32_t parameter_0, std::int32_t parameter_1, std::int32_t parameter_2,
                            std::int32_t parameter_3, std::int32_t parameter_4)
{
    event_info event{};
    event.group = group;
    event.subgroup = subgroup;
    event.sender_id = sender;
    const std::int32_t parameters[] = {parameter_0, parameter_1, parameter_2, parameter_3, parameter_4};
    std::memcpy(event.parameter, parameters, sizeof parameters);
    model.events().echo(event);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT fault_inject(box_model& model, std::uint32_t fault, std::uint32_t value_1, std::uint32_t value_2)
{
    return inject_fault(model, static_cast<injected_fault>(fault), value_1, value_2);
}

/// A channel and its value.
template <auto set>
QORIN_API_RESULT inject(box_model& model, std::uint32_t channel, std::uint32_t value)
{
    return (model.cbox().*set)(channel, value);
}

/// A channel and its value; without a number the module is the first.
template <auto set>
QORIN_API_RESULT inject_first(box_model& model, std::uint32_t channel, std::uint32_t value)
{
    return (model.cbox().*set)(0, channel, value);
}

/// A module, its channel and the value.
template <auto set>
QORIN_API_RESULT inject_module(box_model& model, std::uint32_t module, std::uint32_t channel, std::uint32_t value)
{
    return (model.cbox().*set)(module, channel, value);
}

constexpr command_row rows[] = {
    open_to_all<event_echo>("qorin_ts_event_echo"),
    open_to_all<fault_inject>("qorin_ts_fault_inject"),
    open_to_all<inject_first<&cbox_state::set_digital_input>>("qorin_ts_cbox_io_digital_input_set"),
    open_to_all<inject_first<&cbox_state::set_redundant_input>>("qorin_ts_cbox_redundant_io_digital_input_set"),
    open_to_all<inject_first<&cbox_state::set_redundant_output>>("qorin_ts_cbox_redundant_io_digital_output_set"),
    open_to_all<inject_module<&cbox_state::set_digital_input>>("qorin_ts_gen_cbox_io_digital_input_set"),
    open_to_all<inject_module<&cbox_state::set_redundant_input>>("qorin_ts_gen_cbox_redundant_io_digital_input_set"),
    open_to_all<inject_module<&cbox_state::set_redundant_output>>("qorin_ts_gen_cbox_redundant_io_digital_output_set"),
    open_to_all<inject<&cbox_state::set_safety_redundant_input>>(
        "qorin_ts_safety_module_redundant_io_digital_input_set"),
    open_to_all<inject<&cbox_state::set_epc_input>>("qorin_ts_epc_io_digital_input_set"),
    open_to_all<on_part<&service_data::write>>("qorin_ts_cbox_sdo_write"),
    open_to_all<on_part<&service_data::read>>("qorin_ts_cbox_sdo_read"),
};
} // namespace

std::span<const command_row> cbox_test_commands()
{
    return rows;
}
} // namespace cbox_simulator
