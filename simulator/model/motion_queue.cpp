#include "simulator/model/motion_queue.h"

#include <ranges>
#include <utility>

#include "simulator/model/motion_plan.h"

namespace cbox_simulator
{
QORIN_API_RESULT motion_queue::judge(const motion_command& command) const
{
    auto joints = end_of_queue(command);
    return plan(command, joints);
}

QORIN_API_RESULT motion_queue::add(std::uint32_t id, const motion_command& command)
{
    auto joints = end_of_queue(command);
    const auto result = plan(command, joints);
    if (result == QORIN_API_RESULT_OK)
        queue_.push_back({id, command, joints});
    return result;
}

QORIN_API_RESULT motion_queue::flush()
{
    if (queue_.empty())
        return QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY;
    // Robots and limits may have changed since the commands were queued: they are queued anew from here.
    auto queued = std::exchange(queue_, {});
    for (const auto& motion : queued)
    {
        if (const auto result = add(motion.id, motion.command); result != QORIN_API_RESULT_OK)
        {
            queue_ = std::move(queued);
            return result;
        }
    }
    for (const auto& motion : queue_)
        run(motion.id, motion.command, motion.end);
    queue_.clear();
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT motion_queue::run_now(const motion_command& command)
{
    auto joints = present_joints(command);
    const auto result = plan(command, joints);
    if (result == QORIN_API_RESULT_OK)
        run(0, command, joints);
    return result;
}

void motion_queue::forget_robot(std::uint32_t robot_id)
{
    std::erase_if(queue_, [&](const queued_motion& each) { return each.command.robot_id == robot_id; });
}

QORIN_API_RESULT motion_queue::plan(const motion_command& command, robot_state::joint_array& joints) const
{
    if (command.is_empty())
        return QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY;
    if (!command.robot_id)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_MUST_BE_SET_FIRST;
    const auto* robot = robots_.find(*command.robot_id);
    if (!robot)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    if (!is_ready_to_move(*robot, cbox_))
        return QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE;
    return plan_end(command, *robot, joints);
}

robot_state::joint_array motion_queue::end_of_queue(const motion_command& command) const
{
    for (const auto& queued : queue_ | std::views::reverse)
    {
        if (queued.command.robot_id == command.robot_id)
            return queued.end;
    }
    return present_joints(command);
}

robot_state::joint_array motion_queue::present_joints(const motion_command& command) const
{
    const auto* robot = command.robot_id ? robots_.find(*command.robot_id) : nullptr;
    return robot ? robot->joint_angles() : robot_state::joint_array{};
}

void motion_queue::run(std::uint32_t id, const motion_command& command, const robot_state::joint_array& end)
{
    constexpr auto group = QORIN_EVENT_GRP_MOTION_COMMAND;
    events_.post(group, QORIN_EVENT_SUBGRP_MOTION_COMMAND_STARTED, id);
    robots_.set_joint_angles(*command.robot_id, end);
    if (command.blending_motion_mode == QORIN_SWITCH_ON)
        events_.post(group, QORIN_EVENT_SUBGRP_MOTION_COMMAND_BLENDING_MOTION_ALMOST_COMPLETED, id);
    events_.post(group, QORIN_EVENT_SUBGRP_MOTION_COMMAND_PROFILE_COMPLETED, id);
    events_.post(group, QORIN_EVENT_SUBGRP_MOTION_COMMAND_SETTLED_DOWN, id);
}
} // namespace cbox_simulator
