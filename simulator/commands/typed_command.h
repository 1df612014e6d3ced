#ifndef SIMULATOR_COMMANDS_TYPED_COMMAND_H
#define SIMULATOR_COMMANDS_TYPED_COMMAND_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "simulator/commands/argument_type.h"
#include "simulator/commands/command_row.h"
#include "simulator/commands/reply_writer.h"
#include "simulator/commands/request_reader.h"
#include "simulator/model/block.h"
#include "simulator/model/box_model.h"

/**
 * Makes rows of the command table from plain functions, whose parameters tell what a command carries:
 *
 *   box_model&                the box; nothing on the wire
 *   client_id                 who asks; nothing on the wire
 *   number or enumeration     a value slot
 *   double                    a real slot
 *   std::string_view          a block with a text
 *   const block_of<T>&        a block full of integers; of doubles, a double block
 *   number&, enumeration&     an output: a block of the request, a value of the reply
 *   double&                   an output: a double block of the request, a real of the reply
 *   robot_state&              a value slot with the id of a robot; without one the command is refused
 *
 * Slots are taken in the order of the parameters. An output that a function does not set is 0. What else has ids of its
 * own gets a specialisation of `argument` beside its class.
 */
namespace cbox_simulator
{
/// What a handler's arguments are taken from.
struct command_call
{
    box_model& model;
    client_id client;
    request_reader& request;
};

/// Most arguments are never refused, and carry nothing back.
struct plain_argument
{
    static constexpr QORIN_API_RESULT refusal = QORIN_API_RESULT_OK;
    void answer(reply_writer&) const {}
};

/// One parameter of a handler while the command runs. Has a `type` when it takes a slot.
template <class Parameter>
struct argument;

template <>
struct argument<box_model&> : plain_argument
{
    explicit argument(const command_call& call) : model(call.model) {}
    box_model& get() { return model; }
    box_model& model;
};

template <>
struct argument<client_id> : plain_argument
{
    explicit argument(const command_call& call) : client(call.client) {}
    client_id get() { return client; }
    client_id client;
};

template <class T>
concept slot_number = (std::is_integral_v<T> || std::is_enum_v<T>)&&sizeof(T) <= sizeof(std::uint32_t);

template <slot_number Number>
struct argument<Number> : plain_argument
{
    static constexpr auto type = argument_type::of<Number>(argument_kind::value);
    explicit argument(const command_call& call) : number(static_cast<Number>(call.request.next_u32())) {}
    Number get() { return number; }
    Number number;
};

template <>
struct argument<double> : plain_argument
{
    static constexpr auto type = argument_type::of<double>(argument_kind::real);
    explicit argument(const command_call& call) : number(call.request.next_double()) {}
    double get() { return number; }
    double number;
};

template <>
struct argument<std::string_view> : plain_argument
{
    static constexpr auto type = argument_type::of<char>(argument_kind::block);
    explicit argument(const command_call& call) : text(call.request.next_text()) {}
    std::string_view get() { return text; }
    std::string_view text;
};

template <slot_number Element, std::size_t size>
struct argument<const std::array<Element, size>&> : plain_argument
{
    static constexpr auto type = argument_type::of<Element>(argument_kind::block);
    explicit argument(const command_call& call) : block(call.request.next_block_of<Element>()) {}
    const block_of<Element>& get() { return block; }
    block_of<Element> block;
};

template <>
struct argument<const block_of<double>&> : plain_argument
{
    static constexpr auto type = argument_type::of<double>(argument_kind::real_block);
    explicit argument(const command_call& call) : block(call.request.next_double_block()) {}
    const block_of<double>& get() { return block; }
    block_of<double> block;
};

template <slot_number Number>
struct argument<Number&> : plain_argument
{
    static constexpr auto type = argument_type::of<Number>(argument_kind::value_output);
    explicit argument(const command_call& call) { call.request.skip_output(); }
    Number& get() { return number; }
    void answer(reply_writer& reply) const { reply.next_value(number); }
    Number number{};
};

template <>
struct argument<double&> : plain_argument
{
    static constexpr auto type = argument_type::of<double>(argument_kind::real_output);
    explicit argument(const command_call& call) { call.request.skip_double_output(); }
    double& get() { return number; }
    void answer(reply_writer& reply) const { reply.next_double(number); }
    double number = 0;
};

/// A thing of the box that a command names by a number. `refusal` tells that there is none.
template <class Thing, QORIN_API_RESULT unknown>
struct named_argument
{
    static constexpr auto type = argument_type::of<std::uint32_t>(argument_kind::value);
    explicit named_argument(Thing* found) : thing(found), refusal(found ? QORIN_API_RESULT_OK : unknown) {}
    Thing& get() { return *thing; }
    void answer(reply_writer&) const {}
    Thing* thing;
    QORIN_API_RESULT refusal;
};

template <>
struct argument<robot_state&> : named_argument<robot_state, QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID>
{
    explicit argument(const command_call& call) : named_argument(call.model.robots().find(call.request.next_u32())) {}
};

/// The arguments of a function in a row's form, and the function as a handler.
template <auto function, class Function = decltype(function)>
struct typed_command;

template <auto function, class... Parameters>
struct typed_command<function, QORIN_API_RESULT (*)(Parameters...)>
{
    template <class Parameter>
    static constexpr std::size_t slots = requires
    {
        argument<Parameter>::type;
    }
    ? 1 : 0;

    static constexpr auto argument_types = []
    {
        std::array<argument_type, (slots<Parameters> + ... + std::size_t{0})> types{};
        [[maybe_unused]] std::size_t next = 0;
        [[maybe_unused]] const auto add = [&]<class Parameter>(std::type_identity<Parameter>)
        {
            if constexpr (slots<Parameter> == 1)
                types[next++] = argument<Parameter>::type;
        };
        (add(std::type_identity<Parameters>{}), ...);
        return types;
    }();

    static QORIN_API_RESULT perform(box_model& model, client_id client, request_reader& request, reply_writer& reply)
    {
        [[maybe_unused]] const command_call call{model, client, request};
        std::tuple<argument<Parameters>...> arguments{argument<Parameters>(call)...}; // in their order, by the braces
        return std::apply(
            [&](auto&... each)
            {
                auto result = QORIN_API_RESULT_OK;
                ((result = result == QORIN_API_RESULT_OK ? each.refusal : result), ...);
                if (result == QORIN_API_RESULT_OK)
                    result = function(each.get()...);
                (each.answer(reply), ...);
                return result;
            },
            arguments);
    }
};

/// For the client in control only, which is judged before anything else of the command.
template <command_handler handler>
QORIN_API_RESULT in_control(box_model& model, client_id client, request_reader& request, reply_writer& reply)
{
    return model.holds_control(client) ? handler(model, client, request, reply)
                                       : QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL;
}

/// The usual command: it needs the control.
template <auto function>
[[nodiscard]] constexpr command_row controlled(std::string_view wire_name)
{
    using command = typed_command<function>;
    return {wire_name, in_control<command::perform>, command::argument_types};
}

/// A command for every client: what comes ahead of the control or after it, and what plays the world around the box.
template <auto function>
[[nodiscard]] constexpr command_row open_to_all(std::string_view wire_name)
{
    using command = typed_command<function>;
    return {wire_name, command::perform, command::argument_types};
}
} // namespace cbox_simulator

#endif
