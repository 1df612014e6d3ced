#include "tools/qorin/status/live_links.h"

#include <algorithm>
#include <filesystem>

#include <arpa/inet.h>
#include <fmt/format.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
constexpr in_port_t port_of_control_boxes = 7700;

bool is_link_to(int file, const std::string& address)
{
    sockaddr_in peer{};
    socklen_t size = sizeof peer;
    return getpeername(file, reinterpret_cast<sockaddr*>(&peer), &size) == 0 && peer.sin_family == AF_INET &&
           ntohs(peer.sin_port) == port_of_control_boxes && peer.sin_addr.s_addr == inet_addr(address.c_str());
}

tcp_info state_of(int socket)
{
    tcp_info state{};
    socklen_t size = sizeof state;
    static_cast<void>(getsockopt(socket, IPPROTO_TCP, TCP_INFO, &state, &size));
    return state;
}
} // namespace

live_links::live_links(std::string address) : address_(std::move(address))
{
    std::error_code failed;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd", failed))
        if (const int file = std::stoi(entry.path().filename()); is_link_to(file, address_))
            sockets_.push_back(file);
}

void live_links::expect_alive() const
{
    const auto has_ended = [](int socket) { return state_of(socket).tcpi_state != TCP_ESTABLISHED; };
    if (sockets_.empty() || std::ranges::any_of(sockets_, has_ended))
        throw failure(fmt::format("the control box at {} has closed the links", address_));
    if (silence() > patience)
        throw failure(fmt::format("the control box at {} has sent nothing for {} seconds", address_, patience.count()));
}

std::chrono::milliseconds live_links::silence() const
{
    std::chrono::milliseconds least = std::chrono::milliseconds::max();
    for (const int socket : sockets_)
        least = std::min(least, std::chrono::milliseconds(state_of(socket).tcpi_last_data_recv));
    return least;
}
} // namespace qorin_cli
