#ifndef TOOLS_QORIN_DOCTOR_FINDINGS_H
#define TOOLS_QORIN_DOCTOR_FINDINGS_H

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace qorin_cli::doctor
{
/// How bad it is, ascending. A note is worth knowing and harmless.
enum class verdict
{
    ok,
    note,
    warning,
    error
};

/// Where a finding comes from.
enum class origin
{
    none, ///< nothing is wrong, or it cannot be told
    network,
    machine,
    control_box,
    setup ///< configuration and kinematics modules
};

struct finding
{
    std::string check;
    std::string value;
    verdict judged = verdict::ok;
    origin blamed = origin::none;
    std::string words;
    nlohmann::json numbers = nlohmann::json::object(); ///< what was measured, by names with their units
};

using findings = std::vector<finding>;

[[nodiscard]] verdict worst_of(const findings& found);

/// The findings as a table, and below it one line for each origin that something was found in.
[[nodiscard]] std::string table_of(const findings& found, bool coloured);
[[nodiscard]] nlohmann::json json_of(const findings& found);
} // namespace qorin_cli::doctor

#endif
