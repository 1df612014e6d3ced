/**
 * @file test_support.h
 * Test support: values and faults that are put into the control software in place of the outside world.
 *
 * For test rigs, and for programs that are developed against a simulated control box:
 *
 * @code
 * qorin_rpc_ts_cbox_io_digital_input_set(cbox_id, 3, 1); // as if a part had arrived at the sensor on channel 3
 * @endcode
 *
 * Everything here is a command: system.h tells what commands have in common. Each returns as every command does. Which
 * numbers are taken, and what comes of them, is the control software's. qorin_rpc_ts_event_echo() stands with the
 * events, in event.h.
 */
#ifndef QORIN_TEST_SUPPORT_H
#define QORIN_TEST_SUPPORT_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/* Inputs and redundant channels. */

/**
 * Puts a value on a digital input of the control box.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param channel  channel, 0 for the first.
 * @param value    0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_cbox_io_digital_input_set(unsigned int cbox_id, unsigned int channel,
                                                                  unsigned int value);

/**
 * Puts a value on a redundant input of the control box.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param channel  channel, 0 for the first.
 * @param value    0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_cbox_redundant_io_digital_input_set(unsigned int cbox_id, unsigned int channel,
                                                                            unsigned int value);

/**
 * Puts a value on a redundant output of the control box.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param channel  channel, 0 for the first.
 * @param value    0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_cbox_redundant_io_digital_output_set(unsigned int cbox_id, unsigned int channel,
                                                                             unsigned int value);

/**
 * Puts a value on a redundant input of the safety module.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param channel  channel, 0 for the first.
 * @param value    0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_safety_module_redundant_io_digital_input_set(unsigned int cbox_id,
                                                                                     unsigned int channel,
                                                                                     unsigned int value);

/**
 * Puts a value on a digital input of the control box's computer.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param channel  channel, 0 for the first.
 * @param value    0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_epc_io_digital_input_set(unsigned int cbox_id, unsigned int channel,
                                                                 unsigned int value);

/**
 * Puts a value on a digital input of an I/O module.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param module   I/O module, 0 for the first.
 * @param channel  channel, 0 for the first.
 * @param value    0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_gen_cbox_io_digital_input_set(unsigned int cbox_id, unsigned int module,
                                                                      unsigned int channel, unsigned int value);

/**
 * Puts a value on a redundant input of an I/O module.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param module   I/O module, 0 for the first.
 * @param channel  channel, 0 for the first.
 * @param value    0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_gen_cbox_redundant_io_digital_input_set(unsigned int cbox_id,
                                                                                unsigned int module,
                                                                                unsigned int channel,
                                                                                unsigned int value);

/**
 * Puts a value on a redundant output of an I/O module.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param module   I/O module, 0 for the first.
 * @param channel  channel, 0 for the first.
 * @param value    0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_gen_cbox_redundant_io_digital_output_set(unsigned int cbox_id,
                                                                                 unsigned int module,
                                                                                 unsigned int channel,
                                                                                 unsigned int value);

/**
 * Puts a value on a digital input of a robot's tool.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param channel   channel, 0 for the first.
 * @param value     0 or 1.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_robot_tool_io_digital_input_set(unsigned int cbox_id, unsigned int robot_id,
                                                                        unsigned int channel, unsigned int value);

/* Drives. */

/**
 * Sets the feedforward of velocity of a joint's drive.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param joint     joint, 0 for the first.
 * @param ratio     ratio of the velocity feed-forward; the control box defines its scale.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_robot_joint_velocity_feedforward_ratio_set(unsigned int cbox_id,
                                                                                   unsigned int robot_id,
                                                                                   unsigned int joint, double ratio);

/**
 * Sets the feedforward of torque of a joint's drive.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param joint     joint, 0 for the first.
 * @param ratio     ratio of the torque feed-forward; the control box defines its scale.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_robot_joint_torque_feedforward_ratio_set(unsigned int cbox_id,
                                                                                 unsigned int robot_id,
                                                                                 unsigned int joint, double ratio);

/**
 * Sets the current of the torque feedforward of a joint's drive.
 *
 * @param cbox_id   control box id from qorin_rpc_system_cbox_connect().
 * @param robot_id  robot id, 0 or 1.
 * @param joint     joint, 0 for the first.
 * @param current   current of the torque feed-forward; the control box defines its unit.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_robot_joint_torque_feedforward_current_set(unsigned int cbox_id,
                                                                                   unsigned int robot_id,
                                                                                   unsigned int joint, double current);

/* Faults and service data. */

/**
 * Puts a fault into the control software.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param fault    number of the fault; the control software defines which there are. The guide's page of the simulated
 *                 control box lists those that it takes.
 * @param value_1  first of two numbers that go with it.
 * @param value_2  second of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_fault_inject(unsigned int cbox_id, unsigned int fault, unsigned int value_1,
                                                     unsigned int value_2);

/**
 * Writes service data to an EtherCAT device.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param value_1  first of five numbers of a service data transfer; the control box defines them.
 * @param value_2  second of these.
 * @param value_3  third of these.
 * @param value_4  fourth of these.
 * @param value_5  fifth of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_cbox_sdo_write(unsigned int cbox_id, unsigned int value_1, unsigned int value_2,
                                                       unsigned int value_3, unsigned int value_4,
                                                       unsigned int value_5);

/**
 * Reads service data from an EtherCAT device.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param value_1      first of four numbers of a service data transfer; the control box defines them.
 * @param value_2      second of these.
 * @param value_3      third of these.
 * @param value_4      fourth of these.
 * @param[out] result  what was read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_ts_cbox_sdo_read(unsigned int cbox_id, unsigned int value_1, unsigned int value_2,
                                                      unsigned int value_3, unsigned int value_4, unsigned int* result);

QORIN_API_C_END

#endif
