#include "api/api_call_log_data.h"

#include <cstdio>

#include "savrent/cc/singleton.h"

namespace qorin_api
{
namespace
{
std::string numbered_file(const char* directory, std::uint32_t number)
{
    std::string path = directory;
    if (!path.empty())
        path += '/';
    return path + std::to_string(number) + ".txt";
}
} // namespace

std::shared_ptr<api_call_log_data> api_call_log_data::get_instance()
{
    static savrent::cc::singleton<api_call_log_data> instance{"api_call_log_data"};
    return instance.get();
}

std::string api_call_log_data::get_cur_func_call_file_path() const
{
    return numbered_file(fields.call_log_directory, fields.file_number);
}

std::string api_call_log_data::get_cur_event_log_file_path() const
{
    return numbered_file(fields.event_log_directory, fields.file_number);
}

void api_call_log_data::set_directories(const std::string& call_log, const std::string& event_log)
{
    std::snprintf(fields.call_log_directory, sizeof(fields.call_log_directory), "%s", call_log.c_str());
    std::snprintf(fields.event_log_directory, sizeof(fields.event_log_directory), "%s", event_log.c_str());
}
} // namespace qorin_api
