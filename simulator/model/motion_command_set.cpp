#include "simulator/model/motion_command_set.h"

namespace cbox_simulator
{
QORIN_API_RESULT motion_command_set::add(const motion_command& copied, std::uint32_t& id)
{
    if (commands_.size() >= command_limit)
        return QORIN_API_RESULT_ERROR_COULD_NOT_CREATE_UNIQUE_COMMAND_ID;
    commands_.emplace(++last_id_, copied);
    id = last_id_;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT motion_command_set::destroy(std::uint32_t id)
{
    return commands_.erase(id) == 1 ? QORIN_API_RESULT_OK : QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID;
}

void motion_command_set::forget_robot(std::uint32_t robot_id)
{
    std::erase_if(commands_, [&](const auto& entry) { return entry.second.robot_id == robot_id; });
}

motion_command* motion_command_set::find(std::uint32_t id)
{
    const auto found = commands_.find(id);
    return found == commands_.end() ? nullptr : &found->second;
}
} // namespace cbox_simulator
