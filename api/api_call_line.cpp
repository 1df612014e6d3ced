#include "api/api_call_line.h"

#include <atomic>
#include <chrono>

#include "api/api_call_log_param_to_string.h"
#include "api/api_call_logger.h"
#include "savrent/cc/os_util.h"

namespace
{
std::atomic<int> g_func_call_count = 0;

template <class T>
void write_assignments(const char* variable, unsigned int count, const T* values, unsigned int number)
{
    if (qorin_internal_get_func_call_count() != 1)
        return;
    std::string record = "\n";
    for (unsigned int i = 0; i < count; ++i)
        record += variable + std::to_string(number) + "[" + std::to_string(i) +
                  "] = " + qorin_api::param_to_string(values[i]) + ";\n";
    qorin_api::write_call_record_text(record);
}
} // namespace

void qorin_internal_func_call_plus()
{
    g_func_call_count.fetch_add(1, std::memory_order_relaxed);
}

void qorin_internal_func_call_minus(void)
{
    g_func_call_count.fetch_sub(1, std::memory_order_relaxed);
}

void qorin_internal_func_call_set_zero()
{
    g_func_call_count.store(0, std::memory_order_relaxed);
}

int qorin_internal_get_func_call_count()
{
    return g_func_call_count.load(std::memory_order_relaxed);
}

void QORIN_API_LOG_BEGIN_INTERNAL()
{
    qorin_internal_func_call_plus();
    if (qorin_internal_get_func_call_count() != 1)
        return;
    qorin_api::logger_count_call();
    qorin_api::logger_write_entry({qorin_api::call_time_record(), qorin_api::call_stamp_record()});
}

void QORIN_API_LOG_DATA_DEF(unsigned int count, const double* values, unsigned int number)
{
    write_assignments("p_qorin_float_t_arr_", count, values, number);
}

void QORIN_API_LOG_DATA_DEF(unsigned int count, const unsigned int* values, unsigned int number)
{
    write_assignments("p_uint32_t_arr_", count, values, number);
}

namespace qorin_api
{
std::string call_time_record()
{
    std::string now;
    savrent::cc::os_util::get_current_time_string(now);
    std::string record;
    record.reserve(48);
    record += "/* [now]:";
    record += now;
    record += ", ";
    return record;
}

std::string call_stamp_record()
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const auto stamp = std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
    std::string record;
    record.reserve(48);
    record += "[timestamp]:";
    record += std::to_string(stamp);
    record += " */ ";
    return record;
}

std::string call_record_begin(const char* name)
{
    std::string record;
    record.reserve(256);
    record += '[';
    record += savrent::cc::os_util::this_thread_id_string();
    record += "] ";
    record += name;
    record += '(';
    return record;
}

void write_call_record_text(const std::string& record)
{
    logger_write_entry({record});
}
} // namespace qorin_api
