#ifndef SIMULATOR_MODEL_SAFETY_MODULE_H
#define SIMULATOR_MODEL_SAFETY_MODULE_H

#include <cstdint>
#include <string>
#include <string_view>

#include "simulator/model/io_channels.h"
#include "simulator/model/possible_values.h"

namespace cbox_simulator
{
/// The safety module: its redundant inputs, and the 48 V supply that it switches.
class safety_module
{
public:
    /// Input n stands at bit 8 + n.
    [[nodiscard]] std::uint32_t safety_redundant_word() const { return redundant_word_; }
    [[nodiscard]] QORIN_SWITCH smps_48v_switch() const { return smps_48v_switch_; }
    [[nodiscard]] const std::string& safety_module_sw_version() const { return sw_version_; }

    /// Inputs 0 to 7; refuses as the digital inputs of the I/O modules do.
    QORIN_API_RESULT set_safety_redundant_input(std::uint32_t input, std::uint32_t value)
    {
        return set_channel(redundant_word_, {8, 8}, input, value);
    }

    /// Outputs 0 to 7, at bit n of the word, which no reader interprets.
    QORIN_API_RESULT set_safety_output(std::uint32_t output, std::uint32_t value)
    {
        return set_channel(redundant_word_, {8}, output, value);
    }

    QORIN_API_RESULT set_smps_48v_switch(QORIN_SWITCH value)
    {
        if (!is_possible(value))
            return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE;
        smps_48v_switch_ = value;
        return QORIN_API_RESULT_OK;
    }

    /// What is too long for the frame's field is cut there.
    void set_safety_module_sw_version(std::string_view text) { sw_version_ = text; }

private:
    std::uint32_t redundant_word_ = 0;
    QORIN_SWITCH smps_48v_switch_ = QORIN_SWITCH_OFF;
    std::string sw_version_ = "SIM.SAFETY.v1.0";
};
} // namespace cbox_simulator

#endif
