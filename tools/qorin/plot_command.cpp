#include <csignal>
#include <memory>

#include <fmt/ranges.h>

#include "tools/qorin/recording/picture_plot.h"
#include "tools/qorin/recording/plot_data.h"
#include "tools/qorin/recording/terminal_plot.h"
#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
struct plot_request
{
    std::string file;
    std::vector<std::string> fields;
    std::string output;
    plot_range range;
    bool with_events = false;
    bool list = false;
};

void list_fields(const recording_reader& recording)
{
    for (const auto& [key, value] : recording.info().about)
        fmt::print("{:<32} {}\n", key, value);
    fmt::print("{:<32} {:.1f} s\n", "duration", recording.duration());
    for (const recorded_robot& robot : recording.robots())
        fmt::print("{:<32} {}, {} joints, from {:.1f} s on\n", fmt::format("robot{}", robot.robot),
                   robot.description.model, robot.description.joints, robot.time);
    for (const field_info& field : recording.info().fields)
        fmt::print("{:<32} {}\n", field.name, field.unit);
}

std::string title_of(const std::string& file, const recording_info& info)
{
    const auto started = info.about.find("started");
    return started == info.about.end() ? file : fmt::format("{}, {}", file, started->second);
}

int plot(const plot_request& request)
{
    const auto recording = open_recording(request.file);
    if (request.list)
    {
        list_fields(*recording);
        return status_ok;
    }
    const plot_data data = read_plot_data(*recording, request.fields, request.range);
    if (data.panels.empty())
        throw failure(fmt::format("{} has no values of {} in that time; --list tells what it has", request.file,
                                  fmt::join(request.fields, ", ")));
    if (!request.output.empty())
    {
        std::signal(SIGPIPE, SIG_IGN); // a gnuplot that ends early is a failure with a line
        draw_picture(data, request.output, title_of(request.file, recording->info()), request.with_events);
        return status_ok;
    }
    fmt::print("{}", terminal_plot(data, window_of(STDOUT_FILENO).columns, palette(STDOUT_FILENO)));
    if (request.with_events)
        for (const recorded_event& happened : data.events)
            fmt::print("{:>12.3f} s  {}  sender {}\n", happened.time, happened.name, happened.sender);
    return status_ok;
}
} // namespace

void add_plot(CLI::App& program, action& chosen)
{
    CLI::App* command =
        program.add_subcommand("plot", "Draw fields of a recording: to a picture with --output, else on the terminal.");
    const auto request = std::make_shared<plot_request>();
    request->fields = {"robot*.joint*.angle"};
    command->add_option("file", request->file, "A recording of `qorin record`")->required();
    command
        ->add_option("field", request->fields,
                     "Fields by name or pattern as of files; 'cbox.digital_inputs.3' is a channel of a field of bits")
        ->capture_default_str();
    command->add_option("--output,-o", request->output, "A picture to draw to, .svg or .png");
    command->add_option("--from", request->range.begin, "Begin at this second")->check(CLI::NonNegativeNumber);
    command->add_option("--to", request->range.end, "End at this second")->check(CLI::PositiveNumber);
    command->add_flag("--events", request->with_events, "Show the events too");
    command->add_flag("--list", request->list, "Print what the recording has, and draw nothing");
    command->callback([request, &chosen] { chosen = [request] { return plot(*request); }; });
}
} // namespace qorin_cli
