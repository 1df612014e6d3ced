// Fieldbus services of the control box.
#include "qorin/cbox_fieldbus.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::command;

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_local_bit_set(unsigned int cbox_id, unsigned int value_1,
                                                         unsigned int value_2, const unsigned char* bits)
{
    return command<"qorin_cbox_ext_modbus_local_bit_set">(cbox_id, value_1, value_2, bits);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_local_bit_get(unsigned int cbox_id, unsigned int value_1,
                                                         unsigned int value_2, unsigned char* bits)
{
    return command<"qorin_cbox_ext_modbus_local_bit_get">(cbox_id, value_1, value_2, bits);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_local_register_set(unsigned int cbox_id, unsigned int value_1,
                                                              unsigned int value_2, const unsigned short* registers)
{
    return command<"qorin_cbox_ext_modbus_local_register_set">(cbox_id, value_1, value_2, registers);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_local_register_get(unsigned int cbox_id, unsigned int value_1,
                                                              unsigned int value_2, unsigned short* registers)
{
    return command<"qorin_cbox_ext_modbus_local_register_get">(cbox_id, value_1, value_2, registers);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_server_start(unsigned int cbox_id, const char* address, unsigned short port)
{
    return command<"qorin_cbox_ext_modbus_server_start">(cbox_id, address, port);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_server_stop(unsigned int cbox_id)
{
    return command<"qorin_cbox_ext_modbus_server_stop">(cbox_id);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_create(unsigned int cbox_id, const char* name, const char* text_1,
                                                         unsigned short value_1, const char* text_2,
                                                         unsigned short value_2)
{
    return command<"qorin_cbox_ext_modbus_client_create">(cbox_id, name, text_1, value_1, text_2, value_2);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_destroy(unsigned int cbox_id, const char* name)
{
    return command<"qorin_cbox_ext_modbus_client_destroy">(cbox_id, name);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_status_get(unsigned int cbox_id, const char* name,
                                                             QORIN_MODBUS_CLIENT_STATUS* status)
{
    return command<"qorin_cbox_ext_modbus_client_status_get">(cbox_id, name, status);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_seq_mode_switch_set(unsigned int cbox_id, const char* name,
                                                                      QORIN_SWITCH sequential)
{
    return command<"qorin_cbox_ext_modbus_client_seq_mode_switch_set">(cbox_id, name, sequential);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_seq_mode_switch_get(unsigned int cbox_id, const char* name,
                                                                      QORIN_SWITCH* sequential)
{
    return command<"qorin_cbox_ext_modbus_client_seq_mode_switch_get">(cbox_id, name, sequential);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_io_create(unsigned int cbox_id, const char* name,
                                                            QORIN_MODBUS_CLIENT_IO_TYPE type, unsigned int value_1,
                                                            unsigned int value_2, const char* text)
{
    return command<"qorin_cbox_ext_modbus_client_io_create">(cbox_id, name, type, value_1, value_2, text);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_io_destroy(unsigned int cbox_id, const char* name)
{
    return command<"qorin_cbox_ext_modbus_client_io_destroy">(cbox_id, name);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_io_start(unsigned int cbox_id, const char* name,
                                                           QORIN_MODBUS_CLIENT_IO_UPDATE_HZ update_rate)
{
    return command<"qorin_cbox_ext_modbus_client_io_start">(cbox_id, name, update_rate);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_io_stop(unsigned int cbox_id, const char* name)
{
    return command<"qorin_cbox_ext_modbus_client_io_stop">(cbox_id, name);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_io_type_get(unsigned int cbox_id, const char* name,
                                                              QORIN_MODBUS_CLIENT_IO_TYPE* type)
{
    return command<"qorin_cbox_ext_modbus_client_io_type_get">(cbox_id, name, type);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_io_status_get(unsigned int cbox_id, const char* name,
                                                                QORIN_MODBUS_CLIENT_IO_STATUS* status, double* value)
{
    return command<"qorin_cbox_ext_modbus_client_io_status_get">(cbox_id, name, status, value);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_bit_io_get(unsigned int cbox_id, const char* name,
                                                             unsigned int address, unsigned char* bits)
{
    return command<"qorin_cbox_ext_modbus_client_bit_io_get">(cbox_id, name, address, bits);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_bit_io_set(unsigned int cbox_id, const char* name,
                                                             unsigned int address, const unsigned char* bits)
{
    return command<"qorin_cbox_ext_modbus_client_bit_io_set">(cbox_id, name, address, bits);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_register_io_get(unsigned int cbox_id, const char* name,
                                                                  unsigned int address, unsigned short* registers)
{
    return command<"qorin_cbox_ext_modbus_client_register_io_get">(cbox_id, name, address, registers);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_modbus_client_register_io_set(unsigned int cbox_id, const char* name,
                                                                  unsigned int address, const unsigned short* registers)
{
    return command<"qorin_cbox_ext_modbus_client_register_io_set">(cbox_id, name, address, registers);
}

QORIN_API_RESULT qorin_rpc_cbox_modbus_client_io_type_get(unsigned int cbox_id, const char* name,
                                                          QORIN_MODBUS_CLIENT_IO_TYPE* type)
{
    return command<"qorin_cbox_modbus_client_io_type_get">(cbox_id, name, type);
}

QORIN_API_RESULT qorin_rpc_cbox_modbus_client_io_status_get(unsigned int cbox_id, const char* name,
                                                            QORIN_MODBUS_CLIENT_IO_STATUS* status)
{
    return command<"qorin_cbox_modbus_client_io_status_get">(cbox_id, name, status);
}

QORIN_API_RESULT qorin_rpc_cbox_modbus_client_bit_io_get(unsigned int cbox_id, const char* name, unsigned int address,
                                                         unsigned char* bits)
{
    return command<"qorin_cbox_modbus_client_bit_io_get">(cbox_id, name, address, bits);
}

QORIN_API_RESULT qorin_rpc_cbox_modbus_client_register_io_get(unsigned int cbox_id, const char* name,
                                                              unsigned int address, unsigned short* registers)
{
    return command<"qorin_cbox_modbus_client_register_io_get">(cbox_id, name, address, registers);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_eip_adaptor_start(unsigned int cbox_id, const char* text, unsigned short value)
{
    return command<"qorin_cbox_ext_eip_adaptor_start">(cbox_id, text, value);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_eip_adaptor_stop(unsigned int cbox_id)
{
    return command<"qorin_cbox_ext_eip_adaptor_stop">(cbox_id);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_eip_adaptor_status(unsigned int cbox_id, QORIN_LED_STATE* status)
{
    return command<"qorin_cbox_ext_eip_adaptor_status">(cbox_id, status);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_eip_scanner_start(unsigned int cbox_id, const char* text, unsigned short value,
                                                      QORIN_EIP_IO_DEVICE_MODEL device_model)
{
    return command<"qorin_cbox_ext_eip_scanner_start">(cbox_id, text, value, device_model);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_eip_scanner_stop(unsigned int cbox_id)
{
    return command<"qorin_cbox_ext_eip_scanner_stop">(cbox_id);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_eip_scanner_status(unsigned int cbox_id, QORIN_LED_STATE* status)
{
    return command<"qorin_cbox_ext_eip_scanner_status">(cbox_id, status);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_eip_scanner_rx_data_get(unsigned int cbox_id, unsigned int value,
                                                            unsigned char* data)
{
    return command<"qorin_cbox_ext_eip_scanner_rx_data_get">(cbox_id, value, data);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_eip_scanner_tx_data_get(unsigned int cbox_id, unsigned int value,
                                                            unsigned char* data)
{
    return command<"qorin_cbox_ext_eip_scanner_tx_data_get">(cbox_id, value, data);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_eip_scanner_tx_data_set(unsigned int cbox_id, unsigned int value,
                                                            const unsigned char* data)
{
    return command<"qorin_cbox_ext_eip_scanner_tx_data_set">(cbox_id, value, data);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_rdm_start(unsigned int cbox_id, const char* text_1, unsigned short value_1,
                                              const char* text_2, unsigned short value_2, unsigned int value_3)
{
    return command<"qorin_cbox_ext_rdm_start">(cbox_id, text_1, value_1, text_2, value_2, value_3);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_rdm_stop(unsigned int cbox_id)
{
    return command<"qorin_cbox_ext_rdm_stop">(cbox_id);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_output_bit_register_set(unsigned int cbox_id, unsigned short register_number,
                                                            unsigned int value)
{
    return command<"qorin_cbox_ext_output_bit_register_set">(cbox_id, register_number, value);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_output_int_register_set(unsigned int cbox_id, unsigned short register_number,
                                                            unsigned int value)
{
    return command<"qorin_cbox_ext_output_int_register_set">(cbox_id, register_number, value);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_output_float_register_set(unsigned int cbox_id, unsigned short register_number,
                                                              double value)
{
    return command<"qorin_cbox_ext_output_float_register_set">(cbox_id, register_number, value);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_output_bit_register_get(unsigned int cbox_id, unsigned short register_number,
                                                            unsigned int* value)
{
    return command<"qorin_cbox_ext_output_bit_register_get">(cbox_id, register_number, value);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_output_int_register_get(unsigned int cbox_id, unsigned short register_number,
                                                            unsigned int* value)
{
    return command<"qorin_cbox_ext_output_int_register_get">(cbox_id, register_number, value);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_output_float_register_get(unsigned int cbox_id, unsigned short register_number,
                                                              double* value)
{
    return command<"qorin_cbox_ext_output_float_register_get">(cbox_id, register_number, value);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_input_bit_register_get(unsigned int cbox_id, unsigned short register_number,
                                                           unsigned int* value)
{
    return command<"qorin_cbox_ext_input_bit_register_get">(cbox_id, register_number, value);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_input_int_register_get(unsigned int cbox_id, unsigned short register_number,
                                                           unsigned int* value)
{
    return command<"qorin_cbox_ext_input_int_register_get">(cbox_id, register_number, value);
}

QORIN_API_RESULT qorin_rpc_cbox_ext_input_float_register_get(unsigned int cbox_id, unsigned short register_number,
                                                             double* value)
{
    return command<"qorin_cbox_ext_input_float_register_get">(cbox_id, register_number, value);
}

QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_tx_data_set(unsigned int cbox_id, unsigned int device, unsigned int value,
                                                         const unsigned char* data)
{
    return command<"qorin_cbox_ecat_io_link_tx_data_set">(cbox_id, device, value, data);
}

QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_wp_tx_data_set(unsigned int cbox_id, unsigned int port, unsigned int value,
                                                            const unsigned char* data)
{
    return command<"qorin_cbox_ecat_io_link_wp_tx_data_set">(cbox_id, port, value, data);
}

QORIN_API_RESULT qorin_rpc_cbox_ecat_low_data_io_tx_data_set(unsigned int cbox_id, unsigned int device,
                                                             unsigned int value, const unsigned char* data)
{
    return command<"qorin_cbox_ecat_low_data_io_tx_data_set">(cbox_id, device, value, data);
}

QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_control_bit_set(unsigned int cbox_id, unsigned int device,
                                                             const unsigned short* bits)
{
    return command<"qorin_cbox_ecat_io_link_control_bit_set">(cbox_id, device, bits);
}

QORIN_API_RESULT qorin_rpc_cbox_ecat_io_link_output_bit_set(unsigned int cbox_id, unsigned int device,
                                                            const unsigned short* bits)
{
    return command<"qorin_cbox_ecat_io_link_output_bit_set">(cbox_id, device, bits);
}
