#include "simulator/model/robot_state.h"

#include <algorithm>
#include <cmath>

#include "simulator/model/possible_values.h"

namespace cbox_simulator
{
namespace
{
using savrent::kinematics::joint_array;
using savrent::kinematics::joint_range;

constexpr double arrival_distance = 1e-7;  // degrees
constexpr double most_following_error = 5; // degrees

/// Upper arm upright and forearm level on every arm, whatever its angles are counted from.
joint_array ready_angles(const savrent::kinematics::arm_model& arm)
{
    if (savrent::kinematics::find_arm_model(arm.model) == nullptr || arm.joints.back().angle_max == 0)
        return {};
    switch (arm.model)
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

// Beyond it no tool of these arms can have its centre of mass. Millimetres.
constexpr double farthest_centre_of_mass = 1000;

/// Also false for what is no number.
bool is_within(double angle, const joint_range& range)
{
    return angle >= range.angle_min && angle <= range.angle_max;
}
} // namespace

robot_state::robot_state(const savrent::kinematics::arm_model& arm, const arm_kinematics& kinematics)
    : arm_(&arm), kinematics_(kinematics), load_(arm, kinematics.table())
{
    settings_.safety_joints = arm.joints;
    put_at(ready_angles(arm));
}

joint_range robot_state::range_of(std::size_t joint) const
{
    auto range = arm_->joints[joint];
    const auto& safety = settings_.safety_joints[joint];
    range.angle_min = std::max(range.angle_min, safety.angle_min);
    range.angle_max = std::min(range.angle_max, safety.angle_max);
    range.speed_max = std::min(range.speed_max, safety.speed_max);
    range.acceleration_max = std::min(range.acceleration_max, safety.acceleration_max);
    return range;
}

motion::joint_bounds robot_state::bounds() const
{
    motion::joint_bounds bounds;
    for (std::size_t joint = 0; joint < bounds.size(); ++joint)
    {
        const auto range = range_of(joint);
        bounds[joint] = {range.angle_min, range.angle_max, range.speed_max, range.acceleration_max};
    }
    return bounds;
}

bool robot_state::can_stand_at(const joint_array& angles) const
{
    for (std::size_t joint = 0; joint < angles.size(); ++joint)
        if (!is_within(angles[joint], range_of(joint)))
            return false;
    return true;
}

pose robot_state::flange_pose_at(const joint_array& angles) const
{
    const auto [position, orientation] = kinematics_.forward(angles);
    return {position[0], position[1], position[2], orientation[0], orientation[1], orientation[2]};
}

std::optional<joint_array> robot_state::joints_at(const pose& flange, const joint_array& reference) const
{
    return kinematics_.inverse({{flange[0], flange[1], flange[2]}, {flange[3], flange[4], flange[5]}}, reference);
}

QORIN_API_RESULT robot_state::set_joint_angles(const joint_array& angles)
{
    if (!can_stand_at(angles))
        return QORIN_API_RESULT_ERROR_ROBOT_JOINT_PARAM_OUT_OF_RANGE;
    put_at(angles);
    recordings_.follow(angles);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT robot_state::set_tcp_from_flange(const pose& tcp_from_flange)
{
    if (!is_finite(tcp_from_flange))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    tcp_from_flange_ = tcp_from_flange;
    follow_tool(actual_);
    follow_tool(commanded_);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT robot_state::set_table(const dh_table& table)
{
    // Finite lengths can still add up to more than a number holds.
    if (!describes_an_arm(table) || !std::isfinite(total_length(table)))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    kinematics_ = kinematics_.with_table(table);
    load_ = motion::arm_load(*arm_, kinematics_.table());
    follow_joints(actual_);
    follow_joints(commanded_);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT robot_state::set_servo(QORIN_SWITCH value)
{
    if (!is_possible(value))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    settings_.switches.servo = value;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT robot_state::set_payload(const payload& carried)
{
    const auto& [mass, centre] = carried;
    if (!std::isfinite(mass))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    if (mass < 0)
        return QORIN_API_RESULT_ERROR_ROBOT_GIVEN_PAY_LOAD_IS_LESS_THAN_ZERO;
    if (mass == 0 && std::ranges::any_of(centre, [](double value) { return value != 0; }))
        return QORIN_API_RESULT_ERROR_ROBOT_GIVEN_PAY_LOAD_IS_ZERO_BUT_CENTER_OF_MASS_NOT_ZERO;
    if (mass > arm_->payload)
        return QORIN_API_RESULT_ERROR_ROBOT_GIVEN_PAY_LOAD_MORE_THAN_MAX_CAPACITY;
    if (!std::ranges::all_of(centre, [](double value) { return std::abs(value) <= farthest_centre_of_mass; }))
        return QORIN_API_RESULT_ERROR_ROBOT_GIVEN_PAY_LOAD_CENTER_OF_MASS_OUT_OF_RANGE;
    settings_.tcp_payload = carried;
    return QORIN_API_RESULT_OK;
}

void robot_state::switch_streams_off()
{
    settings_.switches.joint_chaser = QORIN_SWITCH_OFF;
    profiler_.set_active(QORIN_SWITCH_OFF);
    ext_move_.set_active(QORIN_SWITCH_OFF);
    settings_.targets.velocity = {};
    settings_.force.active = QORIN_SWITCH_OFF;
    settings_.conveyor_mode = QORIN_CONVEYOR_MODE_OFF;
}

void robot_state::command(const stance& next, double seconds)
{
    const bool stands = next.joints == commanded_.joints;
    commanded_ = next;
    drives_.follow(next.joints, seconds);
    if (stands && drives_.following_error() < arrival_distance)
        drives_.stand_at(next.joints);
    actual_ = moved(actual_, drives_.actual(), seconds);
    recordings_.follow(actual_.joints);
}

std::optional<std::size_t> robot_state::joint_left_behind() const
{
    for (std::size_t joint = 0; joint < joint_count(); ++joint)
        if (std::abs(commanded_.joints[joint] - actual_.joints[joint]) > most_following_error)
            return joint;
    return {};
}

void robot_state::put_at(const joint_array& angles)
{
    drives_.stand_at(angles);
    actual_.joints = angles;
    actual_.rest();
    follow_joints(actual_);
    commanded_ = actual_;
}

stance robot_state::moved(const stance& before, const joint_array& joints, double seconds) const
{
    if (joints == before.joints && before.rests())
        return before;
    stance after;
    after.joints = joints;
    follow_joints(after);
    for (std::size_t joint = 0; joint < joints.size(); ++joint)
    {
        after.speeds[joint] = (joints[joint] - before.joints[joint]) / seconds;
        after.accelerations[joint] = (after.speeds[joint] - before.speeds[joint]) / seconds;
    }
    for (std::size_t axis = 0; axis < after.tcp_velocity.size(); ++axis)
        after.tcp_velocity[axis] = (after.tcp[axis] - before.tcp[axis]) / seconds;
    const auto turn = turn_from_to(before.tcp, after.tcp);
    for (std::size_t axis = 0; axis < turn.size(); ++axis)
        after.tcp_turning[axis] = turn[axis] / seconds;
    return after;
}

void robot_state::follow_joints(stance& which) const
{
    which.flange = flange_pose_at(which.joints);
    follow_tool(which);
}

void robot_state::follow_tool(stance& which) const
{
    which.tcp = placed(which.flange, tcp_from_flange_);
}
} // namespace cbox_simulator
