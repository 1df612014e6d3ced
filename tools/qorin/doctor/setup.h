#ifndef TOOLS_QORIN_DOCTOR_SETUP_H
#define TOOLS_QORIN_DOCTOR_SETUP_H

#include <filesystem>
#include <string>

#include "tools/qorin/doctor/findings.h"

namespace qorin_cli::doctor
{
/// What the keys of a configuration mean on this machine.
struct directories
{
    std::filesystem::path logs; ///< empty when the configuration cannot be read
    std::filesystem::path kinematics;
};

/**
 * Judges the keys of a configuration file.
 *
 * @param path   the file.
 * @param found  gets what is to be said.
 */
directories examine_configuration(const std::string& path, findings& found);

/// Loads every module of the directory, as the library does when a robot is created.
void examine_kinematics(const std::filesystem::path& directory, findings& found);
} // namespace qorin_cli::doctor

#endif
