#include <algorithm>
#include <memory>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include "tools/qorin/nearest_name.h"
#include "tools/qorin/result_texts.h"
#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
struct result_request
{
    std::string wanted;
    bool json = false;
};

bool is_called(const result_text& text, const std::string& wanted)
{
    if (std::ranges::all_of(wanted, [](unsigned char c) { return std::isdigit(c) != 0; }))
        return wanted == std::to_string(text.code);
    return wanted == text.name || text.name.ends_with("_" + wanted);
}

[[noreturn]] void refuse(const std::string& wanted)
{
    std::vector<std::string> names;
    for (const result_text& text : result_texts())
        names.push_back(text.name);
    const std::vector<std::string> near = nearest_names(wanted, names, 3);
    throw failure(
        fmt::format("no result is called {}{}{}", wanted, near.empty() ? "" : "; perhaps ", fmt::join(near, ", ")),
        status_usage);
}

int print_result(result_request request)
{
    std::ranges::transform(request.wanted, request.wanted.begin(),
                           [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    bool found = false;
    auto list = nlohmann::ordered_json::array();
    for (const result_text& text : result_texts())
    {
        if (!is_called(text, request.wanted))
            continue;
        if (request.json)
            list.push_back({{"name", text.name},
                            {"code", text.code},
                            {"description", text.description},
                            {"values", text.values},
                            {"advice", text.advice}});
        else
        {
            fmt::print("{}{} ({})\n  {}\n", found ? "\n" : "", text.name, text.code, text.description);
            if (!text.values.empty())
                fmt::print("  values: {}\n", text.values);
            fmt::print("  advice: {}\n", text.advice);
        }
        found = true;
    }
    if (!found)
        refuse(request.wanted);
    if (request.json)
        fmt::print("{}\n", list.dump(2));
    return status_ok;
}
} // namespace

void add_result(CLI::App& program, action& chosen)
{
    CLI::App* result = program.add_subcommand("result", "Tell what a result or an event that reports trouble means.");
    const auto request = std::make_shared<result_request>();
    result->add_option("code", request->wanted, "Code, name, or the end of a name")->required();
    result->add_flag("--json", request->json, "Print as JSON");
    result->callback([request, &chosen] { chosen = [request] { return print_result(*request); }; });
}
} // namespace qorin_cli
