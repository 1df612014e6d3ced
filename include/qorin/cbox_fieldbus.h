/**
 * @file cbox_fieldbus.h
 * Fieldbus services of the control box: Modbus, EtherNet/IP, RDM, registers, IO-Link.
 *
 * All services run in the control software, which names its Modbus clients and their I/O points by texts. A text
 * travels in 128 bytes: a longer one is cut, without a terminator.
 *
 * @code
 * const char press[128] = "press"; // 128 bytes are read from each text
 * const char force[128] = "press.force";
 * const char address[128] = "127.0.0.1";
 * unsigned short registers[64] = {0}; // an output of this family gets 4 bytes, and 128 are read from it
 * qorin_rpc_cbox_ext_modbus_client_create(cbox_id, press, address, 502, address, 0); // as the simulated box takes them
 * qorin_rpc_cbox_ext_modbus_client_io_create(cbox_id, force, QORIN_MODBUS_CLIENT_IO_TYPE_REGISTER_INPUT, 0, 2, press);
 * qorin_rpc_cbox_ext_modbus_client_io_start(cbox_id, force, QORIN_MODBUS_CLIENT_IO_UPDATE_HZ_10);
 * qorin_rpc_cbox_ext_modbus_client_register_io_get(cbox_id, force, 0, registers);
 * qorin_rpc_cbox_ext_modbus_client_io_stop(cbox_id, force);
 * qorin_rpc_cbox_ext_modbus_client_io_destroy(cbox_id, force);
 * qorin_rpc_cbox_ext_modbus_client_destroy(cbox_id, press);
 * @endcode
 *
 * Everything here is a command: system.h tells what commands have in common. Each returns as every command does. An
 * answer is one 32-bit value, also where the output is an array of bytes or of 16-bit registers: 4 bytes are written
 * through the pointer, so that the memory behind it must have room for them. What is set goes in one block: 128 bytes
 * or 64 registers. After a command that the control box refuses, outputs are what it answered, usually 0.
 *
 * The control box judges names, addresses and numbers, and answers codes of the block 106000.
 */
#ifndef QORIN_CBOX_FIELDBUS_H
#define QORIN_CBOX_FIELDBUS_H

#include "qorin/enumerations.h"
#include "qorin/export.h"
#include "qorin/result.h"

QORIN_API_C_BEGIN

/* Modbus: local area. */

/**
 * Sets bits of the local area.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param value_1  first of two numbers that name the place; the control box defines them.
 * @param value_2  second of these.
 * @param bits     [128] bits; 128 bytes are read, and how bits lie in them the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_local_bit_set(unsigned int cbox_id, unsigned int value_1,
                                                                   unsigned int value_2, const unsigned char* bits);

/**
 * Asks for bits of the local area.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param value_1    first of two numbers that name the place; the control box defines them.
 * @param value_2    second of these.
 * @param[out] bits  [4] 4 bytes, and room for them; how they are to be read, the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_local_bit_get(unsigned int cbox_id, unsigned int value_1,
                                                                   unsigned int value_2, unsigned char* bits);

/**
 * Sets registers of the local area.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param value_1    first of two numbers that name the place; the control box defines them.
 * @param value_2    second of these.
 * @param registers  [64] registers; 64 are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_local_register_set(unsigned int cbox_id, unsigned int value_1,
                                                                        unsigned int value_2,
                                                                        const unsigned short* registers);

/**
 * Asks for registers of the local area.
 *
 * @param cbox_id         control box id from qorin_rpc_system_cbox_connect().
 * @param value_1         first of two numbers that name the place; the control box defines them.
 * @param value_2         second of these.
 * @param[out] registers  [2] 4 bytes, that is 2 registers; needs room for both.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_local_register_get(unsigned int cbox_id, unsigned int value_1,
                                                                        unsigned int value_2,
                                                                        unsigned short* registers);

/* Modbus: server. */

/**
 * Starts the Modbus server.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param address  text for the control box, which defines its meaning; 128 bytes are read.
 * @param port     TCP port to serve.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_server_start(unsigned int cbox_id, const char* address,
                                                                  unsigned short port);

/**
 * Stops the Modbus server.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_server_stop(unsigned int cbox_id);

/* Modbus: clients. */

