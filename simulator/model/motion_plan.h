#ifndef SIMULATOR_MODEL_MOTION_PLAN_H
#define SIMULATOR_MODEL_MOTION_PLAN_H

#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "qorin/result.h"
#include "simulator/model/motion_command.h"
#include "simulator/model/robot_state.h"
#include "simulator/motion/motion_chain.h"

namespace cbox_simulator
{
/// What a plan depends on beside the command and where it starts.
struct arm_setup
{
    robot_state::dh_table table;
    pose tool;
    std::array<robot_state::joint_array, 4> bounds;

    bool operator==(const arm_setup& other) const;
};
[[nodiscard]] arm_setup setup_of(const robot_state& robot);

/// From what a motion command starts.
struct command_start
{
    robot_state::joint_array joints{};
    std::optional<vector3> arriving; ///< In which direction the motion ahead of it ends.

    /// The same, but for what is too little to be seen.
    [[nodiscard]] bool is_near(const command_start& other) const;
};

/// A motion command that can be run.
struct planned_command
{
    motion::motion_link link;
    command_start end;
    double speed; ///< As told, or as much of it as the joints can keep up with.
};

struct command_plan
{
    QORIN_API_RESULT result;
    std::optional<planned_command> planned; ///< When the result is QORIN_API_RESULT_OK.
};

/**
 * Plans a motion command of the robot, and walks the whole way.
 *
 * - no end told: QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY
 * - a start that is told and is the end, or a circular path with two points in one place:
 *   QORIN_API_RESULT_ERROR_MOTION_TWO_POSITION_SAME
 * - a circle that its points do not tell: QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE
 * - beyond reach or beyond the range of a joint, at the end or on the way:
 *   QORIN_API_RESULT_ERROR_MOTION_OUT_OF_ANGLE_RANGE
 * - a TCP path with a straight wrist at the end or on the way: QORIN_API_RESULT_ERROR_MOTION_SINGULARITY_POINT
 * - a TCP path on which joints would be too fast is slowed down; where the told start or end speed does not allow that:
 *   QORIN_API_RESULT_ERROR_MOTION_AUTO_SPEED_DOWN_FAILURE
 */
[[nodiscard]] command_plan plan_command(const motion_command& command, const robot_state& robot,
                                        const command_start& start);

/// Whether the arm goes from one command over to the next without coming to rest between them.
[[nodiscard]] bool goes_over(const motion_command& from, const motion_command& to);
} // namespace cbox_simulator

#endif
