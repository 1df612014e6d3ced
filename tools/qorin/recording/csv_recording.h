#ifndef TOOLS_QORIN_RECORDING_CSV_RECORDING_H
#define TOOLS_QORIN_RECORDING_CSV_RECORDING_H

#include <cstdio>
#include <fstream>

#include "tools/qorin/recording/recording.h"

namespace qorin_cli
{
/**
 * A table of commas as RFC 4180 has it: a column for the time, one a field, and those of events at the right. A row is
 * a sample or an event and leaves the columns of the other empty. Lines that begin with # tell what the recording is,
 * the units of the columns, and robots as they come.
 */
class csv_recording_writer : public recording_writer
{
public:
    csv_recording_writer(const std::filesystem::path& file, const recording_info& info);
    void add(const recorded_sample& sample) override;
    void add(const recorded_event& happened) override;
    void add(const recorded_robot& robot) override;
    void save() override;

private:
    struct closer
    {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    void write(const std::string& line);

    std::string path_;
    std::size_t fields_;
    std::unique_ptr<std::FILE, closer> file_;
};

class csv_recording_reader : public recording_reader
{
public:
    explicit csv_recording_reader(const std::filesystem::path& file);
    bool next(row& read) override;
    void seek(double time) override;

private:
    struct row_place
    {
        double time; ///< of the latest row up to this one
        std::streampos place;
        std::size_t lines_before;
    };

    void find_rows();
    [[nodiscard]] row row_of(const std::string& line) const;

    /// A line without its end; false where no whole line is left.
    bool read_line(std::string& line);
    void read_comment(const std::string& line);
    void read_columns(const std::string& line);
    [[nodiscard]] std::vector<std::string> cells_of(const std::string& line) const;
    [[nodiscard]] double number_of(const std::string& cell) const;
    [[noreturn]] void complain(const std::string& what) const;

    std::string path_;
    std::ifstream file_;
    std::size_t line_number_ = 0;
    std::vector<std::string> units_;
    std::vector<row_place> rows_;
};
} // namespace qorin_cli

#endif
