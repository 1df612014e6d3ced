#ifndef API_RECORD_LOG_H
#define API_RECORD_LOG_H

#include <cstddef>
#include <deque>
#include <span>
#include <string>
#include <string_view>

#include "api/own_file.h"

namespace qorin_api
{
/**
 * One log of the process: a file of scrambled, length-prefixed records, and the lines that wait for such a file.
 *
 * A file always ends with a whole record, also after a full disk: what did not fit is lost, which is said once on
 * standard error, and later records follow. No lock: see api_call_logger.h.
 */
class record_log
{
public:
    /// What waits for a file that may never be opened must have a bound.
    static constexpr std::size_t pending_entries_limit = 10'000;

    /**
     * @param name     for what is said on standard error.
     * @param pending  the lines that wait; `records_per_entry` of them belong together.
     * @param scratch  where texts are scrambled, longer ones in pieces.
     */
    record_log(const char* name, std::deque<std::string>& pending, std::size_t records_per_entry,
               std::span<char> scratch);

    /// Goes on with the file at `path`, or begins it anew when `truncate`. Without one the log is closed.
    void open(const std::string& path, bool truncate);
    void close();
    [[nodiscard]] bool is_open() const { return !path_.empty(); }

    /// Closes the file of an open log; the next flush goes on with it.
    void rest() { file_.close(); }

    /// Adds one record to those that the next flush writes. Nothing happens while the log is closed.
    void write(std::string_view text);
    void flush();

    /// Adds a line to those that wait; above the limit the oldest entry is dropped.
    void keep(std::string line);

    /// Writes out the lines that wait.
    void write_pending();

private:
    void say_failure(int error);

    const char* name_;
    std::deque<std::string>& pending_;
    std::size_t records_per_entry_;
    std::span<char> scratch_;
    std::string path_; ///< of the open log
    own_file file_;
    std::string unwritten_;
    bool failure_is_said_ = false;
    bool overflow_is_said_ = false;
};
} // namespace qorin_api

#endif
