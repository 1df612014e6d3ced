#ifndef SIMULATOR_MODEL_MOTION_EXECUTOR_H
#define SIMULATOR_MODEL_MOTION_EXECUTOR_H

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>

#include "simulator/model/collision.h"
#include "simulator/model/command_run.h"
#include "simulator/model/motion_source.h"
#include "simulator/model/path_offset.h"
#include "simulator/model/readiness.h"
#include "simulator/model/robot_set.h"
#include "simulator/motion/rate_governor.h"
#include "simulator/motion/speed_cap.h"

namespace cbox_simulator
{
/**
 * Moves one robot: takes it from cycle to cycle along what moves it, whatever that is, and brings it to rest in time.
 *
 * There is one source of motion at a time, and runs of commands that wait for their turn. How fast the motion's own
 * time runs is the one place where speed factor, reduced mode, pause, resume and every kind of stop act, so that the
 * arm never leaves its way and never stops faster than its joints can. What goes wrong leaves the way: then each joint
 * comes to rest by itself. Over all that lies what takes the arm along: a belt, and a force that is to be pressed with.
 * The robot's moving state and the events of pauses, stops and ends come from here. Owned by the model, used between
 * two frames.
 */
class motion_executor
{
public:
    using joint_array = robot_state::joint_array;

    enum class stop_kind : std::uint8_t
    {
        ordinary,
        emergency
    };

    motion_executor(std::uint32_t robot_id, robot_set& robots, const readiness_gate& readiness, event_outbox& events)
        : robot_id_(robot_id), robots_(robots), readiness_(readiness), events_(events)
    {
    }

    /// Neither moves nor waits, nor has it just come to the end of a motion, nor is it taken along.
    [[nodiscard]] bool is_free() const { return is_between_motions() && !offset_.is_begun(); }
    /// The same, but force control or a belt may have the arm.
    [[nodiscard]] bool is_between_motions() const
    {
        return !source_ && waiting_.empty() && rest_ == coming_to_rest::nothing;
    }
    /// Whether force control and belts may take along what is under way: ways of commands, or an arm that rests.
    [[nodiscard]] bool can_be_taken_along() const { return !source_ || source_->is_command(); }
    /// From where a motion starts that is not planned behind another one: without what takes the arm along.
    [[nodiscard]] const joint_array& undisturbed(const robot_state& robot) const
    {
        return offset_.is_begun() ? offset_.undisturbed() : robot.commanded().joints;
    }
    /// Whether runs of commands may follow what is under way: it is one of them, and not being stopped.
    [[nodiscard]] bool takes_runs() const;
    [[nodiscard]] std::size_t waiting_count() const { return waiting_.size(); }
    /// Whether a cycle would change nothing.
    [[nodiscard]] bool is_idle() const;

    /// The run that ends last, if there is one; good until the next cycle.
    [[nodiscard]] command_run* last_run();

    /// Runs it behind those that wait. Only when it takes runs.
    void start(std::unique_ptr<command_run> run);
    /// At once. Only when it is free.
    void start(std::unique_ptr<motion_source> source);

    /// A streamed target for the joint chaser. False when the chaser is off, something else moves the arm, or a target
    /// is no finite number.
    bool chase(const joint_array& target);
    /// In direct teaching: how fast the hand turns each joint, in degrees per second, until it is told otherwise.
    /// False in another control mode.
    bool guide_by_hand(const joint_array& speeds);
    /// The stream ends without a word, the arm as fast as it can. False when there is none.
    bool end_stream();
    /// The arm comes to rest where it is; the chaser stays on. False when it is off.
    bool stop_chasing();

    /// The time in seconds that it is to take; without one, the motion's deceleration tells. No time is too short for
    /// the joints. Nothing happens when nothing moves, but for the state of an emergency stop.
    void pause(std::optional<double> seconds);
    void stop(stop_kind kind, std::optional<double> seconds = {});
    void resume();
    /// Of the robot's settings. Speeds change as fast as the motion accelerates.
    void take_speed_factor();

    /// Tells of what the arm has hit, and brings it to rest there; then back a little, if that is to be mitigated.
    void collide(const detected_collision& what);

    /// Leaves the state of a stop behind. Only at rest.
    void reset();
    /// What waits and has not begun.
    void drop_waiting() { waiting_.clear(); }
    void change_weave(std::uint32_t command_id, const welding_weave& told);
    /// How long the stop that is under way takes at the most, with the arm at rest in the end.
    [[nodiscard]] double time_to_rest() const;
    /// The robot is gone.
    void forget();

    void run_cycle(double seconds);

private:
    enum class braking : std::uint8_t
    {
        none,
        pause,
        stream_end,
        stop,
        emergency
    };
    enum class coming_to_rest : std::uint8_t
    {
        nothing,
        end,
        pause,
        stop
    };

    void watch(robot_state& robot);
    void take_up(robot_state& robot);
    void find_stream(robot_state& robot);
    void take_along(const robot_state& robot);
    void move(robot_state& robot, double seconds);
    void stand(robot_state& robot, double seconds);
    [[nodiscard]] bool go_to(robot_state& robot, std::optional<joint_array> next, double seconds);
    [[nodiscard]] double factor_of_reduced_mode(const robot_state& robot, double seconds);
    void leave_way(robot_state& robot, QORIN_EVENT_SUBGRP why, std::size_t joint = 0);
    void brake_beside_way(robot_state& robot, std::unique_ptr<motion_source> brake);
    void end_source(robot_state& robot);
    void end_braking(robot_state& robot);
    void settle(robot_state& robot);
    void brake(const robot_state& robot, braking kind, std::optional<double> seconds);
    void finish_stop(robot_state& robot);
    [[nodiscard]] double shortest_brake(const robot_state& robot) const;
    void tell(QORIN_EVENT_SUBGRP subgroup) const;
    void tell_of_robot(QORIN_EVENT_SUBGRP subgroup, std::int32_t where) const;
    void tell_of_mitigation();

    std::uint32_t robot_id_;
    robot_set& robots_;
    const readiness_gate& readiness_;
    event_outbox& events_;
    std::unique_ptr<motion_source> source_;
    std::deque<std::unique_ptr<command_run>> waiting_;
    motion::rate_governor rate_;
    path_offset offset_;
    motion::speed_cap reduced_;
    braking braking_ = braking::none;
    double brake_left_ = 0; ///< Seconds.
    coming_to_rest rest_ = coming_to_rest::nothing;
    std::uint32_t teller_ = 0; ///< Sender id of what is told of the last source.
    bool tells_end_ = false;   ///< The last source was a command.
    bool mitigates_ = false;   ///< What brings the arm to rest is a collision that is to be mitigated.
};
} // namespace cbox_simulator

#endif
