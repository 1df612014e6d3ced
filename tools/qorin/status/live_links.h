#ifndef TOOLS_QORIN_STATUS_LIVE_LINKS_H
#define TOOLS_QORIN_STATUS_LIVE_LINKS_H

#include <chrono>
#include <string>
#include <vector>

namespace qorin_cli
{
/**
 * Tells whether the control box that this process is connected to is still there.
 *
 * Getters answer from the last frame for ever, and a command waits for a silent box as long. So the sockets of the
 * three links are looked at, as the operating system knows them: nothing is sent.
 */
class live_links
{
public:
    /// A box that has sent nothing for so long is taken to be gone.
    static constexpr std::chrono::seconds patience{5};

    /// @param address  of a control box that this process has just connected to
    explicit live_links(std::string address);

    /// @throws failure once a link has ended, or nothing has come for as long as the patience lasts.
    void expect_alive() const;

    /// How long ago the control box has sent anything.
    [[nodiscard]] std::chrono::milliseconds silence() const;

private:
    std::string address_;
    std::vector<int> sockets_;
};
} // namespace qorin_cli

#endif
