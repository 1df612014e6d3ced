#ifndef API_API_CALL_LINE_H
#define API_API_CALL_LINE_H

#include <string>

#include "qorin/log.h"

/**
 * The entries of the call log: a comment with time and stamp, then the call as a line of source.
 *
 * All of this runs under the call lock.
 */

/// First step of every logged call: depth, file rotation, time and stamp records. Only depth 1 is logged.
void QORIN_API_LOG_BEGIN_INTERNAL();

/// The nesting depth of logged calls. A call that finishes sets it to 0, also when it was a nested one.
void qorin_internal_func_call_plus();
void qorin_internal_func_call_set_zero();
[[nodiscard]] int qorin_internal_get_func_call_count();

namespace qorin_api
{
/// "/* [now]:<local time>, " and "[timestamp]:<milliseconds> */ ", from one reading of the clock each.
[[nodiscard]] std::string call_time_record();
[[nodiscard]] std::string call_stamp_record();

/// "[<thread>] name(", the beginning of a call record.
[[nodiscard]] std::string call_record_begin(const char* name);

void write_call_record_text(const std::string& record);
} // namespace qorin_api

/// Writes the call record of `name` with its argument texts; only at depth 1.
template <class... Texts>
void QORIN_API_LOG_FUNC_CALL(const char* name, const Texts&... texts)
{
    if (qorin_internal_get_func_call_count() != 1)
        return;
    std::string record = qorin_api::call_record_begin(name);
    [[maybe_unused]] const char* separator = "";
    ((record += separator, record += texts, separator = ", "), ...);
    record += ");\n";
    qorin_api::write_call_record_text(record);
}

#endif
