#ifndef SIMULATOR_MOTION_COMMAND_PATH_H
#define SIMULATOR_MOTION_COMMAND_PATH_H

#include <optional>

#include "qorin/result.h"
#include "simulator/motion/pose_path.h"

namespace cbox_simulator::motion
{
struct told_path
{
    QORIN_API_RESULT result;
    std::optional<pose_path> path; ///< When the result is QORIN_API_RESULT_OK.
};

/**
 * The way that a command tells, from where it starts. `start` is the pose of what moves (TCP or flange, as the
 * command's pose type says), seen from the base. `arriving` is in which direction the motion before it ends, if there
 * is one; only a circular way at a tangent asks for it.
 *
 * How the parameters are read:
 * - The way starts where the arm stands. A told start counts only as where a told direction starts from.
 * - Positions and orientations are seen from the base, or from the start pose with QORIN_REF_COORDINATE_TCP. With the
 *   offset mode on and QORIN_REF_COORDINATE_BASE they are added to the start: the position along the axes of the base,
 *   the orientation as a turn about them. Seen from the start pose they are that already.
 * - What is not told of the end stays as it is at the start.
 * - CIRCULAR goes through mid to the end, CIRCLE the whole turn through start, mid and end back to the start.
 * - CIRCULAR_TO_TANGENT is the one arc to the end that leaves the start towards mid; without a mid, on from the
 *   direction in which the motion before it ends, so that a seam goes on without a kink.
 * - ARC goes from start to end with the radius. It bulges towards mid, and is the longer one of the two arcs when mid
 *   lies farther from the line between the ends than the radius; without a mid it is the shorter one and turns left,
 *   seen from the tool's side.
 * - ORT_JOG turns in place. FREE_PATH goes smoothly through its points, of which the last one is the end.
 * - Orientation mode SLERP is the shortest turn to the end. AXIS turns the tool with the direction of travel, so that
 * it keeps its angles to the seam; what is left to a told end is turned on the way. AUTO is AXIS where no end
 *   orientation is told, else SLERP.
 *
 * What cannot be:
 * - nothing told of the end, or a point is missing: QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY
 * - two points in one place: QORIN_API_RESULT_ERROR_MOTION_TWO_POSITION_SAME
 * - a circle through three points in one line: QORIN_API_RESULT_ERROR_ROBOT_THREE_POINTS_STRAIGHT_LINE
 * - a radius that does not span from start to end: QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE
 * - an end straight behind a tangent: QORIN_API_RESULT_ERROR_MOTION_DIRECTION_VECTOR_NOT_SAME
 */
[[nodiscard]] told_path path_of(const tcp_path& told, const pose& start, const std::optional<vector3>& arriving = {});
} // namespace cbox_simulator::motion

#endif
