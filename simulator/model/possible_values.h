#ifndef SIMULATOR_MODEL_POSSIBLE_VALUES_H
#define SIMULATOR_MODEL_POSSIBLE_VALUES_H

#include <cmath>
#include <cstdint>

#include "qorin/enumerations.h"
#include "simulator/model/value_checks.h"

/// Whether a value that came from a client can be what its type says: a number must be finite, an enumeration one of
/// its members.
namespace cbox_simulator
{
[[nodiscard]] inline bool is_possible(double value)
{
    return std::isfinite(value);
}

[[nodiscard]] constexpr bool is_possible(std::int32_t)
{
    return true;
}

[[nodiscard]] constexpr bool is_possible(QORIN_SWITCH value)
{
    return is_switch(value);
}

[[nodiscard]] constexpr bool is_possible(QORIN_DIRECTION value)
{
    return value == QORIN_DIRECTION_POSITIVE || value == QORIN_DIRECTION_NEGATIVE;
}

[[nodiscard]] constexpr bool is_possible(QORIN_REF_COORDINATE value)
{
    return value == QORIN_REF_COORDINATE_BASE || value == QORIN_REF_COORDINATE_TCP;
}

[[nodiscard]] constexpr bool is_possible(QORIN_POSE_TYPE value)
{
    return value == QORIN_POSE_TYPE_FLANGE || value == QORIN_POSE_TYPE_TCP;
}

[[nodiscard]] constexpr bool is_possible(QORIN_CONVEYOR_ENCODER_TYPE value)
{
    return value == QORIN_CONVEYOR_ENCODER_TYPE_QUADRATURE || value == QORIN_CONVEYOR_ENCODER_TYPE_COUNT;
}

[[nodiscard]] constexpr bool is_possible(QORIN_FORCE_TORQUE_SENSOR_FILTER value)
{
    return value >= QORIN_FORCE_TORQUE_SENSOR_FILTER_NO_FILTER && value <= QORIN_FORCE_TORQUE_SENSOR_FILTER_8;
}

[[nodiscard]] constexpr bool is_possible(QORIN_FORCE_TORQUE_SENSOR_SAMPLE_RATE value)
{
    return value >= QORIN_FORCE_TORQUE_SENSOR_FILTER_SAMPLE_RATE_487HZ &&
           value <= QORIN_FORCE_TORQUE_SENSOR_FILTER_SAMPLE_RATE_3900HZ;
}

[[nodiscard]] constexpr bool is_possible(QORIN_FORCE_TORQUE_SENSOR_CALIBRATION value)
{
    return value == QORIN_FORCE_TORQUE_SENSOR_CALIBRATION_RANGE_0 ||
           value == QORIN_FORCE_TORQUE_SENSOR_CALIBRATION_RANGE_1;
}

/// QORIN_DRIVE_CONTROL_MODE_BEGIN opens the range and is no mode.
[[nodiscard]] constexpr bool is_possible(QORIN_DRIVE_CONTROL_MODE value)
{
    switch (value)
    {
    case QORIN_DRIVE_CONTROL_MODE_VELOCITY_PROFILE:
    case QORIN_DRIVE_CONTROL_MODE_HOMING:
    case QORIN_DRIVE_CONTROL_MODE_POSITION:
    case QORIN_DRIVE_CONTROL_MODE_VELOCITY:
    case QORIN_DRIVE_CONTROL_MODE_TORQUE:
        return true;
    default:
        return false;
    }
}

/// For a limit, a threshold, a time: what cannot be below 0.
[[nodiscard]] inline bool is_magnitude(double value)
{
    return std::isfinite(value) && value >= 0;
}
} // namespace cbox_simulator

#endif
