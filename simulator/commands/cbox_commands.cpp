#include "simulator/commands/families.h"

#include "simulator/commands/part_operation.h"
#include "simulator/commands/typed_command.h"

namespace cbox_simulator
{
namespace
{
/// The simulated box has no errors of its own that a reset could clear.
QORIN_API_RESULT reset()
{
    return QORIN_API_RESULT_OK;
}

template <bool connected>
QORIN_API_RESULT change_ecat_link(box_model& model)
{
    return model.set_ecat_link(connected);
}

/// The commands without a module number are for the first module.
template <auto operation, class Operation = decltype(operation)>
struct first_module_operation;

template <auto operation, class... Parameters>
struct first_module_operation<operation, QORIN_API_RESULT (io_modules::*)(std::uint32_t, Parameters...)>
{
    static QORIN_API_RESULT perform(box_model& model, Parameters... parameters)
    {
        return (model.cbox().*operation)(0, parameters...);
    }
};

template <auto operation>
constexpr auto on_first = &first_module_operation<operation>::perform;

/// The two numbers behind the mode tune the converters of real terminals. No frame tells them.
template <auto set>
QORIN_API_RESULT analog_mode_set(box_model& model, std::uint32_t module, std::uint32_t channel,
                                 QORIN_ANALOG_IO_MODE mode, std::int32_t, double)
{
    return (model.cbox().*set)(module, channel, mode);
}

template <auto set>
QORIN_API_RESULT first_analog_mode_set(box_model& model, std::uint32_t channel, QORIN_ANALOG_IO_MODE mode,
                                       std::int32_t number, double real)
{
    return analog_mode_set<set>(model, 0, channel, mode, number, real);
}

using box = cbox_state;

constexpr command_row rows[] = {
    controlled<reset>("qorin_cbox_reset"),
    controlled<change_ecat_link<true>>("qorin_cbox_master_ecat_connect"),
    controlled<change_ecat_link<false>>("qorin_cbox_master_ecat_disconnect"),
    controlled<on_part<&box::set_operational_mode>>("qorin_cbox_master_operational_mode_set"),
    controlled<on_part<&box::set_manual_control>>("qorin_cbox_state_manual_control_set"),
    controlled<on_part<&box::set_ui_program>>("qorin_cbox_state_ui_program_set"),

    controlled<on_first<&box::set_digital_output>>("qorin_cbox_io_digital_output_set"),
    controlled<on_first<&box::set_digital_outputs>>("qorin_cbox_io_digital_output_multiple_set"),
    controlled<on_first<&box::set_analog_output>>("qorin_cbox_io_analog_output_set"),
    controlled<first_analog_mode_set<&box::set_analog_input_mode>>("qorin_cbox_io_analog_input_mode_set"),
    controlled<first_analog_mode_set<&box::set_analog_output_mode>>("qorin_cbox_io_analog_output_mode_set"),
    controlled<on_part<&box::set_digital_output>>("qorin_gen_cbox_io_digital_output_set"),
    controlled<on_part<&box::set_digital_outputs>>("qorin_gen_cbox_io_digital_output_multiple_set"),
    controlled<on_part<&box::set_analog_output>>("qorin_gen_cbox_io_analog_output_set"),
    controlled<analog_mode_set<&box::set_analog_input_mode>>("qorin_gen_cbox_io_analog_input_mode_set"),
    controlled<analog_mode_set<&box::set_analog_output_mode>>("qorin_gen_cbox_io_analog_output_mode_set"),
    controlled<on_part<&box::set_fsoe_output>>("qorin_gen_cbox_fsoe_io_digital_output_set"),

    controlled<on_part<&box::assign_redundant_input>>("qorin_cbox_io_redundant_in_set"),
    controlled<on_part<&box::assign_redundant_output>>("qorin_cbox_io_redundant_out_set"),
    controlled<on_part<&box::remove_redundant_input>>("qorin_cbox_io_redundant_in_remove"),
    controlled<on_part<&box::remove_redundant_output>>("qorin_cbox_io_redundant_out_remove"),
    controlled<on_part<&box::remove_all_redundant_inputs>>("qorin_cbox_io_redundant_in_remove_all"),
    controlled<on_part<&box::remove_all_redundant_outputs>>("qorin_cbox_io_redundant_out_remove_all"),
    controlled<on_part<&box::assign_safety_input>>("qorin_cbox_safety_module_io_redundant_in_set"),
    controlled<on_part<&box::remove_safety_input>>("qorin_cbox_safety_module_io_redundant_in_remove"),
    controlled<on_part<&box::remove_all_safety_inputs>>("qorin_cbox_safety_module_io_redundant_in_remove_all"),
};
} // namespace

std::span<const command_row> cbox_commands()
{
    return rows;
}
} // namespace cbox_simulator
