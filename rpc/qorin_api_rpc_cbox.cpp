#include "qorin/cbox.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::from_mirror;

QORIN_API_RESULT qorin_rpc_cbox_master_operational_mode_get(unsigned int cbox_id, QORIN_OPERATIONAL_MODE* mode)
{
    return from_mirror(cbox_id, qorin_cbox_master_operational_mode_get, mode);
}

QORIN_API_RESULT qorin_rpc_cbox_name_get(unsigned int cbox_id, QORIN_CBOX_MODEL* name)
{
    return from_mirror(cbox_id, qorin_cbox_name_get, name);
}

QORIN_API_RESULT qorin_rpc_cbox_emergency_button_state_get(unsigned int cbox_id, QORIN_BUTTON_STATE* state)
{
    return from_mirror(cbox_id, qorin_cbox_emergency_button_state_get, state);
}

QORIN_API_RESULT qorin_rpc_cbox_amr_emergency_button_state_get(unsigned int cbox_id, unsigned int index,
                                                               QORIN_BUTTON_STATE* state)
{
    return from_mirror(cbox_id, qorin_cbox_amr_emergency_button_state_get, index, state);
}

QORIN_API_RESULT qorin_rpc_cbox_ecat_connection_state_get(unsigned int cbox_id, QORIN_ECAT_CONN_STATE* state)
{
    return from_mirror(cbox_id, qorin_cbox_ecat_connection_state_get, state);
}

QORIN_API_RESULT qorin_rpc_cbox_power_button_state_get(unsigned int cbox_id, QORIN_BUTTON_STATE* state)
{
    return from_mirror(cbox_id, qorin_cbox_power_button_state_get, state);
}

QORIN_API_RESULT qorin_rpc_gen_cbox_io_digital_input_get(unsigned int cbox_id, unsigned int module,
                                                         unsigned int channel, unsigned int* value)
{
    return from_mirror(cbox_id, qorin_gen_cbox_io_digital_input_get, module, channel, value);
}

QORIN_API_RESULT qorin_rpc_cbox_io_digital_input_get(unsigned int cbox_id, unsigned int channel, unsigned int* value)
{
    return from_mirror(cbox_id, qorin_cbox_io_digital_input_get, channel, value);
}

QORIN_API_RESULT qorin_rpc_gen_cbox_io_digital_output_get(unsigned int cbox_id, unsigned int module,
                                                          unsigned int channel, unsigned int* value)
{
    return from_mirror(cbox_id, qorin_gen_cbox_io_digital_output_get, module, channel, value);
}

QORIN_API_RESULT qorin_rpc_cbox_io_digital_output_get(unsigned int cbox_id, unsigned int channel, unsigned int* value)
{
    return from_mirror(cbox_id, qorin_cbox_io_digital_output_get, channel, value);
}

QORIN_API_RESULT qorin_rpc_gen_cbox_io_analog_input_get(unsigned int cbox_id, unsigned int module, unsigned int channel,
                                                        double* value)
{
    return from_mirror(cbox_id, qorin_gen_cbox_io_analog_input_get, module, channel, value);
}

QORIN_API_RESULT qorin_rpc_cbox_io_analog_input_get(unsigned int cbox_id, unsigned int channel, double* value)
{
    return from_mirror(cbox_id, qorin_cbox_io_analog_input_get, channel, value);
}

QORIN_API_RESULT qorin_rpc_gen_cbox_io_analog_output_get(unsigned int cbox_id, unsigned int module,
                                                         unsigned int channel, double* value)
{
    return from_mirror(cbox_id, qorin_gen_cbox_io_analog_output_get, module, channel, value);
}

QORIN_API_RESULT qorin_rpc_cbox_io_analog_output_get(unsigned int cbox_id, unsigned int channel, double* value)
{
    return from_mirror(cbox_id, qorin_cbox_io_analog_output_get, channel, value);
}

QORIN_API_RESULT qorin_rpc_gen_cbox_io_analog_input_mode_get(unsigned int cbox_id, unsigned int module,
                                                             unsigned int channel, QORIN_ANALOG_IO_MODE* mode,
                                                             int* range, double* range_value)
{
    return from_mirror(cbox_id, qorin_gen_cbox_io_analog_input_mode_get, module, channel, mode, range, range_value);
}

QORIN_API_RESULT qorin_rpc_cbox_io_analog_input_mode_get(unsigned int cbox_id, unsigned int channel,
                                                         QORIN_ANALOG_IO_MODE* mode, int* range, double* range_value)
{
    return from_mirror(cbox_id, qorin_cbox_io_analog_input_mode_get, channel, mode, range, range_value);
}

QORIN_API_RESULT qorin_rpc_gen_cbox_io_analog_output_mode_get(unsigned int cbox_id, unsigned int module,
                                                              unsigned int channel, QORIN_ANALOG_IO_MODE* mode,
                                                              int* range, double* range_value)
{
    return from_mirror(cbox_id, qorin_gen_cbox_io_analog_output_mode_get, module, channel, mode, range, range_value);
}

QORIN_API_RESULT qorin_rpc_cbox_io_analog_output_mode_get(unsigned int cbox_id, unsigned int channel,
                                                          QORIN_ANALOG_IO_MODE* mode, int* range, double* range_value)
{
    return from_mirror(cbox_id, qorin_cbox_io_analog_output_mode_get, channel, mode, range, range_value);
}

