#ifndef SIMULATOR_MODEL_MOTION_QUEUE_H
#define SIMULATOR_MODEL_MOTION_QUEUE_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "qorin/result.h"
#include "simulator/model/motion_executor.h"

namespace cbox_simulator
{
/**
 * The motion commands that wait to be run, and those that move the robots.
 *
 * A command is queued as it stands: what later happens to it, its end included, does not reach the queue. It is planned
 * from where what is ahead of it leaves its robot. A flush hands the queue over to the executors, which run the robots
 * at the same time, behind what they still have to run. A command that blends is told of with the next one; when that
 * comes while the arm still runs towards its end at full speed, the arm goes over into it as if they had come together.
 *
 * Beside plan_command()'s results:
 * - nothing set but, perhaps, the robot: QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY
 * - no robot set: QORIN_API_RESULT_ERROR_ROBOT_ID_MUST_BE_SET_FIRST
 * - the robot is gone: QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID
 * - in conveyor mode anything but a TCP motion that does not blend:
 *   QORIN_API_RESULT_ERROR_MOTION_CANNOT_INSERT_IN_CONVEYOR
 * - the robot is not ready to move, is being stopped, or has too much waiting, the queue is full, or something else
 * than commands moves it: QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE
 * - commands that are to go over into each other and cannot, by their kinds, speeds or directions:
 *   QORIN_API_RESULT_ERROR_COULD_NOT_SET_BLENDING_MODE, QORIN_API_RESULT_ERROR_MOTION_PROFILING_FAILURE,
 *   QORIN_API_RESULT_ERROR_MOTION_DIRECTION_VECTOR_NOT_SAME
 *
 * Owned by the model.
 */
class motion_queue
{
public:
    /// A flush looks at all of them while frames wait. As many may wait for one robot.
    static constexpr std::size_t capacity = 1000;

    motion_queue(robot_set& robots, const readiness_gate& readiness, const command_outlets& outlets);

    [[nodiscard]] motion_executor& executor(std::uint32_t robot_id) { return *executors_[robot_id]; }

    /// What add() would answer. The command gets to know how long it will run, and how fast.
    QORIN_API_RESULT judge(motion_command& command);
    /// A command that is to blend and to start by itself does so, with all that its robot has waiting.
    QORIN_API_RESULT add(std::uint32_t id, motion_command& command);

    /// Runs all of the queue, or, when one of its commands cannot be run any more, nothing of it: then the queue stays.
    /// An empty queue is QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY.
    QORIN_API_RESULT flush();
    /// Drops all that has not begun to run, flushed or not.
    void clear();

    /// Past the queue. The sender of the events is 0, which is no command's id. A command that blends goes behind what
    /// runs; any other needs a robot that stands.
    QORIN_API_RESULT run_now(const motion_command& command);

    /// A weave that was told something else, which a running one takes over.
    void weave_changed(std::uint32_t id, const motion_command& command);

    /// What waits for a robot that is gone goes with it.
    void forget_robot(std::uint32_t robot_id);

    /// Lets a control cycle pass for all robots.
    void run_cycle(double seconds);
    [[nodiscard]] bool are_idle() const;

private:
    struct queued_motion
    {
        run_entry entry;
        command_start start;
        arm_setup setup;
    };
    using queue = std::vector<queued_motion>;

    /// Entries of one robot that go over into each other, ready to be started.
    struct prepared_run
    {
        std::uint32_t robot_id;
        std::vector<run_entry> entries;
        motion::planned_motion motion;
        std::optional<motion::planned_motion> behind_running; ///< Together with the run that is under way.
    };

    [[nodiscard]] QORIN_API_RESULT refusal(const motion_command& command) const;
    struct queue_plan
    {
        QORIN_API_RESULT result;
        std::optional<queued_motion> planned; ///< When the result is QORIN_API_RESULT_OK.
    };
    /// Plans a command behind those that are queued there.
    [[nodiscard]] queue_plan plan(std::uint32_t id, const motion_command& command, const queue& queued) const;
    [[nodiscard]] const run_entry* entry_ahead(std::uint32_t robot_id, const queue& queued) const;
    [[nodiscard]] command_start start_behind(std::uint32_t robot_id, const queue& queued) const;
    [[nodiscard]] QORIN_API_RESULT bring_up_to_date(queue& queued) const;
    [[nodiscard]] QORIN_API_RESULT prepare(const queue& queued, std::vector<prepared_run>& prepared) const;
    [[nodiscard]] QORIN_API_RESULT prepare_run(prepared_run run, std::vector<prepared_run>& prepared) const;
    void start(prepared_run run);
    static void tell(const queued_motion& planned, motion_command& command);
    /// All of it or nothing.
    QORIN_API_RESULT run(queue queued);

    robot_set& robots_;
    const readiness_gate& readiness_;
    command_outlets outlets_;
    std::array<std::unique_ptr<motion_executor>, robot_set::robot_limit> executors_;
    queue queue_;
};
} // namespace cbox_simulator

#endif
