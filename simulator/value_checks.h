#ifndef SIMULATOR_VALUE_CHECKS_H
#define SIMULATOR_VALUE_CHECKS_H

#include <cstdint>

#include "qorin/enumerations.h"
#include "qorin/result.h"

/// Checks that the parts of the box share. Any number can arrive from a client, also where an enumeration is meant.
namespace cbox_simulator
{
[[nodiscard]] constexpr bool is_switch(QORIN_SWITCH value)
{
    return value == QORIN_SWITCH_ON || value == QORIN_SWITCH_OFF;
}

[[nodiscard]] constexpr bool is_button_state(QORIN_BUTTON_STATE state)
{
    return state == QORIN_BUTTON_STATE_PUSHED || state == QORIN_BUTTON_STATE_RELEASED;
}

/// The channels of a digital word are neighbouring bits of it.
struct channel_range
{
    std::uint32_t count;
    std::uint32_t first_bit = 0;
};

/// Sets one channel to 0 or 1. The channel is judged first; what is refused changes nothing.
[[nodiscard]] constexpr QORIN_API_RESULT set_channel(std::uint32_t& word, channel_range range, std::uint32_t channel,
                                                     std::uint32_t value)
{
    if (channel >= range.count)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    if (value > 1)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE;
    const auto bit = range.first_bit + channel;
    word = (word & ~(1u << bit)) | (value << bit);
    return QORIN_API_RESULT_OK;
}
} // namespace cbox_simulator

#endif
