#ifndef TOOLS_QORIN_INTERRUPTION_H
#define TOOLS_QORIN_INTERRUPTION_H

#include <chrono>

namespace qorin_cli
{
/// From here on SIGINT and SIGTERM do not end the process, but `is_interrupted`.
void catch_interruption();

[[nodiscard]] bool is_interrupted();

/// Sleeps that long, or until a signal interrupts. True when nothing did.
bool sleep_unless_interrupted(std::chrono::nanoseconds time);
} // namespace qorin_cli

#endif
