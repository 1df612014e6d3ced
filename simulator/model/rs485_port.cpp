#include "simulator/model/rs485_port.h"

#include <algorithm>
#include <cstring>

#include "simulator/model/possible_values.h"

namespace cbox_simulator
{
QORIN_API_RESULT rs485_port::set_rs485(QORIN_RS485_SERIAL_INTERFACE serial_interface, QORIN_RS485_BAUDRATE baudrate,
                                       QORIN_RS485_DATA_FRAME data_frame, QORIN_RS485_PROTOCOL protocol,
                                       QORIN_SWITCH setup_switch, std::int32_t count)
{
    if (!is_possible(serial_interface) || !is_possible(baudrate) || !is_possible(data_frame) ||
        !is_possible(protocol) || !is_possible(setup_switch))
        return QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_VALUE;
    setup_ = {serial_interface, baudrate, data_frame, protocol, setup_switch, count};
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT rs485_port::perform_rs485_command(QORIN_RS485_CONTROL_CMD command)
{
    switch (command)
    {
    case QORIN_RS485_CMD_TX_REQUEST:
        control_.tx_request ^= 1;
        return QORIN_API_RESULT_OK;
    case QORIN_RS485_CMD_RX_ACCEPTED:
        control_.rx_accepted ^= 1;
        return QORIN_API_RESULT_OK;
    case QORIN_RS485_CMD_RX_INIT_REQUEST:
        control_.rx_init_request ^= 1;
        rx_data_.fill(0);
        return QORIN_API_RESULT_OK;
    case QORIN_RS485_CMD_TX_CONTINUOUS_ON:
    case QORIN_RS485_CMD_TX_CONTINUOUS_OFF:
        control_.tx_continuous = command == QORIN_RS485_CMD_TX_CONTINUOUS_ON;
        return QORIN_API_RESULT_OK;
    case QORIN_RS485_CMD_TX_SCAN_RATE_REQUEST_ON:
    case QORIN_RS485_CMD_TX_SCAN_RATE_REQUEST_OFF:
        control_.tx_scan_rate_request = command == QORIN_RS485_CMD_TX_SCAN_RATE_REQUEST_ON;
        return QORIN_API_RESULT_OK;
    case QORIN_RS485_CMD_RX_PAUSE_ON:
    case QORIN_RS485_CMD_RX_PAUSE_OFF:
        control_.rx_pause = command == QORIN_RS485_CMD_RX_PAUSE_ON;
        return QORIN_API_RESULT_OK;
    default:
        return QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_VALUE;
    }
}

QORIN_API_RESULT rs485_port::set_rs485_tx_data(std::uint8_t size, const byte_block& data)
{
    if (size > data_size)
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    std::copy_n(data.begin(), size, tx_data_.begin());
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT rs485_port::set_rs485_rx_data(std::span<const unsigned char> data)
{
    if (data.size() > data_size)
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    std::copy(data.begin(), data.end(), rx_data_.begin());
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT rs485_port::write_modbus_rtu(std::uint8_t device, std::uint8_t, std::uint16_t address, std::uint16_t,
                                              std::uint8_t size, const byte_block& data)
{
    if (size > data.size())
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    std::copy_n(data.begin(), size, written_[{device, address}].begin());
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT rs485_port::read_modbus_rtu(std::uint8_t device, std::uint8_t, std::uint16_t address, std::uint16_t,
                                             std::uint8_t size, std::uint32_t& first_bytes) const
{
    if (size > sizeof(byte_block))
        return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
    const auto found = written_.find({device, address});
    if (found != written_.end())
        std::memcpy(&first_bytes, found->second.data(), std::min<std::size_t>(size, sizeof first_bytes));
    return QORIN_API_RESULT_OK;
}
} // namespace cbox_simulator
