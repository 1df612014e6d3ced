#ifndef API_INTERNAL_SHARED_DATA_H
#define API_INTERNAL_SHARED_DATA_H

#include "protocol/status_frame.h"

/**
 * How local getters reach the status mirror. The connection layer answers: it knows which control box is the current
 * one. The pointer stays valid for the life of the process, since connections do.
 */

/// The mirror of the current control box, null when there is none.
[[nodiscard]] protocol::shared_data_t* qorin_internal_get_shared_data_for_write();

/// The same, read-only. Nothing but a control box's data thread writes to a mirror.
[[nodiscard]] const protocol::shared_data_t* qorin_internal_get_shared_data();

#endif
