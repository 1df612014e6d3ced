#include "simulator/model/command_run.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>
#include <tuple>
#include <utility>

#include "simulator/model/io_image.h"

namespace cbox_simulator
{
namespace
{
/// Two plans that lead the same way may differ by rounding: degrees or millimetres, also a second.
constexpr double same = 1e-6;
/// Plans that are the same now and this much later agree in speed and acceleration too. Seconds.
constexpr double a_little_later = 0.001;

bool are_near(const auto& a, const auto& b)
{
    return std::ranges::equal(a, b, [](double x, double y) { return std::abs(x - y) < same; });
}

bool are_near(const motion::motion_sample& a, const motion::motion_sample& b)
{
    return a.point.has_value() == b.point.has_value() && (!a.point || are_near(a.point->target, b.point->target)) &&
           are_near(a.joints, b.joints) && std::abs(a.path_speed - b.path_speed) < same;
}

/// Seconds into the motion as a moment that a milestone of the same time, computed otherwise, does not miss by
/// rounding.
constexpr double plan_tolerance = 1e-9;
} // namespace

run_plan plan_run(const std::vector<run_entry>& entries, const robot_state& robot)
{
    std::vector<motion::motion_link> links;
    for (const auto& entry : entries)
        links.push_back(entry.planned.link);
    links.back().blend_radius = 0;
    auto plan = motion::plan_chain(std::move(links), robot.kinematics(), robot.tcp_from_flange());
    return {plan.result, std::move(plan.motion)};
}

command_run::command_run(std::vector<run_entry> entries, motion::planned_motion planned, const command_outlets& outlets)
    : entries_(std::move(entries)), planned_(std::move(planned)), outlets_(outlets)
{
    mark_way();
}

bool command_run::may_start(const robot_state& robot) const
{
    const auto& condition = entries_.front().command.start;
    return begun_ || !condition ||
           io_value(outlets_.cbox, robot, condition->type, condition->channel) == condition->value;
}

bool command_run::extend(std::vector<run_entry> further, motion::planned_motion planned)
{
    if (begun_ && !leads_the_same_way_now(planned))
        return false;
    std::ranges::move(further, std::back_inserter(entries_));
    planned_ = std::move(planned);
    mark_way();
    return true;
}

bool command_run::leads_the_same_way_now(const motion::planned_motion& other) const
{
    const auto last = entries_.size() - 1;
    return other.commands()[last].blend_begin > time_ + a_little_later &&
           are_near(planned_.at(time_), other.at(time_)) &&
           are_near(planned_.at(time_ + a_little_later), other.at(time_ + a_little_later));
}

void command_run::change_weave(std::uint32_t id, const welding_weave& told)
{
    if (id != 0 && weave_ && entries_[running_].id == id)
        weave_->change(told);
}

void command_run::mark_way()
{
    milestones_.clear();
    for (std::size_t entry = 0; entry < entries_.size(); ++entry)
    {
        const auto& times = planned_.commands()[entry];
        milestones_.push_back({times.start, entry, happening::start});
        if (entries_[entry].command.io)
            milestones_.push_back({output_time(entry), entry, happening::output});
        if (entries_[entry].command.blending_motion_mode == QORIN_SWITCH_ON && !entries_[entry].almost_completed_told)
            milestones_.push_back({almost_completed_time(entry), entry, happening::almost_completed});
        milestones_.push_back({times.end, entry, happening::completed});
    }
    std::ranges::sort(milestones_);
    const auto ahead = [this](const milestone& place) { return !begun_ || place.time > time_; };
    next_ = static_cast<std::size_t>(std::ranges::find_if(milestones_, ahead) - milestones_.begin());
}

double command_run::output_time(std::size_t entry) const
{
    const auto& io = *entries_[entry].command.io;
    const auto& times = planned_.commands()[entry];
    switch (io.condition)
    {
    case QORIN_IO_CONTROL_CONDITION_TIME:
        return std::min(times.start + io.when, times.end);
    case QORIN_IO_CONTROL_CONDITION_PERCENTAGE:
        return time_of_share(entry, io.when / 100);
    case QORIN_IO_CONTROL_CONDITION_END:
        return times.end;
    default:
        return times.start;
    }
}

/// Where the next command starts. One that has none to blend into says it within its radius.
double command_run::almost_completed_time(std::size_t entry) const
{
    const auto& times = planned_.commands()[entry];
    if (times.blend_begin < times.end)
        return times.blend_begin;
    const auto& [command, planned] = std::tie(entries_[entry].command, entries_[entry].planned);
    const double length = std::visit([](const auto& moved) { return moved.length(); }, planned.link.motion);
    return length > 0 ? time_of_share(entry, std::max(1 - command.radius_for_blending / length, 0.0)) : times.end;
}

double command_run::time_of_share(std::size_t entry, double share) const
{
    constexpr int halvings = 50;
    double before = planned_.commands()[entry].start;
    double after = planned_.commands()[entry].end;
    for (int i = 0; i < halvings; ++i)
    {
        const double middle = std::midpoint(before, after);
        (planned_.share_of_way(entry, middle) < share ? before : after) = middle;
    }
    return after;
}

std::optional<motion_source::joint_array> command_run::advance(const passing_time& time, robot_state& robot)
{
    begun_ = true;
    taken_ += time.clock;
    time_ += time.motion;
    if (planned_.duration() - time_ < plan_tolerance)
        time_ = planned_.duration();
    while (next_ < milestones_.size() && milestones_[next_].time <= time_ + plan_tolerance)
        reach(milestones_[next_++], robot);
    auto sample = planned_.at(time_);
    path_speed_ = sample.path_speed;
    if (weave_ && sample.point)
        sample.point->target = swung(*sample.point, time.motion, robot);
    return sample.to_joints(robot.kinematics(), robot.tcp_from_flange(), robot.commanded().joints);
}

pose command_run::swung(const motion::path_point& point, double seconds, const robot_state& robot)
{
    weave_->advance(seconds, planned_.commands()[running_].blend_begin - time_);
    for (; told_sections_ < weave_->sections(); ++told_sections_)
        if (robot.settings().switches.weaving_event == QORIN_SWITCH_ON)
            post(QORIN_EVENT_SUBGRP_MOTION_COMMAND_ZIGZANG_WEAVING_SECTION_CHANGE, running_);
    return weave_->laid_over(point);
}

void command_run::reach(const milestone& place, robot_state& robot)
{
    const auto& command = entries_[place.entry].command;
    switch (place.what)
    {
    case happening::start:
        running_ = place.entry;
        entries_[running_].started_at = taken_;
        weave_.reset();
        told_sections_ = 0;
        if (const auto* told = command.find<welding_weave>(); told && told->motion_switch == QORIN_SWITCH_ON)
            weave_.emplace(*told);
        robot.set_motion_name(command.name);
        post(QORIN_EVENT_SUBGRP_MOTION_COMMAND_STARTED, place.entry);
        return;
    case happening::output:
        set_io_value(outlets_.cbox, robot, command.io->type, command.io->channel, command.io->value);
        return;
    case happening::almost_completed:
        entries_[place.entry].almost_completed_told = true;
        post(QORIN_EVENT_SUBGRP_MOTION_COMMAND_BLENDING_MOTION_ALMOST_COMPLETED, place.entry);
        return;
    case happening::completed:
        complete(place.entry);
        return;
    }
}

void command_run::complete(std::size_t entry)
{
    if (entry == running_)
        weave_.reset();
    if (auto* told = outlets_.commands.find(entries_[entry].id))
        told->running_time = taken_ - entries_[entry].started_at;
    post(QORIN_EVENT_SUBGRP_MOTION_COMMAND_PROFILE_COMPLETED, entry);
}

way_limits command_run::limits() const
{
    const auto limits =
        std::visit([](const auto& moved) { return moved.limits(); }, entries_[running_].planned.link.motion);
    return {path_speed_, limits.speed_max, limits.acc_max, limits.dec_max};
}

void command_run::post(QORIN_EVENT_SUBGRP subgroup, std::size_t entry) const
{
    outlets_.events.post(QORIN_EVENT_GRP_MOTION_COMMAND, subgroup, entries_[entry].id);
}
} // namespace cbox_simulator
