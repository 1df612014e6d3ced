#include "qorin/system.h"

#include <cstring>
#include <string>

#include "api/internal_shared_data.h"
#include "api/system_control_check.h"
#include "savrent/cc/immortal.h"
#include "savrent/cc/sw_ver.h"

namespace
{
std::string control_sw_version()
{
    const protocol::shared_data_t* frame = qorin_internal_get_shared_data();
    if (frame == nullptr)
        return {};
    const char* text = frame->control_sw_version;
    return {text, strnlen(text, sizeof(frame->control_sw_version))};
}
} // namespace

const char* qorin_system_api_version_get(void)
{
    return savrent_static::cc::sw_ver::get();
}

// Taken on the first call and never again, even if that call found the field empty.
const char* qorin_system_control_sw_version_get(void)
{
    static savrent::cc::immortal<std::string> g_ctrl_sw_ver(control_sw_version());
    return g_ctrl_sw_ver->c_str();
}

QORIN_API_RESULT qorin_system_controllable_get(QORIN_SWITCH* controllable)
{
    *controllable = _qorin_system_control_check_impl() == QORIN_API_RESULT_OK ? QORIN_SWITCH_ON : QORIN_SWITCH_OFF;
    return QORIN_API_RESULT_OK;
}
