#include "simulator/commands/families.h"

#include <cmath>

#include "simulator/commands/typed_command.h"
#include "simulator/model/io_channels.h"

namespace cbox_simulator
{
namespace
{
QORIN_API_RESULT tool_digital_input_set(robot_state& robot, std::uint32_t channel, std::uint32_t value)
{
    return set_channel(robot.settings().tool.digital_input, {tool_module::digital_channels}, channel, value,
                       robot_io_refusals);
}

template <auto value_of_drive>
QORIN_API_RESULT drive_value_set(robot_state& robot, std::uint32_t joint, double value)
{
    auto& drives = robot.settings().drives;
    if (joint >= drives.size())
        return QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE;
    if (!std::isfinite(value))
        return QORIN_API_RESULT_ERROR_ROBOT_JOINT_PARAM_OUT_OF_RANGE;
    drives[joint].*value_of_drive = value;
    return QORIN_API_RESULT_OK;
}

constexpr command_row rows[] = {
    open_to_all<tool_digital_input_set>("qorin_ts_robot_tool_io_digital_input_set"),
    open_to_all<drive_value_set<&drive::velocity_feedforward_ratio>>(
        "qorin_ts_robot_joint_velocity_feedforward_ratio_set"),
    open_to_all<drive_value_set<&drive::torque_feedforward_ratio>>("qorin_ts_robot_joint_torque_feedforward_ratio_set"),
    open_to_all<drive_value_set<&drive::torque_feedforward_current>>(
        "qorin_ts_robot_joint_torque_feedforward_current_set"),
};
} // namespace

std::span<const command_row> robot_test_commands()
{
    return rows;
}
} // namespace cbox_simulator
