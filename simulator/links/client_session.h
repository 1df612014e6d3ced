#ifndef SIMULATOR_LINKS_CLIENT_SESSION_H
#define SIMULATOR_LINKS_CLIENT_SESSION_H

#include <array>
#include <chrono>
#include <cstddef>
#include <deque>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include <boost/asio/any_io_executor.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/steady_timer.hpp>

#include "protocol/event_record.h"
#include "protocol/rpc_record.h"
#include "simulator/links/record_writer.h"
#include "simulator/links/session_environment.h"

namespace cbox_simulator
{
/**
 * One client of the box: its three links, and the traffic on them.
 *
 * Begins with its command link and is complete with the third; when that does not come in time, the session ends, so
 * that the next client from there does not get what is left of this one. The loss of any link ends the whole session,
 * sets free what the client held in the model, and concerns no other client. Owned by the link acceptor and by the
 * operations under way on the links; used on the io thread only.
 */
class client_session : public std::enable_shared_from_this<client_session>
{
public:
    /// The session works on the io context of its links.
    client_session(client_id id, boost::asio::ip::address address, const boost::asio::any_io_executor& executor,
                   const session_environment& environment);

    /// The next link of this client: command, then data, then event.
    void add_link(boost::asio::ip::tcp::socket link);

    [[nodiscard]] const boost::asio::ip::address& address() const { return address_; }
    [[nodiscard]] bool complete() const { return links_.size() == link_count; }
    /// The place of the next link; link_count when there is none.
    [[nodiscard]] link_index next_link() const { return static_cast<link_index>(links_.size()); }
    [[nodiscard]] bool closed() const { return closed_; }

    /// Whether the client has closed one of its links, also when the session has not come to read the end yet.
    [[nodiscard]] bool abandoned();

    /// Sends a frame, or keeps it while the client has not taken the previous one: what is kept then gives way to the
    /// next one.
    void send_frame(std::span<const std::byte> frame);

    /// Sends an event record, after those that wait and after the frames that were sent before it. When too many wait,
    /// the oldest is dropped: the last ones tell what the box is now.
    void push_event(const savrent::cc::val_obj::event_info& event);

    /// Whether an event that was pushed has not left yet.
    [[nodiscard]] bool has_pending_events() const
    {
        return !closed_ && (event_output_.busy() || !pending_events_.empty());
    }

    /// Ends the session, and tells why in one line. Does nothing the second time.
    void leave(std::string_view reason);

private:
    void wait_for_links();
    void read_request();
    void serve_request();
    void reply_after(std::chrono::milliseconds delay);
    void send_reply();
    void reply_sent(const boost::system::error_code& error);
    QORIN_API_RESULT perform(request_reader& arguments, reply_writer& outputs);
    void report_control_change(const std::optional<client_id>& owner_before) const;

    void watch_for_close(link_index link);
    [[nodiscard]] const record_writer& output_on(link_index link) const;
    void write_frame(std::span<const std::byte> frame);
    void frame_written(const boost::system::error_code& error);
    void write_events();
    void wait_for_frames();

    client_id id_;
    boost::asio::ip::address address_;
    const session_environment& environment_;

    std::vector<boost::asio::ip::tcp::socket> links_;
    bool closed_ = false;
    bool request_waits_ = false; ///< a whole request came before the third link: a reply goes to complete clients only

    protocol::request_record request_;
    protocol::reply_record reply_;
    boost::asio::steady_timer pairing_timer_;
    boost::asio::steady_timer reply_timer_;
    record_writer reply_output_;
    record_writer frame_output_;
    record_writer event_output_;
    std::vector<std::byte> newest_frame_; ///< for the time when the previous one is out; empty when there is none
    std::deque<savrent::cc::val_obj::event_info> pending_events_;
    boost::asio::steady_timer event_timer_;
    bool events_wait_ = false;
    bool events_overtake_ = false;            ///< they have waited for frames long enough
    std::array<std::byte, 64> ignored_input_; ///< what a client sends on links where nothing is expected
};
} // namespace cbox_simulator

#endif
