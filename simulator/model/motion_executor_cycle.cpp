#include "simulator/model/motion_executor.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <utility>

#include "simulator/model/cycle_checks.h"
#include "simulator/model/moving_state.h"
#include "simulator/model/stream_sources.h"

/// What an executor does by itself, once in a control cycle.
namespace cbox_simulator
{
namespace
{
/// Not by the application's will, and therefore to be reset by it.
bool is_emergency(hindrance found)
{
    return found == hindrance::link_lost || found == hindrance::emergency_button ||
           found == hindrance::safety_violation || found == hindrance::collision;
}

/// How fast the arm was, as a share of what reduced mode allows. A limit of 0 leaves it a crawl.
double share_of_reduced_speed(const robot_state& robot)
{
    constexpr double crawl = 1e-3;
    const auto& limits = robot.settings().reduced_mode;
    const auto& [x, y, z] = robot.commanded().tcp_velocity;
    double fastest = 0;
    for (const double speed : robot.commanded().speeds)
        fastest = std::max(fastest, std::abs(speed));
    return std::max(std::hypot(x, y, z) / std::max(limits.tcp_speed, crawl),
                    fastest / std::max(limits.joint_speed, crawl));
}

/// What brings an arm to rest beside its way is not to be brought to rest by what it passes.
bool coasts(const motion_source& source)
{
    return dynamic_cast<const coasting_source*>(&source) != nullptr;
}
} // namespace

void motion_executor::run_cycle(double seconds)
{
    auto* robot = robots_.find(robot_id_);
    if (!robot)
        return;
    watch(*robot);
    if (is_idle())
        return;
    brake_left_ = std::max(brake_left_ - seconds, 0.0);
    settle(*robot);
    take_up(*robot);
    take_along(*robot);
    const bool waits = is_paused(robot->moving_state()) && braking_ == braking::none;
    if (source_ && !waits)
        move(*robot, seconds);
    else
        stand(*robot, seconds);
}

/// All that the gate looks at can change while the arm moves.
void motion_executor::watch(robot_state& robot)
{
    if (readiness_.hindrance_to_servo(robot) != hindrance::none)
        robot.set_servo(QORIN_SWITCH_OFF);
    if (const auto found = collision_of(robot))
        collide(*found);
    if (!source_ && waiting_.empty() && !is_streamed_to(robot))
        return;
    const auto idle_use = turns_by_velocity(robot) ? drive_use::velocity : drive_use::position;
    const auto found = readiness_.hindrance_to(robot, source_ ? source_->needed_drives() : idle_use);
    if (found == hindrance::none)
        return;
    if (!source_ && waiting_.empty())
        robot.switch_streams_off();
    else if (is_emergency(found))
        stop(stop_kind::emergency);
    else
        stop(stop_kind::ordinary, found == hindrance::servo_off ? std::optional(0.0) : std::nullopt);
}

void motion_executor::take_up(robot_state& robot)
{
    if (source_ || rest_ != coming_to_rest::nothing || is_stopped_until_reset(robot.moving_state()))
        return;
    if (!waiting_.empty() && braking_ == braking::pause)
    {
        teller_ = waiting_.front()->command_id();
        braking_ = braking::none;
        tell(QORIN_EVENT_SUBGRP_MOTION_COMMAND_PUASE_PROFILE_COMPLETED);
        rest_ = coming_to_rest::pause;
    }
    else if (!waiting_.empty() && !is_paused(robot.moving_state()) && waiting_.front()->may_start(robot))
    {
        std::unique_ptr<motion_source> run = std::move(waiting_.front());
        waiting_.pop_front();
        start(std::move(run));
    }
    else if (waiting_.empty())
    {
        if (!is_at_rest(robot.moving_state()))
            robot.set_moving_state(QORIN_MOVING_STATE_IDLE); // what waited was dropped
        if (!offset_.is_begun())
            find_stream(robot);
    }
}

void motion_executor::take_along(const robot_state& robot)
{
    if (!is_taken_along(robot))
    {
        if (is_between_motions() && !offset_.moves())
            offset_.forget();
    }
    else if (!offset_.is_begun() && can_be_taken_along())
        offset_.begin(robot.commanded().joints);
}

void motion_executor::find_stream(robot_state& robot)
{
    if (robot.profiler().active() == QORIN_SWITCH_ON)
        start(std::make_unique<profiler_source>(robot.commanded().joints));
    else if (robot.ext_move().active() == QORIN_SWITCH_ON)
        start(std::make_unique<target_source>(robot.commanded().joints));
    else if (turns_by_velocity(robot))
        start(std::make_unique<velocity_source>());
}

void motion_executor::move(robot_state& robot, double seconds)
{
    const double time = rate_.advance(seconds) * factor_of_reduced_mode(robot, seconds);
    if (!go_to(robot, source_->advance({seconds, time}, robot), seconds))
        return;
    if (!source_->is_stream() && source_->has_ended(robot))
        end_source(robot);
    else if (braking_ != braking::none && rate_.stands())
        end_braking(robot);
    else if (source_->is_stream() && braking_ == braking::none && source_->has_ended(robot))
        end_stream();
}

void motion_executor::stand(robot_state& robot, double seconds)
{
    if (offset_.is_begun())
        static_cast<void>(go_to(robot, offset_.undisturbed(), seconds));
    else
        robot.command(robot.commanded().joints, seconds);
}

/// Where the motion puts the arm, and what takes it along from there. False when it must not go there, and leaves its
/// way.
bool motion_executor::go_to(robot_state& robot, std::optional<joint_array> next, double seconds)
{
    const bool held = is_paused(robot.moving_state()) || robot.moving_state() == QORIN_MOVING_STATE_PAUSING;
    if (next && offset_.is_begun())
        next = offset_.laid_over(*next, robot, seconds, held);
    const auto step = robot.commanded_to(next.value_or(robot.commanded().joints), seconds);
    const bool brakes = held || braking_ != braking::none;
    const auto wrong = !next ? violation(QORIN_EVENT_SUBGRP_ROBOT_SAFETY_MOTION_GENERATION_FAILURE)
                       : source_ && coasts(*source_) ? violation()
                                                     : violation_of({robot, step, seconds, brakes});
    if (wrong)
    {
        leave_way(robot, *wrong);
        move(robot, seconds);
        return false;
    }
    robot.command(step, seconds);
    const auto joint = source_ && coasts(*source_) ? std::nullopt : robot.joint_left_behind();
    if (joint)
        leave_way(robot, QORIN_EVENT_SUBGRP_ROBOT_SAFETY_VIOLATED_FOLLOWING_ERROR, *joint);
    return !joint;
}

double motion_executor::factor_of_reduced_mode(const robot_state& robot, double seconds)
{
    const bool in_force = robot.settings().reduced_mode.in_force;
    if (reduced_.is_off(in_force))
        return 1;
    return reduced_.advance(in_force, share_of_reduced_speed(robot), braking_ != braking::none, seconds);
}

/// The way leads where the arm must not go, or cannot.
void motion_executor::leave_way(robot_state& robot, QORIN_EVENT_SUBGRP why, std::size_t joint)
{
    tell_of_robot(why, static_cast<std::int32_t>(joint));
    robot.set_safety_violation(why);
    brake_beside_way(robot, std::make_unique<coasting_source>(robot.commanded().speeds));
}

/// It comes to rest as it can.
void motion_executor::brake_beside_way(robot_state& robot, std::unique_ptr<motion_source> brake)
{
    robot.switch_streams_off();
    robot.set_moving_state(QORIN_MOVING_STATE_EMG_STOPPING);
    teller_ = source_ ? source_->command_id() : 0;
    waiting_.clear();
    offset_.forget();
    source_ = std::move(brake);
    rate_.start_at(1);
    braking_ = braking::emergency;
}

/// It has come to its end by itself.
void motion_executor::end_source(robot_state& robot)
{
    if (braking_ == braking::stop || braking_ == braking::emergency)
    {
        finish_stop(robot);
        return;
    }
    teller_ = source_->command_id();
    tells_end_ = source_->is_command();
    source_.reset();
    rest_ = coming_to_rest::end;
}

void motion_executor::end_braking(robot_state& robot)
{
    switch (std::exchange(braking_, braking_ == braking::pause ? braking::none : braking_))
    {
    case braking::pause:
        teller_ = source_->command_id();
        tell(QORIN_EVENT_SUBGRP_MOTION_COMMAND_PUASE_PROFILE_COMPLETED);
        rest_ = coming_to_rest::pause;
        return;
    case braking::stream_end:
        source_.reset();
        braking_ = braking::none;
        return;
    default:
        finish_stop(robot);
        return;
    }
}

void motion_executor::finish_stop(robot_state& robot)
{
    if (source_ && !coasts(*source_)) // of what went before, the id is kept
        teller_ = source_->command_id();
    else if (!source_ && !waiting_.empty())
        teller_ = waiting_.front()->command_id();
    source_.reset();
    if (robot.joint_left_behind())
        robot.give_in();
    robot.set_motion_name({});
    tell(QORIN_EVENT_SUBGRP_MOTION_COMMAND_STOP_PROFILE_COMPLETED);
    rest_ = coming_to_rest::stop;
}

void motion_executor::settle(robot_state& robot)
{
    // At its end a motion is as settled as a belt lets it be; pauses and stops are for the arm.
    const bool settled =
        rest_ == coming_to_rest::end ? robot.has_settled() || offset_.moves() : robot.has_settled() && !offset_.moves();
    if (rest_ == coming_to_rest::nothing || !settled)
        return;
    switch (std::exchange(rest_, coming_to_rest::nothing))
    {
    case coming_to_rest::end:
        if (waiting_.empty())
        {
            braking_ = braking::none;
            robot.set_moving_state(QORIN_MOVING_STATE_IDLE);
            robot.set_motion_name({});
        }
        if (tells_end_)
            tell(QORIN_EVENT_SUBGRP_MOTION_COMMAND_SETTLED_DOWN);
        return;
    case coming_to_rest::pause:
        robot.set_moving_state(QORIN_MOVING_STATE_PAUSED);
        tell(QORIN_EVENT_SUBGRP_MOTION_COMMAND_PAUSE_SETTLED_DOWN);
        return;
    case coming_to_rest::stop:
        robot.set_moving_state(braking_ == braking::emergency ? QORIN_MOVING_STATE_EMG_STOPPED
                                                              : QORIN_MOVING_STATE_STOPPED);
        braking_ = braking::none;
        tell(QORIN_EVENT_SUBGRP_MOTION_COMMAND_STOP_SETTLED_DOWN);
        tell_of_mitigation();
        return;
    case coming_to_rest::nothing:
        return;
    }
}

void motion_executor::tell(QORIN_EVENT_SUBGRP subgroup) const
{
    events_.post(QORIN_EVENT_GRP_MOTION_COMMAND, subgroup, teller_);
}

void motion_executor::tell_of_robot(QORIN_EVENT_SUBGRP subgroup, std::int32_t where) const
{
    event_info event{};
    event.group = subgroup / 1000 * 1000;
    event.subgroup = subgroup;
    event.sender_id = robot_id_;
    event.parameter[0] = where;
    events_.post(event);
}
} // namespace cbox_simulator
