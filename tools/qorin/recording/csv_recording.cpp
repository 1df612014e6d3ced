#include "tools/qorin/recording/csv_recording.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
constexpr std::string_view first_line = "# qorin recording 1";
const std::vector<std::string> event_columns = {"event_group", "event",       "sender",      "parameter_1",
                                                "parameter_2", "parameter_3", "parameter_4", "parameter_5"};

/// A cell as it stands in the file; quoted where the text has what ends a cell.
std::string cell_of(const std::string& text)
{
    if (text.find_first_of(",\"#") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (const char letter : text)
        quoted.append(letter == '"' ? 2 : 1, letter);
    return quoted + "\"";
}

std::string cell_of(const field_value& value)
{
    if (const auto* const text = std::get_if<std::string>(&value))
        return cell_of(*text);
    if (const auto* const number = std::get_if<double>(&value))
        return fmt::format("{}", *number);
    return "";
}
} // namespace

csv_recording_writer::csv_recording_writer(const std::filesystem::path& file, const recording_info& info)
    : path_(file), fields_(info.fields.size()), file_(std::fopen(path_.c_str(), "we"))
{
    if (file_ == nullptr)
        throw failure(fmt::format("{}: {}", path_, std::strerror(errno)));
    std::string units = "s";
    std::string columns = "time";
    for (const field_info& field : info.fields)
    {
        units += "," + field.unit;
        columns += "," + field.name;
    }
    std::string head(first_line);
    for (const auto& [key, value] : info.about)
        head += fmt::format("\n# {}: {}", key, value);
    write(fmt::format("{}\n# units: {}\n{},{}\n", head, units, columns, fmt::join(event_columns, ",")));
}

void csv_recording_writer::add(const recorded_sample& sample)
{
    std::string line = fmt::format("{:.6f}", sample.time);
    for (const field_value& value : sample.values)
        line += "," + cell_of(value);
    write(line + std::string(event_columns.size(), ',') + "\n");
}

void csv_recording_writer::add(const recorded_event& happened)
{
    write(fmt::format("{:.6f}{},{},{},{},{}\n", happened.time, std::string(fields_, ','), happened.group, happened.name,
                      happened.sender, fmt::join(happened.parameters, ",")));
}

void csv_recording_writer::add(const recorded_robot& robot)
{
    const robot_description& told = robot.description;
    std::string line = fmt::format("# robot: {:.6f},{},{},{}", robot.time, robot.robot, told.model, told.joints);
    for (const auto& parameter : told.dh)
        line += fmt::format(",{}", fmt::join(parameter, ","));
    write(line + "\n");
}

void csv_recording_writer::save()
{
    if (std::fflush(file_.get()) != 0)
        throw failure(fmt::format("{}: {}", path_, std::strerror(errno)));
}

void csv_recording_writer::write(const std::string& line)
{
    if (std::fwrite(line.data(), 1, line.size(), file_.get()) != line.size())
        throw failure(fmt::format("{}: {}", path_, std::strerror(errno)));
}

csv_recording_reader::csv_recording_reader(const std::filesystem::path& file) : path_(file), file_(path_)
{
    if (!file_)
        throw failure(fmt::format("{}: {}", path_, std::strerror(errno)));
    std::string line;
    if (!read_line(line) || line != first_line)
        throw failure(fmt::format("{} is no recording of qorin", path_));
    while (read_line(line) && line.starts_with("#"))
        read_comment(line);
    read_columns(line);
    find_rows();
    seek(0);
}

void csv_recording_reader::find_rows()
{
    const std::string no_event(event_columns.size(), ',');
    std::string line;
    for (auto place = file_.tellg(); read_line(line); place = file_.tellg())
    {
        if (line.starts_with("#"))
        {
            read_comment(line);
            continue;
        }
        const double time = number_of(line.substr(0, line.find(',')));
        if (line.ends_with(no_event))
            sample_times_.push_back(time);
        else if (row read = row_of(line); auto* const happened = std::get_if<recorded_event>(&read))
            events_.push_back(std::move(*happened));
        rows_.push_back({rows_.empty() ? time : std::max(time, rows_.back().time), place, line_number_ - 1});
        duration_ = time;
    }
}

bool csv_recording_reader::next(row& read)
{
    std::string line;
    do
        if (!read_line(line))
            return false;
    while (line.starts_with("#"));
    read = row_of(line);
    return true;
}

