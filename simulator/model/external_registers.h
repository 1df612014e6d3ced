#ifndef SIMULATOR_MODEL_EXTERNAL_REGISTERS_H
#define SIMULATOR_MODEL_EXTERNAL_REGISTERS_H

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "qorin/result.h"

namespace cbox_simulator
{
/**
 * Registers of one kind. A number that has no register and a value that the kind cannot have are
 * QORIN_API_RESULT_MODBUS_INPUT_ERROR.
 */
template <class Value>
class register_bank
{
public:
    using value_type = Value;

    static constexpr std::size_t register_count = 64;

    using value_check = bool (*)(Value);
    explicit register_bank(value_check check) : check_(check) {}

    QORIN_API_RESULT set(std::uint16_t number, Value value)
    {
        if (number >= register_count || !check_(value))
            return QORIN_API_RESULT_MODBUS_INPUT_ERROR;
        values_[number] = value;
        return QORIN_API_RESULT_OK;
    }

    QORIN_API_RESULT get(std::uint16_t number, Value& value) const
    {
        if (number >= register_count)
            return QORIN_API_RESULT_MODBUS_INPUT_ERROR;
        value = values_[number];
        return QORIN_API_RESULT_OK;
    }

private:
    value_check check_;
    std::array<Value, register_count> values_{};
};

/// The registers that the box shares with the master of its fieldbus. The box's applications set the outputs; the
/// inputs are the master's, and whoever plays it sets them.
struct external_registers
{
    static bool is_bit(std::uint32_t value) { return value <= 1; }
    static bool is_any(std::uint32_t) { return true; }
    static bool is_finite(double value) { return std::isfinite(value); }

    register_bank<std::uint32_t> output_bits{is_bit};
    register_bank<std::uint32_t> output_integers{is_any};
    register_bank<double> output_reals{is_finite};
    register_bank<std::uint32_t> input_bits{is_bit};
    register_bank<std::uint32_t> input_integers{is_any};
    register_bank<double> input_reals{is_finite};
};
} // namespace cbox_simulator

#endif
