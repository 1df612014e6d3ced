#ifndef TOOLS_QORIN_RECORDING_RECORDING_H
#define TOOLS_QORIN_RECORDING_RECORDING_H

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "tools/qorin/status/status_fields.h"

namespace qorin_cli
{
/// All times of a recording are in seconds since its start.
struct recorded_sample
{
    double time = 0;
    std::vector<field_value> values; ///< one a field, in the order of the fields
};

struct recorded_event
{
    double time = 0;
    std::string group;
    std::string name;
    unsigned int sender = 0;
    std::array<int, 5> parameters{};
};

/// A robot as it stood from a time on; one that changes is told anew.
struct recorded_robot
{
    double time = 0;
    unsigned int robot = 0;
    robot_description description;
};

/// A whole number of a file that anybody may have written: the nearest one that there is, 0 for none.
template <typename Whole>
[[nodiscard]] Whole whole(double number)
{
    using limits = std::numeric_limits<Whole>;
    static_assert(limits::digits < std::numeric_limits<double>::digits);
    return std::isnan(number) ? 0 : static_cast<Whole>(std::clamp<double>(number, limits::min(), limits::max()));
}

struct recording_info
{
    std::map<std::string, std::string> about; ///< "started", "address", "control_software", "library", "rate"
    std::vector<field_info> fields;
};

/**
 * Writes a recording to a file. All throw a failure with the file's name when it cannot be written, and what was saved
 * before is kept then.
 */
class recording_writer
{
public:
    virtual ~recording_writer() = default;
    virtual void add(const recorded_sample& sample) = 0;
    virtual void add(const recorded_event& happened) = 0;
    virtual void add(const recorded_robot& robot) = 0;

    /// What was added so far outlasts an end of the process, however that comes.
    virtual void save() = 0;
};

/**
 * Reads a recording in the order of its times, a row at a time. One that was cut short, as by a crash, ends with its
 * last whole row. All throw a failure with the file's name, and the line where it has lines, on what is no recording.
 */
class recording_reader
{
public:
    using row = std::variant<recorded_sample, recorded_event>;

    virtual ~recording_reader() = default;
    [[nodiscard]] const recording_info& info() const { return info_; }
    [[nodiscard]] const std::vector<recorded_robot>& robots() const { return robots_; }

    [[nodiscard]] const std::vector<recorded_event>& events() const { return events_; }

    /// The times of all samples, in their order.
    [[nodiscard]] const std::vector<double>& sample_times() const { return sample_times_; }

    /// The time of the last row.
    [[nodiscard]] double duration() const { return duration_; }

    /// The next row; false at the end.
    [[nodiscard]] virtual bool next(row& read) = 0;

    /// Goes on with the first row that is not before a time.
    virtual void seek(double time) = 0;

protected:
    recording_info info_;
    std::vector<recorded_robot> robots_;
    std::vector<recorded_event> events_;
    std::vector<double> sample_times_;
    double duration_ = 0;
};

// The form goes by the ending of the file's name: .csv, or .sqlite and .db. Another one is a failure of usage.

/// @throws failure unless the file can be made. One that is there is replaced with `overwrite` alone.
[[nodiscard]] std::unique_ptr<recording_writer> create_recording(const std::filesystem::path& file,
                                                                 const recording_info& info, bool overwrite);
[[nodiscard]] std::unique_ptr<recording_reader> open_recording(const std::filesystem::path& file);
} // namespace qorin_cli

#endif