recording_reader::row csv_recording_reader::row_of(const std::string& line) const
{
    const std::vector<std::string> cells = cells_of(line);
    const std::size_t fields = info_.fields.size();
    if (cells.size() != 1 + fields + event_columns.size())
        complain(fmt::format("{} columns instead of {}", cells.size(), 1 + fields + event_columns.size()));
    const double time = number_of(cells[0]);
    if (const auto* const told = &cells[1 + fields]; !told[1].empty())
    {
        recorded_event happened{time, told[0], told[1], whole<unsigned int>(number_of(told[2])), {}};
        for (std::size_t i = 0; i < happened.parameters.size(); ++i)
            happened.parameters[i] = whole<int>(number_of(told[3 + i]));
        return happened;
    }
    recorded_sample sample{time, std::vector<field_value>(fields)};
    for (std::size_t i = 0; i < fields; ++i)
    {
        const std::string& cell = cells[1 + i];
        if (cell.empty())
            continue;
        if (info_.fields[i].unit == field_info::word)
            sample.values[i] = cell;
        else
            sample.values[i] = number_of(cell);
    }
    return sample;
}

void csv_recording_reader::seek(double time)
{
    file_.clear();
    const auto found = std::ranges::lower_bound(rows_, time, {}, &row_place::time);
    if (found == rows_.end())
    {
        file_.seekg(0, std::ios::end);
        return;
    }
    file_.seekg(found->place);
    line_number_ = found->lines_before;
}

bool csv_recording_reader::read_line(std::string& line)
{
    // A last line without an end was cut short.
    if (!std::getline(file_, line) || file_.eof())
        return false;
    if (line.ends_with('\r'))
        line.pop_back();
    ++line_number_;
    return true;
}

void csv_recording_reader::read_comment(const std::string& line)
{
    const std::size_t colon = line.find(": ");
    if (colon == std::string::npos || colon < 2)
        return;
    const std::string key = line.substr(2, colon - 2);
    const std::string value = line.substr(colon + 2);
    if (key == "units")
        units_ = cells_of(value);
    else if (key != "robot")
        info_.about[key] = value;
    else
    {
        const std::vector<std::string> cells = cells_of(value);
        if (cells.size() != 4 + 4 * joint_limit)
            complain("a robot with a table that is not whole");
        recorded_robot robot{number_of(cells[0]), whole<unsigned int>(number_of(cells[1])), {}};
        robot.description.model = cells[2];
        robot.description.joints = whole<unsigned int>(number_of(cells[3]));
        for (std::size_t i = 0; i < 4 * joint_limit; ++i)
            robot.description.dh[i / joint_limit][i % joint_limit] = number_of(cells[4 + i]);
        robots_.push_back(std::move(robot));
    }
}

void csv_recording_reader::read_columns(const std::string& line)
{
    const std::vector<std::string> names = cells_of(line);
    if (names.size() < 1 + event_columns.size() || names[0] != "time" ||
        !std::equal(event_columns.begin(), event_columns.end(),
                    names.end() - static_cast<std::ptrdiff_t>(event_columns.size())))
        complain("no names of columns");
    const std::size_t fields = names.size() - 1 - event_columns.size();
    if (units_.size() != 1 + fields)
        complain(fmt::format("{} columns with {} units", 1 + fields, units_.size()));
    for (std::size_t i = 1; i <= fields; ++i)
        info_.fields.push_back({names[i], units_[i]});
}

std::vector<std::string> csv_recording_reader::cells_of(const std::string& line) const
{
    std::vector<std::string> cells(1);
    bool is_quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i)
        if (line[i] == '"' && is_quoted && i + 1 < line.size() && line[i + 1] == '"')
            cells.back() += line[i++];
        else if (line[i] == '"')
            is_quoted = !is_quoted;
        else if (line[i] == ',' && !is_quoted)
            cells.emplace_back();
        else
            cells.back() += line[i];
    if (is_quoted)
        complain("a quotation without end");
    return cells;
}

double csv_recording_reader::number_of(const std::string& cell) const
{
    double number = 0;
    const char* const end = cell.data() + cell.size();
    if (const auto [stop, failed] = std::from_chars(cell.data(), end, number); failed != std::errc() || stop != end)
        complain(fmt::format("\"{}\" is no number", cell));
    return number;
}

void csv_recording_reader::complain(const std::string& what) const
{
    throw failure(fmt::format("{}:{}: {}", path_, line_number_, what));
}
} // namespace qorin_cli
