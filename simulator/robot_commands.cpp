#include "simulator/robot_commands.h"

#include <algorithm>

#include "simulator/control_gate.h"

namespace cbox_simulator
{
namespace
{
using savrent::kinematics::dh_table;
using savrent::kinematics::joint_array;
using savrent::kinematics::joint_count;

QORIN_API_RESULT create(box_model& model, client_id, request_reader& arguments, reply_writer& outputs)
{
    // Text and value, which follow, say nothing to the simulated box: the model alone tells the arm.
    const auto robot_model = arguments.next_enum<QORIN_ROBOT_MODEL>();
    std::uint32_t id = 0;
    const auto result = model.create_robot(robot_model, id);
    if (result == QORIN_API_RESULT_OK)
        outputs.next_value(id);
    return result;
}

QORIN_API_RESULT destroy(box_model& model, client_id, request_reader& arguments, reply_writer&)
{
    return model.robots().destroy(arguments.next_u32());
}

/// As many doubles of the next block as the robot has joints.
joint_array next_joints(request_reader& arguments)
{
    const auto block = arguments.next_double_block();
    joint_array joints;
    std::copy_n(block.begin(), joints.size(), joints.begin());
    return joints;
}

QORIN_API_RESULT dh_parameter_set(box_model& model, client_id, request_reader& arguments, reply_writer&)
{
    const auto id = arguments.next_u32();
    const auto count = arguments.next_u32();
    if (!model.robots().exists(id))
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    if (count != joint_count)
        return QORIN_API_RESULT_ERROR_ROBOT_NUMBER_OF_JOINT_NOT_MATCHED;
    dh_table table;
    table.theta = next_joints(arguments);
    table.d = next_joints(arguments);
    table.a = next_joints(arguments);
    table.alpha = next_joints(arguments);
    return model.robots().set_table(id, table);
}

QORIN_API_RESULT joint_chaser_state_set(box_model& model, client_id, request_reader& arguments, reply_writer&)
{
    const auto id = arguments.next_u32();
    return model.robots().set_joint_chaser(id, arguments.next_enum<QORIN_SWITCH>());
}

constexpr command_row rows[] = {
    {"qorin_robot_create", in_control<create>},
    {"qorin_robot_destroy", in_control<destroy>},
    {"qorin_robot_kinematics_dh_parameter_set", in_control<dh_parameter_set>},
    {"qorin_robot_joint_chaser_state_set", in_control<joint_chaser_state_set>},
};
} // namespace

std::span<const command_row> robot_commands()
{
    return rows;
}
} // namespace cbox_simulator
