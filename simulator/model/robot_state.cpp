#include "simulator/model/robot_state.h"

#include <algorithm>
#include <cmath>

#include "simulator/model/moving_state.h"
#include "simulator/model/value_checks.h"

namespace cbox_simulator
{
namespace
{
using savrent::kinematics::joint_array;
using savrent::kinematics::joint_range;

constexpr double chase_time = 0.02;       // seconds in which all but 1/e of a way is covered
constexpr double arrival_distance = 1e-9; // degrees

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

// Beyond it no tool of these arms can have its centre of mass. Millimetres.
constexpr double farthest_centre_of_mass = 1000;

/// Also false for what is no number.
bool is_within(double angle, const joint_range& range)
{
    return angle >= range.angle_min && angle <= range.angle_max;
}
} // namespace

robot_state::robot_state(const savrent::kinematics::arm_model& arm) : arm_(&arm), solver_(arm.table)
{
    settings_.safety_joints = arm.joints;
    actual_.joints = ready_angles(arm.model);
    follow_joints(actual_);
    stand_still();
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
    actual_.joints = angles;
    follow_joints(actual_);
    stand_still();
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
    solver_ = savrent::kinematics::arm_solver(table);
    follow_joints(actual_);
    follow_joints(commanded_);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT robot_state::set_servo(QORIN_SWITCH value)
{
    if (!is_switch(value))
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

void robot_state::run_cycle(double seconds)
{
    take_profiler_point();
    run_after_stream(seconds);
}

void robot_state::take_profiler_point()
{
    const auto point = profiler_.take_due_point();
    if (!point || settings_.switches.servo != QORIN_SWITCH_ON)
        return;
    if (point->form == profiler_point::kind::joints)
    {
        set_joint_angles(point->values);
        return;
    }
    pose flange = point->values;
    if (profiler_.pose_type() == QORIN_POSE_TYPE_TCP)
        flange = outer_of(flange, tcp_from_flange_);
    if (const auto joints = joints_at(flange, actual_.joints))
        set_joint_angles(*joints);
}

QORIN_API_RESULT robot_state::set_joint_chaser(QORIN_SWITCH value)
{
    if (!is_switch(value))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    if (value == QORIN_SWITCH_ON && !is_at_rest(moving_state_))
        return QORIN_API_RESULT_ROBOT_IS_MOVING_STATE;
    settings_.switches.joint_chaser = value;
    stand_still();
    return QORIN_API_RESULT_OK;
}

bool robot_state::chase(const joint_array& targets)
{
    if (!chases() || !std::ranges::all_of(targets, [](double target) { return std::isfinite(target); }))
        return false;
    for (std::size_t joint = 0; joint < targets.size(); ++joint)
    {
        const auto& range = arm_->joints[joint];
        commanded_.joints[joint] = std::clamp(targets[joint], range.angle_min, range.angle_max);
    }
    follow_joints(commanded_);
    return true;
}

bool robot_state::stop_chasing()
{
    if (!chases())
        return false;
    stand_still();
    return true;
}

void robot_state::run_after_stream(double seconds)
{
    if (!chases())
        return;
    const double share = 1 - std::exp(-seconds / chase_time);
    bool moves = false;
    for (std::size_t joint = 0; joint < joint_speeds_.size(); ++joint)
    {
        const double way = commanded_.joints[joint] - actual_.joints[joint];
        const double longest = settings_.safety_joints[joint].speed_max * seconds;
        const double wanted = std::abs(way) < arrival_distance ? way : way * share;
        const double step = std::min(std::abs(wanted), longest);
        actual_.joints[joint] += std::copysign(step, way);
        joint_speeds_[joint] = std::copysign(step, way) / seconds;
        moves = moves || step != 0;
    }
    if (!moves)
        return;
    follow_joints(actual_);
    recordings_.follow(actual_.joints);
}

void robot_state::stand_still()
{
    commanded_ = actual_;
    joint_speeds_ = {};
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
