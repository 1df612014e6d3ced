#ifndef SAVRENT_CC_DEBUG_PRINT_H
#define SAVRENT_CC_DEBUG_PRINT_H

#include "qorin/enumerations.h"

/**
 * Prints a message of the lower layers (sockets, threads, configuration).
 *
 * Until qorin_debug_print_init() has run, the message goes to standard output when `client.log_print_out` is "on", cut
 * at 640 bytes, with neither time nor type. Afterwards it goes to the log transport when `server.log_trans` is "on".
 * Both keys are read on first use only. Never throws. Any thread.
 */
void QORIN_DEBUG_PRINT(QORIN_LOG_TYPE type, const char* format, ...) __attribute__((format(printf, 2, 3)));

#endif
