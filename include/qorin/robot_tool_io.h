/**
 * @file robot_tool_io.h
 * The I/O module at a robot's tool flange: outputs, supply voltage, LED, and the RS485 port.
 *
 * What is set shows in the status mirror; the getters are in robot_tool_status.h. They take no lock and can follow what
 * RS485 receives while a command waits for its reply.
 *
 * @code
 * qorin_rpc_robot_tool_io_power_voltage_set(cbox_id, robot_id, QORIN_TOOL_POWER_VOLTAGE_OPTION_24, 0);
 * qorin_rpc_robot_tool_io_digital_output_set(cbox_id, robot_id, 0, 1); // closes a gripper on channel 0
 * qorin_rpc_robot_tool_io_rs485_set(cbox_id, robot_id, QORIN_RS485, QORIN_RS485_BAUDRATE_115200,
 *                                   QORIN_RS485_DATA_FRAME_8N1, QORIN_RS485_PROTOCOL_STANDARD, QORIN_SWITCH_ON, 0);
 * @endcode
 *
 * Everything here is a command: system.h tells what commands have in common. Each returns as every command does. The
 * control box answers among others QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_NUMBER and
 * QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_VALUE.
 */
#ifndef QORIN_ROBOT_TOOL_IO_H
#define QORIN_ROBOT_TOOL_IO_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/* Channels. */

/**
 * Sets a digital output.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param channel   channel, 0 for the first.
 * @param value     0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_digital_output_set(unsigned int cbox_id, unsigned int robot_id,
                                                                      unsigned int channel, unsigned int value);

/**
 * Sets several digital outputs.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param count     number of channels; no more than 32 travel.
 * @param channels  [count] channel numbers; 32 numbers are read whatever the count says.
 * @param values    [count] 0 or 1 for each channel; 32 numbers are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_digital_output_multiple_set(unsigned int cbox_id,
                                                                               unsigned int robot_id,
                                                                               unsigned int count,
                                                                               const unsigned int* channels,
                                                                               const unsigned int* values);

/**
 * Sets an analog output.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param channel   channel, 0 for the first.
 * @param value     value in the control box's unit for the channel's mode.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_analog_output_set(unsigned int cbox_id, unsigned int robot_id,
                                                                     unsigned int channel, double value);

/**
 * Sets the mode of an analog input.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id     robot id, 0 or 1.
 * @param channel      channel, 0 for the first.
 * @param mode         QORIN_ANALOG_IO_MODE_VOLTAGE or QORIN_ANALOG_IO_MODE_CURRENT.
 * @param range        range; the control box defines it.
 * @param range_value  value of the range; the control box defines it.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_analog_input_mode_set(unsigned int cbox_id, unsigned int robot_id,
                                                                         unsigned int channel,
                                                                         QORIN_ANALOG_IO_MODE mode, int range,
                                                                         double range_value);

/**
 * Sets the supply voltage of the tool.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param voltage   a QORIN_TOOL_IO_POWER_VOLTAGE_OPTION value.
 * @param value     a number whose meaning the control box defines; sent sign-extended.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_power_voltage_set(unsigned int cbox_id, unsigned int robot_id,
                                                                     QORIN_TOOL_IO_POWER_VOLTAGE_OPTION voltage,
                                                                     char value);

/**
 * Sets the colour of the LED.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param red       share of red.
 * @param green     share of green.
 * @param blue      share of blue.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_led_color_set(unsigned int cbox_id, unsigned int robot_id,
                                                                 unsigned int red, unsigned int green,
                                                                 unsigned int blue);

/* RS485. */

/**
 * Sets the RS485 port up.
 *
 * @param cbox_id           control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id          robot id, 0 or 1.
 * @param serial_interface  electrical interface.
 * @param baudrate          speed of the line.
 * @param data_frame        data bits, parity and stop bits.
 * @param protocol          what is spoken on the line; a QORIN_RS485_PROTOCOL value.
 * @param setup_switch      QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @param value             a number whose meaning the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_set(unsigned int cbox_id, unsigned int robot_id,
                                                             QORIN_RS485_SERIAL_INTERFACE serial_interface,
                                                             QORIN_RS485_BAUDRATE baudrate,
                                                             QORIN_RS485_DATA_FRAME data_frame,
                                                             QORIN_RS485_PROTOCOL protocol, QORIN_SWITCH setup_switch,
                                                             int value);

/**
 * Gives the RS485 port an order.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param order     a QORIN_RS485_CONTROL_CMD value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_control_cmd(unsigned int cbox_id, unsigned int robot_id,
                                                                     QORIN_RS485_CONTROL_CMD order);

/**
 * Sends bytes through the RS485 port. The size is the control box's to judge.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param size      number of bytes.
 * @param data      [size] bytes to send; 128 are read whatever the size says, though the status mirror and its getter
 *                  know 64.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_io_tx_data_set(unsigned int cbox_id, unsigned int robot_id,
                                                                        unsigned char size, const unsigned char* data);

/**
 * Reads from a Modbus RTU device.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id   robot id, 0 or 1.
 * @param value_1    first of five numbers of the transfer; the control box defines them.
 * @param value_2    second of these.
 * @param value_3    third of these.
 * @param value_4    fourth of these.
 * @param value_5    fifth of these.
 * @param[out] data  [4] 4 bytes, no more of the answer comes back; needs room for 4 bytes. 128 bytes are read from it,
 *                   as from every output.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_modbus_rtu_read(unsigned int cbox_id, unsigned int robot_id,
                                                                         unsigned char value_1, unsigned char value_2,
                                                                         unsigned short value_3, unsigned short value_4,
                                                                         unsigned char value_5, unsigned char* data);

/**
 * Writes to a Modbus RTU device.
 *
 * The call line shows the name of an enumeration member in place of the data, "nullptr" as a rule.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param value_1   first of five numbers of the transfer; the control box defines them.
 * @param value_2   second of these.
 * @param value_3   third of these.
 * @param value_4   fourth of these.
 * @param value_5   fifth of these.
 * @param data      [128] what to write; 128 bytes are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_modbus_rtu_write(unsigned int cbox_id, unsigned int robot_id,
                                                                          unsigned char value_1, unsigned char value_2,
                                                                          unsigned short value_3,
                                                                          unsigned short value_4, unsigned char value_5,
                                                                          const unsigned char* data);

QORIN_API_C_END

#endif
