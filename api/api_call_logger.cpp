#include "api/api_call_logger.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <span>
#include <vector>

#include "api/api_call_log_data.h"
#include "savrent/cc/encrypt.h"
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

immortal<std::ofstream> cur_func_call_log_file;
immortal<std::ofstream> cur_event_log_file;
immortal<std::vector<std::string>> g_prev_pushed_log;
immortal<std::vector<std::string>> g_prev_pushed_event_log;

/// Writes the length, then the text scrambled through `scratch`, in pieces when it is longer than that.
void write_record(std::ofstream& file, std::string_view text, std::span<char> scratch)
{
    const auto length = static_cast<std::uint32_t>(text.size());
    file.write(reinterpret_cast<const char*>(&length), sizeof(length));
    for (std::size_t done = 0; done < text.size(); done += scratch.size())
    {
        const std::size_t piece = std::min(scratch.size(), text.size() - done);
        savrent::cc::encrypt_piece(text.data() + done, scratch.data(), piece, done);
        file.write(scratch.data(), static_cast<std::streamsize>(piece));
    }
}

void write_call_record(std::string_view text)
{
    static std::array<char, 10240> encrypted_line;
    write_record(*cur_func_call_log_file, text, encrypted_line);
}

void write_event_record(std::string_view text)
{
    static std::array<char, 2048> tmpline;
    write_record(*cur_event_log_file, text, tmpline);
}

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

void reopen(std::ofstream& file, const std::string& path, std::ios::openmode mode)
{
    if (file.is_open())
        file.close();
    file.clear();
    file.open(path, mode);
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
    std::ifstream data_file(get_data_filename(), std::ios::binary);
    api_call_log_fields stored = data->fields;
    if (data_file.read(reinterpret_cast<char*>(&stored), sizeof(stored)))
    {
        stored.call_log_directory[sizeof(stored.call_log_directory) - 1] = '\0';
        stored.event_log_directory[sizeof(stored.event_log_directory) - 1] = '\0';
        data->fields = stored;
    }

    constexpr auto append = std::ios::binary | std::ios::app;
    reopen(*cur_func_call_log_file, data->get_cur_func_call_file_path(), append);
    reopen(*cur_event_log_file, data->get_cur_event_log_file_path(), append);

    if (is_logger_file_open())
    {
        for (const std::string& line : *g_prev_pushed_log)
            logger_write_line(line);
        logger_write_flush();
        g_prev_pushed_log->clear();
    }
    if (is_event_logger_file_open())
    {
        for (const std::string& line : *g_prev_pushed_event_log)
            event_logger_write_line(line);
        event_logger_write_flush();
        g_prev_pushed_event_log->clear();
    }
}

void logger_release_control()
{
    std::lock_guard lock(g_event_log_mtx);
    cur_func_call_log_file->close();
    cur_event_log_file->close();
    data_file_write();
}

void logger_internal_write_line_before_taking_control(std::string line)
{
    g_prev_pushed_log->push_back(std::move(line));
}

void logger_write_line(const char* text)
{
    write_call_record(text);
}

void logger_write_line(const std::string& text)
{
    write_call_record(text);
}

void logger_write_flush()
{
    cur_func_call_log_file->flush();
}

void event_logger_write_line(const char* text)
{
    write_event_record(text);
}

void event_logger_write_line(const std::string& text)
{
    write_event_record(text);
}

void event_logger_write_flush()
{
    cur_event_log_file->flush();
}

void event_logger_write_line_before_taking_control(std::string line)
{
    g_prev_pushed_event_log->push_back(std::move(line));
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
        write_call_record(record);
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
        reopen(*cur_func_call_log_file, data->get_cur_func_call_file_path(), std::ios::binary | std::ios::out);
    std::lock_guard lock(g_event_log_mtx);
    if (is_event_logger_file_open())
        reopen(*cur_event_log_file, data->get_cur_event_log_file_path(), std::ios::binary | std::ios::out);
}

std::string get_data_filename()
{
    const char* installation = std::getenv("SAVRENT_V3");
    return installation == nullptr ? "epdlxj" : std::string(installation) + "/epdlxj";
}

void data_file_write()
{
    const auto data = api_call_log_data::get_instance();
    std::ofstream file(get_data_filename(), std::ios::binary);
    file.write(reinterpret_cast<const char*>(&data->fields), sizeof(data->fields));
    file.flush();
}
} // namespace qorin_api
