#include <cmath>
#include <csignal>
#include <memory>

#include "qorin/system.h"
#include "tools/qorin/connection.h"
#include "tools/qorin/interruption.h"
#include "tools/qorin/recording/recording.h"
#include "tools/qorin/status/event_feed.h"
#include "tools/qorin/status/live_links.h"
#include "tools/qorin/subcommands.h"
#include "tools/qorin/terminal.h"

namespace qorin_cli
{
namespace
{
using namespace std::chrono_literals;
using std::chrono::steady_clock;
using seconds = std::chrono::duration<double>;

struct record_request
{
    connection_options connection;
    std::string file;
    double rate = 50;
    double seconds = 0;
    bool overwrite = false;
    std::vector<std::string> fields;
};

/// Those that match a pattern; without patterns all but settings.
std::vector<status_field> chosen_fields(const record_request& request, unsigned int cbox)
{
    std::vector<status_field> fields = status_fields(cbox);
    std::vector<std::string> names;
    for (const status_field& field : fields)
        names.push_back(field.name);
    expect_matches(names, request.fields);
    std::erase_if(fields, [&](const status_field& field)
                  { return request.fields.empty() ? field.is_setting : !matches_any(field.name, request.fields); });
    return fields;
}

class recorder
{
public:
    recorder(const record_request& request, unsigned int cbox)
        : request_(request), links_(request.connection.address), robots_(cbox), fields_(chosen_fields(request, cbox))
    {
        recording_info info;
        info.about = {{"started", time_stamp(start_of_day_)},
                      {"address", request.connection.address},
                      {"control_software", qorin_rpc_system_control_sw_version_get(cbox)},
                      {"library", qorin_system_api_version_get()},
                      {"rate", fmt::format("{:g}", request.rate)}};
        for (const status_field& field : fields_)
            info.fields.push_back(field);
        file_ = create_recording(request.file, info, request.overwrite);
        collect_events(cbox);
    }

    /// Until a signal comes, the time is over, the control box is gone or the disk is full.
    void record()
    {
        try
        {
            while (goes_on())
            {
                add_events();
                add_robots();
                add_sample();
                save_now_and_then();
            }
            add_events();
            save();
        }
        catch (const failure& error)
        {
            const double kept = keep_what_can_be();
            file_.reset();
            clear_progress();
            throw failure(fmt::format("{}; {} has the {:.1f} seconds before", error.what(), request_.file, kept));
        }
        file_.reset();
        clear_progress();
        fmt::print("{}: {:.1f} seconds, {} samples, {} events{}\n", request_.file, elapsed().count(), samples_, events_,
                   late_ == 0 ? "" : fmt::format("; {} samples left out, since this machine was late", late_));
    }

private:
    [[nodiscard]] seconds elapsed() const { return steady_clock::now() - start_; }

    /// Sleeps until the next sample is due. Those that are past are left out.
    bool goes_on()
    {
        const auto due = [&] { return start_ + seconds(static_cast<double>(turn_) / request_.rate); };
        if (turn_ > 0)
        {
            const auto past = static_cast<long>(std::floor(elapsed().count() * request_.rate));
            late_ += std::max(0L, past - turn_);
            turn_ = std::max(turn_, past);
            if (!sleep_unless_interrupted(
                    std::max(0ns, std::chrono::ceil<std::chrono::nanoseconds>(due() - steady_clock::now()))))
                return false;
        }
        ++turn_;
        return !is_interrupted() && (request_.seconds == 0 || elapsed().count() < request_.seconds);
    }

    void add_events()
    {
        for (const event& happened : take_events())
        {
            const double time = std::max(0.0, seconds(happened.time - start_of_day_).count());
            file_->add(
                recorded_event{time, happened.group_name(), happened.name(), happened.sender, happened.parameters});
            ++events_;
        }
    }

    /// Robots that have come, or stand there as others.
    void add_robots()
    {
        robots_.look();
        for (unsigned int robot = 0; robot < robot_limit; ++robot)
        {
            if (!robots_.is_known(robot))
                continue;
            robot_description now = robots_.describe(robot);
            if (now == told_[robot])
                continue;
            file_->add(recorded_robot{elapsed().count(), robot, now});
            told_[robot] = std::move(now);
        }
    }

    void add_sample()
    {
        file_->add(recorded_sample{elapsed().count(), read_fields(fields_)});
        ++samples_;
    }

    void save_now_and_then()
    {
        if (steady_clock::now() < looks_next_)
            return;
        looks_next_ = steady_clock::now() + 200ms;
        links_.expect_alive();
        if (elapsed().count() >= saved_ + 1)
            save();
        if (is_terminal(STDERR_FILENO))
            fmt::print(stderr, "\r{}: {:.1f} seconds, {} samples, {} events; Ctrl-C ends\033[K", request_.file,
                       elapsed().count(), samples_, events_);
    }

    void save()
    {
        file_->save();
        saved_ = elapsed().count();
    }

    /// After a failure: what the file takes still, in seconds.
    double keep_what_can_be()
    {
        try
        {
            save();
        }
        catch (const failure&)
        {
            // The file is what has failed.
        }
        return saved_;
    }

    static void clear_progress()
    {
        if (is_terminal(STDERR_FILENO))
            fmt::print(stderr, "\r\033[K");
    }

    const record_request& request_;
    const live_links links_;
    robot_watch robots_;
    const std::vector<status_field> fields_;
    const std::chrono::system_clock::time_point start_of_day_ = std::chrono::system_clock::now();
    const steady_clock::time_point start_ = steady_clock::now();
    std::unique_ptr<recording_writer> file_;
    std::array<robot_description, robot_limit> told_;
    steady_clock::time_point looks_next_ = start_;
    double saved_ = 0;
    long turn_ = 0;
    long samples_ = 0;
    long events_ = 0;
    long late_ = 0;
};

int record(const record_request& request)
{
    std::signal(SIGXFSZ, SIG_IGN); // a file that may not grow is a failure and no end of the program
    const unsigned int cbox = connect(request.connection);
    catch_interruption();
    recorder(request, cbox).record();
    return status_ok;
}
} // namespace

void add_record(CLI::App& program, action& chosen)
{
    CLI::App* command = program.add_subcommand("record", "Write status over time and events to a file, until Ctrl-C.");
    command->footer("The file is a table (.csv) or a database of SQLite (.sqlite, .db). `qorin plot` draws it.");
    const auto request = std::make_shared<record_request>();
    command->add_option("file", request->file, "The recording; its ending tells the form")->required();
    request->connection.describe(*command);
    command->add_option("--rate,-r", request->rate, "Samples a second")
        ->check(CLI::Range(0.1, 1000.0))
        ->capture_default_str();
    command->add_option("--seconds", request->seconds, "End after so long")->check(CLI::PositiveNumber);
    command->add_option("--fields", request->fields,
                        "Only these fields, by name or pattern as of files: 'robot0.joint*.angle', 'cbox.*'");
    command->add_flag("--force", request->overwrite, "Replace a file that is there");
    command->callback([request, &chosen] { chosen = [request] { return record(*request); }; });
}
} // namespace qorin_cli
