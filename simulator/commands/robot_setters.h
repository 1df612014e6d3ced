#ifndef SIMULATOR_COMMANDS_ROBOT_SETTERS_H
#define SIMULATOR_COMMANDS_ROBOT_SETTERS_H

#include <algorithm>
#include <array>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "qorin/result.h"
#include "simulator/model/possible_values.h"
#include "simulator/model/robot_state.h"

/**
 * Handlers that keep what a client sets among a robot's settings.
 *
 * The path is the members that lead there from robot_settings, one in the other. What the check refuses is
 * QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE, and nothing is kept.
 */
namespace cbox_simulator
{
// The checks, as objects: a function with overloads could not be named as a template's argument.
inline constexpr auto possible = [](auto value) { return is_possible(value); };
inline constexpr auto magnitude = [](double value) { return is_magnitude(value); };

template <auto... path>
[[nodiscard]] auto& setting_of(robot_state& robot)
{
    return (robot.settings().*....*path);
}

template <auto... path>
using setting_type = std::remove_cvref_t<decltype(setting_of<path...>(std::declval<robot_state&>()))>;

template <auto check, auto... path>
QORIN_API_RESULT keep(robot_state& robot, setting_type<path...> value)
{
    if (!check(value))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    setting_of<path...>(robot) = value;
    return QORIN_API_RESULT_OK;
}

/// One value for each axis: x, y, z, rx, ry, rz.
template <auto check, auto... path>
QORIN_API_RESULT keep_six(robot_state& robot, typename setting_type<path...>::value_type x,
                          typename setting_type<path...>::value_type y, typename setting_type<path...>::value_type z,
                          typename setting_type<path...>::value_type rx, typename setting_type<path...>::value_type ry,
                          typename setting_type<path...>::value_type rz)
{
    const setting_type<path...> values{x, y, z, rx, ry, rz};
    if (!std::ranges::all_of(values, check))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    setting_of<path...>(robot) = values;
    return QORIN_API_RESULT_OK;
}

/// The path ends at an array with an element for each joint. The joint is judged before the value.
template <auto check, auto... path>
QORIN_API_RESULT keep_for_joint(robot_state& robot, std::uint32_t joint,
                                typename setting_type<path...>::value_type value)
{
    auto& values = setting_of<path...>(robot);
    if (joint >= robot.joint_count())
        return QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE;
    if (!check(value))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    values[joint] = value;
    return QORIN_API_RESULT_OK;
}
} // namespace cbox_simulator

#endif
