// The control box's state and its inputs and outputs.
#include "qorin/cbox_io.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::command;

QORIN_API_RESULT qorin_rpc_cbox_reset(unsigned int cbox_id)
{
    return command<"qorin_cbox_reset">(cbox_id);
}

QORIN_API_RESULT qorin_rpc_cbox_master_ecat_connect(unsigned int cbox_id)
{
    return command<"qorin_cbox_master_ecat_connect">(cbox_id);
}

QORIN_API_RESULT qorin_rpc_cbox_master_ecat_disconnect(unsigned int cbox_id)
{
    return command<"qorin_cbox_master_ecat_disconnect">(cbox_id);
}

QORIN_API_RESULT qorin_rpc_cbox_master_operational_mode_set(unsigned int cbox_id, QORIN_OPERATIONAL_MODE mode)
{
    return command<"qorin_cbox_master_operational_mode_set">(cbox_id, mode);
}

QORIN_API_RESULT qorin_rpc_cbox_state_manual_control_set(unsigned int cbox_id, QORIN_SWITCH state)
{
    return command<"qorin_cbox_state_manual_control_set">(cbox_id, state);
}

QORIN_API_RESULT qorin_rpc_cbox_state_ui_program_set(unsigned int cbox_id, QORIN_UI_PROGRAM_STATE state)
{
    return command<"qorin_cbox_state_ui_program_set">(cbox_id, state);
}

QORIN_API_RESULT qorin_rpc_cbox_io_digital_output_set(unsigned int cbox_id, unsigned int channel, unsigned int value)
{
    return command<"qorin_cbox_io_digital_output_set">(cbox_id, channel, value);
}

QORIN_API_RESULT qorin_rpc_cbox_io_digital_output_multiple_set(unsigned int cbox_id, unsigned int count,
                                                               const unsigned int* channels, const unsigned int* values)
{
    return command<"qorin_cbox_io_digital_output_multiple_set">(cbox_id, count, channels, values);
}

QORIN_API_RESULT qorin_rpc_cbox_io_analog_output_set(unsigned int cbox_id, unsigned int channel, double value)
{
    return command<"qorin_cbox_io_analog_output_set">(cbox_id, channel, value);
}

QORIN_API_RESULT qorin_rpc_cbox_io_analog_input_mode_set(unsigned int cbox_id, unsigned int channel,
                                                         QORIN_ANALOG_IO_MODE mode, int range, double range_value)
{
    return command<"qorin_cbox_io_analog_input_mode_set">(cbox_id, channel, mode, range, range_value);
}

QORIN_API_RESULT qorin_rpc_cbox_io_analog_output_mode_set(unsigned int cbox_id, unsigned int channel,
                                                          QORIN_ANALOG_IO_MODE mode, int range, double range_value)
{
    return command<"qorin_cbox_io_analog_output_mode_set">(cbox_id, channel, mode, range, range_value);
}

QORIN_API_RESULT qorin_rpc_gen_cbox_io_digital_output_set(unsigned int cbox_id, unsigned int module,
                                                          unsigned int channel, unsigned int value)
{
    return command<"qorin_gen_cbox_io_digital_output_set">(cbox_id, module, channel, value);
}

QORIN_API_RESULT qorin_rpc_gen_cbox_io_digital_output_multiple_set(unsigned int cbox_id, unsigned int module,
                                                                   unsigned int count, const unsigned int* channels,
                                                                   const unsigned int* values)
{
    return command<"qorin_gen_cbox_io_digital_output_multiple_set">(cbox_id, module, count, channels, values);
}

QORIN_API_RESULT qorin_rpc_gen_cbox_io_analog_output_set(unsigned int cbox_id, unsigned int module,
                                                         unsigned int channel, double value)
{
    return command<"qorin_gen_cbox_io_analog_output_set">(cbox_id, module, channel, value);
}