/**
 * Creates a Modbus client.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param name     name of the client; 128 bytes are read.
 * @param text_1   text for the control box, which defines its meaning; 128 bytes are read.
 * @param value_1  first of two numbers for the control box.
 * @param text_2   second text; 128 bytes are read.
 * @param value_2  second of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_create(unsigned int cbox_id, const char* name,
                                                                   const char* text_1, unsigned short value_1,
                                                                   const char* text_2, unsigned short value_2);

/**
 * Destroys a Modbus client.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param name     name of the client; 128 bytes are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_destroy(unsigned int cbox_id, const char* name);

/**
 * Asks for the status of a Modbus client.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param name         name of the client; 128 bytes are read.
 * @param[out] status  a QORIN_MODBUS_CLIENT_STATUS value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_status_get(unsigned int cbox_id, const char* name,
                                                                       QORIN_MODBUS_CLIENT_STATUS* status);

/**
 * Switches the sequential mode of a Modbus client.
 *
 * @param cbox_id     control box id from qorin_rpc_system_cbox_connect().
 * @param name        name of the client; 128 bytes are read.
 * @param sequential  QORIN_SWITCH_ON or QORIN_SWITCH_OFF.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_seq_mode_switch_set(unsigned int cbox_id, const char* name,
                                                                                QORIN_SWITCH sequential);

/**
 * Asks for the sequential mode of a Modbus client.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param name             name of the client; 128 bytes are read.
 * @param[out] sequential  on or off.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_seq_mode_switch_get(unsigned int cbox_id, const char* name,
                                                                                QORIN_SWITCH* sequential);

/* Modbus: I/O points of clients. */

/**
 * Creates an I/O point.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param name     name of the I/O point; 128 bytes are read.
 * @param type     what is read or written.
 * @param value_1  first of two numbers for the control box, which defines them.
 * @param value_2  second of these.
 * @param text     text for the control box, which defines its meaning; 128 bytes are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_io_create(unsigned int cbox_id, const char* name,
                                                                      QORIN_MODBUS_CLIENT_IO_TYPE type,
                                                                      unsigned int value_1, unsigned int value_2,
                                                                      const char* text);

/**
 * Destroys an I/O point.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param name     name of the I/O point; 128 bytes are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_io_destroy(unsigned int cbox_id, const char* name);

/**
 * Starts the exchange of an I/O point.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param name         name of the I/O point; 128 bytes are read.
 * @param update_rate  how often to exchange.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_io_start(unsigned int cbox_id, const char* name,
                                                                     QORIN_MODBUS_CLIENT_IO_UPDATE_HZ update_rate);

/**
 * Stops the exchange of an I/O point.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param name     name of the I/O point; 128 bytes are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_io_stop(unsigned int cbox_id, const char* name);

/**
 * Asks for the type of an I/O point.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param name       name of the I/O point; 128 bytes are read.
 * @param[out] type  what is read or written.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_io_type_get(unsigned int cbox_id, const char* name,
                                                                        QORIN_MODBUS_CLIENT_IO_TYPE* type);

/**
 * Asks for the status of an I/O point.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param name         name of the I/O point; 128 bytes are read.
 * @param[out] status  a QORIN_MODBUS_CLIENT_IO_STATUS value.
 * @param[out] value   a number whose meaning the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_io_status_get(unsigned int cbox_id, const char* name,
                                                                          QORIN_MODBUS_CLIENT_IO_STATUS* status,
                                                                          double* value);

/**
 * Asks for bits of an I/O point.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param name       name of the I/O point; 128 bytes are read.
 * @param address    place within the point.
 * @param[out] bits  [4] 4 bytes, and room for them; how they are to be read, the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_bit_io_get(unsigned int cbox_id, const char* name,
                                                                       unsigned int address, unsigned char* bits);

/**
 * Sets bits of an I/O point.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param name     name of the I/O point; 128 bytes are read.
 * @param address  place within the point.
 * @param bits     [128] bits; 128 bytes are read, and how bits lie in them the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_bit_io_set(unsigned int cbox_id, const char* name,
                                                                       unsigned int address, const unsigned char* bits);

/**
 * Asks for registers of an I/O point.
 *
 * @param cbox_id         control box id from qorin_rpc_system_cbox_connect().
 * @param name            name of the I/O point; 128 bytes are read.
 * @param address         place within the point.
 * @param[out] registers  [2] 4 bytes, that is 2 registers; needs room for both.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_register_io_get(unsigned int cbox_id, const char* name,
                                                                            unsigned int address,
                                                                            unsigned short* registers);

/**
 * Sets registers of an I/O point.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param name       name of the I/O point; 128 bytes are read.
 * @param address    place within the point.
 * @param registers  [64] registers; 64 are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_register_io_set(unsigned int cbox_id, const char* name,
                                                                            unsigned int address,
                                                                            const unsigned short* registers);

/**
 * As qorin_rpc_cbox_ext_modbus_client_io_type_get(), by a command of its own.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param name       name of the I/O point; 128 bytes are read.
 * @param[out] type  what is read or written.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_modbus_client_io_type_get(unsigned int cbox_id, const char* name,
                                                                    QORIN_MODBUS_CLIENT_IO_TYPE* type);

/**
 * As qorin_rpc_cbox_ext_modbus_client_io_status_get(), by a command of its own and without its number.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param name         name of the I/O point; 128 bytes are read.
 * @param[out] status  a QORIN_MODBUS_CLIENT_IO_STATUS value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_modbus_client_io_status_get(unsigned int cbox_id, const char* name,
                                                                      QORIN_MODBUS_CLIENT_IO_STATUS* status);

/**
 * As qorin_rpc_cbox_ext_modbus_client_bit_io_get(), by a command of its own.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param name       name of the I/O point; 128 bytes are read.
 * @param address    place within the point.
 * @param[out] bits  [4] 4 bytes, and room for them; how they are to be read, the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_modbus_client_bit_io_get(unsigned int cbox_id, const char* name,
                                                                   unsigned int address, unsigned char* bits);

/**
 * As qorin_rpc_cbox_ext_modbus_client_register_io_get(), by a command of its own.
 *
 * @param cbox_id         control box id from qorin_rpc_system_cbox_connect().
 * @param name            name of the I/O point; 128 bytes are read.
 * @param address         place within the point.
 * @param[out] registers  [2] 4 bytes, that is 2 registers; needs room for both.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_modbus_client_register_io_get(unsigned int cbox_id, const char* name,
                                                                        unsigned int address,
                                                                        unsigned short* registers);

/* EtherNet/IP. */

