#include "qorin/robot_tool_status.h"

#include <cstring>

#include "api/frame_read.h"
#include "api/io_word.h"

namespace
{
using protocol::shared_data_t;
using protocol::tool_module_data_t;
using qorin_api::analog_mode;
using qorin_api::bit;
using qorin_api::hand_out;
using qorin_api::read_frame;
using qorin_api::read_record;
using qorin_api::read_tool;

constexpr unsigned int first_analog_input_mode = 2; ///< bit of the analog mode word

/// Reads the tool flange module of a robot, which is judged ahead of the channel.
template <class... What>
QORIN_API_RESULT read_channel(unsigned int robot_id, unsigned int channel, unsigned int channels, const What&... what)
{
    const auto read = [&](const tool_module_data_t& tool)
    { return channel < channels ? read_record(tool, what...) : QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_NUMBER; };
    return read_tool(robot_id, read);
}
} // namespace

QORIN_API_RESULT qorin_robot_tool_io_digital_input_get(unsigned int robot_id, unsigned int channel, unsigned int* value)
{
    return read_channel(robot_id, channel, protocol::tool_digital_channels,
                        [&](const tool_module_data_t& tool) { *value = bit(tool.digital_input, channel); });
}

QORIN_API_RESULT qorin_robot_tool_io_digital_output_get(unsigned int robot_id, unsigned int channel,
                                                        unsigned int* value)
{
    return read_channel(robot_id, channel, protocol::tool_digital_channels,
                        [&](const tool_module_data_t& tool) { *value = bit(tool.digital_output, channel); });
}

QORIN_API_RESULT qorin_robot_tool_io_analog_input_get(unsigned int robot_id, unsigned int channel, double* value)
{
    return read_channel(robot_id, channel, protocol::tool_analog_channels, &tool_module_data_t::analog_input, channel,
                        value);
}

QORIN_API_RESULT qorin_robot_tool_io_analog_output_get(unsigned int robot_id, unsigned int channel, double* value)
{
    return read_channel(robot_id, channel, protocol::tool_analog_channels, &tool_module_data_t::analog_output, channel,
                        value);
}

QORIN_API_RESULT qorin_robot_tool_io_analog_input_mode_get(unsigned int robot_id, unsigned int channel,
                                                           QORIN_ANALOG_IO_MODE* mode, int* /*range*/,
                                                           double* /*range_value*/)
{
    return read_channel(robot_id, channel, protocol::tool_analog_channels,
                        [&](const tool_module_data_t& tool)
                        { *mode = analog_mode(bit(tool.analog_mode, first_analog_input_mode + channel)); });
}

QORIN_API_RESULT qorin_robot_tool_io_power_voltage_current_get(unsigned int robot_id, unsigned int* voltage,
                                                               double* current)
{
    return read_tool(robot_id,
                     [&](const tool_module_data_t& tool)
                     {
                         *voltage = tool.power_voltage;
                         *current = tool.power_current;
                     });
}

QORIN_API_RESULT qorin_robot_tool_io_led_color_get(unsigned int robot_id, unsigned int* color_1, unsigned int* color_2,
                                                   unsigned int* color_3)
{
    return read_tool(robot_id, &tool_module_data_t::led_color, color_1, color_2, color_3);
}

QORIN_API_RESULT qorin_robot_tool_io_rs485_setup_get(unsigned int /*robot_id*/,
                                                     QORIN_RS485_SERIAL_INTERFACE* serial_interface,
                                                     QORIN_RS485_BAUDRATE* baudrate, QORIN_RS485_DATA_FRAME* data_frame,
                                                     QORIN_RS485_PROTOCOL* protocol, QORIN_SWITCH* setup_switch,
                                                     int* count)
{
    return read_frame(&shared_data_t::rs485_setup, serial_interface, baudrate, data_frame, protocol, setup_switch,
                      count);
}

QORIN_API_RESULT qorin_robot_tool_io_rs485_status_get(unsigned int /*robot_id*/, unsigned int* status_1,
                                                      unsigned int* status_2, unsigned int* status_3,
                                                      unsigned int* status_4, unsigned int* status_5,
                                                      unsigned int* status_6, unsigned int* status_7,
                                                      unsigned int* status_8, unsigned char* status_9)
{
    return read_frame(
        [&](const shared_data_t& frame)
        {
            hand_out(frame, &shared_data_t::rs485_status, status_1, status_2, status_3, status_4, status_5, status_6,
                     status_7, status_8);
            *status_9 = frame.rs485_status_byte;
        });
}

QORIN_API_RESULT qorin_robot_tool_io_rs485_control_get(unsigned int /*robot_id*/, unsigned int* control_1,
                                                       unsigned int* control_2, unsigned int* control_3,
                                                       unsigned int* control_4, unsigned int* control_5,
                                                       unsigned int* control_6)
{
    return read_frame(&shared_data_t::rs485_control, control_1, control_2, control_3, control_4, control_5, control_6);
}

QORIN_API_RESULT qorin_robot_tool_io_rs485_io_rx_data_get(unsigned int /*robot_id*/, unsigned char size,
                                                          unsigned char* data)
{
    if (size > sizeof(shared_data_t::rs485_rx_data))
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    return read_frame([&](const shared_data_t& frame) { std::memcpy(data, frame.rs485_rx_data, size); });
}

QORIN_API_RESULT qorin_robot_tool_io_rs485_io_tx_data_get(unsigned int /*robot_id*/, unsigned char size,
                                                          unsigned char* data)
{
    if (size > sizeof(shared_data_t::rs485_rx_data))
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    return read_frame([&](const shared_data_t& frame) { std::memcpy(data, frame.rs485_tx_data, size); });
}

const char* qorin_robot_tool_io_hw_name_get(unsigned int robot_id)
{
    const char* text = nullptr;
    (void)read_tool(robot_id, [&](const tool_module_data_t& tool) { text = tool.hw_name; });
    return text;
}

const char* qorin_robot_tool_io_hw_version_get(unsigned int robot_id)
{
    const char* text = nullptr;
    (void)read_tool(robot_id, [&](const tool_module_data_t& tool) { text = tool.hw_version; });
    return text;
}

const char* qorin_robot_tool_io_sw_version_get(unsigned int robot_id)
{
    const char* text = nullptr;
    (void)read_tool(robot_id, [&](const tool_module_data_t& tool) { text = tool.sw_version; });
    return text;
}
