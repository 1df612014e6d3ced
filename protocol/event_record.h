#ifndef PROTOCOL_EVENT_RECORD_H
#define PROTOCOL_EVENT_RECORD_H

#include <cstddef>
#include <cstdint>

#include "protocol/wire_record.h"

namespace savrent::cc::val_obj
{
/// An event as it stands on the event link, each field in its natural place. Group and subgroup are independent
/// numbers.
struct event_info
{
    std::uint32_t group;                  ///< a QORIN_EVENT_GRP value
    std::uint32_t subgroup;               ///< a QORIN_EVENT_SUBGRP value
    std::uint32_t sender_id;              ///< meaning depends on the event
    std::int32_t parameter[5];            ///< these reach callbacks
    unsigned char further_parameter[112]; ///< integer parameter space, carried along
    double real_parameter[32];            ///< carried along
};
static_assert(offsetof(event_info, subgroup) == 4);
static_assert(offsetof(event_info, sender_id) == 8);
static_assert(offsetof(event_info, parameter) == 12);
static_assert(offsetof(event_info, further_parameter) == 32);
static_assert(offsetof(event_info, real_parameter) == 144);
static_assert(sizeof(event_info) == 400);
} // namespace savrent::cc::val_obj

#endif
