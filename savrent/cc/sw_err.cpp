#include "savrent/cc/sw_err.h"

#include <algorithm>
#include <atomic>
#include <cctype>
#include <cstdio>
#include <string>

#include "qorin/result.h"
#include "savrent/cc/debug_print.h"
#include "savrent/cc/err_storage.h"
#include "savrent/cc/system_data.h"

namespace savrent::cc::err
{
namespace
{
std::atomic<bool> g_b_init = false;
std::atomic<system_data* (*)()> g_system_data_source = nullptr;

/// "CONFIG_PARSER:64": the place of a fault in the error record of the control software.
std::string place_text(const std::string& file, int line)
{
    std::string place = file.substr(0, file.find_last_of('.'));
    std::transform(place.begin(), place.end(), place.begin(), [](unsigned char c) { return std::toupper(c); });
    return place + ":" + std::to_string(line);
}
} // namespace

void sw_err::init()
{
    g_b_init.store(true, std::memory_order_relaxed);
}

void sw_err::set_system_data_source(system_data* (*source)())
{
    g_system_data_source.store(source, std::memory_order_relaxed);
}

void sw_err::handle(const char* message, const char* file, int line)
{
    QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_ERROR, "software error, line %d at %s : %s\n", line, file, message);

    const auto source = g_system_data_source.load(std::memory_order_relaxed);
    if (system_data* data = source == nullptr ? nullptr : source())
    {
        data->error_code = QORIN_API_RESULT_ERROR_SAVRENT_INTERNAL_ERROR;
        std::snprintf(data->error_text, sizeof(data->error_text), "%s", place_text(file, line).c_str());
    }
    if (g_b_init.load(std::memory_order_relaxed))
        err_storage::add({QORIN_API_RESULT_ERROR_SAVRENT_INTERNAL_ERROR, static_cast<std::uint32_t>(line), 0});
}
} // namespace savrent::cc::err
