/**
 * @file log.h
 * What an application may do about the library's logs.
 *
 * The library writes two logs for the whole process: the call log, one entry for each call that sends a command or
 * changes a registration, and the event log, one entry for each message and event. The program `qorin_log` reads them.
 * Nothing here needs to be called: the logs start with the first connection and stay open until the process ends.
 *
 * The scrambling of the files is no secrecy: its key is the same in every copy of the library. Who may read them is the
 * matter of the directory and of the process's umask. Texts go into the call log as they are: a line feed in a text
 * begins a new line there, which is then no line of a call.
 */
#ifndef QORIN_LOG_H
#define QORIN_LOG_H

#include "qorin/export.h"

QORIN_API_C_BEGIN

/**
 * Sends the messages of the lower layers to the log transport from now on, when `server.log_trans` is "on" in the
 * configuration; with that off they are dropped. Without this call they go to standard output, when
 * `client.log_print_out` is "on".
 *
 * Local; does not block. Any thread.
 */
QORIN_API void qorin_debug_print_init(void);

/**
 * Takes 1 from the nesting depth of logged calls.
 *
 * Only the outermost of nested calls is logged, and a call that finishes sets the depth to 0 by itself, so an
 * application has no need of this. Local; does not block.
 */
QORIN_API void qorin_internal_func_call_minus(void);

QORIN_API_C_END

#ifdef __cplusplus
#include <string>

namespace qorin_api
{
/**
 * Closes both log files and writes the data file with the current paths.
 *
 * From then on entries collect in memory for the rest of the process, the latest 10,000 of each log. Local; blocks
 * while another thread writes an event log entry. Not to be called while another thread is inside a command.
 */
QORIN_API void logger_release_control();

/**
 * The name of a numbered array variable in the call log's notation.
 *
 * Local; does not block.
 *
 * @param values  an array, or null.
 * @param number  number of the variable.
 * @return "p_qorin_float_t_arr_" and the number; "nullptr" for null.
 */
QORIN_API std::string param_to_string(const double* values, unsigned int number);

/**
 * The same for an array of integers.
 *
 * @param values  an array, or null.
 * @param number  number of the variable.
 * @return "p_uint3_t_arr_" and the number, which is not the prefix that QORIN_API_LOG_DATA_DEF() writes; "nullptr" for
 *         null.
 */
QORIN_API std::string param_to_string(const unsigned int* values, unsigned int number);
} // namespace qorin_api

/**
 * Writes the assignments of an array's elements to the call log, as one record of one line each.
 *
 * Written only from within the outermost logged call. Local.
 *
 * @param count   number of elements.
 * @param values  `count` elements.
 * @param number  number of the array variable.
 */
QORIN_API void QORIN_API_LOG_DATA_DEF(unsigned int count, const double* values, unsigned int number);

/**
 * The same for an array of integers.
 *
 * @param count   number of elements.
 * @param values  `count` elements.
 * @param number  number of the array variable.
 */
QORIN_API void QORIN_API_LOG_DATA_DEF(unsigned int count, const unsigned int* values, unsigned int number);
#endif

#endif
