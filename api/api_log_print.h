#ifndef API_API_LOG_PRINT_H
#define API_API_LOG_PRINT_H

#include "qorin/enumerations.h"

/**
 * Writes a message of the API layer to the event log, and to standard output when `client.log_print_out` is "on", which
 * is read afresh on every call.
 *
 * A message of more than 1,023 bytes ends the process. A format of 512 characters or more does not reach the file.
 * Takes g_event_log_mtx. Any thread.
 */
void QORIN_API_LOG_PRINT(QORIN_LOG_TYPE type, const char* format, ...) __attribute__((format(printf, 2, 3)));

#endif
