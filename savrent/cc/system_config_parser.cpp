#include "savrent/cc/system_config_parser.h"

#include "savrent/cc/singleton.h"

namespace savrent::cc
{
std::shared_ptr<system_config_parser> system_config_parser::get_instance()
{
    static singleton<system_config_parser> instance{"system_config_parser"};
    return instance.get();
}

std::string system_config_value(const char* key)
{
    try
    {
        return system_config_parser::get_instance()->parse<std::string>(key, nullptr);
    }
    catch (const std::exception&)
    {
        return {};
    }
}
} // namespace savrent::cc
