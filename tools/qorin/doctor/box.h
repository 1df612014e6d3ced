#ifndef TOOLS_QORIN_DOCTOR_BOX_H
#define TOOLS_QORIN_DOCTOR_BOX_H

#include <optional>
#include <string>

#include "tools/qorin/doctor/findings.h"
#include "tools/qorin/doctor/measuring.h"

namespace qorin_cli::doctor
{
constexpr auto library_connect_limit = std::chrono::seconds(5); ///< the library itself takes 2.3
constexpr auto answer_limit = std::chrono::seconds(2);          ///< for one command

/// Connects by the library and compares the versions. @return the control box id, nothing when there is no connection.
std::optional<unsigned int> connect_library(const std::string& config, const std::string& address,
                                            const std::string& version, const tick& show, findings& found);

/// What a round trip is made of besides the control box.
struct surroundings
{
    double network_round_trip; ///< milliseconds
    distribution wakeup;
};

/// Sends a question again and again, for a time. @return false when the control box does not answer any more.
bool examine_round_trip(unsigned int cbox_id, milliseconds time, const surroundings& around, const tick& show,
                        findings& found);

/// Lets the control box send events back, for a time. They belong to no group that there is.
void examine_events(unsigned int cbox_id, milliseconds time, const surroundings& around, const tick& show,
                    findings& found);
} // namespace qorin_cli::doctor

#endif
