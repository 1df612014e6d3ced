#ifndef SIMULATOR_COMMANDS_ARGUMENT_TYPE_H
#define SIMULATOR_COMMANDS_ARGUMENT_TYPE_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <type_traits>
#include <typeinfo>

#include "protocol/rpc_record.h"

namespace cbox_simulator
{
/// The area of the records that an argument travels in.
enum class argument_kind : std::uint8_t
{
    value,
    real,
    block,
    real_block,
    value_output,
    real_output
};

/// What a command carries in one of its slots: the record itself does not say.
struct argument_type
{
    argument_kind kind;
    std::uint8_t element_size;
    bool element_is_signed;
    const std::type_info* element; ///< char for a text, an enumeration for what it is

    template <class Element>
    [[nodiscard]] static constexpr argument_type of(argument_kind kind)
    {
        return {kind, sizeof(Element), std::is_signed_v<Element>, &typeid(Element)};
    }
};

/// The arguments of a request as one printable text: numbers, texts in quotes, blocks up to their last element that is
/// not 0, and "&" for an output.
[[nodiscard]] std::string argument_text(const protocol::request_record& request,
                                        std::span<const argument_type> arguments);
} // namespace cbox_simulator

#endif
