#include "tools/qorin/status/enumeration_names.h"

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
} // namespace qorin_cli
