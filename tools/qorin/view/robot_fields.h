#ifndef TOOLS_QORIN_VIEW_ROBOT_FIELDS_H
#define TOOLS_QORIN_VIEW_ROBOT_FIELDS_H

#include <array>
#include <string_view>
#include <vector>

#include "tools/qorin/status/status_fields.h"

/**
 * What a viewer needs to draw a robot beside the fields of the status: `robot0.standing`, and `robot0.joint0.dh_1` to
 * `dh_4`.
 */
namespace qorin_view
{
enum class standing
{
    none,
    known,
    no_module ///< no kinematics module serves its model, so the library does not know it
};

struct standing_robot
{
    standing how = standing::none;
    qorin_cli::robot_description description;
};

using standing_robots = std::array<standing_robot, qorin_cli::robot_limit>;

void add_robot_fields(std::vector<qorin_cli::field_info>& fields);
void add_robot_values(const standing_robots& robots, std::vector<qorin_cli::field_value>& values);
} // namespace qorin_view

#endif
