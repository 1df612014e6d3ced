#include "qorin/cbox.h"

#include <cstring>

#include "api/frame_read.h"
#include "api/io_word.h"

namespace
{
using protocol::ecat_low_data_t;
using protocol::io_link_wp_data_t;
using protocol::io_module_data_t;
using protocol::safety_module_data_t;
using protocol::shared_data_t;
using qorin_api::analog_mode;
using qorin_api::bit;
using qorin_api::read_frame;
using qorin_api::read_in_frame;
} // namespace

QORIN_API_RESULT qorin_cbox_master_operational_mode_get(QORIN_OPERATIONAL_MODE* mode)
{
    return read_frame(&shared_data_t::master_operational_mode, mode);
}

QORIN_API_RESULT qorin_cbox_name_get(QORIN_CBOX_MODEL* name)
{
    return read_frame(&shared_data_t::cbox_name, name);
}

QORIN_API_RESULT qorin_cbox_emergency_button_state_get(QORIN_BUTTON_STATE* state)
{
    return read_frame(&shared_data_t::emergency_button_state, state);
}

QORIN_API_RESULT qorin_cbox_amr_emergency_button_state_get(unsigned int index, QORIN_BUTTON_STATE* state)
{
    if (index >= protocol::amr_emergency_button_limit)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_AMR_EMG_NUMBER;
    return read_frame(&shared_data_t::amr_emergency_button_state, index, state);
}

QORIN_API_RESULT qorin_cbox_ecat_connection_state_get(QORIN_ECAT_CONN_STATE* state)
{
    return read_frame(&shared_data_t::ecat_connection_state, state);
}

QORIN_API_RESULT qorin_cbox_power_button_state_get(QORIN_BUTTON_STATE* state)
{
    return read_frame(&shared_data_t::power_button_state, state);
}

QORIN_API_RESULT qorin_gen_cbox_io_digital_input_get(unsigned int module, unsigned int channel, unsigned int* value)
{
    if (channel >= protocol::io_digital_channels)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_in_frame<io_module_data_t>(module, [&](const io_module_data_t& io)
                                           { *value = bit(io.digital_input, channel); });
}

QORIN_API_RESULT qorin_cbox_io_digital_input_get(unsigned int channel, unsigned int* value)
{
    return qorin_gen_cbox_io_digital_input_get(0, channel, value);
}

QORIN_API_RESULT qorin_gen_cbox_io_digital_output_get(unsigned int module, unsigned int channel, unsigned int* value)
{
    if (channel >= protocol::io_digital_channels)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_in_frame<io_module_data_t>(module, [&](const io_module_data_t& io)
                                           { *value = bit(io.digital_output, channel); });
}

QORIN_API_RESULT qorin_cbox_io_digital_output_get(unsigned int channel, unsigned int* value)
{
    return qorin_gen_cbox_io_digital_output_get(0, channel, value);
}

QORIN_API_RESULT qorin_gen_cbox_io_analog_input_get(unsigned int module, unsigned int channel, double* value)
{
    if (channel >= protocol::io_analog_channels)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_in_frame<io_module_data_t>(module, &io_module_data_t::analog_input, channel, value);
}

QORIN_API_RESULT qorin_cbox_io_analog_input_get(unsigned int channel, double* value)
{
    return qorin_gen_cbox_io_analog_input_get(0, channel, value);
}

QORIN_API_RESULT qorin_gen_cbox_io_analog_output_get(unsigned int module, unsigned int channel, double* value)
{
    if (channel >= protocol::io_analog_channels)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_in_frame<io_module_data_t>(module, &io_module_data_t::analog_output, channel, value);
}

QORIN_API_RESULT qorin_cbox_io_analog_output_get(unsigned int channel, double* value)
{
    return qorin_gen_cbox_io_analog_output_get(0, channel, value);
}

