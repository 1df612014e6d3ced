#ifndef SIMULATOR_LINKS_FAULT_PLAN_H
#define SIMULATOR_LINKS_FAULT_PLAN_H

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "qorin/result.h"

namespace cbox_simulator
{
/// The links of a client, in the order in which it makes them.
enum link_index : std::size_t
{
    command_link,
    data_link,
    event_link,
    link_count
};

/// What happens to the bytes that the box sends on a link. Bytes count from the link's beginning.
struct link_faults
{
    std::optional<std::uint64_t> close_after;
    std::optional<std::uint64_t> stall_after; ///< the link stays open, and silent
    bool split = false;                       ///< each byte goes out by itself

    /// How many more bytes may go.
    [[nodiscard]] std::uint64_t room(std::uint64_t sent) const;
    /// Whether the link is to be closed now.
    [[nodiscard]] bool closes_at(std::uint64_t sent) const { return close_after && sent >= *close_after; }
};

/**
 * What is to go wrong between a box and its clients, for tests of applications: nothing, unless it is asked for.
 *
 * Holds for every client. Plain data: whoever runs the box asks it at the places where the faults happen.
 */
struct fault_plan
{
    static constexpr std::uint32_t always = std::numeric_limits<std::uint32_t>::max();

    std::array<std::uint32_t, link_count> refusals{}; ///< how many times a link of that place is refused yet
    std::array<link_faults, link_count> links;
    std::chrono::milliseconds reply_delay{};
    std::map<std::string, std::chrono::milliseconds, std::less<>> reply_delays; ///< by wire name, in place of the other
    std::map<std::string, QORIN_API_RESULT, std::less<>> answers;               ///< by wire name: nothing is performed
    std::optional<std::string> version_text;
    std::chrono::milliseconds frame_delay{};
    double lost_frames = 0; ///< the share of them, 0 to 1

    /// Takes one fault as text: `refuse:LINK[:TIMES]`, `close:LINK:BYTES`, `stall:LINK:BYTES`, `split:LINK`,
    /// `delay:MILLISECONDS[:COMMAND]`, `answer:COMMAND:RESULT`, `version:TEXT`, `late:MILLISECONDS`, `lose:SHARE`.
    /// Throws std::invalid_argument, with one line, for what is none.
    void add(std::string_view fault);

    /// True when the link is to be refused, and one time less from then on.
    [[nodiscard]] bool take_refusal(link_index link);
    [[nodiscard]] std::chrono::milliseconds delay_of(std::string_view wire_name) const;
    /// Nothing when the command is to be performed.
    [[nodiscard]] std::optional<QORIN_API_RESULT> answer_to(std::string_view wire_name) const;
};
} // namespace cbox_simulator

#endif
