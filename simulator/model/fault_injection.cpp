#include "simulator/model/fault_injection.h"

#include <array>

namespace cbox_simulator
{
namespace
{
QORIN_API_RESULT press(button_panel& panel, bool pushed, std::uint32_t button)
{
    const auto state = pushed ? QORIN_BUTTON_STATE_PUSHED : QORIN_BUTTON_STATE_RELEASED;
    return button == 0 ? panel.set_emergency_button(state) : panel.set_amr_emergency_button(button - 1, state);
}

QORIN_API_RESULT report_error(box_model& model, std::uint32_t subgroup, std::uint32_t sender_id)
{
    if (subgroup <= QORIN_EVENT_SUBGRP_ERROR_INVALID ||
        subgroup > QORIN_EVENT_SUBGRP_ERROR_ECAT_SLAVE_CANNOT_MATCH_CURRENT_ROBOT)
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    model.events().post(QORIN_EVENT_GRP_ERROR, static_cast<QORIN_EVENT_SUBGRP>(subgroup), sender_id);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT let_homing_fail(box_model& model, std::uint32_t how)
{
    constexpr std::array results{QORIN_API_RESULT_OK, QORIN_API_RESULT_ROBOT_HOME_RESET_FAILURE_NO_RESPONSE,
                                 QORIN_API_RESULT_ROBOT_HOME_RESET_FAILURE_INVALID_PARAMETER};
    if (how >= results.size())
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE;
    model.set_homing_result(results[how]);
    return QORIN_API_RESULT_OK;
}

constexpr std::uint32_t places_of_a_robot = 100;

QORIN_API_RESULT hold(box_model& model, std::uint32_t robot_and_joint, bool held)
{
    auto* robot = model.robots().find(robot_and_joint / places_of_a_robot);
    if (!robot)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    const std::size_t joint = robot_and_joint % places_of_a_robot;
    if (joint >= robot->joint_count())
        return QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE;
    robot->hold_joint(joint, held);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT strike(box_model& model, std::uint32_t robot_and_place, std::uint32_t how_hard)
{
    blow hit;
    const std::size_t place = robot_and_place % places_of_a_robot;
    if (place >= hit.joint_torque.size() + hit.tcp_force.size())
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    const auto* robot = model.robots().find(robot_and_place / places_of_a_robot);
    if (!robot)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    const bool at_joint = place < hit.joint_torque.size();
    (at_joint ? hit.joint_torque[place] : hit.tcp_force[place - hit.joint_torque.size()]) = how_hard;
    if (const auto found = collision_of(*robot, hit))
        model.motion_of(*robot).collide(*found);
    return QORIN_API_RESULT_OK;
}
} // namespace

QORIN_API_RESULT inject_fault(box_model& model, injected_fault fault, std::uint32_t value_1, std::uint32_t value_2)
{
    const bool on = value_1 == 1;
    const bool is_on_or_off = value_1 <= 1;
    switch (fault)
    {
    case injected_fault::emergency_button:
        return is_on_or_off ? press(model.cbox(), on, value_2) : QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE;
    case injected_fault::power_button:
        return is_on_or_off
                   ? model.cbox().set_power_button(on ? QORIN_BUTTON_STATE_PUSHED : QORIN_BUTTON_STATE_RELEASED)
                   : QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE;
    case injected_fault::ecat_link_loss:
        return is_on_or_off ? model.set_ecat_link(!on) : QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE;
    case injected_fault::error_event:
        return report_error(model, value_1, value_2);
    case injected_fault::homing:
        return let_homing_fail(model, value_1);
    case injected_fault::collision:
        return strike(model, value_1, value_2);
    case injected_fault::held_joint:
        return value_2 <= 1 ? hold(model, value_1, value_2 == 1) : QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE;
    }
    return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
}
} // namespace cbox_simulator
