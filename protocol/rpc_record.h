#ifndef PROTOCOL_RPC_RECORD_H
#define PROTOCOL_RPC_RECORD_H

#include <cstddef>
#include <cstdint>

#include "protocol/wire_record.h"

/// The records of the command link. A request is always followed by exactly one reply; the sizes are the framing.
namespace protocol
{
inline constexpr std::uint16_t control_box_port = 7700;

inline constexpr std::size_t slot_count = 32;
inline constexpr std::size_t block_size = 128;

/// A command: its wire name and four areas of slots. Which slot holds what follows from the name alone.
struct QORIN_WIRE_RECORD request_record
{
    char wire_name[128]; ///< NUL-terminated, rest zero
    std::uint32_t value[slot_count];
    double real[slot_count];
    unsigned char block[slot_count][block_size];        ///< texts, integers, bytes
    unsigned char double_block[slot_count][block_size]; ///< 16 doubles each
};
static_assert(offsetof(request_record, value) == 0x80);
static_assert(offsetof(request_record, real) == 0x100);
static_assert(offsetof(request_record, block) == 0x200);
static_assert(offsetof(request_record, double_block) == 0x1200);
static_assert(sizeof(request_record) == 8704);

/// The answer to a command.
struct QORIN_WIRE_RECORD reply_record
{
    std::uint32_t value[slot_count];
    double real[slot_count];
    std::uint32_t result; ///< a QORIN_API_RESULT value
    unsigned char reserved[124];
};
static_assert(offsetof(reply_record, real) == 0x80);
static_assert(offsetof(reply_record, result) == 0x180);
static_assert(sizeof(reply_record) == 512);
} // namespace protocol

#endif
