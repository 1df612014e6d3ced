#include "qorin/cbox.h"

#include <cstring>

#include "api/internal_shared_data.h"
#include "api/io_word.h"

namespace
{
using protocol::ecat_low_data_t;
using protocol::io_link_wp_data_t;
using protocol::io_module_data_t;
using protocol::record_at;
using protocol::safety_module_data_t;
using protocol::shared_data_t;
using qorin_api::analog_mode;
using qorin_api::bit;

constexpr unsigned int amr_emergency_buttons = 4;
constexpr unsigned int digital_channels = 16;
constexpr unsigned int analog_channels = 2;
constexpr unsigned int safety_module_inputs = 8;
constexpr unsigned int low_data_devices = 4;
constexpr unsigned int low_data_bytes = 32;
constexpr unsigned int io_link_ports = 16;
constexpr unsigned int io_link_port_bytes = 32;
constexpr unsigned int io_link_bytes = 64;

/// The shape of a getter behind its bounds: the mirror of the current control box, if there is one, is read in place.
template <class Read>
QORIN_API_RESULT read_cbox(Read&& read)
{
    const shared_data_t* frame = qorin_internal_get_shared_data();
    if (frame == nullptr)
        return QORIN_API_RESULT_ERROR_CBOX_ID_INVALID;
    read(*frame);
    return QORIN_API_RESULT_OK;
}

const io_module_data_t& io_module(const shared_data_t& frame, unsigned int module)
{
    return record_at<io_module_data_t>(frame, module);
}

const char* safety_module_version(unsigned int index)
{
    const shared_data_t* frame = qorin_internal_get_shared_data();
    return frame == nullptr ? nullptr : record_at<safety_module_data_t>(*frame, index).sw_version;
}
} // namespace

QORIN_API_RESULT qorin_cbox_master_operational_mode_get(QORIN_OPERATIONAL_MODE* mode)
{
    return read_cbox([&](const shared_data_t& frame)
                     { *mode = static_cast<QORIN_OPERATIONAL_MODE>(frame.master_operational_mode); });
}

QORIN_API_RESULT qorin_cbox_name_get(QORIN_CBOX_MODEL* name)
{
    return read_cbox([&](const shared_data_t& frame) { *name = static_cast<QORIN_CBOX_MODEL>(frame.cbox_name); });
}

QORIN_API_RESULT qorin_cbox_emergency_button_state_get(QORIN_BUTTON_STATE* state)
{
    return read_cbox([&](const shared_data_t& frame)
                     { *state = static_cast<QORIN_BUTTON_STATE>(frame.emergency_button_state); });
}

QORIN_API_RESULT qorin_cbox_amr_emergency_button_state_get(unsigned int index, QORIN_BUTTON_STATE* state)
{
    if (index >= amr_emergency_buttons)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_AMR_EMG_NUMBER;
    return read_cbox([&](const shared_data_t& frame)
                     { *state = static_cast<QORIN_BUTTON_STATE>(frame.amr_emergency_button_state[index]); });
}

QORIN_API_RESULT qorin_cbox_ecat_connection_state_get(QORIN_ECAT_CONN_STATE* state)
{
    return read_cbox([&](const shared_data_t& frame)
                     { *state = static_cast<QORIN_ECAT_CONN_STATE>(frame.ecat_connection_state); });
}

QORIN_API_RESULT qorin_cbox_power_button_state_get(QORIN_BUTTON_STATE* state)
{
    return read_cbox([&](const shared_data_t& frame)
                     { *state = static_cast<QORIN_BUTTON_STATE>(frame.power_button_state); });
}

QORIN_API_RESULT qorin_gen_cbox_io_digital_input_get(unsigned int module, unsigned int channel, unsigned int* value)
{
    if (channel >= digital_channels)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_cbox([&](const shared_data_t& frame)
                     { *value = bit(io_module(frame, module).digital_input, channel); });
}

QORIN_API_RESULT qorin_cbox_io_digital_input_get(unsigned int channel, unsigned int* value)
{
    return qorin_gen_cbox_io_digital_input_get(0, channel, value);
}

