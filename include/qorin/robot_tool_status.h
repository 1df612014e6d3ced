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
 * @param[out] value  0 or 1.
 * @return as every robot getter; QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_digital_input_get(unsigned int cbox_id, unsigned int robot_id,
                                                                     unsigned int channel, unsigned int* value);

/**
 * A digital output of the tool flange.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 3.
 * @param[out] value  0 or 1.
 * @return as every robot getter; QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_digital_output_get(unsigned int cbox_id, unsigned int robot_id,
                                                                      unsigned int channel, unsigned int* value);

/**
 * An analog input of the tool flange.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 1.
 * @param[out] value  value in the control box's unit for the channel's mode.
 * @return as every robot getter; QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_analog_input_get(unsigned int cbox_id, unsigned int robot_id,
                                                                    unsigned int channel, double* value);

/**
 * An analog output of the tool flange.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 1.
 * @param[out] value  value, as the module gives it.
 * @return as every robot getter; QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_robot_tool_io_analog_output_get(unsigned int cbox_id, unsigned int robot_id,
                                                                     unsigned int channel, double* value);

/**
 * Electrical mode of an analog input of the tool flange.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 1.
 * @param[out] mode  voltage or current.
 * @param[out] range  neither read nor written: the status mirror holds no range.
 * @param[out] range_value  neither read nor written.
 * @return as every robot getter; QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_NUMBER when channel is out of range.
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
 * @param[out] voltage  the supply voltage, a QORIN_TOOL_IO_POWER_VOLTAGE_OPTION value.
 * @param[out] current  supply current.
 * @return as every robot getter.
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
 * @param[out] color_1  first colour value.
 * @param[out] color_2  second colour value.
 * @param[out] color_3  third colour value.
 * @return as every robot getter.
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
 * @param[out] serial_interface  electrical interface.
 * @param[out] baudrate  bit rate.
 * @param[out] data_frame  data bits, parity and stop bits.
 * @param[out] protocol  what is spoken on the line; a QORIN_RS485_PROTOCOL value.
 * @param[out] setup_switch  the switch that was given with the setup.
 * @param[out] count  the count that was given with the setup.
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
 * @param[out] status_1  status word 1.
 * @param[out] status_2  status word 2.
 * @param[out] status_3  status word 3.
 * @param[out] status_4  status word 4.
 * @param[out] status_5  status word 5.
 * @param[out] status_6  status word 6.
 * @param[out] status_7  status word 7.
 * @param[out] status_8  status word 8.
 * @param[out] status_9  status byte.
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
 * @param[out] control_1  control word 1.
 * @param[out] control_2  control word 2.
 * @param[out] control_3  control word 3.
 * @param[out] control_4  control word 4.
 * @param[out] control_5  control word 5.
 * @param[out] control_6  control word 6.
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
 * @param[out] data  [size] `size` bytes.
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
 * @param[out] data  [size] `size` bytes.
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
 * @param[out] value  0 or 1.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_digital_input_get(unsigned int robot_id, unsigned int channel,
                                                                 unsigned int* value);

/**
 * The same as qorin_rpc_robot_tool_io_digital_output_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 3.
 * @param[out] value  0 or 1.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_digital_output_get(unsigned int robot_id, unsigned int channel,
                                                                  unsigned int* value);

/**
 * The same as qorin_rpc_robot_tool_io_analog_input_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 1.
 * @param[out] value  value in the control box's unit for the channel's mode.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_analog_input_get(unsigned int robot_id, unsigned int channel,
                                                                double* value);

/**
 * The same as qorin_rpc_robot_tool_io_analog_output_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 1.
 * @param[out] value  value, as the module gives it.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_analog_output_get(unsigned int robot_id, unsigned int channel,
                                                                 double* value);

/**
 * The same as qorin_rpc_robot_tool_io_analog_input_mode_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param channel  channel, 0 to 1.
 * @param[out] mode  voltage or current.
 * @param[out] range  neither read nor written: the status mirror holds no range.
 * @param[out] range_value  neither read nor written.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_analog_input_mode_get(unsigned int robot_id, unsigned int channel,
                                                                     QORIN_ANALOG_IO_MODE* mode, int* range,
                                                                     double* range_value);

/**
 * The same as qorin_rpc_robot_tool_io_power_voltage_current_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] voltage  the supply voltage, a QORIN_TOOL_IO_POWER_VOLTAGE_OPTION value.
 * @param[out] current  supply current.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_power_voltage_current_get(unsigned int robot_id, unsigned int* voltage,
                                                                         double* current);

/**
 * The same as qorin_rpc_robot_tool_io_led_color_get() for the control box that was asked last.
 *
 * @param robot_id  robot, 0 or 1.
 * @param[out] color_1  first colour value.
 * @param[out] color_2  second colour value.
 * @param[out] color_3  third colour value.
 * @return as every local form.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_led_color_get(unsigned int robot_id, unsigned int* color_1,
                                                             unsigned int* color_2, unsigned int* color_3);

/**
 * The same as qorin_rpc_robot_tool_io_rs485_setup_get() for the control box that was asked last.
 *
 * @param robot_id  robot; not judged, since there is one RS485 port for all.
 * @param[out] serial_interface  electrical interface.
 * @param[out] baudrate  bit rate.
 * @param[out] data_frame  data bits, parity and stop bits.
 * @param[out] protocol  what is spoken on the line; a QORIN_RS485_PROTOCOL value.
 * @param[out] setup_switch  the switch that was given with the setup.
 * @param[out] count  the count that was given with the setup.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_rs485_setup_get(
    unsigned int robot_id, QORIN_RS485_SERIAL_INTERFACE* serial_interface, QORIN_RS485_BAUDRATE* baudrate,
    QORIN_RS485_DATA_FRAME* data_frame, QORIN_RS485_PROTOCOL* protocol, QORIN_SWITCH* setup_switch, int* count);

/**
 * The same as qorin_rpc_robot_tool_io_rs485_status_get() for the control box that was asked last.
 *
 * @param robot_id       robot; not judged, since there is one RS485 port for all.
 * @param[out] status_1  status word 1.
 * @param[out] status_2  status word 2.
 * @param[out] status_3  status word 3.
 * @param[out] status_4  status word 4.
 * @param[out] status_5  status word 5.
 * @param[out] status_6  status word 6.
 * @param[out] status_7  status word 7.
 * @param[out] status_8  status word 8.
 * @param[out] status_9  status byte.
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
 * @param[out] control_1  control word 1.
 * @param[out] control_2  control word 2.
 * @param[out] control_3  control word 3.
 * @param[out] control_4  control word 4.
 * @param[out] control_5  control word 5.
 * @param[out] control_6  control word 6.
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
 * @param[out] data  [size] `size` bytes.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_robot_tool_io_rs485_io_rx_data_get(unsigned int robot_id, unsigned char size,
                                                                    unsigned char* data);

/**
 * The same as qorin_rpc_robot_tool_io_rs485_io_tx_data_get() for the control box that was asked last.
 *
 * @param robot_id  robot; not judged, since there is one RS485 port for all.
 * @param size  number of bytes, 0 to 64.
 * @param[out] data  [size] `size` bytes.
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
