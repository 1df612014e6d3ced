#ifndef RPC_RPC_RECORD_STORE_H
#define RPC_RPC_RECORD_STORE_H

#include "protocol/rpc_record.h"

/**
 * The one request record, the one reply record and the slot counters of the process.
 *
 * They are shared by all connections and threads; only the exported call lock keeps two callers apart.
 */
namespace qorin_api_rpc
{
/// The areas of a record; the first two exist in a reply too.
enum QORIN_API_RPC_PARAM_TYPE : unsigned int
{
    QORIN_API_RPC_PARAM_TYPE_VALUE = 0,
    QORIN_API_RPC_PARAM_TYPE_DOUBLE = 1,
    QORIN_API_RPC_PARAM_TYPE_BLOCK = 2,
    QORIN_API_RPC_PARAM_TYPE_DOUBLE_BLOCK = 3
};

[[nodiscard]] protocol::request_record* get_in_param();
[[nodiscard]] protocol::reply_record* get_out_param();

/// Zeroes both records.
void init_in_out_param();

void init_param_count();
[[nodiscard]] unsigned int get_param_cnt(QORIN_API_RPC_PARAM_TYPE area);
void inc_param_count(QORIN_API_RPC_PARAM_TYPE area);
} // namespace qorin_api_rpc

#endif
