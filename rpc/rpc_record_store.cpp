#include "rpc/rpc_record_store.h"

#include <array>
#include <cstring>

#include "protocol/rpc_record.h"

namespace qorin_api_rpc
{
namespace
{
alignas(64) protocol::request_record g_in;
alignas(64) protocol::reply_record g_out;
std::array<unsigned int, 4> g_param_cnt;
} // namespace

unsigned char* get_in_param()
{
    return reinterpret_cast<unsigned char*>(&g_in);
}

unsigned char* get_out_param()
{
    return reinterpret_cast<unsigned char*>(&g_out);
}

void init_in_out_param()
{
    std::memset(&g_in, 0, sizeof(g_in));
    std::memset(&g_out, 0, sizeof(g_out));
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
