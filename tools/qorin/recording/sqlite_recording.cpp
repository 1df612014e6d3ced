#include "tools/qorin/recording/sqlite_recording.h"

#include <algorithm>

#include <fmt/format.h>

#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
/// What a recording is told from other databases by: "QREC".
constexpr int application_id = 0x51524543;

std::string sql_name(const std::string& name)
{
    std::string text = "\"";
    for (const char letter : name)
        text.append(letter == '"' ? 2 : 1, letter);
    return text + "\"";
}

const char* type_of(const field_info& field)
{
    return field.unit == field_info::word ? "TEXT" : field.unit == field_info::bits ? "INTEGER" : "REAL";
}

std::filesystem::path without_remains(const std::filesystem::path& file)
{
    std::error_code failed;
    for (const char* ending : {"", "-wal", "-shm", "-journal"})
        std::filesystem::remove(file.string() + ending, failed);
    return file;
}
} // namespace

recording_database::recording_database(const std::filesystem::path& file, int flags) : path_(file)
{
    if (sqlite3_open_v2(path_.c_str(), &database_, flags, nullptr) != SQLITE_OK)
    {
        const std::string what = sqlite3_errmsg(database_);
        sqlite3_close(database_);
        throw failure(fmt::format("{}: {}", path_, what));
    }
    sqlite3_busy_timeout(database_, 1000);
}

recording_database::~recording_database()
{
    sqlite3_close(database_);
}

