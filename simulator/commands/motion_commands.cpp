#include "simulator/commands/families.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <string_view>
#include <utility>
#include <vector>

#include "simulator/commands/motion_value.h"

namespace cbox_simulator
{
namespace
{
using motion_value::get;
using motion_value::get_vector;
using motion_value::set;
using motion_value::set_vector;
using savrent::kinematics::joint_count;
using enum number_range;

template <motion_kind kind>
QORIN_API_RESULT create(box_model& model, std::uint32_t& id)
{
    return model.system() ? model.motion_commands().add(motion_command(kind), id)
                          : QORIN_API_RESULT_ERROR_SYSTEM_CONTROL_SW_NOT_INIT;
}

QORIN_API_RESULT deep_copy(box_model& model, motion_command& command, std::uint32_t& id)
{
    return model.motion_commands().add(command, id);
}

QORIN_API_RESULT destroy(box_model& model, std::uint32_t id)
{
    return model.motion_commands().destroy(id);
}

QORIN_API_RESULT destroy_all(box_model& model)
{
    model.motion_commands().destroy_all();
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT queue_add(box_model& model, std::uint32_t id)
{
    auto* command = model.motion_commands().find(id);
    return command ? model.motions().add(id, *command) : QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID;
}

/// Of TCP motions only; to the simulated box it is the same queue.
QORIN_API_RESULT internal_add(box_model& model, std::uint32_t id)
{
    auto* command = model.motion_commands().find(id);
    return command && command->find<tcp_path>() ? model.motions().add(id, *command)
                                                : QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID;
}

QORIN_API_RESULT queue_clear(box_model& model)
{
    model.motions().clear();
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT queue_flush(box_model& model)
{
    return model.motions().flush();
}

QORIN_API_RESULT is_runnable(box_model& model, motion_command& command)
{
    return model.motions().judge(command);
}

QORIN_API_RESULT robot_id_set(box_model& model, motion_command& command, std::uint32_t robot_id)
{
    if (!model.robots().exists(robot_id))
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    command.robot_id = robot_id;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT robot_id_get(motion_command& command, std::uint32_t& robot_id)
{
    robot_id = command.robot_id.value_or(0);
    return command.robot_id ? QORIN_API_RESULT_OK : QORIN_API_RESULT_ERROR_ROBOT_ID_MUST_BE_SET_FIRST;
}

QORIN_API_RESULT name_set(motion_command& command, std::string_view name)
{
    command.name = name;
    return QORIN_API_RESULT_OK;
}

/// A reply has no room for texts: the first four bytes go back as the number that they make.
QORIN_API_RESULT name_get(motion_command& command, std::uint32_t& start_of_name)
{
    std::array<char, sizeof start_of_name> bytes{};
    std::copy_n(command.name.begin(), std::min(command.name.size(), bytes.size()), bytes.begin());
    start_of_name = std::bit_cast<std::uint32_t>(bytes);
    return QORIN_API_RESULT_OK;
}

/// Of TCP motions only: what the joints can keep up with, once the command has been judged or queued.
QORIN_API_RESULT adjusted_speed_get(motion_command& command, double& speed)
{
    if (!command.find<tcp_path>())
        return QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID;
    if (!command.robot_id)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_MUST_BE_SET_FIRST;
    speed = command.adjusted_speed.value_or(command.speed_max);
    return QORIN_API_RESULT_OK;
}

/// The event switch is the robot's: it is in force at once, and no command brings it back.
QORIN_API_RESULT weaving_event_set(box_model& model, motion_command& command, QORIN_SWITCH value)
{
    if (!command.robot_id)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_MUST_BE_SET_FIRST;
    auto* robot = model.robots().find(*command.robot_id);
    if (!robot)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    const auto result = motion_value::judge(value);
    if (result == QORIN_API_RESULT_OK)
        robot->settings().switches.weaving_event = value;
    return result;
}

QORIN_API_RESULT start_condition_set(motion_command& command, QORIN_IO_TYPE type, std::uint32_t channel,
                                     std::int32_t value)
{
    const start_condition condition{type, channel, value};
    const auto result = judge(condition);
    if (result == QORIN_API_RESULT_OK)
        command.start = condition;
    return result;
}

QORIN_API_RESULT io_command_set(motion_command& command, QORIN_IO_CONTROL_CONDITION condition, double when,
                                QORIN_IO_TYPE type, std::uint32_t channel, double value)
{
    const io_command io{condition, when, type, channel, value};
    const auto result = judge(io);
    if (result == QORIN_API_RESULT_OK)
        command.io = io;
    return result;
}

template <auto angles>
QORIN_API_RESULT angle_set(joint_path& path, std::uint32_t joint, double angle)
{
    if (joint >= joint_count || !std::isfinite(angle))
        return QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE;
    (path.*angles)[joint] = angle;
    return QORIN_API_RESULT_OK;
}

template <auto angles>
QORIN_API_RESULT angle_get(joint_path& path, std::uint32_t joint, double& angle)
{
    if (joint >= joint_count)
        return QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE;
    angle = (path.*angles)[joint].value_or(0);
    return QORIN_API_RESULT_OK;
}

/// Of a told end and a way to it, the last one counts.
template <auto told, auto dropped>
QORIN_API_RESULT end_set(tcp_path& path, double x, double y, double z)
{
    const auto result = set_vector<told>(path, x, y, z);
    if (result == QORIN_API_RESULT_OK)
        (path.*dropped).reset();
    return result;
}

/// No more points than a block holds can arrive.
QORIN_API_RESULT free_path_points_set(tcp_path& path, std::uint32_t count, const block_of<double>& x,
                                      const block_of<double>& y, const block_of<double>& z)
{
    if (count == 0 || count > x.size())
        return QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE;
    std::vector<vector3> points;
    for (std::size_t point = 0; point < count; ++point)
    {
        if (const auto result = motion_value::judge({x[point], y[point], z[point]}); result != QORIN_API_RESULT_OK)
            return result;
        points.push_back({x[point], y[point], z[point]});
    }
    path.free_path_points = std::move(points);
    return QORIN_API_RESULT_OK;
}

/// In which distance of its end a motion in one request blends into the next: degrees, or millimetres.
constexpr double joint_blend_radius = 5;
constexpr double tcp_blend_radius = 10;

/// A command for a motion in one request. It comes to its speed within half a second, and no more gently than one that
/// is told no acceleration.
motion_command single_motion(motion_kind kind, QORIN_SWITCH blending, std::uint32_t robot_id, double speed)
{
    constexpr double accelerations_of_speed = 2;
    motion_command command(kind);
    command.robot_id = robot_id;
    command.speed_max = speed;
    command.acc_max = std::max(command.acc_max, speed * accelerations_of_speed);
    command.dec_max = command.acc_max;
    command.blending_motion_mode = blending;
    command.radius_for_blending = kind == motion_kind::joint ? joint_blend_radius : tcp_blend_radius;
    return command;
}

template <QORIN_SWITCH blending>
QORIN_API_RESULT just_joint_move(box_model& model, std::uint32_t robot_id, double speed, std::uint32_t count,
                                 const block_of<double>& angles)
{
    const auto* robot = model.robots().find(robot_id);
    if (!robot)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    if (count != robot->joint_count())
        return QORIN_API_RESULT_ERROR_ROBOT_NUMBER_OF_JOINT_NOT_MATCHED;
    if (const auto result = motion_value::judge<positive>(speed); result != QORIN_API_RESULT_OK)
        return result;
    motion_command command = single_motion(motion_kind::joint, blending, robot_id, speed);
    std::copy_n(angles.begin(), count, command.find<joint_path>()->angle_end.begin());
    return model.motions().run_now(command);
}

/// The speed, then the position and the orientation of the TCP at the end, seen from the base.
template <QORIN_SWITCH blending>
QORIN_API_RESULT just_tcp_move(box_model& model, std::uint32_t robot_id, double speed, double x, double y, double z,
                               double rx, double ry, double rz)
{
    if (!model.robots().exists(robot_id))
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    if (const auto result = motion_value::judge({x, y, z, rx, ry, rz}); result != QORIN_API_RESULT_OK)
        return result;
    if (const auto result = motion_value::judge<positive>(speed); result != QORIN_API_RESULT_OK)
        return result;
    motion_command command = single_motion(motion_kind::tcp, blending, robot_id, speed);
    auto& path = *command.find<tcp_path>();
    path.position_end = {x, y, z};
    path.orientation_end = {rx, ry, rz};
    return model.motions().run_now(command);
}

using command = motion_command;

constexpr command_row rows[] = {
    controlled<create<motion_kind::joint>>("qorin_motion_command_robot_joint_create"),
    controlled<create<motion_kind::tcp>>("qorin_motion_command_robot_tcp_create"),
    controlled<create<motion_kind::tcp_welding>>("qorin_motion_command_robot_tcp_welding_create"),
    controlled<deep_copy>("qorin_motion_command_deep_copy"),
    controlled<destroy>("qorin_motion_command_destroy"),
    controlled<destroy_all>("qorin_motion_command_destroy_all"),
    controlled<queue_add>("qorin_motion_command_queue_add"),
    controlled<internal_add>("qorin_motion_command_robot_tcp_internal_add"),
    controlled<queue_clear>("qorin_motion_command_queue_clear"),
    controlled<queue_flush>("qorin_motion_command_queue_flush"),
    controlled<is_runnable>("qorin_motion_command_is_runnable"),
    controlled<robot_id_set>("qorin_motion_command_robot_robot_id_set"),
    controlled<robot_id_get>("qorin_motion_command_robot_robot_id_get"),
    controlled<name_set>("qorin_motion_command_name_set"),
    controlled<name_get>("qorin_motion_command_name_get"),
    controlled<weaving_event_set>("qorin_motion_command_robot_weaving_event_set"),
    controlled<start_condition_set>("qorin_motion_command_start_condition_set"),
    controlled<io_command_set>("qorin_motion_command_io_command_type_set"),
    controlled<get<&command::running_time>>("qorin_motion_command_running_time_get"),

    controlled<set<&command::velocity_profiler>>("qorin_motion_command_velocity_profiler_set"),
    controlled<get<&command::velocity_profiler>>("qorin_motion_command_velocity_profiler_get"),
    controlled<set<&command::acc_max, positive>>("qorin_motion_command_acc_max_set"),
    controlled<get<&command::acc_max>>("qorin_motion_command_acc_max_get"),
    controlled<set<&command::dec_max, positive>>("qorin_motion_command_dec_max_set"),
    controlled<get<&command::dec_max>>("qorin_motion_command_dec_max_get"),
    controlled<set<&command::speed_max, positive>>("qorin_motion_command_speed_max_set"),
    controlled<get<&command::speed_max>>("qorin_motion_command_speed_max_get"),
    controlled<set<&command::jerk_percentage, percentage>>("qorin_motion_command_jerk_percentage_set"),
    controlled<get<&command::jerk_percentage>>("qorin_motion_command_jerk_percentage_get"),

    controlled<set<&command::blending_motion_mode>>("qorin_motion_command_blending_motion_mode_set"),
    controlled<get<&command::blending_motion_mode>>("qorin_motion_command_blending_motion_mode_get"),
    controlled<set<&command::blending_auto_start>>("qorin_motion_command_blending_auto_start_set"),
    controlled<get<&command::blending_auto_start>>("qorin_motion_command_blending_auto_start_get"),
    controlled<set<&command::blending_stop_mode>>("qorin_motion_command_blending_stop_mode_set"),
    controlled<get<&command::blending_stop_mode>>("qorin_motion_command_blending_stop_mode_get"),
    controlled<set<&command::radius_for_blending, not_negative>>("qorin_motion_command_radius_for_blending_set"),
    controlled<get<&command::radius_for_blending>>("qorin_motion_command_radius_for_blending_get"),

    controlled<angle_set<&joint_path::angle_start>>("qorin_motion_command_robot_joint_angle_start_set"),
    controlled<angle_get<&joint_path::angle_start>>("qorin_motion_command_robot_joint_angle_start_get"),
    controlled<angle_set<&joint_path::angle_end>>("qorin_motion_command_robot_joint_angle_end_set"),
    controlled<angle_get<&joint_path::angle_end>>("qorin_motion_command_robot_joint_angle_end_get"),

    controlled<set_vector<&tcp_path::position_start>>("qorin_motion_command_robot_tcp_position_start_set"),
    controlled<get_vector<&tcp_path::position_start>>("qorin_motion_command_robot_tcp_position_start_get"),
    controlled<set_vector<&tcp_path::position_mid>>("qorin_motion_command_robot_tcp_position_mid_set"),
    controlled<get_vector<&tcp_path::position_mid>>("qorin_motion_command_robot_tcp_position_mid_get"),
    controlled<end_set<&tcp_path::position_end, &tcp_path::direction>>(
        "qorin_motion_command_robot_tcp_position_end_set"),
    controlled<get_vector<&tcp_path::position_end>>("qorin_motion_command_robot_tcp_position_end_get"),
    // Three numbers tell the way and no turn: the orientation ends as it starts, or as it is set, in either form.
    controlled<end_set<&tcp_path::direction, &tcp_path::position_end>>(
        "qorin_motion_command_robot_tcp_position_end_set_from_direction"),
    controlled<end_set<&tcp_path::direction, &tcp_path::position_end>>(
        "qorin_motion_command_robot_tcp_position_and_orientation_end_set_from_direction"),
    controlled<set_vector<&tcp_path::orientation_start>>("qorin_motion_command_robot_tcp_orientation_start_set"),
    controlled<get_vector<&tcp_path::orientation_start>>("qorin_motion_command_robot_tcp_orientation_start_get"),
    controlled<set_vector<&tcp_path::orientation_end>>("qorin_motion_command_robot_tcp_orientation_end_set"),
    controlled<get_vector<&tcp_path::orientation_end>>("qorin_motion_command_robot_tcp_orientation_end_get"),
    controlled<free_path_points_set>("qorin_motion_command_robot_tcp_free_path_points_set"),

    controlled<set<&tcp_path::speed_start, not_negative>>("qorin_motion_command_robot_tcp_speed_start_set"),
    controlled<get<&tcp_path::speed_start>>("qorin_motion_command_robot_tcp_speed_start_get"),
    controlled<set<&tcp_path::speed_end, not_negative>>("qorin_motion_command_robot_tcp_speed_end_set"),
    controlled<get<&tcp_path::speed_end>>("qorin_motion_command_robot_tcp_speed_end_get"),
    controlled<set<&tcp_path::radius, not_negative>>("qorin_motion_command_robot_tcp_radius_set"),
    controlled<get<&tcp_path::radius>>("qorin_motion_command_robot_tcp_radius_get"),
    controlled<adjusted_speed_get>("qorin_motion_command_robot_tcp_adjusted_speed_get"),
    controlled<set<&tcp_path::coordinate>>("qorin_motion_command_robot_tcp_coordinate_set"),
    controlled<get<&tcp_path::coordinate>>("qorin_motion_command_robot_tcp_coordinate_get"),
    controlled<set<&tcp_path::pose_type>>("qorin_motion_command_robot_tcp_pose_type_set"),
    controlled<set<&tcp_path::offset_mode>>("qorin_motion_command_robot_tcp_offset_mode_set"),
    controlled<get<&tcp_path::offset_mode>>("qorin_motion_command_robot_tcp_offset_mode_get"),
    controlled<set<&tcp_path::interpolator>>("qorin_motion_command_robot_tcp_interpolator_set"),
    controlled<get<&tcp_path::interpolator>>("qorin_motion_command_robot_tcp_interpolator_get"),
    controlled<set<&tcp_path::orientation_mode>>("qorin_motion_command_robot_orientation_mode_set"),
    controlled<get<&tcp_path::orientation_mode>>("qorin_motion_command_robot_orientation_mode_get"),

    controlled<just_joint_move<QORIN_SWITCH_OFF>>("qorin_just_robot_joint_move"),
    controlled<just_joint_move<QORIN_SWITCH_ON>>("qorin_just_robot_blending_joint_move"),
    controlled<just_tcp_move<QORIN_SWITCH_OFF>>("qorin_just_robot_tcp_move"),
    controlled<just_tcp_move<QORIN_SWITCH_ON>>("qorin_just_robot_blending_tcp_move"),
};
} // namespace

std::span<const command_row> motion_commands()
{
    return rows;
}
} // namespace cbox_simulator
