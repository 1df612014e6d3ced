#ifndef SIMULATOR_MODEL_REDUNDANT_IO_H
#define SIMULATOR_MODEL_REDUNDANT_IO_H

#include <array>
#include <cstdint>
#include <vector>

#include "qorin/enumerations.h"
#include "qorin/result.h"
#include "simulator/model/io_modules.h"

namespace cbox_simulator
{
/// Two channels that carry one safety function together.
struct redundant_pair
{
    std::uint32_t channel_1;
    std::uint32_t channel_2;
    std::uint32_t function; ///< a value of the terminals' enumeration

    bool operator==(const redundant_pair&) const = default;
};

/// The redundant channels of one module in one direction, and what each pair of them is for.
class redundant_terminals
{
public:
    explicit redundant_terminals(std::uint32_t channel_count) : channel_count_(channel_count) {}

    [[nodiscard]] const std::vector<redundant_pair>& pairs() const { return pairs_; }

    QORIN_API_RESULT assign(const redundant_pair& pair);
    QORIN_API_RESULT remove(std::uint32_t channel_1, std::uint32_t channel_2);
    void remove_all() { pairs_.clear(); }

private:
    [[nodiscard]] bool is_assigned(std::uint32_t channel) const;

    std::uint32_t channel_count_;
    std::vector<redundant_pair> pairs_;
};

/**
 * What the redundant I/O of the box is assigned to: inputs and outputs of the I/O modules, inputs of the safety module.
 *
 * A module or channel that is not there, or a channel paired with itself, is
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER; a function that these terminals cannot have is
 * QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE; without a free channel it is
 * QORIN_API_RESULT_ERROR_CBOX_REDUNDANT_IO_ALL_ASSIGNED; a channel that has a function is
 * QORIN_API_RESULT_ERROR_CBOX_REDUNDANT_IO_ALREADY_ASSIGNED. Only a pair that stands, its channels in the same order,
 * can be removed: QORIN_API_RESULT_ERROR_CBOX_REDUNDANT_IO_NOT_MATCHED.
 */
class redundant_io
{
public:
    static constexpr std::uint32_t safety_module_count = 1;

    [[nodiscard]] const auto& redundant_inputs() const { return inputs_; }
    [[nodiscard]] const auto& redundant_outputs() const { return outputs_; }
    [[nodiscard]] const auto& safety_inputs() const { return safety_inputs_; }

    QORIN_API_RESULT assign_redundant_input(std::uint32_t module, std::uint32_t channel_1, std::uint32_t channel_2,
                                            QORIN_CBOX_IO_REDUNDANT function);
    QORIN_API_RESULT assign_redundant_output(std::uint32_t module, std::uint32_t channel_1, std::uint32_t channel_2,
                                             QORIN_CBOX_IO_REDUNDANT function);
    QORIN_API_RESULT assign_safety_input(std::uint32_t module, std::uint32_t channel_1, std::uint32_t channel_2,
                                         QORIN_SAFETY_MODULE_IO_REDUNDANT function);

    QORIN_API_RESULT remove_redundant_input(std::uint32_t module, std::uint32_t channel_1, std::uint32_t channel_2);
    QORIN_API_RESULT remove_redundant_output(std::uint32_t module, std::uint32_t channel_1, std::uint32_t channel_2);
    QORIN_API_RESULT remove_safety_input(std::uint32_t module, std::uint32_t channel_1, std::uint32_t channel_2);

    QORIN_API_RESULT remove_all_redundant_inputs(std::uint32_t module);
    QORIN_API_RESULT remove_all_redundant_outputs(std::uint32_t module);
    QORIN_API_RESULT remove_all_safety_inputs(std::uint32_t module);

private:
    static constexpr std::uint32_t safety_channels = 8;

    std::array<redundant_terminals, io_modules::module_count> inputs_{redundant_terminals(io_module::digital_channels),
                                                                      redundant_terminals(io_module::digital_channels)};
    std::array<redundant_terminals, io_modules::module_count> outputs_{
        redundant_terminals(io_module::digital_channels), redundant_terminals(io_module::digital_channels)};
    std::array<redundant_terminals, safety_module_count> safety_inputs_{redundant_terminals(safety_channels)};
};
} // namespace cbox_simulator

#endif
