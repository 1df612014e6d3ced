#include <cerrno>
#include <cstring>
#include <filesystem>

#include <fmt/format.h>
#include <unistd.h>

#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
/// Becomes the simulated control box: the program beside this one, or else on the search path.
[[noreturn]] void become_simulator(std::vector<std::string> arguments)
{
    std::error_code none;
    const auto beside = std::filesystem::read_symlink("/proc/self/exe", none).parent_path() / "qorin_cbox_sim";
    arguments.insert(arguments.begin(), "qorin_cbox_sim");
    std::vector<char*> words;
    for (std::string& argument : arguments)
        words.push_back(argument.data());
    words.push_back(nullptr);
    execv(beside.c_str(), words.data());
    execvp(words[0], words.data());
    throw failure(fmt::format("qorin_cbox_sim: {}", std::strerror(errno)));
}
} // namespace

void add_sim(CLI::App& program, action& chosen)
{
    CLI::App* sim = program.add_subcommand(
        "sim", "Run the simulated control box, with the options of qorin_cbox_sim; --help lists them.");
    sim->prefix_command();
    sim->set_help_flag();
    sim->callback([sim, &chosen] { chosen = [sim]() -> int { become_simulator(sim->remaining()); }; });
}
} // namespace qorin_cli
