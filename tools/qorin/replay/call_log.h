#ifndef TOOLS_QORIN_REPLAY_CALL_LOG_H
#define TOOLS_QORIN_REPLAY_CALL_LOG_H

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qorin_cli::replay
{
/// A call as it stands in the log.
struct logged_call
{
    std::size_t line = 0; ///< as `qorin log cat` prints the log, from 1
    std::chrono::milliseconds stamp{};
    std::chrono::milliseconds local_time{}; ///< the same in local time, which the event log has alone
    std::string name;                       ///< empty for an entry that is no call
    std::string arguments;                  ///< what stands between the outer brackets
};

/// All calls of one run.
struct call_log
{
    std::vector<logged_call> calls;
    std::filesystem::path directory; ///< of the log files; empty for a text
};

/**
 * Reads the call log of one run: a log file, the directory of a call log, the directory above one, or the text that
 * `qorin log cat` prints of one.
 *
 * @throws failure with a line for what is no log, none of one run, or damaged.
 */
[[nodiscard]] call_log read_call_log(const std::filesystem::path& path);

/// Milliseconds since 1970 of a local time as the logs write it, "2026.11.22,09h30m02s716"; nothing when it is none.
[[nodiscard]] std::optional<std::chrono::milliseconds> parsed_time(std::string_view text);
} // namespace qorin_cli::replay

#endif
