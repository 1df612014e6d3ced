#include "tools/qorin/view/robot_fields.h"

#include <fmt/format.h>

namespace qorin_view
{
namespace
{
using qorin_cli::field_info;
using qorin_cli::joint_limit;
using qorin_cli::robot_limit;
} // namespace

void add_robot_fields(std::vector<field_info>& fields)
{
    for (unsigned int robot = 0; robot < robot_limit; ++robot)
    {
        fields.push_back({fmt::format("robot{}.standing", robot), field_info::word});
        for (unsigned int joint = 0; joint < joint_limit; ++joint)
            for (unsigned int parameter = 1; parameter <= 4; ++parameter)
                fields.push_back({fmt::format("robot{}.joint{}.dh_{}", robot, joint, parameter), ""});
    }
}

void add_robot_values(const standing_robots& robots, std::vector<qorin_cli::field_value>& values)
{
    constexpr const char* words[] = {"", "KNOWN", "NO_MODULE"};
    for (const standing_robot& robot : robots)
    {
        values.emplace_back(words[static_cast<std::size_t>(robot.how)]);
        for (unsigned int joint = 0; joint < joint_limit; ++joint)
            for (const auto& parameter : robot.description.dh)
                values.emplace_back(parameter[joint]);
    }
}
} // namespace qorin_view
