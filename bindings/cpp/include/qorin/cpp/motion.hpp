#ifndef QORIN_CPP_MOTION_HPP
#define QORIN_CPP_MOTION_HPP

#include <chrono>
#include <optional>
#include <span>
#include <string_view>
#include <thread>

#include "qorin/cpp/events.hpp"
#include "qorin/motion_command.h"
#include "qorin/robot_status.h"

namespace qorin::inline QORIN_LAYER
{
/// Sets an output on the way of a motion, at its begin or end, or at a point in seconds or percent.
struct output_on_the_way
{
    QORIN_IO_CONTROL_CONDITION when = QORIN_IO_CONTROL_CONDITION_END;
    double point = 0;
    QORIN_IO_TYPE type = QORIN_IO_TYPE_CBOX_DIGITAL_OUTPUT;
    unsigned int channel = 0;
    double value = 0;
};

/// A motion of all joints. What is not told is left to the control box.
struct joint_motion
{
    joints end{};
    std::optional<double> speed_deg_s{};
    std::optional<double> acceleration_deg_s2{};
    std::optional<double> deceleration_deg_s2{}; ///< As the acceleration, where that alone is told.
    std::optional<double> jerk_percent{};
    std::optional<double> blending_radius{}; ///< Within it the next motion begins; degrees, between two joint motions.
    std::optional<output_on_the_way> output{};
};

/// A motion of the TCP. What is not told is left to the control box; an end orientation then stays as it is.
struct tcp_motion
{
    std::optional<position> end{};
    std::optional<orientation> end_orientation{};
    QORIN_INTERPOLATOR path = QORIN_INTERPOLATOR_LINEAR;
    std::optional<position> middle{};
    std::optional<double> radius_mm{};   ///< Of an arc.
    std::span<const position> through{}; ///< Of a free path, at most 16 with its end.
    std::optional<QORIN_REF_COORDINATE> frame{};
    std::optional<bool> relative{}; ///< The end is told from the start.
    std::optional<QORIN_ORIENTATION_MODE> orientation_mode{};
    std::optional<double> speed_mm_s{};
    std::optional<double> acceleration_mm_s2{};
    std::optional<double> deceleration_mm_s2{}; ///< As the acceleration, where that alone is told.
    std::optional<double> jerk_percent{};
    std::optional<double> blending_radius_mm{}; ///< Within it the next motion begins.
    std::optional<output_on_the_way> output{};
};

/// A motion of the TCP with a weave about it.
struct welding_motion
{
    tcp_motion path{};
    QORIN_WELDING_WEAVING_PATTERN pattern = QORIN_WELDING_WEAVING_PATTERN_ZIGZAG;
    double left_amplitude_mm = 0;
    double right_amplitude_mm = 0;
    double frequency_hz = 0;
    std::optional<double> left_stop_s{};
    std::optional<double> middle_stop_s{};
    std::optional<double> right_stop_s{};
    std::optional<double> plane_tilt_deg{};
};

/// A motion command of the control box, by its id. It must stand until it has run.
class motion : detail::bound<cbox_id, motion_id>
{
public:
    motion(cbox_id box, robot_id robot, motion_id id) : bound(box, id), robot_(robot) {}

    [[nodiscard]] motion_id id() const { return id_at<1>(); }

    /// Whether the control box would take it. Queues nothing.
    [[nodiscard]] result<void> check() const { return set<qorin_rpc_motion_command_is_runnable>(); }
    /// Puts it at the end of the queue, which is one for the control box.
    [[nodiscard]] result<void> queue() const { return set<qorin_rpc_motion_command_queue_add>(); }
    [[nodiscard]] result<double> running_time_s() const { return set<qorin_rpc_motion_command_running_time_get>(); }
    [[nodiscard]] result<void> set_name(std::string_view name) const
    {
        return set<qorin_rpc_motion_command_name_set>(name);
    }
    /// It starts when an input has a value.
    [[nodiscard]] result<void> start_when(QORIN_IO_TYPE type, unsigned int channel, int value) const
    {
        return set<qorin_rpc_motion_command_start_condition_set>(type, channel, value);
    }
    [[nodiscard]] result<scoped<motion>> copy() const
    {
        const auto made = set<qorin_rpc_motion_command_deep_copy, motion_id>();
        if (!made)
            return unexpected(made.error());
        return scoped(motion(id_at<0>(), robot_, *made));
    }

