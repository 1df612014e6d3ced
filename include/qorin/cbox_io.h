/**
 * @file cbox_io.h
 * The control box: its EtherCAT master, operational mode and state, and its inputs and outputs.
 *
 * Functions named qorin_rpc_cbox_io_ are for the control box's own I/O, those named qorin_rpc_gen_cbox_io_ for one of
 * its I/O modules. What is set shows in the status mirror; the getters are in cbox.h. The states of manual control and
 * of the user's program, the ranges of analog channels and the functions of redundant channels have no getter.
 *
 * @code
 * const unsigned int channels[32] = {0, 3}; // 32 numbers are read
 * const unsigned int values[32] = {1, 1};
 * qorin_rpc_cbox_io_digital_output_set(cbox_id, 2, 1);
 * qorin_rpc_cbox_io_digital_output_multiple_set(cbox_id, 2, channels, values);
 * qorin_rpc_cbox_io_analog_output_mode_set(cbox_id, 0, QORIN_ANALOG_IO_MODE_VOLTAGE, 0, 0.0);
 * qorin_rpc_cbox_io_analog_output_set(cbox_id, 0, 2.5);
 * @endcode
 *
 * Everything here is a command: system.h tells what commands have in common. Each returns as every command does. The
 * control box answers among others
 *   - QORIN_API_RESULT_ERROR_CBOX_CANNOT_CHANGE_OPERATIONAL_STATE,
 *   - QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER and QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE,
 *   - the QORIN_API_RESULT_ERROR_CBOX_REDUNDANT_IO_ codes for the assignment of redundant channels.
 */
#ifndef QORIN_CBOX_IO_H
#define QORIN_CBOX_IO_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/* State. */

/**
 * Resets the control box.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_reset(unsigned int cbox_id);

/**
 * Connects the EtherCAT master to its network.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_master_ecat_connect(unsigned int cbox_id);

/**
 * Disconnects the EtherCAT master from its network.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_master_ecat_disconnect(unsigned int cbox_id);

/**
 * Sets the operational mode of the EtherCAT master.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param mode     a QORIN_OPERATIONAL_MODE value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_master_operational_mode_set(unsigned int cbox_id,
                                                                      QORIN_OPERATIONAL_MODE mode);

/**
 * Tells the control box that robots are controlled by hand.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param state    QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_state_manual_control_set(unsigned int cbox_id, QORIN_SWITCH state);

/**
 * Tells the control box the state of the user's program.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param state    a QORIN_UI_PROGRAM_STATE value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_state_ui_program_set(unsigned int cbox_id, QORIN_UI_PROGRAM_STATE state);

/* The control box's own I/O. */

/**
 * Sets a digital output.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param channel  channel, 0 for the first.
 * @param value    0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_digital_output_set(unsigned int cbox_id, unsigned int channel,
                                                                unsigned int value);

/**
 * Sets several digital outputs.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param count     number of channels; no more than 32 travel.
 * @param channels  [count] channel numbers; 32 numbers are read whatever the count says.
 * @param values    [count] 0 or 1 for each channel; 32 numbers are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_digital_output_multiple_set(unsigned int cbox_id, unsigned int count,
                                                                         const unsigned int* channels,
                                                                         const unsigned int* values);

/**
 * Sets an analog output.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param channel  channel, 0 for the first.
 * @param value    value in the control box's unit for the channel's mode.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_analog_output_set(unsigned int cbox_id, unsigned int channel,
                                                               double value);

/**
 * Sets the mode of an analog input.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param channel      channel, 0 for the first.
 * @param mode         QORIN_ANALOG_IO_MODE_VOLTAGE or QORIN_ANALOG_IO_MODE_CURRENT.
 * @param range        range; the control box defines it.
 * @param range_value  value of the range; the control box defines it.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_analog_input_mode_set(unsigned int cbox_id, unsigned int channel,
                                                                   QORIN_ANALOG_IO_MODE mode, int range,
                                                                   double range_value);

/**
 * Sets the mode of an analog output.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param channel      channel, 0 for the first.
 * @param mode         QORIN_ANALOG_IO_MODE_VOLTAGE or QORIN_ANALOG_IO_MODE_CURRENT.
 * @param range        range; the control box defines it.
 * @param range_value  value of the range; the control box defines it.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_analog_output_mode_set(unsigned int cbox_id, unsigned int channel,
                                                                    QORIN_ANALOG_IO_MODE mode, int range,
                                                                    double range_value);

/* I/O modules. */

