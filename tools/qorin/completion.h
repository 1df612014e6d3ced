#ifndef TOOLS_QORIN_COMPLETION_H
#define TOOLS_QORIN_COMPLETION_H

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace qorin_cli
{
/// Prints what may stand in place of the last of `words`, which the user has begun to write behind the program's name:
/// a candidate a line, and a tabulator and a word about it where there is one. Nothing where a file is asked for.
void print_candidates(const CLI::App& program, std::vector<std::string> words);
} // namespace qorin_cli

#endif