/**
 * Starts the EtherNet/IP adaptor.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param text     text for the control box, which defines its meaning; 128 bytes are read.
 * @param value    number for the control box.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_eip_adaptor_start(unsigned int cbox_id, const char* text,
                                                                unsigned short value);

/**
 * Stops the EtherNet/IP adaptor.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_eip_adaptor_stop(unsigned int cbox_id);

/**
 * Asks for the status of the EtherNet/IP adaptor.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param[out] status  a QORIN_LED_STATE value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_eip_adaptor_status(unsigned int cbox_id, QORIN_LED_STATE* status);

/**
 * Starts the EtherNet/IP scanner.
 *
 * @param cbox_id       control box id from qorin_rpc_system_cbox_connect().
 * @param text          text for the control box, which defines its meaning; 128 bytes are read.
 * @param value         number for the control box.
 * @param device_model  device to scan.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_eip_scanner_start(unsigned int cbox_id, const char* text,
                                                                unsigned short value,
                                                                QORIN_EIP_IO_DEVICE_MODEL device_model);

/**
 * Stops the EtherNet/IP scanner.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_eip_scanner_stop(unsigned int cbox_id);

/**
 * Asks for the status of the EtherNet/IP scanner.
 *
 * @param cbox_id      control box id from qorin_rpc_system_cbox_connect().
 * @param[out] status  a QORIN_LED_STATE value.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_eip_scanner_status(unsigned int cbox_id, QORIN_LED_STATE* status);

/**
 * Asks for what the scanner has received.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param value      number for the control box.
 * @param[out] data  [4] 4 bytes, and room for them; how they are to be read, the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_eip_scanner_rx_data_get(unsigned int cbox_id, unsigned int value,
                                                                      unsigned char* data);

/**
 * Asks for what the scanner sends.
 *
 * @param cbox_id    control box id from qorin_rpc_system_cbox_connect().
 * @param value      number for the control box.
 * @param[out] data  [4] 4 bytes, and room for them; how they are to be read, the control box defines.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_eip_scanner_tx_data_get(unsigned int cbox_id, unsigned int value,
                                                                      unsigned char* data);

/**
 * Sets what the scanner sends.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param value    number for the control box.
 * @param data     [128] bytes; 128 are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_eip_scanner_tx_data_set(unsigned int cbox_id, unsigned int value,
                                                                      const unsigned char* data);

/* RDM. */

/**
 * Starts the RDM link.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param text_1   text for the control box, which defines its meaning; 128 bytes are read.
 * @param value_1  first of three numbers for the control box.
 * @param text_2   second text; 128 bytes are read.
 * @param value_2  second of these.
 * @param value_3  third of these.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_rdm_start(unsigned int cbox_id, const char* text_1,
                                                        unsigned short value_1, const char* text_2,
                                                        unsigned short value_2, unsigned int value_3);

/**
 * Stops the RDM link.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_rdm_stop(unsigned int cbox_id);

/* Registers. */

