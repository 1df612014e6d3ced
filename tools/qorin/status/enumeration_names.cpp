#include "tools/qorin/status/enumeration_names.h"

#include <algorithm>
#include <charconv>
#include <unordered_map>

#include "qorin/enumerations.h"
#include "qorin/event_codes.h"

namespace qorin_cli
{
namespace
{
#define MEMBER(name) {name, #name},
const std::unordered_map<unsigned int, std::string_view> members = {
#include "members.inc"
};
#undef MEMBER
} // namespace

std::string member_name(unsigned int value, std::string_view beginning)
{
    const auto found = members.find(value);
    if (found == members.end())
        return value == 0 ? "" : std::to_string(value);
    std::string_view name = found->second;
    if (name.starts_with(beginning))
        name.remove_prefix(beginning.size());
    return std::string(name);
}

unsigned int member_value(std::string_view name, std::string_view beginning)
{
    const auto is_meant = [&](const auto& member)
    { return member.second.starts_with(beginning) && member.second.substr(beginning.size()) == name; };
    if (const auto found = std::ranges::find_if(members, is_meant); found != members.end())
        return found->first;
    unsigned int value = 0;
    std::from_chars(name.data(), name.data() + name.size(), value);
    return value;
}
} // namespace qorin_cli
