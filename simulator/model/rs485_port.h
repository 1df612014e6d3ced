#ifndef SIMULATOR_MODEL_RS485_PORT_H
#define SIMULATOR_MODEL_RS485_PORT_H

#include <array>
#include <cstdint>
#include <map>
#include <span>
#include <utility>

#include "qorin/enumerations.h"
#include "qorin/result.h"
#include "simulator/model/block.h"

namespace cbox_simulator
{
/// The last two values go to the port as they are told.
struct rs485_setup
{
    QORIN_RS485_SERIAL_INTERFACE serial_interface = QORIN_RS485_SERIAL_INTERFACE_UNDEFINED;
    QORIN_RS485_BAUDRATE baudrate = QORIN_RS485_BAUDRATE_UNDEFINED;
    QORIN_RS485_DATA_FRAME data_frame = QORIN_RS485_DATA_FRAME_UNDEFINED;
    QORIN_RS485_PROTOCOL protocol = QORIN_RS485_PROTOCOL_UNDEFINED;
    QORIN_SWITCH setup_switch = QORIN_SWITCH_OFF;
    std::int32_t count = 0;
};

/// The words that drive the port, in the order of the commands: a request flips its word, a mode is 1 while it is on.
struct rs485_control
{
    std::uint32_t tx_request = 0;
    std::uint32_t rx_accepted = 0;
    std::uint32_t rx_init_request = 0;
    std::uint32_t tx_continuous = 0;
    std::uint32_t tx_scan_rate_request = 0;
    std::uint32_t rx_pause = 0;
};

/**
 * The RS485 port at the tool flange: one for the box, whichever robot it is told through.
 *
 * Nothing is wired to the simulated port, so that it receives what its rx data is set to and nothing else. For Modbus
 * RTU it plays a bus where every device keeps what is written to it: a read gives back what was written last with the
 * same device and address. What is no member of its enumeration is QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_VALUE, more
 * bytes than there is room for are QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE.
 */
class rs485_port
{
public:
    using byte_block = block_of<std::uint8_t>;

    static constexpr std::size_t data_size = 64;

    [[nodiscard]] const cbox_simulator::rs485_setup& rs485_setup() const { return setup_; }
    [[nodiscard]] const cbox_simulator::rs485_control& rs485_control() const { return control_; }
    [[nodiscard]] const std::array<unsigned char, data_size>& rs485_rx_data() const { return rx_data_; }
    [[nodiscard]] const std::array<unsigned char, data_size>& rs485_tx_data() const { return tx_data_; }

    QORIN_API_RESULT set_rs485(QORIN_RS485_SERIAL_INTERFACE serial_interface, QORIN_RS485_BAUDRATE baudrate,
                               QORIN_RS485_DATA_FRAME data_frame, QORIN_RS485_PROTOCOL protocol,
                               QORIN_SWITCH setup_switch, std::int32_t count);
    QORIN_API_RESULT perform_rs485_command(QORIN_RS485_CONTROL_CMD command);

    /// The first `size` bytes of the data change; the others stay.
    QORIN_API_RESULT set_rs485_tx_data(std::uint8_t size, const byte_block& data);
    QORIN_API_RESULT set_rs485_rx_data(std::span<const unsigned char> data);

    /// Function and register count are the bus's; `size` is the number of bytes.
    QORIN_API_RESULT write_modbus_rtu(std::uint8_t device, std::uint8_t function, std::uint16_t address,
                                      std::uint16_t count, std::uint8_t size, const byte_block& data);
    QORIN_API_RESULT read_modbus_rtu(std::uint8_t device, std::uint8_t function, std::uint16_t address,
                                     std::uint16_t count, std::uint8_t size, std::uint32_t& first_bytes) const;

private:
    cbox_simulator::rs485_setup setup_;
    cbox_simulator::rs485_control control_;
    std::array<unsigned char, data_size> rx_data_{};
    std::array<unsigned char, data_size> tx_data_{};
    std::map<std::pair<std::uint8_t, std::uint16_t>, byte_block> written_; ///< by device and address
};
} // namespace cbox_simulator

#endif
