#ifndef QORIN_CPP_ROBOT_HPP
#define QORIN_CPP_ROBOT_HPP

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include "qorin/cpp/motion.hpp"
#include "qorin/robot.h"
#include "qorin/robot_control.h"
#include "qorin/robot_conversion.h"
#include "qorin/robot_force_status.h"
#include "qorin/robot_joint_chaser.h"
#include "qorin/robot_recording.h"
#include "qorin/robot_safety_limit.h"
#include "qorin/robot_safety_status.h"
#include "qorin/robot_status.h"
#include "qorin/robot_tool_io.h"
#include "qorin/robot_tool_status.h"

namespace qorin::inline QORIN_LAYER
{
/// What a robot does, read value by value from the latest frames: a frame that arrives meanwhile shows in part.
struct robot_status
{
    QORIN_MOVING_STATE moving{};
    QORIN_DRIVE_CONTROL_MODE control_mode{};
    bool servo_on = false;
    double speed_factor = 0;
    joints actual{};
    joints commanded{};
    per_joint speed_deg_s{};
    per_joint torque_nm{};
    per_joint temperature_c{};
    pose tcp{};
    pose tcp_commanded{};
    pose flange{};
};

struct range
{
    double from = 0;
    double to = 0;
};

/// The points p with normal * p = distance.
struct plane
{
    double normal_x = 0;
    double normal_y = 0;
    double normal_z = 0;
    double distance_mm = 0;
};

struct payload
{
    double mass_kg = 0;
    double x_mm = 0;
    double y_mm = 0;
    double z_mm = 0;
};

/// A recording buffer of the control box, by its id.
class recording : detail::bound<cbox_id, robot_id, recording_id>
{
public:
    recording(cbox_id box, robot_id robot, recording_id id) : bound(box, robot, id) {}

    [[nodiscard]] recording_id id() const { return id_at<2>(); }
    [[nodiscard]] result<void> start() const
    {
        return detail::command<qorin_rpc_robot_recording_start>(id_at<0>(), id_at<1>());
    }
    [[nodiscard]] result<void> stop() const { return set<qorin_rpc_robot_recording_end>(); }
    [[nodiscard]] result<void> trim() const { return set<qorin_rpc_robot_recording_trim>(); }
    /// The meaning of the numbers is the control box's.
    [[nodiscard]] result<unsigned int> interpolate(QORIN_RECORDING_INTERPOLATION space, unsigned int value_1,
                                                   double value_2) const
    {
        return set<qorin_rpc_robot_recording_interpolate>(space, value_1, value_2);
    }
    /// Returns when the control box has answered, not at the end. The robot must stand at start_joints().
    [[nodiscard]] result<unsigned int> play() const { return set<qorin_rpc_robot_recording_playback>(); }
    [[nodiscard]] result<void> save(std::string_view file) const
    {
        return set<qorin_rpc_robot_recording_file_save>(file);
    }
    [[nodiscard]] result<joints> start_joints() const { return ask<qorin_rpc_robot_recording_angle_start_get>(); }
    [[nodiscard]] result<joints> end_joints() const { return ask<qorin_rpc_robot_recording_angle_end_get>(); }

protected:
    result<void> end() const { return set<qorin_rpc_robot_recording_destroy>(); }

private:
    template <auto Function>
    result<joints> ask() const
    {
        joints all;
        for (unsigned int joint = 0; joint < joint_count; ++joint)
        {
            const auto angle = set<Function>(joint);
            if (!angle)
                return unexpected(angle.error());
            all[joint] = *angle;
        }
        return all;
    }
};

/// A robot that follows a stream of joint targets. The end of it takes 1.1 seconds, in which no command goes through.
class joint_stream : detail::bound<cbox_id, robot_id>
{
public:
    joint_stream(cbox_id box, robot_id robot) : bound(box, robot) {}

    /// One datagram, for which nobody answers. A target that is refused ends the stream.
    [[nodiscard]] result<void> send(const joints& target) const
    {
        return get<qorin_rpc_robot_joint_chaser_move>(static_cast<unsigned int>(joint_count), target.degrees);
    }

protected:
    result<void> end() const { return set<qorin_rpc_robot_joint_chaser_switch_set>(false); }
};

/// What the control box keeps a robot within. Set by commands, read from the status.
class safety_limits : detail::bound<cbox_id, robot_id>
{
public:
    safety_limits(cbox_id box, robot_id robot) : bound(box, robot) {}

