#include "rpc/rpc_record_store.h"

#include <array>

namespace qorin_api_rpc
{
namespace
{
alignas(64) protocol::request_record g_in;
alignas(64) protocol::reply_record g_out;
std::array<unsigned int, 4> g_param_cnt;
} // namespace

protocol::request_record* get_in_param()
{
    return &g_in;
}

protocol::reply_record* get_out_param()
{
    return &g_out;
}

void init_in_out_param()
{
    g_in = {};
    g_out = {};
}

void init_param_count()
{
    g_param_cnt.fill(0);
}

unsigned int get_param_cnt(QORIN_API_RPC_PARAM_TYPE area)
{
    return g_param_cnt[area];
}

void inc_param_count(QORIN_API_RPC_PARAM_TYPE area)
{
    ++g_param_cnt[area];
}
} // namespace qorin_api_rpc
