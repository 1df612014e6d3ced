#include <cstdio>
#include <filesystem>

#include <fmt/format.h>

#include "tools/qorin/completion.h"
#include "tools/qorin/manual.h"
#include "tools/qorin/subcommands.h"

namespace
{
using namespace qorin_cli;

/// What the user wrote; `qorin_log` is `qorin log` by an older name.
std::vector<std::string> words_of(int argc, char** argv)
{
    std::vector<std::string> words(argv + std::min(argc, 1), argv + argc);
    if (argc > 0 && std::filesystem::path(argv[0]).filename() == "qorin_log")
        words.insert(words.begin(), "log");
    return words;
}

int run(std::vector<std::string> words)
{
    CLI::App program("Look at a control box, drive it, watch it, and find out why something is slow.", "qorin");
    program.require_subcommand(1);
    program.set_version_flag("--version", "qorin " QORIN_VERSION, "Print the version and end");
    program.failure_message([](const CLI::App*, const CLI::Error& error)
                            { return fmt::format("qorin: {}\n", error.what()); });
    action chosen;
#ifdef QORIN_HAS_FUNCTION_TABLE
    add_call(program, chosen);
    add_functions(program, chosen);
#endif
    add_completion(program, chosen);
    add_doctor(program, chosen);
    add_events(program, chosen);
    add_log(program, chosen);
    add_plot(program, chosen);
    add_record(program, chosen);
#ifdef QORIN_HAS_FUNCTION_TABLE
    add_replay(program, chosen);
#endif
    add_result(program, chosen);
    add_sim(program, chosen);
    add_status(program, chosen);
#ifdef QORIN_VIEW
    add_view(program, chosen);
#endif
    add_watch(program, chosen);
    // For shells and for the build, not for users.
    if (!words.empty() && words[0] == "--complete")
    {
        print_candidates(program, {words.begin() + 1, words.end()});
        return status_ok;
    }
    if (words == std::vector<std::string>{"--manual"})
    {
        print_manual(program);
        return status_ok;
    }
    try
    {
        std::reverse(words.begin(), words.end()); // as the parser wants them
        program.parse(std::move(words));
    }
    catch (const CLI::ParseError& error)
    {
        // Asking for help or the version is a ParseError too, of status 0.
        return program.exit(error) == 0 ? status_ok : status_usage;
    }
    return chosen();
}
} // namespace

int main(int argc, char** argv)
{
    int status = status_failed;
    try
    {
        status = run(words_of(argc, argv));
    }
    catch (const failure& error)
    {
        fmt::print(stderr, "qorin: {}\n", error.what());
        return error.status();
    }
    catch (const std::exception& error)
    {
        fmt::print(stderr, "qorin: {}\n", error.what());
        return status_failed;
    }
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return status;
    std::perror("qorin: standard output");
    return status_failed;
}
