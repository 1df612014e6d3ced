#ifndef SAVRENT_CC_OS_UTIL_H
#define SAVRENT_CC_OS_UTIL_H

#include <chrono>
#include <string>

namespace savrent::cc::os_util
{
/**
 * Normalises a relative path so that a directory can be put directly in front of it: "./a" becomes "/a", "../a/"
 * becomes "/../a". A trailing '/' is dropped in all cases.
 */
void fix_path(std::string& path);

/// Only a leading dot makes a path relative; an empty path is not absolute.
[[nodiscard]] bool is_abs_path(const std::string& path);

/// The local time with milliseconds, as in 2026.03.01,09h05m07s042.
void get_current_time_string(std::string& text);

/// The process's identity of the calling thread in decimal, as log lines show it.
[[nodiscard]] std::string this_thread_id_string();

/// Whether `common.transfer_protocol` is "tcp".
[[nodiscard]] bool is_tcp_transfer_protocol();

/// Sleeps for the whole time, also when signals interrupt it.
void sleep_for(std::chrono::nanoseconds duration);
} // namespace savrent::cc::os_util

#endif
