#ifndef TOOLS_LOG_READER_LOG_PRINTER_H
#define TOOLS_LOG_READER_LOG_PRINTER_H

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <optional>
#include <vector>

#include "tools/log_reader/log_files.h"

namespace qorin_log
{
/// What `qorin_log cat` was asked for.
struct cat_request
{
    std::vector<std::filesystem::path> paths;
    std::optional<log_kind> kind;
    bool follow = false;
};

/**
 * Prints the logs as text, and messages about damaged files to `errors`.
 *
 * What was whole in a damaged file is printed, and the further files are read all the same. When following, the last
 * file of each path is watched for growth, and for the next file when the log goes on to one, until `stop` says so.
 *
 * @return the exit status: 0, or 1 when something could not be read.
 */
int cat(const cat_request& request, std::ostream& out, std::ostream& errors, const std::function<bool()>& stop);
} // namespace qorin_log

#endif