QORIN_API_RESULT qorin_rpc_gen_cbox_redundant_io_digital_input_get(unsigned int cbox_id, unsigned int module,
                                                                   unsigned int channel, unsigned int* value)
{
    return from_mirror(cbox_id, qorin_gen_cbox_redundant_io_digital_input_get, module, channel, value);
}

QORIN_API_RESULT qorin_rpc_cbox_redundant_io_digital_input_get(unsigned int cbox_id, unsigned int channel,
                                                               unsigned int* value)
{
    return from_mirror(cbox_id, qorin_cbox_redundant_io_digital_input_get, channel, value);
}

QORIN_API_RESULT qorin_rpc_gen_cbox_redundant_io_digital_output_get(unsigned int cbox_id, unsigned int module,
                                                                    unsigned int channel, unsigned int* value)
{
    return from_mirror(cbox_id, qorin_gen_cbox_redundant_io_digital_output_get, module, channel, value);
}

QORIN_API_RESULT qorin_rpc_cbox_redundant_io_digital_output_get(unsigned int cbox_id, unsigned int channel,
                                                                unsigned int* value)
{
    return from_mirror(cbox_id, qorin_cbox_redundant_io_digital_output_get, channel, value);
}

QORIN_API_RESULT qorin_rpc_gen_cbox_fsoe_io_digital_input_get(unsigned int cbox_id, unsigned int module,
                                                              QORIN_FSOE_IO_INPUT_DATA input, unsigned int* value)
{
    return from_mirror(cbox_id, qorin_gen_cbox_fsoe_io_digital_input_get, module, input, value);
}

QORIN_API_RESULT qorin_rpc_gen_cbox_fsoe_io_digital_output_get(unsigned int cbox_id, unsigned int module,
                                                               QORIN_FSOE_IO_OUTPUT_DATA output, unsigned int* value)
{
    return from_mirror(cbox_id, qorin_gen_cbox_fsoe_io_digital_output_get, module, output, value);
}

QORIN_API_RESULT qorin_rpc_cbox_safety_module_redundant_io_digital_input_get(unsigned int cbox_id, unsigned int index,
                                                                             unsigned int* value)
{
    return from_mirror(cbox_id, qorin_cbox_safety_module_redundant_io_digital_input_get, index, value);
}

QORIN_API_RESULT qorin_rpc_cbox_safety_module_48v_smps_switch_get(unsigned int cbox_id, QORIN_SWITCH* smps_switch)
{
    return from_mirror(cbox_id, qorin_cbox_safety_module_48v_smps_switch_get, smps_switch);
}

QORIN_API_RESULT qorin_rpc_cbox_ecat_low_data_io_rx_data_get(unsigned int cbox_id, unsigned int device,
                                                             unsigned int size, unsigned char* data)
{
    return from_mirror(cbox_id, qorin_cbox_ecat_low_data_io_rx_data_get, device, size, data);
}

QORIN_API_RESULT qorin_rpc_cbox_ecat_low_data_io_tx_data_get(unsigned int cbox_id, unsigned int device,
                                                             unsigned int size, unsigned char* data)
{
    return from_mirror(cbox_id, qorin_cbox_ecat_low_data_io_tx_data_get, device, size, data);
}

QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_wp_rx_data_get(unsigned int cbox_id, unsigned int port, unsigned int size,
                                                            unsigned char* data)
{
    return from_mirror(cbox_id, qorin_cbox_ecat_io_link_wp_rx_data_get, port, size, data);
}

QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_wp_tx_data_get(unsigned int cbox_id, unsigned int port, unsigned int size,
                                                            unsigned char* data)
{
    return from_mirror(cbox_id, qorin_cbox_ecat_io_link_wp_tx_data_get, port, size, data);
}

QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_wp_status_data_get(unsigned int cbox_id, unsigned int port,
                                                                unsigned char* status)
{
    return from_mirror(cbox_id, qorin_cbox_ecat_io_link_wp_status_data_get, port, status);
}

QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_status_bit_data_get(unsigned int cbox_id, unsigned int device,
                                                                 unsigned short* bits)
{
    return from_mirror(cbox_id, qorin_cbox_ecat_io_link_status_bit_data_get, device, bits);
}

QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_control_bit_get(unsigned int cbox_id, unsigned int device,
                                                             unsigned short* bits)
{
    return from_mirror(cbox_id, qorin_cbox_ecat_io_link_control_bit_get, device, bits);
}

QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_input_bit_get(unsigned int cbox_id, unsigned int device,
                                                           unsigned short* bits)
{
    return from_mirror(cbox_id, qorin_cbox_ecat_io_link_input_bit_get, device, bits);
}

QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_output_bit_get(unsigned int cbox_id, unsigned int device,
                                                            unsigned short* bits)
{
    return from_mirror(cbox_id, qorin_cbox_ecat_io_link_output_bit_get, device, bits);
}

QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_rx_data_get(unsigned int cbox_id, unsigned int device, unsigned int size,
                                                         unsigned char* data)
{
    return from_mirror(cbox_id, qorin_cbox_ecat_io_link_rx_data_get, device, size, data);
}

QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_tx_data_get(unsigned int cbox_id, unsigned int device, unsigned int size,
                                                         unsigned char* data)
{
    return from_mirror(cbox_id, qorin_cbox_ecat_io_link_tx_data_get, device, size, data);
}