    [[nodiscard]] result<void> switch_on(bool on = true) const
    {
        return set<qorin_rpc_robot_safety_limit_switch_set>(on);
    }
    [[nodiscard]] result<bool> is_on() const { return get<qorin_rpc_robot_safety_limit_switch_get, bool>(); }
    [[nodiscard]] result<void> set_joint_range_deg(unsigned int joint, range angles) const
    {
        return set<qorin_rpc_robot_safety_limit_joint_angle_set>(joint, angles.from, angles.to);
    }
    [[nodiscard]] result<range> joint_range_deg(unsigned int joint) const
    {
        return get<qorin_rpc_robot_safety_limit_joint_angle_get, range>(joint);
    }
    [[nodiscard]] result<void> set_joint_speed_deg_s(unsigned int joint, double most) const
    {
        return set<qorin_rpc_robot_safety_limit_joint_speed_max_set>(joint, most);
    }
    [[nodiscard]] result<double> joint_speed_deg_s(unsigned int joint) const
    {
        return get<qorin_rpc_robot_safety_limit_joint_speed_max_get>(joint);
    }
    [[nodiscard]] result<void> set_joint_acceleration_deg_s2(unsigned int joint, double most) const
    {
        return set<qorin_rpc_robot_safety_limit_joint_acc_max_set>(joint, most);
    }
    [[nodiscard]] result<double> joint_acceleration_deg_s2(unsigned int joint) const
    {
        return get<qorin_rpc_robot_safety_limit_joint_acc_max_get>(joint);
    }
    [[nodiscard]] result<void> set_tcp_speed_mm_s(double most) const
    {
        return set<qorin_rpc_robot_safety_limit_tcp_speed_max_set>(most);
    }
    [[nodiscard]] result<double> tcp_speed_mm_s() const
    {
        return get<qorin_rpc_robot_safety_limit_tcp_speed_max_get>();
    }
    [[nodiscard]] result<void> set_tcp_acceleration_mm_s2(double most) const
    {
        return set<qorin_rpc_robot_safety_limit_tcp_acc_max_set>(most);
    }
    [[nodiscard]] result<double> tcp_acceleration_mm_s2() const
    {
        return get<qorin_rpc_robot_safety_limit_tcp_acc_max_get>();
    }

    [[nodiscard]] result<plane_id> add(const plane& one) const
    {
        return set<qorin_rpc_robot_safety_limit_plane_create_with_norm_distance, plane_id>(
            one.normal_x, one.normal_y, one.normal_z, one.distance_mm);
    }
    [[nodiscard]] result<plane> at(plane_id id) const
    {
        return get<qorin_rpc_robot_safety_limit_plane_norm_distance_get, plane>(id);
    }
    [[nodiscard]] result<void> remove(plane_id id) const { return set<qorin_rpc_robot_safety_limit_plane_remove>(id); }
    [[nodiscard]] result<void> remove_all_planes() const
    {
        return set<qorin_rpc_robot_safety_limit_plane_remove_all>();
    }
};

/// A robot of a control box, by its id. Status and conversions are answered in the client, without lock and allocation;
/// all else is a command.
class robot : detail::bound<cbox_id, robot_id>
{
public:
    robot(cbox_id box, robot_id id) : bound(box, id) {}

    [[nodiscard]] robot_id id() const { return id_at<1>(); }

