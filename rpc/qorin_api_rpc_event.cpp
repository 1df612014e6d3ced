#include "qorin/event.h"

#include <memory>

#include "rpc/qorin_rpc_client.h"
#include "rpc/qorin_rpc_event.h"
#include "rpc/rpc_internal_event.h"
#include "rpc/wrapper.h"

using qorin_api_rpc::command;
using qorin_api_rpc::logged_call;
using qorin_api_rpc::qorin_rpc_event;

namespace
{
/// Asks the dispatcher of a control box. One that is missing is no error: nothing is done and the answer is OK.
template <class... Arguments, class... Given>
QORIN_API_RESULT ask_dispatcher(unsigned int cbox_id, QORIN_API_RESULT (qorin_rpc_event::*operation)(Arguments...),
                                Given... arguments)
{
    const auto client = qorin_api_rpc::get_cbox(cbox_id);
    const std::shared_ptr<qorin_rpc_event> dispatcher = client == nullptr ? nullptr : client->get_event();
    return dispatcher == nullptr ? QORIN_API_RESULT_OK : (dispatcher.get()->*operation)(arguments...);
}
} // namespace

QORIN_API_RESULT qorin_rpc_system_event_callback_add(unsigned int cbox_id, qorin_event_callback callback)
{
    return logged_call<"qorin_system_event_callback_add">(
        [=] { return ask_dispatcher(cbox_id, &qorin_rpc_event::event_callback_add, callback); }, cbox_id, callback);
}

QORIN_API_RESULT qorin_rpc_system_event_callback_remove(unsigned int cbox_id, qorin_event_callback callback)
{
    return logged_call<"qorin_system_event_callback_remove">(
        [=] { return ask_dispatcher(cbox_id, &qorin_rpc_event::event_callback_remove, callback); }, cbox_id, callback);
}

QORIN_API_RESULT qorin_rpc_system_event_group_callback_add(unsigned int cbox_id, qorin_event_callback callback,
                                                           unsigned int group)
{
    return logged_call<"qorin_system_event_group_callback_add">(
        [=] { return ask_dispatcher(cbox_id, &qorin_rpc_event::event_group_callback_add, callback, group); }, cbox_id,
        callback, group);
}

QORIN_API_RESULT qorin_rpc_system_event_group_callback_remove(unsigned int cbox_id, qorin_event_callback callback,
                                                              unsigned int group)
{
    return logged_call<"qorin_system_event_group_callback_remove">(
        [=] { return ask_dispatcher(cbox_id, &qorin_rpc_event::event_group_callback_remove, callback, group); },
        cbox_id, callback, group);
}

QORIN_API_RESULT qorin_rpc_system_event_group_subgroup_callback_add(unsigned int cbox_id, qorin_event_callback callback,
                                                                    unsigned int group, unsigned int subgroup)
{
    return logged_call<"qorin_system_event_group_subgroup_callback_add">(
        [=]
        { return ask_dispatcher(cbox_id, &qorin_rpc_event::event_group_subgroup_callback_add, callback, subgroup); },
        cbox_id, callback, group, subgroup);
}

QORIN_API_RESULT qorin_rpc_system_event_group_subgroup_callback_remove(unsigned int cbox_id,
                                                                       qorin_event_callback callback,
                                                                       unsigned int group, unsigned int subgroup)
{
    return logged_call<"qorin_system_event_group_subgroup_callback_remove">(
        [=]
        { return ask_dispatcher(cbox_id, &qorin_rpc_event::event_group_subgroup_callback_remove, callback, subgroup); },
        cbox_id, callback, group, subgroup);
}

// The waits take no call lock: a thread may wait while others command.

QORIN_API_RESULT qorin_rpc_system_wait_event_group(unsigned int cbox_id, unsigned int group, unsigned int time_out,
                                                   char remove, char* occurred)
{
    return ask_dispatcher(cbox_id, &qorin_rpc_event::wait_event_group, group, time_out, remove, occurred);
}

QORIN_API_RESULT qorin_rpc_system_wait_event_group_subgroup(unsigned int cbox_id, unsigned int group,
                                                            unsigned int subgroup, unsigned int time_out, char remove,
                                                            char* occurred)
{
    return ask_dispatcher(cbox_id, &qorin_rpc_event::wait_event_group_subgroup, group, subgroup, time_out, remove,
                          occurred);
}

QORIN_API_RESULT qorin_rpc_system_wait_event_group_subgroup_sender_id(unsigned int cbox_id, unsigned int group,
                                                                      unsigned int subgroup, unsigned int sender_id,
                                                                      unsigned int time_out, char remove,
                                                                      char* occurred)
{
    return ask_dispatcher(cbox_id, &qorin_rpc_event::wait_event_group_subgroup_sender_id, group, subgroup, sender_id,
                          time_out, remove, occurred);
}

QORIN_API_RESULT qorin_rpc_system_event_queue_clear(unsigned int cbox_id)
{
    return ask_dispatcher(cbox_id, &qorin_rpc_event::event_queue_clear);
}

QORIN_API_RESULT qorin_rpc_ts_event_echo(unsigned int cbox_id, unsigned int group, unsigned int subgroup,
                                         unsigned int sender_id, int p1, int p2, int p3, int p4, int p5)
{
    return command<"qorin_ts_event_echo">(cbox_id, group, subgroup, sender_id, p1, p2, p3, p4, p5);
}

QORIN_API_RESULT qorin_system_wait_event_group(unsigned int group, unsigned int time_out, char remove, char* occurred)
{
    return qorin_internal_wait_event_group(group, time_out, remove, occurred);
}

QORIN_API_RESULT qorin_system_wait_event_group_subgroup(unsigned int group, unsigned int subgroup,
                                                        unsigned int time_out, char remove, char* occurred)
{
    return qorin_internal_wait_event_group_subgroup(group, subgroup, time_out, remove, occurred);
}

QORIN_API_RESULT qorin_system_wait_event_group_subgroup_sender_id(unsigned int group, unsigned int subgroup,
                                                                  unsigned int sender_id, unsigned int time_out,
                                                                  char remove, char* occurred)
{
    return qorin_internal_wait_event_group_subgroup_sender_id(group, subgroup, sender_id, time_out, remove, occurred);
}

QORIN_API_RESULT qorin_system_event_queue_clear(void)
{
    return qorin_internal_event_queue_clear();
}
