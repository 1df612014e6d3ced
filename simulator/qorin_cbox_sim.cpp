#include <csignal>
#include <exception>
#include <iostream>
#include <map>
#include <string>

#include <CLI/CLI.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/signal_set.hpp>

#include "simulator/control_box.h"

namespace
{
using cbox_simulator::control_box;
using cbox_simulator::control_box_options;
using cbox_simulator::log_level;

const std::map<std::string, log_level> log_levels = {{"error", log_level::error},
                                                     {"warning", log_level::warning},
                                                     {"info", log_level::info},
                                                     {"debug", log_level::debug}};

void describe_options(CLI::App& app, control_box_options& options, std::string& level)
{
    app.add_option("--address", options.address, "IPv4 address to listen on")->capture_default_str();
    app.add_option("--port", options.port, "TCP port; clients of the interface know no other than 7700")
        ->check(CLI::Range(1, 65535))
        ->capture_default_str();
    app.add_option("--rate", options.rate, "Status frames a second, above 0 and up to 10000")->capture_default_str();
    app.add_option("--version-text", options.version_text,
                   "Version of the control software that clients see, at most 31 characters")
        ->capture_default_str();
    app.add_option("--log-level", level, "error, warning, info or debug")
        ->check(CLI::IsMember(log_levels))
        ->capture_default_str();
    app.failure_message([](const CLI::App*, const CLI::Error& error)
                        { return std::string("qorin_cbox_sim: ") + error.what() + "\n"; });
}

/// One piece for each line, since the box's thread prints too; flushed, so that who reads a pipe sees it at once.
void print_line(log_level level, std::string_view line)
{
    const auto prefix = level == log_level::error ? "error: " : level == log_level::warning ? "warning: " : "";
    std::cout << fmt::format("{}{}\n", prefix, line) << std::flush;
}

/// Runs the box until a signal or a client ends it.
void serve(control_box_options options)
{
    boost::asio::io_context until_end;
    boost::asio::signal_set signals(until_end, SIGINT, SIGTERM);
    signals.async_wait([](const boost::system::error_code&, int) {});
    options.on_exit = [&] { boost::asio::post(until_end, [&] { signals.cancel(); }); };

    control_box box(options);
    box.start();
    print_line(log_level::info,
               fmt::format("listening on {}:{}, {} frames a second", options.address, box.port(), options.rate));
    until_end.run();
    box.stop();
}
} // namespace

int main(int argc, char** argv)
{
    CLI::App app("A simulated control box: answers clients of the robot controller's programming interface.",
                 "qorin_cbox_sim");
    control_box_options options;
    std::string level = "info";
    describe_options(app, options, level);
    try
    {
        app.parse(argc, argv);
        options.level = log_levels.at(level);
        options.log = print_line;
        serve(options);
        return 0;
    }
    catch (const CLI::ParseError& error)
    {
        // Asking for help is a ParseError too, of status 0.
        return app.exit(error) == 0 ? 0 : 1;
    }
    catch (const std::exception& error)
    {
        std::cerr << "qorin_cbox_sim: " << error.what() << std::endl;
        return 1;
    }
}
