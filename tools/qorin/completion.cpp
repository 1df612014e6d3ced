#include "tools/qorin/completion.h"

#include <algorithm>
#include <string_view>

#include <fmt/format.h>

#include "tools/qorin/result_texts.h"
#ifdef QORIN_HAS_FUNCTION_TABLE
#include "tools/qorin/call/call_arguments.h"
#include "tools/qorin/call/value_text.h"
#endif

namespace qorin_cli
{
namespace
{
struct candidate
{
    std::string text;
    std::string about;
};
using candidates = std::vector<candidate>;

/// What the user has written so far: the subcommand, its positional words, the option whose value comes next.
struct position
{
    const CLI::App* subcommand;
    std::vector<std::string> words;
    const CLI::Option* awaiting = nullptr;
};

const CLI::App* subcommand_of(const CLI::App& program, const std::string& name)
{
    const auto inner = program.get_subcommands([&name](const CLI::App* app) { return app->get_name() == name; });
    return inner.empty() ? nullptr : inner[0];
}

position position_behind(const CLI::App& program, const std::vector<std::string>& words)
{
    position at{.subcommand = &program, .words = {}};
    for (const std::string& word : words)
        if (at.awaiting)
            at.awaiting = nullptr;
        else if (word.starts_with('-'))
        {
            const CLI::Option* option = at.subcommand->get_option_no_throw(word);
            at.awaiting = option && option->get_items_expected_max() > 0 ? option : nullptr;
        }
        else if (const CLI::App* inner = at.words.empty() ? subcommand_of(*at.subcommand, word) : nullptr)
            at.subcommand = inner;
        else
            at.words.push_back(word);
    return at;
}

/// The words that an option takes, which its check describes: `{call,event}`, or `value in {call->0,event->1} ...`.
candidates values_of(const CLI::Option& option)
{
    std::string type = option.get_type_name();
    const std::size_t from = type.find('{');
    const std::size_t to = type.find('}');
    if (from == std::string::npos || to == std::string::npos)
        return {};
    candidates values;
    for (const std::string& value : CLI::detail::split(type.substr(from + 1, to - from - 1), ','))
        values.push_back({value.substr(0, value.find("->")), {}});
    return values;
}

candidates options_of(const CLI::App& subcommand)
{
    candidates options;
    for (const CLI::Option* option : subcommand.get_options())
        for (const std::string& name : option->get_lnames())
            options.push_back({"--" + name, option->get_description()});
    return options;
}

candidates result_names()
{
    candidates names;
    for (const result_text& text : result_texts())
        names.push_back({text.name, text.description});
    return names;
}

#ifdef QORIN_HAS_FUNCTION_TABLE
candidates function_names(std::string_view begun)
{
    candidates names;
    constexpr std::size_t prefix = std::string_view("qorin_rpc_").size();
    for (const function_row& row : function_rows())
        names.push_back(
            {std::string(row.name.substr(begun.starts_with("qorin_") ? 0 : prefix)), std::string(row.brief)});
    return names;
}

/// `name=` for each input, and `name=MEMBER` for those of an enumeration once the name stands.
candidates arguments_of(const function_row& function, const std::vector<std::string>& words, std::string_view begun)
{
    candidates arguments;
    for (const parameter_row& parameter : function.parameters)
    {
        const std::string name = std::string(parameter.name) + "=";
        const auto begins = [&name](const std::string& word) { return word.starts_with(name); };
        if (!is_told(parameter) || std::ranges::any_of(words, begins))
            continue;
        if (!begun.starts_with(name))
            arguments.push_back({name, std::string(parameter.doc)});
        else if (parameter.enumeration)
            for (const member_row& member : parameter.enumeration->members)
                arguments.push_back({name + std::string(short_name(*parameter.enumeration, member)), {}});
    }
    return arguments;
}

candidates of_call(const position& at, std::string_view begun)
{
    if (at.words.empty())
        return function_names(begun);
    const function_row* function = find_function(at.words[0]);
    return function ? arguments_of(*function, at.words, begun) : candidates();
}
#endif

candidates candidates_at(const position& at, const std::string& begun)
{
    if (at.awaiting)
        return values_of(*at.awaiting);
    if (begun.starts_with('-'))
        return options_of(*at.subcommand);
    candidates inner;
    if (at.words.empty())
        for (const CLI::App* subcommand : at.subcommand->get_subcommands({}))
            inner.push_back({subcommand->get_name(), subcommand->get_description()});
    if (at.subcommand->get_name() == "result")
        return result_names();
    if (at.subcommand->get_name() == "completion")
        return {{"bash", {}}, {"zsh", {}}, {"fish", {}}};
#ifdef QORIN_HAS_FUNCTION_TABLE
    if (at.subcommand->get_name() == "call")
        return of_call(at, begun);
#endif
    return inner;
}
} // namespace

void print_candidates(const CLI::App& program, std::vector<std::string> words)
{
    const std::string begun = words.empty() ? std::string() : words.back();
    if (!words.empty())
        words.pop_back();
    for (const candidate& found : candidates_at(position_behind(program, words), begun))
        if (found.text.starts_with(begun))
            fmt::print("{}{}{}\n", found.text, found.about.empty() ? "" : "\t", found.about);
}
} // namespace qorin_cli
