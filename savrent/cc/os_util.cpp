#include "savrent/cc/os_util.h"

#include <cerrno>
#include <cstdio>
#include <ctime>

#include <pthread.h>

#include "savrent/cc/system_config_parser.h"

namespace savrent::cc::os_util
{
void fix_path(std::string& path)
{
    if (path.starts_with(".."))
        path.insert(0, 1, '/');
    else if (path.starts_with('.'))
        path.erase(0, 1);
    if (path.ends_with('/'))
        path.pop_back();
}

bool is_abs_path(const std::string& path)
{
    return !path.empty() && path.front() != '.';
}

void get_current_time_string(std::string& text)
{
    // Log lines come many to the second, and breaking down the local time is the dear part of them.
    thread_local std::time_t known_second = -1;
    thread_local char known_text[64] = "";

    const auto now = std::chrono::system_clock::now();
    const auto second = std::chrono::floor<std::chrono::seconds>(now);
    const std::time_t clock = std::chrono::system_clock::to_time_t(second);
    if (clock != known_second)
    {
        std::tm local{};
        localtime_r(&clock, &local);
        std::strftime(known_text, sizeof(known_text), "%Y.%m.%d,%Hh%Mm%Ss", &local);
        known_second = clock;
    }
    const auto millisecond = std::chrono::duration_cast<std::chrono::milliseconds>(now - second).count();
    text = known_text;
    text += static_cast<char>('0' + millisecond / 100);
    text += static_cast<char>('0' + millisecond / 10 % 10);
    text += static_cast<char>('0' + millisecond % 10);
}

std::string this_thread_id_string()
{
    const pthread_t handle = pthread_self();
    return handle == 0 ? "thread::id of a non-executing thread" : std::to_string(handle);
}

bool is_tcp_transfer_protocol()
{
    return system_config_value("common.transfer_protocol") == "tcp";
}

void sleep_for(std::chrono::nanoseconds duration)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(duration);
    timespec remaining{seconds.count(), (duration - seconds).count()};
    while (nanosleep(&remaining, &remaining) == -1 && errno == EINTR)
    {
    }
}
} // namespace savrent::cc::os_util