    /// The event that the robot rests at its end.
    [[nodiscard]] event_filter settled() const
    {
        return {QORIN_EVENT_GRP_MOTION_COMMAND, QORIN_EVENT_SUBGRP_MOTION_COMMAND_SETTLED_DOWN, id().number};
    }

    /// Blocks until the robot rests at its end and the status shows that; false when the time has run out. The event is
    /// taken out of the queue of events. Not from a handler on the event thread.
    [[nodiscard]] result<bool> await_end(std::chrono::nanoseconds time_out) const
    {
        char settled = 0;
        qorin_rpc_system_wait_event_group_subgroup_sender_id(
            id_at<0>().number, QORIN_EVENT_GRP_MOTION_COMMAND, QORIN_EVENT_SUBGRP_MOTION_COMMAND_SETTLED_DOWN,
            id().number, detail::milliseconds_of(time_out), 1, &settled);
        if (settled != 0)
            await_status();
        return settled != 0;
    }

    /// Queues it, starts the queue and awaits its end. False when the time has run out, as when something has stopped
    /// it.
    [[nodiscard]] result<bool> run(std::chrono::nanoseconds time_out) const
    {
        char found = 1;
        while (found != 0) // it may have run before, and nobody have waited
            qorin_rpc_system_wait_event_group_subgroup_sender_id(id_at<0>().number, QORIN_EVENT_GRP_MOTION_COMMAND,
                                                                 QORIN_EVENT_SUBGRP_MOTION_COMMAND_SETTLED_DOWN,
                                                                 id().number, 0, 1, &found);
        const auto started = detail::in_turn(
            [&] { return queue(); }, [&] { return detail::command<qorin_rpc_motion_command_queue_flush>(id_at<0>()); });
        return started ? await_end(time_out) : result<bool>(unexpected(started.error()));
    }

protected:
    result<void> end() const { return set<qorin_rpc_motion_command_destroy>(); }

private:
    /// The frame that shows the rest comes by another link than the event.
    void await_status() const
    {
        for (int look = 0; look < 200; ++look)
        {
            const auto state = detail::getter<qorin_rpc_robot_state_moving_get>(id_at<0>(), robot_);
            if (!state || *state != QORIN_MOVING_STATE_MOVING)
                return;
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }

    robot_id robot_;
};

namespace detail
{
/// Sets parameters of one motion command, up to the first that is refused.
class motion_maker
{
public:
    template <auto Create>
    static result<motion_maker> create(cbox_id box, robot_id robot)
    {
        const auto id = command<Create, motion_id>(box);
        if (!id)
            return unexpected(id.error());
        motion_maker made(motion(box, robot, *id), box);
        made.set<qorin_rpc_motion_command_robot_robot_id_set>(robot); // ahead of all parameters of the robot
        return made;
    }

    template <auto Set, class... Values>
    void set(const Values&... values)
    {
        if (done_)
            done_ = command<Set>(box_, made_.id(), values...);
    }
    template <auto Set, class Value>
    void set_if(const std::optional<Value>& value)
    {
        if (value)
            set<Set>(*value);
    }
    template <auto Set>
    void set_if(const std::optional<position>& value)
    {
        if (value)
            set<Set>(value->x_mm, value->y_mm, value->z_mm);
    }

    void set_tempo(const std::optional<double>& speed, const std::optional<double>& acceleration,
                   const std::optional<double>& deceleration, const std::optional<double>& jerk)
    {
        set_if<qorin_rpc_motion_command_speed_max_set>(speed);
        set_if<qorin_rpc_motion_command_acc_max_set>(acceleration);
        set_if<qorin_rpc_motion_command_dec_max_set>(deceleration ? deceleration : acceleration);
        set_if<qorin_rpc_motion_command_jerk_percentage_set>(jerk);
    }

    void set_joining(const std::optional<double>& radius, const std::optional<output_on_the_way>& output)
    {
        if (radius)
            set<qorin_rpc_motion_command_blending_motion_mode_set>(true);
        set_if<qorin_rpc_motion_command_radius_for_blending_set>(radius);
        if (output)
            set<qorin_rpc_motion_command_io_command_type_set>(output->when, output->point, output->type,
                                                              output->channel, output->value);
    }

