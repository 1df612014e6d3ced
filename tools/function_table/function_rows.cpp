#include "tools/function_table/function_rows.h"

#include <algorithm>

namespace qorin_cli
{
namespace
{
template <class Rows>
auto find(const Rows& rows, auto matches) -> decltype(rows.data())
{
    const auto found = std::ranges::find_if(rows, matches);
    return found == rows.end() ? nullptr : &*found;
}
} // namespace

const function_row* find_function(std::string_view name)
{
    for (const std::string_view prefix : {"", "qorin_rpc_", "qorin_"})
        for (const auto& rows : {function_rows(), local_function_rows()})
            if (const function_row* row = find(
                    rows, [name, prefix](const function_row& candidate)
                    { return candidate.name.starts_with(prefix) && candidate.name.substr(prefix.size()) == name; }))
                return row;
    return nullptr;
}

const enumeration_row* find_enumeration(std::string_view name)
{
    return find(enumeration_rows(), [name](const enumeration_row& row) { return row.name == name; });
}

std::string_view member_name(const enumeration_row& enumeration, unsigned int value)
{
    const member_row* row =
        find(enumeration.members, [value](const member_row& member) { return member.value == value; });
    return row ? row->name : std::string_view();
}
} // namespace qorin_cli
