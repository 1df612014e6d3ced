#include "tools/qorin/manual.h"

#include <string>
#include <string_view>

#include <fmt/format.h>

namespace qorin_cli
{
namespace
{
constexpr const char* last_sections = R"roff(.SH ENVIRONMENT
.TP
.B QORIN_ADDRESS
IPv4 address of the control box, where \fB\-\-address\fR is not given.
.TP
.B NO_COLOR
When set to anything, no colours.
.SH EXIT STATUS
.TP
.B 0
All went well.
.TP
.B 1
A result that is not OK, a link that cannot be made, a file that cannot be read.
.TP
.B 2
Arguments that make no sense.
)roff";

/// A text without what the formatter would take for its own.
std::string escaped(std::string_view text)
{
    std::string safe = text.starts_with('.') || text.starts_with('\'') ? "\\&" : "";
    for (const char c : text)
        safe += c == '\\' ? "\\e" : c == '-' ? "\\-" : c == '\n' ? " " : std::string(1, c);
    return safe;
}

void print_option(const CLI::Option& option)
{
    // Without a group is what the user shall not see.
    if (option.get_group().empty())
        return;
    const bool has_value = !option.get_positional() && option.get_items_expected_max() > 0;
    std::string name = option.get_name(option.get_positional(), true);
    if (const std::size_t comma = name.find(','); comma != std::string::npos)
        name.insert(comma + 1, " ");
    fmt::print(".TP\n\\fB{}\\fR{}\n{}{}\n", escaped(name), has_value ? " \\fIvalue\\fR" : "",
               escaped(option.get_description()),
               option.get_envname().empty() ? "" : fmt::format(" ({})", escaped(option.get_envname())));
}

void print_subcommand(const CLI::App& subcommand, const std::string& path)
{
    std::string usage = path;
    for (const CLI::Option* option : subcommand.get_options())
        if (option->get_positional())
            usage += " " + (option->get_required() ? option->get_name(true) : "[" + option->get_name(true) + "]");
    const auto inner = subcommand.get_subcommands({});
    if (inner.empty())
    {
        fmt::print(".SS {}\n{}\n", escaped(usage), escaped(subcommand.get_description()));
        for (const CLI::Option* option : subcommand.get_options())
            if (option != subcommand.get_help_ptr())
                print_option(*option);
    }
    for (const CLI::App* child : inner)
        print_subcommand(*child, path + " " + child->get_name());
}
} // namespace

void print_manual(const CLI::App& program)
{
    fmt::print(".TH QORIN 1 \"\" \"qorin {}\"\n.SH NAME\nqorin \\- command line of a robot controller\n.SH SYNOPSIS\n"
               ".B qorin\n.I subcommand\n[\\fIoption\\fR]...\n.SH DESCRIPTION\n{}\n.SH SUBCOMMANDS\n",
               QORIN_VERSION, escaped(program.get_description()));
    for (const CLI::App* subcommand : program.get_subcommands({}))
        print_subcommand(*subcommand, "qorin " + subcommand->get_name());
    fmt::print("{}", last_sections);
}
} // namespace qorin_cli
