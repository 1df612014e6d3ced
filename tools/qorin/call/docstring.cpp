#include "tools/qorin/call/docstring.h"

#include <vector>

#include <fmt/format.h>

#include "tools/qorin/call/call_arguments.h"
#include "tools/qorin/call/value_text.h"

namespace qorin_cli
{
namespace
{
constexpr std::size_t width = 100;
constexpr std::size_t most_members = 24; ///< of an enumeration that are worth a list

/// Breaks a text into lines that begin with so many spaces; lines of its own stay.
std::string wrapped(std::string_view text, std::size_t indent)
{
    std::string lines;
    std::size_t column = 0;
    while (!text.empty())
    {
        const std::size_t end = text.find_first_of(" \n");
        const std::string_view word = text.substr(0, end);
        if (column > 0 && column + 1 + word.size() > width)
        {
            lines += '\n';
            column = 0;
        }
        if (column == 0 && !word.empty())
        {
            lines.append(indent, ' ');
            column = indent;
        }
        else if (column > 0)
        {
            lines += ' ';
            ++column;
        }
        lines += word;
        column += word.size();
        if (end == std::string_view::npos)
            break;
        if (text[end] == '\n')
        {
            lines += '\n';
            column = 0;
        }
        text.remove_prefix(end + 1);
    }
    return lines + '\n';
}

std::string shape_text(const parameter_row& parameter)
{
    if (parameter.is_text || parameter.shape.empty())
        return parameter.is_text ? " (text)" : "";
    std::vector<std::string> dimensions;
    for (const dimension_row& dimension : parameter.shape)
        if (dimension.of_joints)
            dimensions.emplace_back("joints");
        else if (dimension.parameter.empty())
            dimensions.push_back(std::to_string(dimension.number));
        else
            dimensions.push_back(dimension.less ? fmt::format("{} - {}", dimension.parameter, dimension.less)
                                                : std::string(dimension.parameter));
    return fmt::format(" [{}]", fmt::join(dimensions, ", "));
}

std::string members_text(const enumeration_row& enumeration)
{
    if (enumeration.members.size() > most_members)
        return {};
    std::vector<std::string_view> names;
    for (const member_row& member : enumeration.members)
        names.push_back(short_name(enumeration, member));
    return fmt::format("\n{}", fmt::join(names, ", "));
}

std::string parameter_text(const parameter_row& parameter)
{
    constexpr std::size_t indent = 6;
    return fmt::format("  {}{}  {}\n{}", parameter.name, shape_text(parameter), parameter.type,
                       wrapped(std::string(parameter.doc) +
                                   (parameter.enumeration ? members_text(*parameter.enumeration) : std::string()),
                               indent));
}
} // namespace

std::string_view kind_name(function_kind kind)
{
    switch (kind)
    {
    case function_kind::command:
        return "command";
    case function_kind::getter:
        return "getter";
    default:
        return "local";
    }
}

std::string usage_of(const function_row& function)
{
    constexpr std::string_view prefix = "qorin_rpc_";
    std::string usage(function.name.starts_with(prefix) ? function.name.substr(prefix.size()) : function.name);
    for (const parameter_row& parameter : function.parameters)
        if (is_told(parameter))
            usage += fmt::format(" {}", parameter.name);
    return usage;
}

std::string docstring_of(const function_row& function)
{
    std::string text = fmt::format("qorin call {}\n\n{} ({}, qorin/{}.h)\n\n{}", usage_of(function), function.name,
                                   kind_name(function.kind), function.family, wrapped(function.brief, 0));
    if (!function.doc.empty())
        text += "\n" + wrapped(function.doc, 0);
    for (const bool outputs : {false, true})
    {
        std::string list;
        for (const parameter_row& parameter : function.parameters)
            if (outputs ? parameter.is_output : is_told(parameter))
                list += parameter_text(parameter);
        if (!list.empty())
            text += (outputs ? "\nOutputs:\n" : "\nInputs:\n") + list;
    }
    if (!function.result.empty())
        text += "\nResult:\n" + wrapped(function.result, 2);
    return text;
}
} // namespace qorin_cli
