// The I/O module at a robot's tool flange.
#include "qorin/robot_tool_io.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::command;

QORIN_API_RESULT qorin_rpc_robot_tool_io_digital_output_set(unsigned int cbox_id, unsigned int robot_id,
                                                            unsigned int channel, unsigned int value)
{
    return command<"qorin_robot_tool_io_digital_output_set">(cbox_id, robot_id, channel, value);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_digital_output_multiple_set(unsigned int cbox_id, unsigned int robot_id,
                                                                     unsigned int count, const unsigned int* channels,
                                                                     const unsigned int* values)
{
    return command<"qorin_robot_tool_io_digital_output_multiple_set">(cbox_id, robot_id, count, channels, values);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_analog_output_set(unsigned int cbox_id, unsigned int robot_id,
                                                           unsigned int channel, double value)
{
    return command<"qorin_robot_tool_io_analog_output_set">(cbox_id, robot_id, channel, value);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_analog_input_mode_set(unsigned int cbox_id, unsigned int robot_id,
                                                               unsigned int channel, QORIN_ANALOG_IO_MODE mode,
                                                               int range, double range_value)
{
    return command<"qorin_robot_tool_io_analog_input_mode_set">(cbox_id, robot_id, channel, mode, range, range_value);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_power_voltage_set(unsigned int cbox_id, unsigned int robot_id,
                                                           QORIN_TOOL_IO_POWER_VOLTAGE_OPTION voltage, char value)
{
    return command<"qorin_robot_tool_io_power_voltage_set">(cbox_id, robot_id, voltage, value);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_led_color_set(unsigned int cbox_id, unsigned int robot_id, unsigned int red,
                                                       unsigned int green, unsigned int blue)
{
    return command<"qorin_robot_tool_io_led_color_set">(cbox_id, robot_id, red, green, blue);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_set(unsigned int cbox_id, unsigned int robot_id,
                                                   QORIN_RS485_SERIAL_INTERFACE serial_interface,
                                                   QORIN_RS485_BAUDRATE baudrate, QORIN_RS485_DATA_FRAME data_frame,
                                                   QORIN_RS485_PROTOCOL protocol, QORIN_SWITCH setup_switch, int value)
{
    return command<"qorin_robot_tool_io_rs485_set">(cbox_id, robot_id, serial_interface, baudrate, data_frame, protocol,
                                                    setup_switch, value);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_control_cmd(unsigned int cbox_id, unsigned int robot_id,
                                                           QORIN_RS485_CONTROL_CMD order)
{
    return command<"qorin_robot_tool_io_rs485_control_cmd">(cbox_id, robot_id, order);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_io_tx_data_set(unsigned int cbox_id, unsigned int robot_id,
                                                              unsigned char size, const unsigned char* data)
{
    return command<"qorin_robot_tool_io_rs485_io_tx_data_set">(cbox_id, robot_id, size, data);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_modbus_rtu_read(unsigned int cbox_id, unsigned int robot_id,
                                                               unsigned char value_1, unsigned char value_2,
                                                               unsigned short value_3, unsigned short value_4,
                                                               unsigned char value_5, unsigned char* data)
{
    return command<"qorin_robot_tool_io_rs485_modbus_rtu_read">(cbox_id, robot_id, value_1, value_2, value_3, value_4,
                                                                value_5, data);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_modbus_rtu_write(unsigned int cbox_id, unsigned int robot_id,
                                                                unsigned char value_1, unsigned char value_2,
                                                                unsigned short value_3, unsigned short value_4,
                                                                unsigned char value_5, const unsigned char* data)
{
    return command<"qorin_robot_tool_io_rs485_modbus_rtu_write">(cbox_id, robot_id, value_1, value_2, value_3, value_4,
                                                                 value_5, data);
}
