#ifndef SIMULATOR_MODEL_CYCLE_CHECKS_H
#define SIMULATOR_MODEL_CYCLE_CHECKS_H

#include <optional>

#include "qorin/event_codes.h"
#include "simulator/model/robot_state.h"

namespace cbox_simulator
{
/// How the arm would be commanded in this cycle, if nothing speaks against it.
struct cycle_step
{
    const robot_state& robot; ///< As of the cycle before.
    const stance& next;
    double seconds; ///< Of the cycle.
    bool brakes;    ///< It is being paused or stopped, as hard as that takes.
};

/// What is wrong with that, by its event: a subgroup of QORIN_EVENT_GRP_ROBOT_SAFETY_VIOLATED or
/// QORIN_EVENT_GRP_ROBOT_SPEC_VIOLATED.
using violation = std::optional<QORIN_EVENT_SUBGRP>;

/// Looks at a step with all checks; the first that finds something counts. The range of the joints holds always, the
/// other limits while the robot's safety limit switch is on. A further check is a function from a step to a violation
/// in a list of the source file.
[[nodiscard]] violation violation_of(const cycle_step& step);
} // namespace cbox_simulator

#endif
