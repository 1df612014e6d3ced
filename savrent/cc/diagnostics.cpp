#include "savrent/cc/diagnostics.h"

#include <array>
#include <atomic>
#include <chrono>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <exception>
#include <mutex>
#include <string>

#include "qorin/log.h"
#include "savrent/cc/debug_print.h"
#include "savrent/cc/immortal.h"
#include "savrent/cc/internal_log_proc.h"
#include "savrent/cc/log_type_text.h"
#include "savrent/cc/os_util.h"
#include "savrent/cc/shared_data_manager.h"
#include "savrent/cc/sw_err.h"
#include "savrent/cc/system_config_parser.h"

namespace
{
using savrent::cc::val_obj::savrent_log_info;

constexpr std::size_t message_limit = 512;

std::mutex g_mtx;
std::atomic<bool> g_b_debug_init = false;
std::array<char, 640> debug_msg_tmp;
std::array<char, 640> debug_msg;
unsigned int msg_cnt = 0;

/// Whether the value at `key` is "on". A missing key is off, and said so once on the screen.
bool read_switch(const char* key)
{
    try
    {
        return savrent::cc::system_config_parser::get_instance()->parse<std::string>(key, nullptr) == "on";
    }
    catch (const std::exception& failure)
    {
        std::printf("Debug Print STD Exception: %s\n", failure.what());
    }
    catch (...)
    {
        std::printf("Debug Print Unknown Exception");
    }
    return false;
}

void print_to_screen(const char* format, std::va_list arguments)
{
    static const bool print_out = read_switch("client.log_print_out");
    if (!print_out)
        return;
    std::lock_guard lock(g_mtx);
    std::vsnprintf(debug_msg_tmp.data(), debug_msg_tmp.size(), format, arguments);
    std::printf("%s", debug_msg_tmp.data());
}

/// Time, running count, type and message in one line. A message that is too long stands there as its format.
std::string transport_line(QORIN_LOG_TYPE type, const char* format, std::va_list arguments)
{
    static savrent::cc::immortal type_texts(savrent::cc::log_type_texts());
    const savrent::cc::system_data* data = savrent::cc::get_system_data();
    const unsigned long time = data == nullptr ? 0 : data->time;

    std::lock_guard lock(g_mtx);
    debug_msg_tmp.fill(0);
    debug_msg.fill(0);
    std::va_list measured;
    va_copy(measured, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, measured);
    va_end(measured);
    if (length >= 0 && static_cast<std::size_t>(length) < message_limit)
        std::vsnprintf(debug_msg_tmp.data(), debug_msg_tmp.size(), format, arguments);
    else
        std::snprintf(debug_msg_tmp.data(), debug_msg_tmp.size(), "%s", format);
    std::snprintf(debug_msg.data(), debug_msg.size(), "ts: %011lu, cnt: %010u, %s%.511s", time, msg_cnt++,
                  (*type_texts)[type].c_str(), debug_msg_tmp.data());

    std::string line;
    savrent::cc::os_util::get_current_time_string(line);
    return line + ": " + debug_msg.data();
}

void report_overflow()
{
    savrent::cc::err::sw_err::handle("Message Size Overflow, It should be less than 1024", "debug_print", 127);
}

/// A zeroed buffer of the log transport, or null when the transport is off or has none.
savrent_log_info* take_transport_buffer(savrent::cc::internal_log_proc& transport, bool log_trans)
{
    if (!log_trans || !transport.sender().is_ready())
        return nullptr;
    savrent_log_info* buffer = transport.sender().take_free();
    if (buffer != nullptr)
    {
        std::memset(buffer->text, 0, sizeof(buffer->text));
        return buffer;
    }
    // The report is itself a message and would find no buffer either.
    thread_local bool reporting = false;
    if (!reporting)
    {
        reporting = true;
        savrent::cc::err::sw_err::handle("internal command buffer is empty", "internal_cmd_desc", 55);
        reporting = false;
    }
    return nullptr;
}

void hand_to_transport(QORIN_LOG_TYPE type, const char* format, std::va_list arguments)
{
    static const bool log_trans = read_switch("server.log_trans");
    static savrent::cc::immortal transport(savrent::cc::internal_log_proc::get_instance());

    if (std::strlen(format) >= message_limit)
        return report_overflow();
    savrent_log_info* buffer = take_transport_buffer(**transport, log_trans);
    const std::string line = transport_line(type, format, arguments);
    const bool too_long = line.size() >= message_limit;
    if (buffer != nullptr && too_long)
        (*transport)->sender().give_back(buffer);
    if (too_long)
        return report_overflow();
    if (buffer == nullptr)
        return;
    std::memcpy(buffer->text, line.c_str(), line.size() + 1);
    buffer->time = std::chrono::system_clock::now();
    (*transport)->sender().put(buffer);
}
void print_message(QORIN_LOG_TYPE type, const char* format, std::va_list arguments)
{
    try
    {
        if (g_b_debug_init.load(std::memory_order_relaxed))
            hand_to_transport(type, format, arguments);
        else
            print_to_screen(format, arguments);
    }
    catch (const std::exception& failure)
    {
        std::printf("Debug Print STD Exception: %s\n", failure.what());
    }
    catch (...)
    {
        std::printf("Debug Print Unknown Exception");
    }
}
} // namespace

void savrent::cc::start_diagnostics()
{
    err::sw_err::set_system_data_source(get_system_data);
    set_debug_print_sink(print_message);
}

void qorin_debug_print_init(void)
{
    g_b_debug_init.store(true, std::memory_order_relaxed);
}