void recording_database::run(const std::string& statement)
{
    if (sqlite3_exec(database_, statement.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        complain();
}

void recording_database::complain() const
{
    throw failure(fmt::format("{}: {}", path_, sqlite3_errmsg(database_)));
}

recording_statement::recording_statement(recording_database& database, const std::string& text) : database_(database)
{
    if (sqlite3_prepare_v2(database_.handle(), text.c_str(), -1, &statement_, nullptr) != SQLITE_OK)
        database_.complain();
}

recording_statement::~recording_statement()
{
    sqlite3_finalize(statement_);
}

recording_statement& recording_statement::bind(const field_value& value)
{
    const int place = ++bound_;
    if (const auto* const text = std::get_if<std::string>(&value))
        sqlite3_bind_text(statement_, place, text->data(), static_cast<int>(text->size()), SQLITE_TRANSIENT);
    else if (const auto* const number = std::get_if<double>(&value))
        sqlite3_bind_double(statement_, place, *number);
    else
        sqlite3_bind_null(statement_, place);
    return *this;
}

bool recording_statement::step()
{
    const int result = sqlite3_step(statement_);
    if (result == SQLITE_ROW)
        return true;
    if (result != SQLITE_DONE)
        database_.complain();
    reset();
    return false;
}

void recording_statement::reset()
{
    sqlite3_reset(statement_);
    bound_ = 0;
}

field_value recording_statement::value(int column) const
{
    switch (sqlite3_column_type(statement_, column))
    {
    case SQLITE_NULL:
        return {};
    case SQLITE_TEXT:
        return text(column);
    default:
        return number(column);
    }
}

double recording_statement::number(int column) const
{
    return sqlite3_column_double(statement_, column);
}

std::string recording_statement::text(int column) const
{
    const auto* const bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    return bytes == nullptr ? "" : bytes;
}

sqlite_recording_writer::sqlite_recording_writer(const std::filesystem::path& file, const recording_info& info)
    : database_(without_remains(file), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE)
{
    // With a write-ahead log a commit waits for no disk, and readers may look on.
    database_.run(fmt::format("PRAGMA application_id={}; PRAGMA user_version=1; PRAGMA journal_mode=WAL;"
                              "PRAGMA synchronous=NORMAL; BEGIN;",
                              application_id));
    std::string columns;
    std::string parameters;
    for (const field_info& field : info.fields)
    {
        columns += fmt::format(", {} {}", sql_name(field.name), type_of(field));
        parameters += ", ?";
    }
    database_.run("CREATE TABLE about(key TEXT PRIMARY KEY, value TEXT);"
                  "CREATE TABLE fields(name TEXT, unit TEXT);"
                  "CREATE TABLE status(time REAL PRIMARY KEY" +
                  columns +
                  ");"
                  "CREATE TABLE events(time REAL, event_group TEXT, event TEXT, sender INTEGER, parameter_1 INTEGER,"
                  " parameter_2 INTEGER, parameter_3 INTEGER, parameter_4 INTEGER, parameter_5 INTEGER);"
                  "CREATE TABLE robots(time REAL, robot INTEGER, model TEXT, joints INTEGER);"
                  "CREATE TABLE robot_joints(time REAL, robot INTEGER, joint INTEGER, dh_1 REAL, dh_2 REAL, dh_3 REAL,"
                  " dh_4 REAL);");
    recording_statement add_about(database_, "INSERT INTO about VALUES(?, ?)");
    for (const auto& [key, value] : info.about)
        add_about.bind(key).bind(value).step();
    recording_statement add_field(database_, "INSERT INTO fields VALUES(?, ?)");
    for (const field_info& field : info.fields)
        add_field.bind(field.name).bind(field.unit).step();
    add_sample_.emplace(database_, "INSERT OR REPLACE INTO status VALUES(?" + parameters + ")");
    add_event_.emplace(database_, "INSERT INTO events VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?)");
    add_robot_.emplace(database_, "INSERT INTO robots VALUES(?, ?, ?, ?)");
    add_joint_.emplace(database_, "INSERT INTO robot_joints VALUES(?, ?, ?, ?, ?, ?, ?)");
}

sqlite_recording_writer::~sqlite_recording_writer()
{
    // What was not saved is lost, as when nothing is left to write to.
    sqlite3_exec(database_.handle(), "ROLLBACK; PRAGMA journal_mode=DELETE;", nullptr, nullptr, nullptr);
}

void sqlite_recording_writer::add(const recorded_sample& sample)
{
    add_sample_->bind(sample.time);
    for (const field_value& value : sample.values)
        add_sample_->bind(value);
    add_sample_->step();
}

void sqlite_recording_writer::add(const recorded_event& happened)
{
    add_event_->bind(happened.time).bind(happened.group).bind(happened.name).bind(static_cast<double>(happened.sender));
    for (const int parameter : happened.parameters)
        add_event_->bind(static_cast<double>(parameter));
    add_event_->step();
}

void sqlite_recording_writer::add(const recorded_robot& robot)
{
    const robot_description& told = robot.description;
    const auto id = static_cast<double>(robot.robot);
    add_robot_->bind(robot.time).bind(id).bind(told.model).bind(static_cast<double>(told.joints)).step();
    for (unsigned int joint = 0; joint < std::min(told.joints, joint_limit); ++joint)
    {
        add_joint_->bind(robot.time).bind(id).bind(static_cast<double>(joint));
        for (const auto& parameter : told.dh)
            add_joint_->bind(parameter[joint]);
        add_joint_->step();
    }
}

void sqlite_recording_writer::save()
{
    database_.run("COMMIT; BEGIN;");
}

sqlite_recording_reader::sqlite_recording_reader(const std::filesystem::path& file)
    : database_(file, SQLITE_OPEN_READONLY)
{
    recording_statement id(database_, "PRAGMA application_id");
    if (!id.step() || whole<int>(id.number(0)) != application_id)
        throw failure(fmt::format("{} is no recording of qorin", file.string()));
    id.reset();
    read_head();
    std::string columns;
    for (const field_info& field : info_.fields)
        columns += ", " + sql_name(field.name);
    sample_rows_.emplace(database_, "SELECT time" + columns + " FROM status WHERE time >= ? ORDER BY time");
    event_rows_.emplace(database_, "SELECT * FROM events WHERE time >= ? ORDER BY time");
    find_rows();
    seek(0);
}

void sqlite_recording_reader::find_rows()
{
    recording_statement times(database_, "SELECT time FROM status ORDER BY time");
    while (times.step())
        sample_times_.push_back(times.number(0));
    event_rows_->bind(0.0);
    while (event_rows_->step())
        events_.push_back(event_of_row());
    duration_ = std::max(sample_times_.empty() ? 0 : sample_times_.back(), events_.empty() ? 0 : events_.back().time);
}

recorded_event sqlite_recording_reader::event_of_row() const
{
    const recording_statement& told = *event_rows_;
    recorded_event happened{told.number(0), told.text(1), told.text(2), whole<unsigned int>(told.number(3)), {}};
    for (int column = 4; int& parameter : happened.parameters)
        parameter = whole<int>(told.number(column++));
    return happened;
}

void sqlite_recording_reader::read_head()
{
    recording_statement about(database_, "SELECT key, value FROM about");
    while (about.step())
        info_.about[about.text(0)] = about.text(1);
    recording_statement fields(database_, "SELECT name, unit FROM fields");
    while (fields.step())
        info_.fields.push_back({fields.text(0), fields.text(1)});
    recording_statement robots(database_, "SELECT time, robot, model, joints FROM robots ORDER BY time");
    recording_statement joints(database_, "SELECT joint, dh_1, dh_2, dh_3, dh_4 FROM robot_joints"
                                          " WHERE time = ? AND robot = ? AND joint BETWEEN 0 AND 5");
    while (robots.step())
    {
        recorded_robot robot{robots.number(0), whole<unsigned int>(robots.number(1)), {}};
        robot.description.model = robots.text(2);
        robot.description.joints = whole<unsigned int>(robots.number(3));
        joints.bind(robots.value(0)).bind(robots.value(1));
        while (joints.step())
            for (int column = 1; auto& parameter : robot.description.dh)
                parameter.at(whole<unsigned int>(joints.number(0))) = joints.number(column++);
        robots_.push_back(std::move(robot));
    }
}

bool sqlite_recording_reader::next(row& read)
{
    if (has_event_ && (!has_sample_ || event_rows_->number(0) < sample_rows_->number(0)))
    {
        read = event_of_row();
        has_event_ = event_rows_->step();
        return true;
    }
    if (!has_sample_)
        return false;
    recorded_sample sample{sample_rows_->number(0), {}};
    for (std::size_t i = 0; i < info_.fields.size(); ++i)
        sample.values.push_back(sample_rows_->value(static_cast<int>(1 + i)));
    read = std::move(sample);
    has_sample_ = sample_rows_->step();
    return true;
}

void sqlite_recording_reader::seek(double time)
{
    for (recording_statement* const rows : {&*sample_rows_, &*event_rows_})
    {
        rows->reset();
        rows->bind(time);
    }
    has_sample_ = sample_rows_->step();
    has_event_ = event_rows_->step();
}
} // namespace qorin_cli
