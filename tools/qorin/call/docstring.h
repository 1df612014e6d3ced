#ifndef TOOLS_QORIN_CALL_DOCSTRING_H
#define TOOLS_QORIN_CALL_DOCSTRING_H

#include <string>
#include <string_view>

#include "tools/function_table/function_rows.h"

namespace qorin_cli
{
[[nodiscard]] std::string_view kind_name(function_kind kind);

/// How the function is called: its name without prefix, and its inputs.
[[nodiscard]] std::string usage_of(const function_row& function);

/// All that the header tells of a function, for a terminal.
[[nodiscard]] std::string docstring_of(const function_row& function);
} // namespace qorin_cli

#endif
