#include "api/api_call_logger.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <deque>
#include <filesystem>
#include <span>

#include <fcntl.h>

#include "api/api_call_log_data.h"
#include "api/own_file.h"
#include "api/record_log.h"
#include "savrent/cc/immortal.h"
#include "savrent/cc/os_util.h"
#include "savrent/cc/system_config_parser.h"

namespace qorin_api
{
std::mutex g_event_log_mtx;

namespace
{
using savrent::cc::immortal;

constexpr std::uint32_t calls_per_file = 10'000;

immortal<std::deque<std::string>> g_prev_pushed_log;
immortal<std::deque<std::string>> g_prev_pushed_event_log;
std::array<char, 10240> encrypted_line;
std::array<char, 2048> tmpline;
immortal<record_log> cur_func_call_log_file("call log", *g_prev_pushed_log, std::size_t{3}, encrypted_line);
immortal<record_log> cur_event_log_file("event log", *g_prev_pushed_event_log, std::size_t{1}, tmpline);

/// Whether the data file holds what this process last wanted to write there.
bool data_file_is_written = false;

/// The directory under which each run makes its own two, with a '/' at its end.
std::string log_base_directory()
{
    std::string base = savrent::cc::system_config_value("client.log_save_path");
    const char* installation = std::getenv("SAVRENT_V3");
    if (!base.starts_with('/') && installation != nullptr)
    {
        savrent::cc::os_util::fix_path(base);
        base.insert(0, installation);
    }
    return base + '/';
}

std::string directory_name(std::time_t instant, const char* format)
{
    std::tm local{};
    localtime_r(&instant, &local);
    char name[64];
    std::strftime(name, sizeof(name), format, &local);
    return name;
}

/// What another user or an earlier run left there would lead this run's logs astray.
void data_file_read(api_call_log_fields& fields)
{
    own_file file;
    api_call_log_fields stored = {};
    if (!data_file_is_written || !file.open(get_data_filename(), O_RDONLY) ||
        !file.read(std::as_writable_bytes(std::span(&stored, 1))))
        return;
    stored.call_log_directory[sizeof(stored.call_log_directory) - 1] = '\0';
    stored.event_log_directory[sizeof(stored.event_log_directory) - 1] = '\0';
    fields = stored;
}
} // namespace

void logger_initialize()
{
    const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    const std::string base = log_base_directory();
    const std::string call_log = base + directory_name(now, "%Y.%m.%d_%H.%M.%S_call_log");
    const std::string event_log = base + directory_name(now, "%Y.%m.%d_%H.%M.%S_event_log");

    if (!std::filesystem::exists(base))
        std::filesystem::create_directories(base);
    std::filesystem::create_directory(call_log);
    std::filesystem::create_directory(event_log);
    api_call_log_data::get_instance()->set_directories(call_log, event_log);
    data_file_write();
}

void logger_take_control()
{
    std::lock_guard lock(g_event_log_mtx);
    const auto data = api_call_log_data::get_instance();
    data_file_read(data->fields);
    cur_func_call_log_file->open(data->get_cur_func_call_file_path(), false);
    cur_event_log_file->open(data->get_cur_event_log_file_path(), false);
    if (is_logger_file_open())
        cur_func_call_log_file->write_pending();
    if (is_event_logger_file_open())
        cur_event_log_file->write_pending();
}

void logger_release_control()
{
    std::lock_guard lock(g_event_log_mtx);
    cur_func_call_log_file->close();
    cur_event_log_file->close();
    data_file_write();
}

void logger_rest()
{
    cur_func_call_log_file->rest();
    const std::unique_lock lock(g_event_log_mtx, std::try_to_lock);
    if (lock)
        cur_event_log_file->rest();
}

void logger_internal_write_line_before_taking_control(std::string line)
{
    cur_func_call_log_file->keep(std::move(line));
}

void logger_write_line(std::string_view text)
{
    cur_func_call_log_file->write(text);
}

void logger_write_flush()
{
    cur_func_call_log_file->flush();
}

void event_logger_write_line(std::string_view text)
{
    cur_event_log_file->write(text);
}

void event_logger_write_flush()
{
    cur_event_log_file->flush();
}

void event_logger_write_line_before_taking_control(std::string line)
{
    cur_event_log_file->keep(std::move(line));
}

bool is_logger_file_open()
{
    return cur_func_call_log_file->is_open();
}

bool is_event_logger_file_open()
{
    return cur_event_log_file->is_open();
}

void logger_write_entry(std::initializer_list<std::string_view> records)
{
    if (!is_logger_file_open())
    {
        for (const std::string_view record : records)
            logger_internal_write_line_before_taking_control(std::string(record));
        return;
    }
    for (const std::string_view record : records)
        logger_write_line(record);
    logger_write_flush();
}

void logger_count_call()
{
    const auto data = api_call_log_data::get_instance();
    if (++data->fields.call_count <= calls_per_file)
        return;
    data->fields.call_count = 0;
    ++data->fields.file_number;
    // Before the logger has control there is no directory to open a file in: the number alone goes on.
    if (is_logger_file_open())
        cur_func_call_log_file->open(data->get_cur_func_call_file_path(), true);
    std::lock_guard lock(g_event_log_mtx);
    if (is_event_logger_file_open())
        cur_event_log_file->open(data->get_cur_event_log_file_path(), true);
}

std::string get_data_filename()
{
    const char* installation = std::getenv("SAVRENT_V3");
    return installation == nullptr ? "epdlxj" : std::string(installation) + "/epdlxj";
}

void data_file_write()
{
    const auto data = api_call_log_data::get_instance();
    const std::string_view bytes(reinterpret_cast<const char*>(&data->fields), sizeof(data->fields));
    own_file file;
    data_file_is_written =
        file.open(get_data_filename(), O_WRONLY | O_CREAT | O_TRUNC) && file.write(bytes) == bytes.size();
}
} // namespace qorin_api
