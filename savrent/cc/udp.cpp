#include "savrent/cc/udp.h"

#include <algorithm>
#include <cstddef>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include "savrent/cc/own_descriptor.h"

namespace savrent::cc
{
int udp::init(const char* local_ip, unsigned short local_port, const char* remote_ip, unsigned short remote_port)
{
    close();
    local_address_ = {};
    remote_address_ = {};
    descriptor_ = own_descriptor(socket(AF_INET, SOCK_DGRAM, IPPROTO_UDP));

    local_address_.sin_family = AF_INET;
    local_address_.sin_addr.s_addr = local_ip == nullptr ? INADDR_ANY : inet_addr(local_ip);
    local_address_.sin_port = htons(local_port);
    if (remote_ip != nullptr && remote_port != 0)
    {
        remote_address_.sin_family = AF_INET;
        remote_address_.sin_addr.s_addr = inet_addr(remote_ip);
        remote_address_.sin_port = htons(remote_port);
    }
    return bind(descriptor_, reinterpret_cast<const sockaddr*>(&local_address_), sizeof(local_address_));
}

int udp::send(const char* buffer, int length)
{
    int sent = 0;
    while (sent != length)
    {
        const ssize_t result = sendto(descriptor_, buffer + sent, static_cast<std::size_t>(length - sent), 0,
                                      reinterpret_cast<const sockaddr*>(&remote_address_), sizeof(remote_address_));
        if (result < 1)
            return 0;
        sent += static_cast<int>(result);
    }
    return sent;
}

int udp::recv(char* buffer, int length)
{
    if (length < 1)
        return 0;
    int count = 0;
    while (count != length)
    {
        // A failed read lowers the count, also below zero; what is written never lies ahead of the buffer.
        const int place = std::max(count, 0);
        count += static_cast<int>(
            recvfrom(descriptor_, buffer + place, static_cast<std::size_t>(length - place), 0, nullptr, nullptr));
    }
    return count;
}

void udp::close()
{
    if (descriptor_ != 0)
    {
        ::close(descriptor_);
        descriptor_ = 0;
    }
}
} // namespace savrent::cc