QORIN_API_RESULT qorin_gen_cbox_io_analog_input_mode_get(unsigned int module, unsigned int channel,
                                                         QORIN_ANALOG_IO_MODE* mode, int* /*range*/,
                                                         double* /*range_value*/)
{
    if (channel >= protocol::io_analog_channels)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_in_frame<io_module_data_t>(module, [&](const io_module_data_t& io)
                                           { *mode = analog_mode(bit(io.analog_mode, channel + 2)); });
}

QORIN_API_RESULT qorin_cbox_io_analog_input_mode_get(unsigned int channel, QORIN_ANALOG_IO_MODE* mode, int* range,
                                                     double* range_value)
{
    return qorin_gen_cbox_io_analog_input_mode_get(0, channel, mode, range, range_value);
}

QORIN_API_RESULT qorin_gen_cbox_io_analog_output_mode_get(unsigned int module, unsigned int channel,
                                                          QORIN_ANALOG_IO_MODE* mode, int* /*range*/,
                                                          double* /*range_value*/)
{
    if (channel >= protocol::io_analog_channels)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_in_frame<io_module_data_t>(module, [&](const io_module_data_t& io)
                                           { *mode = analog_mode(bit(io.analog_mode, channel)); });
}

QORIN_API_RESULT qorin_cbox_io_analog_output_mode_get(unsigned int channel, QORIN_ANALOG_IO_MODE* mode, int* range,
                                                      double* range_value)
{
    return qorin_gen_cbox_io_analog_output_mode_get(0, channel, mode, range, range_value);
}

QORIN_API_RESULT qorin_gen_cbox_redundant_io_digital_input_get(unsigned int module, unsigned int channel,
                                                               unsigned int* value)
{
    if (channel >= protocol::io_digital_channels)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_in_frame<io_module_data_t>(module, [&](const io_module_data_t& io)
                                           { *value = bit(io.redundant_digital_input, channel); });
}

QORIN_API_RESULT qorin_cbox_redundant_io_digital_input_get(unsigned int channel, unsigned int* value)
{
    return qorin_gen_cbox_redundant_io_digital_input_get(0, channel, value);
}

QORIN_API_RESULT qorin_gen_cbox_redundant_io_digital_output_get(unsigned int module, unsigned int channel,
                                                                unsigned int* value)
{
    if (channel >= protocol::io_digital_channels)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_in_frame<io_module_data_t>(module, [&](const io_module_data_t& io)
                                           { *value = bit(io.redundant_digital_output, channel); });
}

QORIN_API_RESULT qorin_cbox_redundant_io_digital_output_get(unsigned int channel, unsigned int* value)
{
    return qorin_gen_cbox_redundant_io_digital_output_get(0, channel, value);
}

QORIN_API_RESULT qorin_gen_cbox_fsoe_io_digital_input_get(unsigned int module, QORIN_FSOE_IO_INPUT_DATA input,
                                                          unsigned int* value)
{
    if (input < QORIN_FSOE_RESET_INPUT || input > QORIN_FSOE_REAR_OSSD_B_INPUT)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_in_frame<io_module_data_t>(
        module, [&](const io_module_data_t& io)
        { *value = bit(io.digital_input, static_cast<unsigned int>(input) - QORIN_FSOE_RESET_INPUT); });
}

QORIN_API_RESULT qorin_gen_cbox_fsoe_io_digital_output_get(unsigned int module, QORIN_FSOE_IO_OUTPUT_DATA output,
                                                           unsigned int* value)
{
    if (output != QORIN_FSOE_MC3_POWER_OUTPUT)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_in_frame<io_module_data_t>(module,
                                           [&](const io_module_data_t& io) { *value = bit(io.digital_output, 0); });
}

QORIN_API_RESULT qorin_cbox_safety_module_redundant_io_digital_input_get(unsigned int index, unsigned int* value)
{
    if (index >= protocol::safety_module_inputs)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_frame([&](const shared_data_t& frame) { *value = bit(frame.safety_module_redundant_io, index + 8); });
}

