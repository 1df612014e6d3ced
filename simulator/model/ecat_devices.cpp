#include "simulator/model/ecat_devices.h"

#include <algorithm>

namespace cbox_simulator
{
namespace
{
QORIN_API_RESULT replace_start(std::span<unsigned char> field, ecat_devices::bytes data)
{
    if (data.size() > field.size())
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    std::copy(data.begin(), data.end(), field.begin());
    return QORIN_API_RESULT_OK;
}
} // namespace

QORIN_API_RESULT ecat_devices::set_io_link_input_bits(std::uint32_t device, std::uint16_t bits)
{
    return set_io_link_bits(&io_link_master::input_bits, device, bits);
}

QORIN_API_RESULT ecat_devices::set_io_link_status_bits(std::uint32_t device, std::uint16_t bits)
{
    return set_io_link_bits(&io_link_master::status_bits, device, bits);
}

QORIN_API_RESULT ecat_devices::set_io_link_output_bits(std::uint32_t device, std::uint16_t bits)
{
    return set_io_link_bits(&io_link_master::output_bits, device, bits);
}

QORIN_API_RESULT ecat_devices::set_io_link_control_bits(std::uint32_t device, std::uint16_t bits)
{
    return set_io_link_bits(&io_link_master::control_bits, device, bits);
}

QORIN_API_RESULT ecat_devices::set_io_link_rx_data(std::uint32_t device, bytes data)
{
    return device == 0 ? replace_start(io_link_.rx_data, data) : QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
}

QORIN_API_RESULT ecat_devices::set_io_link_tx_data(std::uint32_t device, bytes data)
{
    return device == 0 ? replace_start(io_link_.tx_data, data) : QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
}

QORIN_API_RESULT ecat_devices::set_wireless_port_status(std::uint32_t port, unsigned char status)
{
    if (port >= wireless_port_count)
        return QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER;
    wireless_ports_[port].status = status;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT ecat_devices::set_wireless_port_rx_data(std::uint32_t port, bytes data)
{
    if (port >= wireless_port_count)
        return QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER;
    return replace_start(wireless_ports_[port].rx_data, data);
}

QORIN_API_RESULT ecat_devices::set_wireless_port_tx_data(std::uint32_t port, bytes data)
{
    if (port >= wireless_port_count)
        return QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER;
    return replace_start(wireless_ports_[port].tx_data, data);
}

QORIN_API_RESULT ecat_devices::set_low_data_rx_data(std::uint32_t device, bytes data)
{
    if (device >= low_data_device_count)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    return replace_start(low_data_devices_[device].rx_data, data);
}

QORIN_API_RESULT ecat_devices::set_low_data_tx_data(std::uint32_t device, bytes data)
{
    if (device >= low_data_device_count)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    return replace_start(low_data_devices_[device].tx_data, data);
}

QORIN_API_RESULT ecat_devices::set_io_link_bits(std::uint16_t io_link_master::*word, std::uint32_t device,
                                                std::uint16_t bits)
{
    if (device != 0)
        return QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER;
    io_link_.*word = bits;
    return QORIN_API_RESULT_OK;
}
} // namespace cbox_simulator
