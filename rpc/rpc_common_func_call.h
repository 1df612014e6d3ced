#ifndef RPC_RPC_COMMON_FUNC_CALL_H
#define RPC_RPC_COMMON_FUNC_CALL_H

#include <cstring>
#include <memory>
#include <string>
#include <type_traits>

#include "api/api_log_print.h"
#include "protocol/rpc_record.h"
#include "qorin/catalogue.h"
#include "qorin/result.h"
#include "rpc/cbox_registry.h"
#include "rpc/qorin_rpc_client.h"
#include "rpc/rpc_param_slot.h"
#include "rpc/rpc_record_store.h"

namespace qorin_api_rpc
{
/// Whether a parameter list fits the 32 slots of each area; the counters themselves are never tested.
template <class... Params>
inline constexpr bool slots_suffice =
    ((request_area<Params> == QORIN_API_RPC_PARAM_TYPE_VALUE) + ... + 0) <= int{protocol::slot_count} &&
    ((request_area<Params> == QORIN_API_RPC_PARAM_TYPE_DOUBLE) + ... + 0) <= int{protocol::slot_count} &&
    ((request_area<Params> == QORIN_API_RPC_PARAM_TYPE_BLOCK) + ... + 0) <= int{protocol::slot_count} &&
    ((request_area<Params> == QORIN_API_RPC_PARAM_TYPE_DOUBLE_BLOCK) + ... + 0) <= int{protocol::slot_count};

/// One request and its reply over a connection's command link. Outputs are filled whatever the result is.
template <class... Params>
QORIN_API_RESULT exchange_records(qorin_rpc_client& client, const std::string& wire_name, Params... params)
{
    protocol::request_record& request = *get_in_param();
    protocol::reply_record& reply = *get_out_param();
    std::memcpy(request.wire_name, wire_name.c_str(), wire_name.size() + 1);
    (store_param(params), ...);

    // A lost link shows as a reply of zeroes, and one that tore the reply is lost too: half an answer is none.
    constexpr int reply_size = sizeof(reply);
    client.write(protocol::wire_bytes(request), sizeof(request));
    if (client.read(protocol::wire_bytes(reply), reply_size) != reply_size)
        reply = {};

    const auto result = static_cast<QORIN_API_RESULT>(reply.result);
    init_param_count();
    (fill_param(params), ...);
    return result;
}

/**
 * Sends a command to a control box and waits for its reply, without a time-out.
 *
 * Not re-entrant: the caller is a logged call, which holds the exported call lock and closes the call depth. The wire
 * name fits its field, since those of logged calls do.
 */
template <class... Params>
QORIN_API_RESULT qorin_api_rpc_common_func_call(const std::string& wire_name, unsigned int cbox_id, Params&&... params)
{
    static_assert(slots_suffice<std::decay_t<Params>...>);
    init_param_count();
    init_in_out_param();

    QORIN_API_RESULT result = QORIN_API_RESULT_ERROR_CBOX_ID_INVALID;
    const std::shared_ptr<qorin_rpc_client> client = get_cbox(cbox_id);
    if (client != nullptr)
        result = exchange_records<std::decay_t<Params>...>(*client, wire_name, params...);

    if (result != QORIN_API_RESULT_OK)
        QORIN_API_LOG_PRINT(QORIN_LOG_TYPE_ERROR, "%s(): %s(%d)\n", wire_name.c_str(),
                            qorin_system_api_result_string_get(result), static_cast<int>(result));
    return result;
}
} // namespace qorin_api_rpc

#endif
