#include "kinematics/dh_table.h"

#include <algorithm>
#include <cmath>

namespace savrent::kinematics
{
double total_length(const dh_table& table)
{
    double sum = 0.0;
    for (std::size_t i = 0; i < joint_count; ++i)
        sum += std::abs(table.a[i]) + std::abs(table.d[i]);
    return sum;
}

bool describes_an_arm(const dh_table& table)
{
    const auto is_finite = [](const joint_array& values)
    { return std::ranges::all_of(values, [](double value) { return std::isfinite(value); }); };
    return is_finite(table.theta) && is_finite(table.d) && is_finite(table.a) && is_finite(table.alpha) &&
           total_length(table) > 0.0;
}
} // namespace savrent::kinematics