QORIN_API_RESULT qorin_cbox_safety_module_48v_smps_switch_get(QORIN_SWITCH* smps_switch)
{
    return read_frame(&shared_data_t::safety_module_48v_smps_switch, smps_switch);
}

QORIN_API_RESULT qorin_cbox_ecat_low_data_io_rx_data_get(unsigned int device, unsigned int size, unsigned char* data)
{
    if (device >= protocol::low_data_device_limit)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    if (size > sizeof(ecat_low_data_t::rx_data))
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    return read_in_frame<ecat_low_data_t>(device, [&](const ecat_low_data_t& record)
                                          { std::memcpy(data, record.rx_data, size); });
}

QORIN_API_RESULT qorin_cbox_ecat_low_data_io_tx_data_get(unsigned int device, unsigned int size, unsigned char* data)
{
    if (device >= protocol::low_data_device_limit)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    if (size > sizeof(ecat_low_data_t::rx_data))
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    return read_in_frame<ecat_low_data_t>(device, [&](const ecat_low_data_t& record)
                                          { std::memcpy(data, record.tx_data, size); });
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_wp_rx_data_get(unsigned int port, unsigned int size, unsigned char* data)
{
    if (port >= protocol::io_link_port_limit)
        return QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER;
    if (size > sizeof(io_link_wp_data_t::rx_data))
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    return read_in_frame<io_link_wp_data_t>(port, [&](const io_link_wp_data_t& record)
                                            { std::memcpy(data, record.rx_data, size); });
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_wp_tx_data_get(unsigned int port, unsigned int size, unsigned char* data)
{
    if (port >= protocol::io_link_port_limit)
        return QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER;
    if (size > sizeof(io_link_wp_data_t::rx_data))
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    return read_in_frame<io_link_wp_data_t>(port, [&](const io_link_wp_data_t& record)
                                            { std::memcpy(data, record.tx_data, size); });
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_wp_status_data_get(unsigned int port, unsigned char* status)
{
    if (port >= protocol::io_link_port_limit)
        return QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER;
    return read_in_frame<io_link_wp_data_t>(port, &io_link_wp_data_t::status, status);
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_status_bit_data_get(unsigned int device, unsigned short* bits)
{
    if (device != 0)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    return read_frame(&shared_data_t::io_link_status_bit, bits);
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_control_bit_get(unsigned int device, unsigned short* bits)
{
    if (device != 0)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    return read_frame(&shared_data_t::io_link_control_bit, bits);
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_input_bit_get(unsigned int device, unsigned short* bits)
{
    if (device != 0)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    return read_frame(&shared_data_t::io_link_input_bit, bits);
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_output_bit_get(unsigned int device, unsigned short* bits)
{
    if (device != 0)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    return read_frame(&shared_data_t::io_link_output_bit, bits);
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_rx_data_get(unsigned int device, unsigned int size, unsigned char* data)
{
    if (device != 0)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    if (size > sizeof(shared_data_t::io_link_rx_data))
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    return read_frame([&](const shared_data_t& frame) { std::memcpy(data, frame.io_link_rx_data, size); });
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_tx_data_get(unsigned int device, unsigned int size, unsigned char* data)
{
    if (device != 0)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    if (size > sizeof(shared_data_t::io_link_rx_data))
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    return read_frame([&](const shared_data_t& frame) { std::memcpy(data, frame.io_link_tx_data, size); });
}

const char* qorin_cbox_io_module_sw_version_get(void)
{
    const char* text = nullptr;
    (void)read_in_frame<io_module_data_t>(0, [&](const io_module_data_t& io) { text = io.sw_version; });
    return text;
}

const char* qorin_cbox_safety_module_sw_version_get(void)
{
    return qorin_cbox_safety_module_sw_version_get_with_index(0);
}

const char* qorin_cbox_safety_module_sw_version_get_with_index(unsigned int index)
{
    const char* text = nullptr;
    (void)read_in_frame<safety_module_data_t>(index,
                                              [&](const safety_module_data_t& module) { text = module.sw_version; });
    return text;
}
