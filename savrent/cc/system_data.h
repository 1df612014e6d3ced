#ifndef SAVRENT_CC_SYSTEM_DATA_H
#define SAVRENT_CC_SYSTEM_DATA_H

#include <cstddef>
#include <cstdint>

#include "protocol/status_frame.h"

namespace savrent::cc
{
/// The system section at the head of the shared status frame, with what the foundations read and write there.
struct QORIN_WIRE_RECORD system_data
{
    unsigned char frame_head[offsetof(protocol::shared_data_t, reserved_2)];
    std::uint64_t time; ///< clock of the control software
    unsigned char until_error[offsetof(protocol::shared_data_t, reserved_3) -
                              offsetof(protocol::shared_data_t, reserved_2) - sizeof(std::uint64_t)];
    std::uint32_t error_code; ///< a QORIN_API_RESULT: the last fault of the software
    char error_text[128];     ///< where it arose
};
// Only stretches that belong to the control software are written.
static_assert(offsetof(system_data, time) == 344);
static_assert(offsetof(system_data, error_code) == 368);
static_assert(sizeof(system_data) <= offsetof(protocol::shared_data_t, safety_planes));
} // namespace savrent::cc

#endif