/**
 * Sets a bit register of the outputs.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param register_number  which register; the control box defines how many there are.
 * @param value            what the register holds from then on.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_output_bit_register_set(unsigned int cbox_id,
                                                                      unsigned short register_number,
                                                                      unsigned int value);

/**
 * Sets an integer register of the outputs.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param register_number  which register; the control box defines how many there are.
 * @param value            what the register holds from then on.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_output_int_register_set(unsigned int cbox_id,
                                                                      unsigned short register_number,
                                                                      unsigned int value);

/**
 * Sets a float register of the outputs.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param register_number  which register; the control box defines how many there are.
 * @param value            what the register holds from then on.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_output_float_register_set(unsigned int cbox_id,
                                                                        unsigned short register_number, double value);

/**
 * Asks for a bit register of the outputs.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param register_number  which register; the control box defines how many there are.
 * @param[out] value       value; 0 when the control box has none to answer.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_output_bit_register_get(unsigned int cbox_id,
                                                                      unsigned short register_number,
                                                                      unsigned int* value);

/**
 * Asks for an integer register of the outputs.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param register_number  which register; the control box defines how many there are.
 * @param[out] value       value; 0 when the control box has none to answer.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_output_int_register_get(unsigned int cbox_id,
                                                                      unsigned short register_number,
                                                                      unsigned int* value);

/**
 * Asks for a float register of the outputs.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param register_number  which register; the control box defines how many there are.
 * @param[out] value       value; 0 when the control box has none to answer.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_output_float_register_get(unsigned int cbox_id,
                                                                        unsigned short register_number, double* value);

/**
 * Asks for a bit register of the inputs.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param register_number  which register; the control box defines how many there are.
 * @param[out] value       value; 0 when the control box has none to answer.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_input_bit_register_get(unsigned int cbox_id,
                                                                     unsigned short register_number,
                                                                     unsigned int* value);

/**
 * Asks for an integer register of the inputs.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param register_number  which register; the control box defines how many there are.
 * @param[out] value       value; 0 when the control box has none to answer.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_input_int_register_get(unsigned int cbox_id,
                                                                     unsigned short register_number,
                                                                     unsigned int* value);

/**
 * Asks for a float register of the inputs.
 *
 * @param cbox_id          control box id from qorin_rpc_system_cbox_connect().
 * @param register_number  which register; the control box defines how many there are.
 * @param[out] value       value; 0 when the control box has none to answer.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ext_input_float_register_get(unsigned int cbox_id,
                                                                       unsigned short register_number, double* value);

/* EtherCAT: IO-Link and low-data I/O. */

/**
 * Sets what an IO-Link master sends.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param device   device, 0 for the first.
 * @param value    a number whose meaning the control box defines.
 * @param data     [128] bytes to send; 128 are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_tx_data_set(unsigned int cbox_id, unsigned int device,
                                                                   unsigned int value, const unsigned char* data);

/**
 * Sets what a wireless IO-Link port sends.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param port     wireless port, 0 for the first.
 * @param value    a number whose meaning the control box defines.
 * @param data     [128] bytes to send; 128 are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_wp_tx_data_set(unsigned int cbox_id, unsigned int port,
                                                                      unsigned int value, const unsigned char* data);

/**
 * Sets what a low-data device sends.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param device   device, 0 for the first.
 * @param value    a number whose meaning the control box defines.
 * @param data     [128] bytes to send; 128 are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ecat_low_data_io_tx_data_set(unsigned int cbox_id, unsigned int device,
                                                                       unsigned int value, const unsigned char* data);

/**
 * Sets the control bits of an IO-Link master.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param device   device, 0 for the first.
 * @param bits     [64] control bits; 64 words of 16 bits are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_control_bit_set(unsigned int cbox_id, unsigned int device,
                                                                       const unsigned short* bits);

/**
 * Sets the output bits of an IO-Link master.
 *
 * @param cbox_id  control box id from qorin_rpc_system_cbox_connect().
 * @param device   device, 0 for the first.
 * @param bits     [64] output bits; 64 words of 16 bits are read.
 * @return as every command.
 */
QORIN_API QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_output_bit_set(unsigned int cbox_id, unsigned int device,
                                                                      const unsigned short* bits);

QORIN_API_C_END

#endif
