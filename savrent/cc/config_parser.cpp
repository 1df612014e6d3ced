#include "savrent/cc/config_parser.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include <boost/property_tree/ini_parser.hpp>

#include "savrent/cc/debug_print.h"
#include "savrent/cc/sw_err.h"

namespace savrent::cc
{
namespace
{
/// There is no path that a report could name, so the caller gets the text itself.
[[noreturn]] void throw_without_path()
{
    const std::logic_error failure("configuration file load fauilure: no path is given and SAVRENT_V3 is not set");
    QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_ERROR, "%s\n", failure.what());
    throw failure;
}
} // namespace

bool config_parser::load_file(const char* path)
{
    if (is_loaded())
        return true;

    std::string file;
    if (path != nullptr)
        file = path;
    else if (const char* installation = std::getenv("SAVRENT_V3"))
        file = std::string(installation) + "/config/config.ini";
    else
        throw_without_path();

    std::string reason;
    try
    {
        boost::property_tree::ini_parser::read_ini(file, tree_);
        loaded_.store(true, std::memory_order_release);
        return true;
    }
    catch (const std::exception& failure)
    {
        reason = failure.what();
        QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_ERROR, "%s\n", reason.c_str());
        reason += '\n';
    }
    catch (...)
    {
    }

    const std::string report = "configuration file load fauilure, path: " + file;
    err::sw_err::handle(report.c_str(), "config_parser", 64);
    // Without a configuration no log is open and the screen is off: this is the one place where a user can see why.
    std::fprintf(stderr, "%s\n%s", report.c_str(), reason.c_str());
    return false;
}

template <>
std::string config_parser::parse<std::string>(const char* key, bool* found) const
{
    const bool readable = key != nullptr && is_loaded();
    std::string value;
    if (readable)
        value = tree_.get_child(key).data();
    if (found != nullptr)
        *found = readable;
    return value;
}

void config_parser::print(const std::function<void(const char*, const char*, const char*)>& callback) const
{
    if (!is_loaded())
        return;
    for (const auto& [section, keys] : tree_)
        for (const auto& [key, value] : keys)
            callback(section.c_str(), key.c_str(), value.data().c_str());
}
} // namespace savrent::cc
