#include <algorithm>
#include <memory>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "tools/function_table/function_rows.h"
#include "tools/qorin/call/docstring.h"
#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
struct functions_request
{
    std::string pattern;
    std::string kind;
    bool json = false;
};

bool has(std::string_view text, const std::string& pattern)
{
    return std::search(text.begin(), text.end(), pattern.begin(), pattern.end(),
                       [](unsigned char a, unsigned char b)
                       { return std::tolower(a) == std::tolower(b); }) != text.end();
}

int print_functions(const functions_request& request)
{
    auto list = nlohmann::ordered_json::array();
    bool found = request.pattern.empty();
    for (const function_row& row : function_rows())
    {
        if (!has(row.name, request.pattern) && !has(row.family, request.pattern) && !has(row.brief, request.pattern))
            continue;
        if (!request.kind.empty() && request.kind != kind_name(row.kind))
            continue;
        found = true;
        if (request.json)
            list.push_back({{"name", row.name},
                            {"family", row.family},
                            {"kind", kind_name(row.kind)},
                            {"usage", usage_of(row)},
                            {"brief", row.brief}});
        else
            fmt::print("{:<62} {:<8} {:<28} {}\n", row.name.substr(std::string_view("qorin_rpc_").size()),
                       kind_name(row.kind), row.family, row.brief);
    }
    if (!found)
        throw failure(fmt::format("no function has to do with \"{}\"", request.pattern));
    if (request.json)
        fmt::print("{}\n", list.dump(2));
    return status_ok;
}
} // namespace

void add_functions(CLI::App& program, action& chosen)
{
    CLI::App* functions = program.add_subcommand("functions", "List the functions that `call` runs.");
    const auto request = std::make_shared<functions_request>();
    functions->add_option("pattern", request->pattern, "What name, family or description has in it");
    functions->add_option("--kind,-k", request->kind, "Only this kind: command, getter or local")
        ->check(CLI::IsMember({"command", "getter", "local"}));
    functions->add_flag("--json", request->json, "Print as JSON");
    functions->callback([request, &chosen] { chosen = [request] { return print_functions(*request); }; });
}
} // namespace qorin_cli
