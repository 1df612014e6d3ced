#include "simulator/commands/families.h"

#include <algorithm>
#include <span>

#include "simulator/commands/part_operation.h"
#include "simulator/commands/typed_command.h"

namespace cbox_simulator
{
namespace
{
template <auto bank, class Value>
QORIN_API_RESULT register_set(box_model& model, std::uint16_t number, Value value)
{
    return (model.fieldbuses().registers.*bank).set(number, value);
}

template <auto bank, class Value>
QORIN_API_RESULT register_get(box_model& model, std::uint16_t number, Value& value)
{
    return (model.fieldbuses().registers.*bank).get(number, value);
}

/// Every device has less room than a block, so that it refuses itself what is longer.
template <auto set>
QORIN_API_RESULT device_data_set(box_model& model, std::uint32_t device, std::uint32_t size,
                                 const block_of<std::uint8_t>& data)
{
    return (model.cbox().*set)(device, std::span(data).first(std::min<std::size_t>(size, data.size())));
}

/// The bits are the first word of the block.
template <auto set>
QORIN_API_RESULT device_bits_set(box_model& model, std::uint32_t device, const block_of<std::uint16_t>& bits)
{
    return (model.cbox().*set)(device, bits[0]);
}

using area = local_modbus_area;
using clients = modbus_clients;
using services = fieldbus_services;
using registers = external_registers;
using bit = std::uint8_t;
using word = std::uint16_t;
using number = std::uint32_t;

constexpr command_row rows[] = {
    controlled<on_part<&area::set_bits>>("qorin_cbox_ext_modbus_local_bit_set"),
    controlled<on_part<&area::get_bits>>("qorin_cbox_ext_modbus_local_bit_get"),
    controlled<on_part<&area::set_registers>>("qorin_cbox_ext_modbus_local_register_set"),
    controlled<on_part<&area::get_registers>>("qorin_cbox_ext_modbus_local_register_get"),
    controlled<on_part<&services::start_modbus_server>>("qorin_cbox_ext_modbus_server_start"),
    controlled<on_part<&services::stop_modbus_server>>("qorin_cbox_ext_modbus_server_stop"),

    controlled<on_part<&clients::create_client>>("qorin_cbox_ext_modbus_client_create"),
    controlled<on_part<&clients::destroy_client>>("qorin_cbox_ext_modbus_client_destroy"),
    controlled<on_part<&clients::client_status>>("qorin_cbox_ext_modbus_client_status_get"),
    controlled<on_part<&clients::set_sequential_mode>>("qorin_cbox_ext_modbus_client_seq_mode_switch_set"),
    controlled<on_part<&clients::sequential_mode>>("qorin_cbox_ext_modbus_client_seq_mode_switch_get"),
    controlled<on_part<&clients::create_io>>("qorin_cbox_ext_modbus_client_io_create"),
    controlled<on_part<&clients::destroy_io>>("qorin_cbox_ext_modbus_client_io_destroy"),
    controlled<on_part<&clients::start_io>>("qorin_cbox_ext_modbus_client_io_start"),
    controlled<on_part<&clients::stop_io>>("qorin_cbox_ext_modbus_client_io_stop"),
    controlled<on_part<&clients::io_type>>("qorin_cbox_ext_modbus_client_io_type_get"),
    controlled<on_part<&clients::io_status_and_rate>>("qorin_cbox_ext_modbus_client_io_status_get"),
    controlled<on_part<&clients::get_values<bit>>>("qorin_cbox_ext_modbus_client_bit_io_get"),
    controlled<on_part<&clients::set_values<bit>>>("qorin_cbox_ext_modbus_client_bit_io_set"),
    controlled<on_part<&clients::get_values<word>>>("qorin_cbox_ext_modbus_client_register_io_get"),
    controlled<on_part<&clients::set_values<word>>>("qorin_cbox_ext_modbus_client_register_io_set"),
    controlled<on_part<&clients::io_type>>("qorin_cbox_modbus_client_io_type_get"),
    controlled<on_part<&clients::io_status>>("qorin_cbox_modbus_client_io_status_get"),
    controlled<on_part<&clients::get_values<bit>>>("qorin_cbox_modbus_client_bit_io_get"),
    controlled<on_part<&clients::get_values<word>>>("qorin_cbox_modbus_client_register_io_get"),

    controlled<on_part<&services::start_eip_adaptor>>("qorin_cbox_ext_eip_adaptor_start"),
    controlled<on_part<&services::stop_eip_adaptor>>("qorin_cbox_ext_eip_adaptor_stop"),
    controlled<on_part<&services::eip_adaptor_status>>("qorin_cbox_ext_eip_adaptor_status"),
    controlled<on_part<&services::start_eip_scanner>>("qorin_cbox_ext_eip_scanner_start"),
    controlled<on_part<&services::stop_eip_scanner>>("qorin_cbox_ext_eip_scanner_stop"),
    controlled<on_part<&services::eip_scanner_status>>("qorin_cbox_ext_eip_scanner_status"),
    controlled<on_part<&services::scanner_rx_data>>("qorin_cbox_ext_eip_scanner_rx_data_get"),
    controlled<on_part<&services::scanner_tx_data>>("qorin_cbox_ext_eip_scanner_tx_data_get"),
    controlled<on_part<&services::set_scanner_tx_data>>("qorin_cbox_ext_eip_scanner_tx_data_set"),
    controlled<on_part<&services::start_rdm>>("qorin_cbox_ext_rdm_start"),
    controlled<on_part<&services::stop_rdm>>("qorin_cbox_ext_rdm_stop"),

    controlled<register_set<&registers::output_bits, number>>("qorin_cbox_ext_output_bit_register_set"),
    controlled<register_set<&registers::output_integers, number>>("qorin_cbox_ext_output_int_register_set"),
    controlled<register_set<&registers::output_reals, double>>("qorin_cbox_ext_output_float_register_set"),
    controlled<register_get<&registers::output_bits, number>>("qorin_cbox_ext_output_bit_register_get"),
    controlled<register_get<&registers::output_integers, number>>("qorin_cbox_ext_output_int_register_get"),
    controlled<register_get<&registers::output_reals, double>>("qorin_cbox_ext_output_float_register_get"),
    controlled<register_get<&registers::input_bits, number>>("qorin_cbox_ext_input_bit_register_get"),
    controlled<register_get<&registers::input_integers, number>>("qorin_cbox_ext_input_int_register_get"),
    controlled<register_get<&registers::input_reals, double>>("qorin_cbox_ext_input_float_register_get"),

    controlled<device_data_set<&cbox_state::set_io_link_tx_data>>("qorin_cbox_ecat_io_link_tx_data_set"),
    controlled<device_data_set<&cbox_state::set_wireless_port_tx_data>>("qorin_cbox_ecat_io_link_wp_tx_data_set"),
    controlled<device_data_set<&cbox_state::set_low_data_tx_data>>("qorin_cbox_ecat_low_data_io_tx_data_set"),
    controlled<device_bits_set<&cbox_state::set_io_link_control_bits>>("qorin_cbox_ecat_io_link_control_bit_set"),
    controlled<device_bits_set<&cbox_state::set_io_link_output_bits>>("qorin_cbox_ecat_io_link_output_bit_set"),
};
} // namespace

std::span<const command_row> fieldbus_commands()
{
    return rows;
}
} // namespace cbox_simulator
