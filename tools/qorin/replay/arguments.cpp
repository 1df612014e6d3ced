#include "tools/qorin/replay/arguments.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <regex>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace qorin_cli::replay
{
namespace
{
constexpr std::string_view separator = ", ";
constexpr std::string_view null_pointer = "nullptr";

/// What a command reads and writes behind each pointer.
constexpr std::size_t block_size = 128;

std::vector<std::string> split(std::string_view line)
{
    std::vector<std::string> fields;
    for (;;)
    {
        const std::size_t at = line.find(separator);
        fields.emplace_back(line.substr(0, at));
        if (at == std::string_view::npos)
            return fields;
        line.remove_prefix(at + separator.size());
    }
}

bool is_free_text(const parameter_row& parameter)
{
    return parameter.is_text && !parameter.is_output;
}

void refuse_ambiguous(const parameter_row& parameter, const std::string& text)
{
    static const std::regex spelled_out("\\\\x[0-9A-F]{2}");
    if (text.find(',') != std::string::npos && text.find_first_of("()") != std::string::npos)
        throw not_repeatable(
            fmt::format("{} has a comma and a bracket, so that the log does not tell where it ends", parameter.name));
    if (std::regex_search(text, spelled_out))
        throw not_repeatable(fmt::format("{} may hold a control character, or what one is spelled as", parameter.name));
}

template <class Number>
std::uint64_t parsed_number(const parameter_row& parameter, std::string_view text)
{
    Number number{};
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failed != std::errc() || end != text.data() + text.size())
        throw not_repeatable(fmt::format("{} is {}, which is no {}", parameter.name, text, parameter.type));
    std::uint64_t value = 0;
    std::memcpy(&value, &number, sizeof number);
    return value;
}

std::uint64_t parsed_member(const parameter_row& parameter, std::string_view text)
{
    const auto& members = parameter.enumeration->members;
    const auto found = std::ranges::find(members, text, &member_row::name);
    if (found == members.end())
        throw not_repeatable(text == null_pointer
                                 ? fmt::format("{} had a value without a name", parameter.name)
                                 : fmt::format("{} is {}, which is no {}", parameter.name, text, parameter.type));
    return found->value;
}

std::uint64_t parsed_scalar(const parameter_row& parameter, std::string_view text)
{
    // An integer may stand for a member too, and then is written as a number.
    if (parameter.enumeration != nullptr && parameter.type == parameter.enumeration->name)
        return parsed_member(parameter, text);
    switch (parameter.element)
    {
    case value_type::real:
        return parsed_number<double>(parameter, text);
    case value_type::wide:
        return parsed_number<long>(parameter, text);
    case value_type::integer:
        return parsed_number<int>(parameter, text);
    case value_type::natural:
        return parsed_number<unsigned int>(parameter, text);
    case value_type::word:
        return parsed_number<unsigned short>(parameter, text);
    case value_type::byte:
        return parsed_number<unsigned char>(parameter, text);
    case value_type::character:
    {
        // Written as a number, where from_chars() would take the letter.
        const auto number = static_cast<signed char>(parsed_number<short>(parameter, text));
        return static_cast<unsigned char>(number);
    }
    default:
        throw not_repeatable(fmt::format("{} is a {}, which no line tells", parameter.name, parameter.type));
    }
}
} // namespace

std::vector<std::string> split_arguments(const function_row& function, std::string_view line)
{
    const std::size_t count = function.parameters.size();
    std::vector<std::string> fields = split(line);
    if (count == 0 && line.empty())
        return {};
    const auto texts = std::ranges::count_if(function.parameters, is_free_text);
    if (fields.size() < count || (fields.size() > count && texts == 0))
        throw not_repeatable(fmt::format("has {} arguments, and the function takes {}", fields.size(), count));
    if (fields.size() > count && texts > 1)
        throw not_repeatable("has commas in one of several texts, so that the log does not tell in which");
    const auto text = std::ranges::find_if(function.parameters, is_free_text);
    if (fields.size() > count)
    {
        const auto first = fields.begin() + (text - function.parameters.begin());
        const auto last = first + static_cast<std::ptrdiff_t>(fields.size() - count) + 1;
        *first = fmt::format("{}", fmt::join(first, last, separator));
        fields.erase(first + 1, last);
    }
    for (std::size_t i = 0; i < count; ++i)
        if (is_free_text(function.parameters[i]))
            refuse_ambiguous(function.parameters[i], fields[i]);
    return fields;
}

arguments::arguments(const function_row& function, const std::vector<std::string>& texts)
    : values_(texts.size()), memory_(texts.size())
{
    for (std::size_t i = 0; i < texts.size(); ++i)
    {
        const parameter_row& parameter = function.parameters[i];
        if (parameter.is_output)
            memory_[i].resize(std::max<std::size_t>(parameter.room, block_size));
        else if (parameter.element == value_type::callback)
            throw not_repeatable("registers a function of the application");
        else if (is_free_text(parameter))
        {
            if (texts[i] == null_pointer)
                continue;
            memory_[i].resize(std::max(block_size, texts[i].size() + 1));
            std::memcpy(memory_[i].data(), texts[i].data(), texts[i].size());
        }
        else if (parameter.is_pointer)
            throw not_repeatable(fmt::format("sends the array {}, and the log has no elements", parameter.name));
        else
            values_[i] = parsed_scalar(parameter, texts[i]);
    }
}

unsigned int arguments::output(std::size_t index) const
{
    unsigned int value = 0;
    std::memcpy(&value, memory_[index].data(), sizeof value);
    return value;
}

std::vector<void*> arguments::addresses()
{
    std::vector<void*> addresses;
    for (std::size_t i = 0; i < values_.size(); ++i)
    {
        if (!memory_[i].empty())
            values_[i] = reinterpret_cast<std::uintptr_t>(memory_[i].data());
        addresses.push_back(&values_[i]);
    }
    return addresses;
}
} // namespace qorin_cli::replay
