#ifndef SIMULATOR_MODEL_FIELDBUS_SERVICES_H
#define SIMULATOR_MODEL_FIELDBUS_SERVICES_H

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>

#include "qorin/enumerations.h"
#include "qorin/result.h"
#include "simulator/model/block.h"
#include "simulator/model/possible_values.h"

namespace cbox_simulator
{
/**
 * The fieldbus services that run or do not: Modbus server, EtherNet/IP adaptor and scanner, RDM link.
 *
 * The simulated box opens no ports for them. Their partners are played: a service that runs is connected, and the
 * scanner's device sends what its rx data is set to. A service that runs already cannot be started:
 * QORIN_API_RESULT_EIP_REQUEST_FAIL for EtherNet/IP, also for a device model that is none, and
 * QORIN_API_RESULT_MODBUS_REQUEST_FAIL for the others. Stopping what does not run changes nothing.
 */
class fieldbus_services
{
public:
    using byte_block = block_of<std::uint8_t>;

    QORIN_API_RESULT start_modbus_server(std::string_view, std::uint16_t)
    {
        return start(modbus_server_runs_, QORIN_API_RESULT_MODBUS_REQUEST_FAIL);
    }

    QORIN_API_RESULT start_eip_adaptor(std::string_view, std::uint16_t)
    {
        return start(eip_adaptor_runs_, QORIN_API_RESULT_EIP_REQUEST_FAIL);
    }

    QORIN_API_RESULT start_eip_scanner(std::string_view, std::uint16_t, QORIN_EIP_IO_DEVICE_MODEL model)
    {
        return is_possible(model) ? start(eip_scanner_runs_, QORIN_API_RESULT_EIP_REQUEST_FAIL)
                                  : QORIN_API_RESULT_EIP_REQUEST_FAIL;
    }

    QORIN_API_RESULT start_rdm(std::string_view, std::uint16_t, std::string_view, std::uint16_t, std::uint32_t)
    {
        return start(rdm_runs_, QORIN_API_RESULT_MODBUS_REQUEST_FAIL);
    }

    QORIN_API_RESULT stop_modbus_server() { return stop(modbus_server_runs_); }
    QORIN_API_RESULT stop_eip_adaptor() { return stop(eip_adaptor_runs_); }
    QORIN_API_RESULT stop_eip_scanner() { return stop(eip_scanner_runs_); }
    QORIN_API_RESULT stop_rdm() { return stop(rdm_runs_); }

    QORIN_API_RESULT eip_adaptor_status(QORIN_LED_STATE& led) const { return tell(eip_adaptor_runs_, led); }
    QORIN_API_RESULT eip_scanner_status(QORIN_LED_STATE& led) const { return tell(eip_scanner_runs_, led); }

    /// The first `size` bytes change, whether the scanner runs or not; more than there are is
    /// QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE. Of `size` bytes, the first four are told.
    QORIN_API_RESULT set_scanner_tx_data(std::uint32_t size, const byte_block& data)
    {
        return replace(scanner_tx_data_, size, data);
    }
    QORIN_API_RESULT set_scanner_rx_data(std::uint32_t size, const byte_block& data)
    {
        return replace(scanner_rx_data_, size, data);
    }
    QORIN_API_RESULT scanner_tx_data(std::uint32_t size, std::uint32_t& first_bytes) const
    {
        return tell(scanner_tx_data_, size, first_bytes);
    }
    QORIN_API_RESULT scanner_rx_data(std::uint32_t size, std::uint32_t& first_bytes) const
    {
        return tell(scanner_rx_data_, size, first_bytes);
    }

    [[nodiscard]] const byte_block& scanner_tx_bytes() const { return scanner_tx_data_; }
    [[nodiscard]] const byte_block& scanner_rx_bytes() const { return scanner_rx_data_; }

private:
    static QORIN_API_RESULT start(bool& runs, QORIN_API_RESULT refusal)
    {
        if (runs)
            return refusal;
        runs = true;
        return QORIN_API_RESULT_OK;
    }

    static QORIN_API_RESULT stop(bool& runs)
    {
        runs = false;
        return QORIN_API_RESULT_OK;
    }

    static QORIN_API_RESULT tell(bool runs, QORIN_LED_STATE& led)
    {
        led = runs ? QORIN_LEDSTATE_STEADY_GREEN : QORIN_LEDSTATE_OFF;
        return QORIN_API_RESULT_OK;
    }

    static QORIN_API_RESULT replace(byte_block& bytes, std::uint32_t size, const byte_block& data)
    {
        if (size > bytes.size())
            return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
        std::copy_n(data.begin(), size, bytes.begin());
        return QORIN_API_RESULT_OK;
    }

    static QORIN_API_RESULT tell(const byte_block& bytes, std::uint32_t size, std::uint32_t& first_bytes)
    {
        if (size > bytes.size())
            return QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE;
        std::memcpy(&first_bytes, bytes.data(), std::min<std::size_t>(size, sizeof first_bytes));
        return QORIN_API_RESULT_OK;
    }

    bool modbus_server_runs_ = false;
    bool eip_adaptor_runs_ = false;
    bool eip_scanner_runs_ = false;
    bool rdm_runs_ = false;
    byte_block scanner_tx_data_{};
    byte_block scanner_rx_data_{};
};
} // namespace cbox_simulator

#endif
