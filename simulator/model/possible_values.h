#ifndef SIMULATOR_MODEL_POSSIBLE_VALUES_H
#define SIMULATOR_MODEL_POSSIBLE_VALUES_H

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <type_traits>
#include <utility>

#include "qorin/enumerations.h"

/// Whether a value that came from a client can be what its type says: an enumeration one of its members, a number
/// finite and within a range. Any number can arrive, also where an enumeration is meant.
namespace cbox_simulator
{
/// The first and the last member that a client may send, of enumerations whose members follow each other. Members that
/// only mark a bound lie outside.
template <class Enumeration>
inline constexpr std::pair<Enumeration, Enumeration> members;
template <>
inline constexpr auto members<QORIN_SWITCH> = std::pair{QORIN_SWITCH_ON, QORIN_SWITCH_OFF};
template <>
inline constexpr auto members<QORIN_ECAT_CONN_STATE> =
    std::pair{QORIN_ECAT_CONN_STATE_CONNECT_TRYING, QORIN_ECAT_CONN_STATE_DISCONNECTED};
template <>
inline constexpr auto members<QORIN_DIRECTION> = std::pair{QORIN_DIRECTION_POSITIVE, QORIN_DIRECTION_NEGATIVE};
template <>
inline constexpr auto members<QORIN_VELOCITY_PROFILE> =
    std::pair{QORIN_VELOCITY_PROFILE_ASYMMETRIC_S_CURVE, QORIN_VELOCITY_PROFILE_TRAPEZODAL};
template <>
inline constexpr auto members<QORIN_INTERPOLATOR> = std::pair{QORIN_INTERPOLATOR_LINEAR, QORIN_INTERPOLATOR_FREE_PATH};
template <>
inline constexpr auto members<QORIN_ANALOG_IO_MODE> =
    std::pair{QORIN_ANALOG_IO_MODE_VOLTAGE, QORIN_ANALOG_IO_MODE_CURRENT};
template <>
inline constexpr auto members<QORIN_BUTTON_STATE> = std::pair{QORIN_BUTTON_STATE_PUSHED, QORIN_BUTTON_STATE_RELEASED};
template <>
inline constexpr auto members<QORIN_CBOX_MODEL> = std::pair{QORIN_CBOX_MODEL_EMPTY, QORIN_CBOX_MODEL_3GEN_SIM};
template <>
inline constexpr auto members<QORIN_REF_COORDINATE> = std::pair{QORIN_REF_COORDINATE_BASE, QORIN_REF_COORDINATE_TCP};
template <>
inline constexpr auto members<QORIN_POSE_TYPE> = std::pair{QORIN_POSE_TYPE_FLANGE, QORIN_POSE_TYPE_TCP};
template <>
inline constexpr auto members<QORIN_RECORDING_INTERPOLATION> =
    std::pair{QORIN_RECORDING_INTERPOLATION_TCP, QORIN_RECORDING_INTERPOLATION_JOINT};
template <>
inline constexpr auto members<QORIN_WELDING_WEAVING_PATTERN> =
    std::pair{QORIN_WELDING_WEAVING_PATTERN_ZIGZAG, QORIN_WELDING_WEAVING_PATTERN_ELLIPSE};
template <>
inline constexpr auto members<QORIN_ORIENTATION_MODE> =
    std::pair{QORIN_ORIENTATION_MODE_SLERP, QORIN_ORIENTATION_MODE_AUTO};
template <>
inline constexpr auto members<QORIN_CONVEYOR_ENCODER_TYPE> =
    std::pair{QORIN_CONVEYOR_ENCODER_TYPE_QUADRATURE, QORIN_CONVEYOR_ENCODER_TYPE_COUNT};
template <>
inline constexpr auto members<QORIN_FORCE_TORQUE_SENSOR_FILTER> =
    std::pair{QORIN_FORCE_TORQUE_SENSOR_FILTER_NO_FILTER, QORIN_FORCE_TORQUE_SENSOR_FILTER_8};
template <>
inline constexpr auto members<QORIN_FORCE_TORQUE_SENSOR_SAMPLE_RATE> =
    std::pair{QORIN_FORCE_TORQUE_SENSOR_FILTER_SAMPLE_RATE_487HZ, QORIN_FORCE_TORQUE_SENSOR_FILTER_SAMPLE_RATE_3900HZ};
template <>
inline constexpr auto members<QORIN_FORCE_TORQUE_SENSOR_CALIBRATION> =
    std::pair{QORIN_FORCE_TORQUE_SENSOR_CALIBRATION_RANGE_0, QORIN_FORCE_TORQUE_SENSOR_CALIBRATION_RANGE_1};
template <>
inline constexpr auto members<QORIN_MODBUS_CLIENT_IO_TYPE> =
    std::pair{QORIN_MODBUS_CLIENT_IO_TYPE_DIGITAL_INPUT, QORIN_MODBUS_CLIENT_IO_TYPE_REGISTER_OUTPUT};
template <>
inline constexpr auto members<QORIN_MODBUS_CLIENT_IO_UPDATE_HZ> =
    std::pair{QORIN_MODBUS_CLIENT_IO_UPDATE_HZ_0, QORIN_MODBUS_CLIENT_IO_UPDATE_HZ_100};
template <>
inline constexpr auto members<QORIN_USER_DATA_TYPE> =
    std::pair{QORIN_USER_DATA_TYPE_INT, QORIN_USER_DATA_TYPE_LONGLONG};
template <>
inline constexpr auto members<QORIN_UI_PROGRAM_STATE> =
    std::pair{QORIN_UI_PROGRAM_STATE_UNDEFINED, QORIN_UI_PROGRAM_STATE_RUNTIME_ERROR};
template <>
inline constexpr auto members<QORIN_ARC_SENSING_SRC> =
    std::pair{QORIN_ARC_SENSING_SRC_ECAT_ANALOG0, QORIN_ARC_SENSING_SRC_EXT_SRC};
template <>
inline constexpr auto members<QORIN_ARC_SENSING_DIRECTION> =
    std::pair{QORIN_ARC_SENSING_DIRECTION_HORIZONTAL, QORIN_ARC_SENSING_DIRECTION_VERTICAL};
template <>
inline constexpr auto members<QORIN_EIP_IO_DEVICE_MODEL> =
    std::pair{QORIN_EIP_IO_DEV_UNDEFINED, QORIN_EIP_IO_DEV_ARC_ZI_SOL350};
template <>
inline constexpr auto members<QORIN_RS485_SERIAL_INTERFACE> =
    std::pair{QORIN_RS485_SERIAL_INTERFACE_UNDEFINED, QORIN_RS485_120OHM};
template <>
inline constexpr auto members<QORIN_RS485_BAUDRATE> =
    std::pair{QORIN_RS485_BAUDRATE_UNDEFINED, QORIN_RS485_BAUDRATE_1000000};
template <>
inline constexpr auto members<QORIN_RS485_DATA_FRAME> =
    std::pair{QORIN_RS485_DATA_FRAME_UNDEFINED, QORIN_RS485_DATA_FRAME_8O2};
template <>
inline constexpr auto members<QORIN_RS485_PROTOCOL> =
    std::pair{QORIN_RS485_PROTOCOL_UNDEFINED, QORIN_RS485_PROTOCOL_MODBUS_ASCII};

template <class Enumeration>
requires std::is_enum_v<Enumeration>
[[nodiscard]] constexpr bool is_possible(Enumeration value)
{
    return value >= members<Enumeration>.first && value <= members<Enumeration>.second;
}

// The members of these three leave gaps.

[[nodiscard]] constexpr bool is_possible(QORIN_OPERATIONAL_MODE value)
{
    return (value >= QORIN_OPERATIONAL_MODE_INIT && value <= QORIN_OPERATIONAL_MODE_SAFE_OPERATIONAL) ||
           value == QORIN_OPERATIONAL_MODE_OPERATIONAL;
}

[[nodiscard]] constexpr bool is_possible(QORIN_DRIVE_CONTROL_MODE value)
{
    return value == QORIN_DRIVE_CONTROL_MODE_VELOCITY_PROFILE || value == QORIN_DRIVE_CONTROL_MODE_HOMING ||
           (value >= QORIN_DRIVE_CONTROL_MODE_POSITION && value <= QORIN_DRIVE_CONTROL_MODE_TORQUE);
}

[[nodiscard]] constexpr bool is_possible(QORIN_TOOL_IO_POWER_VOLTAGE_OPTION value)
{
    return value == QORIN_TOOL_POWER_VOLTAGE_OPTION_0 || value == QORIN_TOOL_POWER_VOLTAGE_OPTION_12 ||
           value == QORIN_TOOL_POWER_VOLTAGE_OPTION_24;
}

enum class number_range : std::uint8_t
{
    finite,
    not_negative,
    positive,
    percentage
};

/// False for what is no number.
[[nodiscard]] inline bool is_possible(double number, number_range range = number_range::finite)
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

template <class Integer>
requires std::is_integral_v<Integer>
[[nodiscard]] constexpr bool is_possible(Integer)
{
    return true;
}

/// Several numbers at once.
[[nodiscard]] inline bool are_possible(std::initializer_list<double> numbers)
{
    return std::ranges::all_of(numbers, [](double number) { return std::isfinite(number); });
}

/// For a limit, a threshold, a time: what cannot be below 0.
[[nodiscard]] inline bool is_magnitude(double value)
{
    return is_possible(value, number_range::not_negative);
}
} // namespace cbox_simulator

#endif
