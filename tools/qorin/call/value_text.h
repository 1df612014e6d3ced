#ifndef TOOLS_QORIN_CALL_VALUE_TEXT_H
#define TOOLS_QORIN_CALL_VALUE_TEXT_H

#include <cstddef>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "tools/function_table/function_rows.h"

namespace qorin_cli
{
/// Bytes of a value in memory.
[[nodiscard]] std::size_t size_of(value_type type);

/// Reads one value of a parameter from what the user wrote and stores it. A member of an enumeration is its name, the
/// end of it where that is unique (`ON`), or a number.
/// @throws failure of status_usage with a line that names the parameter and what it takes.
void store_value(const parameter_row& parameter, std::string_view text, void* memory);

/// A value of a parameter as it is in memory, with the name of a member in place of its number.
[[nodiscard]] nlohmann::ordered_json load_value(const parameter_row& parameter, const void* memory);

/// A member without what it has in common with the others of its enumeration: `ON`.
[[nodiscard]] std::string_view short_name(const enumeration_row& enumeration, const member_row& member);
} // namespace qorin_cli

#endif
