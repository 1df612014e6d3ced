#include "api/record_log.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <system_error>
#include <utility>

#include <fcntl.h>

#include "savrent/cc/encrypt.h"

namespace qorin_api
{
namespace
{
using record_length = std::uint32_t;

constexpr int append = O_WRONLY | O_CREAT | O_APPEND;
constexpr std::size_t unwritten_limit = 65'536;

/// How many of the first `size` bytes are whole records.
std::size_t whole_records(const std::string& bytes, std::size_t size)
{
    std::size_t whole = 0;
    record_length length = 0;
    while (whole + sizeof(length) <= size)
    {
        std::memcpy(&length, bytes.data() + whole, sizeof(length));
        if (whole + sizeof(length) + length > size)
            break;
        whole += sizeof(length) + length;
    }
    return whole;
}
} // namespace

record_log::record_log(const char* name, std::deque<std::string>& pending, std::size_t records_per_entry,
                       std::span<char> scratch)
    : name_(name), pending_(pending), records_per_entry_(records_per_entry), scratch_(scratch)
{
}

void record_log::open(const std::string& path, bool truncate)
{
    close();
    path_ = path;
    if (file_.open(path, truncate ? append | O_TRUNC : append))
        return;
    say_failure(errno);
    path_.clear();
}

void record_log::close()
{
    file_.close();
    path_.clear();
}

void record_log::write(std::string_view text)
{
    if (!is_open())
        return;
    const auto length = static_cast<record_length>(text.size());
    unwritten_.append(reinterpret_cast<const char*>(&length), sizeof(length));
    for (std::size_t done = 0; done < text.size(); done += scratch_.size())
    {
        const std::size_t piece = std::min(scratch_.size(), text.size() - done);
        savrent::cc::encrypt_piece(text.data() + done, scratch_.data(), piece, done);
        unwritten_.append(scratch_.data(), piece);
    }
    if (unwritten_.size() > unwritten_limit)
        flush();
}

void record_log::flush()
{
    if (unwritten_.empty())
        return;
    if (!file_.is_open() && !file_.open(path_, append))
        say_failure(errno);
    else if (const std::size_t written = file_.write(unwritten_); written < unwritten_.size())
    {
        say_failure(errno);
        file_.cut_back(written - whole_records(unwritten_, written));
    }
    unwritten_.clear();
}

void record_log::keep(std::string line)
{
    pending_.push_back(std::move(line));
    if (pending_.size() <= pending_entries_limit * records_per_entry_)
        return;
    pending_.erase(pending_.begin(), pending_.begin() + static_cast<std::ptrdiff_t>(records_per_entry_));
    if (!std::exchange(overflow_is_said_, true))
        std::fprintf(stderr, "%s: more than %zu entries wait for its file, the oldest are dropped\n", name_,
                     pending_entries_limit);
}

void record_log::write_pending()
{
    for (const std::string& line : pending_)
        write(line);
    flush();
    pending_.clear();
}

void record_log::say_failure(int error)
{
    if (!std::exchange(failure_is_said_, true))
        std::fprintf(stderr, "%s: cannot write %s: %s\n", name_, path_.c_str(),
                     std::generic_category().message(error).c_str());
}
} // namespace qorin_api
