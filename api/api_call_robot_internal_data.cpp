#include "api/api_call_robot_internal_data.h"

#include <utility>

#include "qorin/robot.h"
#include "savrent/cc/singleton.h"
#include "savrent/cc/system_config_parser.h"

namespace qorin_api
{
std::shared_ptr<api_call_robot_internal_data> api_call_robot_internal_data::get_instance()
{
    static savrent::cc::singleton<api_call_robot_internal_data> p_instance{"api_call_robot_internal_data"};
    return p_instance.get();
}

api_call_robot_internal_data::~api_call_robot_internal_data()
{
    destroy_all();
}

QORIN_API_RESULT api_call_robot_internal_data::create(unsigned int id, QORIN_ROBOT_MODEL model)
{
    if (robots_.contains(id))
        return QORIN_API_RESULT_OK;
    const std::string path = savrent::cc::system_config_value("client.kinematics_path");
    auto kinematics = std::make_unique<savrent::ctrl::algorithm::robot_kinematics>(model, path);
    if (!kinematics->is_loaded())
        return QORIN_API_RESULT_ROBOT_CLIENT_KINEMATICS_MODULE_LOAD_FAILURE;
    _api_robot_data record;
    record.kinematics = std::move(kinematics);
    robots_.emplace(id, std::move(record));
    return QORIN_API_RESULT_OK;
}

_api_robot_data* api_call_robot_internal_data::get(unsigned int id)
{
    const auto entry = robots_.find(id);
    return entry == robots_.end() ? nullptr : &entry->second;
}

void api_call_robot_internal_data::destroy(unsigned int id)
{
    robots_.erase(id);
}

void api_call_robot_internal_data::chage_id(unsigned int new_id, unsigned int old_id)
{
    if (robots_.contains(new_id) || !robots_.contains(old_id))
        return;
    auto record = robots_.extract(old_id);
    record.key() = new_id;
    robots_.insert(std::move(record));
}

void api_call_robot_internal_data::destroy_all()
{
    while (!robots_.empty())
        robots_.erase(robots_.begin());
}
} // namespace qorin_api

unsigned int hashFunc(const char* text)
{
    constexpr unsigned int offset_from = 200;
    constexpr unsigned int offset = 56;
    const auto first = static_cast<unsigned char>(*text);
    return first >= offset_from ? first + offset : first;
}
