#ifndef SIMULATOR_COUNTERS_H
#define SIMULATOR_COUNTERS_H

#include <atomic>
#include <cstdint>

namespace cbox_simulator
{
template <class Count>
struct counters_of
{
    Count clients_connected{0}; ///< complete clients at this moment
    Count clients_accepted{0};  ///< clients that became complete, ever
    Count commands_served{0};   ///< replies made, unknown commands included
    Count frames_sent{0};       ///< whole frames, over all clients
    Count frames_skipped{0};    ///< frames that a slow reader was not given
    Count chaser_taken{0};      ///< datagrams of joint streams that a robot follows
    Count chaser_ignored{0};    ///< datagrams at the streams' ports that told no robot anything
};

/// Counts of a box's life. Written on the io thread, read from any.
using box_counters = counters_of<std::atomic<std::uint64_t>>;

/// The counts of a box at one moment.
using control_box_counters = counters_of<std::uint64_t>;

[[nodiscard]] inline control_box_counters snapshot(const box_counters& counters)
{
    const auto& [connected, accepted, served, sent, skipped, taken, ignored] = counters;
    return {connected, accepted, served, sent, skipped, taken, ignored};
}
} // namespace cbox_simulator

#endif
