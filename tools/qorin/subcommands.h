#ifndef TOOLS_QORIN_SUBCOMMANDS_H
#define TOOLS_QORIN_SUBCOMMANDS_H

#include <functional>
#include <stdexcept>
#include <string>

#include <CLI/CLI.hpp>

namespace qorin_cli
{
/// How the program ends.
enum exit_status : int
{
    status_ok = 0,
    status_failed = 1, ///< a result that is not OK, a link that cannot be made, a file that cannot be read
    status_usage = 2   ///< arguments that make no sense
};

/// Ends a subcommand with a line on standard error.
class failure : public std::runtime_error
{
public:
    explicit failure(const std::string& line, exit_status status = status_failed)
        : std::runtime_error(line), status_(status)
    {
    }

    [[nodiscard]] exit_status status() const { return status_; }

private:
    exit_status status_;
};

/// What a subcommand that was chosen does once all arguments are read; gives the exit status.
using action = std::function<int()>;

// Each adds its subcommand with its options to the program, and puts its work into `chosen` when it is the one that the
// user wrote.
void add_call(CLI::App& program, action& chosen);
void add_completion(CLI::App& program, action& chosen);
void add_doctor(CLI::App& program, action& chosen);
void add_events(CLI::App& program, action& chosen);
void add_functions(CLI::App& program, action& chosen);
void add_log(CLI::App& program, action& chosen);
void add_plot(CLI::App& program, action& chosen);
void add_record(CLI::App& program, action& chosen);
void add_replay(CLI::App& program, action& chosen);
void add_result(CLI::App& program, action& chosen);
void add_sim(CLI::App& program, action& chosen);
void add_status(CLI::App& program, action& chosen);
void add_view(CLI::App& program, action& chosen); ///< in a library of its own, which may be left out
void add_watch(CLI::App& program, action& chosen);
} // namespace qorin_cli

#endif
