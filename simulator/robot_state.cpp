#include "simulator/robot_state.h"

#include <algorithm>
#include <cmath>

#include "simulator/value_checks.h"

namespace cbox_simulator
{
namespace
{
using savrent::kinematics::joint_array;
using savrent::kinematics::joint_range;

/// Upper arm upright and forearm level on every arm, whatever its angles are counted from.
joint_array ready_angles(QORIN_ROBOT_MODEL model)
{
    switch (model)
    {
    case QORIN_ROBOT_MODEL_ARM_G:
    case QORIN_ROBOT_MODEL_ARM_I:
        return {0, 0, 0, 0, 90, 0};
    case QORIN_ROBOT_MODEL_ARM_H:
        return {0, 0, 0, 0, -90, 0};
    default:
        return {0, 0, 90, 0, 90, 0};
    }
}

/// Also false for what is no number.
bool is_within(double angle, const joint_range& range)
{
    return angle >= range.angle_min && angle <= range.angle_max;
}
} // namespace

robot_state::robot_state(const savrent::kinematics::arm_model& arm)
    : arm_(&arm), solver_(arm.table), joint_angles_(ready_angles(arm.model))
{
    settings_.safety_joints = arm.joints;
    follow_joints();
}

bool robot_state::can_stand_at(const joint_array& angles) const
{
    return std::ranges::equal(angles, arm_->joints, is_within);
}

pose robot_state::flange_pose_at(const joint_array& angles) const
{
    const auto [position, orientation] = solver_.forward(angles);
    return {position[0], position[1], position[2], orientation[0], orientation[1], orientation[2]};
}

std::optional<joint_array> robot_state::joints_at(const pose& flange, const joint_array& reference) const
{
    return solver_.inverse({{flange[0], flange[1], flange[2]}, {flange[3], flange[4], flange[5]}}, reference);
}

QORIN_API_RESULT robot_state::set_joint_angles(const joint_array& angles)
{
    if (!can_stand_at(angles))
        return QORIN_API_RESULT_ERROR_ROBOT_JOINT_PARAM_OUT_OF_RANGE;
    joint_angles_ = angles;
    follow_joints();
    recordings_.follow(angles);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT robot_state::set_tcp_from_flange(const pose& tcp_from_flange)
{
    if (!is_finite(tcp_from_flange))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    tcp_from_flange_ = tcp_from_flange;
    follow_tool();
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT robot_state::set_table(const dh_table& table)
{
    // Finite lengths can still add up to more than a number holds.
    if (!describes_an_arm(table) || !std::isfinite(total_length(table)))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    solver_ = savrent::kinematics::arm_solver(table);
    follow_joints();
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT robot_state::set_servo(QORIN_SWITCH value)
{
    if (!is_switch(value))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    settings_.switches.servo = value;
    return QORIN_API_RESULT_OK;
}

void robot_state::follow_joints()
{
    flange_pose_ = flange_pose_at(joint_angles_);
    follow_tool();
}

void robot_state::follow_tool()
{
    tcp_pose_ = placed(flange_pose_, tcp_from_flange_);
}
} // namespace cbox_simulator
