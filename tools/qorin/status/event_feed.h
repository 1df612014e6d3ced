#ifndef TOOLS_QORIN_STATUS_EVENT_FEED_H
#define TOOLS_QORIN_STATUS_EVENT_FEED_H

#include <array>
#include <chrono>
#include <string>
#include <vector>

namespace qorin_cli
{
struct event
{
    std::chrono::system_clock::time_point time; ///< of its arrival: events carry none
    unsigned int group = 0;
    unsigned int subgroup = 0;
    unsigned int sender = 0;
    std::array<int, 5> parameters{};

    [[nodiscard]] std::string group_name() const; ///< "MOTION_COMMAND"; a number where it has no name
    [[nodiscard]] std::string name() const;       ///< "MOTION_COMMAND_STARTED"
};

/// What the library's catalogue says about an event; it has those that report trouble.
struct event_explanation
{
    std::string description;
    std::string values; ///< names of sender and parameters, in their order
    std::string advice;
};

/// @return empty texts for an event that the catalogue does not have.
[[nodiscard]] event_explanation explain_event(unsigned int subgroup);

/// Keeps the events of a control box from now on, until the process ends.
void collect_events(unsigned int cbox_id);

/// Keeps no more of them.
void stop_collecting_events(unsigned int cbox_id);

/// Those that have come since the last call, in order.
[[nodiscard]] std::vector<event> take_events();

/// Time, name, sender and, unless all are 0, parameters in one line.
[[nodiscard]] std::string event_line(const event& happened);

/// "12:03:04.567", of the day of this machine.
[[nodiscard]] std::string time_of_day(std::chrono::system_clock::time_point time);

/// "2026-11-23T12:03:04.567Z"
[[nodiscard]] std::string time_stamp(std::chrono::system_clock::time_point time);
} // namespace qorin_cli

#endif
