#include "simulator/model/motion_executor.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "simulator/model/moving_state.h"
#include "simulator/model/stream_sources.h"

namespace cbox_simulator
{
namespace
{
using motion::rate_governor;

/// For what tells no acceleration of its own. Seconds.
constexpr double usual_change_of_rate = 0.3;
/// After its command has come to rest, the arm does so within this. Seconds.
constexpr double longest_settling = 0.06;
} // namespace

bool motion_executor::takes_runs() const
{
    const bool stops = braking_ > braking::pause || rest_ == coming_to_rest::stop;
    return !stops && (!source_ || source_->is_command());
}

bool motion_executor::is_idle() const
{
    const auto* robot = robots_.find(robot_id_);
    const bool keeps_power = robot && (robot->settings().switches.servo != QORIN_SWITCH_ON ||
                                       readiness_.hindrance_to_servo(*robot) == hindrance::none);
    return !robot || (is_free() && keeps_power && robot->rests() && is_at_rest(robot->moving_state()) &&
                      !is_streamed_to(*robot) && !robot->recordings().is_running() && !collision_of(*robot));
}

command_run* motion_executor::last_run()
{
    if (!waiting_.empty())
        return waiting_.back().get();
    return source_ && source_->is_command() ? static_cast<command_run*>(source_.get()) : nullptr;
}

void motion_executor::start(std::unique_ptr<command_run> run)
{
    waiting_.push_back(std::move(run));
    auto* robot = robots_.find(robot_id_);
    if (robot && is_at_rest(robot->moving_state()))
        robot->set_moving_state(QORIN_MOVING_STATE_MOVING);
}

void motion_executor::start(std::unique_ptr<motion_source> source)
{
    auto* robot = robots_.find(robot_id_);
    if (!robot)
        return;
    source_ = std::move(source);
    rate_.start_at(source_->is_stream() ? 1 : robot->settings().speed_factor);
    if (!source_->is_stream())
        robot->set_moving_state(QORIN_MOVING_STATE_MOVING);
}

bool motion_executor::chase(const joint_array& target)
{
    const auto* robot = robots_.find(robot_id_);
    const bool told = std::ranges::all_of(target, [](double angle) { return std::isfinite(angle); });
    if (!robot || !told || robot->settings().switches.joint_chaser != QORIN_SWITCH_ON || braking_ > braking::stream_end)
        return false;
    if (auto* chaser = dynamic_cast<chaser_source*>(source_.get()))
    {
        chaser->set_target(target);
        if (std::exchange(braking_, braking::none) != braking::none)
            rate_.go_to(1, usual_change_of_rate);
        return true;
    }
    if (!is_free())
        return false;
    start(std::make_unique<chaser_source>(target));
    return true;
}

bool motion_executor::guide_by_hand(const joint_array& speeds)
{
    const auto* robot = robots_.find(robot_id_);
    if (!robot || robot->settings().control_mode != QORIN_DRIVE_CONTROL_MODE_TORQUE)
        return false;
    if (auto* hand = dynamic_cast<hand_source*>(source_.get()))
        hand->set_speeds(speeds);
    else if (is_free())
        start(std::make_unique<hand_source>(speeds));
    return true;
}

bool motion_executor::end_stream()
{
    const auto* robot = robots_.find(robot_id_);
    if (!robot || !source_ || !source_->is_stream())
        return false;
    if (braking_ == braking::none)
        brake(*robot, braking::stream_end, 0);
    return true;
}

bool motion_executor::stop_chasing()
{
    const auto* robot = robots_.find(robot_id_);
    if (!robot || robot->settings().switches.joint_chaser != QORIN_SWITCH_ON)
        return false;
    end_stream();
    return true;
}

void motion_executor::pause(std::optional<double> seconds)
{
    auto* robot = robots_.find(robot_id_);
    if (!robot || braking_ != braking::none || is_paused(robot->moving_state()))
        return;
    if (!source_ && waiting_.empty())
    {
        robot->switch_streams_off();
        return;
    }
    if (source_ && source_->is_stream())
    {
        robot->switch_streams_off();
        end_stream();
        return;
    }
    robot->set_moving_state(QORIN_MOVING_STATE_PAUSING);
    if (source_)
        brake(*robot, braking::pause, seconds);
    else
        braking_ = braking::pause;
}

void motion_executor::resume()
{
    auto* robot = robots_.find(robot_id_);
    if (!robot || !is_paused(robot->moving_state()))
        return;
    braking_ = braking::none;
    if (rest_ == coming_to_rest::pause)
        rest_ = coming_to_rest::nothing;
    robot->set_moving_state(QORIN_MOVING_STATE_MOVING);
    take_speed_factor();
}

void motion_executor::take_speed_factor()
{
    const auto* robot = robots_.find(robot_id_);
    if (!robot || !source_ || source_->is_stream() || braking_ != braking::none || is_paused(robot->moving_state()))
        return;
    const double factor = robot->settings().speed_factor;
    const double change = factor - rate_.rate();
    const auto limits = source_->limits();
    const double acceleration = change > 0 ? limits.acceleration : limits.deceleration;
    rate_.go_to(factor, acceleration > 0 ? rate_governor::shortest_time(change, limits.speed_max, acceleration)
                                         : usual_change_of_rate);
}

void motion_executor::stop(stop_kind kind, std::optional<double> seconds)
{
    auto* robot = robots_.find(robot_id_);
    if (!robot)
        return;
    robot->switch_streams_off();
    const bool emergency = kind == stop_kind::emergency;
    if (is_between_motions())
        teller_ = 0;
    const auto wanted = emergency ? braking::emergency : braking::stop;
    if (braking_ >= wanted)
        return;
    if (is_free())
    {
        if (emergency)
            robot->set_moving_state(QORIN_MOVING_STATE_EMG_STOPPED);
        return;
    }
    robot->set_moving_state(emergency ? QORIN_MOVING_STATE_EMG_STOPPING : QORIN_MOVING_STATE_STOPPING);
    if (rest_ == coming_to_rest::stop)
        braking_ = wanted;
    else if (source_ && !rate_.stands())
        brake(*robot, wanted, seconds);
    else
    {
        braking_ = wanted;
        finish_stop(*robot);
    }
    waiting_.clear();
}

void motion_executor::collide(const detected_collision& what)
{
    auto* robot = robots_.find(robot_id_);
    if (!robot)
        return;
    tell_of_robot(what.event, what.where);
    robot->set_collision(what.event);
    mitigates_ = robot->settings().switches.collision_mitigation == QORIN_SWITCH_ON;
    if (source_ && !rate_.stands() && braking_ < braking::emergency)
        brake_beside_way(*robot, mitigates_ ? std::make_unique<retreating_source>(*robot)
                                            : std::make_unique<coasting_source>(robot->commanded().speeds));
    else
        stop(stop_kind::emergency);
    if (is_free())
        tell_of_mitigation();
}

void motion_executor::tell_of_mitigation()
{
    if (std::exchange(mitigates_, false))
        tell_of_robot(QORIN_EVENT_SUBGRP_ROBOT_COLLISION_MITIGATION_COMPLETED, 0);
}

void motion_executor::reset()
{
    if (auto* robot = robots_.find(robot_id_))
        robot->set_moving_state(QORIN_MOVING_STATE_IDLE);
}

void motion_executor::change_weave(std::uint32_t command_id, const welding_weave& told)
{
    if (source_ && source_->is_command())
        static_cast<command_run&>(*source_).change_weave(command_id, told);
}

double motion_executor::time_to_rest() const
{
    return is_free() ? 0 : std::max(brake_left_, offset_.time_to_rest()) + longest_settling;
}

void motion_executor::forget()
{
    source_.reset();
    waiting_.clear();
    offset_.forget();
    braking_ = braking::none;
    rest_ = coming_to_rest::nothing;
    brake_left_ = 0;
    mitigates_ = false;
}

void motion_executor::brake(const robot_state& robot, braking kind, std::optional<double> seconds)
{
    braking_ = kind;
    const auto limits = source_->limits();
    double time = shortest_brake(robot);
    if (seconds)
        time = std::max(time, *seconds);
    else if (kind != braking::emergency && limits.deceleration > 0)
        time = std::max(time, rate_governor::shortest_time(rate_.rate(), limits.speed, limits.deceleration));
    rate_.go_to(0, time);
    brake_left_ = time;
}

double motion_executor::shortest_brake(const robot_state& robot) const
{
    double time = 0;
    for (std::size_t joint = 0; joint < robot.commanded().speeds.size(); ++joint)
        time = std::max(time, rate_governor::shortest_time(1, robot.commanded().speeds[joint],
                                                           robot.range_of(joint).acceleration_max));
    return time;
}
} // namespace cbox_simulator
