#include "api/api_call_robot_internal_data.h"

#include <atomic>
#include <chrono>
#include <utility>

#include "qorin/robot.h"
#include "savrent/cc/os_util.h"
#include "savrent/cc/singleton.h"
#include "savrent/cc/system_config_parser.h"

namespace qorin_api
{
namespace
{
using namespace std::chrono_literals;

constexpr auto computation_limit = 1s; // at the end of the process
constexpr auto poll_pause = 1ms;

// Who computes counts itself first and looks at the flag then; who closes sets the flag first and looks at the count
// then. So one of the two sees the other.
std::atomic<unsigned int> g_computations = 0;
std::atomic<bool> g_modules_closed = false;

bool computations_end()
{
    const auto deadline = std::chrono::steady_clock::now() + computation_limit;
    while (g_computations.load() != 0)
    {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        savrent::cc::os_util::sleep_for(poll_pause);
    }
    return true;
}
} // namespace

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

void api_call_robot_internal_data::close_all()
{
    g_modules_closed.store(true);
    if (!computations_end())
        return;
    for (auto& [id, record] : robots_)
        record.kinematics.reset();
}

kinematics_use::kinematics_use(unsigned int robot_id)
{
    ++g_computations;
    if (g_modules_closed.load())
        return;
    if (const _api_robot_data* record = api_call_robot_internal_data::get_instance()->get(robot_id))
        kinematics_ = record->kinematics.get();
}

kinematics_use::~kinematics_use()
{
    --g_computations;
}
} // namespace qorin_api

unsigned int hashFunc(const char* text)
{
    constexpr unsigned int offset_from = 200;
    constexpr unsigned int offset = 56;
    const auto first = static_cast<unsigned char>(*text);
    return first >= offset_from ? first + offset : first;
}
