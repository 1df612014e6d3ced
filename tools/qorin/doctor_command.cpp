#include <csignal>
#include <cstdlib>
#include <memory>
#include <thread>

#include <arpa/inet.h>
#include <fmt/format.h>
#include <unistd.h>

#include "tools/qorin/connection.h"
#include "tools/qorin/doctor/box.h"
#include "tools/qorin/doctor/findings.h"
#include "tools/qorin/doctor/links.h"
#include "tools/qorin/doctor/machine.h"
#include "tools/qorin/doctor/setup.h"
#include "tools/qorin/subcommands.h"
#include "tools/qorin/terminal.h"

namespace qorin_cli
{
namespace
{
using namespace doctor;

/// Between the end of one client and the links of the next, so that the control box does not take them for one's.
constexpr auto between_clients = std::chrono::milliseconds(400);

/// What each stage takes of the time that the user gave.
constexpr double frames_share = 0.5;
constexpr double answers_share = 0.3;
constexpr double events_share = 0.2;

struct request
{
    connection_options connection;
    double seconds = 5;
    bool json = false;
};

/// The longest that all stages can take together, in seconds.
double longest(const request& asked)
{
    const milliseconds limits = 3 * probe_links::connect_limit + probe_links::first_frame_limit +
                                library_connect_limit + 3 * answer_limit + std::chrono::seconds(5);
    return asked.seconds + limits.count() / 1e3;
}

/// A line that fills up on a terminal, and nothing elsewhere.
class progress
{
public:
    explicit progress(double seconds) : seconds_(seconds), shown_(isatty(STDERR_FILENO) == 1) {}
    ~progress()
    {
        if (shown_)
            fmt::print(stderr, "\r\x1b[K");
    }
    progress(const progress&) = delete;
    progress& operator=(const progress&) = delete;

    void show(const char* stage)
    {
        if (!shown_ || clock::now() < due_)
            return;
        due_ = clock::now() + std::chrono::milliseconds(100);
        constexpr double width = 30;
        const double share = std::min(1.0, milliseconds(clock::now() - begin_).count() / 1e3 / seconds_);
        const std::string bar(static_cast<std::size_t>(share * width), '#');
        fmt::print(stderr, "\r[{:30}] {}\x1b[K", bar, stage);
        std::fflush(stderr);
    }

private:
    double seconds_;
    bool shown_;
    clock::time_point begin_ = clock::now();
    clock::time_point due_ = begin_;
};

void examine_box(const request& asked, const std::string& config, progress& bar, findings& found)
{
    const milliseconds time(asked.seconds * 1e3);
    surroundings around{};
    around.wakeup = examine_wakeup(found);
    std::string version;
    {
        probe_links links;
        bar.show("links");
        if (!links.connect(asked.connection.address, found))
            return;
        const bool come = links.watch_frames(
            time * frames_share, around.wakeup, [&] { bar.show("frames"); }, found);
        // Commands are answered whether or not frames come; links that are crossed are not worth more.
        if (!come && found.back().check == "links")
            return;
        around.network_round_trip = links.network_round_trip();
        version = links.version();
    }
    std::this_thread::sleep_for(between_clients);
    const auto id = connect_library(
        config, asked.connection.address, version, [&] { bar.show("connection"); }, found);
    if (id && examine_round_trip(
                  *id, time * answers_share, around, [&] { bar.show("round trip"); }, found))
        examine_events(
            *id, time * events_share, around, [&] { bar.show("events"); }, found);
}

int examine(const request& asked)
{
    in_addr address{};
    if (inet_pton(AF_INET, asked.connection.address.c_str(), &address) != 1)
        throw failure(fmt::format("{} is no IPv4 address, as the library takes alone", asked.connection.address),
                      status_usage);
    findings found;
    examine_machine(found);
    std::signal(SIGPIPE, SIG_IGN);
    if (!asked.json)
        fmt::print(stderr, "{}: at most {:.0f} seconds; nothing is moved or changed\n", asked.connection.address,
                   longest(asked));
    {
        progress bar(asked.seconds + 4);
        // The library itself is set up by the built-in configuration: the user's logs stay as they are.
        const std::string built_in = configuration_in_memory();
        const bool is_given = !asked.connection.config.empty();
        const directories places = examine_configuration(is_given ? asked.connection.config : built_in, found);
        if (!is_given)
            found.back() = {"configuration", "none", verdict::note, origin::none,
                            "give --config to have its keys examined"};
        if (!places.logs.empty())
        {
            examine_kinematics(places.kinematics, found);
            examine_log_disk(places.logs, found);
        }
        examine_box(asked, built_in, bar, found);
    }
    if (asked.json)
    {
        nlohmann::json report = json_of(found);
        report["address"] = asked.connection.address;
        report["seconds_at_most"] = longest(asked);
        fmt::print("{}\n", report.dump(2));
    }
    else
        fmt::print("{}", table_of(found, palette(STDOUT_FILENO).has_colours()));
    return worst_of(found) < verdict::warning ? status_ok : status_failed;
}
} // namespace

void add_doctor(CLI::App& program, action& chosen)
{
    const auto asked = std::make_shared<request>();
    CLI::App* doctor = program.add_subcommand(
        "doctor", "Measure, and tell whether network, machine or control box is slow. Moves and changes nothing.");
    asked->connection.describe(*doctor);
    doctor->add_option("--seconds", asked->seconds, "How long to measure; limits for what does not answer come on top")
        ->check(CLI::Range(0.5, 3600.0))
        ->capture_default_str();
    doctor->add_flag("--json", asked->json, "Print the findings as JSON");
    doctor->footer("Ends with status 0 when nothing is worse than a note, 1 after a warning or an error.");
    doctor->callback([asked, &chosen] { chosen = [asked] { return examine(*asked); }; });
}
} // namespace qorin_cli
