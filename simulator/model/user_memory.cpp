#include "simulator/model/user_memory.h"

#include "simulator/model/possible_values.h"

namespace cbox_simulator
{
QORIN_API_RESULT user_memory::set(std::string_view name, const user_value& value)
{
    if (!is_possible(value.type))
        return QORIN_API_RESULT_ERROR_NO_SUPPORT;
    if (values_.size() == capacity && !find(name))
        return QORIN_API_RESULT_ERROR_KEY_MAX_MEMORY;
    values_[std::string(name)] = value;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT user_memory::remove(std::string_view name)
{
    const auto found = values_.find(name);
    if (found == values_.end())
        return QORIN_API_RESULT_ERROR_KEY_NOT_FOUND;
    values_.erase(found);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT user_memory::clear()
{
    values_.clear();
    return QORIN_API_RESULT_OK;
}

const user_value* user_memory::find(std::string_view name) const
{
    const auto found = values_.find(name);
    return found == values_.end() ? nullptr : &found->second;
}
} // namespace cbox_simulator
