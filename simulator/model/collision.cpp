#include "simulator/model/collision.h"

#include <algorithm>
#include <cmath>

#include "simulator/model/pressed_force.h"

namespace cbox_simulator
{
std::optional<detected_collision> collision_of(const robot_state& robot, const blow& hit)
{
    const auto& switches = robot.settings().switches;
    const auto& thresholds = robot.settings().collision;
    const auto& reduced = robot.settings().reduced_mode;
    if (switches.collision_detection != QORIN_SWITCH_ON || switches.servo != QORIN_SWITCH_ON || robot.collision() != 0)
        return {};
    const auto in_force = [&](double usual, double in_reduced_mode)
    { return reduced.in_force ? std::min(usual, in_reduced_mode) : usual; };
    for (std::size_t joint = 0; joint < robot.joint_count(); ++joint)
        if (std::abs(hit.joint_torque[joint]) >
            in_force(thresholds.joint_torque[joint], reduced.collision_joint_torque[joint]))
            return detected_collision{QORIN_EVENT_SUBGRP_ROBOT_COLLISION_DETECTED_JOINT,
                                      static_cast<std::int32_t>(joint)};
    auto force = pressed_force(robot);
    for (std::size_t axis = 0; axis < force.size(); ++axis)
    {
        force[axis] += hit.tcp_force[axis];
        if (std::abs(force[axis]) > thresholds.tcp_force[axis])
            return detected_collision{QORIN_EVENT_SUBGRP_ROBOT_COLLISION_DETECTED_TCP, static_cast<std::int32_t>(axis)};
    }
    if (std::hypot(force[0], force[1], force[2]) >
        in_force(thresholds.tcp_resultant_force, reduced.collision_tcp_force))
        return detected_collision{QORIN_EVENT_SUBGRP_ROBOT_COLLISION_DETECTED_TCP, detected_collision::resultant_force};
    return {};
}
} // namespace cbox_simulator
