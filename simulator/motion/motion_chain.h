#ifndef SIMULATOR_MOTION_MOTION_CHAIN_H
#define SIMULATOR_MOTION_MOTION_CHAIN_H

#include <vector>

#include "qorin/result.h"
#include "simulator/motion/motion_link.h"

namespace cbox_simulator::motion
{
struct chain_plan
{
    QORIN_API_RESULT result = QORIN_API_RESULT_OK;
    std::size_t failed_command = 0; ///< Of which the result tells, when it is not QORIN_API_RESULT_OK.
    planned_motion motion;
};

/**
 * Plans commands that follow each other. The solver and the tool (the TCP seen from the flange) tell how far a joint
 * motion is from its end in millimetres.
 *
 * A blend is as fast as the speed limits of both motions, and the lower one of their accelerations across the corner,
 * allow over the radius.
 *
 * Told start and end speeds of TCP motions hold where two of them meet without a blend: they go over into each other at
 * the lower of the two speeds, over a twentieth of a second, in which also the turning of the tool changes. The arm
 * starts and ends the whole chain at rest, whatever it is told.
 *
 * - the speed at which two motions meet cannot be reached, or brought down, on the way:
 *   QORIN_API_RESULT_ERROR_MOTION_PROFILING_FAILURE
 * - two motions meet at speed and go on in directions more than a degree apart:
 *   QORIN_API_RESULT_ERROR_MOTION_DIRECTION_VECTOR_NOT_SAME
 * - a blend between a way of the TCP and one of the flange: QORIN_API_RESULT_ERROR_COULD_NOT_SET_BLENDING_MODE
 */
[[nodiscard]] chain_plan plan_chain(std::vector<motion_link> links, const arm_kinematics& solver, const pose& tool);
} // namespace cbox_simulator::motion

#endif
