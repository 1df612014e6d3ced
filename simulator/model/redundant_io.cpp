#include "simulator/model/redundant_io.h"

#include <algorithm>

namespace cbox_simulator
{
namespace
{
/// The functions that these terminals can have follow each other in their enumeration.
template <class Function>
QORIN_API_RESULT assign(auto& modules, std::uint32_t module, redundant_pair pair, Function first, Function last)
{
    if (module >= modules.size())
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    if (pair.function < static_cast<std::uint32_t>(first) || pair.function > static_cast<std::uint32_t>(last))
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE;
    return modules[module].assign(pair);
}

QORIN_API_RESULT remove(auto& modules, std::uint32_t module, std::uint32_t channel_1, std::uint32_t channel_2)
{
    return module < modules.size() ? modules[module].remove(channel_1, channel_2)
                                   : QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
}

QORIN_API_RESULT remove_all(auto& modules, std::uint32_t module)
{
    if (module >= modules.size())
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    modules[module].remove_all();
    return QORIN_API_RESULT_OK;
}
} // namespace

QORIN_API_RESULT redundant_terminals::assign(const redundant_pair& pair)
{
    if (pair.channel_1 >= channel_count_ || pair.channel_2 >= channel_count_ || pair.channel_1 == pair.channel_2)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    if (pairs_.size() == channel_count_ / 2)
        return QORIN_API_RESULT_ERROR_CBOX_REDUNDANT_IO_ALL_ASSIGNED;
    if (is_assigned(pair.channel_1) || is_assigned(pair.channel_2))
        return QORIN_API_RESULT_ERROR_CBOX_REDUNDANT_IO_ALREADY_ASSIGNED;
    pairs_.push_back(pair);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT redundant_terminals::remove(std::uint32_t channel_1, std::uint32_t channel_2)
{
    if (channel_1 >= channel_count_ || channel_2 >= channel_count_)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_NUMBER;
    const auto removed = std::erase_if(pairs_, [&](const redundant_pair& pair)
                                       { return pair.channel_1 == channel_1 && pair.channel_2 == channel_2; });
    return removed > 0 ? QORIN_API_RESULT_OK : QORIN_API_RESULT_ERROR_CBOX_REDUNDANT_IO_NOT_MATCHED;
}

bool redundant_terminals::is_assigned(std::uint32_t channel) const
{
    return std::ranges::any_of(pairs_, [&](const redundant_pair& pair)
                               { return pair.channel_1 == channel || pair.channel_2 == channel; });
}

QORIN_API_RESULT redundant_io::assign_redundant_input(std::uint32_t module, std::uint32_t channel_1,
                                                      std::uint32_t channel_2, QORIN_CBOX_IO_REDUNDANT function)
{
    return assign(inputs_, module, {channel_1, channel_2, function}, QORIN_CBOX_IO_REDUNDANT_IN_EMERGENCY_STOP,
                  QORIN_CBOX_IO_REDUNDANT_IN_SAFEGUARD_RESET);
}

QORIN_API_RESULT redundant_io::assign_redundant_output(std::uint32_t module, std::uint32_t channel_1,
                                                       std::uint32_t channel_2, QORIN_CBOX_IO_REDUNDANT function)
{
    return assign(outputs_, module, {channel_1, channel_2, function}, QORIN_CBOX_IO_REDUNDANT_OUT_EMERGENCY_STOP,
                  QORIN_CBOX_IO_REDUNDANT_OUT_NOT_REDUCED_MODE);
}

QORIN_API_RESULT redundant_io::assign_safety_input(std::uint32_t module, std::uint32_t channel_1,
                                                   std::uint32_t channel_2, QORIN_SAFETY_MODULE_IO_REDUNDANT function)
{
    return assign(safety_inputs_, module, {channel_1, channel_2, function},
                  QORIN_SAFETY_MODULE_IO_REDUNDANT_IN_PAUSE_RESUME, QORIN_SAFETY_MODULE_IO_REDUNDANT_IN_ENABLE_SWITCH);
}

QORIN_API_RESULT redundant_io::remove_redundant_input(std::uint32_t module, std::uint32_t channel_1,
                                                      std::uint32_t channel_2)
{
    return remove(inputs_, module, channel_1, channel_2);
}

QORIN_API_RESULT redundant_io::remove_redundant_output(std::uint32_t module, std::uint32_t channel_1,
                                                       std::uint32_t channel_2)
{
    return remove(outputs_, module, channel_1, channel_2);
}

QORIN_API_RESULT redundant_io::remove_safety_input(std::uint32_t module, std::uint32_t channel_1,
                                                   std::uint32_t channel_2)
{
    return remove(safety_inputs_, module, channel_1, channel_2);
}

QORIN_API_RESULT redundant_io::remove_all_redundant_inputs(std::uint32_t module)
{
    return remove_all(inputs_, module);
}

QORIN_API_RESULT redundant_io::remove_all_redundant_outputs(std::uint32_t module)
{
    return remove_all(outputs_, module);
}

QORIN_API_RESULT redundant_io::remove_all_safety_inputs(std::uint32_t module)
{
    return remove_all(safety_inputs_, module);
}
} // namespace cbox_simulator