QORIN_API_RESULT qorin_gen_cbox_io_digital_output_get(unsigned int module, unsigned int channel, unsigned int* value)
{
    if (channel >= digital_channels)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_cbox([&](const shared_data_t& frame)
                     { *value = bit(io_module(frame, module).digital_output, channel); });
}

QORIN_API_RESULT qorin_cbox_io_digital_output_get(unsigned int channel, unsigned int* value)
{
    return qorin_gen_cbox_io_digital_output_get(0, channel, value);
}

QORIN_API_RESULT qorin_gen_cbox_io_analog_input_get(unsigned int module, unsigned int channel, double* value)
{
    if (channel >= analog_channels)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_cbox([&](const shared_data_t& frame) { *value = io_module(frame, module).analog_input[channel]; });
}

QORIN_API_RESULT qorin_cbox_io_analog_input_get(unsigned int channel, double* value)
{
    return qorin_gen_cbox_io_analog_input_get(0, channel, value);
}

QORIN_API_RESULT qorin_gen_cbox_io_analog_output_get(unsigned int module, unsigned int channel, double* value)
{
    if (channel >= analog_channels)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_cbox([&](const shared_data_t& frame) { *value = io_module(frame, module).analog_output[channel]; });
}

QORIN_API_RESULT qorin_cbox_io_analog_output_get(unsigned int channel, double* value)
{
    return qorin_gen_cbox_io_analog_output_get(0, channel, value);
}

QORIN_API_RESULT qorin_gen_cbox_io_analog_input_mode_get(unsigned int module, unsigned int channel,
                                                         QORIN_ANALOG_IO_MODE* mode, int* /*range*/,
                                                         double* /*range_value*/)
{
    if (channel >= analog_channels)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_cbox([&](const shared_data_t& frame)
                     { *mode = analog_mode(bit(io_module(frame, module).analog_mode, channel + 2)); });
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
    if (channel >= analog_channels)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_cbox([&](const shared_data_t& frame)
                     { *mode = analog_mode(bit(io_module(frame, module).analog_mode, channel)); });
}

QORIN_API_RESULT qorin_cbox_io_analog_output_mode_get(unsigned int channel, QORIN_ANALOG_IO_MODE* mode, int* range,
                                                      double* range_value)
{
    return qorin_gen_cbox_io_analog_output_mode_get(0, channel, mode, range, range_value);
}

QORIN_API_RESULT qorin_gen_cbox_redundant_io_digital_input_get(unsigned int module, unsigned int channel,
                                                               unsigned int* value)
{
    if (channel >= digital_channels)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_cbox([&](const shared_data_t& frame)
                     { *value = bit(io_module(frame, module).redundant_digital_input, channel); });
}

QORIN_API_RESULT qorin_cbox_redundant_io_digital_input_get(unsigned int channel, unsigned int* value)
{
    return qorin_gen_cbox_redundant_io_digital_input_get(0, channel, value);
}

QORIN_API_RESULT qorin_gen_cbox_redundant_io_digital_output_get(unsigned int module, unsigned int channel,
                                                                unsigned int* value)
{
    if (channel >= digital_channels)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_cbox([&](const shared_data_t& frame)
                     { *value = bit(io_module(frame, module).redundant_digital_output, channel); });
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
    return read_cbox(
        [&](const shared_data_t& frame) {
            *value =
                bit(io_module(frame, module).digital_input, static_cast<unsigned int>(input) - QORIN_FSOE_RESET_INPUT);
        });
}

QORIN_API_RESULT qorin_gen_cbox_fsoe_io_digital_output_get(unsigned int module, QORIN_FSOE_IO_OUTPUT_DATA output,
                                                           unsigned int* value)
{
    if (output != QORIN_FSOE_MC3_POWER_OUTPUT)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_cbox([&](const shared_data_t& frame) { *value = bit(io_module(frame, module).digital_output, 0); });
}

