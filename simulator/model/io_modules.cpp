#include "simulator/model/io_modules.h"

#include "simulator/model/io_channels.h"

namespace cbox_simulator
{
QORIN_API_RESULT io_modules::set_digital_input(std::uint32_t module, std::uint32_t channel, std::uint32_t value)
{
    return set_bit(&io_module::digital_input, module, channel, value);
}

QORIN_API_RESULT io_modules::set_digital_output(std::uint32_t module, std::uint32_t channel, std::uint32_t value)
{
    return set_bit(&io_module::digital_output, module, channel, value);
}

QORIN_API_RESULT io_modules::set_digital_outputs(std::uint32_t module, std::uint32_t count,
                                                 const block_of<std::uint32_t>& outputs,
                                                 const block_of<std::uint32_t>& values)
{
    if (module >= module_count)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return set_channels(modules_[module].digital_output, {io_module::digital_channels}, count, outputs, values);
}

QORIN_API_RESULT io_modules::set_redundant_input(std::uint32_t module, std::uint32_t channel, std::uint32_t value)
{
    return set_bit(&io_module::redundant_digital_input, module, channel, value);
}

QORIN_API_RESULT io_modules::set_redundant_output(std::uint32_t module, std::uint32_t channel, std::uint32_t value)
{
    return set_bit(&io_module::redundant_digital_output, module, channel, value);
}

QORIN_API_RESULT io_modules::set_analog_input(std::uint32_t module, std::uint32_t channel, double value)
{
    return set_analog(&io_module::analog_input, module, channel, value);
}

QORIN_API_RESULT io_modules::set_analog_output(std::uint32_t module, std::uint32_t channel, double value)
{
    return set_analog(&io_module::analog_output, module, channel, value);
}

QORIN_API_RESULT io_modules::set_analog_input_mode(std::uint32_t module, std::uint32_t channel,
                                                   QORIN_ANALOG_IO_MODE mode)
{
    return set_mode(&io_module::analog_input_mode, module, channel, mode);
}

QORIN_API_RESULT io_modules::set_analog_output_mode(std::uint32_t module, std::uint32_t channel,
                                                    QORIN_ANALOG_IO_MODE mode)
{
    return set_mode(&io_module::analog_output_mode, module, channel, mode);
}

QORIN_API_RESULT io_modules::set_fsoe_input(std::uint32_t module, QORIN_FSOE_IO_INPUT_DATA input, std::uint32_t value)
{
    if (input < QORIN_FSOE_RESET_INPUT || input > QORIN_FSOE_REAR_OSSD_B_INPUT)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return set_digital_input(module, static_cast<std::uint32_t>(input) - QORIN_FSOE_RESET_INPUT, value);
}

QORIN_API_RESULT io_modules::set_fsoe_output(std::uint32_t module, QORIN_FSOE_IO_OUTPUT_DATA output,
                                             std::uint32_t value)
{
    if (output != QORIN_FSOE_MC3_POWER_OUTPUT)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return set_digital_output(module, 0, value);
}

QORIN_API_RESULT io_modules::set_io_module_sw_version(std::uint32_t module, std::string_view text)
{
    if (module >= module_count)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    modules_[module].sw_version = text;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT io_modules::set_bit(std::uint32_t io_module::*word, std::uint32_t module, std::uint32_t channel,
                                     std::uint32_t value)
{
    if (module >= module_count)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return set_channel(modules_[module].*word, {io_module::digital_channels}, channel, value);
}

QORIN_API_RESULT io_modules::set_analog(channels<double> io_module::*values, std::uint32_t module,
                                        std::uint32_t channel, double value)
{
    if (module >= module_count)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return set_analog_channel(modules_[module].*values, channel, value);
}

QORIN_API_RESULT io_modules::set_mode(channels<QORIN_ANALOG_IO_MODE> io_module::*modes, std::uint32_t module,
                                      std::uint32_t channel, QORIN_ANALOG_IO_MODE mode)
{
    if (module >= module_count)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    return set_analog_mode(modules_[module].*modes, channel, mode);
}
} // namespace cbox_simulator
