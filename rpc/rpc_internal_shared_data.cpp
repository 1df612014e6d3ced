#include "api/internal_shared_data.h"

#include "rpc/qorin_rpc_client.h"
#include "rpc/rpc_internal.h"

protocol::shared_data_t* qorin_internal_get_shared_data_for_write()
{
    qorin_api_rpc::qorin_rpc_client* client = qorin_api_rpc::find_cbox(qorin_api_rpc::get_cur_cbox_id());
    return client == nullptr ? nullptr : client->get_shared_data();
}

const protocol::shared_data_t* qorin_internal_get_shared_data()
{
    return qorin_internal_get_shared_data_for_write();
}
