#ifndef TOOLS_QORIN_STATUS_ENUMERATION_NAMES_H
#define TOOLS_QORIN_STATUS_ENUMERATION_NAMES_H

#include <string>
#include <string_view>

namespace qorin_cli
{
/**
 * The name of a member of an enumeration of the interface without what all members of it begin with: "ON" of
 * QORIN_SWITCH_ON and "QORIN_SWITCH_". A value without a name is its number; 0, which is no member, is empty.
 */
[[nodiscard]] std::string member_name(unsigned int value, std::string_view beginning);

/// The value that has such a name, or is such a number; 0 where there is none.
[[nodiscard]] unsigned int member_value(std::string_view name, std::string_view beginning);
} // namespace qorin_cli

#endif
