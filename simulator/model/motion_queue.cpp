#include "simulator/model/motion_queue.h"

#include <algorithm>
#include <utility>

namespace cbox_simulator
{
motion_queue::motion_queue(robot_set& robots, const readiness_gate& readiness, const command_outlets& outlets)
    : robots_(robots), readiness_(readiness), outlets_(outlets)
{
    for (std::uint32_t id = 0; id < executors_.size(); ++id)
        executors_[id] = std::make_unique<motion_executor>(id, robots, readiness, outlets.events);
}

QORIN_API_RESULT motion_queue::judge(motion_command& command)
{
    const auto [result, planned] = plan(0, command, queue_);
    if (result == QORIN_API_RESULT_OK)
        tell(*planned, command);
    return result;
}

QORIN_API_RESULT motion_queue::add(std::uint32_t id, motion_command& command)
{
    if (queue_.size() == capacity)
        return QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE;
    auto [result, planned] = plan(id, command, queue_);
    if (result != QORIN_API_RESULT_OK)
        return result;
    tell(*planned, command);
    queue_.push_back(std::move(*planned));
    if (command.blending_motion_mode != QORIN_SWITCH_ON || command.blending_auto_start != QORIN_SWITCH_ON)
        return QORIN_API_RESULT_OK;
    const auto of_robot = [&](const queued_motion& each) { return each.entry.command.robot_id == command.robot_id; };
    queue own;
    std::ranges::copy_if(queue_, std::back_inserter(own), of_robot);
    const auto started = run(std::move(own));
    if (started == QORIN_API_RESULT_OK)
        std::erase_if(queue_, of_robot);
    else
        queue_.pop_back();
    return started;
}

void motion_queue::tell(const queued_motion& planned, motion_command& command)
{
    command.running_time =
        std::visit([](const auto& moved) { return moved.duration(); }, planned.entry.planned.link.motion);
    command.adjusted_speed = planned.entry.planned.speed;
}

QORIN_API_RESULT motion_queue::flush()
{
    if (queue_.empty())
        return QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY;
    const auto result = run(queue_);
    if (result == QORIN_API_RESULT_OK)
        queue_.clear();
    return result;
}

void motion_queue::clear()
{
    queue_.clear();
    for (auto& executor : executors_)
        executor->drop_waiting();
}

QORIN_API_RESULT motion_queue::run_now(const motion_command& command)
{
    if (command.robot_id && robots_.exists(*command.robot_id) && command.blending_motion_mode != QORIN_SWITCH_ON &&
        !executors_[*command.robot_id]->is_between_motions())
        return QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE;
    auto [result, planned] = plan(0, command, {});
    if (result != QORIN_API_RESULT_OK)
        return result;
    queue single;
    single.push_back(std::move(*planned));
    return run(std::move(single));
}

void motion_queue::weave_changed(std::uint32_t id, const motion_command& command)
{
    if (command.robot_id && robots_.exists(*command.robot_id))
        executors_[*command.robot_id]->change_weave(id, *command.find<welding_weave>());
}

void motion_queue::forget_robot(std::uint32_t robot_id)
{
    std::erase_if(queue_, [&](const queued_motion& each) { return each.entry.command.robot_id == robot_id; });
    executors_[robot_id]->forget();
}

void motion_queue::run_cycle(double seconds)
{
    for (auto& executor : executors_)
        executor->run_cycle(seconds);
}

bool motion_queue::are_idle() const
{
    return std::ranges::all_of(executors_, [](const auto& executor) { return executor->is_idle(); });
}

QORIN_API_RESULT motion_queue::refusal(const motion_command& command) const
{
    if (command.is_empty())
        return QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY;
    if (!command.robot_id)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_MUST_BE_SET_FIRST;
    const auto* robot = robots_.find(*command.robot_id);
    if (!robot)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    if (const auto refused = refusal_of_motion(readiness_.hindrance_to(*robot)); refused != QORIN_API_RESULT_OK)
        return refused;
    const bool follows_belts = command.kind == motion_kind::tcp && command.blending_motion_mode != QORIN_SWITCH_ON;
    return robot->settings().conveyor_mode == QORIN_CONVEYOR_MODE_ON && !follows_belts
               ? QORIN_API_RESULT_ERROR_MOTION_CANNOT_INSERT_IN_CONVEYOR
               : QORIN_API_RESULT_OK;
}

motion_queue::queue_plan motion_queue::plan(std::uint32_t id, const motion_command& command, const queue& queued) const
{
    if (const auto refused = refusal(command); refused != QORIN_API_RESULT_OK)
        return {refused, {}};
    const auto& robot = *robots_.find(*command.robot_id);
    const auto start = start_behind(*command.robot_id, queued);
    auto [result, planned] = plan_command(command, robot, start);
    if (result != QORIN_API_RESULT_OK)
        return {result, {}};
    run_entry entry{id, command, std::move(*planned)};
    if (const auto* ahead = entry_ahead(*command.robot_id, queued); ahead && goes_over(ahead->command, command))
        result = plan_run({*ahead, entry}, robot).result;
    if (result != QORIN_API_RESULT_OK)
        return {result, {}};
    return {result, queued_motion{std::move(entry), start, setup_of(robot)}};
}

const run_entry* motion_queue::entry_ahead(std::uint32_t robot_id, const queue& queued) const
{
    for (auto each = queued.rbegin(); each != queued.rend(); ++each)
        if (each->entry.command.robot_id == robot_id)
            return &each->entry;
    const auto* run = executors_[robot_id]->last_run();
    return run ? &run->entries().back() : nullptr;
}

command_start motion_queue::start_behind(std::uint32_t robot_id, const queue& queued) const
{
    const auto* ahead = entry_ahead(robot_id, queued);
    return ahead ? ahead->planned.end : command_start{executors_[robot_id]->undisturbed(*robots_.find(robot_id)), {}};
}

/// Robots and limits may have changed since the commands were queued: what they touch is planned anew from there on.
QORIN_API_RESULT motion_queue::bring_up_to_date(queue& queued) const
{
    queue current;
    for (auto& each : queued)
    {
        const auto robot_id = *each.entry.command.robot_id;
        const auto refused = refusal(each.entry.command);
        if (refused != QORIN_API_RESULT_OK)
            return refused;
        if (each.start.is_near(start_behind(robot_id, current)) && each.setup == setup_of(*robots_.find(robot_id)))
        {
            current.push_back(std::move(each));
            continue;
        }
        auto [result, planned] = plan(each.entry.id, each.entry.command, current);
        if (result != QORIN_API_RESULT_OK)
            return result;
        current.push_back(std::move(*planned));
    }
    queued = std::move(current);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT motion_queue::prepare(const queue& queued, std::vector<prepared_run>& prepared) const
{
    for (std::uint32_t robot_id = 0; robot_id < executors_.size(); ++robot_id)
    {
        prepared_run run{robot_id, {}, {}, {}};
        for (const auto& each : queued)
        {
            if (each.entry.command.robot_id != robot_id)
                continue;
            if (!run.entries.empty() && !goes_over(run.entries.back().command, each.entry.command))
            {
                const auto result = prepare_run(std::exchange(run, {robot_id, {}, {}, {}}), prepared);
                if (result != QORIN_API_RESULT_OK)
                    return result;
            }
            run.entries.push_back(each.entry);
        }
        if (run.entries.empty())
            continue;
        if (const auto result = prepare_run(std::move(run), prepared); result != QORIN_API_RESULT_OK)
            return result;
    }
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT motion_queue::prepare_run(prepared_run run, std::vector<prepared_run>& prepared) const
{
    auto& executor = *executors_[run.robot_id];
    if (!executor.takes_runs() || executor.waiting_count() + prepared.size() >= capacity)
        return QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE;
    const auto& robot = *robots_.find(run.robot_id);
    auto [result, motion] = plan_run(run.entries, robot);
    if (result != QORIN_API_RESULT_OK)
        return result;
    run.motion = std::move(motion);
    const bool first = prepared.empty() || prepared.back().robot_id != run.robot_id;
    const auto* under_way = executor.last_run();
    if (first && under_way && goes_over(under_way->entries().back().command, run.entries.front().command))
    {
        auto together = under_way->entries();
        together.insert(together.end(), run.entries.begin(), run.entries.end());
        auto plan = plan_run(together, robot);
        if (plan.result == QORIN_API_RESULT_OK)
            run.behind_running = std::move(plan.motion);
    }
    prepared.push_back(std::move(run));
    return QORIN_API_RESULT_OK;
}

void motion_queue::start(prepared_run run)
{
    auto& executor = *executors_[run.robot_id];
    if (run.behind_running && executor.last_run()->extend(run.entries, std::move(*run.behind_running)))
        return;
    executor.start(std::make_unique<command_run>(std::move(run.entries), std::move(run.motion), outlets_));
}

QORIN_API_RESULT motion_queue::run(queue queued)
{
    if (const auto result = bring_up_to_date(queued); result != QORIN_API_RESULT_OK)
        return result;
    std::vector<prepared_run> prepared;
    if (const auto result = prepare(queued, prepared); result != QORIN_API_RESULT_OK)
        return result;
    for (auto& each : prepared)
        start(std::move(each));
    return QORIN_API_RESULT_OK;
}
} // namespace cbox_simulator
