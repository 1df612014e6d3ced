#include "tools/qorin/call/value_text.h"

#include <algorithm>
#include <charconv>
#include <concepts>
#include <cstring>
#include <limits>
#include <optional>
#include <type_traits>

#include "tools/qorin/nearest_name.h"
#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
/// Calls `with` for the C++ type of a value.
template <class With>
auto as_type(value_type type, With with)
{
    switch (type)
    {
    case value_type::boolean:
        return with(std::type_identity<bool>());
    case value_type::character:
        return with(std::type_identity<signed char>());
    case value_type::byte:
        return with(std::type_identity<unsigned char>());
    case value_type::word:
        return with(std::type_identity<unsigned short>());
    case value_type::integer:
        return with(std::type_identity<int>());
    case value_type::wide:
        return with(std::type_identity<long>());
    case value_type::real:
        return with(std::type_identity<double>());
    default:
        return with(std::type_identity<unsigned int>());
    }
}

template <class Value>
std::optional<Value> whole_number(std::string_view text, int base)
{
    Value value{};
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), value, base);
    return failed == std::errc() && end == text.data() + text.size() ? std::optional(value) : std::nullopt;
}

std::optional<bool> parse(std::string_view text, std::type_identity<bool> /*type*/)
{
    for (const std::string_view yes : {"true", "on", "1"})
        if (text == yes)
            return true;
    for (const std::string_view no : {"false", "off", "0"})
        if (text == no)
            return false;
    return std::nullopt;
}

std::optional<double> parse(std::string_view text, std::type_identity<double> /*type*/)
{
    double value = 0;
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), value);
    return failed == std::errc() && end == text.data() + text.size() ? std::optional(value) : std::nullopt;
}

template <std::integral Value>
std::optional<Value> parse(std::string_view text, std::type_identity<Value> /*type*/)
{
    return text.starts_with("0x") ? whole_number<Value>(text.substr(2), 16) : whole_number<Value>(text, 10);
}

std::string what_it_takes(value_type type)
{
    return as_type(type,
                   []<class Value>(std::type_identity<Value>) -> std::string
                   {
                       if constexpr (std::same_as<Value, bool>)
                           return "true or false";
                       else if constexpr (std::floating_point<Value>)
                           return "a number";
                       else
                           return fmt::format("a whole number from {} to {}", std::numeric_limits<Value>::min(),
                                              std::numeric_limits<Value>::max());
                   });
}

std::string upper_case(std::string_view text)
{
    std::string upper(text);
    std::ranges::transform(upper, upper.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return upper;
}

std::string listed(const std::vector<std::string>& names)
{
    return fmt::format("{}", fmt::join(names, ", "));
}

std::vector<std::string> short_names(const enumeration_row& enumeration)
{
    std::vector<std::string> names;
    for (const member_row& member : enumeration.members)
        names.emplace_back(short_name(enumeration, member));
    return names;
}

[[noreturn]] void refuse_member(const parameter_row& parameter, std::string_view text,
                                const std::vector<std::string>& candidates)
{
    const enumeration_row& enumeration = *parameter.enumeration;
    if (!candidates.empty())
        throw failure(fmt::format("{}: {} may be {}", parameter.name, text, listed(candidates)), status_usage);
    std::vector<std::string> names = short_names(enumeration);
    if (constexpr std::size_t many = 12; names.size() > many)
        names = nearest_names(upper_case(text), names, 3);
    throw failure(fmt::format("{}: {} is no {}{}{}", parameter.name, text, enumeration.name, names.empty() ? "" : ": ",
                              listed(names)),
                  status_usage);
}

/// The member that is called so, or the only one whose name ends so, behind an underscore.
std::optional<unsigned int> find_member(const parameter_row& parameter, std::string_view text)
{
    const std::string name = upper_case(text);
    std::vector<std::string> candidates;
    std::optional<unsigned int> found;
    for (const member_row& member : parameter.enumeration->members)
    {
        if (member.name == name || short_name(*parameter.enumeration, member) == name)
            return member.value;
        if (member.name.ends_with("_" + name))
        {
            candidates.emplace_back(short_name(*parameter.enumeration, member));
            found = member.value;
        }
    }
    if (candidates.size() > 1)
        refuse_member(parameter, text, candidates);
    return found;
}
} // namespace

std::string_view short_name(const enumeration_row& enumeration, const member_row& member)
{
    std::size_t common = enumeration.members.size() > 1 ? std::string_view::npos : 0;
    for (const member_row& other : enumeration.members)
        common = std::min<std::size_t>(
            common, static_cast<std::size_t>(std::ranges::mismatch(other.name, enumeration.members[0].name).in1 -
                                             other.name.begin()));
    const std::size_t underscore = enumeration.members[0].name.substr(0, common).rfind('_');
    return underscore == std::string_view::npos ? member.name : member.name.substr(underscore + 1);
}

std::size_t size_of(value_type type)
{
    return as_type(type, []<class Value>(std::type_identity<Value>) { return sizeof(Value); });
}

void store_value(const parameter_row& parameter, std::string_view text, void* memory)
{
    if (parameter.enumeration)
        if (const auto member = find_member(parameter, text))
        {
            std::memcpy(memory, &*member, sizeof *member);
            return;
        }
    const bool stored = as_type(parameter.element,
                                [text, memory]<class Value>(std::type_identity<Value> type)
                                {
                                    const std::optional<Value> value = parse(text, type);
                                    if (value)
                                        std::memcpy(memory, &*value, sizeof *value);
                                    return value.has_value();
                                });
    if (!stored && parameter.enumeration)
        refuse_member(parameter, text, {});
    if (!stored)
        throw failure(fmt::format("{}: \"{}\" is not {}", parameter.name, text, what_it_takes(parameter.element)),
                      status_usage);
}

nlohmann::ordered_json load_value(const parameter_row& parameter, const void* memory)
{
    return as_type(parameter.element,
                   [&parameter, memory]<class Value>(std::type_identity<Value>) -> nlohmann::ordered_json
                   {
                       if constexpr (std::same_as<Value, bool>)
                           return *static_cast<const unsigned char*>(memory) != 0;
                       Value value{};
                       std::memcpy(&value, memory, sizeof value);
                       if constexpr (std::same_as<Value, unsigned int>)
                           if (parameter.enumeration)
                               if (const auto name = member_name(*parameter.enumeration, value); !name.empty())
                                   return std::string(name);
                       return value;
                   });
}
} // namespace qorin_cli
