#include "simulator/model/modbus_clients.h"

#include <array>

#include "simulator/model/possible_values.h"

namespace cbox_simulator
{
namespace
{
constexpr auto unknown_client = QORIN_API_RESULT_MODBUS_CLIENT_NAME_ERROR;
constexpr auto unknown_io = QORIN_API_RESULT_MODBUS_CLIENT_IO_NAME_ERROR;

bool is_input(QORIN_MODBUS_CLIENT_IO_TYPE type)
{
    return type == QORIN_MODBUS_CLIENT_IO_TYPE_DIGITAL_INPUT || type == QORIN_MODBUS_CLIENT_IO_TYPE_REGISTER_INPUT;
}

bool is_digital(QORIN_MODBUS_CLIENT_IO_TYPE type)
{
    return type == QORIN_MODBUS_CLIENT_IO_TYPE_DIGITAL_INPUT || type == QORIN_MODBUS_CLIENT_IO_TYPE_DIGITAL_OUTPUT;
}

/// The rate that a member of the enumeration names.
double hertz(QORIN_MODBUS_CLIENT_IO_UPDATE_HZ rate)
{
    constexpr std::array<double, 8> rates{0, 1, 2, 5, 10, 20, 50, 100};
    return rates[static_cast<std::size_t>(rate) - QORIN_MODBUS_CLIENT_IO_UPDATE_HZ_0];
}
} // namespace

template <class Map, class Use>
QORIN_API_RESULT modbus_clients::with(Map& map, std::string_view name, QORIN_API_RESULT unknown, Use use)
{
    const auto found = map.find(name);
    return found == map.end() ? unknown : use(found->second);
}

QORIN_API_RESULT modbus_clients::create_client(std::string_view name, std::string_view, std::uint16_t, std::string_view,
                                               std::uint16_t)
{
    if (name.empty())
        return unknown_client;
    if (clients_.size() == most_clients || clients_.contains(name))
        return QORIN_API_RESULT_MODBUS_CLIENT_ADD_FAIL;
    clients_.emplace(name, client{});
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT modbus_clients::destroy_client(std::string_view name)
{
    const auto found = clients_.find(name);
    if (found == clients_.end())
        return unknown_client;
    std::erase_if(io_points_, [&](const auto& point) { return point.second.client == name; });
    clients_.erase(found);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT modbus_clients::client_status(std::string_view name, QORIN_MODBUS_CLIENT_STATUS& status) const
{
    return with(clients_, name, unknown_client,
                [&](const client&)
                {
                    status = QORIN_MODBUS_CLIENT_STATUS_NORMAL;
                    return QORIN_API_RESULT_OK;
                });
}

QORIN_API_RESULT modbus_clients::set_sequential_mode(std::string_view name, QORIN_SWITCH value)
{
    return with(clients_, name, unknown_client,
                [&](client& found)
                {
                    if (!is_possible(value))
                        return QORIN_API_RESULT_MODBUS_INPUT_ERROR;
                    found.sequential_mode = value;
                    return QORIN_API_RESULT_OK;
                });
}

QORIN_API_RESULT modbus_clients::sequential_mode(std::string_view name, QORIN_SWITCH& value) const
{
    return with(clients_, name, unknown_client,
                [&](const client& found)
                {
                    value = found.sequential_mode;
                    return QORIN_API_RESULT_OK;
                });
}

QORIN_API_RESULT modbus_clients::create_io(std::string_view name, QORIN_MODBUS_CLIENT_IO_TYPE type,
                                           std::uint32_t address, std::uint32_t count, std::string_view client_name)
{
    if (!clients_.contains(client_name))
        return unknown_client;
    if (name.empty())
        return unknown_io;
    if (!is_possible(type) || count == 0 || address >= modbus_address_count || count > modbus_address_count - address)
        return QORIN_API_RESULT_MODBUS_INPUT_ERROR;
    if (io_points_.size() == most_io_points || io_points_.contains(name))
        return QORIN_API_RESULT_MODBUS_CLIENT_IO_ADD_FAIL;
    io_point point{std::string(client_name), type, address, modbus_image<std::uint8_t>(0), {}};
    if (is_digital(type))
        point.image = modbus_image<std::uint8_t>(count);
    else
        point.image = modbus_image<std::uint16_t>(count);
    io_points_.emplace(name, std::move(point));
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT modbus_clients::destroy_io(std::string_view name)
{
    const auto found = io_points_.find(name);
    if (found == io_points_.end())
        return unknown_io;
    io_points_.erase(found);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT modbus_clients::start_io(std::string_view name, QORIN_MODBUS_CLIENT_IO_UPDATE_HZ rate)
{
    return with(io_points_, name, unknown_io,
                [&](io_point& point)
                {
                    if (!is_possible(rate))
                        return QORIN_API_RESULT_MODBUS_INPUT_ERROR;
                    point.rate = hertz(rate);
                    return QORIN_API_RESULT_OK;
                });
}

QORIN_API_RESULT modbus_clients::stop_io(std::string_view name)
{
    return with(io_points_, name, unknown_io,
                [](io_point& point)
                {
                    point.rate.reset();
                    return QORIN_API_RESULT_OK;
                });
}

QORIN_API_RESULT modbus_clients::io_type(std::string_view name, QORIN_MODBUS_CLIENT_IO_TYPE& type) const
{
    return with(io_points_, name, unknown_io,
                [&](const io_point& point)
                {
                    type = point.type;
                    return QORIN_API_RESULT_OK;
                });
}

QORIN_API_RESULT modbus_clients::io_status(std::string_view name, QORIN_MODBUS_CLIENT_IO_STATUS& status) const
{
    double rate = 0;
    return io_status_and_rate(name, status, rate);
}

QORIN_API_RESULT modbus_clients::io_status_and_rate(std::string_view name, QORIN_MODBUS_CLIENT_IO_STATUS& status,
                                                    double& rate) const
{
    return with(io_points_, name, unknown_io,
                [&](const io_point& point)
                {
                    status =
                        point.rate ? QORIN_MODBUS_CLIENT_IO_STATUS_NORMAL : QORIN_MODBUS_CLIENT_IO_STATUS_NOT_CONNECT;
                    rate = point.rate.value_or(0);
                    return QORIN_API_RESULT_OK;
                });
}

template <class Element>
QORIN_API_RESULT modbus_clients::get_values(std::string_view name, std::uint32_t address,
                                            std::uint32_t& first_bytes) const
{
    return with(io_points_, name, unknown_io,
                [&](const io_point& point)
                {
                    const auto* image = std::get_if<modbus_image<Element>>(&point.image);
                    if (!image)
                        return QORIN_API_RESULT_MODBUS_CLIENT_EXCEPTION_ILLEGAL_FUNC_TYPE;
                    const auto index = address - point.first_address; // wraps to a large one below the first
                    if (!image->holds(index, 1))
                        return QORIN_API_RESULT_MODBUS_CLIENT_EXCEPTION_ILLEGAL_DATA_ADDRESS;
                    first_bytes = image->first_bytes(index, image->count_from(index));
                    return QORIN_API_RESULT_OK;
                });
}

template <class Element>
QORIN_API_RESULT modbus_clients::set_values(std::string_view name, std::uint32_t address,
                                            const block_of<Element>& values)
{
    return with(io_points_, name, unknown_io,
                [&](io_point& point)
                {
                    auto* image = std::get_if<modbus_image<Element>>(&point.image);
                    if (!image)
                        return QORIN_API_RESULT_MODBUS_CLIENT_EXCEPTION_ILLEGAL_FUNC_TYPE;
                    if (is_input(point.type))
                        return QORIN_API_RESULT_MODBUS_CLIENT_EXCEPTION_ILLEGAL_CMD;
                    const auto index = address - point.first_address;
                    if (!image->holds(index, 1))
                        return QORIN_API_RESULT_MODBUS_CLIENT_EXCEPTION_ILLEGAL_DATA_ADDRESS;
                    image->write(index, image->count_from(index), values);
                    return QORIN_API_RESULT_OK;
                });
}

template QORIN_API_RESULT modbus_clients::get_values<std::uint8_t>(std::string_view, std::uint32_t,
                                                                   std::uint32_t&) const;
template QORIN_API_RESULT modbus_clients::get_values<std::uint16_t>(std::string_view, std::uint32_t,
                                                                    std::uint32_t&) const;
template QORIN_API_RESULT modbus_clients::set_values<std::uint8_t>(std::string_view, std::uint32_t,
                                                                   const block_of<std::uint8_t>&);
template QORIN_API_RESULT modbus_clients::set_values<std::uint16_t>(std::string_view, std::uint32_t,
                                                                    const block_of<std::uint16_t>&);
} // namespace cbox_simulator
