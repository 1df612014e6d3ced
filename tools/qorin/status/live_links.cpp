#include "tools/qorin/status/live_links.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <functional>
#include <utility>

#include <arpa/inet.h>
#include <fcntl.h>
#include <fmt/format.h>
#include <linux/tcp.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
constexpr in_port_t port_of_control_boxes = 7700;
constexpr double frame_size = 29'728;
constexpr double silence_limit = 1000; // milliseconds
constexpr unsigned char established = 1;

void for_each_descriptor(const std::function<void(int)>& use)
{
    std::error_code failed;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd", failed))
    {
        const std::string name = entry.path().filename();
        int descriptor = -1;
        if (std::from_chars(name.data(), name.data() + name.size(), descriptor).ec == std::errc())
            use(descriptor);
    }
}

std::optional<ino_t> socket_number(int descriptor)
{
    struct stat found = {};
    return fstat(descriptor, &found) == 0 && S_ISSOCK(found.st_mode) ? std::optional(found.st_ino) : std::nullopt;
}

bool is_link_to(int descriptor, const std::string& address)
{
    sockaddr_in peer{};
    socklen_t size = sizeof peer;
    return getpeername(descriptor, reinterpret_cast<sockaddr*>(&peer), &size) == 0 && peer.sin_family == AF_INET &&
           ntohs(peer.sin_port) == port_of_control_boxes && peer.sin_addr.s_addr == inet_addr(address.c_str());
}

/// Nothing of a link that has ended.
std::optional<tcp_info> state_of(int socket)
{
    tcp_info state{};
    socklen_t size = sizeof state;
    if (getsockopt(socket, IPPROTO_TCP, TCP_INFO, &state, &size) != 0 || state.tcpi_state != established)
        return {};
    return state;
}

std::shared_ptr<const int> own_descriptor(int socket)
{
    return {new int(fcntl(socket, F_DUPFD_CLOEXEC, 3)), [](const int* descriptor)
            {
                close(*descriptor);
                delete descriptor;
            }};
}
} // namespace

std::set<ino_t> live_links::sockets()
{
    std::set<ino_t> numbers;
    for_each_descriptor(
        [&](int descriptor)
        {
            if (const auto number = socket_number(descriptor))
                numbers.insert(*number);
        });
    return numbers;
}

live_links::live_links(std::string address, const std::set<ino_t>& before) : address_(std::move(address))
{
    std::vector<int> found;
    for_each_descriptor(
        [&](int descriptor)
        {
            const auto number = socket_number(descriptor);
            if (number && !before.contains(*number) && is_link_to(descriptor, address_))
                found.push_back(descriptor);
        });
    std::ranges::transform(found, std::back_inserter(sockets_), own_descriptor);
    if (const auto now = status_traffic())
        received_then_ = now->received;
    look();
}

void live_links::expect_alive() const
{
    if (!status_traffic())
        throw failure(fmt::format("the control box at {} has closed the links", address_));
    if (silence() > patience)
        throw failure(fmt::format("the control box at {} has sent nothing for {} seconds", address_, patience.count()));
}

std::chrono::milliseconds live_links::silence() const
{
    std::chrono::milliseconds least = std::chrono::milliseconds::max();
    for (const auto& socket : sockets_)
        if (const auto told = state_of(*socket))
            least = std::min(least, std::chrono::milliseconds(told->tcpi_last_data_recv));
    return least;
}

std::optional<live_links::traffic> live_links::status_traffic() const
{
    // The status comes over the link that has brought most.
    std::optional<traffic> most;
    for (const auto& socket : sockets_)
    {
        const auto told = state_of(*socket);
        if (!told)
            return {};
        if (!most || told->tcpi_bytes_received > most->received)
            most = {static_cast<double>(told->tcpi_last_data_recv), told->tcpi_bytes_received};
    }
    return most;
}

void live_links::look()
{
    const auto now = status_traffic();
    if (!now)
    {
        sockets_.clear(); // the library has given the others up too
        state_ = state::lost;
        rate_ = 0;
        return;
    }
    state_ = now->quiet > silence_limit ? state::silent : state::connected;
    gap_this_second_ = std::max(gap_this_second_, now->quiet);
    const bool is_gap = now->quiet >= std::max(20.0, rate_ > 0 ? 5000 / rate_ : 0.0);
    gaps_ += is_gap && !in_gap_ ? 1 : 0;
    in_gap_ = is_gap;
    judge_second(clock::now(), now->received);
}

void live_links::judge_second(clock::time_point now, std::uint64_t received)
{
    const std::chrono::duration<double> passed = now - second_began_;
    if (passed.count() < 1)
        return;
    rate_ = static_cast<double>(received - received_then_) / frame_size / passed.count();
    gap_ = std::exchange(gap_this_second_, 0);
    second_began_ = now;
    received_then_ = received;
}
} // namespace qorin_cli
