#include "savrent/cc/shared_data_manager.h"

#include <atomic>

#include "savrent/cc/sw_err.h"

namespace savrent::cc
{
namespace
{
std::atomic<bool> g_null_is_reported = false;
}

system_data* get_system_data()
{
    // The flag stands before the report, whose own look at the system data comes through here again.
    if (!g_null_is_reported.exchange(true, std::memory_order_relaxed))
        err::sw_err::handle("shared data is nullptr\n", "shared_data_manager", __LINE__);
    return nullptr;
}
} // namespace savrent::cc