    void set_path(const tcp_motion& path)
    {
        set<qorin_rpc_motion_command_robot_tcp_interpolator_set>(path.path);
        set_if<qorin_rpc_motion_command_robot_tcp_coordinate_set>(path.frame);
        set_if<qorin_rpc_motion_command_robot_tcp_offset_mode_set>(path.relative);
        set_if<qorin_rpc_motion_command_robot_orientation_mode_set>(path.orientation_mode);
        set_if<qorin_rpc_motion_command_robot_tcp_position_mid_set>(path.middle);
        set_if<qorin_rpc_motion_command_robot_tcp_position_end_set>(path.end);
        set_if<qorin_rpc_motion_command_robot_tcp_radius_set>(path.radius_mm);
        if (const auto& end = path.end_orientation)
            set<qorin_rpc_motion_command_robot_tcp_orientation_end_set>(end->rx_deg, end->ry_deg, end->rz_deg);
        if (!path.through.empty())
            set_points(path.through);
        set_tempo(path.speed_mm_s, path.acceleration_mm_s2, path.deceleration_mm_s2, path.jerk_percent);
        set_joining(path.blending_radius_mm, path.output);
    }

    /// The motion command, or why it is none; that one is gone again.
    [[nodiscard]] result<scoped<motion>> finish()
    {
        if (!done_)
            return unexpected(done_.error());
        return std::move(made_);
    }

private:
    motion_maker(const motion& made, cbox_id box) : made_(made), box_(box) {}

    void set_points(std::span<const position> points)
    {
        std::array<double, 16> x{}, y{}, z{};
        if (points.size() > x.size())
            done_ = unexpected(error(QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE,
                                     name_of<qorin_rpc_motion_command_robot_tcp_free_path_points_set>()));
        for (std::size_t i = 0; i < points.size() && done_; ++i)
        {
            x[i] = points[i].x_mm;
            y[i] = points[i].y_mm;
            z[i] = points[i].z_mm;
        }
        set<qorin_rpc_motion_command_robot_tcp_free_path_points_set>(static_cast<unsigned int>(points.size()), x, y, z);
    }

    scoped<motion> made_;
    cbox_id box_;
    result<void> done_;
};

inline result<scoped<motion>> make(cbox_id box, robot_id robot, const joint_motion& told)
{
    auto maker = motion_maker::create<qorin_rpc_motion_command_robot_joint_create>(box, robot);
    if (!maker)
        return unexpected(maker.error());
    for (unsigned int joint = 0; joint < joint_count; ++joint)
        maker->set<qorin_rpc_motion_command_robot_joint_angle_end_set>(joint, told.end[joint]);
    maker->set_tempo(told.speed_deg_s, told.acceleration_deg_s2, told.deceleration_deg_s2, told.jerk_percent);
    maker->set_joining(told.blending_radius, told.output);
    return maker->finish();
}

inline result<scoped<motion>> make(cbox_id box, robot_id robot, const tcp_motion& told)
{
    auto maker = motion_maker::create<qorin_rpc_motion_command_robot_tcp_create>(box, robot);
    if (!maker)
        return unexpected(maker.error());
    maker->set_path(told);
    return maker->finish();
}

inline result<scoped<motion>> make(cbox_id box, robot_id robot, const welding_motion& told)
{
    auto maker = motion_maker::create<qorin_rpc_motion_command_robot_tcp_welding_create>(box, robot);
    if (!maker)
        return unexpected(maker.error());
    maker->set_path(told.path);
    maker->set<qorin_rpc_motion_command_robot_tcp_welding_weaving_motion_switch_set>(true);
    maker->set<qorin_rpc_motion_command_robot_tcp_welding_weaving_pattern_set>(told.pattern);
    maker->set<qorin_rpc_motion_command_robot_tcp_welding_left_amplitude_set>(told.left_amplitude_mm);
    maker->set<qorin_rpc_motion_command_robot_tcp_welding_right_amplitude_set>(told.right_amplitude_mm);
    maker->set<qorin_rpc_motion_command_robot_tcp_welding_frequency_set>(told.frequency_hz);
    maker->set_if<qorin_rpc_motion_command_robot_tcp_welding_left_stop_settling_time_set>(told.left_stop_s);
    maker->set_if<qorin_rpc_motion_command_robot_tcp_welding_middle_stop_settling_time_set>(told.middle_stop_s);
    maker->set_if<qorin_rpc_motion_command_robot_tcp_welding_right_stop_settling_time_set>(told.right_stop_s);
    maker->set_if<qorin_rpc_motion_command_robot_tcp_welding_plane_tilt_angle_set>(told.plane_tilt_deg);
    return maker->finish();
}
} // namespace detail
} // namespace qorin::inline QORIN_LAYER

#endif
