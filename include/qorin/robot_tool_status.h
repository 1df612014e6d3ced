/**
 * @file robot_tool_status.h
 * Tool flange of a robot: inputs, outputs, supply, LED and the RS485 port.
 *
 * Getters over the status mirror: robot_status.h tells what they have in common, when a robot exists and units. The
 * control box decides which tool flange module belongs to which robot. There is one RS485 port for all robots, and its
 * getters need none.
 */
#ifndef QORIN_ROBOT_TOOL_STATUS_H
#define QORIN_ROBOT_TOOL_STATUS_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/**
 * A digital input of the tool flange.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 3.
 * @param value  output: 0 or 1.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist; QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_NUMBER
 * when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_digital_input_get(unsigned int cbox_id, unsigned int robot_id,
                                                                     unsigned int channel, unsigned int* value);

/**
 * A digital output of the tool flange.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 3.
 * @param value  output: 0 or 1.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist; QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_NUMBER
 * when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_digital_output_get(unsigned int cbox_id, unsigned int robot_id,
                                                                      unsigned int channel, unsigned int* value);

/**
 * An analog input of the tool flange.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 1.
 * @param value  output: value in the control box's unit for the channel's mode.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist; QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_NUMBER
 * when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_analog_input_get(unsigned int cbox_id, unsigned int robot_id,
                                                                    unsigned int channel, double* value);

/**
 * An analog output of the tool flange.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 1.
 * @param value  output: value, as the module gives it.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist; QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_NUMBER
 * when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_analog_output_get(unsigned int cbox_id, unsigned int robot_id,
                                                                     unsigned int channel, double* value);

/**
 * Electrical mode of an analog input of the tool flange.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 1.
 * @param mode  output: voltage or current.
 * @param range  neither read nor written: the status mirror holds no range.
 * @param range_value  neither read nor written.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist; QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_NUMBER
 * when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_analog_input_mode_get(unsigned int cbox_id, unsigned int robot_id,
                                                                         unsigned int channel,
                                                                         QORIN_ANALOG_IO_MODE* mode, int* range,
                                                                         double* range_value);

/**
 * Supply of the tool flange.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param voltage  output: the supply voltage, a QORIN_TOOL_IO_POWER_VOLTAGE_OPTION value.
 * @param current  output: supply current.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_power_voltage_current_get(unsigned int cbox_id,
                                                                             unsigned int robot_id,
                                                                             unsigned int* voltage, double* current);

/**
 * Colour of the LED of the tool flange.
 *
 * In the order in which qorin_rpc_robot_tool_io_led_color_set takes them.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param color_1  output: first colour value.
 * @param color_2  output: second colour value.
 * @param color_3  output: third colour value.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when the robot does not exist.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_led_color_get(unsigned int cbox_id, unsigned int robot_id,
                                                                 unsigned int* color_1, unsigned int* color_2,
                                                                 unsigned int* color_3);

/**
 * Setup of the RS485 port at the tool flange.
 *
 * The six values of qorin_rpc_robot_tool_io_rs485_set, in its order.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot; not judged, since there is one RS485 port for all.
 * @param serial_interface  output: electrical interface.
 * @param baudrate  output: bit rate.
 * @param data_frame  output: data bits, parity and stop bits.
 * @param protocol  output: protocol.
 * @param setup_switch  output: the switch that was given with the setup.
 * @param count  output: the count that was given with the setup.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_setup_get(unsigned int cbox_id, unsigned int robot_id,
                                                                   QORIN_RS485_SERIAL_INTERFACE* serial_interface,
                                                                   QORIN_RS485_BAUDRATE* baudrate,
                                                                   QORIN_RS485_DATA_FRAME* data_frame,
                                                                   QORIN_RS485_PROTOCOL* protocol,
                                                                   QORIN_SWITCH* setup_switch, int* count);

/**
 * Status of the RS485 port at the tool flange.
 *
 * The control box defines the words.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot; not judged, since there is one RS485 port for all.
 * @param status_1  output: status word 1.
 * @param status_2  output: status word 2.
 * @param status_3  output: status word 3.
 * @param status_4  output: status word 4.
 * @param status_5  output: status word 5.
 * @param status_6  output: status word 6.
 * @param status_7  output: status word 7.
 * @param status_8  output: status word 8.
 * @param status_9  output: status byte.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_status_get(unsigned int cbox_id, unsigned int robot_id,
                                                                    unsigned int* status_1, unsigned int* status_2,
                                                                    unsigned int* status_3, unsigned int* status_4,
                                                                    unsigned int* status_5, unsigned int* status_6,
                                                                    unsigned int* status_7, unsigned int* status_8,
                                                                    unsigned char* status_9);

/**
 * Control words of the RS485 port at the tool flange.
 *
 * The control box defines the words.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot; not judged, since there is one RS485 port for all.
 * @param control_1  output: control word 1.
 * @param control_2  output: control word 2.
 * @param control_3  output: control word 3.
 * @param control_4  output: control word 4.
 * @param control_5  output: control word 5.
 * @param control_6  output: control word 6.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_control_get(unsigned int cbox_id, unsigned int robot_id,
                                                                     unsigned int* control_1, unsigned int* control_2,
                                                                     unsigned int* control_3, unsigned int* control_4,
                                                                     unsigned int* control_5, unsigned int* control_6);

/**
 * Data received by the RS485 port at the tool flange.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot; not judged, since there is one RS485 port for all.
 * @param size  number of bytes, 0 to 64.
 * @param data  output: `size` bytes.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE when size is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_io_rx_data_get(unsigned int cbox_id, unsigned int robot_id,
                                                                        unsigned char size, unsigned char* data);

/**
 * Data sent by the RS485 port at the tool flange.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot; not judged, since there is one RS485 port for all.
 * @param size  number of bytes, 0 to 64.
 * @param data  output: `size` bytes.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE when size is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_rs485_io_tx_data_get(unsigned int cbox_id, unsigned int robot_id,
                                                                        unsigned char size, unsigned char* data);

/**
 * The same as qorin_rpc_robot_tool_io_digital_input_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 3.
 * @param value  output: 0 or 1.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_digital_input_get(unsigned int robot_id, unsigned int channel,
                                                                 unsigned int* value);

/**
 * The same as qorin_rpc_robot_tool_io_digital_output_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 3.
 * @param value  output: 0 or 1.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_digital_output_get(unsigned int robot_id, unsigned int channel,
                                                                  unsigned int* value);

/**
 * The same as qorin_rpc_robot_tool_io_analog_input_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 1.
 * @param value  output: value in the control box's unit for the channel's mode.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_analog_input_get(unsigned int robot_id, unsigned int channel,
                                                                double* value);

/**
 * The same as qorin_rpc_robot_tool_io_analog_output_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 1.
 * @param value  output: value, as the module gives it.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_analog_output_get(unsigned int robot_id, unsigned int channel,
                                                                 double* value);

/**
 * The same as qorin_rpc_robot_tool_io_analog_input_mode_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 1.
 * @param mode  output: voltage or current.
 * @param range  neither read nor written: the status mirror holds no range.
 * @param range_value  neither read nor written.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_analog_input_mode_get(unsigned int robot_id, unsigned int channel,
                                                                     QORIN_ANALOG_IO_MODE* mode, int* range,
                                                                     double* range_value);

/**
 * The same as qorin_rpc_robot_tool_io_power_voltage_current_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param voltage  output: the supply voltage, a QORIN_TOOL_IO_POWER_VOLTAGE_OPTION value.
 * @param current  output: supply current.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_power_voltage_current_get(unsigned int robot_id, unsigned int* voltage,
                                                                         double* current);

/**
 * The same as qorin_rpc_robot_tool_io_led_color_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param color_1  output: first colour value.
 * @param color_2  output: second colour value.
 * @param color_3  output: third colour value.
 * @return as there; QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_led_color_get(unsigned int robot_id, unsigned int* color_1,
                                                             unsigned int* color_2, unsigned int* color_3);

/**
 * The same as qorin_rpc_robot_tool_io_rs485_setup_get() for the control box that was asked last.
 *
 * @param robot_id  robot; not judged, since there is one RS485 port for all.
 * @param serial_interface  output: electrical interface.
 * @param baudrate  output: bit rate.
 * @param data_frame  output: data bits, parity and stop bits.
 * @param protocol  output: protocol.
 * @param setup_switch  output: the switch that was given with the setup.
 * @param count  output: the count that was given with the setup.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_rs485_setup_get(
    unsigned int robot_id, QORIN_RS485_SERIAL_INTERFACE* serial_interface, QORIN_RS485_BAUDRATE* baudrate,
    QORIN_RS485_DATA_FRAME* data_frame, QORIN_RS485_PROTOCOL* protocol, QORIN_SWITCH* setup_switch, int* count);

/**
 * The same as qorin_rpc_robot_tool_io_rs485_status_get() for the control box that was asked last.
 *
 * @param robot_id  robot; not judged, since there is one RS485 port for all.
 * @param status_1  output: status word 1.
 * @param status_2  output: status word 2.
 * @param status_3  output: status word 3.
 * @param status_4  output: status word 4.
 * @param status_5  output: status word 5.
 * @param status_6  output: status word 6.
 * @param status_7  output: status word 7.
 * @param status_8  output: status word 8.
 * @param status_9  output: status byte.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_rs485_status_get(unsigned int robot_id, unsigned int* status_1,
                                                                unsigned int* status_2, unsigned int* status_3,
                                                                unsigned int* status_4, unsigned int* status_5,
                                                                unsigned int* status_6, unsigned int* status_7,
                                                                unsigned int* status_8, unsigned char* status_9);

/**
 * The same as qorin_rpc_robot_tool_io_rs485_control_get() for the control box that was asked last.
 *
 * @param robot_id  robot; not judged, since there is one RS485 port for all.
 * @param control_1  output: control word 1.
 * @param control_2  output: control word 2.
 * @param control_3  output: control word 3.
 * @param control_4  output: control word 4.
 * @param control_5  output: control word 5.
 * @param control_6  output: control word 6.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_rs485_control_get(unsigned int robot_id, unsigned int* control_1,
                                                                 unsigned int* control_2, unsigned int* control_3,
                                                                 unsigned int* control_4, unsigned int* control_5,
                                                                 unsigned int* control_6);

/**
 * The same as qorin_rpc_robot_tool_io_rs485_io_rx_data_get() for the control box that was asked last.
 *
 * @param robot_id  robot; not judged, since there is one RS485 port for all.
 * @param size  number of bytes, 0 to 64.
 * @param data  output: `size` bytes.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_rs485_io_rx_data_get(unsigned int robot_id, unsigned char size,
                                                                    unsigned char* data);

/**
 * The same as qorin_rpc_robot_tool_io_rs485_io_tx_data_get() for the control box that was asked last.
 *
 * @param robot_id  robot; not judged, since there is one RS485 port for all.
 * @param size  number of bytes, 0 to 64.
 * @param data  output: `size` bytes.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_rs485_io_tx_data_get(unsigned int robot_id, unsigned char size,
                                                                    unsigned char* data);

/**
 * Hardware name of the tool flange module of a robot.
 *
 * Reads the control box that was asked last; there is no form with cbox_id.
 *
 * @param robot_id  robot, 0 or 1.
 * @return the text, in the status mirror: NUL-terminated, valid until the process ends, changed by later frames. Null
 * when the robot does not exist or no control box is connected.
 */
QORIN_API const char* qorin_robot_tool_io_hw_name_get(unsigned int robot_id);

/**
 * Hardware version of the tool flange module of a robot.
 *
 * Reads the control box that was asked last; there is no form with cbox_id.
 *
 * @param robot_id  robot, 0 or 1.
 * @return the text, in the status mirror: NUL-terminated, valid until the process ends, changed by later frames. Null
 * when the robot does not exist or no control box is connected.
 */
QORIN_API const char* qorin_robot_tool_io_hw_version_get(unsigned int robot_id);

/**
 * Software version of the tool flange module of a robot.
 *
 * Reads the control box that was asked last; there is no form with cbox_id.
 *
 * @param robot_id  robot, 0 or 1.
 * @return the text, in the status mirror: NUL-terminated, valid until the process ends, changed by later frames. Null
 * when the robot does not exist or no control box is connected.
 */
QORIN_API const char* qorin_robot_tool_io_sw_version_get(unsigned int robot_id);

QORIN_API_C_END

#endif
