#include <algorithm>
#include <memory>

#include <nlohmann/json.hpp>

#include "qorin/event_codes.h"
#include "tools/qorin/connection.h"
#include "tools/qorin/interruption.h"
#include "tools/qorin/status/enumeration_names.h"
#include "tools/qorin/status/event_feed.h"
#include "tools/qorin/status/live_links.h"
#include "tools/qorin/subcommands.h"
#include "tools/qorin/terminal.h"

namespace qorin_cli
{
namespace
{
using namespace std::chrono_literals;

constexpr double usual_seconds = 10;

struct events_request
{
    connection_options connection;
    bool follow = false;
    bool json = false;
    double seconds = usual_seconds;
    std::string group;
};

std::vector<std::string> group_names()
{
    std::vector<std::string> names;
    for (unsigned int group = QORIN_EVENT_GRP_ERROR; group <= QORIN_EVENT_GRP_MODBUS_NOTI; group += 1000)
        names.push_back(member_name(group, "QORIN_EVENT_GRP_"));
    return names;
}

/// The group of a name, or of a part of it that no other group has.
std::string group_of(std::string name)
{
    if (name.empty())
        return name;
    std::ranges::transform(name, name.begin(), [](unsigned char letter) { return std::toupper(letter); });
    if (constexpr std::string_view prefix = "QORIN_EVENT_GRP_"; name.starts_with(prefix))
        name.erase(0, prefix.size());
    const std::vector<std::string> all = group_names();
    if (std::ranges::find(all, name) != all.end())
        return name;
    std::vector<std::string> fitting;
    std::ranges::copy_if(all, std::back_inserter(fitting),
                         [&](const std::string& group) { return group.find(name) != std::string::npos; });
    if (fitting.size() != 1)
        throw failure(fmt::format("{} event group: {}; groups are {}", fitting.empty() ? "no" : "more than one", name,
                                  fmt::join(all, ", ")),
                      status_usage);
    return fitting[0];
}

void print_as_json(const event& happened)
{
    const event_explanation known = explain_event(happened.subgroup);
    nlohmann::ordered_json line = {{"time", time_stamp(happened.time)}, {"group", happened.group_name()},
                                   {"event", happened.name()},          {"code", happened.subgroup},
                                   {"sender", happened.sender},         {"parameters", happened.parameters}};
    if (!known.description.empty())
        line.update({{"description", known.description}, {"values", known.values}, {"advice", known.advice}});
    fmt::print("{}\n", line.dump());
}

void print_as_text(const event& happened, const palette& colours)
{
    const event_explanation known = explain_event(happened.subgroup);
    const bool is_trouble = !known.description.empty();
    fmt::print("{}\n", is_trouble ? colours.paint(event_line(happened), palette::red) : event_line(happened));
    if (is_trouble)
        fmt::print("{0:14}{1}\n{0:14}sender and parameters: {2}\n{0:14}advice: {3}\n", "", known.description,
                   known.values, known.advice);
}

void tell_what_is_shown(const events_request& request)
{
    const std::string time = request.follow ? "until Ctrl-C" : fmt::format("for {:g} seconds", request.seconds);
    fmt::print(stderr, "qorin: showing events {}; those before now are not known\n", time);
}

int show_events(const events_request& request)
{
    const std::string group = group_of(request.group);
    const unsigned int cbox = connect(request.connection);
    collect_events(cbox);
    catch_interruption();
    tell_what_is_shown(request);
    const live_links links(request.connection.address);
    const palette colours(STDOUT_FILENO);
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(request.seconds);
    for (bool goes_on = true; goes_on;)
    {
        goes_on = sleep_unless_interrupted(20ms) && (request.follow || std::chrono::steady_clock::now() < end);
        for (const event& happened : take_events())
            if (group.empty() || happened.group_name() == group)
                request.json ? print_as_json(happened) : print_as_text(happened, colours);
        if (std::fflush(stdout) != 0)
            return status_failed;
        links.expect_alive();
    }
    return status_ok;
}
} // namespace

void add_events(CLI::App& program, action& chosen)
{
    CLI::App* events = program.add_subcommand(
        "events", "Show the events of a control box as they come, with what the catalogue advises.");
    events->footer("A control box tells nobody what happened before the connection.");
    const auto request = std::make_shared<events_request>();
    request->connection.describe(*events);
    auto* const follow = events->add_flag("--follow,-f", request->follow, "Go on until Ctrl-C");
    events->add_option("--seconds", request->seconds, "Otherwise end after so long")
        ->check(CLI::PositiveNumber)
        ->capture_default_str()
        ->excludes(follow);
    events->add_option("--group,-g", request->group, "Only this group: its name, or a part of it that no other has")
        ->type_name(fmt::format("TEXT:{{{}}}", fmt::join(group_names(), ",")));
    events->add_flag("--json", request->json, "A JSON object a line");
    events->callback([request, &chosen] { chosen = [request] { return show_events(*request); }; });
}
} // namespace qorin_cli
