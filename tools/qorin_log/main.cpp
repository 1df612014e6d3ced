#include <atomic>
#include <csignal>
#include <iostream>
#include <map>
#include <string>

#include <CLI/CLI.hpp>

#include "tools/qorin_log/log_printer.h"

namespace
{
std::atomic<bool> g_stop = false;
static_assert(std::atomic<bool>::is_always_lock_free);

void request_stop(int /*signal*/)
{
    g_stop = true;
}
} // namespace

int main(int argc, char** argv)
{
    CLI::App program("Reads the call log and the event log of the client library.");
    program.require_subcommand(1);

    qorin_log::cat_request request;
    qorin_log::log_kind kind{};
    CLI::App* cat = program.add_subcommand("cat", "Print log files as text.");
    cat->add_option("path", request.paths, "Log files, log directories, or the directory above them")->required();
    cat->add_flag("--follow,-f", request.follow, "Go on printing while the last file of each path grows");
    const CLI::Option* kind_option =
        cat->add_option("--kind,-k", kind, "Only this log: call or event")
            ->transform(CLI::CheckedTransformer(
                std::map<std::string, qorin_log::log_kind>{{"call", qorin_log::log_kind::call},
                                                           {"event", qorin_log::log_kind::event}},
                CLI::ignore_case));
    try
    {
        program.parse(argc, argv);
    }
    catch (const CLI::ParseError& failure)
    {
        return program.exit(failure) == 0 ? 0 : 1;
    }
    if (kind_option->count() > 0)
        request.kind = kind;

    std::signal(SIGINT, request_stop);
    std::signal(SIGTERM, request_stop);
    return qorin_log::cat(request, std::cout, std::cerr, [] { return g_stop.load(); });
}
