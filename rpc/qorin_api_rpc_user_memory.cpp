// User memory on the control box, and its sleep.
#include "qorin/user_memory.h"

#include "rpc/wrapper.h"

using qorin_api_rpc::command;

QORIN_API_RESULT qorin_rpc_set_user_memory(unsigned int cbox_id, const char* name, QORIN_USER_DATA_TYPE type,
                                           int int_value, const char* text_value, char char_value, double double_value,
                                           long long_value)
{
    return command<"qorin_set_user_memory">(cbox_id, name, type, int_value, text_value, char_value, double_value,
                                            long_value);
}

QORIN_API_RESULT qorin_rpc_get_user_memory(unsigned int cbox_id, const char* name, QORIN_USER_DATA_TYPE* type,
                                           int* int_value, char* text_value, char* char_value, double* double_value,
                                           long* long_value)
{
    return command<"qorin_get_user_memory">(cbox_id, name, type, int_value, text_value, char_value, double_value,
                                            long_value);
}

QORIN_API_RESULT qorin_rpc_delete_user_memory(unsigned int cbox_id, const char* name)
{
    return command<"qorin_delete_user_memory">(cbox_id, name);
}

QORIN_API_RESULT qorin_rpc_clear_user_memory(unsigned int cbox_id)
{
    return command<"qorin_clear_user_memory">(cbox_id);
}

QORIN_API_RESULT qorin_rpc_rt_sleep(unsigned int cbox_id, unsigned int time)
{
    return command<"qorin_rt_sleep">(cbox_id, time);
}
