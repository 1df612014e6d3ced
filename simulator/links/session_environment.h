#ifndef SIMULATOR_LINKS_SESSION_ENVIRONMENT_H
#define SIMULATOR_LINKS_SESSION_ENVIRONMENT_H

#include <atomic>
#include <cstdint>
#include <functional>

#include "simulator/commands/command_table.h"
#include "simulator/log.h"
#include "simulator/model/box_model.h"

namespace cbox_simulator
{
/// Counts of a box's life. Written on the io thread, read from any.
struct box_counters
{
    std::atomic<std::uint64_t> clients_connected{0}; ///< complete clients at this moment
    std::atomic<std::uint64_t> clients_accepted{0};  ///< clients that became complete, ever
    std::atomic<std::uint64_t> commands_served{0};   ///< replies made, unknown commands included
    std::atomic<std::uint64_t> frames_sent{0};       ///< whole frames, over all clients
    std::atomic<std::uint64_t> frames_skipped{0};    ///< frames that a slow reader was not given
    std::atomic<std::uint64_t> chaser_taken{0};      ///< datagrams of joint streams that a robot follows
    std::atomic<std::uint64_t> chaser_ignored{0};    ///< datagrams at the streams' ports that told no robot anything
};

/// What a client's session needs of the box that it belongs to. Owned by the box, outlives every session.
struct session_environment
{
    box_model& model;
    const command_table& commands;
    const console_log& log;
    box_counters& counters;
    std::function<void()> deliver_events; ///< sends what the model's outbox holds to all complete clients
    std::function<void()> exit_requested; ///< called when the reply to the exit command is on its way
};
} // namespace cbox_simulator

#endif
