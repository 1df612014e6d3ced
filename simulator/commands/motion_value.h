#ifndef SIMULATOR_COMMANDS_MOTION_VALUE_H
#define SIMULATOR_COMMANDS_MOTION_VALUE_H

#include <array>
#include <initializer_list>
#include <optional>
#include <type_traits>

#include "simulator/commands/motion_argument.h"
#include "simulator/model/possible_values.h"

/// Handlers that set and get one member of a motion command or of a part of one. What a set refuses stays as it is; a
/// point that is not told is answered as zeros.
namespace cbox_simulator::motion_value
{
template <class Member>
struct member_of;
template <class Owner, class Value>
struct member_of<Value Owner::*>
{
    using owner = Owner;
    using value = Value;
};
template <auto member>
using owner_of = typename member_of<decltype(member)>::owner;
template <auto member>
using value_of = typename member_of<decltype(member)>::value;

template <number_range range = number_range::finite, class Value>
[[nodiscard]] QORIN_API_RESULT judge(Value value)
{
    bool possible = false;
    if constexpr (std::is_same_v<Value, double>)
        possible = is_possible(value, range);
    else
        possible = is_possible(value);
    if (possible)
        return QORIN_API_RESULT_OK;
    return std::is_same_v<Value, QORIN_VELOCITY_PROFILE> ? QORIN_API_RESULT_ERROR_COULD_NOT_FIND_PROFILER_TYPE
                                                         : QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE;
}

/// Several numbers at once.
[[nodiscard]] inline QORIN_API_RESULT judge(std::initializer_list<double> values)
{
    return are_possible(values) ? QORIN_API_RESULT_OK : QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE;
}

template <auto member, number_range range = number_range::finite>
QORIN_API_RESULT set(owner_of<member>& owner, value_of<member> value)
{
    const auto result = judge<range>(value);
    if (result == QORIN_API_RESULT_OK)
        owner.*member = value;
    return result;
}

template <auto member>
QORIN_API_RESULT get(owner_of<member>& owner, value_of<member>& value)
{
    value = owner.*member;
    return QORIN_API_RESULT_OK;
}

template <auto member>
QORIN_API_RESULT set_vector(owner_of<member>& owner, double x, double y, double z)
{
    const auto result = judge({x, y, z});
    if (result == QORIN_API_RESULT_OK)
        owner.*member = vector3{x, y, z};
    return result;
}

template <auto member>
QORIN_API_RESULT get_vector(owner_of<member>& owner, double& x, double& y, double& z)
{
    const vector3 vector = (owner.*member).value_or(vector3{});
    x = vector[0];
    y = vector[1];
    z = vector[2];
    return QORIN_API_RESULT_OK;
}
} // namespace cbox_simulator::motion_value

#endif
