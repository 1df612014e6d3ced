#include "simulator/links/client_session.h"

#include <algorithm>
#include <utility>

#include <boost/asio/post.hpp>
#include <boost/asio/read.hpp>
#include <netinet/tcp.h>
#include <poll.h>

#include "protocol/status_frame.h"
#include "simulator/printable.h"

namespace cbox_simulator
{
namespace asio = boost::asio;
using boost::system::error_code;

namespace
{
// Enough for the burst of a fault that every module reports; a client that lags further has stopped listening.
constexpr std::size_t most_pending_events = 256;

// A client that reads slowly shall not find seconds of old frames on its way.
constexpr int data_link_buffer_bytes = 4 * sizeof(protocol::shared_data_t);

// Events wait behind the frames that show what they tell of, unless the client does not read its frames.
constexpr std::chrono::milliseconds longest_wait_for_frames(50);

// From the first link to the third a client needs a third of a second.
constexpr std::chrono::seconds longest_pairing(2);

// Finds out within about ten seconds that a client's machine is gone, which no link would tell by itself.
constexpr int keep_alive_idle_seconds = 5;
constexpr int keep_alive_interval_seconds = 2;
constexpr int keep_alive_probes = 3;

void prepare(asio::ip::tcp::socket& link)
{
    using keep_alive_idle = asio::detail::socket_option::integer<IPPROTO_TCP, TCP_KEEPIDLE>;
    using keep_alive_interval = asio::detail::socket_option::integer<IPPROTO_TCP, TCP_KEEPINTVL>;
    using keep_alive_count = asio::detail::socket_option::integer<IPPROTO_TCP, TCP_KEEPCNT>;

    // A peer that is already gone fails some of these; the first read tells that in the usual way.
    error_code ignored;
    link.non_blocking(true, ignored);
    link.set_option(asio::ip::tcp::no_delay(true), ignored);
    link.set_option(asio::socket_base::keep_alive(true), ignored);
    link.set_option(keep_alive_idle(keep_alive_idle_seconds), ignored);
    link.set_option(keep_alive_interval(keep_alive_interval_seconds), ignored);
    link.set_option(keep_alive_count(keep_alive_probes), ignored);
}

template <class Record>
std::span<const std::byte> bytes_of(const Record& record)
{
    return {reinterpret_cast<const std::byte*>(&record), sizeof record};
}
} // namespace

client_session::client_session(client_id id, asio::ip::address address, const asio::any_io_executor& executor,
                               const session_environment& environment)
    : id_(id), address_(std::move(address)), environment_(environment), pairing_timer_(executor),
      reply_timer_(executor), event_timer_(executor)
{
    links_.reserve(link_count); // operations hold references to the sockets
}

void client_session::add_link(asio::ip::tcp::socket link)
{
    prepare(link);
    const auto index = next_link();
    links_.push_back(std::move(link));
    if (index == command_link)
    {
        wait_for_links();
        read_request();
        return;
    }
    if (index == data_link)
    {
        error_code ignored;
        links_[data_link].set_option(asio::socket_base::send_buffer_size(data_link_buffer_bytes), ignored);
    }
    watch_for_close(index);
    if (complete())
    {
        pairing_timer_.cancel();
        ++environment_.counters.clients_accepted;
        ++environment_.counters.clients_connected;
        environment_.log.write(log_level::info, "client {} connected from {}", id_, address_.to_string());
        if (request_waits_)
            serve_request();
    }
}

bool client_session::abandoned()
{
    for (auto& link : links_)
    {
        pollfd state{link.native_handle(), POLLRDHUP, 0};
        if (::poll(&state, 1, 0) > 0)
            return true;
    }
    return false;
}

void client_session::leave(std::string_view reason)
{
    if (closed_)
        return;
    closed_ = true;
    pairing_timer_.cancel();
    reply_timer_.cancel();
    event_timer_.cancel();
    for (auto& link : links_)
    {
        error_code ignored;
        link.close(ignored);
    }
    if (complete())
        --environment_.counters.clients_connected;
    if (environment_.model.forget_client(id_))
    {
        environment_.log.write(log_level::info, "control released, as client {} leaves", id_);
        // Later, since a push of events can be what found the client gone.
        asio::post(links_[command_link].get_executor(),
                   [self = shared_from_this()] { self->environment_.deliver_events(); });
    }
    environment_.log.write(log_level::info, "client {} from {} {}", id_, address_.to_string(), reason);
}

void client_session::wait_for_links()
{
    pairing_timer_.expires_after(longest_pairing);
    pairing_timer_.async_wait(
        [self = shared_from_this()](const error_code&)
        {
            if (!self->complete())
                self->leave("is dropped, as its three links did not come in time");
        });
}

void client_session::read_request()
{
    asio::async_read(links_[command_link], asio::buffer(&request_, sizeof request_),
                     [self = shared_from_this()](const error_code& error, std::size_t received)
                     {
                         if (self->closed_)
                             return;
                         if (error)
                         {
                             self->leave(received > 0       ? "left in the middle of a request"
                                         : self->complete() ? "left"
                                                            : "left before its three links stood");
                             return;
                         }
                         if (!self->complete())
                         {
                             self->request_waits_ = true;
                             return;
                         }
                         self->serve_request();
                     });
}

void client_session::serve_request()
{
    environment_.catch_up();
    if (closed_) // a due frame can find the client gone
        return;
    request_reader arguments(request_);
    reply_writer outputs(reply_);
    outputs.result(perform(arguments, outputs));
    ++environment_.counters.commands_served;
    environment_.deliver_events();
    const auto delay =
        std::max(environment_.model.take_reply_delay(), environment_.faults.delay_of(arguments.wire_name()));
    if (closed_)
        return;
    if (delay > delay.zero())
        reply_after(delay);
    else
        send_reply();
}

void client_session::reply_after(std::chrono::milliseconds delay)
{
    reply_timer_.expires_after(delay);
    reply_timer_.async_wait(
        [self = shared_from_this()](const error_code&)
        {
            if (!self->closed_)
                self->send_reply();
        });
}

void client_session::send_reply()
{
    const auto error = reply_output_.write(
        links_[command_link], bytes_of(reply_), environment_.faults.links[command_link],
        [self = shared_from_this()](const error_code& late_error) { self->reply_sent(late_error); });
    if (!reply_output_.busy())
        reply_sent(error);
}

QORIN_API_RESULT client_session::perform(request_reader& arguments, reply_writer& outputs)
{
    const auto name = arguments.wire_name();
    const auto* command = environment_.commands.find(name);
    if (command == nullptr)
    {
        environment_.log.write(log_level::warning, "client {} sent a command that this box does not support: {}", id_,
                               printable(name));
        return QORIN_API_RESULT_ERROR_NO_SUPPORT;
    }
    if (const auto answer = environment_.faults.answer_to(name))
    {
        environment_.log.write(log_level::debug, "client {} {}: {} on request", id_, name,
                               static_cast<unsigned int>(*answer));
        return *answer;
    }
    const auto owner_before = environment_.model.control_owner();
    const auto result = command->handler(environment_.model, id_, arguments, outputs);
    if (environment_.log.wants(log_level::debug))
        environment_.log.write(log_level::debug, "client {} {}({}): {}", id_, name,
                               argument_text(request_, command->arguments), static_cast<unsigned int>(result));
    report_control_change(owner_before);
    return result;
}

void client_session::report_control_change(const std::optional<client_id>& owner_before) const
{
    if (environment_.model.control_owner() == owner_before)
        return;
    const bool taken = environment_.model.holds_control(id_);
    environment_.log.write(log_level::info, "control {} by client {}", taken ? "taken" : "released", id_);
}

void client_session::reply_sent(const error_code& error)
{
    if (closed_)
        return;
    if (error)
    {
        leave("left without its reply");
        return;
    }
    if (environment_.model.exit_requested())
    {
        environment_.exit_requested();
        return;
    }
    read_request();
}

void client_session::watch_for_close(link_index link)
{
    links_[link].async_read_some(asio::buffer(ignored_input_),
                                 [self = shared_from_this(), link](const error_code& error, std::size_t)
                                 {
                                     if (self->closed_ || self->output_on(link).cut())
                                         return;
                                     if (error)
                                     {
                                         self->leave(self->complete() ? "left" : "left before its three links stood");
                                         return;
                                     }
                                     self->watch_for_close(link);
                                 });
}

const record_writer& client_session::output_on(link_index link) const
{
    return link == data_link ? frame_output_ : event_output_;
}

void client_session::send_frame(std::span<const std::byte> frame)
{
    if (closed_ || !complete())
        return;
    if (frame_output_.busy())
    {
        if (!newest_frame_.empty())
            ++environment_.counters.frames_skipped;
        newest_frame_.assign(frame.begin(), frame.end());
        return;
    }
    write_frame(frame);
}

void client_session::write_frame(std::span<const std::byte> frame)
{
    const auto error = frame_output_.write(links_[data_link], frame, environment_.faults.links[data_link],
                                           [self = shared_from_this()](const error_code& late_error)
                                           { self->frame_written(late_error); });
    if (!frame_output_.busy())
        frame_written(error);
}

void client_session::frame_written(const error_code& error)
{
    if (closed_)
        return;
    if (error)
    {
        leave("left in the middle of a frame");
        return;
    }
    ++environment_.counters.frames_sent;
    if (!newest_frame_.empty())
        write_frame(std::exchange(newest_frame_, {}));
    else
        write_events();
}

void client_session::push_event(const savrent::cc::val_obj::event_info& event)
{
    if (closed_ || !complete())
        return;
    if (pending_events_.size() == most_pending_events)
    {
        environment_.log.write(log_level::warning, "client {} does not read its events: one is dropped", id_);
        pending_events_.pop_front();
    }
    pending_events_.push_back(event);
    write_events();
}

void client_session::write_events()
{
    if (!pending_events_.empty() && frame_output_.busy() && !events_overtake_)
    {
        wait_for_frames();
        return;
    }
    while (!closed_ && !event_output_.busy() && !pending_events_.empty())
    {
        const auto event = pending_events_.front();
        pending_events_.pop_front();
        const auto error =
            event_output_.write(links_[event_link], bytes_of(event), environment_.faults.links[event_link],
                                [self = shared_from_this()](const error_code& late_error)
                                {
                                    if (late_error)
                                        self->leave("left in the middle of an event");
                                    self->write_events();
                                });
        if (error)
            leave("left in the middle of an event");
    }
    if (pending_events_.empty())
        events_overtake_ = false;
}

void client_session::wait_for_frames()
{
    if (std::exchange(events_wait_, true))
        return;
    event_timer_.expires_after(longest_wait_for_frames);
    event_timer_.async_wait(
        [self = shared_from_this()](const error_code&)
        {
            self->events_wait_ = false;
            self->events_overtake_ = !self->pending_events_.empty();
            self->write_events();
        });
}
} // namespace cbox_simulator
