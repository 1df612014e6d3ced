#include <arpa/inet.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "savrent/cc/system_config_parser.h"
#include "savrent/cc/tcp_client.h"
#include "savrent/cc/udp.h"
#include "tests/support/installation.h"
#include "tests/support/loopback.h"
#include "tests/support/scripted_cbox.h"

namespace
{
using savrent::cc::tcp_client;
using savrent::cc::udp;
using test_support::own_address;

/// A connected pair: the client adopts one end, the test holds the other.
struct socket_pair
{
    socket_pair()
    {
        int ends[2];
        EXPECT_EQ(0, socketpair(AF_UNIX, SOCK_STREAM, 0, ends));
        client = std::make_unique<tcp_client>(ends[0]);
        peer = ends[1];
    }
    ~socket_pair() { close_peer(); }
    void close_peer()
    {
        if (peer != -1)
            close(peer);
        peer = -1;
    }

    std::unique_ptr<tcp_client> client;
    int peer = -1;
};

/// Takes connections into its backlog, at a port that was free.
struct listening_socket
{
    explicit listening_socket(const std::string& address)
    {
        sockaddr_in local{AF_INET, 0, {inet_addr(address.c_str())}, {}};
        socklen_t size = sizeof(local);
        EXPECT_EQ(0, bind(descriptor, reinterpret_cast<sockaddr*>(&local), size));
        EXPECT_EQ(0, listen(descriptor, 8));
        EXPECT_EQ(0, getsockname(descriptor, reinterpret_cast<sockaddr*>(&local), &size));
        port = ntohs(local.sin_port);
    }
    ~listening_socket() { close(descriptor); }

