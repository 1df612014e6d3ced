#ifndef SIMULATOR_MODEL_MOTION_QUEUE_H
#define SIMULATOR_MODEL_MOTION_QUEUE_H

#include <cstdint>
#include <vector>

#include "qorin/result.h"
#include "simulator/model/cbox_state.h"
#include "simulator/model/event_outbox.h"
#include "simulator/model/motion_command.h"
#include "simulator/model/robot_set.h"

namespace cbox_simulator
{
/**
 * The motion commands that wait to be run, and the running of them.
 *
 * A command is queued as it stands: what later happens to it, its end included, does not reach the queue. A motion
 * brings the robot to its end at once, and its events come in their order with the command's id as sender. What
 * plan_end() tells of a command is judged as of the place where the queue before it leaves the robot.
 *
 * Beside plan_end()'s results:
 * - nothing set but, perhaps, the robot: QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY
 * - no robot set: QORIN_API_RESULT_ERROR_ROBOT_ID_MUST_BE_SET_FIRST
 * - the robot is gone: QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID
 * - robot not ready to move: QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE
 *
 * Owned by the model.
 */
class motion_queue
{
public:
    motion_queue(robot_set& robots, const cbox_state& cbox, event_outbox& events)
        : robots_(robots), cbox_(cbox), events_(events)
    {
    }

    /// What add() would answer.
    [[nodiscard]] QORIN_API_RESULT judge(const motion_command& command) const;
    QORIN_API_RESULT add(std::uint32_t id, const motion_command& command);

    /// Runs all of the queue, or, when one of its commands cannot be run any more, nothing of it: then the queue stays.
    /// An empty queue is QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY.
    QORIN_API_RESULT flush();
    void clear() { queue_.clear(); }

    /// Past the queue. The sender of the events is 0, which is no command's id.
    QORIN_API_RESULT run_now(const motion_command& command);

    /// What waits for a robot that is gone goes with it.
    void forget_robot(std::uint32_t robot_id);

private:
    struct queued_motion
    {
        std::uint32_t id;
        motion_command command;
        robot_state::joint_array end; ///< As planned when it was queued.
    };

    [[nodiscard]] QORIN_API_RESULT plan(const motion_command& command, robot_state::joint_array& joints) const;
    /// Zeros without a robot: plan() refuses such a command.
    [[nodiscard]] robot_state::joint_array present_joints(const motion_command& command) const;
    [[nodiscard]] robot_state::joint_array end_of_queue(const motion_command& command) const;
    void run(std::uint32_t id, const motion_command& command, const robot_state::joint_array& end);

    robot_set& robots_;
    const cbox_state& cbox_;
    event_outbox& events_;
    std::vector<queued_motion> queue_;
};
} // namespace cbox_simulator

#endif
