#include "simulator/model/cycle_checks.h"

#include <array>
#include <cmath>

#include "simulator/model/work_space.h"

namespace cbox_simulator
{
namespace
{
/// What rounding may put a joint beyond its range that is commanded to the very end of it. Degrees.
constexpr double range_tolerance = 1e-6;
/// What a motion that is planned for a limit may go beyond it between two cycles.
constexpr double tolerance = 1.001;

/// Beyond the range, and not on its way back into it.
violation joint_range(const cycle_step& step)
{
    for (std::size_t joint = 0; joint < step.next.joints.size(); ++joint)
    {
        const auto range = step.robot.range_of(joint);
        const double before = step.robot.commanded().joints[joint];
        const double next = step.next.joints[joint];
        if ((next > range.angle_max + range_tolerance && next > before) ||
            (next < range.angle_min - range_tolerance && next < before))
            return QORIN_EVENT_SUBGRP_ROBOT_SAFETY_VIOLATED_JOINT_POSITION;
    }
    return {};
}

violation joint_speed(const cycle_step& step)
{
    for (std::size_t joint = 0; joint < step.next.speeds.size(); ++joint)
        if (std::abs(step.next.speeds[joint]) > step.robot.range_of(joint).speed_max * tolerance)
            return QORIN_EVENT_SUBGRP_ROBOT_SAFETY_VIOLATED_JOINT_SPEED;
    return {};
}

violation tcp_speed(const cycle_step& step)
{
    const auto& [x, y, z] = step.next.tcp_velocity;
    if (std::hypot(x, y, z) > step.robot.settings().safety_tcp.speed_max * tolerance)
        return QORIN_EVENT_SUBGRP_ROBOT_SPEC_VIOLATED_TCP_SPEED;
    return {};
}

violation work_space(const cycle_step& step)
{
    if (leaves_work_space(step.robot, step.robot.commanded(), step.next))
        return QORIN_EVENT_SUBGRP_ROBOT_SAFETY_VIOLATED_TCP_POSITION;
    return {};
}

violation joint_acceleration(const cycle_step& step)
{
    if (step.brakes)
        return {};
    for (std::size_t joint = 0; joint < step.next.accelerations.size(); ++joint)
        if (std::abs(step.next.accelerations[joint]) > step.robot.range_of(joint).acceleration_max * tolerance)
            return QORIN_EVENT_SUBGRP_ROBOT_SAFETY_VIOLATED_JOINT_ACCELERATION;
    return {};
}

violation tcp_acceleration(const cycle_step& step)
{
    if (step.brakes)
        return {};
    std::array<double, 3> change{};
    for (std::size_t axis = 0; axis < change.size(); ++axis)
        change[axis] = step.next.tcp_velocity[axis] - step.robot.commanded().tcp_velocity[axis];
    const double limit = step.robot.settings().safety_tcp.acceleration_max * step.seconds;
    if (std::hypot(change[0], change[1], change[2]) > limit * tolerance)
        return QORIN_EVENT_SUBGRP_ROBOT_SPEC_VIOLATED_TCP_ACCELERATION;
    return {};
}

constexpr violation (*switched_checks[])(const cycle_step&) = {joint_speed, tcp_speed, work_space, joint_acceleration,
                                                               tcp_acceleration};
} // namespace

violation violation_of(const cycle_step& step)
{
    if (const auto found = joint_range(step))
        return found;
    if (step.robot.settings().switches.safety_limit != QORIN_SWITCH_ON)
        return {};
    for (const auto check : switched_checks)
        if (const auto found = check(step))
            return found;
    return {};
}
} // namespace cbox_simulator
