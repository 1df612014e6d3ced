#ifndef SIMULATOR_MODEL_EVENT_OUTBOX_H
#define SIMULATOR_MODEL_EVENT_OUTBOX_H

#include <cstdint>
#include <utility>
#include <vector>

#include "protocol/event_record.h"
#include "qorin/event_codes.h"

namespace cbox_simulator
{
using savrent::cc::val_obj::event_info;

/**
 * Where the parts of the model leave the events of what happens to them, in the order in which it happens.
 *
 * Knows nobody who wants them: the control box takes them out after each change, and sends them. Owned by the model.
 */
class event_outbox
{
public:
    void post(const event_info& event)
    {
        echo(event);
        news_ = true;
    }

    /// An event that tells nothing of the box itself.
    void echo(const event_info& event) { events_.push_back(event); }

    /// An event without parameters.
    void post(QORIN_EVENT_GRP group, QORIN_EVENT_SUBGRP subgroup, std::uint32_t sender_id = 0)
    {
        event_info event{};
        event.group = group;
        event.subgroup = subgroup;
        event.sender_id = sender_id;
        post(event);
    }

    /// What has come since the last time, oldest first.
    [[nodiscard]] std::vector<event_info> take() { return std::exchange(events_, {}); }

    /// True once after an event that tells of the box: the frame that shows it is to leave ahead of the event.
    [[nodiscard]] bool take_news() { return std::exchange(news_, false); }

private:
    std::vector<event_info> events_;
    bool news_ = false;
};
} // namespace cbox_simulator

#endif
