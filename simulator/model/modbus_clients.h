#ifndef SIMULATOR_MODEL_MODBUS_CLIENTS_H
#define SIMULATOR_MODEL_MODBUS_CLIENTS_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "qorin/enumerations.h"
#include "qorin/result.h"
#include "simulator/model/modbus_image.h"

namespace cbox_simulator
{
/**
 * The Modbus clients of the box and their I/O points, each by a name of its own.
 *
 * The devices behind them are played: a device is there as soon as its client is, outputs keep what they are set to
 * and inputs are 0. A client takes its I/O points with it.
 *
 * Refusals: QORIN_API_RESULT_MODBUS_CLIENT_NAME_ERROR for a client that is not there or has no name,
 * _CLIENT_IO_NAME_ERROR likewise for an I/O point; _CLIENT_ADD_FAIL and _CLIENT_IO_ADD_FAIL for a name that is in use
 * or one too many; QORIN_API_RESULT_MODBUS_INPUT_ERROR for a number that is no member of its enumeration and for
 * addresses that are none.
 */
class modbus_clients
{
public:
    static constexpr std::size_t most_clients = 16;
    static constexpr std::size_t most_io_points = 256;

    /// Texts and numbers tell the device, which is played whatever they are.
    QORIN_API_RESULT create_client(std::string_view name, std::string_view text_1, std::uint16_t number_1,
                                   std::string_view text_2, std::uint16_t number_2);
    QORIN_API_RESULT destroy_client(std::string_view name);
    QORIN_API_RESULT client_status(std::string_view name, QORIN_MODBUS_CLIENT_STATUS& status) const;
    QORIN_API_RESULT set_sequential_mode(std::string_view name, QORIN_SWITCH value);
    QORIN_API_RESULT sequential_mode(std::string_view name, QORIN_SWITCH& value) const;

    QORIN_API_RESULT create_io(std::string_view name, QORIN_MODBUS_CLIENT_IO_TYPE type, std::uint32_t address,
                               std::uint32_t count, std::string_view client_name);
    QORIN_API_RESULT destroy_io(std::string_view name);
    QORIN_API_RESULT start_io(std::string_view name, QORIN_MODBUS_CLIENT_IO_UPDATE_HZ rate);
    QORIN_API_RESULT stop_io(std::string_view name);
    QORIN_API_RESULT io_type(std::string_view name, QORIN_MODBUS_CLIENT_IO_TYPE& type) const;
    /// A point that is not started is not connected.
    QORIN_API_RESULT io_status(std::string_view name, QORIN_MODBUS_CLIENT_IO_STATUS& status) const;
    /// Updates a second too, 0 while it is not started.
    QORIN_API_RESULT io_status_and_rate(std::string_view name, QORIN_MODBUS_CLIENT_IO_STATUS& status,
                                        double& rate) const;

    /**
     * The bits (std::uint8_t) or registers (std::uint16_t) of a point from a device's address on: the first four bytes
     * are read, and all up to the point's end are set, as far as a block reaches.
     *
     * Bits of registers and the reverse are QORIN_API_RESULT_MODBUS_CLIENT_EXCEPTION_ILLEGAL_FUNC_TYPE, an address
     * outside of the point is _ILLEGAL_DATA_ADDRESS, setting an input is _ILLEGAL_CMD.
     */
    template <class Element>
    QORIN_API_RESULT get_values(std::string_view name, std::uint32_t address, std::uint32_t& first_bytes) const;
    template <class Element>
    QORIN_API_RESULT set_values(std::string_view name, std::uint32_t address, const block_of<Element>& values);

private:
    template <class Value>
    using by_name = std::map<std::string, Value, std::less<>>;

    struct client
    {
        QORIN_SWITCH sequential_mode = QORIN_SWITCH_OFF;
    };

    struct io_point
    {
        std::string client;
        QORIN_MODBUS_CLIENT_IO_TYPE type;
        std::uint32_t first_address;
        std::variant<modbus_image<std::uint8_t>, modbus_image<std::uint16_t>> image;
        std::optional<double> rate; ///< Hertz, while it is started.
    };

    /// Uses what has the name; tells `unknown` when nothing has.
    template <class Map, class Use>
    static QORIN_API_RESULT with(Map& map, std::string_view name, QORIN_API_RESULT unknown, Use use);

    by_name<client> clients_;
    by_name<io_point> io_points_;
};
} // namespace cbox_simulator

#endif
