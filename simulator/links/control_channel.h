#ifndef SIMULATOR_LINKS_CONTROL_CHANNEL_H
#define SIMULATOR_LINKS_CONTROL_CHANNEL_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>

#include "simulator/links/session_environment.h"

namespace cbox_simulator
{
/**
 * The way to the world outside the box for programs that are no clients of it: lines of text over TCP, each of which is
 * answered with one line, in their order.
 *
 * Nobody is asked who he is, so that it listens on loopback addresses only. A connection with a line that is too long
 * is closed after its answer, as is one too many. Lives on the io thread of the box that owns it, and must outlive the
 * io context's run.
 */
class control_channel
{
public:
    static constexpr std::size_t longest_line = 1024; ///< Bytes, its end aside.
    static constexpr std::size_t most_connections = 8;

    control_channel(boost::asio::io_context& io, const session_environment& environment)
        : acceptor_(io), environment_(environment)
    {
    }

    /// On the port of the box's address, or of 127.0.0.1 when that is no loopback address. Throws std::system_error
    /// when the port is taken.
    void listen(const boost::asio::ip::address_v4& box, std::uint16_t port);
    void close();

private:
    class connection;

    void accept_next();

    boost::asio::ip::tcp::acceptor acceptor_;
    const session_environment& environment_;
    std::vector<std::weak_ptr<connection>> connections_;
};
} // namespace cbox_simulator

#endif
