#ifndef TOOLS_QORIN_CONNECTION_H
#define TOOLS_QORIN_CONNECTION_H

#include <string>

#include <CLI/CLI.hpp>

namespace qorin_cli
{
/// Where the control box is, and how the library is set up.
struct connection_options
{
    std::string address;
    std::string config; ///< empty: one that is made in memory, with logs that go when the program ends

    /// Adds `--address` and `--config` to a subcommand that connects.
    void describe(CLI::App& subcommand);
};

/**
 * Connects to the control box. The link lives until the process ends, as the library has it.
 *
 * A control box with another version is told of on standard error, and used all the same.
 *
 * @return the control box id.
 * @throws failure with a line that names the address or the configuration.
 */
unsigned int connect(const connection_options& options);

/// The configuration that is used when none is given: kinematics modules from beside this program, logs in a directory
/// of this process, which is removed when it ends.
std::string configuration_in_memory();
} // namespace qorin_cli

#endif
