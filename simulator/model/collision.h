#ifndef SIMULATOR_MODEL_COLLISION_H
#define SIMULATOR_MODEL_COLLISION_H

#include <cstdint>
#include <optional>

#include "qorin/event_codes.h"
#include "simulator/model/robot_state.h"

namespace cbox_simulator
{
/// What hits an arm for a moment.
struct blow
{
    axis_values joint_torque{}; ///< Newton metres, of each joint.
    axis_values tcp_force{};    ///< Newtons, then newton metres.
};

/// That something has hit the arm, by its event: a subgroup of QORIN_EVENT_GRP_ROBOT_COLLISION_DETECTED.
struct detected_collision
{
    static constexpr std::int32_t resultant_force = 6;

    QORIN_EVENT_SUBGRP event;
    std::int32_t where; ///< The joint, or the axis of the TCP, or the resultant.
};

/// What the robot takes for a collision: a blow, together with what its TCP presses on anyway, that is above a
/// threshold while the robot has power and its detection is on. In reduced mode the thresholds of that mode hold too.
/// One that stands is not detected again.
[[nodiscard]] std::optional<detected_collision> collision_of(const robot_state& robot, const blow& hit = {});
} // namespace cbox_simulator

#endif