QORIN_API_RESULT qorin_cbox_safety_module_redundant_io_digital_input_get(unsigned int index, unsigned int* value)
{
    if (index >= safety_module_inputs)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return read_cbox([&](const shared_data_t& frame) { *value = bit(frame.safety_module_redundant_io, index + 8); });
}

QORIN_API_RESULT qorin_cbox_safety_module_48v_smps_switch_get(QORIN_SWITCH* smps_switch)
{
    return read_cbox([&](const shared_data_t& frame)
                     { *smps_switch = static_cast<QORIN_SWITCH>(frame.safety_module_48v_smps_switch); });
}

QORIN_API_RESULT qorin_cbox_ecat_low_data_io_rx_data_get(unsigned int device, unsigned int size, unsigned char* data)
{
    if (device >= low_data_devices)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    if (size > low_data_bytes)
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    return read_cbox([&](const shared_data_t& frame)
                     { std::memcpy(data, record_at<ecat_low_data_t>(frame, device).rx_data, size); });
}

QORIN_API_RESULT qorin_cbox_ecat_low_data_io_tx_data_get(unsigned int device, unsigned int size, unsigned char* data)
{
    if (device >= low_data_devices)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    if (size > low_data_bytes)
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    return read_cbox([&](const shared_data_t& frame)
                     { std::memcpy(data, record_at<ecat_low_data_t>(frame, device).tx_data, size); });
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_wp_rx_data_get(unsigned int port, unsigned int size, unsigned char* data)
{
    if (port >= io_link_ports)
        return QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER;
    if (size > io_link_port_bytes)
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    return read_cbox([&](const shared_data_t& frame)
                     { std::memcpy(data, record_at<io_link_wp_data_t>(frame, port).rx_data, size); });
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_wp_tx_data_get(unsigned int port, unsigned int size, unsigned char* data)
{
    if (port >= io_link_ports)
        return QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER;
    if (size > io_link_port_bytes)
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    return read_cbox([&](const shared_data_t& frame)
                     { std::memcpy(data, record_at<io_link_wp_data_t>(frame, port).tx_data, size); });
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_wp_status_data_get(unsigned int port, unsigned char* status)
{
    if (port >= io_link_ports)
        return QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER;
    return read_cbox([&](const shared_data_t& frame) { *status = record_at<io_link_wp_data_t>(frame, port).status; });
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_status_bit_data_get(unsigned int device, unsigned short* bits)
{
    if (device != 0)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    return read_cbox([&](const shared_data_t& frame) { *bits = frame.io_link_status_bit; });
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_control_bit_get(unsigned int device, unsigned short* bits)
{
    if (device != 0)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    return read_cbox([&](const shared_data_t& frame) { *bits = frame.io_link_control_bit; });
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_input_bit_get(unsigned int device, unsigned short* bits)
{
    if (device != 0)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    return read_cbox([&](const shared_data_t& frame) { *bits = frame.io_link_input_bit; });
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_output_bit_get(unsigned int device, unsigned short* bits)
{
    if (device != 0)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    return read_cbox([&](const shared_data_t& frame) { *bits = frame.io_link_output_bit; });
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_rx_data_get(unsigned int device, unsigned int size, unsigned char* data)
{
    if (device != 0)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    if (size > io_link_bytes)
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    return read_cbox([&](const shared_data_t& frame) { std::memcpy(data, frame.io_link_rx_data, size); });
}

QORIN_API_RESULT qorin_cbox_ecat_io_link_tx_data_get(unsigned int device, unsigned int size, unsigned char* data)
{
    if (device != 0)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    if (size > io_link_bytes)
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    return read_cbox([&](const shared_data_t& frame) { std::memcpy(data, frame.io_link_tx_data, size); });
}

const char* qorin_cbox_io_module_sw_version_get(void)
{
    const shared_data_t* frame = qorin_internal_get_shared_data();
    return frame == nullptr ? nullptr : io_module(*frame, 0).sw_version;
}

const char* qorin_cbox_safety_module_sw_version_get(void)
{
    return safety_module_version(0);
}

const char* qorin_cbox_safety_module_sw_version_get_with_index(unsigned int index)
{
    return safety_module_version(index);
}
