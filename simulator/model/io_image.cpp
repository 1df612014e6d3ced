#include "simulator/model/io_image.h"

#include <tuple>

#include "simulator/model/io_channels.h"

namespace cbox_simulator
{
namespace
{
constexpr std::uint32_t first_safety_input = 8;
constexpr std::uint32_t word_bits = 32;

double bit(std::uint32_t word, std::uint32_t channel)
{
    return channel < word_bits ? word >> channel & 1u : 0;
}

template <class Values>
double analog(const Values& values, std::uint32_t channel)
{
    return channel < values.size() ? values[channel] : 0;
}
} // namespace

double io_value(const cbox_state& cbox, const robot_state& robot, QORIN_IO_TYPE type, std::uint32_t channel)
{
    const auto& module = cbox.all_io_modules().front();
    const auto& tool = robot.settings().tool;
    switch (type)
    {
    case QORIN_IO_TYPE_CBOX_DIGITAL_INPUT:
        return bit(module.digital_input, channel);
    case QORIN_IO_TYPE_CBOX_DIGITAL_OUTPUT:
        return bit(module.digital_output, channel);
    case QORIN_IO_TYPE_CBOX_ANALOG_INPUT:
        return analog(module.analog_input, channel);
    case QORIN_IO_TYPE_CBOX_ANALOG_OUTPUT:
        return analog(module.analog_output, channel);
    case QORIN_IO_TYPE_CBOX_SAFETY_MODULE_DIGITAL_INPUT:
        return bit(cbox.safety_redundant_word(), first_safety_input + channel);
    case QORIN_IO_TYPE_CBOX_SAFETY_MODULE_DIGITAL_OUTPUT:
        return bit(cbox.safety_redundant_word(), channel);
    case QORIN_IO_TYPE_TOOL_DIGITAL_INPUT:
        return bit(tool.digital_input, channel);
    case QORIN_IO_TYPE_TOOL_DIGITAL_OUTPUT:
        return bit(tool.digital_output, channel);
    case QORIN_IO_TYPE_TOOL_ANALOG_INPUT:
        return analog(tool.analog_input, channel);
    case QORIN_IO_TYPE_TOOL_ANALOG_OUTPUT:
        return analog(tool.analog_output, channel);
    default:
        return 0;
    }
}

void set_io_value(cbox_state& cbox, robot_state& robot, QORIN_IO_TYPE type, std::uint32_t channel, double value)
{
    const std::uint32_t digital = value != 0;
    auto& tool = robot.settings().tool;
    switch (type)
    {
    case QORIN_IO_TYPE_CBOX_DIGITAL_OUTPUT:
        cbox.set_digital_output(0, channel, digital);
        return;
    case QORIN_IO_TYPE_CBOX_ANALOG_OUTPUT:
        cbox.set_analog_output(0, channel, value);
        return;
    case QORIN_IO_TYPE_CBOX_SAFETY_MODULE_DIGITAL_OUTPUT:
        cbox.set_safety_output(channel, digital);
        return;
    case QORIN_IO_TYPE_TOOL_DIGITAL_OUTPUT:
        std::ignore = set_channel(tool.digital_output, {tool_module::digital_channels}, channel, digital);
        return;
    case QORIN_IO_TYPE_TOOL_ANALOG_OUTPUT:
        std::ignore = set_analog_channel(tool.analog_output, channel, value);
        return;
    default:
        return;
    }
}
} // namespace cbox_simulator
