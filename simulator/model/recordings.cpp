#include "simulator/model/recordings.h"

#include <utility>

namespace cbox_simulator
{
std::uint32_t recordings::create(const recording& content)
{
    buffers_.emplace(++last_id_, content);
    return last_id_;
}

QORIN_API_RESULT recordings::destroy(std::uint32_t id)
{
    return buffers_.erase(id) == 1 ? QORIN_API_RESULT_OK : QORIN_API_RESULT_ROBOT_INVALID_RECORDING_BUFFER_ID;
}

recording* recordings::find(std::uint32_t id)
{
    const auto found = buffers_.find(id);
    return found == buffers_.end() ? nullptr : &found->second;
}

QORIN_API_RESULT recordings::start(const savrent::kinematics::joint_array& angles)
{
    if (running_)
        return QORIN_API_RESULT_ROBOT_ALREADY_RECORDING_RUNNING_STATE;
    running_.emplace({angles});
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT recordings::end(std::uint32_t id)
{
    if (!running_)
        return QORIN_API_RESULT_ROBOT_ALREADY_RECORDING_STOP_STATE;
    auto* buffer = find(id);
    if (!buffer)
        return QORIN_API_RESULT_ROBOT_INVALID_RECORDING_BUFFER_ID;
    *buffer = *std::exchange(running_, std::nullopt);
    return QORIN_API_RESULT_OK;
}

void recordings::follow(const savrent::kinematics::joint_array& angles)
{
    if (!running_ || running_->size() == length_limit)
        return;
    running_->push_back(angles);
    if (running_->size() == length_limit)
        timed_out_ = true;
}
} // namespace cbox_simulator
