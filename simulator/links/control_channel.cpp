#include "simulator/links/control_channel.h"

#include <string>
#include <system_error>
#include <utility>

#include <boost/asio/buffer.hpp>
#include <boost/asio/read_until.hpp>
#include <boost/asio/write.hpp>

#include "simulator/scene/control_line.h"

namespace cbox_simulator
{
namespace asio = boost::asio;
using asio::ip::tcp;
using boost::system::error_code;

/// Keeps itself alive while it reads or writes, one after the other.
class control_channel::connection : public std::enable_shared_from_this<connection>
{
public:
    connection(tcp::socket socket, const session_environment& environment)
        : socket_(std::move(socket)), environment_(environment)
    {
    }

    void read_line()
    {
        asio::async_read_until(socket_, asio::dynamic_buffer(received_, longest_line + 1), '\n',
                               [self = shared_from_this()](const error_code& error, std::size_t size)
                               {
                                   if (error == asio::error::not_found)
                                       self->answer(fmt::format("error: a line has at most {} bytes", longest_line),
                                                    false);
                                   else if (!error)
                                       self->perform(size);
                               });
    }

    void answer(std::string text, bool goes_on)
    {
        answer_ = std::move(text) + "\n";
        asio::async_write(socket_, asio::buffer(answer_),
                          [self = shared_from_this(), goes_on](const error_code& error, std::size_t)
                          {
                              if (!error && goes_on)
                                  self->read_line();
                              else
                                  self->close();
                          });
    }

    void close()
    {
        error_code ignored;
        socket_.shutdown(tcp::socket::shutdown_both, ignored);
        socket_.close(ignored);
    }

private:
    void perform(std::size_t size)
    {
        const auto line = received_.substr(0, size - 1);
        received_.erase(0, size);
        environment_.catch_up();
        auto text = answer_control_line(environment_.model, line);
        environment_.deliver_events();
        environment_.log.write(log_level::debug, "control channel: {} -> {}", line, text);
        answer(std::move(text), true);
    }

    tcp::socket socket_;
    const session_environment& environment_;
    std::string received_;
    std::string answer_;
};

void control_channel::listen(const asio::ip::address_v4& box, std::uint16_t port)
{
    const tcp::endpoint endpoint(box.is_loopback() ? box : asio::ip::address_v4::loopback(), port);
    try
    {
        acceptor_.open(endpoint.protocol());
        acceptor_.set_option(tcp::acceptor::reuse_address(true));
        acceptor_.bind(endpoint);
        acceptor_.listen();
    }
    catch (const boost::system::system_error& error)
    {
        throw std::system_error(error.code().value(), std::system_category(),
                                fmt::format("cannot listen for the control channel on {}:{}",
                                            endpoint.address().to_string(), endpoint.port()));
    }
    accept_next();
}

void control_channel::close()
{
    error_code ignored;
    acceptor_.close(ignored);
    for (const auto& each : connections_)
        if (const auto open = each.lock())
            open->close();
    connections_.clear();
}

void control_channel::accept_next()
{
    acceptor_.async_accept(
        [this](const error_code& error, tcp::socket socket)
        {
            if (!acceptor_.is_open())
                return;
            if (error)
            {
                environment_.log.write(log_level::error, "the control channel ends: {}", error.message());
                return;
            }
            std::erase_if(connections_, [](const auto& each) { return each.expired(); });
            const auto made = std::make_shared<connection>(std::move(socket), environment_);
            if (connections_.size() < most_connections)
            {
                connections_.push_back(made);
                made->read_line();
            }
            else
                made->answer(fmt::format("error: there are {} connections already", most_connections), false);
            accept_next();
        });
}
} // namespace cbox_simulator
