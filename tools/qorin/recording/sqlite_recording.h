#ifndef TOOLS_QORIN_RECORDING_SQLITE_RECORDING_H
#define TOOLS_QORIN_RECORDING_SQLITE_RECORDING_H

#include <optional>

#include <sqlite3.h>

#include "tools/qorin/recording/recording.h"

namespace qorin_cli
{
/// A database of SQLite 3 with the name of its file in all that it complains of.
class recording_database
{
public:
    recording_database(const std::filesystem::path& file, int flags);
    ~recording_database();
    recording_database(const recording_database&) = delete;
    recording_database& operator=(const recording_database&) = delete;

    void run(const std::string& statement);
    [[noreturn]] void complain() const;
    [[nodiscard]] sqlite3* handle() const { return database_; }

private:
    std::string path_;
    sqlite3* database_ = nullptr;
};

/// A statement that is run again and again.
class recording_statement
{
public:
    recording_statement(recording_database& database, const std::string& text);
    ~recording_statement();
    recording_statement(const recording_statement&) = delete;
    recording_statement& operator=(const recording_statement&) = delete;

    /// Gives the next parameter its value.
    recording_statement& bind(const field_value& value);

    /// The next row is there to be read. At the end, false, and the statement may be given new values.
    bool step();

    void reset();
    [[nodiscard]] field_value value(int column) const;
    [[nodiscard]] double number(int column) const;
    [[nodiscard]] std::string text(int column) const;

private:
    recording_database& database_;
    sqlite3_stmt* statement_ = nullptr;
    int bound_ = 0;
};

/// Tables: about, fields, status with a column a field, events, robots with the joints of each.
class sqlite_recording_writer : public recording_writer
{
public:
    sqlite_recording_writer(const std::filesystem::path& file, const recording_info& info);
    ~sqlite_recording_writer() override;

    void add(const recorded_sample& sample) override;
    void add(const recorded_event& happened) override;
    void add(const recorded_robot& robot) override;
    void save() override;

private:
    recording_database database_;
    std::optional<recording_statement> add_sample_;
    std::optional<recording_statement> add_event_;
    std::optional<recording_statement> add_robot_;
    std::optional<recording_statement> add_joint_;
};

class sqlite_recording_reader : public recording_reader
{
public:
    explicit sqlite_recording_reader(const std::filesystem::path& file);
    bool next(row& read) override;
    void seek(double time) override;

private:
    void read_head();
    void find_rows();
    [[nodiscard]] recorded_event event_of_row() const;

    recording_database database_;
    std::optional<recording_statement> sample_rows_;
    std::optional<recording_statement> event_rows_;
    bool has_sample_ = false;
    bool has_event_ = false;
};
} // namespace qorin_cli

#endif
