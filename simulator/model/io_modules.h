#ifndef SIMULATOR_MODEL_IO_MODULES_H
#define SIMULATOR_MODEL_IO_MODULES_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "protocol/limits.h"
#include "qorin/enumerations.h"
#include "qorin/result.h"
#include "simulator/model/block.h"

namespace cbox_simulator
{
/// What one I/O module has at its terminals. Bit n of a word is channel n.
struct io_module
{
    static constexpr std::uint32_t digital_channels = protocol::io_digital_channels;
    static constexpr std::uint32_t analog_channels = protocol::io_analog_channels;

    std::string sw_version = "SIM.IO.v1.0";
    std::uint32_t digital_input = 0; ///< the FSoE inputs are its lowest bits
    std::uint32_t redundant_digital_input = 0;
    std::uint32_t digital_output = 0; ///< the FSoE output is its lowest bit
    std::uint32_t redundant_digital_output = 0;
    std::array<double, analog_channels> analog_input{};
    std::array<double, analog_channels> analog_output{};
    std::array<QORIN_ANALOG_IO_MODE, analog_channels> analog_input_mode{QORIN_ANALOG_IO_MODE_VOLTAGE,
                                                                        QORIN_ANALOG_IO_MODE_VOLTAGE};
    std::array<QORIN_ANALOG_IO_MODE, analog_channels> analog_output_mode{QORIN_ANALOG_IO_MODE_VOLTAGE,
                                                                         QORIN_ANALOG_IO_MODE_VOLTAGE};
};

/**
 * The I/O modules of the box.
 *
 * Module and channel together are the number of an I/O: a module or a channel that is not there is
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER. It is judged before the value, which is refused with
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE: a digital one other than 0 and 1, an analog one that is no finite
 * number, a mode that is none.
 */
class io_modules
{
public:
    static constexpr std::size_t module_count = 2;

    [[nodiscard]] const std::array<io_module, module_count>& all_io_modules() const { return modules_; }

    QORIN_API_RESULT set_digital_input(std::uint32_t module, std::uint32_t channel, std::uint32_t value);
    QORIN_API_RESULT set_digital_output(std::uint32_t module, std::uint32_t channel, std::uint32_t value);
    /// The first `count` outputs of the block, all of them or none.
    QORIN_API_RESULT set_digital_outputs(std::uint32_t module, std::uint32_t count,
                                         const block_of<std::uint32_t>& outputs, const block_of<std::uint32_t>& values);
    QORIN_API_RESULT set_redundant_input(std::uint32_t module, std::uint32_t channel, std::uint32_t value);
    QORIN_API_RESULT set_redundant_output(std::uint32_t module, std::uint32_t channel, std::uint32_t value);

    QORIN_API_RESULT set_analog_input(std::uint32_t module, std::uint32_t channel, double value);
    QORIN_API_RESULT set_analog_output(std::uint32_t module, std::uint32_t channel, double value);
    QORIN_API_RESULT set_analog_input_mode(std::uint32_t module, std::uint32_t channel, QORIN_ANALOG_IO_MODE mode);
    QORIN_API_RESULT set_analog_output_mode(std::uint32_t module, std::uint32_t channel, QORIN_ANALOG_IO_MODE mode);

    QORIN_API_RESULT set_fsoe_input(std::uint32_t module, QORIN_FSOE_IO_INPUT_DATA input, std::uint32_t value);
    QORIN_API_RESULT set_fsoe_output(std::uint32_t module, QORIN_FSOE_IO_OUTPUT_DATA output, std::uint32_t value);

    /// What is too long for the frame's field is cut there.
    QORIN_API_RESULT set_io_module_sw_version(std::uint32_t module, std::string_view text);

private:
    template <class Value>
    using channels = std::array<Value, io_module::analog_channels>;

    QORIN_API_RESULT set_bit(std::uint32_t io_module::*word, std::uint32_t module, std::uint32_t channel,
                             std::uint32_t value);
    QORIN_API_RESULT set_analog(channels<double> io_module::*values, std::uint32_t module, std::uint32_t channel,
                                double value);
    QORIN_API_RESULT set_mode(channels<QORIN_ANALOG_IO_MODE> io_module::*modes, std::uint32_t module,
                              std::uint32_t channel, QORIN_ANALOG_IO_MODE mode);

    std::array<io_module, module_count> modules_;
};
} // namespace cbox_simulator

#endif
