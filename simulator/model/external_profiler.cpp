#include "simulator/model/external_profiler.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "simulator/model/possible_values.h"

namespace cbox_simulator
{
QORIN_API_RESULT external_profiler::set_active(QORIN_SWITCH value)
{
    if (!is_possible(value))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    if (value == QORIN_SWITCH_OFF)
        points_.clear();
    active_ = value;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT external_profiler::set_period(std::uint32_t milliseconds, double control_cycle_us)
{
    const double cycles = std::round(milliseconds * 1000.0 / control_cycle_us);
    if (milliseconds == 0 || cycles > std::numeric_limits<std::uint32_t>::max())
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    period_cycles_ = std::max(static_cast<std::uint32_t>(cycles), 1u);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT external_profiler::set_pose_type(QORIN_POSE_TYPE value)
{
    if (!is_possible(value))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    pose_type_ = value;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT external_profiler::add(const profiler_point& point)
{
    if (points_.size() == capacity)
        return QORIN_API_RESULT_ERROR_ROBOT_EXT_PROFILER_BUF_FULL;
    points_.push_back(point);
    return QORIN_API_RESULT_OK;
}

std::optional<profiler_point> external_profiler::take_due_point()
{
    if (active_ == QORIN_SWITCH_OFF || ++cycles_since_point_ < period_cycles_)
        return {};
    cycles_since_point_ = 0;
    if (points_.empty())
        return {};
    const auto point = points_.front();
    points_.pop_front();
    return point;
}
} // namespace cbox_simulator
