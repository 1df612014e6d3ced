#ifndef QORIN_CPP_CALL_HPP
#define QORIN_CPP_CALL_HPP

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "qorin/cpp/result.hpp"
#include "qorin/enumerations.h"

namespace qorin::inline QORIN_LAYER
{
/**
 * A number that the control box or the library gave for one kind of thing, so that it cannot be taken for another.
 */
template <class Thing>
struct id
{
    unsigned int number = 0;

    friend constexpr auto operator<=>(const id&, const id&) = default;
};

/// How each function of the C interface is called: a shape for commands and one for what answers in the client.
namespace detail
{
inline constexpr std::size_t slot = 128; ///< Bytes that a command reads from a pointer, whatever stands there.

template <auto Function>
constexpr std::string_view name_of()
{
    const std::string_view all = __PRETTY_FUNCTION__;
    const std::size_t begin = all.find("qorin_", all.find("Function = "));
    return all.substr(begin, all.find_first_not_of("abcdefghijklmnopqrstuvwxyz_0123456789", begin) - begin);
}

template <class Function>
struct signature;
template <class Answer, class... Parameters>
struct signature<Answer (*)(Parameters...)>
{
    using parameters = std::tuple<Parameters...>;
};

/// An argument as its parameter wants it. Strong ids go as their numbers, truth values as switches.
template <class Parameter>
struct argument
{
    template <class Given>
    static constexpr Parameter from(const Given& given)
    {
        if constexpr (requires { given.number; })
            return given.number;
        else if constexpr (std::is_same_v<Given, bool> && std::is_same_v<Parameter, QORIN_SWITCH>)
            return given ? QORIN_SWITCH_ON : QORIN_SWITCH_OFF;
        else
            return Parameter{given};
    }
};

/// An array: a copy in a slot when it is shorter than that, else itself.
template <class Element>
class array_slot
{
public:
    explicit array_slot(std::span<const Element> given) : given_(given.data()), copied_(given.size_bytes() < slot)
    {
        if (copied_)
            std::copy(given.begin(), given.end(), copy_);
    }
    operator const Element*() const { return copied_ ? copy_ : given_; }

private:
    const Element* given_;
    bool copied_;
    Element copy_[slot / sizeof(Element)] = {};
};

template <class Element, std::size_t Extent>
array_slot(std::span<Element, Extent>) -> array_slot<std::remove_const_t<Element>>;

/// A text, with as many bytes behind it as a command reads.
struct text_slot
{
    std::string bytes;
    operator const char*() const { return bytes.c_str(); }
};

template <class Element>
struct argument<const Element*>
{
    static array_slot<Element> from(std::span<const Element> given) { return array_slot<Element>(given); }
};
template <>
struct argument<const char*>
{
    static text_slot from(std::string_view given)
    {
        text_slot text{std::string(given)};
        text.bytes.resize(std::max(text.bytes.size(), slot));
        return text;
    }
};

/// An output as the C interface gives it, as the layer does.
template <class Value, class Output>
constexpr Value converted(const Output& output)
{
    if constexpr (std::is_same_v<Value, bool> && std::is_same_v<Output, QORIN_SWITCH>)
        return output == QORIN_SWITCH_ON;
    else if constexpr (std::is_same_v<Value, bool>)
        return output != Output{};
    else
        return Value{output};
}

template <std::size_t Count, class... Outputs>
struct value_of_outputs
{
    using type = std::tuple<Outputs...>;
};
template <class Output>
struct value_of_outputs<1, Output>
{
    using type = Output;
};
template <>
struct value_of_outputs<0>
{
    using type = void;
};

/// Calls a function whose last parameters, those without an input, are outputs with room for so many bytes each.
template <auto Function, class Asked, std::size_t Room, class... Inputs>
auto call(const Inputs&... inputs)
{
    using parameters = typename signature<decltype(Function)>::parameters;
    constexpr std::size_t input_count = sizeof...(Inputs);
    constexpr std::size_t output_count = std::tuple_size_v<parameters> - input_count;
    return [&]<std::size_t... In, std::size_t... Out>(std::index_sequence<In...>, std::index_sequence<Out...>)
    {
        using value = typename std::conditional_t<
            std::is_same_v<Asked, void>,
            value_of_outputs<output_count,
                             std::remove_pointer_t<std::tuple_element_t<input_count + Out, parameters>>...>,
            std::type_identity<Asked>>::type;
        std::tuple<std::array<
            std::remove_pointer_t<std::tuple_element_t<input_count + Out, parameters>>,
            std::max<std::size_t>(
                Room / sizeof(std::remove_pointer_t<std::tuple_element_t<input_count + Out, parameters>>), 1)>...>
            outputs{};
        const QORIN_API_RESULT code =
            Function(argument<std::tuple_element_t<In, parameters>>::from(inputs)..., std::get<Out>(outputs).data()...);
        if (code != QORIN_API_RESULT_OK) [[unlikely]]
            return result<value>(unexpected(error(code, name_of<Function>())));
        if constexpr (output_count == 0)
            return result<value>();
        else if constexpr (output_count == 1)
            return result<value>(converted<value>(std::get<Out>(outputs)[0])...);
        else
            return result<value>(value{std::get<Out>(outputs)[0]...});
    }
    (std::make_index_sequence<input_count>(), std::make_index_sequence<output_count>());
}

/// A command: reads a slot from each pointer, and blocks until the control box has answered.
template <auto Function, class Value = void, class... Inputs>
auto command(const Inputs&... inputs)
{
    return call<Function, Value, slot>(inputs...);
}

/// What is answered in the client: writes its values and reads nothing from where they go.
template <auto Function, class Value = void, class... Inputs>
auto getter(const Inputs&... inputs)
{
    return call<Function, Value, 0>(inputs...);
}

/// What an object of the layer calls with: its ids, ahead of all other arguments.
template <class... Ids>
class bound
{
protected:
    explicit bound(const Ids&... ids) : ids_(ids...) {}

    /// By a command.
    template <auto Function, class Value = void, class... Inputs>
    auto set(const Inputs&... inputs) const
    {
        return std::apply([&](const Ids&... ids) { return command<Function, Value>(ids..., inputs...); }, ids_);
    }
    /// In the client.
    template <auto Function, class Value = void, class... Inputs>
    auto get(const Inputs&... inputs) const
    {
        return std::apply([&](const Ids&... ids) { return getter<Function, Value>(ids..., inputs...); }, ids_);
    }
    template <std::size_t Index>
    [[nodiscard]] const auto& id_at() const
    {
        return std::get<Index>(ids_);
    }

private:
    std::tuple<Ids...> ids_;
};

/// The first error of several calls, which end there.
template <class... Steps>
result<void> in_turn(Steps&&... steps)
{
    result<void> done;
    static_cast<void>(((done = steps()).has_value() && ...));
    return done;
}
} // namespace detail
} // namespace qorin::inline QORIN_LAYER

#endif
