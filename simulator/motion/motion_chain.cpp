#include "simulator/motion/motion_chain.h"

#include <algorithm>
#include <utility>

#include "simulator/motion/blend_junction.h"

namespace cbox_simulator::motion
{
namespace
{
double length_of(const any_motion& motion)
{
    return std::visit([](const auto& told) { return told.length(); }, motion);
}

const motion_limits& limits_of(const any_motion& motion)
{
    return std::visit([](const auto& told) -> const motion_limits& { return told.limits(); }, motion);
}

/// Lengths and speeds of the way of one command between its junctions.
struct middle_way
{
    const motion_limits& limits;
    double length;
    double start_speed;
    double end_speed;
};

/// The junctions of a chain, with one more of no speed ahead of the first command.
class junctions
{
public:
    explicit junctions(std::span<const motion_link> links) : links_(links), of_(links.size() + 1) {}

    QORIN_API_RESULT find(std::size_t command, const arm_kinematics& solver, const pose& tool)
    {
        return meet(links_[command], links_[command + 1].motion, solver, tool, of_[command + 1]);
    }

    [[nodiscard]] middle_way middle(std::size_t command) const
    {
        const auto& [before, after] = std::tie(of_[command], of_[command + 1]);
        const any_motion& motion = links_[command].motion;
        const double length = length_of(motion) - before.arriving - after.leaving;
        return {limits_of(motion), std::max(0.0, length), before.arriving_speed(), after.leaving_speed()};
    }

    /// False when the speeds are told and cannot be lower.
    bool slow_arriving(std::size_t command, double speed) { return slow(of_[command], of_[command].arriving, speed); }
    bool slow_leaving(std::size_t command, double speed)
    {
        return slow(of_[command + 1], of_[command + 1].leaving, speed);
    }

    [[nodiscard]] blended_profile profile(std::size_t command) const
    {
        const middle_way way = middle(command);
        const junction& before = of_[command];
        const junction& after = of_[command + 1];
        return {speed_ramp(0, way.start_speed, before.time, before.jerk_share),
                speed_profile::plan(way.limits, way.length, way.start_speed, way.end_speed),
                speed_ramp(way.end_speed, 0, after.time, after.jerk_share)};
    }

private:
    static bool slow(junction& at, double radius, double speed)
    {
        at.time = 2 * radius / speed;
        return !at.at_told_speed;
    }

    std::span<const motion_link> links_;
    std::vector<junction> of_;
};

/// Speeds that are as good as the same.
constexpr double rounding = 1 + 1e-12;

/// Lowers the speeds of the junctions until each command can get from one to the other. From the back, so that each can
/// slow down in time, then from the front, so that each can reach its end; lowering one never spoils another.
bool make_feasible(junctions& between, std::size_t count, std::size_t& failed)
{
    for (failed = count; failed-- > 0;)
    {
        const middle_way way = between.middle(failed);
        const double fastest = speed_change_limit(way.end_speed, way.limits.mean_deceleration(), way.length);
        if (way.start_speed > fastest * rounding && !between.slow_arriving(failed, fastest))
            return false;
    }
    for (failed = 0; failed < count; ++failed)
    {
        const middle_way way = between.middle(failed);
        const double fastest = speed_change_limit(way.start_speed, way.limits.mean_acceleration(), way.length);
        if (way.end_speed > fastest * rounding && !between.slow_leaving(failed, fastest))
            return false;
    }
    return true;
}
} // namespace

chain_plan plan_chain(std::vector<motion_link> links, const arm_kinematics& solver, const pose& tool)
{
    chain_plan made;
    junctions between(links);
    for (std::size_t command = 0; command + 1 < links.size(); ++command)
        if (const auto result = between.find(command, solver, tool); result != QORIN_API_RESULT_OK)
            return {result, command + 1, {}};
    if (!make_feasible(between, links.size(), made.failed_command))
        return {QORIN_API_RESULT_ERROR_MOTION_PROFILING_FAILURE, made.failed_command, {}};

    std::vector<planned_motion::command> commands;
    for (std::size_t command = 0; command < links.size(); ++command)
        commands.push_back({std::move(links[command].motion), between.profile(command)});
    return {QORIN_API_RESULT_OK, 0, planned_motion(std::move(commands))};
}
} // namespace cbox_simulator::motion
