#include "api/api_log_print.h"

#include <array>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <string>

#include "api/api_call_logger.h"
#include "savrent/cc/immortal.h"
#include "savrent/cc/log_type_text.h"
#include "savrent/cc/os_util.h"
#include "savrent/cc/system_config_parser.h"

namespace
{
constexpr std::size_t file_format_limit = 512;

/// The buffer's size is the limit of a message: a longer one is a fault of the caller, never a cut line.
const char* format_message(const char* format, std::va_list arguments)
{
    static std::array<char, 1024> msg_map;
    const int length = std::vsnprintf(msg_map.data(), msg_map.size(), format, arguments);
    if (length < 0 || static_cast<std::size_t>(length) >= msg_map.size())
    {
        std::fprintf(stderr, "QORIN_API_LOG_PRINT: a message of %d bytes does not fit its buffer of %zu, format: %s\n",
                     length, msg_map.size(), format);
        std::abort();
    }
    return msg_map.data();
}

std::string event_line(QORIN_LOG_TYPE type, const char* message)
{
    static savrent::cc::immortal g_type_texts(savrent::cc::log_type_texts());
    std::string line;
    savrent::cc::os_util::get_current_time_string(line);
    line += ": ";
    line += (*g_type_texts)[type];
    line += '[';
    line += savrent::cc::os_util::this_thread_id_string();
    line += "] ";
    line += message;
    return line;
}
} // namespace

void QORIN_API_LOG_PRINT(QORIN_LOG_TYPE type, const char* format, ...)
{
    std::lock_guard lock(qorin_api::g_event_log_mtx);
    std::va_list arguments;
    va_start(arguments, format);
    const char* message = format_message(format, arguments);
    va_end(arguments);

    std::string line = event_line(type, message);
    if (savrent::cc::system_config_value("client.log_print_out") == "on")
        std::printf("%s", line.c_str());
    if (!qorin_api::is_event_logger_file_open())
        qorin_api::event_logger_write_line_before_taking_control(std::move(line));
    else if (std::strlen(format) < file_format_limit)
    {
        qorin_api::event_logger_write_line(line);
        qorin_api::event_logger_write_flush();
    }
}
