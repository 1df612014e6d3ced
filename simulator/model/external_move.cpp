#include "simulator/model/external_move.h"

#include "simulator/model/possible_values.h"

namespace cbox_simulator
{
QORIN_API_RESULT external_move::set_active(QORIN_SWITCH value)
{
    if (!is_possible(value))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    if (value == QORIN_SWITCH_OFF)
    {
        targets_.clear();
        last_.reset();
    }
    active_ = value;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT external_move::set_stop_mode(QORIN_SWITCH value)
{
    if (!is_possible(value))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    stop_mode_ = value;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT external_move::add(const timed_target& target)
{
    if (targets_.size() == capacity)
        return QORIN_API_RESULT_ERROR_ROBOT_EXT_PROFILER_BUF_FULL;
    targets_.push_back(target);
    last_ = target;
    return QORIN_API_RESULT_OK;
}

std::optional<timed_target> external_move::take()
{
    if (targets_.empty())
        return {};
    const auto target = targets_.front();
    targets_.pop_front();
    return target;
}
} // namespace cbox_simulator
