#ifndef TOOLS_QORIN_VIEW_LINK_WATCH_H
#define TOOLS_QORIN_VIEW_LINK_WATCH_H

#include <chrono>
#include <cstdint>
#include <set>
#include <string>

#include <sys/types.h>

namespace qorin_view
{
/// How the link stands over which the status comes.
enum class link_state : std::uint32_t
{
    connecting,
    connected,
    silent, ///< open, but for a second nothing has come
    lost
};

/**
 * Looks after the link that brings the status frames, without sending anything and without a word from the library: by
 * what the operating system tells of its socket.
 *
 * The mirror cannot tell: the frames of a cell at rest may be equal, and a lost link leaves the last one standing.
 */
class link_watch
{
public:
    using clock = std::chrono::steady_clock;

    /// The sockets of this process, by which one that is made later is known.
    [[nodiscard]] static std::set<ino_t> sockets();

    link_watch() = default;
    /// For the connection to `address` that was made after `before` was asked.
    link_watch(const std::string& address, const std::set<ino_t>& before);
    ~link_watch();
    link_watch(link_watch&& other) noexcept;
    link_watch& operator=(link_watch&& other) noexcept;

    /// To be called often: no gap is seen that begins and ends between two calls.
    void look();

    [[nodiscard]] link_state state() const { return state_; }
    [[nodiscard]] double frame_rate() const { return rate_; }  ///< frames a second, over the last one
    [[nodiscard]] double longest_gap() const { return gap_; }  ///< milliseconds without a byte, in the last second
    [[nodiscard]] std::uint32_t gaps() const { return gaps_; } ///< so far: 20 milliseconds and five frames' time

private:
    void judge_second(clock::time_point now, std::uint64_t received);

    int socket_ = -1;
    link_state state_ = link_state::lost;
    clock::time_point second_began_ = clock::now();
    std::uint64_t received_then_ = 0;
    double gap_this_second_ = 0;
    bool in_gap_ = false;
    double rate_ = 0;
    double gap_ = 0;
    std::uint32_t gaps_ = 0;
};
} // namespace qorin_view

#endif
