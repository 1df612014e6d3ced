#ifndef SIMULATOR_LINKS_JOINT_CHASER_H
#define SIMULATOR_LINKS_JOINT_CHASER_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/udp.hpp>

#include "protocol/chaser_datagram.h"
#include "simulator/links/session_environment.h"

namespace cbox_simulator
{
/**
 * Takes the streams of joint targets, at a port for each robot, and hands them to the robots.
 *
 * Listens from the box's start, whether there are robots or not. What tells no robot anything is counted and otherwise
 * passed over: a sender is never answered. Lives on the io thread of the box that owns it, and must outlive the io
 * context's run.
 */
class joint_chaser
{
public:
    joint_chaser(boost::asio::io_context& io, const session_environment& environment);

    /// Throws std::system_error when a port is taken.
    void listen(const boost::asio::ip::address& address);

    void close();

private:
    /// The stream of one robot.
    struct robot_stream
    {
        boost::asio::ip::udp::socket socket;
        boost::asio::ip::udp::endpoint sender;
        std::array<std::byte, sizeof(protocol::chaser_datagram) + 1> buffer; ///< one more, to know what is too long
    };

    void receive_next(std::uint32_t robot_id);
    void take(std::uint32_t robot_id, std::span<const std::byte> bytes);
    [[nodiscard]] bool tell_robot(std::uint32_t robot_id, const protocol::chaser_datagram& datagram);

    std::array<robot_stream, robot_set::robot_limit> streams_;
    const session_environment& environment_;
};
} // namespace cbox_simulator

#endif
