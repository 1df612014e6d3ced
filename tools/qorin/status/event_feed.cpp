#include "tools/qorin/status/event_feed.h"

#include <ctime>
#include <fstream>
#include <map>
#include <mutex>
#include <utility>

#include <fmt/chrono.h>
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <sys/mman.h>
#include <unistd.h>

#include "qorin/catalogue.h"
#include "qorin/event.h"
#include "tools/qorin/status/enumeration_names.h"

namespace qorin_cli
{
namespace
{
std::mutex g_events_mutex;
std::vector<event> g_events;

void keep_event(unsigned int group, unsigned int subgroup, unsigned int sender, int p1, int p2, int p3, int p4, int p5)
{
    const std::lock_guard lock(g_events_mutex);
    g_events.push_back({std::chrono::system_clock::now(), group, subgroup, sender, {p1, p2, p3, p4, p5}});
}

/// The text of a line `<tag>text</tag>` of the catalogue's file, which escapes nothing.
std::pair<std::string, std::string> element_of(const std::string& line)
{
    const std::size_t begin = line.find('<');
    const std::size_t open_end = line.find('>');
    const std::size_t close = line.rfind("</");
    if (close == std::string::npos || close <= open_end)
        return {};
    return {line.substr(begin + 1, open_end - begin - 1), line.substr(open_end + 1, close - open_end - 1)};
}

/// The interface tells the catalogue as a file alone.
std::map<unsigned int, event_explanation> read_catalogue()
{
    std::map<unsigned int, event_explanation> catalogue;
    const int file = memfd_create("qorin_events", MFD_CLOEXEC);
    const std::string path = fmt::format("/proc/self/fd/{}", file);
    qorin_system_error_event_description_all_xml_save(path.c_str());
    std::ifstream lines(path);
    event_explanation* row = nullptr;
    for (std::string line; std::getline(lines, line);)
    {
        const auto [tag, text] = element_of(line);
        if (tag == "Code")
            row = &catalogue[static_cast<unsigned int>(std::stoul(text))];
        else if (row != nullptr && tag == "Description")
            row->description = text;
        else if (row != nullptr && tag == "SendID")
            row->values = text;
        else if (row != nullptr && tag == "HowToHandle")
            row->advice = text;
    }
    close(file);
    return catalogue;
}

std::chrono::milliseconds below_a_second(std::chrono::system_clock::time_point time)
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(time - std::chrono::floor<std::chrono::seconds>(time));
}
} // namespace

std::string event::group_name() const
{
    return member_name(group, "QORIN_EVENT_GRP_");
}

std::string event::name() const
{
    return member_name(subgroup, "QORIN_EVENT_SUBGRP_");
}

event_explanation explain_event(unsigned int subgroup)
{
    static const std::map<unsigned int, event_explanation> catalogue = read_catalogue();
    const auto found = catalogue.find(subgroup);
    return found == catalogue.end() ? event_explanation() : found->second;
}

void collect_events(unsigned int cbox_id)
{
    qorin_rpc_system_event_callback_add(cbox_id, keep_event);
}

void stop_collecting_events(unsigned int cbox_id)
{
    qorin_rpc_system_event_callback_remove(cbox_id, keep_event);
}

std::vector<event> take_events()
{
    const std::lock_guard lock(g_events_mutex);
    return std::exchange(g_events, {});
}

std::string event_line(const event& happened)
{
    std::string line = fmt::format("{}  {}  sender {}", time_of_day(happened.time), happened.name(), happened.sender);
    if (happened.parameters == decltype(happened.parameters){})
        return line;
    return fmt::format("{}  parameters {}", line, fmt::join(happened.parameters, " "));
}

std::string time_of_day(std::chrono::system_clock::time_point time)
{
    return fmt::format("{:%H:%M:%S}.{:03}", fmt::localtime(std::chrono::system_clock::to_time_t(time)),
                       below_a_second(time).count());
}

std::string time_stamp(std::chrono::system_clock::time_point time)
{
    return fmt::format("{:%Y-%m-%dT%H:%M:%S}.{:03}Z", fmt::gmtime(std::chrono::system_clock::to_time_t(time)),
                       below_a_second(time).count());
}
} // namespace qorin_cli
