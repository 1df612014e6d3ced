#ifndef SAVRENT_CC_DEBUG_PRINT_H
#define SAVRENT_CC_DEBUG_PRINT_H

#include <cstdarg>

#include "qorin/enumerations.h"

/**
 * Prints a message of the lower layers (sockets, threads, configuration).
 *
 * Where it goes is the sink's business, so that everything below the sink may print. Never throws. Any thread.
 */
void QORIN_DEBUG_PRINT(QORIN_LOG_TYPE type, const char* format, ...) __attribute__((format(printf, 2, 3)));

namespace savrent::cc
{
/// Takes a message with its arguments. Any thread; must not throw.
using debug_print_sink = void (*)(QORIN_LOG_TYPE type, const char* format, std::va_list arguments);

/// Messages go to `sink` from now on; before that they go nowhere.
void set_debug_print_sink(debug_print_sink sink);
} // namespace savrent::cc

#endif
