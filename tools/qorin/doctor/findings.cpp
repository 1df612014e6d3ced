#include "tools/qorin/doctor/findings.h"

#include <algorithm>
#include <iterator>

#include <fmt/color.h>
#include <fmt/format.h>
#include <fmt/ranges.h>

namespace qorin_cli::doctor
{
namespace
{
const char* name_of(verdict judged)
{
    constexpr const char* names[] = {"ok", "note", "warning", "error"};
    return names[static_cast<std::size_t>(judged)];
}

const char* name_of(origin blamed)
{
    constexpr const char* names[] = {"none", "network", "machine", "control box", "setup"};
    return names[static_cast<std::size_t>(blamed)];
}

std::string shown(verdict judged, bool coloured)
{
    constexpr fmt::terminal_color colours[] = {fmt::terminal_color::green, fmt::terminal_color::cyan,
                                               fmt::terminal_color::yellow, fmt::terminal_color::red};
    const std::string padded = fmt::format("{:7}", name_of(judged));
    return coloured ? fmt::format(fmt::fg(colours[static_cast<std::size_t>(judged)]), "{}", padded) : padded;
}

/// The checks that blame an origin, each once.
std::vector<std::string> checks_that_blame(origin blamed, const findings& found)
{
    std::vector<std::string> checks;
    for (const finding& one : found)
        if (one.blamed == blamed && one.judged >= verdict::warning &&
            std::find(checks.begin(), checks.end(), one.check) == checks.end())
            checks.push_back(one.check);
    return checks;
}
} // namespace

verdict worst_of(const findings& found)
{
    verdict worst = verdict::ok;
    for (const finding& one : found)
        worst = std::max(worst, one.judged);
    return worst;
}

std::string table_of(const findings& found, bool coloured)
{
    std::size_t checks = 0;
    std::size_t values = 0;
    for (const finding& one : found)
    {
        checks = std::max(checks, one.check.size());
        values = std::max(values, one.value.size());
    }
    std::string text;
    for (const finding& one : found)
        fmt::format_to(std::back_inserter(text), "{:{}}  {}  {:{}}  {}\n", one.check, checks,
                       shown(one.judged, coloured), one.value, values, one.words);
    text += '\n';
    if (worst_of(found) < verdict::warning)
        return text + "Nothing found that slows or stops an application.\n";
    for (const origin blamed : {origin::network, origin::machine, origin::control_box, origin::setup, origin::none})
    {
        const auto blaming = checks_that_blame(blamed, found);
        if (blaming.empty())
            continue;
        const std::string whose =
            blamed == origin::none ? "Not told whose doing it is" : fmt::format("The {} is the cause", name_of(blamed));
        text += fmt::format("{}: {}.\n", whose, fmt::join(blaming, ", "));
    }
    return text;
}

nlohmann::json json_of(const findings& found)
{
    nlohmann::json list = nlohmann::json::array();
    for (const finding& one : found)
        list.push_back({{"check", one.check},
                        {"value", one.value},
                        {"verdict", name_of(one.judged)},
                        {"cause", name_of(one.blamed)},
                        {"words", one.words},
                        {"numbers", one.numbers}});
    return {{"verdict", name_of(worst_of(found))}, {"findings", list}};
}
} // namespace qorin_cli::doctor
