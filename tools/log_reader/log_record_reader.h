#ifndef TOOLS_LOG_READER_LOG_RECORD_READER_H
#define TOOLS_LOG_READER_LOG_RECORD_READER_H

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <string>

namespace qorin_log
{
/// A file that is no log, or not a whole one. The text names the file and the byte offset.
class damaged_log : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/**
 * Reads one log file record by record: a 32-bit length, then the scrambled text.
 *
 * A record that is not whole yet is left alone, so that a growing file can be followed.
 */
class log_record_reader
{
public:
    /// @throws damaged_log when the file cannot be opened
    explicit log_record_reader(std::filesystem::path path);

    /**
     * The text of the next whole record, or nothing when the file holds no further one as yet.
     *
     * Control characters other than line feed, tab and carriage return stand in it as \xNN.
     *
     * @throws damaged_log when what follows is no record
     */
    std::optional<std::string> next();

    /// @throws damaged_log when the file ends within a record
    void expect_end();

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

private:
    [[nodiscard]] std::uint64_t file_size() const;

    std::filesystem::path path_;
    std::ifstream file_;
    std::uint64_t offset_ = 0; ///< of the next record
};
} // namespace qorin_log

#endif
