#include "simulator/model/motion_io.h"

#include "simulator/model/possible_values.h"

namespace cbox_simulator
{
namespace
{
struct io_channels
{
    std::uint32_t count = 0; ///< 0 when there are no such channels.
    bool digital = false;
    bool output = false;
};

io_channels channels_of(QORIN_IO_TYPE type)
{
    switch (type)
    {
    case QORIN_IO_TYPE_CBOX_DIGITAL_INPUT:
        return {.count = 16, .digital = true};
    case QORIN_IO_TYPE_CBOX_DIGITAL_OUTPUT:
        return {.count = 16, .digital = true, .output = true};
    case QORIN_IO_TYPE_CBOX_SAFETY_MODULE_DIGITAL_INPUT:
        return {.count = 8, .digital = true};
    case QORIN_IO_TYPE_CBOX_SAFETY_MODULE_DIGITAL_OUTPUT:
        return {.count = 8, .digital = true, .output = true};
    case QORIN_IO_TYPE_TOOL_DIGITAL_INPUT:
        return {.count = 4, .digital = true};
    case QORIN_IO_TYPE_TOOL_DIGITAL_OUTPUT:
        return {.count = 4, .digital = true, .output = true};
    case QORIN_IO_TYPE_CBOX_ANALOG_INPUT:
    case QORIN_IO_TYPE_TOOL_ANALOG_INPUT:
        return {.count = 2};
    case QORIN_IO_TYPE_CBOX_ANALOG_OUTPUT:
    case QORIN_IO_TYPE_TOOL_ANALOG_OUTPUT:
        return {.count = 2, .output = true};
    default: // the safety module has no analog terminals
        break;
    }
    return {};
}

bool is_value_for(const io_channels& channels, double value)
{
    return channels.digital ? value == 0 || value == 1 : is_possible(value);
}

bool is_when(QORIN_IO_CONTROL_CONDITION condition, double when)
{
    switch (condition)
    {
    case QORIN_IO_CONTROL_CONDITION_BEGIN:
    case QORIN_IO_CONTROL_CONDITION_END:
        return is_possible(when);
    case QORIN_IO_CONTROL_CONDITION_TIME:
        return is_possible(when, number_range::not_negative);
    case QORIN_IO_CONTROL_CONDITION_PERCENTAGE:
        return is_possible(when, number_range::percentage);
    default:
        return false;
    }
}
} // namespace

QORIN_API_RESULT judge(const start_condition& condition)
{
    const auto channels = channels_of(condition.type);
    if (!channels.digital)
        return QORIN_API_RESULT_ERROR_MOTION_CANNOT_SET_IO_TYPE;
    return condition.channel < channels.count && is_value_for(channels, condition.value)
               ? QORIN_API_RESULT_OK
               : QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE;
}

QORIN_API_RESULT judge(const io_command& command)
{
    const auto channels = channels_of(command.type);
    if (!channels.output)
        return QORIN_API_RESULT_ERROR_MOTION_CANNOT_SET_IO_TYPE;
    return is_when(command.condition, command.when) && command.channel < channels.count &&
                   is_value_for(channels, command.value)
               ? QORIN_API_RESULT_OK
               : QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE;
}
} // namespace cbox_simulator
