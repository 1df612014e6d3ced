#include <csignal>
#include <exception>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/signal_set.hpp>

#include "simulator/control_box.h"
#include "simulator/scene/scene.h"

namespace
{
using cbox_simulator::control_box;
using cbox_simulator::control_box_options;
using cbox_simulator::log_level;

const std::map<std::string, log_level> log_levels = {{"error", log_level::error},
                                                     {"warning", log_level::warning},
                                                     {"info", log_level::info},
                                                     {"debug", log_level::debug}};

struct told_options
{
    control_box_options box;
    std::vector<std::string> faults;
    std::string level = "info";
    std::string save; ///< Where SIGUSR1 saves to.
};

void describe_options(CLI::App& app, told_options& told)
{
    auto& options = told.box;
    app.add_option("--address", options.address, "IPv4 address to listen on")->capture_default_str();
    app.add_option("--port", options.port, "TCP port; clients of the interface know no other than 7700")
        ->check(CLI::Range(1, 65535))
        ->capture_default_str();
    app.add_option("--cycle", options.cycle, "Control cycle in milliseconds, 0.1 to 100")->capture_default_str();
    app.add_option("--rate", options.rate, "Status frames a second, above 0 and up to 10000")->capture_default_str();
    app.add_option("--version-text", options.version_text,
                   "Version of the control software that clients see, at most 31 characters")
        ->capture_default_str();
    app.add_option("--kinematics", options.kinematics,
                   "Directory of kinematics modules, for robots other than the nine arms that the box knows");
    app.add_option("--load", options.scene, "Scene to start as: a file of a cell, as the guide tells");
    app.add_option("--save", told.save, "File to which SIGUSR1 saves the box as a scene; if not told, that of --load");
    app.add_option("--control", options.control_port,
                   "TCP port, on a loopback address, of the control channel to the world outside the box")
        ->check(CLI::Range(1, 65535));
    app.add_option("--noise", options.noise, "Noise on measured values: 0 is none, 1 that of a usual device")
        ->capture_default_str();
    app.add_option("--fault", told.faults, "Something to go wrong, as the guide lists; may be given several times")
        ->allow_extra_args(false);
    app.add_option("--seed", options.seed, "Seed of all chance in the box")->capture_default_str();
    app.add_option("--log-level", told.level, "error, warning, info or debug")
        ->check(CLI::IsMember(log_levels))
        ->capture_default_str();
    app.set_version_flag("--version", "qorin_cbox_sim " QORIN_VERSION, "Print the version and end");
    app.failure_message([](const CLI::App*, const CLI::Error& error)
                        { return std::string("qorin_cbox_sim: ") + error.what() + "\n"; });
}

/// One piece for each line, since the box's thread prints too; flushed, so that who reads a pipe sees it at once.
void print_line(log_level level, std::string_view line)
{
    const auto prefix = level == log_level::error ? "error: " : level == log_level::warning ? "warning: " : "";
    std::cout << fmt::format("{}{}\n", prefix, line) << std::flush;
}

/// At each signal anew, until that is cancelled.
void save_on_signal(boost::asio::signal_set& signal, control_box& box, const std::string& file)
{
    signal.async_wait(
        [&signal, &box, file](const boost::system::error_code& error, int)
        {
            if (error)
                return;
            try
            {
                if (file.empty())
                    throw std::invalid_argument("there is no file to save to: --save tells one");
                box.with_model([&](cbox_simulator::box_model& model) { cbox_simulator::save_scene(model, file); });
                print_line(log_level::info, fmt::format("saved to {}", file));
            }
            catch (const std::invalid_argument& refusal)
            {
                print_line(log_level::warning, refusal.what());
            }
            save_on_signal(signal, box, file);
        });
}

/// Runs the box until a signal or a client ends it.
void serve(told_options told)
{
    boost::asio::io_context until_end;
    boost::asio::signal_set ends(until_end, SIGINT, SIGTERM);
    boost::asio::signal_set saves(until_end, SIGUSR1);
    ends.async_wait([&](const boost::system::error_code&, int) { saves.cancel(); });
    auto& options = told.box;
    options.on_exit = [&] { boost::asio::post(until_end, [&] { ends.cancel(); }); };

    control_box box(options);
    box.start();
    save_on_signal(saves, box, told.save.empty() ? options.scene : told.save);
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
    told_options told;
    describe_options(app, told);
    try
    {
        app.parse(argc, argv);
        told.box.level = log_levels.at(told.level);
        for (const auto& fault : told.faults)
            told.box.faults.add(fault);
        told.box.log = print_line;
        serve(std::move(told));
        return 0;
    }
    catch (const CLI::ParseError& error)
    {
        // Asking for help or the version is a ParseError too, of status 0.
        return app.exit(error) == 0 ? 0 : 1;
    }
    catch (const std::exception& error)
    {
        std::cerr << "qorin_cbox_sim: " << error.what() << std::endl;
        return 1;
    }
}
