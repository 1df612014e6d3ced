#ifndef SIMULATOR_MODEL_MODBUS_IMAGE_H
#define SIMULATOR_MODEL_MODBUS_IMAGE_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <vector>

#include "simulator/model/block.h"

namespace cbox_simulator
{
/// The addresses of Modbus have 16 bits.
inline constexpr std::uint32_t modbus_address_count = 65536;

/// Elements at neighbouring addresses: bits, each in a byte that is 0 or 1, or registers.
template <class Element>
class modbus_image
{
public:
    explicit modbus_image(std::uint32_t count) : elements_(count) {}

    /// Whether there is something from `index` on, and as much.
    [[nodiscard]] bool holds(std::uint32_t index, std::uint32_t count) const
    {
        return count > 0 && index < elements_.size() && count <= elements_.size() - index;
    }

    [[nodiscard]] std::uint32_t count_from(std::uint32_t index) const
    {
        return static_cast<std::uint32_t>(elements_.size()) - index;
    }

    /// No more than a block has. The image must hold them.
    void write(std::uint32_t index, std::uint32_t count, const block_of<Element>& values)
    {
        const auto size = std::min<std::size_t>(count, values.size());
        std::transform(values.data(), values.data() + size, elements_.begin() + index, in_range);
    }

    /// What an output carries of them: the first four bytes. The image must hold them.
    [[nodiscard]] std::uint32_t first_bytes(std::uint32_t index, std::uint32_t count) const
    {
        std::uint32_t bytes = 0;
        std::memcpy(&bytes, &elements_[index], std::min(sizeof bytes, count * sizeof(Element)));
        return bytes;
    }

private:
    static Element in_range(Element value)
    {
        if constexpr (std::is_same_v<Element, std::uint8_t>)
            return value != 0 ? 1 : 0;
        else
            return value;
    }

    std::vector<Element> elements_;
};
} // namespace cbox_simulator

#endif
