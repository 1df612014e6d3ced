#include "simulator/model/robot_set.h"
namespace cbox_simulator
{
QORIN_API_RESULT robot_set::create(QORIN_ROBOT_MODEL model, std::uint32_t capacity, std::uint32_t& id)
{
    const auto* arm = arms_.find(model);
    std::uint32_t free_id = 0;
    while (exists(free_id))
        ++free_id;
    if (!arm || free_id >= robot_limit || free_id >= capacity)
        return QORIN_API_RESULT_ERROR_ROBOT_CREATION_FAILURE;
    robots_[free_id].emplace(*arm);
    id = free_id;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT robot_set::destroy(std::uint32_t id)
{
    if (!exists(id))
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    robots_[id].reset();
    return QORIN_API_RESULT_OK;
}

const robot_state* robot_set::find(std::uint32_t id) const
{
    return id < robot_limit && robots_[id] ? &*robots_[id] : nullptr;
}

robot_state* robot_set::find(std::uint32_t id)
{
    return id < robot_limit && robots_[id] ? &*robots_[id] : nullptr;
}

std::uint32_t robot_set::record_count() const
{
    std::uint32_t count = robot_limit;
    while (count > 0 && !exists(count - 1))
        --count;
    return count;
}
} // namespace cbox_simulator
