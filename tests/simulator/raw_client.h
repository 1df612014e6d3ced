#ifndef TESTS_SIMULATOR_RAW_CLIENT_H
#define TESTS_SIMULATOR_RAW_CLIENT_H

#include <cstdint>
#include <cstring>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

#include <arpa/inet.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include "protocol/event_record.h"
#include "protocol/rpc_record.h"
#include "protocol/status_frame.h"

/// A client made of nothing but sockets, so that the simulated box is tested against bytes only.
namespace raw
{
inline sockaddr_in endpoint(const std::string& address, std::uint16_t port)
{
    sockaddr_in result{};
    result.sin_family = AF_INET;
    result.sin_port = htons(port);
    if (::inet_pton(AF_INET, address.c_str(), &result.sin_addr) != 1)
        throw std::runtime_error("bad address " + address);
    return result;
}

class link
{
public:
    /// `from` is the address that the box sees. Throws when refused.
    explicit link(const std::string& box, const std::string& from = "127.0.0.1", int receive_buffer = 0)
        : descriptor_(::socket(AF_INET, SOCK_STREAM, 0))
    {
        const timeval patience{5, 0};
        ::setsockopt(descriptor_, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
        if (receive_buffer != 0)
            ::setsockopt(descriptor_, SOL_SOCKET, SO_RCVBUF, &receive_buffer, sizeof receive_buffer);
        const auto local = endpoint(from, 0);
        const auto remote = endpoint(box, protocol::control_box_port);
        if (::bind(descriptor_, reinterpret_cast<const sockaddr*>(&local), sizeof local) != 0 ||
            ::connect(descriptor_, reinterpret_cast<const sockaddr*>(&remote), sizeof remote) != 0)
        {
            close();
            throw std::runtime_error("cannot connect to " + box);
        }
    }

    link(link&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    link& operator=(link&&) = delete;
    ~link() { close(); }

    void close()
    {
        if (descriptor_ != -1)
            ::close(std::exchange(descriptor_, -1));
    }

    [[nodiscard]] bool send(const void* bytes, std::size_t size)
    {
        return ::send(descriptor_, bytes, size, MSG_NOSIGNAL) == static_cast<ssize_t>(size);
    }

    /// False when the link ends, or is silent for seconds, before the record is whole.
    template <class Record>
    [[nodiscard]] bool receive(Record& record)
    {
        return ::recv(descriptor_, &record, sizeof record, MSG_WAITALL) == static_cast<ssize_t>(sizeof record);
    }

    /// The last of the records that have arrived whole; false when there is none.
    template <class Record>
    [[nodiscard]] bool receive_last_arrived(Record& record)
    {
        bool found = false;
        for (int bytes = 0; ::ioctl(descriptor_, FIONREAD, &bytes) == 0 && bytes >= static_cast<int>(sizeof record);)
            found = receive(record);
        return found;
    }

    /// Reads on to the end of the stream. False when it does not come.
    [[nodiscard]] bool ends()
    {
        char ignored[4096];
        ssize_t count = 0;
        while ((count = ::recv(descriptor_, ignored, sizeof ignored, 0)) > 0)
        {
        }
        return count == 0;
    }

private:
    int descriptor_;
};

inline protocol::request_record request(const std::string& wire_name, std::uint32_t value_0 = 0)
{
    protocol::request_record record{};
    std::memcpy(record.wire_name, wire_name.data(), wire_name.size());
    record.value[0] = value_0;
    return record;
}

struct client
{
    explicit client(const std::string& box, const std::string& from = "127.0.0.1", int data_receive_buffer = 0)
        : command(box, from), data(box, from, data_receive_buffer), event(box, from)
    {
    }

    /// The whole reply; all zero when none comes.
    protocol::reply_record call(const protocol::request_record& record)
    {
        protocol::reply_record reply{};
        if (!command.send(&record, sizeof record) || !command.receive(reply))
            std::memset(&reply, 0, sizeof reply);
        return reply;
    }

    std::uint32_t result_of(const std::string& wire_name, std::uint32_t value_0 = 0)
    {
        return call(request(wire_name, value_0)).result;
    }

    link command;
    link data;
    link event;
};

/// Waits for what another thread or the network brings about.
inline bool comes_true(const std::function<bool()>& condition)
{
    for (int attempt = 0; attempt < 1000; ++attempt)
    {
        if (condition())
            return true;
        ::usleep(5000);
    }
    return false;
}
} // namespace raw

#endif
