#ifndef TOOLS_QORIN_DOCTOR_LINKS_H
#define TOOLS_QORIN_DOCTOR_LINKS_H

#include <array>
#include <optional>
#include <string>

#include "tools/qorin/doctor/findings.h"
#include "tools/qorin/doctor/measuring.h"

namespace qorin_cli::doctor
{
/**
 * The three links of a client of the control box, made by hand: with a limit, which the library has none of, and with
 * the times at which the kernel got what came. Sends nothing.
 */
class probe_links
{
public:
    static constexpr auto connect_limit = std::chrono::seconds(3); ///< of each link; a lost packet costs one second
    static constexpr auto first_frame_limit = std::chrono::seconds(2);
    static constexpr auto silence_limit = std::chrono::seconds(1); ///< between frames

    probe_links() = default;
    ~probe_links();
    probe_links(const probe_links&) = delete;
    probe_links& operator=(const probe_links&) = delete;

    /// Makes the links in their order. @return whether all stand.
    bool connect(const std::string& address, findings& found);

    /// Looks at what comes on the links, for a time. @return whether frames came and where they should.
    bool watch_frames(milliseconds time, const distribution& wakeup, const tick& show, findings& found);

    /// The quickest of the three handshakes, in milliseconds: a round trip of the network alone.
    [[nodiscard]] double network_round_trip() const { return network_round_trip_; }

    /// The version text in the first frame.
    [[nodiscard]] const std::string& version() const { return version_; }

private:
    std::array<int, 3> links_ = {-1, -1, -1};
    double network_round_trip_ = 0;
    std::string version_;
};
} // namespace qorin_cli::doctor

#endif
