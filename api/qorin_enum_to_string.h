#ifndef API_QORIN_ENUM_TO_STRING_H
#define API_QORIN_ENUM_TO_STRING_H

#include "savrent/cc/enum_name.h"

namespace savrent::cc
{
/// Fills the table of names. The first connection does it; a further call does nothing.
void qorin_init_enum_to_string();
} // namespace savrent::cc

#endif
