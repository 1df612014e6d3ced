#include "qorin/system.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::command;

QORIN_API_RESULT qorin_rpc_gen_system_create(unsigned int cbox_id, const char* text, QORIN_CBOX_MODEL model)
{
    return command<"qorin_gen_system_create">(cbox_id, text, model);
}

QORIN_API_RESULT qorin_rpc_gen_multi_robot_system_create(unsigned int cbox_id, const char* text, QORIN_CBOX_MODEL model,
                                                         unsigned int count)
{
    return command<"qorin_gen_multi_robot_system_create">(cbox_id, text, model, count);
}

QORIN_API_RESULT qorin_rpc_gen_system_connect_and_create(unsigned int /*cbox_id*/, ...)
{
    return QORIN_API_RESULT_ERROR_NO_SUPPORT;
}
