#include "tools/qorin/recording/recording.h"

#include <fmt/format.h>

#include "tools/qorin/recording/csv_recording.h"
#include "tools/qorin/recording/sqlite_recording.h"
#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
bool is_csv(const std::filesystem::path& file)
{
    const std::string ending = file.extension();
    if (ending != ".csv" && ending != ".sqlite" && ending != ".db")
        throw failure(fmt::format("{}: a recording ends in .csv, .sqlite or .db", file.string()), status_usage);
    return ending == ".csv";
}
} // namespace

std::unique_ptr<recording_writer> create_recording(const std::filesystem::path& file, const recording_info& info,
                                                   bool overwrite)
{
    const bool csv = is_csv(file);
    std::error_code failed;
    if (std::filesystem::exists(file, failed) && !overwrite)
        throw failure(fmt::format("{} is there already; --force replaces it", file.string()));
    if (csv)
        return std::make_unique<csv_recording_writer>(file, info);
    return std::make_unique<sqlite_recording_writer>(file, info);
}

std::unique_ptr<recording_reader> open_recording(const std::filesystem::path& file)
{
    if (is_csv(file))
        return std::make_unique<csv_recording_reader>(file);
    return std::make_unique<sqlite_recording_reader>(file);
}
} // namespace qorin_cli
