#ifndef TOOLS_QORIN_VIEW_STATUS_SOURCE_H
#define TOOLS_QORIN_VIEW_STATUS_SOURCE_H

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "tools/qorin/status/event_feed.h"
#include "tools/qorin/status/status_fields.h"

namespace qorin_view
{
using qorin_cli::field_info;
using qorin_cli::field_value;

struct event_record
{
    std::uint64_t number; ///< from 1 on
    double time;          ///< as status times are
    qorin_cli::event event;
};

/**
 * Where the status and the events come from that viewers are shown: a control box, or a recording.
 */
class status_source
{
public:
    /// Valid until the next reading.
    struct reading
    {
        double time; ///< seconds since 1970, in a recording since its start
        std::span<const field_value> values;
    };

    virtual ~status_source() = default;

    [[nodiscard]] virtual const std::vector<field_info>& fields() const = 0;

    /// What it is: the address of a control box, the name of a recording.
    [[nodiscard]] virtual std::string name() const = 0;
    [[nodiscard]] virtual std::string control_software() const = 0;

    /// Seconds that a recording takes; 0 for what is live.
    [[nodiscard]] virtual double duration() const { return 0; }

    /// Reads all fields, in their order. `time` is asked for in a recording, in seconds from its start.
    [[nodiscard]] virtual reading read(double time) = 0;

    /// To be called often.
    virtual void look() {}

    /// Events since the last call, or all of a recording.
    [[nodiscard]] virtual std::vector<event_record> take_events() = 0;

    /// Makes a new connection in the place of a lost one, without waiting for it.
    virtual void connect_again() {}

    /// A line on what has gone wrong since the last call; mostly empty.
    [[nodiscard]] virtual std::string take_notice() { return {}; }
};
} // namespace qorin_view

#endif
