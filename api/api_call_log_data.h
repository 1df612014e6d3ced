#ifndef API_API_CALL_LOG_DATA_H
#define API_API_CALL_LOG_DATA_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace qorin_api
{
/// Where the logs of this run lie, exactly as the data file keeps it.
struct api_call_log_fields
{
    char call_log_directory[1024];  ///< zero-terminated
    char event_log_directory[1024]; ///< zero-terminated
    std::uint32_t file_number;      ///< of the current file in both directories
    std::uint32_t call_count;       ///< top-level calls in the current file
};
static_assert(offsetof(api_call_log_fields, event_log_directory) == 1024);
static_assert(offsetof(api_call_log_fields, file_number) == 2048);
static_assert(offsetof(api_call_log_fields, call_count) == 2052);
static_assert(sizeof(api_call_log_fields) == 2056);

/**
 * The process's log paths and counts.
 *
 * Covered by the call lock, except where the logger says otherwise.
 */
class api_call_log_data
{
public:
    static std::shared_ptr<api_call_log_data> get_instance();

    [[nodiscard]] std::string get_cur_func_call_file_path() const;
    [[nodiscard]] std::string get_cur_event_log_file_path() const;

    /// Keep both directories, each cut to its field.
    void set_directories(const std::string& call_log, const std::string& event_log);

    /// Do nothing: data_file_write() and logger_take_control() move the data file.
    void read_file(const char* /*path*/) {}
    void write_file(const char* /*path*/) {}

    api_call_log_fields fields = {{}, {}, 1'000'000, 0};
};
} // namespace qorin_api

#endif