QORIN_API_RESULT qorin_rpc_gen_cbox_io_analog_input_mode_set(unsigned int cbox_id, unsigned int module,
                                                             unsigned int channel, QORIN_ANALOG_IO_MODE mode, int range,
                                                             double range_value)
{
    return command<"qorin_gen_cbox_io_analog_input_mode_set">(cbox_id, module, channel, mode, range, range_value);
}

QORIN_API_RESULT qorin_rpc_gen_cbox_io_analog_output_mode_set(unsigned int cbox_id, unsigned int module,
                                                              unsigned int channel, QORIN_ANALOG_IO_MODE mode,
                                                              int range, double range_value)
{
    return command<"qorin_gen_cbox_io_analog_output_mode_set">(cbox_id, module, channel, mode, range, range_value);
}

QORIN_API_RESULT qorin_rpc_gen_cbox_fsoe_io_digital_output_set(unsigned int cbox_id, unsigned int module,
                                                               QORIN_FSOE_IO_OUTPUT_DATA output, unsigned int value)
{
    return command<"qorin_gen_cbox_fsoe_io_digital_output_set">(cbox_id, module, output, value);
}

QORIN_API_RESULT qorin_rpc_cbox_io_redundant_in_set(unsigned int cbox_id, unsigned int value_1, unsigned int value_2,
                                                    unsigned int value_3, QORIN_CBOX_IO_REDUNDANT function)
{
    return command<"qorin_cbox_io_redundant_in_set">(cbox_id, value_1, value_2, value_3, function);
}

QORIN_API_RESULT qorin_rpc_cbox_io_redundant_in_remove(unsigned int cbox_id, unsigned int value_1, unsigned int value_2,
                                                       unsigned int value_3)
{
    return command<"qorin_cbox_io_redundant_in_remove">(cbox_id, value_1, value_2, value_3);
}

QORIN_API_RESULT qorin_rpc_cbox_io_redundant_in_remove_all(unsigned int cbox_id, unsigned int value)
{
    return command<"qorin_cbox_io_redundant_in_remove_all">(cbox_id, value);
}

QORIN_API_RESULT qorin_rpc_cbox_io_redundant_out_set(unsigned int cbox_id, unsigned int value_1, unsigned int value_2,
                                                     unsigned int value_3, QORIN_CBOX_IO_REDUNDANT function)
{
    return command<"qorin_cbox_io_redundant_out_set">(cbox_id, value_1, value_2, value_3, function);
}

QORIN_API_RESULT qorin_rpc_cbox_io_redundant_out_remove(unsigned int cbox_id, unsigned int value_1,
                                                        unsigned int value_2, unsigned int value_3)
{
    return command<"qorin_cbox_io_redundant_out_remove">(cbox_id, value_1, value_2, value_3);
}

QORIN_API_RESULT qorin_rpc_cbox_io_redundant_out_remove_all(unsigned int cbox_id, unsigned int value)
{
    return command<"qorin_cbox_io_redundant_out_remove_all">(cbox_id, value);
}

QORIN_API_RESULT qorin_rpc_cbox_safety_module_io_redundant_in_set(unsigned int cbox_id, unsigned int value_1,
                                                                  unsigned int value_2, unsigned int value_3,
                                                                  QORIN_SAFETY_MODULE_IO_REDUNDANT function)
{
    return command<"qorin_cbox_safety_module_io_redundant_in_set">(cbox_id, value_1, value_2, value_3, function);
}

QORIN_API_RESULT qorin_rpc_cbox_safety_module_io_redundant_in_remove(unsigned int cbox_id, unsigned int value_1,
                                                                     unsigned int value_2, unsigned int value_3)
{
    return command<"qorin_cbox_safety_module_io_redundant_in_remove">(cbox_id, value_1, value_2, value_3);
}

QORIN_API_RESULT qorin_rpc_cbox_safety_module_io_redundant_in_remove_all(unsigned int cbox_id, unsigned int value)
{
    return command<"qorin_cbox_safety_module_io_redundant_in_remove_all">(cbox_id, value);
}
