#include "qorin/robot_tool_status.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::from_mirror;

QORIN_API_RESULT qorin_rpc_robot_tool_io_digital_input_get(unsigned int cbox_id, unsigned int robot_id,
                                                           unsigned int channel, unsigned int* value)
{
    return from_mirror(cbox_id, qorin_robot_tool_io_digital_input_get, robot_id, channel, value);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_digital_output_get(unsigned int cbox_id, unsigned int robot_id,
                                                            unsigned int channel, unsigned int* value)
{
    return from_mirror(cbox_id, qorin_robot_tool_io_digital_output_get, robot_id, channel, value);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_analog_input_get(unsigned int cbox_id, unsigned int robot_id,
                                                          unsigned int channel, double* value)
{
    return from_mirror(cbox_id, qorin_robot_tool_io_analog_input_get, robot_id, channel, value);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_analog_output_get(unsigned int cbox_id, unsigned int robot_id,
                                                           unsigned int channel, double* value)
{
    return from_mirror(cbox_id, qorin_robot_tool_io_analog_output_get, robot_id, channel, value);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_analog_input_mode_get(unsigned int cbox_id, unsigned int robot_id,
                                                               unsigned int channel, QORIN_ANALOG_IO_MODE* mode,
                                                               int* range, double* range_value)
{
    return from_mirror(cbox_id, qorin_robot_tool_io_analog_input_mode_get, robot_id, channel, mode, range, range_value);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_power_voltage_current_get(unsigned int cbox_id, unsigned int robot_id,
                                                                   unsigned int* voltage, double* current)
{
    return from_mirror(cbox_id, qorin_robot_tool_io_power_voltage_current_get, robot_id, voltage, current);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_led_color_get(unsigned int cbox_id, unsigned int robot_id,
                                                       unsigned int* color_1, unsigned int* color_2,
                                                       unsigned int* color_3)
{
    return from_mirror(cbox_id, qorin_robot_tool_io_led_color_get, robot_id, color_1, color_2, color_3);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_setup_get(unsigned int cbox_id, unsigned int robot_id,
                                                         QORIN_RS485_SERIAL_INTERFACE* serial_interface,
                                                         QORIN_RS485_BAUDRATE* baudrate,
                                                         QORIN_RS485_DATA_FRAME* data_frame,
                                                         QORIN_RS485_PROTOCOL* protocol, QORIN_SWITCH* setup_switch,
                                                         int* count)
{
    return from_mirror(cbox_id, qorin_robot_tool_io_rs485_setup_get, robot_id, serial_interface, baudrate, data_frame,
                       protocol, setup_switch, count);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_status_get(unsigned int cbox_id, unsigned int robot_id,
                                                          unsigned int* status_1, unsigned int* status_2,
                                                          unsigned int* status_3, unsigned int* status_4,
                                                          unsigned int* status_5, unsigned int* status_6,
                                                          unsigned int* status_7, unsigned int* status_8,
                                                          unsigned char* status_9)
{
    return from_mirror(cbox_id, qorin_robot_tool_io_rs485_status_get, robot_id, status_1, status_2, status_3, status_4,
                       status_5, status_6, status_7, status_8, status_9);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_control_get(unsigned int cbox_id, unsigned int robot_id,
                                                           unsigned int* control_1, unsigned int* control_2,
                                                           unsigned int* control_3, unsigned int* control_4,
                                                           unsigned int* control_5, unsigned int* control_6)
{
    return from_mirror(cbox_id, qorin_robot_tool_io_rs485_control_get, robot_id, control_1, control_2, control_3,
                       control_4, control_5, control_6);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_io_rx_data_get(unsigned int cbox_id, unsigned int robot_id,
                                                              unsigned char size, unsigned char* data)
{
    return from_mirror(cbox_id, qorin_robot_tool_io_rs485_io_rx_data_get, robot_id, size, data);
}

QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_io_tx_data_get(unsigned int cbox_id, unsigned int robot_id,
                                                              unsigned char size, unsigned char* data)
{
    return from_mirror(cbox_id, qorin_robot_tool_io_rs485_io_tx_data_get, robot_id, size, data);
}
