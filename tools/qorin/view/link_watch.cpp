#include "tools/qorin/view/link_watch.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <functional>
#include <optional>
#include <utility>

#include <arpa/inet.h>
#include <fcntl.h>
#include <linux/tcp.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qorin_view
{
namespace
{
constexpr in_port_t control_box_port = 7700;
constexpr double frame_size = 29'728;
constexpr double silence = 1000; // milliseconds
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

bool leads_to(int descriptor, const std::string& address)
{
    sockaddr_in peer = {};
    socklen_t size = sizeof peer;
    in_addr wanted = {};
    return getpeername(descriptor, reinterpret_cast<sockaddr*>(&peer), &size) == 0 && peer.sin_family == AF_INET &&
           inet_aton(address.c_str(), &wanted) != 0 && peer.sin_addr.s_addr == wanted.s_addr &&
           peer.sin_port == htons(control_box_port);
}

std::optional<tcp_info> info_of(int descriptor)
{
    tcp_info info = {};
    socklen_t size = sizeof info;
    if (getsockopt(descriptor, IPPROTO_TCP, TCP_INFO, &info, &size) != 0)
        return {};
    return info;
}
} // namespace

std::set<ino_t> link_watch::sockets()
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

link_watch::link_watch(const std::string& address, const std::set<ino_t>& before)
{
    // Of the three links, the status comes over the one that has brought most.
    std::uint64_t most = 0;
    int found = -1;
    for_each_descriptor(
        [&](int descriptor)
        {
            const auto number = socket_number(descriptor);
            if (!number || before.contains(*number) || !leads_to(descriptor, address))
                return;
            if (const auto info = info_of(descriptor); info && (found < 0 || info->tcpi_bytes_received > most))
            {
                most = info->tcpi_bytes_received;
                found = descriptor;
            }
        });
    // A descriptor of its own stays with this link, whatever becomes of the library's.
    if (found >= 0)
        socket_ = fcntl(found, F_DUPFD_CLOEXEC, 3);
    received_then_ = most;
    look();
}

link_watch::~link_watch()
{
    if (socket_ >= 0)
        close(socket_);
}

link_watch::link_watch(link_watch&& other) noexcept
{
    *this = std::move(other);
}

link_watch& link_watch::operator=(link_watch&& other) noexcept
{
    std::swap(socket_, other.socket_);
    state_ = other.state_;
    second_began_ = other.second_began_;
    received_then_ = other.received_then_;
    gap_this_second_ = other.gap_this_second_;
    in_gap_ = other.in_gap_;
    rate_ = other.rate_;
    gap_ = other.gap_;
    gaps_ = other.gaps_;
    return *this;
}

void link_watch::look()
{
    const auto info = socket_ < 0 ? std::nullopt : info_of(socket_);
    if (!info || info->tcpi_state != established)
    {
        state_ = link_state::lost;
        rate_ = 0;
        return;
    }
    const double quiet = info->tcpi_last_data_recv;
    state_ = quiet > silence ? link_state::silent : link_state::connected;
    gap_this_second_ = std::max(gap_this_second_, quiet);
    const bool is_gap = quiet >= std::max(20.0, rate_ > 0 ? 5000 / rate_ : 0.0);
    gaps_ += is_gap && !in_gap_ ? 1 : 0;
    in_gap_ = is_gap;
    judge_second(clock::now(), info->tcpi_bytes_received);
}

void link_watch::judge_second(clock::time_point now, std::uint64_t received)
{
    const std::chrono::duration<double> passed = now - second_began_;
    if (passed.count() < 1)
        return;
    rate_ = static_cast<double>(received - received_then_) / frame_size / passed.count();
    gap_ = std::exchange(gap_this_second_, 0);
    second_began_ = now;
    received_then_ = received;
}
} // namespace qorin_view
