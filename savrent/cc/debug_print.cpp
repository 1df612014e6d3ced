#include "savrent/cc/debug_print.h"

#include <atomic>

namespace
{
std::atomic<savrent::cc::debug_print_sink> g_sink = nullptr;
}

void QORIN_DEBUG_PRINT(QORIN_LOG_TYPE type, const char* format, ...)
{
    const savrent::cc::debug_print_sink sink = g_sink.load(std::memory_order_relaxed);
    if (sink == nullptr)
        return;
    std::va_list arguments;
    va_start(arguments, format);
    sink(type, format, arguments);
    va_end(arguments);
}

void savrent::cc::set_debug_print_sink(debug_print_sink sink)
{
    g_sink.store(sink, std::memory_order_relaxed);
}
