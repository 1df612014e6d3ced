#ifndef TOOLS_QORIN_MANUAL_H
#define TOOLS_QORIN_MANUAL_H

#include <CLI/CLI.hpp>

namespace qorin_cli
{
/// Prints the manual page of the program with all its subcommands, for `man`.
void print_manual(const CLI::App& program);
} // namespace qorin_cli

#endif
