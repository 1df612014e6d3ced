#include "tools/qorin/replay/motion_events.h"

#include <algorithm>
#include <atomic>
#include <optional>
#include <string_view>

#include <fmt/format.h>

#include "qorin/event.h"
#include "tools/function_table/function_rows.h"
#include "tools/log_reader/log_files.h"
#include "tools/log_reader/log_record_reader.h"
#include "tools/qorin/replay/call_log.h"
#include "tools/qorin/subcommands.h"

namespace qorin_cli::replay
{
namespace
{
namespace fs = std::filesystem;

constexpr std::size_t time_size = sizeof "2026.11.22,09h30m02s716" - 1;

std::array<std::atomic<unsigned int>, std::tuple_size_v<motion_counts>> g_counts;

/// The place of a subgroup in the counts. Blending and weaving tell of themselves as often as their geometry has it.
std::optional<std::size_t> place_of(unsigned int subgroup)
{
    if (subgroup < QORIN_EVENT_SUBGRP_MOTION_COMMAND_STARTED ||
        subgroup > QORIN_EVENT_SUBGRP_MOTION_COMMAND_STOP_SETTLED_DOWN ||
        subgroup == QORIN_EVENT_SUBGRP_MOTION_COMMAND_BLENDING_MOTION_ALMOST_COMPLETED)
        return std::nullopt;
    return subgroup - QORIN_EVENT_SUBGRP_MOTION_COMMAND_STARTED;
}

void count_event(unsigned int /*group*/, unsigned int subgroup, unsigned int, int, int, int, int, int)
{
    if (const auto place = place_of(subgroup))
        ++g_counts[*place];
}

/// The place in the counts of a line of the event log that tells of a motion.
std::optional<std::size_t> place_of_line(std::string_view line)
{
    constexpr std::string_view mark = ", sub: ";
    const std::size_t at = line.find(mark);
    if (line.find("[EVENT]") == std::string_view::npos || at == std::string_view::npos)
        return std::nullopt;
    const std::string_view name = line.substr(at + mark.size(), line.find_last_not_of('\n') + 1 - at - mark.size());
    const auto& members = find_enumeration("QORIN_EVENT_SUBGRP")->members;
    const auto member = std::ranges::find(members, name, &member_row::name);
    return member == members.end() ? std::nullopt : place_of(member->value);
}
} // namespace

recorded_motions::recorded_motions(const fs::path& call_directory)
{
    constexpr std::string_view call_ending = "_call_log";
    std::string name = call_directory.string();
    if (name.ends_with(call_ending))
        name.replace(name.size() - call_ending.size(), call_ending.size(), "_event_log");
    if (name == call_directory.string() || !fs::is_directory(name))
        throw failure(
            "--wait-motions wants the event log of the same run in its directory beside that of the call log");
    for (const fs::path& file : qorin_log::numbered_files(name))
    {
        qorin_log::log_record_reader reader(file);
        while (const auto line = reader.next())
            if (const auto time = parsed_time(line->substr(0, time_size)))
                if (const auto place = place_of_line(*line))
                    events_.emplace_back(*time, *place);
        reader.expect_end();
    }
}

void recorded_motions::start_at(std::chrono::milliseconds time)
{
    until(time);
    counts_ = {};
}

const motion_counts& recorded_motions::until(std::chrono::milliseconds time)
{
    for (; next_ < events_.size() && events_[next_].first < time; ++next_)
    {
        ++counts_[events_[next_].second];
        last_ = events_[next_].first;
    }
    return counts_;
}

void count_motions(unsigned int cbox_id)
{
    qorin_rpc_system_event_group_callback_add(cbox_id, count_event, QORIN_EVENT_GRP_MOTION_COMMAND);
}

bool have_come(const motion_counts& counts)
{
    return std::ranges::equal(g_counts, counts, [](unsigned int come, unsigned int wanted) { return come >= wanted; });
}
} // namespace qorin_cli::replay
