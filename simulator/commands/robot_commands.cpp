#include "simulator/commands/families.h"

#include <algorithm>
#include <string_view>

#include "simulator/commands/typed_command.h"
#include "simulator/commands/when_ready.h"
#include "simulator/model/possible_values.h"

namespace cbox_simulator
{
namespace
{
using savrent::kinematics::dh_table;
using savrent::kinematics::joint_array;

/// Text and value say nothing to the simulated box: the model alone tells the arm.
QORIN_API_RESULT create(box_model& model, QORIN_ROBOT_MODEL robot_model, std::string_view, std::uint32_t,
                        std::uint32_t& id)
{
    return model.create_robot(robot_model, id);
}

QORIN_API_RESULT destroy(box_model& model, std::uint32_t id)
{
    return model.destroy_robot(id);
}

/// As many doubles of a block as the robot has joints.
joint_array joints_of(const block_of<double>& block, std::size_t count)
{
    joint_array joints{};
    std::copy_n(block.begin(), count, joints.begin());
    return joints;
}

QORIN_API_RESULT dh_parameter_set(robot_state& robot, std::uint32_t count, const block_of<double>& theta,
                                  const block_of<double>& d, const block_of<double>& a, const block_of<double>& alpha)
{
    if (count != robot.joint_count())
        return QORIN_API_RESULT_ERROR_ROBOT_NUMBER_OF_JOINT_NOT_MATCHED;
    dh_table table;
    table.theta = joints_of(theta, count);
    table.d = joints_of(d, count);
    table.a = joints_of(a, count);
    table.alpha = joints_of(alpha, count);
    return robot.set_table(table);
}

/// Without a target the arm stands; when it is switched off on its way, it comes to rest.
QORIN_API_RESULT joint_chaser_state_set(robot_state& robot, QORIN_SWITCH value)
{
    if (!is_possible(value))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    robot.settings().switches.joint_chaser = value;
    return QORIN_API_RESULT_OK;
}

constexpr command_row rows[] = {
    controlled<create>("qorin_robot_create"),
    controlled<destroy>("qorin_robot_destroy"),
    controlled<while_standing<while_unpowered<dh_parameter_set>>>("qorin_robot_kinematics_dh_parameter_set"),
    controlled<while_standing<when_ready<joint_chaser_state_set>>>("qorin_robot_joint_chaser_state_set"),
};
} // namespace

std::span<const command_row> robot_commands()
{
    return rows;
}
} // namespace cbox_simulator
