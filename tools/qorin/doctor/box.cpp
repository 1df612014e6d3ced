#include "tools/qorin/doctor/box.h"

#include <atomic>
#include <cstring>
#include <mutex>
#include <thread>

#include <fmt/format.h>
#include <unistd.h>

#include "qorin/catalogue.h"
#include "qorin/event.h"
#include "qorin/system.h"
#include "tools/qorin/within.h"

namespace qorin_cli::doctor
{
namespace
{
constexpr double answer_note = 5;     // milliseconds, of the 99th percentile
constexpr double answer_warning = 20; // milliseconds

/// Of the events that are sent back: no group and no subgroup of the interface, so that no application takes them for
/// anything.
constexpr unsigned int no_group = 0;

constexpr auto pause = std::chrono::milliseconds(1); ///< between commands: the control box has others to serve

/// What a measuring thread has found yet. It may be left behind in a command.
struct answers
{
    std::mutex mutex;
    std::vector<double> times; ///< milliseconds
    QORIN_API_RESULT result = QORIN_API_RESULT_OK;
    int lost_events = 0;

    void add(clock::time_point begin)
    {
        const std::lock_guard lock(mutex);
        times.push_back(milliseconds(clock::now() - begin).count());
    }
    [[nodiscard]] std::vector<double> taken()
    {
        const std::lock_guard lock(mutex);
        return times;
    }
};

/// The latest event that came back. Callbacks have no argument of the application's own.
std::atomic<int> g_echoed = -1;

void take_echo(unsigned int group, unsigned int /*subgroup*/, unsigned int sender, int number, int, int, int, int)
{
    if (group != no_group || sender != static_cast<unsigned int>(getpid()))
        return;
    g_echoed = number;
}

std::string name_of(QORIN_API_RESULT result)
{
    return fmt::format("{} ({})", qorin_system_api_result_string_get(result), static_cast<int>(result));
}

/// Whose share of a time is the largest, and in words what is known of the shares.
void explain(finding& seen, double took, const surroundings& around)
{
    const double machine = around.wakeup.percentile_99;
    const double rest = took - around.network_round_trip - machine;
    seen.blamed = origin::control_box;
    if (around.network_round_trip > std::max(rest, machine))
        seen.blamed = origin::network;
    else if (machine > rest)
        seen.blamed = origin::machine;
    const char* whose = seen.blamed == origin::network   ? "the network is the largest share"
                        : seen.blamed == origin::machine ? "this machine is the largest share"
                                                         : "the rest is the control box";
    seen.words = fmt::format("of {:.2f} ms the network takes {:.2f}, waking up here up to {:.2f}: {}", took,
                             around.network_round_trip, machine, whose);
}

finding judged_times(const char* check, const std::vector<double>& times, const surroundings& around)
{
    const distribution measured = distribution_of(times);
    finding seen{check,
                 fmt::format("median {:.2f} ms, 99 % {:.2f} ms", measured.median, measured.percentile_99),
                 verdict::ok,
                 origin::none,
                 fmt::format("of {} times", times.size()),
                 {{"count", times.size()},
                  {"median_ms", measured.median},
                  {"p99_ms", measured.percentile_99},
                  {"worst_ms", measured.worst}}};
    if (measured.percentile_99 > answer_note)
    {
        seen.judged = measured.percentile_99 > answer_warning ? verdict::warning : verdict::note;
        explain(seen, measured.percentile_99, around);
    }
    return seen;
}

finding no_answer(const char* check, std::size_t answered)
{
    return {
        check, fmt::format("{} answers", answered), verdict::error, origin::control_box,
        fmt::format("a command got no reply within {} seconds; in an application it and all behind it wait for ever",
                    answer_limit.count())};
}

finding lost_link(const char* check, std::size_t answered)
{
    return {check, fmt::format("{} answers", answered), verdict::error, origin::control_box,
            "the control box closed the command link: commands answer 0 from there on"};
}

void ask(unsigned int cbox_id, clock::time_point end, answers& into)
{
    while (clock::now() < end)
    {
        QORIN_SWITCH controllable[32] = {}; // a command reads 128 bytes from each output
        const auto begin = clock::now();
        into.result = qorin_rpc_system_controllable_get(cbox_id, controllable);
        if (into.result == 0)
            return;
        into.add(begin);
        std::this_thread::sleep_for(pause);
    }
}

/// True when the event came back within the limit. There is no timed wait on an atomic, and events come quickly.
bool comes_back(int number)
{
    const auto end = clock::now() + answer_limit;
    while (g_echoed != number && clock::now() < end)
        std::this_thread::sleep_for(std::chrono::microseconds(20));
    return g_echoed == number;
}

void let_echo(unsigned int cbox_id, clock::time_point end, answers& into)
{
    for (int number = 0; clock::now() < end && into.lost_events == 0; ++number)
    {
        const auto begin = clock::now();
        into.result = qorin_rpc_ts_event_echo(cbox_id, no_group, no_group, static_cast<unsigned int>(getpid()), number,
                                              0, 0, 0, 0);
        if (into.result != QORIN_API_RESULT_OK)
            return;
        if (comes_back(number))
            into.add(begin);
        else
            ++into.lost_events;
        std::this_thread::sleep_for(pause);
    }
}
} // namespace

std::optional<unsigned int> connect_library(const std::string& config, const std::string& address,
                                            const std::string& version, const tick& show, findings& found)
{
    struct connected
    {
        QORIN_API_RESULT result;
        unsigned int id;
    };
    const auto connection = within(
        library_connect_limit,
        [config, address]
        {
            connected made = {QORIN_API_RESULT_OK, 0};
            made.result = qorin_rpc_system_cbox_connect(config.c_str(), address.c_str(), &made.id);
            return made;
        },
        show);
    if (!connection)
    {
        found.push_back(
            {"connection", "none", verdict::error, origin::control_box,
             "links stood by hand, and the library's were not taken within 5 seconds: the control box went"});
        return std::nullopt;
    }
    const bool differs = connection->result == QORIN_API_RESULT_ERROR_SW_VER_NOT_MATCHED;
    if (connection->result != QORIN_API_RESULT_OK && !differs)
    {
        found.push_back({"connection", name_of(connection->result), verdict::error, origin::control_box,
                         "links stood by hand, and the library got none: the control box went, or takes one client"});
        return std::nullopt;
    }
    finding versions{"versions", version, verdict::ok, origin::none, "control software and library are of one version"};
    if (version.empty())
    {
        versions.value = "none";
        versions.judged = verdict::note;
        versions.words = "no frame came, which would tell that of the control software";
    }
    else if (differs)
    {
        const char* seen = qorin_rpc_system_control_sw_version_get(connection->id);
        versions.judged = verdict::warning;
        versions.blamed = origin::setup;
        versions.words = seen == nullptr || version != seen
                             ? "the library got no frame within 2 seconds: its links are crossed or silent"
                             : fmt::format("the library is {}: fields of the status may lie elsewhere",
                                           qorin_system_api_version_get());
    }
    found.push_back(versions);
    return connection->id;
}

bool examine_round_trip(unsigned int cbox_id, milliseconds time, const surroundings& around, const tick& show,
                        findings& found)
{
    const auto measured = std::make_shared<answers>();
    const auto end = clock::now() + std::chrono::duration_cast<clock::duration>(time);
    const auto done = within(
        time + answer_limit,
        [=]
        {
            ask(cbox_id, end, *measured);
            return true;
        },
        show);
    const auto times = measured->taken();
    const char* check = "round trip";
    if (!times.empty())
        found.push_back(judged_times(check, times, around));
    if (!done)
        found.push_back(no_answer(check, times.size()));
    else if (measured->result == 0)
        found.push_back(lost_link(check, times.size()));
    return done && measured->result != 0;
}

void examine_events(unsigned int cbox_id, milliseconds time, const surroundings& around, const tick& show,
                    findings& found)
{
    const auto measured = std::make_shared<answers>();
    const auto end = clock::now() + std::chrono::duration_cast<clock::duration>(time);
    const auto done = within(
        time + answer_limit + answer_limit,
        [=]
        {
            qorin_rpc_system_event_callback_add(cbox_id, take_echo);
            let_echo(cbox_id, end, *measured);
            return true;
        },
        show);
    const auto times = measured->taken();
    const char* check = "events";
    if (!times.empty())
        found.push_back(judged_times(check, times, around));
    if (!done)
        found.push_back(no_answer(check, times.size()));
    else if (measured->result == 0)
        found.push_back(lost_link(check, times.size()));
    else if (measured->result != QORIN_API_RESULT_OK)
        found.push_back({check, name_of(measured->result), verdict::note, origin::none,
                         "the control box does not send events back: their delay is not known"});
    else if (measured->lost_events > 0)
        found.push_back(
            {check, fmt::format("{} came back", times.size()), verdict::error, origin::control_box,
             "an event did not come back within 2 seconds: the event link or the data link is lost or silent"});
}
} // namespace qorin_cli::doctor
