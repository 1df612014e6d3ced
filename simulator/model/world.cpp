#include "simulator/model/world.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <stdexcept>

#include <fmt/format.h>

#include "simulator/printable.h"

namespace cbox_simulator
{
namespace
{
[[noreturn]] void refuse(const std::string& why)
{
    throw std::invalid_argument(why);
}

std::vector<std::string_view> words_of(std::string_view text)
{
    std::vector<std::string_view> words;
    while (true)
    {
        text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
        if (text.empty())
            return words;
        const auto end = std::min(text.find(' '), text.size());
        words.push_back(text.substr(0, end));
        text.remove_prefix(end);
    }
}

const point_kind* find_kind(std::string_view name)
{
    const auto kinds = point_kinds();
    const auto found = std::ranges::find(kinds, name, &point_kind::name);
    return found == kinds.end() ? nullptr : &*found;
}

std::string usage_of(const point_kind& kind)
{
    std::string usage(kind.name);
    for (std::size_t i = 0; i < kind.index_count(); ++i)
        usage += fmt::format(" {}(0-{})", kind.index_names[i], kind.index_limits[i] - 1);
    return usage;
}

std::string values_of(const point_kind& kind)
{
    switch (kind.carries)
    {
    case point_value::bit:
        return "0 or 1";
    case point_value::integer:
        return fmt::format("a whole number from 0 to {}", kind.limit);
    case point_value::real:
        return "a finite number";
    case point_value::axes:
        return "6 finite numbers";
    case point_value::bytes:
        break;
    }
    return fmt::format("1 to {} bytes from 0 to 255", kind.limit);
}

bool is_whole_to(double value, double greatest)
{
    return value >= 0 && value <= greatest && std::floor(value) == value;
}

bool can_carry(const point_kind& kind, std::span<const double> values)
{
    const auto finite = [](double value) { return std::isfinite(value); };
    switch (kind.carries)
    {
    case point_value::bit:
    case point_value::integer:
        return values.size() == 1 && is_whole_to(values.front(), kind.limit);
    case point_value::real:
        return values.size() == 1 && finite(values.front());
    case point_value::axes:
        return values.size() == 6 && std::ranges::all_of(values, finite);
    case point_value::bytes:
        break;
    }
    return !values.empty() && values.size() <= kind.limit &&
           std::ranges::all_of(values, [](double value) { return is_whole_to(value, 255); });
}

bool is_word(std::string_view name)
{
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    constexpr std::string_view others = "0123456789_-.";
    return !name.empty() && name.size() <= 64 && letters.find(name.front()) != letters.npos &&
           std::ranges::all_of(name, [&](char c)
                               { return letters.find(c) != letters.npos || others.find(c) != others.npos; });
}
} // namespace

void world::set(std::string_view text, std::span<const double> values)
{
    const auto which = find(text);
    if (!which.kind->is_input())
        refuse(fmt::format("{} is an output: the box sets it", text_of(which)));
    if (!can_carry(*which.kind, values))
        refuse(fmt::format("{} takes {}", text_of(which), values_of(*which.kind)));
    require(which);
    if (const auto* held = wire_to(which))
        refuse(fmt::format("{} is wired to {}", text_of(which), text_of(held->output)));
    if (const auto result = which.kind->set(parts_, which.index, values); result != QORIN_API_RESULT_OK)
        refuse(fmt::format("{} cannot be set now (result {})", text_of(which), static_cast<unsigned>(result)));
}

std::vector<double> world::get(std::string_view text) const
{
    const auto which = find(text);
    require(which);
    std::vector<double> values;
    which.kind->get(parts_, which.index, values);
    return values;
}

void world::name(std::string_view name, std::string_view text)
{
    if (!is_word(name) || find_kind(name))
        refuse(fmt::format("{} cannot be a name: one word of letters, digits, _, - and . that is no kind of point",
                           printable(name)));
    if (names_.size() >= 1000)
        refuse("there are 1000 names already");
    names_[std::string(name)] = text_of(find(text));
}

void world::connect(std::string_view output, std::string_view input)
{
    const wire made{find(output), find(input)};
    if (made.output.kind->is_input())
        refuse(fmt::format("{} is no output", text_of(made.output)));
    if (!made.input.kind->is_input())
        refuse(fmt::format("{} is no input", text_of(made.input)));
    if (made.output.kind->carries != made.input.kind->carries || made.output.kind->limit > made.input.kind->limit)
        refuse(fmt::format("{} does not carry what {} has", text_of(made.input), text_of(made.output)));
    if (wire_to(made.input))
        refuse(fmt::format("{} has a wire", text_of(made.input)));
    wires_.push_back(made);
}

void world::disconnect(std::string_view input)
{
    const auto which = find(input);
    if (std::erase_if(wires_, [&](const wire& each) { return each.input == which; }) == 0)
        refuse(fmt::format("{} has no wire", text_of(which)));
}

std::map<std::string, std::string> world::wires() const
{
    std::map<std::string, std::string> told;
    for (const auto& each : wires_)
        told[text_of(each.input)] = text_of(each.output);
    return told;
}

void world::for_each_input(const std::function<void(const std::string&, const std::vector<double>&, bool)>& use) const
{
    std::vector<double> values;
    for (const auto& kind : point_kinds())
    {
        for (point each{&kind, {}}; kind.is_input() && each.index[0] < kind.index_limits[0]; ++each.index[0])
        {
            for (each.index[1] = 0; each.index[1] < kind.index_limits[1]; ++each.index[1])
            {
                if (!is_there(each) || wire_to(each))
                    continue;
                kind.get(parts_, each.index, values);
                use(text_of(each), values, std::ranges::any_of(values, [&](double v) { return v != kind.rest; }));
            }
        }
    }
}

void world::run_cycle()
{
    for (const auto& each : wires_)
        if (carries_news(each))
            static_cast<void>(each.input.kind->set(parts_, each.input.index, at_output_));
}

bool world::is_settled() const
{
    return std::ranges::none_of(wires_, [this](const wire& each) { return carries_news(each); });
}

std::string world::point_list()
{
    std::string list;
    for (const auto& kind : point_kinds())
        list += fmt::format("{}{}", list.empty() ? "" : "; ", usage_of(kind));
    return list;
}

world::point world::find(std::string_view text) const
{
    auto words = words_of(text);
    if (words.empty())
        refuse("a point is missing");
    if (const auto named = names_.find(words.front()); named != names_.end() && words.size() == 1)
        words = words_of(named->second);
    const auto* kind = find_kind(words.front());
    if (!kind)
        refuse(fmt::format("{} is no kind of point, and no name", printable(words.front())));
    point found{kind, {}};
    bool good = words.size() == 1 + kind->index_count();
    for (std::size_t i = 0; good && i < kind->index_count(); ++i)
    {
        const auto word = words[i + 1];
        const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), found.index[i]);
        good = error == std::errc() && end == word.data() + word.size() && found.index[i] < kind->index_limits[i];
    }
    if (!good)
        refuse(fmt::format("{} is no point: {}", printable(text), usage_of(*kind)));
    return found;
}

std::string world::text_of(const point& which)
{
    std::string text(which.kind->name);
    for (std::size_t i = 0; i < which.kind->index_count(); ++i)
        text += fmt::format(" {}", which.index[i]);
    return text;
}

bool world::is_there(const point& which) const
{
    return !which.kind->is_of_robot() || parts_.robots.exists(which.index[0]);
}

void world::require(const point& which) const
{
    if (!is_there(which))
        refuse(fmt::format("there is no robot {}", which.index[0]));
}

const world::wire* world::wire_to(const point& input) const
{
    const auto found = std::ranges::find(wires_, input, &wire::input);
    return found == wires_.end() ? nullptr : &*found;
}

bool world::carries_news(const wire& each) const
{
    if (!is_there(each.output) || !is_there(each.input))
        return false;
    each.output.kind->get(parts_, each.output.index, at_output_);
    each.input.kind->get(parts_, each.input.index, at_input_);
    at_input_.resize(std::min(at_input_.size(), at_output_.size()));
    return at_input_ != at_output_;
}
} // namespace cbox_simulator
