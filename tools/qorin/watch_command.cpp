#include <algorithm>
#include <csignal>
#include <memory>

#include "qorin/event_codes.h"
#include "tools/qorin/connection.h"
#include "tools/qorin/interruption.h"
#include "tools/qorin/status/control_state.h"
#include "tools/qorin/status/event_feed.h"
#include "tools/qorin/status/live_links.h"
#include "tools/qorin/status/status_page.h"
#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
using namespace std::chrono_literals;

struct watch_request
{
    connection_options connection;
    double seconds = 0;
};

/// A page on a terminal that is written again and again in the same place. What stood there is back when it ends.
class screen
{
public:
    screen() { write_all("\033[?1049h\033[?25l"); }
    ~screen() { write_all("\033[?25h\033[?1049l"); }
    screen(const screen&) = delete;
    screen& operator=(const screen&) = delete;

    /// Writes the lines that have changed, all at once, so that nothing flickers.
    void show(const std::vector<std::string>& lines, window size)
    {
        std::string changes = "\033[?2026h"; // terminals that know it show all that follows together
        if (size.rows != size_.rows || size.columns != size_.columns)
        {
            changes += "\033[2J";
            shown_.clear();
        }
        size_ = size;
        for (std::size_t i = 0; i < std::max(lines.size(), shown_.size()); ++i)
            if (i >= lines.size() || i >= shown_.size() || lines[i] != shown_[i])
                changes += fmt::format("\033[{};1H\033[2K{}", i + 1, i < lines.size() ? lines[i] : "");
        write_all(changes + "\033[?2026l");
        shown_ = lines;
    }

private:
    static void write_all(const std::string& text)
    {
        std::fwrite(text.data(), 1, text.size(), stdout);
        std::fflush(stdout);
    }

    window size_{0, 0};
    std::vector<std::string> shown_;
};

class watcher
{
public:
    watcher(const watch_request& request, unsigned int cbox)
        : request_(request), cbox_(cbox), links_(request.connection.address), fields_(status_fields(cbox)),
          robots_(cbox), commands_(may_command(cbox, request.connection.address))
    {
        collect_events(cbox);
    }

    /// Until a signal comes, the time is over or the control box is gone.
    void draw()
    {
        screen page_on_screen;
        while (goes_on(100ms))
        {
            keep_events();
            const window size = window_of(STDOUT_FILENO);
            page_on_screen.show(page(size), size);
        }
    }

    void print_lines()
    {
        while (goes_on(1s))
        {
            keep_events();
            fmt::print("{} {}\n", time_of_day(std::chrono::system_clock::now()),
                       status_line(status_reading(fields_), robots_));
            if (std::fflush(stdout) != 0)
                return;
        }
    }

private:
    bool goes_on(std::chrono::milliseconds pause)
    {
        if (turns_++ > 0 && !sleep_unless_interrupted(pause))
            return false;
        links_.expect_alive();
        robots_.look();
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin_;
        return !is_interrupted() && (request_.seconds == 0 || time.count() < request_.seconds);
    }

    void keep_events()
    {
        for (const event& happened : take_events())
        {
            if (happened.subgroup == QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_TAKE)
                control_told_ = "taken at " + time_of_day(happened.time);
            else if (happened.subgroup == QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_RELEASE)
                control_told_ = "released at " + time_of_day(happened.time);
            events_.push_back(event_line(happened));
            if (events_.size() > 200)
                events_.erase(events_.begin());
        }
    }

    std::vector<std::string> page(window size) const
    {
        const status_reading now(fields_);
        std::vector<page_line> lines;
        lines.push_back(page_title(request_.connection.address, cbox_, now, colours_));
        lines.push_back(control_line(commands_, colours_));
        if (!control_told_.empty())
            lines.back().text += "; " + control_told_;
        if (const auto silence = links_.silence(); silence > 1s)
            lines.push_back({colours_.paint(fmt::format("Nothing has come for {} ms", silence.count()), palette::red)});
        std::ranges::move(status_page(now, robots_, colours_), std::back_inserter(lines));
        // Events have what is left of the window, and three lines where nothing is.
        const auto rows = static_cast<std::size_t>(std::max(size.rows, 1));
        const std::size_t room = std::max<std::size_t>(rows > lines.size() + 1 ? rows - lines.size() - 1 : 0, 3);
        const std::size_t shown = std::min(room, events_.size());
        if (shown > 0)
            lines.push_back({"", page_line::useful});
        for (std::size_t i = events_.size() - shown; i < events_.size(); ++i)
            lines.push_back({events_[i], i + 3 < events_.size() ? page_line::extra : page_line::needed});
        return fit_page(std::move(lines), size);
    }

    const watch_request& request_;
    const unsigned int cbox_;
    const live_links links_;
    const std::vector<status_field> fields_;
    robot_watch robots_;
    const palette colours_{STDOUT_FILENO};
    const bool commands_;
    const std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
    int turns_ = 0;
    std::string control_told_;
    std::vector<std::string> events_;
};

int watch(const watch_request& request)
{
    const unsigned int cbox = connect(request.connection);
    catch_interruption();
    watcher watching(request, cbox);
    if (!is_terminal(STDOUT_FILENO))
    {
        watching.print_lines();
        return status_ok;
    }
    std::signal(SIGTSTP, SIG_IGN); // a stopped program would leave the terminal as it has made it
    watching.draw();
    return status_ok;
}
} // namespace

void add_watch(CLI::App& program, action& chosen)
{
    CLI::App* command = program.add_subcommand("watch", "Show control box, robots and events until Ctrl-C.");
    command->footer("Drawn again ten times a second; where the output is no terminal, one line a second.");
    const auto request = std::make_shared<watch_request>();
    request->connection.describe(*command);
    command->add_option("--seconds", request->seconds, "End after so long")->check(CLI::PositiveNumber);
    command->callback([request, &chosen] { chosen = [request] { return watch(*request); }; });
}
} // namespace qorin_cli
