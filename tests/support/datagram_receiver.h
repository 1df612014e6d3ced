#ifndef TESTS_SUPPORT_DATAGRAM_RECEIVER_H
#define TESTS_SUPPORT_DATAGRAM_RECEIVER_H

#include <cstdint>
#include <string>
#include <vector>

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

namespace test_support
{
/// A UDP port that keeps what arrives.
class datagram_receiver
{
public:
    datagram_receiver(const std::string& address, std::uint16_t port) : descriptor_(socket(AF_INET, SOCK_DGRAM, 0))
    {
        sockaddr_in local{};
        local.sin_family = AF_INET;
        local.sin_port = htons(port);
        local.sin_addr.s_addr = inet_addr(address.c_str());
        EXPECT_EQ(0, bind(descriptor_, reinterpret_cast<const sockaddr*>(&local), sizeof local));
    }
    ~datagram_receiver() { close(descriptor_); }
    datagram_receiver(const datagram_receiver&) = delete;
    datagram_receiver& operator=(const datagram_receiver&) = delete;

    /// What has arrived since this was asked last. On the loopback interface a datagram is there once it is sent.
    [[nodiscard]] std::vector<std::vector<unsigned char>> take()
    {
        std::vector<std::vector<unsigned char>> datagrams;
        std::vector<unsigned char> buffer(2048);
        ssize_t size = 0;
        while ((size = recv(descriptor_, buffer.data(), buffer.size(), MSG_DONTWAIT)) >= 0)
            datagrams.emplace_back(buffer.begin(), buffer.begin() + size);
        return datagrams;
    }

private:
    int descriptor_;
};
} // namespace test_support

#endif
