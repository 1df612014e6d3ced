#ifndef SIMULATOR_LINKS_RECORD_WRITER_H
#define SIMULATOR_LINKS_RECORD_WRITER_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include <boost/asio/buffer.hpp>
#include <boost/asio/error.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/write.hpp>

#include "simulator/links/fault_plan.h"

namespace cbox_simulator
{
/**
 * Writes whole records on one link, one at a time.
 *
 * A record goes out within the call when the link has room for it, which is the usual case: no copy, no wait. Of a
 * record that does not fit, the rest is kept here and follows when the peer has read. What is asked to go wrong with
 * the link's bytes goes wrong here.
 */
class record_writer
{
public:
    /// True while the rest of a record is under way, and for good when the link is to go silent; no other record may be
    /// written then.
    [[nodiscard]] bool busy() const { return busy_; }

    /// Whether the link has been closed on request. Its end is no end of the session then.
    [[nodiscard]] bool cut() const { return cut_; }

    /// The socket must be non-blocking. When the writer is busy after the call, `finished(error)` comes later or never;
    /// otherwise all is over and the error returned tells how. `finished` keeps writer and socket alive.
    template <class Finished>
    boost::system::error_code write(boost::asio::ip::tcp::socket& socket, std::span<const std::byte> record,
                                    const link_faults& faults, Finished finished)
    {
        const auto going =
            record.first(static_cast<std::size_t>(std::min<std::uint64_t>(record.size(), faults.room(sent_))));
        boost::system::error_code error;
        std::size_t sent = 0;
        if (!faults.split)
            sent = socket.write_some(boost::asio::buffer(going.data(), going.size()), error);
        if (error == boost::asio::error::would_block)
            error.clear();
        if (error)
            return error;
        sent_ += sent;
        if (sent == record.size() && !faults.closes_at(sent_))
            return {};
        busy_ = true;
        rest_.assign(going.begin() + static_cast<std::ptrdiff_t>(sent), going.end());
        step_ = faults.split ? 1 : rest_.size();
        closes_ = faults.closes_at(sent_ + rest_.size());
        stalls_ = going.size() < record.size();
        write_rest(socket, finished, 0);
        return {};
    }

private:
    template <class Finished>
    void write_rest(boost::asio::ip::tcp::socket& socket, Finished finished, std::size_t from)
    {
        if (from == rest_.size())
        {
            end_record(socket, finished);
            return;
        }
        boost::asio::async_write(
            socket, boost::asio::buffer(rest_.data() + from, step_),
            [this, &socket, finished, from](const boost::system::error_code& error, std::size_t sent)
            {
                sent_ += sent;
                if (!error)
                {
                    write_rest(socket, finished, from + sent);
                    return;
                }
                busy_ = false;
                finished(error);
            });
    }

    template <class Finished>
    void end_record(boost::asio::ip::tcp::socket& socket, Finished& finished)
    {
        if (closes_)
        {
            cut_ = true;
            boost::system::error_code ignored;
            socket.shutdown(boost::asio::ip::tcp::socket::shutdown_both, ignored);
        }
        else if (!stalls_)
        {
            busy_ = false;
            finished(boost::system::error_code());
        }
    }

    std::vector<std::byte> rest_;
    std::size_t step_ = 0; ///< how much of it goes out at once
    std::uint64_t sent_ = 0;
    bool busy_ = false;
    bool closes_ = false; ///< with the end of the rest
    bool stalls_ = false;
    bool cut_ = false;
};
} // namespace cbox_simulator

#endif
