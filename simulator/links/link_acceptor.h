#ifndef SIMULATOR_LINKS_LINK_ACCEPTOR_H
#define SIMULATOR_LINKS_LINK_ACCEPTOR_H

#include <memory>
#include <vector>

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/steady_timer.hpp>

#include "simulator/links/client_session.h"

namespace cbox_simulator
{
/**
 * Takes incoming links and finds the client that each belongs to.
 *
 * A link carries no mark: only the address that it comes from and the order of arrival tell. Per address at most one
 * client is incomplete, and the next link from there is its next one; three links make a client. Owns the clients.
 * Lives on the io thread of the box that owns it, and must outlive the io context's run.
 */
class link_acceptor
{
public:
    link_acceptor(boost::asio::io_context& io, const session_environment& environment);

    /// Throws std::system_error when the address is not this machine's or the port is taken. Returns what it bound.
    boost::asio::ip::tcp::endpoint listen(const boost::asio::ip::tcp::endpoint& endpoint);

    /// Takes no more links and ends all clients.
    void close();

    /// Calls `visit(client_session&)` for each client that is not closed.
    template <class Visit>
    void for_each_client(Visit visit)
    {
        // A visit can end a client, so the list is only cleaned up ahead of the round.
        std::erase_if(clients_, [](const auto& client) { return client->closed(); });
        for (const auto& client : clients_)
            visit(*client);
    }

private:
    void open();
    void refuse_for_a_while();
    void listen_again();
    void accept_next();
    void accept_later();
    void admit(boost::asio::ip::tcp::socket link);
    [[nodiscard]] std::shared_ptr<client_session> whose_turn(const boost::asio::ip::address& address);

    boost::asio::ip::tcp::acceptor acceptor_;
    boost::asio::ip::tcp::endpoint endpoint_;
    bool closed_ = false;
    boost::asio::steady_timer retry_timer_;
    boost::asio::ip::tcp::endpoint peer_; ///< of the link being accepted
    const session_environment& environment_;
    std::vector<std::shared_ptr<client_session>> clients_;
    client_id last_id_ = 0;
};
} // namespace cbox_simulator

#endif
