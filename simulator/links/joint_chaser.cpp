#include "simulator/links/joint_chaser.h"

#include <cstring>
#include <system_error>

#include <boost/asio/buffer.hpp>

namespace cbox_simulator
{
namespace asio = boost::asio;
using asio::ip::udp;
using boost::system::error_code;
using protocol::chaser_datagram;

joint_chaser::joint_chaser(asio::io_context& io, const session_environment& environment)
    : streams_{robot_stream{udp::socket(io), {}, {}}, robot_stream{udp::socket(io), {}, {}}}, environment_(environment)
{
}

void joint_chaser::listen(const asio::ip::address& address)
{
    for (std::uint32_t id = 0; id < streams_.size(); ++id)
    {
        const udp::endpoint endpoint(address, static_cast<std::uint16_t>(protocol::chaser_base_port + id));
        try
        {
            streams_[id].socket.open(endpoint.protocol());
            streams_[id].socket.bind(endpoint);
        }
        catch (const boost::system::system_error& error)
        {
            throw std::system_error(error.code().value(), std::system_category(),
                                    fmt::format("cannot listen on {}:{} (UDP)", address.to_string(), endpoint.port()));
        }
        receive_next(id);
    }
}

void joint_chaser::close()
{
    error_code ignored;
    for (auto& each : streams_)
        each.socket.close(ignored);
}

void joint_chaser::receive_next(std::uint32_t robot_id)
{
    auto& port = streams_[robot_id];
    port.socket.async_receive_from(asio::buffer(port.buffer), port.sender,
                                   [this, robot_id](const error_code& error, std::size_t size)
                                   {
                                       if (!streams_[robot_id].socket.is_open())
                                           return;
                                       if (!error)
                                           take(robot_id, std::span(streams_[robot_id].buffer).first(size));
                                       receive_next(robot_id);
                                   });
}

void joint_chaser::take(std::uint32_t robot_id, std::span<const std::byte> bytes)
{
    environment_.catch_up();
    chaser_datagram datagram{};
    if (bytes.size() == sizeof datagram)
        std::memcpy(&datagram, bytes.data(), sizeof datagram);
    if (tell_robot(robot_id, datagram))
    {
        ++environment_.counters.chaser_taken;
        return;
    }
    ++environment_.counters.chaser_ignored;
    environment_.log.write(log_level::debug, "ignored a joint chaser datagram of {} bytes for robot {}, command {}",
                           bytes.size(), robot_id, std::uint64_t{datagram.command});
}

bool joint_chaser::tell_robot(std::uint32_t robot_id, const chaser_datagram& datagram)
{
    switch (datagram.command)
    {
    case protocol::chaser_move:
    {
        robot_state::joint_array targets;
        std::memcpy(targets.data(), datagram.joints, sizeof datagram.joints);
        return environment_.model.chase(robot_id, targets);
    }
    case protocol::chaser_stop:
    {
        auto* robot = environment_.model.robots().find(robot_id);
        return robot && environment_.model.motion_of(*robot).stop_chasing();
    }
    default:
        return false;
    }
}
} // namespace cbox_simulator