    // Motion.
    [[nodiscard]] result<scoped<motion>> make(const joint_motion& told) const
    {
        return detail::make(id_at<0>(), id(), told);
    }
    [[nodiscard]] result<scoped<motion>> make(const tcp_motion& told) const
    {
        return detail::make(id_at<0>(), id(), told);
    }
    [[nodiscard]] result<scoped<motion>> make(const welding_motion& told) const
    {
        return detail::make(id_at<0>(), id(), told);
    }
    [[nodiscard]] result<void> servo_on(bool on = true) const { return set<qorin_rpc_robot_servo_switch_set>(on); }
    [[nodiscard]] result<void> servo_off() const { return servo_on(false); }
    [[nodiscard]] result<void> set_speed_factor(double factor) const
    {
        return set<qorin_rpc_robot_speed_factor_set>(factor);
    }
    [[nodiscard]] result<void> stop() const { return set<qorin_rpc_robot_stop_auto_time>(); }
    [[nodiscard]] result<void> stop(std::chrono::duration<double> within) const
    {
        return set<qorin_rpc_robot_stop>(within.count());
    }
    /// Over the network, through the control software: it replaces no button.
    [[nodiscard]] result<void> emergency_stop(std::chrono::duration<double> within) const
    {
        return set<qorin_rpc_robot_emergency_stop>(within.count());
    }
    [[nodiscard]] result<void> pause() const { return set<qorin_rpc_robot_pause_auto_time>(); }
    [[nodiscard]] result<void> pause(std::chrono::duration<double> within) const
    {
        return set<qorin_rpc_robot_pause>(within.count());
    }
    [[nodiscard]] result<void> resume() const { return set<qorin_rpc_robot_resume>(); }
    [[nodiscard]] result<void> reset() const { return set<qorin_rpc_robot_reset>(); }

    /// The meaning of both numbers is the control box's; the simulated one takes speed and acceleration.
    [[nodiscard]] result<void> jog_joint(unsigned int joint, QORIN_DIRECTION direction, double value_1 = 0,
                                         double value_2 = 0) const
    {
        return set<qorin_rpc_robot_jog_joint>(joint, direction, value_1, value_2);
    }
    /// Along a vector; the other numbers as for a joint.
    [[nodiscard]] result<void> jog(const position& along, QORIN_REF_COORDINATE frame = QORIN_REF_COORDINATE_BASE,
                                   double value_1 = 0, double value_2 = 0) const
    {
        return set<qorin_rpc_robot_jog_tcp_position>(frame, along.x_mm, along.y_mm, along.z_mm, value_1, value_2);
    }
    [[nodiscard]] result<void> jog(const orientation& about, QORIN_REF_COORDINATE frame = QORIN_REF_COORDINATE_BASE,
                                   double value_1 = 0, double value_2 = 0) const
    {
        return set<qorin_rpc_robot_jog_tcp_orientation>(frame, about.rx_deg, about.ry_deg, about.rz_deg, value_1,
                                                        value_2);
    }
    [[nodiscard]] result<void> direct_teaching(bool on) const
    {
        return set<qorin_rpc_robot_direct_teaching_switch_set>(on);
    }
    [[nodiscard]] result<void> detect_collisions(bool on) const
    {
        return set<qorin_rpc_robot_collision_detection_switch_set>(on);
    }

    // Status.
    [[nodiscard]] result<robot_status> status() const;
    [[nodiscard]] result<QORIN_ROBOT_MODEL> model() const { return get<qorin_rpc_robot_model_name_get>(); }
    [[nodiscard]] result<unsigned int> joints_in_all() const { return get<qorin_rpc_robot_number_of_joints_get>(); }
    [[nodiscard]] result<QORIN_MOVING_STATE> moving() const { return get<qorin_rpc_robot_state_moving_get>(); }
    [[nodiscard]] result<QORIN_DRIVE_CONTROL_MODE> control_mode() const
    {
        return get<qorin_rpc_robot_control_mode_get>();
    }
    [[nodiscard]] result<bool> is_servo_on() const { return get<qorin_rpc_robot_servo_switch_get, bool>(); }
    [[nodiscard]] result<double> speed_factor() const { return get<qorin_rpc_robot_speed_factor_get>(); }
    [[nodiscard]] result<qorin::joints> joints() const { return of_joints<qorin_rpc_robot_joint_angle_actual_get>(); }
    [[nodiscard]] result<qorin::joints> joints_commanded() const
    {
        return of_joints<qorin_rpc_robot_joint_angle_command_get>();
    }
    [[nodiscard]] result<double> joint_deg(unsigned int joint) const
    {
        return get<qorin_rpc_robot_joint_angle_actual_get>(joint);
    }
    [[nodiscard]] result<double> joint_speed_deg_s(unsigned int joint) const
    {
        return get<qorin_rpc_robot_joint_speed_actual_get>(joint);
    }
    [[nodiscard]] result<double> joint_torque_nm(unsigned int joint) const
    {
        return get<qorin_rpc_robot_joint_torque_actual_get>(joint);
    }
    [[nodiscard]] result<double> joint_temperature_c(unsigned int joint) const
    {
        return get<qorin_rpc_robot_joint_temperature_get>(joint);
    }
    [[nodiscard]] result<pose> tcp() const { return get<qorin_rpc_robot_tcp_pose_actual_get, pose>(); }
    [[nodiscard]] result<pose> tcp_commanded() const { return get<qorin_rpc_robot_tcp_pose_command_get, pose>(); }
    [[nodiscard]] result<pose> flange() const { return get<qorin_rpc_robot_flange_pose_actual_get, pose>(); }
    [[nodiscard]] result<position> tcp_speed_mm_s() const
    {
        return get<qorin_rpc_robot_tcp_pos_speed_actual_get, position>();
    }

