#ifndef SIMULATOR_MODEL_MOTION_RANGES_H
#define SIMULATOR_MODEL_MOTION_RANGES_H

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <type_traits>
#include <utility>

#include "qorin/enumerations.h"
#include "qorin/result.h"

/// What the values of motion commands can be. Any number can arrive from a client, also where an enumeration is meant.
namespace cbox_simulator
{
enum class number_range : std::uint8_t
{
    finite,
    not_negative,
    positive,
    percentage
};

/// False for what is no number.
[[nodiscard]] inline bool is_within(number_range range, double number)
{
    switch (range)
    {
    case number_range::finite:
        return std::isfinite(number);
    case number_range::not_negative:
        return number >= 0 && std::isfinite(number);
    case number_range::positive:
        return number > 0 && std::isfinite(number);
    case number_range::percentage:
        return number >= 0 && number <= 100;
    }
    return false;
}

/// First and last member.
template <class Enumeration>
inline constexpr std::pair<Enumeration, Enumeration> members;
template <>
inline constexpr auto members<QORIN_SWITCH> = std::pair{QORIN_SWITCH_ON, QORIN_SWITCH_OFF};
template <>
inline constexpr auto members<QORIN_VELOCITY_PROFILE> =
    std::pair{QORIN_VELOCITY_PROFILE_ASYMMETRIC_S_CURVE, QORIN_VELOCITY_PROFILE_TRAPEZODAL};
template <>
inline constexpr auto members<QORIN_INTERPOLATOR> = std::pair{QORIN_INTERPOLATOR_LINEAR, QORIN_INTERPOLATOR_FREE_PATH};
template <>
inline constexpr auto members<QORIN_ORIENTATION_MODE> =
    std::pair{QORIN_ORIENTATION_MODE_SLERP, QORIN_ORIENTATION_MODE_AUTO};
template <>
inline constexpr auto members<QORIN_REF_COORDINATE> = std::pair{QORIN_REF_COORDINATE_BASE, QORIN_REF_COORDINATE_TCP};
template <>
inline constexpr auto members<QORIN_POSE_TYPE> = std::pair{QORIN_POSE_TYPE_FLANGE, QORIN_POSE_TYPE_TCP};
template <>
inline constexpr auto members<QORIN_WELDING_WEAVING_PATTERN> =
    std::pair{QORIN_WELDING_WEAVING_PATTERN_ZIGZAG, QORIN_WELDING_WEAVING_PATTERN_ELLIPSE};
template <>
inline constexpr auto members<QORIN_ARC_SENSING_SRC> =
    std::pair{QORIN_ARC_SENSING_SRC_ECAT_ANALOG0, QORIN_ARC_SENSING_SRC_EXT_SRC};
template <>
inline constexpr auto members<QORIN_ARC_SENSING_DIRECTION> =
    std::pair{QORIN_ARC_SENSING_DIRECTION_HORIZONTAL, QORIN_ARC_SENSING_DIRECTION_VERTICAL};

template <number_range range = number_range::finite, class Value>
[[nodiscard]] QORIN_API_RESULT judge_motion_value(Value value)
{
    bool possible = true; // every count is
    if constexpr (std::is_enum_v<Value>)
        possible = value >= members<Value>.first && value <= members<Value>.second;
    else if constexpr (std::is_same_v<Value, double>)
        possible = is_within(range, value);
    if (possible)
        return QORIN_API_RESULT_OK;
    return std::is_same_v<Value, QORIN_VELOCITY_PROFILE> ? QORIN_API_RESULT_ERROR_COULD_NOT_FIND_PROFILER_TYPE
                                                         : QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE;
}

/// Several numbers at once.
[[nodiscard]] inline QORIN_API_RESULT judge_motion_values(std::initializer_list<double> values)
{
    return std::ranges::all_of(values, [](double value) { return std::isfinite(value); })
               ? QORIN_API_RESULT_OK
               : QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE;
}
} // namespace cbox_simulator

#endif
