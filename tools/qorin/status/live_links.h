#ifndef TOOLS_QORIN_STATUS_LIVE_LINKS_H
#define TOOLS_QORIN_STATUS_LIVE_LINKS_H

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <sys/types.h>

namespace qorin_cli
{
/**
 * Tells whether the control box that this process is connected to is still there, and how its status frames come.
 *
 * Getters answer from the last frame for ever, and a command waits for a silent box as long. So the sockets of the
 * three links are looked at, as the operating system knows them: nothing is sent.
 */
class live_links
{
public:
    using clock = std::chrono::steady_clock;

    /// A box that has sent nothing for so long is taken to be gone.
    static constexpr std::chrono::seconds patience{5};

    enum class state
    {
        connected,
        silent, ///< open, but for a second nothing has come
        lost
    };

    /// The sockets of this process, by which those that are made later are known.
    [[nodiscard]] static std::set<ino_t> sockets();

    /// @param address  of a control box that this process has just connected to
    /// @param before   what sockets() told before, where there may be older links to the same address
    explicit live_links(std::string address, const std::set<ino_t>& before = {});

    /// @throws failure once a link has ended, or nothing has come for as long as the patience lasts.
    void expect_alive() const;

    /// How long ago the control box has sent anything.
    [[nodiscard]] std::chrono::milliseconds silence() const;

    /// Measures what follows. To be called often: no gap is seen that begins and ends between two calls.
    void look();

    [[nodiscard]] state link_state() const { return state_; }
    [[nodiscard]] double frame_rate() const { return rate_; }  ///< frames a second, over the last one
    [[nodiscard]] double longest_gap() const { return gap_; }  ///< milliseconds without a byte, in the last second
    [[nodiscard]] std::uint32_t gaps() const { return gaps_; } ///< so far: 20 milliseconds and five frames' time

private:
    struct traffic
    {
        double quiet = 0; ///< milliseconds since the last byte
        std::uint64_t received = 0;
    };

    /// Of the link over which the status comes; nothing once a link has ended.
    [[nodiscard]] std::optional<traffic> status_traffic() const;
    void judge_second(clock::time_point now, std::uint64_t received);

    std::string address_;
    /// Descriptors of its own: they stay with these links, whatever becomes of the library's.
    std::vector<std::shared_ptr<const int>> sockets_;
    state state_ = state::lost;
    clock::time_point second_began_ = clock::now();
    std::uint64_t received_then_ = 0;
    double gap_this_second_ = 0;
    bool in_gap_ = false;
    double rate_ = 0;
    double gap_ = 0;
    std::uint32_t gaps_ = 0;
};
} // namespace qorin_cli

#endif
