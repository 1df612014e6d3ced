#include "tools/qorin/doctor/links.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <thread>

#include <arpa/inet.h>
#include <fmt/format.h>
#include <linux/tcp.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace qorin_cli::doctor
{
namespace
{
constexpr std::uint16_t port = 7700;
constexpr std::size_t frame_size = 29728;
constexpr std::size_t version_size = 32; ///< the text at the beginning of a frame
constexpr std::size_t data_link = 1;
constexpr const char* link_names[] = {"command link", "data link", "event link"};

constexpr double network_note = 2; // milliseconds; a direct line takes a tenth of that
constexpr double network_warning = 20;
constexpr double lost_packet = 900; // milliseconds; a handshake is repeated after a second

constexpr double gap = 1.8; // usual intervals; a frame that is left out makes two of them
constexpr double gap_share_warning = 0.05;
constexpr double gap_warning = 100;        // milliseconds
constexpr double slow_rate_note = 50;      // frames a second
constexpr double reading_late_warning = 5; // milliseconds

/// An errno, 0 for a link that stands.
int connect_one(int link, const sockaddr_in& address, milliseconds limit)
{
    if (::connect(link, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        return 0;
    if (errno != EINPROGRESS)
        return errno;
    pollfd state = {link, POLLOUT, 0};
    if (poll(&state, 1, static_cast<int>(limit.count())) != 1)
        return ETIMEDOUT;
    int failure = 0;
    socklen_t size = sizeof failure;
    getsockopt(link, SOL_SOCKET, SO_ERROR, &failure, &size);
    return failure;
}

finding refused_link(std::size_t link, int failure)
{
    finding seen{
        "port", fmt::format("{}: {}", link_names[link], std::strerror(failure)), verdict::error, origin::network, {}};
    switch (failure)
    {
    case ECONNREFUSED:
        seen.blamed = origin::control_box;
        seen.words = link == 0
                         ? "the machine is there and nobody listens on port 7700: the control software does not run"
                         : "the link before was taken and this one refused: the control software went, or is at fault";
        break;
    case ETIMEDOUT:
        seen.words = "no answer: switched off, not plugged in, or a firewall swallows the packets";
        break;
    case ENETUNREACH:
        seen.blamed = origin::machine;
        seen.words = "this machine has no way to that network: look at its own addresses and routes";
        break;
    default:
        seen.words = "the network does not lead there";
        break;
    }
    return seen;
}

double seconds_of_wall_clock(const timespec& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double wall_clock()
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return seconds_of_wall_clock(now);
}

struct received
{
    ssize_t size;   ///< as of recvmsg
    double arrival; ///< when the kernel had the last of it, seconds
};

received receive(int link, char* buffer, std::size_t size)
{
    iovec part = {buffer, size};
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof(timespec))];
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control;
    message.msg_controllen = sizeof control;
    received got = {recvmsg(link, &message, MSG_DONTWAIT), wall_clock()};
    for (cmsghdr* header = CMSG_FIRSTHDR(&message); header != nullptr; header = CMSG_NXTHDR(&message, header))
        if (header->cmsg_level == SOL_SOCKET && header->cmsg_type == SCM_TIMESTAMPNS)
        {
            timespec arrival{};
            std::memcpy(&arrival, CMSG_DATA(header), sizeof arrival);
            got.arrival = seconds_of_wall_clock(arrival);
        }
    return got;
}

/// What came on the links.
struct frame_record
{
    std::vector<double> arrivals; ///< of whole frames, seconds
    std::vector<double> late;     ///< from the kernel to this program, milliseconds
    std::string version;
    const char* ended_by = nullptr;       ///< why it ended ahead of its time
    std::size_t foreign_link = data_link; ///< another than the data link when frames came there
};

class frame_reader
{
public:
    explicit frame_reader(const std::array<int, 3>& links) : links_(links) {}

    frame_record read(milliseconds time, const tick& show)
    {
        auto end = clock::now() + probe_links::first_frame_limit;
        auto heard = clock::now();
        while (record_.ended_by == nullptr && clock::now() < end)
        {
            std::array<pollfd, 3> states;
            for (std::size_t i = 0; i < states.size(); ++i)
                states[i] = {links_[i], POLLIN, 0};
            if (poll(states.data(), states.size(), 50) < 0)
                break;
            for (std::size_t i = 0; i < states.size(); ++i)
                if (states[i].revents != 0 && take(i))
                {
                    heard = clock::now();
                    if (record_.arrivals.size() == 1)
                        end = heard + std::chrono::duration_cast<clock::duration>(time);
                }
            if (!record_.arrivals.empty() && clock::now() - heard > probe_links::silence_limit)
                record_.ended_by = "went silent";
            show();
        }
        if (record_.arrivals.empty() && record_.ended_by == nullptr)
            record_.ended_by = "is silent";
        return std::move(record_);
    }

private:
    /// True when a whole frame has come.
    bool take(std::size_t link)
    {
        if (link != data_link)
        {
            // An event or two are ordinary; as much as a frame is none.
            std::array<char, 4096> ignored;
            const ssize_t size = recv(links_[link], ignored.data(), ignored.size(), MSG_DONTWAIT);
            if (size <= 0)
                record_.ended_by = "lost one of its links";
            else if ((foreign_bytes_[link] += static_cast<std::size_t>(size)) > frame_size && record_.arrivals.empty())
            {
                record_.foreign_link = link;
                record_.ended_by = "is crossed with another";
            }
            return false;
        }
        const received got = receive(links_[link], frame_.data() + filled_, frame_size - filled_);
        if (got.size <= 0)
        {
            record_.ended_by = "was closed by the control box";
            return false;
        }
        filled_ += static_cast<std::size_t>(got.size);
        if (filled_ < frame_size)
            return false;
        filled_ = 0;
        if (record_.arrivals.empty())
            record_.version = std::string(frame_.data(), strnlen(frame_.data(), version_size));
        record_.arrivals.push_back(got.arrival);
        record_.late.push_back((wall_clock() - got.arrival) * 1e3);
        return true;
    }

    const std::array<int, 3>& links_;
    std::array<std::size_t, 3> foreign_bytes_ = {};
    std::vector<char> frame_ = std::vector<char>(frame_size);
    std::size_t filled_ = 0;
    frame_record record_;
};

/// Packets that came out of their order, as they do when some were lost on the way and sent again.
unsigned int packets_out_of_order(int link)
{
    tcp_info info{};
    socklen_t size = sizeof info;
    getsockopt(link, IPPROTO_TCP, TCP_INFO, &info, &size);
    return info.tcpi_rcv_ooopack;
}

finding ended_frames(const frame_record& record)
{
    finding seen{"frames", fmt::format("{} frames", record.arrivals.size()), verdict::error, origin::control_box,
                 fmt::format("the data link {}: the status of an application would stand still", record.ended_by)};
    if (record.foreign_link != data_link)
    {
        seen.check = "links";
        seen.words = fmt::format("frames come on the {}: another client connected at the same moment, or the control "
                                 "box takes links out of their order",
                                 link_names[record.foreign_link]);
    }
    return seen;
}

/// A control box that is simulated on the machine which looks at it has no more time than that one gives.
bool shares_a_busy_machine(int link)
{
    sockaddr_in here{};
    sockaddr_in there{};
    socklen_t size = sizeof here;
    getsockname(link, reinterpret_cast<sockaddr*>(&here), &size);
    getpeername(link, reinterpret_cast<sockaddr*>(&there), &size);
    const bool is_loopback = (ntohl(there.sin_addr.s_addr) >> 24) == IN_LOOPBACKNET;
    double load = 0;
    getloadavg(&load, 1);
    return (is_loopback || here.sin_addr.s_addr == there.sin_addr.s_addr) &&
           load > static_cast<double>(sysconf(_SC_NPROCESSORS_ONLN));
}

void explain_gaps(finding& seen, int link)
{
    seen.blamed = origin::control_box;
    seen.words = "no packet was lost on the way: the control box sent late or left out";
    if (packets_out_of_order(link) > 0)
    {
        seen.blamed = origin::network;
        seen.words = "packets were lost on the way and sent again";
    }
    else if (shares_a_busy_machine(link))
    {
        seen.blamed = origin::machine;
        seen.words = "the control box runs on this machine, which has more to do than cores";
    }
}

finding judged_frames(const frame_record& record, int link, const distribution& wakeup)
{
    std::vector<double> intervals;
    for (std::size_t i = 1; i < record.arrivals.size(); ++i)
        intervals.push_back((record.arrivals[i] - record.arrivals[i - 1]) * 1e3);
    const distribution interval = distribution_of(intervals);
    std::vector<double> jitter;
    std::size_t gaps = 0;
    for (const double one : intervals)
    {
        jitter.push_back(std::abs(one - interval.median));
        gaps += one > gap * interval.median ? 1 : 0;
    }
    const double span = record.arrivals.back() - record.arrivals.front();
    const double rate = span > 0 ? static_cast<double>(intervals.size()) / span : 0;
    const double jittered = distribution_of(jitter).percentile_99;
    const distribution late = distribution_of(record.late);

    finding seen{"frames",
                 fmt::format("{:.0f}/s, jitter {:.2f} ms", rate, jittered),
                 verdict::ok,
                 origin::none,
                 "they come evenly",
                 {{"frames", record.arrivals.size()},
                  {"rate_per_s", rate},
                  {"interval_ms", interval.median},
                  {"jitter_p99_ms", jittered},
                  {"gaps", gaps},
                  {"longest_gap_ms", interval.worst},
                  {"packets_out_of_order", packets_out_of_order(link)},
                  {"read_late_p99_ms", late.percentile_99}}};
    if (gaps > 0)
    {
        const bool many = static_cast<double>(gaps) > gap_share_warning * static_cast<double>(intervals.size());
        seen.judged = many || interval.worst > gap_warning ? verdict::warning : verdict::note;
        explain_gaps(seen, link);
        seen.words = fmt::format("{} gaps, the longest {:.1f} ms; {}", gaps, interval.worst, seen.words);
    }
    else if (rate < slow_rate_note)
    {
        seen.judged = verdict::note;
        seen.blamed = origin::control_box;
        seen.words = fmt::format("what getters tell is up to {:.0f} ms old", interval.median);
    }
    if (late.percentile_99 > reading_late_warning && seen.judged < verdict::warning)
    {
        seen.judged = verdict::warning;
        seen.blamed = origin::machine;
        seen.words =
            fmt::format("they wait {:.1f} ms in this machine until a thread gets to read them (wakeup {:.1f} ms)",
                        late.percentile_99, wakeup.percentile_99);
    }
    return seen;
}
} // namespace

probe_links::~probe_links()
{
    for (const int link : links_)
        if (link >= 0)
            close(link);
}

bool probe_links::connect(const std::string& address, findings& found)
{
    sockaddr_in server{};
    server.sin_family = AF_INET;
    server.sin_port = htons(port);
    inet_pton(AF_INET, address.c_str(), &server.sin_addr);
    double quickest = milliseconds(connect_limit).count();
    double slowest = 0;
    for (std::size_t i = 0; i < links_.size(); ++i)
    {
        if (i > 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        links_[i] = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
        const int on = 1;
        setsockopt(links_[i], SOL_SOCKET, SO_TIMESTAMPNS, &on, sizeof on);
        const auto begin = clock::now();
        if (const int failure = connect_one(links_[i], server, connect_limit); failure != 0)
        {
            found.push_back(refused_link(i, failure));
            return false;
        }
        const double took = milliseconds(clock::now() - begin).count();
        quickest = std::min(quickest, took);
        slowest = std::max(slowest, took);
    }
    network_round_trip_ = quickest;
    finding seen{"port",       fmt::format("{:.2f} ms", quickest),           verdict::ok,
                 origin::none, "the network takes that long there and back", {{"handshake_ms", quickest}}};
    if (slowest > lost_packet)
        seen.words = "a packet was lost while connecting: look at cable and switch";
    else if (quickest > network_note)
        seen.words = "a long way: no direct line, or a busy network";
    if (slowest > lost_packet || quickest > network_note)
    {
        seen.judged = slowest > lost_packet || quickest > network_warning ? verdict::warning : verdict::note;
        seen.blamed = origin::network;
    }
    found.push_back(seen);
    return true;
}

bool probe_links::watch_frames(milliseconds time, const distribution& wakeup, const tick& show, findings& found)
{
    const frame_record record = frame_reader(links_).read(time, show);
    version_ = record.version;
    const bool well = record.ended_by == nullptr;
    if (well)
        found.push_back(
            {"links", "3 in order", verdict::ok, origin::none, "commands, frames and events each on its own"});
    if (record.arrivals.size() > 1)
        found.push_back(judged_frames(record, links_[data_link], wakeup));
    if (!well)
        found.push_back(ended_frames(record));
    return well;
}
} // namespace qorin_cli::doctor