/**
 * Sets a digital output of a module.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param module   I/O module, 0 for the first.
 * @param channel  channel, 0 for the first.
 * @param value    0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_cbox_io_digital_output_set(unsigned int cbox_id, unsigned int module,
                                                                    unsigned int channel, unsigned int value);

/**
 * Sets several digital outputs of a module.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param module    I/O module, 0 for the first.
 * @param count     number of channels; no more than 32 travel.
 * @param channels  [count] channel numbers; 32 numbers are read whatever the count says.
 * @param values    [count] 0 or 1 for each channel; 32 numbers are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_cbox_io_digital_output_multiple_set(unsigned int cbox_id, unsigned int module,
                                                                             unsigned int count,
                                                                             const unsigned int* channels,
                                                                             const unsigned int* values);

/**
 * Sets an analog output of a module.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param module   I/O module, 0 for the first.
 * @param channel  channel, 0 for the first.
 * @param value    value in the control box's unit for the channel's mode.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_cbox_io_analog_output_set(unsigned int cbox_id, unsigned int module,
                                                                   unsigned int channel, double value);

/**
 * Sets the mode of an analog input of a module.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param module       I/O module, 0 for the first.
 * @param channel      channel, 0 for the first.
 * @param mode         QORIN_ANALOG_IO_MODE_VOLTAGE or QORIN_ANALOG_IO_MODE_CURRENT.
 * @param range        range; the control box defines it.
 * @param range_value  value of the range; the control box defines it.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_cbox_io_analog_input_mode_set(unsigned int cbox_id, unsigned int module,
                                                                       unsigned int channel, QORIN_ANALOG_IO_MODE mode,
                                                                       int range, double range_value);

/**
 * Sets the mode of an analog output of a module.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param module       I/O module, 0 for the first.
 * @param channel      channel, 0 for the first.
 * @param mode         QORIN_ANALOG_IO_MODE_VOLTAGE or QORIN_ANALOG_IO_MODE_CURRENT.
 * @param range        range; the control box defines it.
 * @param range_value  value of the range; the control box defines it.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_cbox_io_analog_output_mode_set(unsigned int cbox_id, unsigned int module,
                                                                        unsigned int channel, QORIN_ANALOG_IO_MODE mode,
                                                                        int range, double range_value);

/**
 * Sets a digital output of a module's safe I/O.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param module   I/O module, 0 for the first.
 * @param output   QORIN_FSOE_MC3_POWER_OUTPUT, the only one.
 * @param value    0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_gen_cbox_fsoe_io_digital_output_set(unsigned int cbox_id, unsigned int module,
                                                                         QORIN_FSOE_IO_OUTPUT_DATA output,
                                                                         unsigned int value);

/* Redundant channels. */

/**
 * Assigns a function to redundant inputs.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param value_1   first of three numbers that name the channels; the control box defines them.
 * @param value_2   second of these.
 * @param value_3   third of these.
 * @param function  what the channels stand for.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_redundant_in_set(unsigned int cbox_id, unsigned int value_1,
                                                              unsigned int value_2, unsigned int value_3,
                                                              QORIN_CBOX_IO_REDUNDANT function);

/**
 * Takes the function of redundant inputs away.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param value_1  first of three numbers that name the channels; the control box defines them.
 * @param value_2  second of these.
 * @param value_3  third of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_redundant_in_remove(unsigned int cbox_id, unsigned int value_1,
                                                                 unsigned int value_2, unsigned int value_3);

/**
 * Takes the functions of all redundant inputs away.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param value    a number that names the I/O; the control box defines it.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_redundant_in_remove_all(unsigned int cbox_id, unsigned int value);

/**
 * Assigns a function to redundant outputs.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param value_1   first of three numbers that name the channels; the control box defines them.
 * @param value_2   second of these.
 * @param value_3   third of these.
 * @param function  what the channels stand for.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_redundant_out_set(unsigned int cbox_id, unsigned int value_1,
                                                               unsigned int value_2, unsigned int value_3,
                                                               QORIN_CBOX_IO_REDUNDANT function);

/**
 * Takes the function of redundant outputs away.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param value_1  first of three numbers that name the channels; the control box defines them.
 * @param value_2  second of these.
 * @param value_3  third of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_redundant_out_remove(unsigned int cbox_id, unsigned int value_1,
                                                                  unsigned int value_2, unsigned int value_3);

/**
 * Takes the functions of all redundant outputs away.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param value    a number that names the I/O; the control box defines it.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_io_redundant_out_remove_all(unsigned int cbox_id, unsigned int value);

/**
 * Assigns a function to redundant inputs of the safety module.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param value_1   first of three numbers that name the channels; the control box defines them.
 * @param value_2   second of these.
 * @param value_3   third of these.
 * @param function  what the channels stand for.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_safety_module_io_redundant_in_set(unsigned int cbox_id, unsigned int value_1,
                                                                            unsigned int value_2, unsigned int value_3,
                                                                            QORIN_SAFETY_MODULE_IO_REDUNDANT function);

/**
 * Takes the function of redundant inputs of the safety module away.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param value_1  first of three numbers that name the channels; the control box defines them.
 * @param value_2  second of these.
 * @param value_3  third of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_safety_module_io_redundant_in_remove(unsigned int cbox_id,
                                                                               unsigned int value_1,
                                                                               unsigned int value_2,
                                                                               unsigned int value_3);

/**
 * Takes the functions of all redundant inputs of the safety module away.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param value    a number that names the I/O; the control box defines it.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_safety_module_io_redundant_in_remove_all(unsigned int cbox_id,
                                                                                   unsigned int value);

QORIN_API_C_END

#endif
