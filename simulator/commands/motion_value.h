#ifndef SIMULATOR_COMMANDS_MOTION_VALUE_H
#define SIMULATOR_COMMANDS_MOTION_VALUE_H

#include <array>
#include <optional>

#include "simulator/commands/motion_argument.h"
#include "simulator/model/motion_ranges.h"

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

template <auto member, number_range range = number_range::finite>
QORIN_API_RESULT set(owner_of<member>& owner, value_of<member> value)
{
    const auto result = judge_motion_value<range>(value);
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
    const auto result = judge_motion_values({x, y, z});
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
