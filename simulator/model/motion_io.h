#ifndef SIMULATOR_MODEL_MOTION_IO_H
#define SIMULATOR_MODEL_MOTION_IO_H

#include <cstdint>

#include "qorin/enumerations.h"
#include "qorin/result.h"

/// What a motion command has to do with inputs and outputs.
namespace cbox_simulator
{
/// A motion waits for the channel to have the value.
struct start_condition
{
    QORIN_IO_TYPE type;
    std::uint32_t channel;
    std::int32_t value;

    bool operator==(const start_condition&) const = default;
};

/// A motion gives the channel its value at its start or end, where `when` says nothing, after a time of its own (which
/// stands still with it and follows the speed factor), or at a percentage of its way. What is told for later than the
/// end comes with the end.
struct io_command
{
    QORIN_IO_CONTROL_CONDITION condition;
    double when;
    QORIN_IO_TYPE type;
    std::uint32_t channel;
    double value;

    bool operator==(const io_command&) const = default;
};

/// A condition is about a digital channel, a command about an output: any other type is
/// QORIN_API_RESULT_ERROR_MOTION_CANNOT_SET_IO_TYPE, what else cannot be
/// QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE.
[[nodiscard]] QORIN_API_RESULT judge(const start_condition& condition);
[[nodiscard]] QORIN_API_RESULT judge(const io_command& command);
} // namespace cbox_simulator

#endif
