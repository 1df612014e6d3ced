#ifndef RPC_API_CALL_RECURSIVE_LOCK_H
#define RPC_API_CALL_RECURSIVE_LOCK_H

#include <mutex>

namespace no_mangle_qorin_api_call_recursive_lock
{
/**
 * The exported call lock: held by every command from its call line to its outputs.
 *
 * It serialises all commands of all control boxes, because they share the record buffers, and lets a command's local
 * work call further commands on the same thread.
 */
extern std::recursive_mutex mtx;
} // namespace no_mangle_qorin_api_call_recursive_lock

#endif
