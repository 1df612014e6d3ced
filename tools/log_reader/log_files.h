#ifndef TOOLS_LOG_READER_LOG_FILES_H
#define TOOLS_LOG_READER_LOG_FILES_H

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace qorin_log
{
/// The two logs of a run, told apart by the name of their directory.
enum class log_kind
{
    call,
    event
};

/// The kind that the file's or directory's own name or its parent's tells, if one does.
[[nodiscard]] std::optional<log_kind> kind_of(const std::filesystem::path& path);

/// The numbered log files right in a directory, ascending by number.
[[nodiscard]] std::vector<std::filesystem::path> numbered_files(const std::filesystem::path& directory);

/**
 * All log files that a path stands for, in reading order: the file itself, the numbered files of a log directory, or
 * those of all log directories below a base directory. With `kind`, only those of that kind; a single file whose kind
 * its directory does not tell is always taken.
 *
 * @throws std::runtime_error when the path does not exist
 */
[[nodiscard]] std::vector<std::filesystem::path> log_files(const std::filesystem::path& path,
                                                           std::optional<log_kind> kind);
} // namespace qorin_log

#endif
