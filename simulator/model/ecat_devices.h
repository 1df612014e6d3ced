#ifndef SIMULATOR_MODEL_ECAT_DEVICES_H
#define SIMULATOR_MODEL_ECAT_DEVICES_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "protocol/limits.h"
#include "qorin/result.h"

namespace cbox_simulator
{
/// The one IO-Link master of the box.
struct io_link_master
{
    std::uint16_t input_bits = 0;
    std::uint16_t status_bits = 0;
    std::uint16_t output_bits = 0;
    std::uint16_t control_bits = 0;
    std::array<unsigned char, 64> rx_data{};
    std::array<unsigned char, 64> tx_data{};
};

/// A wireless port of the IO-Link master.
struct io_link_wireless_port
{
    unsigned char status = 0;
    std::array<unsigned char, 32> rx_data{};
    std::array<unsigned char, 32> tx_data{};
};

/// An EtherCAT device that exchanges few bytes.
struct low_data_device
{
    std::array<unsigned char, 32> rx_data{};
    std::array<unsigned char, 32> tx_data{};
};

/**
 * Devices of others on the box's EtherCAT network: bytes in (rx) and bytes out (tx).
 *
 * The number of the device is judged first: QORIN_API_RESULT_ERROR_IO_LINK_INVALID_WP_NUMBER for a wireless port,
 * QORIN_API_RESULT_ERROR_INVALID_DEVICE_ID_NUMBER for all others. Data can be shorter than the device's, and then
 * changes its first bytes only; longer data is QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE and changes nothing.
 */
class ecat_devices
{
public:
    using bytes = std::span<const unsigned char>;

    static constexpr std::size_t wireless_port_count = protocol::io_link_port_limit;
    static constexpr std::size_t low_data_device_count = protocol::low_data_device_limit;

    [[nodiscard]] const io_link_master& io_link() const { return io_link_; }
    [[nodiscard]] const auto& wireless_ports() const { return wireless_ports_; }
    [[nodiscard]] const auto& low_data_devices() const { return low_data_devices_; }

    QORIN_API_RESULT set_io_link_input_bits(std::uint32_t device, std::uint16_t bits);
    QORIN_API_RESULT set_io_link_status_bits(std::uint32_t device, std::uint16_t bits);
    QORIN_API_RESULT set_io_link_output_bits(std::uint32_t device, std::uint16_t bits);
    QORIN_API_RESULT set_io_link_control_bits(std::uint32_t device, std::uint16_t bits);
    QORIN_API_RESULT set_io_link_rx_data(std::uint32_t device, bytes data);
    QORIN_API_RESULT set_io_link_tx_data(std::uint32_t device, bytes data);

    QORIN_API_RESULT set_wireless_port_status(std::uint32_t port, unsigned char status);
    QORIN_API_RESULT set_wireless_port_rx_data(std::uint32_t port, bytes data);
    QORIN_API_RESULT set_wireless_port_tx_data(std::uint32_t port, bytes data);

    QORIN_API_RESULT set_low_data_rx_data(std::uint32_t device, bytes data);
    QORIN_API_RESULT set_low_data_tx_data(std::uint32_t device, bytes data);

private:
    QORIN_API_RESULT set_io_link_bits(std::uint16_t io_link_master::*word, std::uint32_t device, std::uint16_t bits);

    io_link_master io_link_;
    std::array<io_link_wireless_port, wireless_port_count> wireless_ports_;
    std::array<low_data_device, low_data_device_count> low_data_devices_;
};
} // namespace cbox_simulator

#endif
