#include "api/internal_shared_data.h"

#include "rpc/cbox_registry.h"
#include "rpc/qorin_rpc_client.h"

using qorin_api_rpc::g_cbox_map;
using qorin_api_rpc::g_cur_cbox_id;

protocol::shared_data_t* qorin_internal_get_shared_data_for_write()
{
    // No reference is taken: connections stay until the process ends, and the getter's wrapper holds one meanwhile.
    const auto entry = g_cbox_map->find(g_cur_cbox_id.load(std::memory_order_relaxed));
    return entry == g_cbox_map->end() ? nullptr : entry->second->get_shared_data();
}

const protocol::shared_data_t* qorin_internal_get_shared_data()
{
    return qorin_internal_get_shared_data_for_write();
}
