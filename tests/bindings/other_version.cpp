#include "qorin/system.h"

/// Stands in for a library of another version when it is loaded ahead of ours.
const char* qorin_system_api_version_get()
{
    return "QORIN.v4.000.000.000";
}
