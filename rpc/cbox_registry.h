#ifndef RPC_CBOX_REGISTRY_H
#define RPC_CBOX_REGISTRY_H

#include <atomic>
#include <map>
#include <memory>

#include "savrent/cc/immortal.h"

/**
 * The registry from control box id to connection.
 *
 * It has no lock: a connection is added by qorin_rpc_system_cbox_connect() and none is removed until the process ends,
 * so whoever connects while other threads call into the library does it at his own risk. Its lookups are inline because
 * they are most of what a getter does.
 */
namespace qorin_api_rpc
{
class qorin_rpc_client;

using cbox_map = std::map<unsigned int, std::shared_ptr<qorin_rpc_client>>;

extern savrent::cc::immortal<cbox_map> g_cbox_map;
extern std::atomic<unsigned int> g_cur_cbox_id; ///< the control box of the status getter now running

/// The connection that is registered under `cbox_id`, or an empty reference.
[[nodiscard]] inline std::shared_ptr<qorin_rpc_client> get_cbox(unsigned int cbox_id)
{
    const auto entry = g_cbox_map->find(cbox_id);
    return entry == g_cbox_map->end() ? nullptr : entry->second;
}

/// Selects the control box of the local getters, for all threads.
inline void set_cur_cbox_id(unsigned int cbox_id)
{
    g_cur_cbox_id.store(cbox_id, std::memory_order_relaxed);
}
} // namespace qorin_api_rpc

#endif