    // Tool.
    [[nodiscard]] result<pose> tool() const { return get<qorin_rpc_robot_tcp_from_flange_get, pose>(); }
    [[nodiscard]] result<void> set_tool(const pose& tcp) const
    {
        return set<qorin_rpc_robot_tcp_from_flange_set>(tcp.x_mm, tcp.y_mm, tcp.z_mm, tcp.rx_deg, tcp.ry_deg,
                                                        tcp.rz_deg);
    }
    [[nodiscard]] result<qorin::payload> payload() const
    {
        return get<qorin_rpc_robot_tcp_payload_get, qorin::payload>();
    }
    [[nodiscard]] result<void> set_payload(const qorin::payload& load) const
    {
        return set<qorin_rpc_robot_tcp_payload_set>(load.mass_kg, load.x_mm, load.y_mm, load.z_mm);
    }
    [[nodiscard]] result<bool> digital_input(unsigned int channel) const
    {
        return get<qorin_rpc_robot_tool_io_digital_input_get, bool>(channel);
    }
    [[nodiscard]] result<bool> digital_output(unsigned int channel) const
    {
        return get<qorin_rpc_robot_tool_io_digital_output_get, bool>(channel);
    }
    [[nodiscard]] result<void> set_digital_output(unsigned int channel, bool on) const
    {
        return set<qorin_rpc_robot_tool_io_digital_output_set>(channel, static_cast<unsigned int>(on));
    }
    [[nodiscard]] result<double> analog_input(unsigned int channel) const
    {
        return get<qorin_rpc_robot_tool_io_analog_input_get>(channel);
    }

    // Conversions, by the kinematics module: nothing is sent.
    [[nodiscard]] result<pose> pose_at(const qorin::joints& angles, QORIN_POSE_TYPE of = QORIN_POSE_TYPE_TCP) const;
    /// Near a reference.
    [[nodiscard]] result<qorin::joints> joints_at(const pose& target, const qorin::joints& near,
                                                  QORIN_POSE_TYPE of = QORIN_POSE_TYPE_TCP) const;
    /// All solutions for a pose of the flange, one for each posture from QORIN_ROBOT_POSTURE_FRONT_ABOVE_FLIP on.
    [[nodiscard]] result<std::array<std::optional<qorin::joints>, 8>> all_joints_at(const pose& flange) const;

    [[nodiscard]] safety_limits limits() const { return {id_at<0>(), id()}; }
    [[nodiscard]] result<scoped<recording>> create_recording() const
    {
        return recording_from(set<qorin_rpc_robot_recording_create, recording_id>());
    }
    [[nodiscard]] result<scoped<recording>> load_recording(std::string_view file) const
    {
        return recording_from(set<qorin_rpc_robot_recording_create_from_file, recording_id>(file));
    }

