#ifndef TOOLS_QORIN_DOCTOR_MACHINE_H
#define TOOLS_QORIN_DOCTOR_MACHINE_H

#include <filesystem>

#include "tools/qorin/doctor/findings.h"
#include "tools/qorin/doctor/measuring.h"

namespace qorin_cli::doctor
{
/// Scheduling rights, cores, clock governor, and what a program does on SIGPIPE. To be asked before the process changes
/// any of them.
void examine_machine(findings& found);

/// How late this machine wakes a thread up. @return how late, as the further findings compare with it.
distribution examine_wakeup(findings& found);

/// Writes lines as the logs do, and some megabytes, into a file of no name in the directory or the nearest one above
/// it.
void examine_log_disk(const std::filesystem::path& directory, findings& found);
} // namespace qorin_cli::doctor

#endif
