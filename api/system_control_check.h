#ifndef API_SYSTEM_CONTROL_CHECK_H
#define API_SYSTEM_CONTROL_CHECK_H

#include "qorin/result.h"

/// Whether this process may command. Always OK in a client: the control box judges.
[[nodiscard]] QORIN_API_RESULT _qorin_system_control_check_impl();

#endif
