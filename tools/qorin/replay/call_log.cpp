#include "tools/qorin/replay/call_log.h"

#include <algorithm>
#include <charconv>
#include <fstream>

#include <fmt/format.h>

#include "tools/log_reader/log_files.h"
#include "tools/log_reader/log_record_reader.h"
#include "tools/qorin/subcommands.h"

namespace qorin_cli::replay
{
namespace
{
namespace fs = std::filesystem;

constexpr std::string_view beginning = "/* [now]:";

/// Takes the text up to `end` from the front of `rest`, and `end` with it. Nothing when `end` does not come.
std::optional<std::string_view> take_until(std::string_view& rest, std::string_view end)
{
    const std::size_t at = rest.find(end);
    if (at == std::string_view::npos)
        return std::nullopt;
    const std::string_view taken = rest.substr(0, at);
    rest.remove_prefix(at + end.size());
    return taken;
}

/// An entry: time, stamp, thread, name and arguments. Of what is none, no more than its line.
logged_call parsed_entry(std::string_view entry, std::size_t line)
{
    logged_call call;
    call.line = line;
    const auto before = take_until(entry, beginning);
    const auto now = take_until(entry, ", [timestamp]:");
    const auto stamp = take_until(entry, " */ [");
    const auto thread = take_until(entry, "] ");
    const auto name = take_until(entry, "(");
    if (!before || !before->empty() || !now || !stamp || !thread || !name || !entry.ends_with(");\n"))
        return call;
    const auto local_time = parsed_time(*now);
    std::int64_t milliseconds = 0;
    const auto [end, failed] = std::from_chars(stamp->data(), stamp->data() + stamp->size(), milliseconds);
    if (!local_time || failed != std::errc() || end != stamp->data() + stamp->size())
        return call;
    call.stamp = std::chrono::milliseconds(milliseconds);
    call.local_time = *local_time;
    call.name = *name;
    call.arguments = entry.substr(0, entry.size() - 3);
    return call;
}

/// Puts pieces together to entries. A piece never holds more than one, but an entry may hold line ends.
class entry_joiner
{
public:
    void add(std::string_view piece)
    {
        if (piece.starts_with(beginning))
            finish();
        if (entry_.empty())
            first_line_ = line_;
        entry_ += piece;
        line_ += static_cast<std::size_t>(std::ranges::count(piece, '\n'));
    }
    std::vector<logged_call> take()
    {
        finish();
        return std::move(calls_);
    }

private:
    void finish()
    {
        if (entry_.empty())
            return;
        logged_call call = parsed_entry(entry_, first_line_);
        if (call.name.empty() && !calls_.empty())
        {
            call.stamp = calls_.back().stamp;
            call.local_time = calls_.back().local_time;
        }
        calls_.push_back(std::move(call));
        entry_.clear();
    }

    std::size_t line_ = 1;
    std::size_t first_line_ = 1;
    std::string entry_;
    std::vector<logged_call> calls_;
};

bool is_text(const fs::path& path)
{
    std::string begin(beginning.size(), '\0');
    std::ifstream(path, std::ios::binary).read(begin.data(), static_cast<std::streamsize>(begin.size()));
    return begin == beginning;
}

std::vector<logged_call> calls_of_text(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    entry_joiner joiner;
    for (std::string line; std::getline(file, line);)
        joiner.add(line + '\n');
    return joiner.take();
}

std::vector<logged_call> calls_of_records(const std::vector<fs::path>& files)
{
    entry_joiner joiner;
    for (const fs::path& path : files)
    {
        qorin_log::log_record_reader reader(path);
        while (const auto record = reader.next())
            joiner.add(*record);
        reader.expect_end();
    }
    return joiner.take();
}
} // namespace

call_log read_call_log(const fs::path& path)
{
    call_log log;
    if (fs::is_regular_file(path) && is_text(path))
        log.calls = calls_of_text(path);
    else
    {
        const std::vector<fs::path> files = qorin_log::log_files(path, qorin_log::log_kind::call);
        if (files.empty())
            throw failure(fmt::format("{}: no call log", path.string()));
        log.directory = fs::absolute(files.front()).lexically_normal().parent_path();
        for (const fs::path& file : files)
            if (fs::absolute(file).lexically_normal().parent_path() != log.directory)
                throw failure(fmt::format("{}: call logs of several runs; choose one, such as {}", path.string(),
                                          files.back().parent_path().string()));
        log.calls = calls_of_records(files);
    }
    if (log.calls.empty())
        throw failure(fmt::format("{}: no call stands in it", path.string()));
    return log;
}

std::optional<std::chrono::milliseconds> parsed_time(std::string_view text)
{
    using namespace std::chrono;
    int y = 0;
    unsigned int month_number = 0, day_number = 0;
    int h = 0, m = 0, s = 0, ms = 0;
    int length = 0;
    const std::string whole(text);
    if (std::sscanf(whole.c_str(), "%4d.%2u.%2u,%2dh%2dm%2ds%3d%n", &y, &month_number, &day_number, &h, &m, &s, &ms,
                    &length) != 7 ||
        static_cast<std::size_t>(length) != text.size())
        return std::nullopt;
    const sys_days date = year(y) / month(month_number) / day(day_number);
    return duration_cast<milliseconds>(date.time_since_epoch()) + hours(h) + minutes(m) + seconds(s) + milliseconds(ms);
}
} // namespace qorin_cli::replay
