#ifndef SIMULATOR_MODEL_MOTION_PLAN_H
#define SIMULATOR_MODEL_MOTION_PLAN_H

#include "qorin/result.h"
#include "simulator/model/cbox_state.h"
#include "simulator/model/motion_command.h"
#include "simulator/model/robot_state.h"

namespace cbox_simulator
{
/// Servo on, drives in position mode and linked to the box, and no emergency button pushed.
[[nodiscard]] bool is_ready_to_move(const robot_state& robot, const cbox_state& cbox);

/**
 * Where a motion command of the robot ends. `joints` is where it starts, and is changed only when it can be run.
 *
 * - no end told: QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY
 * - a circular path with two points in one place: QORIN_API_RESULT_ERROR_MOTION_TWO_POSITION_SAME
 * - end beyond reach, or beyond the range of a joint: QORIN_API_RESULT_ERROR_MOTION_OUT_OF_ANGLE_RANGE
 * - a TCP path that ends with a straight wrist: QORIN_API_RESULT_ERROR_MOTION_SINGULARITY_POINT
 *
 * Only the end is looked at: what lies on the way takes no part until motions take their time.
 */
[[nodiscard]] QORIN_API_RESULT plan_end(const motion_command& command, const robot_state& robot,
                                        robot_state::joint_array& joints);
} // namespace cbox_simulator

#endif
