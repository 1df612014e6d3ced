#ifndef PROTOCOL_CHASER_DATAGRAM_H
#define PROTOCOL_CHASER_DATAGRAM_H

#include <cstddef>
#include <cstdint>

#include "protocol/limits.h"
#include "protocol/wire_record.h"

/// The datagrams of the joint chaser, which go to the control box beside the three links. None is answered.
namespace protocol
{
/// The port of robot 0; each further robot has the next one.
inline constexpr std::uint16_t chaser_base_port = 50001;

inline constexpr std::uint64_t chaser_move = 2;
inline constexpr std::uint64_t chaser_stop = 3;

struct QORIN_WIRE_RECORD chaser_datagram
{
    std::uint64_t command;      ///< chaser_move or chaser_stop
    double joints[joint_limit]; ///< targets of a move, degrees; zero in a stop
};
static_assert(offsetof(chaser_datagram, joints) == 8);
static_assert(sizeof(chaser_datagram) == 56);
} // namespace protocol

#endif
