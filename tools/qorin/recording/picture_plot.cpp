#include "tools/qorin/recording/picture_plot.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <sstream>

#include <fmt/format.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
constexpr int panel_height = 260;

/// A text as gnuplot takes it: nothing in it means anything.
std::string quoted(const std::string& text)
{
    std::string result = "'";
    for (const char letter : text)
        result.append(letter == '\'' ? 2 : 1, letter);
    return result + "'";
}

bool is_on_path(const std::string& program)
{
    const char* const path = std::getenv("PATH");
    std::istringstream directories(path == nullptr ? "" : path);
    for (std::string directory; std::getline(directories, directory, ':');)
        if (access((directory + "/" + program).c_str(), X_OK) == 0)
            return true;
    return false;
}

std::string axis_of(const panel& drawn)
{
    if (drawn.steps.empty())
        return fmt::format("set ylabel {} noenhanced\nset yrange [*:*]\nset ytics auto\n", quoted(drawn.unit));
    std::string tics;
    for (std::size_t i = 0; i < drawn.steps.size(); ++i)
        tics += fmt::format("{}{} {}", i == 0 ? "" : ", ", quoted(drawn.steps[i]), i);
    return fmt::format("set ylabel ''\nset yrange [-0.5:{}.5]\nset ytics ({}) noenhanced\n", drawn.steps.size() - 1,
                       tics);
}

std::string marks_of(const std::vector<recorded_event>& events)
{
    std::string marks;
    for (const recorded_event& happened : events)
        marks += fmt::format("set arrow from {0}, graph 0 to {0}, graph 1 nohead dashtype 3 linecolor 'gray40'\n",
                             happened.time);
    return marks;
}

/// A panel with a row for each name of an event; the names stand at the right, where they have room.
std::string event_panel(const std::vector<recorded_event>& events)
{
    std::map<std::string, std::size_t> rows;
    std::string points;
    for (const recorded_event& happened : events)
        points += fmt::format("{} {}\n", happened.time, rows.try_emplace(happened.name, rows.size()).first->second);
    std::string tics;
    for (const auto& [name, row] : rows)
        tics += fmt::format("{}{} {}", tics.empty() ? "" : ", ", quoted(name), row);
    return fmt::format("$events << EOD\n{}EOD\nset ylabel 'events'\nunset ytics\nset yrange [-0.5:{}.5]\n"
                       "set link y\nset y2tics ({}) font ',8' noenhanced\n"
                       "plot $events using 1:2 with points pointtype 7 linecolor 'gray40' notitle\n",
                       points, rows.size() - 1, tics);
}

/// The points of a curve under a name; an empty line is a gap.
std::string data_of(const curve& drawn, std::size_t number)
{
    std::string block = fmt::format("$curve{} << EOD\n", number);
    for (const auto& [time, value] : drawn.points)
        block += std::isnan(value) ? "\n" : fmt::format("{} {}\n", time, value);
    return block + "EOD\n";
}

std::string script_of(const plot_data& data, const std::string& terminal, const std::string& picture,
                      const std::string& title, bool with_events)
{
    const std::size_t panels = data.panels.size() + (with_events && !data.events.empty() ? 1 : 0);
    std::size_t name_length = with_events ? 30 : 0;
    for (const panel& drawn : data.panels)
        for (const curve& one : drawn.curves)
            name_length = std::max(name_length, one.name.size());
    std::string script =
        fmt::format("set terminal {} size 1200,{}\nset output {}\nset multiplot layout {},1 title {} noenhanced\n"
                    "set grid\nset key outside right top noenhanced\nset lmargin 14\nset rmargin {}\n"
                    "set xrange [{}:{}]\n",
                    terminal, 80 + panel_height * panels, quoted(picture), panels, quoted(title), name_length + 6,
                    data.begin, std::max(data.end, data.begin + 1e-3));
    if (with_events)
        script += marks_of(data.events);
    std::size_t number = 0;
    std::size_t panels_left = panels;
    for (const panel& drawn : data.panels)
    {
        script += axis_of(drawn);
        if (--panels_left == 0)
            script += "set xlabel 'time, s'\n";
        std::string curves;
        std::string blocks;
        const bool is_stepped = !drawn.steps.empty();
        for (const curve& one : drawn.curves)
        {
            blocks += data_of(one, number);
            curves += fmt::format("{}$curve{} using 1:2 with {} linewidth 1.5 title {}", curves.empty() ? "" : ", ",
                                  number, is_stepped ? "steps" : "lines", quoted(one.name));
            ++number;
        }
        script += blocks + "plot " + curves + "\n";
    }
    if (panels_left > 0)
        script += "set xlabel 'time, s'\n" + event_panel(data.events);
    return script + "unset multiplot\nunset output\n";
}
} // namespace

void draw_picture(const plot_data& data, const std::filesystem::path& picture, const std::string& title,
                  bool with_events)
{
    const std::string ending = picture.extension();
    if (ending != ".svg" && ending != ".png")
        throw failure(fmt::format("{}: a picture ends in .svg or .png", picture.string()), status_usage);
    if (!is_on_path("gnuplot"))
        throw failure(
            "gnuplot is not installed, and it draws the pictures; without --output the terminal shows a plot");
    // gnuplot says much about a file that it cannot write, and ends with status 0.
    std::FILE* const can_be_written = std::fopen(picture.c_str(), "we");
    if (can_be_written == nullptr)
        throw failure(fmt::format("{}: {}", picture.string(), std::strerror(errno)));
    std::fclose(can_be_written);
    std::FILE* const gnuplot = popen("gnuplot 2>/dev/null", "w");
    if (gnuplot == nullptr)
        throw failure(fmt::format("gnuplot: {}", std::strerror(errno)));
    const std::string script = script_of(data, ending == ".svg" ? "svg" : "pngcairo", picture, title, with_events);
    const bool is_written = std::fwrite(script.data(), 1, script.size(), gnuplot) == script.size();
    const int status = pclose(gnuplot);
    std::error_code failed;
    if (!is_written || !WIFEXITED(status) || WEXITSTATUS(status) != 0 ||
        std::filesystem::file_size(picture, failed) == 0)
        throw failure(fmt::format("gnuplot could not draw {}", picture.string()));
}
} // namespace qorin_cli
