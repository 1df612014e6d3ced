#ifndef PROTOCOL_WIRE_RECORD_H
#define PROTOCOL_WIRE_RECORD_H

#include <bit>

/// A record as it stands on a link: no padding, and readable in place from a byte buffer.
#define QORIN_WIRE_RECORD __attribute__((packed, may_alias))

namespace protocol
{
/// A record as the bytes that a link carries.
template <class Record>
[[nodiscard]] inline unsigned char* wire_bytes(Record& record)
{
    return reinterpret_cast<unsigned char*>(&record);
}

template <class Record>
[[nodiscard]] inline const unsigned char* wire_bytes(const Record& record)
{
    return reinterpret_cast<const unsigned char*>(&record);
}
} // namespace protocol

static_assert(std::endian::native == std::endian::little, "records travel in the byte order of x86-64");

#endif
