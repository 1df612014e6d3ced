#ifndef API_API_CALL_LOGGER_H
#define API_API_CALL_LOGGER_H

#include <initializer_list>
#include <mutex>
#include <string>
#include <string_view>

#include "qorin/log.h"

/**
 * The two logs of the process: files of scrambled, length-prefixed records.
 *
 * Until the logger takes control, lines collect in pending lists. The call log is written under the call lock and has
 * no mutex of its own; the event log, which the event threads write too, is guarded by g_event_log_mtx.
 */
namespace qorin_api
{
/// Orders all lines of the event log. Comes after a dispatcher's mutex.
extern std::mutex g_event_log_mtx;

/// Names and makes this run's directories and writes the data file. @throws std::filesystem::filesystem_error
void logger_initialize();

/// Opens both files and writes out what is pending.
void logger_take_control();

/// Closes the files of open logs until the next line, for a library that may be leaving. Under the call lock; an event
/// log that another thread holds stays as it is.
void logger_rest();

/// Adds a line to the pending call log.
void logger_internal_write_line_before_taking_control(std::string line);

/// Writes one record to the call log. Under the call lock.
void logger_write_line(std::string_view text);
void logger_write_flush();

/// Writes one record to the event log. Under g_event_log_mtx.
void event_logger_write_line(std::string_view text);
void event_logger_write_flush();

/// Adds a line to the pending event log. Under g_event_log_mtx.
void event_logger_write_line_before_taking_control(std::string line);

/// Whether call lines go to a file. Under the call lock.
[[nodiscard]] bool is_logger_file_open();

/// The same of the event log. Under g_event_log_mtx.
[[nodiscard]] bool is_event_logger_file_open();

/// Writes one entry of the call log, or adds it to the pending ones. Under the call lock.
void logger_write_entry(std::initializer_list<std::string_view> records);

/// Counts a top-level call and goes on to the next pair of files when the current one is full. Under the call lock.
void logger_count_call();

[[nodiscard]] std::string get_data_filename();

/// What could not be written is not read either: the logs lie where this process said.
void data_file_write();
} // namespace qorin_api

#endif
