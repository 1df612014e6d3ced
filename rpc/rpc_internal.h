#ifndef RPC_RPC_INTERNAL_H
#define RPC_RPC_INTERNAL_H

#include "qorin/result.h"

namespace qorin_api_rpc
{
/// Hooks at the first connection of a process and at its end; empty.
void system_create();
void system_destroy();

/// Ends the receive threads of this process's connections. From here on no callback runs, the mirrors stand still and
/// commands go on. For the end of the process; a further call does nothing.
void end_reception();

/**
 * Makes the three links to a control box and registers the connection.
 *
 * @param cbox_id  output, may be null; untouched on failure.
 * @return QORIN_API_RESULT_OK, or QORIN_API_RESULT_ERROR_CBOX_ID_INVALID when a link cannot be made.
 */
[[nodiscard]] QORIN_API_RESULT qorin_api_internal_rpc_system_create(const char* address, unsigned short port,
                                                                    unsigned int* cbox_id);
} // namespace qorin_api_rpc

/**
 * What the sources that are shared with the control software ask for, and what a client has no more to say about.
 */
QORIN_API_RESULT qorin_internal_robot_motion_command_pre_check(int command_id);
QORIN_API_RESULT qorin_internal_robot_motion_command_is_runnable(int command_id);

#endif
