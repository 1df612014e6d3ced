#ifndef SIMULATOR_MODEL_COMMAND_RUN_H
#define SIMULATOR_MODEL_COMMAND_RUN_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "simulator/model/cbox_state.h"
#include "simulator/model/event_outbox.h"
#include "simulator/model/motion_command_set.h"
#include "simulator/model/motion_plan.h"
#include "simulator/model/motion_source.h"
#include "simulator/motion/motion_chain.h"
#include "simulator/motion/weave.h"

namespace cbox_simulator
{
/// What motion commands act upon beside the arm, and tell of themselves to. Owned by the model.
struct command_outlets
{
    cbox_state& cbox;
    event_outbox& events;
    motion_command_set& commands; ///< Those that still stand there are told how long they ran.
};

/// A motion command as it stood when it was queued. Its id is 0 when it came in one request.
struct run_entry
{
    std::uint32_t id;
    motion_command command;
    planned_command planned;
    double started_at = 0; ///< Of the time that the run took.
    bool almost_completed_told = false;
};

/**
 * Motion commands that the arm runs without coming to rest between them: one, or several that blend or meet at speed.
 *
 * Everything that a command does beside moving has its time on the way: its events, its outputs, its weave. It happens
 * in the first cycle in which the motion's own time has come there.
 */
class command_run : public motion_source
{
public:
    command_run(std::vector<run_entry> entries, motion::planned_motion planned, const command_outlets& outlets);

    [[nodiscard]] const std::vector<run_entry>& entries() const { return entries_; }

    /// A run waits here until the condition of its first command holds.
    [[nodiscard]] bool may_start(const robot_state& robot) const;

    /// Goes on with further commands, for which a plan together with the present ones was made. False, and nothing has
    /// changed, when the arm is already slowing down for the end that it had so far.
    bool extend(std::vector<run_entry> further, motion::planned_motion planned);

    /// Of the command with that id, if it is running: takes over what a weave may be told while it runs.
    void change_weave(std::uint32_t id, const welding_weave& told);

    std::optional<joint_array> advance(const passing_time& time, robot_state& robot) override;
    bool has_ended(const robot_state&) const override { return next_ == milestones_.size(); }
    way_limits limits() const override;
    bool is_command() const override { return true; }
    std::uint32_t command_id() const override { return entries_[running_].id; }
    std::string_view name() const override { return entries_[running_].command.name; }

private:
    /// What happens on the way, in the order in which it happens when it comes at one time.
    enum class happening : std::uint8_t
    {
        start,
        output,
        almost_completed,
        completed
    };
    struct milestone
    {
        double time;
        std::size_t entry;
        happening what;

        auto operator<=>(const milestone&) const = default;
    };

    void mark_way();
    [[nodiscard]] double output_time(std::size_t entry) const;
    [[nodiscard]] double almost_completed_time(std::size_t entry) const;
    [[nodiscard]] double time_of_share(std::size_t entry, double share) const;
    [[nodiscard]] bool leads_the_same_way_now(const motion::planned_motion& other) const;
    void reach(const milestone& place, robot_state& robot);
    void complete(std::size_t entry);
    [[nodiscard]] pose swung(const motion::path_point& point, double seconds, const robot_state& robot);
    void post(QORIN_EVENT_SUBGRP subgroup, std::size_t entry) const;

    std::vector<run_entry> entries_;
    motion::planned_motion planned_;
    command_outlets outlets_;
    std::vector<milestone> milestones_;
    std::size_t next_ = 0; ///< Milestone.
    double time_ = 0;      ///< Of the motion.
    double taken_ = 0;     ///< Of the clock, pauses not counted.
    bool begun_ = false;
    std::size_t running_ = 0; ///< The entry that started last.
    double path_speed_ = 0;
    std::optional<motion::weave> weave_; ///< Of the running entry.
    std::uint32_t told_sections_ = 0;
};

/// A run of entries that go over into each other, or why there is none.
struct run_plan
{
    QORIN_API_RESULT result;
    motion::planned_motion motion;
};
[[nodiscard]] run_plan plan_run(const std::vector<run_entry>& entries, const robot_state& robot);
} // namespace cbox_simulator

#endif