    const int descriptor = socket(AF_INET, SOCK_STREAM, 0);
    unsigned short port = 0;
};

TEST(tcp_client, connects_once_and_again_only_after_closing)
{
    tcp_client client;
    testing::internal::CaptureStderr();
    EXPECT_FALSE(client.connect_to_server("", own_address().c_str(), 7700));
    EXPECT_EQ("Connection Failed\n", testing::internal::GetCapturedStderr());

    test_support::scripted_cbox box(own_address());
    for (const char* refused : {"failed", "connected"})
    {
        EXPECT_FALSE(client.connect_to_server("", own_address().c_str(), 7700)) << refused;
        EXPECT_EQ(0, client.close_socket());
        EXPECT_TRUE(client.connect_to_server("", own_address().c_str(), 7700)) << refused;
    }
}

TEST(tcp_client, reports_a_malformed_address_in_its_own_lines)
{
    const test_support::installation place("on");
    ASSERT_TRUE(savrent::cc::system_config_parser::get_instance()->load_file(nullptr));
    const listening_socket this_machine("127.0.0.1"); // which a malformed address must not be taken for
    for (const char* address : {"localhost", "300.0.0.1", "", static_cast<const char*>(nullptr)})
    {
        tcp_client client;
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        EXPECT_FALSE(client.connect_to_server("", address, this_machine.port));
        EXPECT_EQ("Invalid address / Address not supported\nConnection Failed\n",
                  testing::internal::GetCapturedStdout());
        EXPECT_EQ("Connection Failed\n", testing::internal::GetCapturedStderr());
    }
    pollfd reached{this_machine.descriptor, POLLIN, 0};
    EXPECT_EQ(0, poll(&reached, 1, 0));
}

TEST(tcp_client, reads_exactly_or_fails)
{
    socket_pair pair;
    unsigned char buffer[8] = {'-', '-', '-', '-', '-', '-', '-', '-'};
    EXPECT_EQ(0, pair.client->tcp_read(buffer, 0));
    EXPECT_EQ(0, pair.client->tcp_read(buffer, -3));
    EXPECT_EQ('-', buffer[0]);

    ASSERT_EQ(6, write(pair.peer, "abcdef", 6));
    EXPECT_TRUE(pair.client->tcp_read_ready());
    EXPECT_EQ(4, pair.client->tcp_read(buffer, 4));
    pair.close_peer();
    EXPECT_EQ(-1, pair.client->tcp_read(buffer, 8));
    EXPECT_EQ(0, std::memcmp(buffer, "ef", 2)) << "what did arrive stays in the buffer";
}

TEST(tcp_client, waits_on_descriptors_beyond_the_reach_of_select)
{
    rlimit files{};
    ASSERT_EQ(0, getrlimit(RLIMIT_NOFILE, &files));
    files.rlim_cur = std::min<rlim_t>(files.rlim_max, 4096);
    ASSERT_EQ(0, setrlimit(RLIMIT_NOFILE, &files));

    socket_pair pair;
    const int high = fcntl(pair.peer, F_DUPFD, 2000);
    if (high == -1)
        GTEST_SKIP() << "no descriptor above 2000 to be had";
    const tcp_client client(high);
    EXPECT_FALSE(client.tcp_read_ready());
    int other_end[2];
    ASSERT_EQ(0, socketpair(AF_UNIX, SOCK_STREAM, 0, other_end));
    const tcp_client readable(fcntl(other_end[0], F_DUPFD, 2000));
    ASSERT_EQ(1, write(other_end[1], "x", 1));
    EXPECT_TRUE(readable.tcp_read_ready());
    close(other_end[0]);
    close(other_end[1]);
}

TEST(tcp_client, closes_once)
{
    const test_support::installation place("on");
    ASSERT_TRUE(savrent::cc::system_config_parser::get_instance()->load_file(nullptr));
    socket_pair pair;
    testing::internal::CaptureStdout();
    EXPECT_EQ(0, pair.client->close_socket());
    EXPECT_EQ(0, pair.client->close_socket());
    EXPECT_EQ("tcpClient::close_socket()", testing::internal::GetCapturedStdout());
}

TEST(tcp_client, cuts_a_client_address_that_does_not_fit)
{
    tcp_client client;
    char address[32] = "x";
    client.get_client_ip_addr(address);
    EXPECT_STREQ("", address);
    client.set_client_ip_addr(std::string(40, 'a').c_str());
    client.get_client_ip_addr(address);
    EXPECT_EQ(std::string(31, 'a'), address);
}

TEST(sockets, are_not_inherited_and_stand_for_no_standard_stream)
{
    const listening_socket peer(own_address());
    const int free_descriptor = dup(STDERR_FILENO);
    ASSERT_EQ(0, close(free_descriptor));
    ASSERT_EQ(0, close(STDIN_FILENO));
    const auto expect_own_descriptor = [&](const char* whose)
    {
        EXPECT_EQ(-1, fcntl(STDIN_FILENO, F_GETFD)) << whose;
        EXPECT_EQ(FD_CLOEXEC, fcntl(free_descriptor, F_GETFD)) << whose;
    };
    tcp_client client;
    ASSERT_TRUE(client.connect_to_server("", own_address().c_str(), peer.port));
    expect_own_descriptor("client");
    EXPECT_EQ(3, client.tcp_write(reinterpret_cast<const unsigned char*>("abc"), 3));
    EXPECT_EQ(0, client.close_socket());
    udp datagrams;
    ASSERT_EQ(0, datagrams.init(own_address().c_str(), 0, nullptr, 0));
    expect_own_descriptor("datagrams");
    datagrams.close();
    EXPECT_EQ(-1, fcntl(free_descriptor, F_GETFD));
}

TEST(udp, sends_to_its_fixed_remote_address)
{
    udp receiver;
    ASSERT_EQ(0, receiver.init(own_address().c_str(), 50001, nullptr, 0));
    udp sender;
    ASSERT_EQ(0, sender.init(own_address(1).c_str(), 0, own_address().c_str(), 50001));
    EXPECT_EQ(0, sender.send("", 0));
    EXPECT_EQ(3, sender.send("abc", 3));
    EXPECT_EQ(2, sender.send("de", 2));
    char buffer[5];
    EXPECT_EQ(0, receiver.recv(buffer, 0));
    EXPECT_EQ(0, receiver.recv(buffer, -5)) << "no length bounds the waiting datagram then";
    EXPECT_EQ(5, receiver.recv(buffer, 5));
    EXPECT_EQ("abcde", std::string(buffer, 5));
    udp nowhere;
    ASSERT_EQ(0, nowhere.init(own_address().c_str(), 0, own_address().c_str(), 0));
    EXPECT_EQ(0, nowhere.send("abc", 3)) << "there is no remote port";
}
} // namespace
