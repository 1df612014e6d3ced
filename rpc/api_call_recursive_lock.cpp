#include "rpc/api_call_recursive_lock.h"

namespace no_mangle_qorin_api_call_recursive_lock
{
constinit std::recursive_mutex mtx;
} // namespace no_mangle_qorin_api_call_recursive_lock
