#include "tools/log_reader/log_files.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <stdexcept>

#include <fmt/format.h>

namespace qorin_log
{
namespace
{
namespace fs = std::filesystem;

std::optional<std::uint64_t> file_number(const fs::path& file)
{
    if (file.extension() != ".txt")
        return std::nullopt;
    const std::string stem = file.stem().string();
    std::uint64_t number = 0;
    const auto [end, failure] = std::from_chars(stem.data(), stem.data() + stem.size(), number);
    if (failure != std::errc() || end != stem.data() + stem.size())
        return std::nullopt;
    return number;
}

std::optional<log_kind> kind_of_name(const fs::path& name)
{
    const std::string text = name.string();
    if (text.ends_with("_call_log"))
        return log_kind::call;
    if (text.ends_with("_event_log"))
        return log_kind::event;
    return std::nullopt;
}

/// The directories below `base` that are logs by name, in order of their runs.
std::vector<fs::path> log_directories(const fs::path& base)
{
    std::vector<fs::path> found;
    for (const fs::directory_entry& entry : fs::directory_iterator(base))
        if (entry.is_directory() && kind_of_name(entry.path().filename()))
            found.push_back(entry.path());
    std::sort(found.begin(), found.end());
    return found;
}
} // namespace

std::optional<log_kind> kind_of(const fs::path& path)
{
    const fs::path whole = fs::absolute(path).lexically_normal();
    const fs::path named = whole.has_filename() ? whole : whole.parent_path();
    if (const auto kind = kind_of_name(named.filename()))
        return kind;
    return kind_of_name(named.parent_path().filename());
}

std::vector<fs::path> numbered_files(const fs::path& directory)
{
    std::vector<std::pair<std::uint64_t, fs::path>> numbered;
    for (const fs::directory_entry& entry : fs::directory_iterator(directory))
        if (const auto number = file_number(entry.path()); number && entry.is_regular_file())
            numbered.emplace_back(*number, entry.path());
    std::sort(numbered.begin(), numbered.end());
    std::vector<fs::path> files;
    for (const auto& [number, file] : numbered)
        files.push_back(file);
    return files;
}

std::vector<fs::path> log_files(const fs::path& path, std::optional<log_kind> kind)
{
    if (!fs::exists(path))
        throw std::runtime_error(fmt::format("{}: no such file or directory", path.string()));

    const auto wanted = [&](const fs::path& log) { return !kind || !kind_of(log) || kind_of(log) == kind; };
    if (!fs::is_directory(path))
        return wanted(path) ? std::vector{path} : std::vector<fs::path>{};

    std::vector<fs::path> files = wanted(path) ? numbered_files(path) : std::vector<fs::path>{};
    for (const fs::path& directory : log_directories(path))
    {
        if (!wanted(directory))
            continue;
        const std::vector<fs::path> further = numbered_files(directory);
        files.insert(files.end(), further.begin(), further.end());
    }
    return files;
}
} // namespace qorin_log