    /// Has the robot follow a stream to this address, that of its control box. The first address of a robot counts for
    /// the life of the process.
    [[nodiscard]] result<scoped<joint_stream>> stream_joints(std::string_view address) const
    {
        const auto on = detail::in_turn([&] { return set<qorin_rpc_robot_joint_chaser_ip_set>(address); },
                                        [&] { return set<qorin_rpc_robot_joint_chaser_switch_set>(true); });
        if (!on)
            return unexpected(on.error());
        return scoped(joint_stream(id_at<0>(), id()));
    }

protected:
    result<void> end() const { return set<qorin_rpc_robot_destroy>(); }

private:
    /// Filled in place: to copy what has just been written number by number would cost more than to read one.
    template <auto Function>
    result<qorin::joints> of_joints() const
    {
        result<qorin::joints> all(qorin::joints{});
        for (unsigned int joint = 0; joint < joint_count && all; ++joint)
            if (const auto code = Function(id_at<0>().number, id().number, joint, &(*all)[joint]);
                code != QORIN_API_RESULT_OK) [[unlikely]]
                all = unexpected(error(code, detail::name_of<Function>()));
        return all;
    }
    [[nodiscard]] result<scoped<recording>> recording_from(const result<recording_id>& made) const
    {
        if (!made)
            return unexpected(made.error());
        return scoped(recording(id_at<0>(), id(), *made));
    }
};

inline result<robot_status> robot::status() const
{
    robot_status all;
    const auto take = [](auto& place, const auto& given)
    {
        if (given)
            place = *given;
        return given ? result<void>() : result<void>(unexpected(given.error()));
    };
    const auto take_joints = [&](per_joint& place, const auto& given)
    { return given ? (place = given->degrees, result<void>()) : result<void>(unexpected(given.error())); };
    const auto done = detail::in_turn(
        [&] { return take(all.moving, moving()); }, [&] { return take(all.control_mode, control_mode()); },
        [&] { return take(all.servo_on, is_servo_on()); }, [&] { return take(all.speed_factor, speed_factor()); },
        [&] { return take(all.actual, joints()); }, [&] { return take(all.commanded, joints_commanded()); },
        [&] { return take_joints(all.speed_deg_s, of_joints<qorin_rpc_robot_joint_speed_actual_get>()); },
        [&] { return take_joints(all.torque_nm, of_joints<qorin_rpc_robot_joint_torque_actual_get>()); },
        [&] { return take_joints(all.temperature_c, of_joints<qorin_rpc_robot_joint_temperature_get>()); },
        [&] { return take(all.tcp, tcp()); }, [&] { return take(all.tcp_commanded, tcp_commanded()); },
        [&] { return take(all.flange, flange()); });
    return done ? result<robot_status>(all) : result<robot_status>(unexpected(done.error()));
}

inline result<pose> robot::pose_at(const qorin::joints& angles, QORIN_POSE_TYPE of) const
{
    constexpr auto convert = qorin_rpc_robot_util_joint_angle_to_pose_convert;
    double at[3] = {};
    double turned[3] = {};
    const auto code = convert(id_at<0>().number, id().number, of, angles.degrees.data(), at, turned);
    if (code != QORIN_API_RESULT_OK)
        return unexpected(error(code, detail::name_of<convert>()));
    return pose{at[0], at[1], at[2], turned[0], turned[1], turned[2]};
}

inline result<joints> robot::joints_at(const pose& target, const qorin::joints& near, QORIN_POSE_TYPE of) const
{
    constexpr auto convert = qorin_rpc_robot_util_pose_to_joint_angle_convert;
    const double at[3] = {target.x_mm, target.y_mm, target.z_mm};
    const double turned[3] = {target.rx_deg, target.ry_deg, target.rz_deg};
    qorin::joints found;
    const auto code =
        convert(id_at<0>().number, id().number, of, near.degrees.data(), at, turned, found.degrees.data());
    if (code != QORIN_API_RESULT_OK)
        return unexpected(error(code, detail::name_of<convert>()));
    return found;
}

inline result<std::array<std::optional<joints>, 8>> robot::all_joints_at(const pose& flange) const
{
    constexpr auto convert = qorin_rpc_robot_util_pose_to_joint_all_possible_angle_convert;
    const double at[3] = {flange.x_mm, flange.y_mm, flange.z_mm};
    const double turned[3] = {flange.rx_deg, flange.ry_deg, flange.rz_deg};
    double angles[8 * joint_count] = {};
    bool valid[8] = {};
    const auto code = convert(id_at<0>().number, id().number, at, turned, angles, valid);
    if (code != QORIN_API_RESULT_OK)
        return unexpected(error(code, detail::name_of<convert>()));
    std::array<std::optional<qorin::joints>, 8> all;
    const std::size_t count = joints_in_all().value_or(joint_count);
    for (std::size_t i = 0; i < all.size(); ++i)
        if (valid[i])
            std::copy_n(angles + i * count, std::min(count, joint_count), all[i].emplace().degrees.begin());
    return all;
}
} // namespace qorin::inline QORIN_LAYER

#endif
