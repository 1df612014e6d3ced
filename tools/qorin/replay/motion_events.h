#ifndef TOOLS_QORIN_REPLAY_MOTION_EVENTS_H
#define TOOLS_QORIN_REPLAY_MOTION_EVENTS_H

#include <array>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <utility>
#include <vector>

namespace qorin_cli::replay
{
/// How many events of motions there were, by their subgroup: started, completed, settled, paused, stopped.
using motion_counts = std::array<unsigned int, 8>;

/// The events of motions that a run had, from the event log beside its call log.
class recorded_motions
{
public:
    recorded_motions() = default;

    /// @param call_directory  of the call log. @throws failure when no event log stands beside it, or it is damaged.
    explicit recorded_motions(const std::filesystem::path& call_directory);

    /// Forgets what came before this local time.
    void start_at(std::chrono::milliseconds time);

    /// Those from the start until right before a local time, which only ever grows.
    const motion_counts& until(std::chrono::milliseconds time);

    /// When the last of these came.
    [[nodiscard]] std::chrono::milliseconds last() const { return last_; }

private:
    std::vector<std::pair<std::chrono::milliseconds, std::size_t>> events_; ///< times, and places in the counts
    std::size_t next_ = 0;
    motion_counts counts_ = {};
    std::chrono::milliseconds last_{};
};

/// Begins to count the events of motions of a control box.
void count_motions(unsigned int cbox_id);

/// Whether as many events as these have come, of all control boxes together.
[[nodiscard]] bool have_come(const motion_counts& counts);
} // namespace qorin_cli::replay

#endif
