/**
 * @file cbox.h
 * State of the control box: buttons, modes, inputs and outputs, EtherCAT and IO-Link data.
 *
 * Getters. Each function here reads the status mirror, the latest frame that the control box has streamed: it takes no
 * lock, writes no line, sends nothing, does not allocate and does not block, so it may run beside a command that blocks
 * in another thread. Outputs stay untouched unless the result is QORIN_API_RESULT_OK; an output pointer must not be
 * null. Indexes are judged before the mirror is read.
 *
 * The mirror has no lock: a frame that arrives meanwhile may show in part. It stands still when the data link is lost,
 * and getters go on answering from it. Before the first frame it is all zero.
 *
 * Each getter has a local form without cbox_id, which reads the control box that was asked last, by any thread. So two
 * threads that read different control boxes at the same moment can read each other's.
 *
 * "Field" names the place in the status frame that a value comes from.
 */
#ifndef QORIN_CBOX_H
#define QORIN_CBOX_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/**
 * State of the EtherCAT master.
 *
 * Field: master_operational_mode.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param[out] mode  a QORIN_OPERATIONAL_MODE value.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_master_operational_mode_get(unsigned int cbox_id,
                                                                      QORIN_OPERATIONAL_MODE* mode);

/**
 * Model of the control box.
 *
 * Field: cbox_name.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param[out] name  a QORIN_CBOX_MODEL value; QORIN_CBOX_MODEL_NONE while no system is created, where the control box
 * says so.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_name_get(unsigned int cbox_id, QORIN_CBOX_MODEL* name);

/**
 * Emergency button of the control box.
 *
 * Field: emergency_button_state.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param[out] state  pushed or released.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_emergency_button_state_get(unsigned int cbox_id, QORIN_BUTTON_STATE* state);

/**
 * Emergency button of a mobile base.
 *
 * Field: amr_emergency_button_state[index].
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param index  button, 0 to 3.
 * @param[out] state  pushed or released.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_AMR_EMG_NUMBER when index is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_amr_emergency_button_state_get(unsigned int cbox_id, unsigned int index,
                                                                         QORIN_BUTTON_STATE* state);

/**
 * Link state of the EtherCAT master.
 *
 * Field: ecat_connection_state.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param[out] state  a QORIN_ECAT_CONN_STATE value.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ecat_connection_state_get(unsigned int cbox_id, QORIN_ECAT_CONN_STATE* state);

/**
 * Power button of the control box.
 *
 * Field: power_button_state.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param[out] state  pushed or released.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_power_button_state_get(unsigned int cbox_id, QORIN_BUTTON_STATE* state);

/**
 * A digital input of an I/O module of the control box.
 *
 * Field: digital_input of the I/O module, bit channel.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param channel  channel, 0 to 15.
 * @param[out] value  0 or 1.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_cbox_io_digital_input_get(unsigned int cbox_id, unsigned int module,
                                                                   unsigned int channel, unsigned int* value);

/**
 * A digital input of the control box's first I/O module.
 *
 * Field: digital_input of the I/O module, bit channel.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param channel  channel, 0 to 15.
 * @param[out] value  0 or 1.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_digital_input_get(unsigned int cbox_id, unsigned int channel,
                                                               unsigned int* value);

/**
 * A digital output of an I/O module of the control box.
 *
 * Field: digital_output of the I/O module, bit channel.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param channel  channel, 0 to 15.
 * @param[out] value  0 or 1.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_cbox_io_digital_output_get(unsigned int cbox_id, unsigned int module,
                                                                    unsigned int channel, unsigned int* value);

/**
 * A digital output of the control box's first I/O module.
 *
 * Field: digital_output of the I/O module, bit channel.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param channel  channel, 0 to 15.
 * @param[out] value  0 or 1.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_digital_output_get(unsigned int cbox_id, unsigned int channel,
                                                                unsigned int* value);

/**
 * An analog input of an I/O module of the control box.
 *
 * Field: analog_input[channel] of the I/O module.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param channel  channel, 0 to 1.
 * @param[out] value  value in the control box's unit for the channel's mode.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_cbox_io_analog_input_get(unsigned int cbox_id, unsigned int module,
                                                                  unsigned int channel, double* value);

/**
 * An analog input of the control box's first I/O module.
 *
 * Field: analog_input[channel] of the I/O module.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param channel  channel, 0 to 1.
 * @param[out] value  value in the control box's unit for the channel's mode.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_analog_input_get(unsigned int cbox_id, unsigned int channel,
                                                              double* value);

/**
 * An analog output of an I/O module of the control box.
 *
 * Field: analog_output[channel] of the I/O module.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param channel  channel, 0 to 1.
 * @param[out] value  value in the control box's unit for the channel's mode.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_cbox_io_analog_output_get(unsigned int cbox_id, unsigned int module,
                                                                   unsigned int channel, double* value);

/**
 * An analog output of the control box's first I/O module.
 *
 * Field: analog_output[channel] of the I/O module.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param channel  channel, 0 to 1.
 * @param[out] value  value in the control box's unit for the channel's mode.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_analog_output_get(unsigned int cbox_id, unsigned int channel,
                                                               double* value);

/**
 * Electrical mode of an analog input of an I/O module of the control box.
 *
 * Field: analog_mode of the I/O module, bit channel + 2.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param channel  channel, 0 to 1.
 * @param[out] mode  voltage or current.
 * @param[out] range  neither read nor written: the status mirror holds no range.
 * @param[out] range_value  neither read nor written.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_cbox_io_analog_input_mode_get(unsigned int cbox_id, unsigned int module,
                                                                       unsigned int channel, QORIN_ANALOG_IO_MODE* mode,
                                                                       int* range, double* range_value);

/**
 * Electrical mode of an analog input of the control box's first I/O module.
 *
 * Field: analog_mode of the I/O module, bit channel + 2.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param channel  channel, 0 to 1.
 * @param[out] mode  voltage or current.
 * @param[out] range  neither read nor written: the status mirror holds no range.
 * @param[out] range_value  neither read nor written.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_analog_input_mode_get(unsigned int cbox_id, unsigned int channel,
                                                                   QORIN_ANALOG_IO_MODE* mode, int* range,
                                                                   double* range_value);

/**
 * Electrical mode of an analog output of an I/O module of the control box.
 *
 * Field: analog_mode of the I/O module, bit channel.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param channel  channel, 0 to 1.
 * @param[out] mode  voltage or current.
 * @param[out] range  neither read nor written: the status mirror holds no range.
 * @param[out] range_value  neither read nor written.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_cbox_io_analog_output_mode_get(unsigned int cbox_id, unsigned int module,
                                                                        unsigned int channel,
                                                                        QORIN_ANALOG_IO_MODE* mode, int* range,
                                                                        double* range_value);

/**
 * Electrical mode of an analog output of the control box's first I/O module.
 *
 * Field: analog_mode of the I/O module, bit channel.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param channel  channel, 0 to 1.
 * @param[out] mode  voltage or current.
 * @param[out] range  neither read nor written: the status mirror holds no range.
 * @param[out] range_value  neither read nor written.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_analog_output_mode_get(unsigned int cbox_id, unsigned int channel,
                                                                    QORIN_ANALOG_IO_MODE* mode, int* range,
                                                                    double* range_value);

/**
 * A redundant digital input of an I/O module of the control box.
 *
 * Field: redundant_digital_input of the I/O module, bit channel.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param channel  channel, 0 to 15.
 * @param[out] value  0 or 1.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_cbox_redundant_io_digital_input_get(unsigned int cbox_id, unsigned int module,
                                                                             unsigned int channel, unsigned int* value);

/**
 * A redundant digital input of the control box's first I/O module.
 *
 * Field: redundant_digital_input of the I/O module, bit channel.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param channel  channel, 0 to 15.
 * @param[out] value  0 or 1.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_redundant_io_digital_input_get(unsigned int cbox_id, unsigned int channel,
                                                                         unsigned int* value);

/**
 * A redundant digital output of an I/O module of the control box.
 *
 * Field: redundant_digital_output of the I/O module, bit channel.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param channel  channel, 0 to 15.
 * @param[out] value  0 or 1.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_cbox_redundant_io_digital_output_get(unsigned int cbox_id, unsigned int module,
                                                                              unsigned int channel,
                                                                              unsigned int* value);

/**
 * A redundant digital output of the control box's first I/O module.
 *
 * Field: redundant_digital_output of the I/O module, bit channel.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param channel  channel, 0 to 15.
 * @param[out] value  0 or 1.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when channel is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_redundant_io_digital_output_get(unsigned int cbox_id, unsigned int channel,
                                                                          unsigned int* value);

/**
 * A safety input carried over EtherCAT.
 *
 * Field: digital_input of the I/O module, bit by the number of the input.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param input  QORIN_FSOE_RESET_INPUT to QORIN_FSOE_REAR_OSSD_B_INPUT.
 * @param[out] value  0 or 1.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when input is none of these.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_cbox_fsoe_io_digital_input_get(unsigned int cbox_id, unsigned int module,
                                                                        QORIN_FSOE_IO_INPUT_DATA input,
                                                                        unsigned int* value);

/**
 * A safety output carried over EtherCAT.
 *
 * Field: digital_output of the I/O module, bit 0.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param output  QORIN_FSOE_MC3_POWER_OUTPUT, the only one.
 * @param[out] value  0 or 1.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when output is any other.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_cbox_fsoe_io_digital_output_get(unsigned int cbox_id, unsigned int module,
                                                                         QORIN_FSOE_IO_OUTPUT_DATA output,
                                                                         unsigned int* value);

/**
 * A redundant digital input of the safety module.
 *
 * Field: safety_module_redundant_io, bit index + 8.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param index  input, 0 to 7.
 * @param[out] value  0 or 1.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER when index is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_safety_module_redundant_io_digital_input_get(unsigned int cbox_id,
                                                                                       unsigned int index,
                                                                                       unsigned int* value);

/**
 * 48 V supply of the safety module.
 *
 * Field: safety_module_48v_smps_switch.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param[out] smps_switch  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_safety_module_48v_smps_switch_get(unsigned int cbox_id,
                                                                            QORIN_SWITCH* smps_switch);

/**
 * Data received from a low-data EtherCAT device.
 *
 * The device is judged ahead of the size. Field: rx_data of the device.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param device  low-data EtherCAT device, 0 to 3.
 * @param size  number of bytes, 0 to 32.
 * @param[out] data  [size] `size` bytes.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER when device is out of range; QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE
 * when size is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ecat_low_data_io_rx_data_get(unsigned int cbox_id, unsigned int device,
                                                                       unsigned int size, unsigned char* data);

/**
 * Data sent to a low-data EtherCAT device.
 *
 * The device is judged ahead of the size. Field: tx_data of the device.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param device  low-data EtherCAT device, 0 to 3.
 * @param size  number of bytes, 0 to 32.
 * @param[out] data  [size] `size` bytes.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER when device is out of range; QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE
 * when size is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ecat_low_data_io_tx_data_get(unsigned int cbox_id, unsigned int device,
                                                                       unsigned int size, unsigned char* data);

/**
 * Data received from an IO-Link wireless port.
 *
 * The port is judged ahead of the size. Field: rx_data of the port.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param port  IO-Link wireless port, 0 to 15.
 * @param size  number of bytes, 0 to 32.
 * @param[out] data  [size] `size` bytes.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER when port is out of range; QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE
 * when size is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_wp_rx_data_get(unsigned int cbox_id, unsigned int port,
                                                                      unsigned int size, unsigned char* data);

/**
 * Data sent to an IO-Link wireless port.
 *
 * The port is judged ahead of the size. Field: tx_data of the port.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param port  IO-Link wireless port, 0 to 15.
 * @param size  number of bytes, 0 to 32.
 * @param[out] data  [size] `size` bytes.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER when port is out of range; QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE
 * when size is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_wp_tx_data_get(unsigned int cbox_id, unsigned int port,
                                                                      unsigned int size, unsigned char* data);

/**
 * State byte of an IO-Link wireless port.
 *
 * Field: status of the port.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param port  IO-Link wireless port, 0 to 15.
 * @param[out] status  state byte of the port.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER when port is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_wp_status_data_get(unsigned int cbox_id, unsigned int port,
                                                                          unsigned char* status);

/**
 * Status bits of the IO-Link master.
 *
 * Field: io_link_status_bit.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param device  IO-Link master, 0.
 * @param[out] bits  status bits.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER when device is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_status_bit_data_get(unsigned int cbox_id, unsigned int device,
                                                                           unsigned short* bits);

/**
 * Control bits of the IO-Link master.
 *
 * Field: io_link_control_bit.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param device  IO-Link master, 0.
 * @param[out] bits  control bits.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER when device is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_control_bit_get(unsigned int cbox_id, unsigned int device,
                                                                       unsigned short* bits);

/**
 * Input bits of the IO-Link master.
 *
 * Field: io_link_input_bit.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param device  IO-Link master, 0.
 * @param[out] bits  input bits.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER when device is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_input_bit_get(unsigned int cbox_id, unsigned int device,
                                                                     unsigned short* bits);

/**
 * Output bits of the IO-Link master.
 *
 * Field: io_link_output_bit.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param device  IO-Link master, 0.
 * @param[out] bits  bits of the outputs, all in one number.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER when device is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_output_bit_get(unsigned int cbox_id, unsigned int device,
                                                                      unsigned short* bits);

/**
 * Data received by the IO-Link master.
 *
 * The device is judged ahead of the size. Field: io_link_rx_data.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param device  IO-Link master, 0.
 * @param size  number of bytes, 0 to 64.
 * @param[out] data  [size] `size` bytes.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER when device is out of range; QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE
 * when size is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_rx_data_get(unsigned int cbox_id, unsigned int device,
                                                                   unsigned int size, unsigned char* data);

/**
 * Data sent by the IO-Link master.
 *
 * The device is judged ahead of the size. Field: io_link_tx_data.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param device  IO-Link master, 0.
 * @param size  number of bytes, 0 to 64.
 * @param[out] data  [size] `size` bytes.
 * @return QORIN_API_RESULT_OK; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when cbox_id is not connected;
 * QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER when device is out of range; QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE
 * when size is out of range.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_tx_data_get(unsigned int cbox_id, unsigned int device,
                                                                   unsigned int size, unsigned char* data);

/**
 * The same as qorin_rpc_cbox_master_operational_mode_get() for the control box that was asked last.
 *
 * @param[out] mode  a QORIN_OPERATIONAL_MODE value.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_master_operational_mode_get(QORIN_OPERATIONAL_MODE* mode);

/**
 * The same as qorin_rpc_cbox_name_get() for the control box that was asked last.
 *
 * @param[out] name  a QORIN_CBOX_MODEL value; QORIN_CBOX_MODEL_NONE while no system is created, where the control box
 * says so.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_name_get(QORIN_CBOX_MODEL* name);

/**
 * The same as qorin_rpc_cbox_emergency_button_state_get() for the control box that was asked last.
 *
 * @param[out] state  pushed or released.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_emergency_button_state_get(QORIN_BUTTON_STATE* state);

/**
 * The same as qorin_rpc_cbox_amr_emergency_button_state_get() for the control box that was asked last.
 *
 * @param index       button, 0 to 3.
 * @param[out] state  pushed or released.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_amr_emergency_button_state_get(unsigned int index, QORIN_BUTTON_STATE* state);

/**
 * The same as qorin_rpc_cbox_ecat_connection_state_get() for the control box that was asked last.
 *
 * @param[out] state  a QORIN_ECAT_CONN_STATE value.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_ecat_connection_state_get(QORIN_ECAT_CONN_STATE* state);

/**
 * The same as qorin_rpc_cbox_power_button_state_get() for the control box that was asked last.
 *
 * @param[out] state  pushed or released.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_power_button_state_get(QORIN_BUTTON_STATE* state);

/**
 * The same as qorin_rpc_gen_cbox_io_digital_input_get() for the control box that was asked last.
 *
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param channel  channel, 0 to 15.
 * @param[out] value  0 or 1.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_gen_cbox_io_digital_input_get(unsigned int module, unsigned int channel,
                                                               unsigned int* value);

/**
 * The same as qorin_rpc_cbox_io_digital_input_get() for the control box that was asked last.
 *
 * @param channel  channel, 0 to 15.
 * @param[out] value  0 or 1.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_io_digital_input_get(unsigned int channel, unsigned int* value);

/**
 * The same as qorin_rpc_gen_cbox_io_digital_output_get() for the control box that was asked last.
 *
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param channel  channel, 0 to 15.
 * @param[out] value  0 or 1.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_gen_cbox_io_digital_output_get(unsigned int module, unsigned int channel,
                                                                unsigned int* value);

/**
 * The same as qorin_rpc_cbox_io_digital_output_get() for the control box that was asked last.
 *
 * @param channel  channel, 0 to 15.
 * @param[out] value  0 or 1.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_io_digital_output_get(unsigned int channel, unsigned int* value);

/**
 * The same as qorin_rpc_gen_cbox_io_analog_input_get() for the control box that was asked last.
 *
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param channel  channel, 0 to 1.
 * @param[out] value  value in the control box's unit for the channel's mode.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_gen_cbox_io_analog_input_get(unsigned int module, unsigned int channel, double* value);

/**
 * The same as qorin_rpc_cbox_io_analog_input_get() for the control box that was asked last.
 *
 * @param channel  channel, 0 to 1.
 * @param[out] value  value in the control box's unit for the channel's mode.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_io_analog_input_get(unsigned int channel, double* value);

/**
 * The same as qorin_rpc_gen_cbox_io_analog_output_get() for the control box that was asked last.
 *
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param channel  channel, 0 to 1.
 * @param[out] value  value in the control box's unit for the channel's mode.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_gen_cbox_io_analog_output_get(unsigned int module, unsigned int channel,
                                                               double* value);

/**
 * The same as qorin_rpc_cbox_io_analog_output_get() for the control box that was asked last.
 *
 * @param channel  channel, 0 to 1.
 * @param[out] value  value in the control box's unit for the channel's mode.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_io_analog_output_get(unsigned int channel, double* value);

/**
 * The same as qorin_rpc_gen_cbox_io_analog_input_mode_get() for the control box that was asked last.
 *
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param channel  channel, 0 to 1.
 * @param[out] mode  voltage or current.
 * @param[out] range  neither read nor written: the status mirror holds no range.
 * @param[out] range_value  neither read nor written.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_gen_cbox_io_analog_input_mode_get(unsigned int module, unsigned int channel,
                                                                   QORIN_ANALOG_IO_MODE* mode, int* range,
                                                                   double* range_value);

/**
 * The same as qorin_rpc_cbox_io_analog_input_mode_get() for the control box that was asked last.
 *
 * @param channel  channel, 0 to 1.
 * @param[out] mode  voltage or current.
 * @param[out] range  neither read nor written: the status mirror holds no range.
 * @param[out] range_value  neither read nor written.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_io_analog_input_mode_get(unsigned int channel, QORIN_ANALOG_IO_MODE* mode,
                                                               int* range, double* range_value);

/**
 * The same as qorin_rpc_gen_cbox_io_analog_output_mode_get() for the control box that was asked last.
 *
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param channel  channel, 0 to 1.
 * @param[out] mode  voltage or current.
 * @param[out] range  neither read nor written: the status mirror holds no range.
 * @param[out] range_value  neither read nor written.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_gen_cbox_io_analog_output_mode_get(unsigned int module, unsigned int channel,
                                                                    QORIN_ANALOG_IO_MODE* mode, int* range,
                                                                    double* range_value);

/**
 * The same as qorin_rpc_cbox_io_analog_output_mode_get() for the control box that was asked last.
 *
 * @param channel  channel, 0 to 1.
 * @param[out] mode  voltage or current.
 * @param[out] range  neither read nor written: the status mirror holds no range.
 * @param[out] range_value  neither read nor written.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_io_analog_output_mode_get(unsigned int channel, QORIN_ANALOG_IO_MODE* mode,
                                                                int* range, double* range_value);

/**
 * The same as qorin_rpc_gen_cbox_redundant_io_digital_input_get() for the control box that was asked last.
 *
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param channel  channel, 0 to 15.
 * @param[out] value  0 or 1.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_gen_cbox_redundant_io_digital_input_get(unsigned int module, unsigned int channel,
                                                                         unsigned int* value);

/**
 * The same as qorin_rpc_cbox_redundant_io_digital_input_get() for the control box that was asked last.
 *
 * @param channel  channel, 0 to 15.
 * @param[out] value  0 or 1.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_redundant_io_digital_input_get(unsigned int channel, unsigned int* value);

/**
 * The same as qorin_rpc_gen_cbox_redundant_io_digital_output_get() for the control box that was asked last.
 *
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param channel  channel, 0 to 15.
 * @param[out] value  0 or 1.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_gen_cbox_redundant_io_digital_output_get(unsigned int module, unsigned int channel,
                                                                          unsigned int* value);

/**
 * The same as qorin_rpc_cbox_redundant_io_digital_output_get() for the control box that was asked last.
 *
 * @param channel  channel, 0 to 15.
 * @param[out] value  0 or 1.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_redundant_io_digital_output_get(unsigned int channel, unsigned int* value);

/**
 * The same as qorin_rpc_gen_cbox_fsoe_io_digital_input_get() for the control box that was asked last.
 *
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param input  QORIN_FSOE_RESET_INPUT to QORIN_FSOE_REAR_OSSD_B_INPUT.
 * @param[out] value  0 or 1.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_gen_cbox_fsoe_io_digital_input_get(unsigned int module, QORIN_FSOE_IO_INPUT_DATA input,
                                                                    unsigned int* value);

/**
 * The same as qorin_rpc_gen_cbox_fsoe_io_digital_output_get() for the control box that was asked last.
 *
 * @param module  I/O module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @param output  QORIN_FSOE_MC3_POWER_OUTPUT, the only one.
 * @param[out] value  0 or 1.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_gen_cbox_fsoe_io_digital_output_get(unsigned int module,
                                                                     QORIN_FSOE_IO_OUTPUT_DATA output,
                                                                     unsigned int* value);

/**
 * The same as qorin_rpc_cbox_safety_module_redundant_io_digital_input_get() for the control box that was asked last.
 *
 * @param index       input, 0 to 7.
 * @param[out] value  0 or 1.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_safety_module_redundant_io_digital_input_get(unsigned int index,
                                                                                   unsigned int* value);

/**
 * The same as qorin_rpc_cbox_safety_module_48v_smps_switch_get() for the control box that was asked last.
 *
 * @param[out] smps_switch  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_safety_module_48v_smps_switch_get(QORIN_SWITCH* smps_switch);

/**
 * The same as qorin_rpc_cbox_ecat_low_data_io_rx_data_get() for the control box that was asked last.
 *
 * @param device  low-data EtherCAT device, 0 to 3.
 * @param size  number of bytes, 0 to 32.
 * @param[out] data  [size] `size` bytes.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_ecat_low_data_io_rx_data_get(unsigned int device, unsigned int size,
                                                                   unsigned char* data);

/**
 * The same as qorin_rpc_cbox_ecat_low_data_io_tx_data_get() for the control box that was asked last.
 *
 * @param device  low-data EtherCAT device, 0 to 3.
 * @param size  number of bytes, 0 to 32.
 * @param[out] data  [size] `size` bytes.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_ecat_low_data_io_tx_data_get(unsigned int device, unsigned int size,
                                                                   unsigned char* data);

/**
 * The same as qorin_rpc_cbox_ecat_io_link_wp_rx_data_get() for the control box that was asked last.
 *
 * @param port       IO-Link wireless port, 0 to 15.
 * @param size       number of bytes, 0 to 32.
 * @param[out] data  [size] `size` bytes.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_ecat_io_link_wp_rx_data_get(unsigned int port, unsigned int size,
                                                                  unsigned char* data);

/**
 * The same as qorin_rpc_cbox_ecat_io_link_wp_tx_data_get() for the control box that was asked last.
 *
 * @param port       IO-Link wireless port, 0 to 15.
 * @param size       number of bytes, 0 to 32.
 * @param[out] data  [size] `size` bytes.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_ecat_io_link_wp_tx_data_get(unsigned int port, unsigned int size,
                                                                  unsigned char* data);

/**
 * The same as qorin_rpc_cbox_ecat_io_link_wp_status_data_get() for the control box that was asked last.
 *
 * @param port  IO-Link wireless port, 0 to 15.
 * @param[out] status  state byte of the port.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_ecat_io_link_wp_status_data_get(unsigned int port, unsigned char* status);

/**
 * The same as qorin_rpc_cbox_ecat_io_link_status_bit_data_get() for the control box that was asked last.
 *
 * @param device  IO-Link master, 0.
 * @param[out] bits  status bits.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_ecat_io_link_status_bit_data_get(unsigned int device, unsigned short* bits);

/**
 * The same as qorin_rpc_cbox_ecat_io_link_control_bit_get() for the control box that was asked last.
 *
 * @param device  IO-Link master, 0.
 * @param[out] bits  control bits.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_ecat_io_link_control_bit_get(unsigned int device, unsigned short* bits);

/**
 * The same as qorin_rpc_cbox_ecat_io_link_input_bit_get() for the control box that was asked last.
 *
 * @param device  IO-Link master, 0.
 * @param[out] bits  input bits.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_ecat_io_link_input_bit_get(unsigned int device, unsigned short* bits);

/**
 * The same as qorin_rpc_cbox_ecat_io_link_output_bit_get() for the control box that was asked last.
 *
 * @param device  IO-Link master, 0.
 * @param[out] bits  bits of the outputs, all in one number.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_ecat_io_link_output_bit_get(unsigned int device, unsigned short* bits);

/**
 * The same as qorin_rpc_cbox_ecat_io_link_rx_data_get() for the control box that was asked last.
 *
 * @param device  IO-Link master, 0.
 * @param size  number of bytes, 0 to 64.
 * @param[out] data  [size] `size` bytes.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_ecat_io_link_rx_data_get(unsigned int device, unsigned int size,
                                                               unsigned char* data);

/**
 * The same as qorin_rpc_cbox_ecat_io_link_tx_data_get() for the control box that was asked last.
 *
 * @param device  IO-Link master, 0.
 * @param size  number of bytes, 0 to 64.
 * @param[out] data  [size] `size` bytes.
 * @return as there; QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when no control box is connected.
 */
QORIN_API QORIN_API_RESULT qorin_cbox_ecat_io_link_tx_data_get(unsigned int device, unsigned int size,
                                                               unsigned char* data);

/**
 * Software version text of the first I/O module of the control box that was asked last.
 *
 * @return a text within the status mirror, which the next frame overwrites; null when no control box is connected.
 */
QORIN_API const char* qorin_cbox_io_module_sw_version_get(void);

/**
 * Software version text of the first safety module of the control box that was asked last.
 *
 * @return as qorin_cbox_io_module_sw_version_get().
 */
QORIN_API const char* qorin_cbox_safety_module_sw_version_get(void);

/**
 * Software version text of a safety module of the control box that was asked last.
 *
 * @param index  safety module, 0 for the first. Not bounded: a module that does not exist reads other state.
 * @return as qorin_cbox_io_module_sw_version_get().
 */
QORIN_API const char* qorin_cbox_safety_module_sw_version_get_with_index(unsigned int index);

QORIN_API_C_END

#endif
