#include "simulator/scene/control_line.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <vector>

#include "simulator/printable.h"
#include "simulator/scene/scene.h"

namespace cbox_simulator
{
namespace
{
std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r";
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

/// The first word, and what follows it.
std::pair<std::string_view, std::string_view> split_word(std::string_view text)
{
    const auto end = std::min(text.find_first_of(" \t"), text.size());
    return {text.substr(0, end), trimmed(text.substr(end))};
}

struct assignment
{
    std::string_view left;
    std::string_view right;
};

assignment assignment_of(std::string_view text)
{
    const auto sign = text.find('=');
    if (sign == text.npos)
        throw std::invalid_argument("a = is missing");
    return {trimmed(text.substr(0, sign)), trimmed(text.substr(sign + 1))};
}

double number_of(std::string_view word)
{
    const auto* end = word.data() + word.size();
    double number = 0;
    std::uint32_t bits = 0;
    const bool hexadecimal = word.starts_with("0x");
    const auto [stop, error] =
        hexadecimal ? std::from_chars(word.data() + 2, end, bits, 16) : std::from_chars(word.data(), end, number);
    if (error != std::errc() || stop != end)
        throw std::invalid_argument(fmt::format("{} is no number", printable(word)));
    return hexadecimal ? bits : number;
}

std::vector<double> numbers_of(std::string_view text)
{
    std::vector<double> numbers;
    while (!text.empty())
    {
        const auto [word, rest] = split_word(text);
        numbers.push_back(number_of(word));
        text = rest;
    }
    return numbers;
}

std::string perform(box_model& model, std::string_view line)
{
    const auto [verb, rest] = split_word(trimmed(line));
    auto& world = model.world();
    if (verb == "set")
    {
        const auto [point, values] = assignment_of(rest);
        world.set(point, numbers_of(values));
    }
    else if (verb == "get")
        return fmt::format("ok {}", fmt::join(world.get(rest), " "));
    else if (verb == "name")
    {
        const auto [name, point] = assignment_of(rest);
        world.name(name, point);
    }
    else if (verb == "wire")
    {
        const auto [input, output] = assignment_of(rest);
        world.connect(output, input);
    }
    else if (verb == "unwire")
        world.disconnect(rest);
    else if (verb == "save")
    {
        if (rest.empty())
            throw std::invalid_argument("the name of a file is missing");
        save_scene(model, std::string(rest));
    }
    else if (verb == "points" && rest.empty())
        return "ok " + world.point_list();
    else
        throw std::invalid_argument(
            fmt::format("{} is none of set, get, name, wire, unwire, save, points", printable(verb)));
    return "ok";
}
} // namespace

std::string answer_control_line(box_model& model, std::string_view line)
{
    try
    {
        return perform(model, line);
    }
    catch (const std::invalid_argument& error)
    {
        return fmt::format("error: {}", error.what());
    }
}
} // namespace cbox_simulator
