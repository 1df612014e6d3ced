#include "simulator/links/link_acceptor.h"

#include <algorithm>
#include <chrono>
#include <system_error>
#include <utility>

namespace cbox_simulator
{
namespace asio = boost::asio;
using asio::ip::tcp;
using boost::system::error_code;

namespace
{
/// A box that refuses a link does so by not listening. Connections come by an address and port alone, so that during
/// this time it refuses everybody.
constexpr std::chrono::milliseconds refusal_time(1000);
} // namespace

link_acceptor::link_acceptor(asio::io_context& io, const session_environment& environment)
    : acceptor_(io), retry_timer_(io), environment_(environment)
{
}

tcp::endpoint link_acceptor::listen(const tcp::endpoint& endpoint)
{
    endpoint_ = endpoint;
    try
    {
        open();
        endpoint_ = acceptor_.local_endpoint();
        if (environment_.faults.take_refusal(command_link))
            refuse_for_a_while();
    }
    catch (const boost::system::system_error& error)
    {
        throw std::system_error(error.code().value(), std::system_category(),
                                fmt::format("cannot listen on {}:{}", endpoint.address().to_string(), endpoint.port()));
    }
    return endpoint_;
}

void link_acceptor::open()
{
    acceptor_.open(endpoint_.protocol());
    // The port of a box that ended a moment ago is free for the next one.
    acceptor_.set_option(tcp::acceptor::reuse_address(true));
    acceptor_.bind(endpoint_);
    acceptor_.listen();
    accept_next();
}

void link_acceptor::refuse_for_a_while()
{
    error_code ignored;
    acceptor_.close(ignored);
    retry_timer_.expires_after(refusal_time);
    retry_timer_.async_wait(
        [this](const error_code&)
        {
            if (!closed_)
                listen_again();
        });
}

void link_acceptor::listen_again()
{
    if (environment_.faults.take_refusal(command_link))
    {
        refuse_for_a_while();
        return;
    }
    try
    {
        open();
    }
    catch (const boost::system::system_error& error)
    {
        environment_.log.write(log_level::error, "cannot listen again: {}", error.code().message());
        refuse_for_a_while();
    }
}

void link_acceptor::close()
{
    closed_ = true;
    error_code ignored;
    acceptor_.close(ignored);
    retry_timer_.cancel();
    for_each_client([](client_session& client) { client.leave("is sent away, as the box ends"); });
    clients_.clear();
}

void link_acceptor::accept_next()
{
    acceptor_.async_accept(peer_,
                           [this](const error_code& error, tcp::socket link)
                           {
                               if (!acceptor_.is_open())
                                   return;
                               if (error)
                               {
                                   environment_.log.write(log_level::error, "cannot accept a link: {}",
                                                          error.message());
                                   accept_later();
                                   return;
                               }
                               admit(std::move(link));
                               if (acceptor_.is_open())
                                   accept_next();
                           });
}

void link_acceptor::accept_later()
{
    // Without a pause a machine that is out of descriptors would spin here and stall the other clients.
    retry_timer_.expires_after(std::chrono::milliseconds(100));
    retry_timer_.async_wait(
        [this](const error_code&)
        {
            if (acceptor_.is_open())
                accept_next();
        });
}

void link_acceptor::admit(tcp::socket link)
{
    auto client = whose_turn(peer_.address());
    if (!client)
    {
        client = std::make_shared<client_session>(++last_id_, peer_.address(), link.get_executor(), environment_);
        clients_.push_back(client);
    }
    client->add_link(std::move(link));
    if (!client->complete() && environment_.faults.take_refusal(client->next_link()))
    {
        environment_.log.write(log_level::info, "a link of {} is refused on request", peer_.address().to_string());
        refuse_for_a_while();
    }
}

std::shared_ptr<client_session> link_acceptor::whose_turn(const asio::ip::address& address)
{
    const auto found = std::find_if(
        clients_.begin(), clients_.end(),
        [&](const auto& client) { return !client->closed() && !client->complete() && client->address() == address; });
    if (found == clients_.end())
        return nullptr;
    // A client that gave up can start anew before the end of its old links is read here, above all when it had sent a
    // request: that waits for the third link, and nothing is read behind it.
    if ((*found)->abandoned())
    {
        (*found)->leave("left before its three links stood");
        return nullptr;
    }
    return *found;
}
} // namespace cbox_simulator
