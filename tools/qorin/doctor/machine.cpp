#include "tools/qorin/doctor/machine.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <set>
#include <thread>

#include <fcntl.h>
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <sched.h>
#include <sys/resource.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include "tools/qorin/within.h"

namespace qorin_cli::doctor
{
namespace
{
namespace fs = std::filesystem;

/// The core that the library puts its receive threads on.
constexpr int library_core = 3;

constexpr auto wakeup_time = std::chrono::milliseconds(400);
constexpr double wakeup_note = 1;    // milliseconds; a frame of the usual rate
constexpr double wakeup_warning = 5; // milliseconds

constexpr std::size_t line_count = 2000;
constexpr std::size_t line_size = 150; ///< bytes; about a call line
constexpr auto block_time = std::chrono::milliseconds(300);
constexpr std::size_t block_size = 1 << 16;
constexpr std::size_t most_blocks = 256;
constexpr double line_note = 0.1; // milliseconds; three times a round trip's share
constexpr double line_warning = 1;
constexpr double least_speed = 1;    // megabytes a second
constexpr double least_space = 1000; // megabytes
constexpr auto disk_limit = std::chrono::seconds(3);

std::string first_line(const fs::path& file)
{
    std::string line;
    std::ifstream stream(file);
    std::getline(stream, line);
    return line;
}

bool may_have_real_time_priority()
{
    const int policy = sched_getscheduler(0);
    sched_param old{};
    sched_getparam(0, &old);
    sched_param lowest{};
    lowest.sched_priority = sched_get_priority_min(SCHED_FIFO);
    if (sched_setscheduler(0, SCHED_FIFO, &lowest) != 0)
        return false;
    sched_setscheduler(0, policy, &old);
    return true;
}

finding scheduling()
{
    const bool real_time_kernel = first_line("/sys/kernel/realtime") == "1";
    const std::string kernel = real_time_kernel ? "real-time kernel" : "ordinary kernel";
    if (may_have_real_time_priority())
        return {"scheduling", kernel, verdict::ok, origin::none, "threads may ask for real-time priority"};
    rlimit limit{};
    getrlimit(RLIMIT_RTPRIO, &limit);
    return {"scheduling", kernel, verdict::note, origin::machine,
            fmt::format("threads are refused real-time priority (rtprio {}); see limits.conf or LimitRTPRIO=",
                        limit.rlim_cur)};
}

finding cores()
{
    cpu_set_t allowed;
    CPU_ZERO(&allowed);
    sched_getaffinity(0, sizeof allowed, &allowed);
    const int count = CPU_COUNT(&allowed);
    double load = 0;
    getloadavg(&load, 1);
    finding seen{"cores",     fmt::format("{} of {}, load {:.1f}", count, sysconf(_SC_NPROCESSORS_ONLN), load),
                 verdict::ok, origin::none,
                 {},          {{"cores", count}, {"load", load}}};
    seen.words = CPU_ISSET(library_core, &allowed) ? "the receive threads go to core 3"
                                                   : "no core 3 here: the receive threads run on any";
    if (load > count)
    {
        seen.judged = verdict::note;
        seen.blamed = origin::machine;
        seen.words += "; more wants to run than there are cores";
    }
    return seen;
}

finding governor()
{
    std::set<std::string> governors;
    for (int core = 0; core < sysconf(_SC_NPROCESSORS_CONF); ++core)
        governors.insert(first_line(fmt::format("/sys/devices/system/cpu/cpu{}/cpufreq/scaling_governor", core)));
    governors.erase("");
    if (governors.empty())
        return {"governor", "none", verdict::ok, origin::none, "this machine does not slow its cores down by itself"};
    const std::string names = fmt::format("{}", fmt::join(governors, ", "));
    if (governors == std::set<std::string>{"performance"})
        return {"governor", names, verdict::ok, origin::none, "cores keep their speed"};
    return {"governor", names, verdict::note, origin::machine,
            "cores that rest run slower at first; \"performance\" makes answers quicker"};
}

finding sigpipe()
{
    struct sigaction action
    {
    };
    sigaction(SIGPIPE, nullptr, &action);
    if (action.sa_handler == SIG_IGN)
        return {"SIGPIPE", "ignored", verdict::ok, origin::none, "programs started from here outlive a lost link"};
    return {"SIGPIPE", "default", verdict::ok, origin::none,
            "programs started from here are killed by a lost link, unless they ignore it before connecting"};
}

/// The directory, or the nearest above it that is there: the library makes the rest.
fs::path existing(fs::path directory)
{
    std::error_code failed;
    directory = fs::absolute(directory, failed);
    while (!fs::is_directory(directory, failed) && directory != directory.root_path())
        directory = directory.parent_path();
    return directory;
}

struct disk_speed
{
    int failure = 0; ///< an errno, 0 when all could be written
    distribution line;
    double megabytes_a_second = 0;
    double free_megabytes = 0;
};

disk_speed measured_disk(const fs::path& directory)
{
    disk_speed speed;
    struct statvfs space
    {
    };
    if (statvfs(directory.c_str(), &space) == 0)
        speed.free_megabytes = static_cast<double>(space.f_bavail) * static_cast<double>(space.f_frsize) / 1e6;
    std::string name = (directory / ".qorin_doctor.XXXXXX").string();
    const int file = mkostemp(name.data(), O_CLOEXEC);
    if (file < 0)
    {
        speed.failure = errno;
        return speed;
    }
    unlink(name.c_str());
    std::vector<double> lines;
    const std::string line(line_size, 'x');
    const auto end = clock::now() + block_time;
    while (speed.failure == 0 && lines.size() < line_count && clock::now() < end)
    {
        const auto begin = clock::now();
        if (write(file, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
            speed.failure = errno;
        lines.push_back(milliseconds(clock::now() - begin).count());
    }
    speed.line = distribution_of(lines);
    const std::string block(block_size, 'x');
    const auto begin = clock::now();
    std::size_t blocks = 0;
    while (speed.failure == 0 && blocks < most_blocks && clock::now() < begin + block_time)
    {
        if (write(file, block.data(), block.size()) != static_cast<ssize_t>(block.size()))
            speed.failure = errno;
        ++blocks;
    }
    fdatasync(file);
    speed.megabytes_a_second =
        static_cast<double>(blocks * block_size) / 1e3 / milliseconds(clock::now() - begin).count();
    close(file);
    return speed;
}
} // namespace

void examine_machine(findings& found)
{
    found.push_back(scheduling());
    found.push_back(cores());
    found.push_back(governor());
    found.push_back(sigpipe());
}

distribution examine_wakeup(findings& found)
{
    std::vector<double> late;
    const auto end = clock::now() + wakeup_time;
    for (auto due = clock::now(); due < end;)
    {
        due = std::max(due, clock::now()) + std::chrono::milliseconds(1);
        std::this_thread::sleep_until(due);
        late.push_back(milliseconds(clock::now() - due).count());
    }
    const distribution measured = distribution_of(late);
    finding seen{"wakeup",
                 fmt::format("median {:.2f} ms, 99 % {:.2f} ms", measured.median, measured.percentile_99),
                 verdict::ok,
                 origin::none,
                 "a thread that waits runs soon after it is due",
                 {{"median_ms", measured.median}, {"p99_ms", measured.percentile_99}, {"worst_ms", measured.worst}}};
    if (measured.percentile_99 > wakeup_note)
    {
        seen.judged = measured.percentile_99 > wakeup_warning ? verdict::warning : verdict::note;
        seen.blamed = origin::machine;
        seen.words = "threads get a core late: the machine is busy, asleep, or shared with others";
    }
    found.push_back(seen);
    return measured;
}

void examine_log_disk(const fs::path& directory, findings& found)
{
    const fs::path place = existing(directory);
    finding seen{"log disk", place.string(), verdict::warning, origin::machine, {}};
    const auto measured = within(disk_limit, [place] { return measured_disk(place); });
    if (!measured)
        seen.words = "some megabytes are not written after 3 seconds: logging will hold commands up";
    else if (measured->failure != 0)
        seen.words = fmt::format("no log can be written there: {}", std::strerror(measured->failure));
    else
    {
        seen.value = fmt::format("{:.3f} ms a line, {:.0f} MB/s", measured->line.median, measured->megabytes_a_second);
        seen.numbers = {{"line_median_ms", measured->line.median},
                        {"line_p99_ms", measured->line.percentile_99},
                        {"megabytes_per_s", measured->megabytes_a_second},
                        {"free_megabytes", measured->free_megabytes}};
        seen.words = fmt::format("{}: {:.0f} MB are free", place.string(), measured->free_megabytes);
        const bool slow = measured->line.median > line_warning || measured->megabytes_a_second < least_speed;
        if (slow)
            seen.words += "; every command waits for two lines of its log";
        else if (measured->line.median > line_note || measured->free_megabytes < least_space)
            seen.judged = verdict::note;
        else
        {
            seen.judged = verdict::ok;
            seen.blamed = origin::none;
        }
    }
    found.push_back(seen);
}
} // namespace qorin_cli::doctor
