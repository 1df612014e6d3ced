#ifndef API_QORIN_ENUM_TO_STRING_H
#define API_QORIN_ENUM_TO_STRING_H

namespace savrent::cc
{
/// Fills the table of names. The first connection does it; a further call does nothing.
void qorin_init_enum_to_string();

/**
 * The name of the one enumeration member that has this number.
 *
 * @return a text that stays, or null for a number without a member and before the table is filled. Any thread.
 */
[[nodiscard]] const char* get_string_from_enum_internal(unsigned int value);
} // namespace savrent::cc

#endif
