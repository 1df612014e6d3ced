#ifndef SAVRENT_CC_ENUM_NAME_H
#define SAVRENT_CC_ENUM_NAME_H

namespace savrent::cc
{
/**
 * The name of the one enumeration member that has this number.
 *
 * The layer above answers, which owns the table of names.
 *
 * @return a text that stays, or null for a number without a member and before the table is filled. Any thread.
 */
[[nodiscard]] const char* get_string_from_enum_internal(unsigned int value);
} // namespace savrent::cc

#endif
