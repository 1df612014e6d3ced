#ifndef TOOLS_QORIN_DOCTOR_MEASURING_H
#define TOOLS_QORIN_DOCTOR_MEASURING_H

#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

namespace qorin_cli::doctor
{
using clock = std::chrono::steady_clock;
using milliseconds = std::chrono::duration<double, std::milli>;

/// Called now and then while something is measured, so that progress can be shown.
using tick = std::function<void()>;

/// Of measured times, in milliseconds.
struct distribution
{
    double median = 0;
    double percentile_99 = 0;
    double worst = 0;
};

/// All are 0 when nothing was measured.
inline distribution distribution_of(std::vector<double> values)
{
    if (values.empty())
        return {};
    std::sort(values.begin(), values.end());
    const auto at = [&](double share)
    { return values[static_cast<std::size_t>(share * static_cast<double>(values.size() - 1))]; };
    return {at(0.5), at(0.99), values.back()};
}
} // namespace qorin_cli::doctor

#endif
