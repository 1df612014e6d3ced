#ifndef SIMULATOR_LINKS_RECORD_WRITER_H
#define SIMULATOR_LINKS_RECORD_WRITER_H

#include <cstddef>
#include <span>
#include <vector>

#include <boost/asio/buffer.hpp>
#include <boost/asio/error.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/write.hpp>

namespace cbox_simulator
{
/**
 * Writes whole records on one link, one at a time.
 *
 * A record goes out within the call when the link has room for it, which is the usual case: no copy, no wait. Of a
 * record that does not fit, the rest is kept here and follows when the peer has read.
 */
class record_writer
{
public:
    /// True while the rest of a record is under way; no other record may be written then.
    [[nodiscard]] bool busy() const { return busy_; }

    /// The socket must be non-blocking. When the writer is busy after the call, `finished(error)` comes later;
    /// otherwise all is over and the error returned tells how. `finished` keeps writer and socket alive.
    template <class Finished>
    boost::system::error_code write(boost::asio::ip::tcp::socket& socket, std::span<const std::byte> record,
                                    Finished finished)
    {
        boost::system::error_code error;
        const auto sent = socket.write_some(boost::asio::buffer(record.data(), record.size()), error);
        if (error == boost::asio::error::would_block)
        {
            error.clear();
        }
        if (error || sent == record.size())
        {
            return error;
        }
        rest_.assign(record.begin() + static_cast<std::ptrdiff_t>(sent), record.end());
        busy_ = true;
        boost::asio::async_write(socket, boost::asio::buffer(rest_),
                                 [this, finished](const boost::system::error_code& late_error, std::size_t)
                                 {
                                     busy_ = false;
                                     finished(late_error);
                                 });
        return {};
    }

private:
    std::vector<std::byte> rest_;
    bool busy_ = false;
};
} // namespace cbox_simulator

#endif
