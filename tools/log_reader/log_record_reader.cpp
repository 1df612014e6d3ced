#include "tools/log_reader/log_record_reader.h"

#include <algorithm>

#include <fmt/format.h>

#include "savrent/cc/encrypt.h"

namespace qorin_log
{
namespace
{
constexpr std::uint64_t length_size = sizeof(std::uint32_t);

/// No entry comes near it; a larger length is a foreign file's bytes.
constexpr std::uint32_t longest_record = 1u << 20;

bool is_unprintable(unsigned char c)
{
    return (c < 0x20 && c != '\n' && c != '\t' && c != '\r') || c == 0x7f;
}

/**
 * Whether the bytes are a log text.
 *
 * An application's own text stands in it as it came, in any encoding, and may bring some control characters along.
 * Where plain text is taken for scrambled text, every third byte becomes one; of arbitrary bytes every ninth is
 * one and every second lies beyond ASCII.
 */
bool is_log_text(const std::string& text)
{
    const auto unprintable = static_cast<std::size_t>(std::count_if(text.begin(), text.end(), is_unprintable));
    const auto beyond_ascii =
        static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](unsigned char c) { return c >= 0x80; }));
    const bool arbitrary = unprintable * 16 > text.size() && (unprintable + beyond_ascii) * 2 > text.size();
    return !arbitrary && unprintable * 6 <= text.size();
}

/// A terminal that shows the log must not obey what an application's text holds.
std::string with_unprintable_spelled_out(const std::string& text)
{
    std::string shown;
    shown.reserve(text.size());
    for (const char c : text)
        if (is_unprintable(static_cast<unsigned char>(c)))
            shown += fmt::format("\\x{:02X}", static_cast<unsigned char>(c));
        else
            shown += c;
    return shown;
}
} // namespace

log_record_reader::log_record_reader(std::filesystem::path path)
    : path_(std::move(path)), file_(path_, std::ios::binary)
{
    if (!file_)
        throw damaged_log(fmt::format("{}: cannot be opened", path_.string()));
}

std::optional<std::string> log_record_reader::next()
{
    const std::uint64_t available = file_size() - offset_;
    if (available < length_size)
        return std::nullopt;

    file_.clear();
    file_.seekg(static_cast<std::streamoff>(offset_));
    std::uint32_t length = 0;
    file_.read(reinterpret_cast<char*>(&length), length_size);
    if (length > longest_record)
        throw damaged_log(fmt::format("{}: no log record at byte offset {}: its length would be {}", path_.string(),
                                      offset_, length));
    if (available < length_size + length)
        return std::nullopt;

    std::string text(length, '\0');
    file_.read(text.data(), length);
    savrent::cc::encrypt(text.data(), text.data(), length);
    if (!is_log_text(text))
        throw damaged_log(
            fmt::format("{}: no log record at byte offset {}: its text is not readable", path_.string(), offset_));
    offset_ += length_size + length;
    return with_unprintable_spelled_out(text);
}

void log_record_reader::expect_end()
{
    const std::uint64_t rest = file_size() - offset_;
    if (rest != 0)
        throw damaged_log(fmt::format("{}: truncated record at byte offset {}: the file ends {} bytes behind it",
                                      path_.string(), offset_, rest));
}

/// A file that shrank counts as one with nothing further.
std::uint64_t log_record_reader::file_size() const
{
    std::error_code ignored;
    const std::uintmax_t size = std::filesystem::file_size(path_, ignored);
    return ignored ? offset_ : std::max<std::uint64_t>(size, offset_);
}
} // namespace qorin_log
