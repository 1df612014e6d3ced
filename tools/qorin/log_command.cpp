#include <iostream>
#include <map>
#include <memory>

#include "tools/log_reader/log_printer.h"
#include "tools/qorin/interruption.h"
#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
void add_log(CLI::App& program, action& chosen)
{
    CLI::App* log = program.add_subcommand("log", "Read the call log and the event log of the client library.");
    log->require_subcommand(1);
    log->set_version_flag("--version", "qorin_log " QORIN_VERSION, "Print the version and end");

    const auto request = std::make_shared<qorin_log::cat_request>();
    CLI::App* cat = log->add_subcommand("cat", "Print log files as text.");
    cat->add_option("path", request->paths, "Log files, log directories, or the directory above them")->required();
    cat->add_flag("--follow,-f", request->follow, "Go on printing while the last file of each path grows");
    cat->add_option("--kind,-k", request->kind, "Only this log: call or event")
        ->transform(
            CLI::CheckedTransformer(std::map<std::string, qorin_log::log_kind>{{"call", qorin_log::log_kind::call},
                                                                               {"event", qorin_log::log_kind::event}},
                                    CLI::ignore_case));
    cat->callback(
        [request, &chosen]
        {
            chosen = [request]
            {
                catch_interruption();
                return qorin_log::cat(*request, std::cout, std::cerr, is_interrupted);
            };
        });
}
} // namespace qorin_cli
