#include "qorin/system.h"

#include <atomic>
#include <cstring>
#include <string>

#include "api/internal_shared_data.h"
#include "api/system_control_check.h"
#include "savrent/cc/immortal.h"
#include "savrent/cc/sw_ver.h"

namespace
{
std::string control_sw_version(const protocol::shared_data_t& frame)
{
    const char* text = frame.control_sw_version;
    return {text, strnlen(text, sizeof(frame.control_sw_version))};
}
} // namespace

const char* qorin_system_api_version_get(void)
{
    return savrent_static::cc::sw_ver::get();
}

// Taken from the first frame that is there to ask and never again, even if its field was empty.
const char* qorin_system_control_sw_version_get(void)
{
    static std::atomic<bool> is_init = false;
    const protocol::shared_data_t* frame = qorin_internal_get_shared_data();
    if (frame == nullptr && !is_init.load(std::memory_order_acquire))
        return nullptr;
    static savrent::cc::immortal<std::string> g_ctrl_sw_ver(control_sw_version(*frame));
    is_init.store(true, std::memory_order_release);
    return g_ctrl_sw_ver->c_str();
}

QORIN_API_RESULT qorin_system_controllable_get(QORIN_SWITCH* controllable)
{
    *controllable = _qorin_system_control_check_impl() == QORIN_API_RESULT_OK ? QORIN_SWITCH_ON : QORIN_SWITCH_OFF;
    return QORIN_API_RESULT_OK;
}
