#ifndef SIMULATOR_COMMANDS_REQUEST_READER_H
#define SIMULATOR_COMMANDS_REQUEST_READER_H

#include <algorithm>
#include <array>
#include <cassert>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <type_traits>

#include "protocol/rpc_record.h"

namespace cbox_simulator
{
/// The text at the start of a field, which ends at a NUL or with the field.
[[nodiscard]] inline std::string_view bounded_text(const char* field, std::size_t size)
{
    return {field, static_cast<std::size_t>(std::find(field, field + size, '\0') - field)};
}

/**
 * Hands a command's arguments to its handler, in the order of the command's parameters.
 *
 * The record does not say what a slot holds: a handler asks for the types that it knows, and each answer comes from
 * the next slot of the type's area. A view that is handed out lives as long as the record.
 */
class request_reader
{
public:
    explicit request_reader(const protocol::request_record& record) : record_(record) {}

    [[nodiscard]] std::string_view wire_name() const
    {
        return bounded_text(record_.wire_name, sizeof record_.wire_name);
    }

    [[nodiscard]] std::uint32_t next_u32() { return record_.value[take(value_)]; }

    [[nodiscard]] double next_double() { return record_.real[take(real_)]; }

    [[nodiscard]] std::string_view next_text()
    {
        return bounded_text(reinterpret_cast<const char*>(record_.block[take(block_)]), protocol::block_size);
    }

    [[nodiscard]] std::span<const unsigned char, protocol::block_size> next_block()
    {
        return record_.block[take(block_)];
    }

    /// A block of integers. A slot is full of elements, however many the command uses.
    template <class Integer>
    [[nodiscard]] auto next_block_of()
    {
        return elements<Integer>(next_block());
    }

    [[nodiscard]] std::array<double, protocol::block_size / sizeof(double)> next_double_block()
    {
        return elements<double>(record_.double_block[take(double_block_)]);
    }

    /// An output parameter takes a slot too, whose content is whatever stood at the caller's pointer.
    void skip_output() { take(block_); }
    void skip_double_output() { take(double_block_); }

private:
    static std::size_t take(std::size_t& counter)
    {
        assert(counter < protocol::slot_count);
        return counter++;
    }

    template <class Element>
    static std::array<Element, protocol::block_size / sizeof(Element)>
    elements(std::span<const unsigned char, protocol::block_size> bytes)
    {
        std::array<Element, protocol::block_size / sizeof(Element)> result;
        std::memcpy(result.data(), bytes.data(), bytes.size());
        return result;
    }

    const protocol::request_record& record_;
    std::size_t value_ = 0;
    std::size_t real_ = 0;
    std::size_t block_ = 0;
    std::size_t double_block_ = 0;
};
} // namespace cbox_simulator

#endif
