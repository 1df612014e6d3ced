#ifndef TOOLS_QORIN_VIEW_STATUS_FIELD_H
#define TOOLS_QORIN_VIEW_STATUS_FIELD_H

#include <bit>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace qorin_view
{
/// What a viewer is shown, as words of 32 bits: all fields one behind the other.
using words = std::span<std::uint32_t>;

enum class field_type
{
    number,  ///< a float a word
    integer, ///< an unsigned integer a word: enumerations, bits
    text     ///< four characters a word, ended by a zero
};

struct status_field
{
    std::string name; ///< `link.`, `box.`, `robots.0.` or `robots.1.` and what it is
    field_type type;
    std::size_t count;                                     ///< words
    std::function<void(unsigned int cbox_id, words)> read; ///< leaves what cannot be read as it is
};

[[nodiscard]] inline std::uint32_t word_of(double value)
{
    return std::bit_cast<std::uint32_t>(static_cast<float>(value));
}

/// What the mirror of a control box tells, and its two robots. Reading a robot wants that it is attached.
[[nodiscard]] std::vector<status_field> mirror_fields();

[[nodiscard]] std::size_t word_count(const std::vector<status_field>& fields);
} // namespace qorin_view

#endif
