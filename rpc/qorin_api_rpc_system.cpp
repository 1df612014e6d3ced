#include "qorin/system.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::command;
using qorin_api_rpc::from_mirror;

QORIN_API_RESULT qorin_rpc_system_destroy(unsigned int cbox_id)
{
    return command<"qorin_system_destroy">(cbox_id);
}

QORIN_API_RESULT qorin_rpc_system_control_take(unsigned int cbox_id)
{
    return command<"qorin_system_control_take">(cbox_id);
}

QORIN_API_RESULT qorin_rpc_system_control_release(unsigned int cbox_id)
{
    return command<"qorin_system_control_release">(cbox_id);
}

QORIN_API_RESULT qorin_rpc_system_controllable_get(unsigned int cbox_id, QORIN_SWITCH* controllable)
{
    return command<"qorin_system_controllable_get">(cbox_id, controllable);
}

QORIN_API_RESULT qorin_rpc_system_reset(unsigned int cbox_id)
{
    return command<"qorin_system_reset">(cbox_id);
}

QORIN_API_RESULT qorin_rpc_system_control_sw_exit(unsigned int cbox_id)
{
    return command<"qorin_system_control_sw_exit">(cbox_id);
}

const char* qorin_rpc_system_api_version_get(unsigned int cbox_id)
{
    return from_mirror(cbox_id, qorin_system_api_version_get);
}

const char* qorin_rpc_system_control_sw_version_get(unsigned int cbox_id)
{
    return from_mirror(cbox_id, qorin_system_control_sw_version_get);
}

QORIN_API_RESULT qorin_rpc_system_create(unsigned int /*cbox_id*/, ...)
{
    return QORIN_API_RESULT_ERROR_NO_SUPPORT;
}

QORIN_API_RESULT qorin_rpc_system_memory_create(unsigned int /*cbox_id*/, ...)
{
    return QORIN_API_RESULT_ERROR_NO_SUPPORT;
}
