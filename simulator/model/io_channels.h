#ifndef SIMULATOR_MODEL_IO_CHANNELS_H
#define SIMULATOR_MODEL_IO_CHANNELS_H

#include <array>
#include <cstddef>
#include <cstdint>

#include "qorin/enumerations.h"
#include "qorin/result.h"
#include "simulator/model/block.h"
#include "simulator/model/possible_values.h"

/// Channels of digital and analog modules: setting one judges its number and its value.
namespace cbox_simulator
{
/// What a part of the box answers to an I/O that is not there, and to a value that it cannot have.
struct io_refusals
{
    QORIN_API_RESULT number;
    QORIN_API_RESULT value;
};

inline constexpr io_refusals cbox_io_refusals{QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER,
                                              QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE};
inline constexpr io_refusals robot_io_refusals{QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_NUMBER,
                                               QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_VALUE};

/// The channels of a digital word are neighbouring bits of it.
struct channel_range
{
    std::uint32_t count;
    std::uint32_t first_bit = 0;
};

/// Sets one channel to 0 or 1. The channel is judged first; what is refused changes nothing.
[[nodiscard]] constexpr QORIN_API_RESULT set_channel(std::uint32_t& word, channel_range range, std::uint32_t channel,
                                                     std::uint32_t value,
                                                     const io_refusals& refusals = cbox_io_refusals)
{
    if (channel >= range.count)
        return refusals.number;
    if (value > 1)
        return refusals.value;
    const auto bit = range.first_bit + channel;
    word = (word & ~(1u << bit)) | (value << bit);
    return QORIN_API_RESULT_OK;
}

/// Sets the first `count` channels of a block to their values, all of them or none.
[[nodiscard]] constexpr QORIN_API_RESULT set_channels(std::uint32_t& word, channel_range range, std::uint32_t count,
                                                      const block_of<std::uint32_t>& channels,
                                                      const block_of<std::uint32_t>& values,
                                                      const io_refusals& refusals = cbox_io_refusals)
{
    if (count > channels.size())
        return refusals.number;
    auto changed = word;
    for (std::size_t index = 0; index < count; ++index)
    {
        const auto result = set_channel(changed, range, channels[index], values[index], refusals);
        if (result != QORIN_API_RESULT_OK)
            return result;
    }
    word = changed;
    return QORIN_API_RESULT_OK;
}

/// Sets one analog channel of several; refuses as set_channel() does, and every number that is not finite.
template <std::size_t count>
[[nodiscard]] QORIN_API_RESULT set_analog_channel(std::array<double, count>& values, std::uint32_t channel,
                                                  double value, const io_refusals& refusals = cbox_io_refusals)
{
    if (channel >= count)
        return refusals.number;
    if (!is_possible(value))
        return refusals.value;
    values[channel] = value;
    return QORIN_API_RESULT_OK;
}

template <std::size_t count>
[[nodiscard]] QORIN_API_RESULT set_analog_mode(std::array<QORIN_ANALOG_IO_MODE, count>& modes, std::uint32_t channel,
                                               QORIN_ANALOG_IO_MODE mode,
                                               const io_refusals& refusals = cbox_io_refusals)
{
    if (channel >= count)
        return refusals.number;
    if (!is_possible(mode))
        return refusals.value;
    modes[channel] = mode;
    return QORIN_API_RESULT_OK;
}
} // namespace cbox_simulator

#endif
