#include "simulator/model/motion_plan.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "simulator/motion/command_path.h"
#include "simulator/motion/way_check.h"

namespace cbox_simulator
{
namespace
{
using joint_array = robot_state::joint_array;

bool has_end(const joint_path& path)
{
    return std::ranges::any_of(path.angle_end, [](const auto& angle) { return angle.has_value(); });
}

bool has_end(const tcp_path& path)
{
    return path.position_end || path.direction || path.orientation_end || !path.free_path_points.empty();
}

bool is_circular(QORIN_INTERPOLATOR interpolator)
{
    return interpolator >= QORIN_INTERPOLATOR_CIRCULAR && interpolator <= QORIN_INTERPOLATOR_CIRCLE;
}

/// Points that are not told are never the same.
bool are_same(const std::optional<vector3>& a, const std::optional<vector3>& b)
{
    return a && a == b;
}

/// Told to begin where it ends, so that there is no way between.
bool leads_nowhere(const joint_path& path)
{
    bool same = false;
    for (std::size_t joint = 0; joint < path.angle_end.size(); ++joint)
    {
        const auto& [start, end] = std::pair(path.angle_start[joint], path.angle_end[joint]);
        if (end && start != end)
            return false;
        same = same || end;
    }
    return same;
}

/// A turn on the spot leads somewhere.
bool leads_nowhere(const tcp_path& path)
{
    if (path.orientation_end && !are_same(path.orientation_start, path.orientation_end))
        return false;
    return are_same(path.position_start, path.position_end) || path.direction == vector3{};
}

motion::motion_limits limits_of(const motion_command& command)
{
    return {.speed_max = command.speed_max,
            .acc_max = command.acc_max,
            .dec_max = command.dec_max,
            .jerk_percentage = command.jerk_percentage,
            .profile = command.velocity_profiler};
}

double blend_radius_of(const motion_command& command)
{
    return command.blending_motion_mode == QORIN_SWITCH_ON && command.blending_stop_mode != QORIN_SWITCH_ON
               ? command.radius_for_blending
               : 0;
}

joint_array end_of(const joint_path& path, joint_array joints)
{
    for (std::size_t joint = 0; joint < joints.size(); ++joint)
        joints[joint] = path.angle_end[joint].value_or(joints[joint]);
    return joints;
}

command_plan plan_joint_command(const motion_command& command, const joint_path& path, const robot_state& robot,
                                const command_start& start)
{
    if (leads_nowhere(path))
        return {QORIN_API_RESULT_ERROR_MOTION_TWO_POSITION_SAME, {}};
    const auto end = end_of(path, start.joints);
    // Between two places within the ranges all of the way is; from one beyond them the arm must find back.
    if (!robot.can_stand_at(end))
        return {QORIN_API_RESULT_ERROR_MOTION_OUT_OF_ANGLE_RANGE, {}};
    const motion::joint_motion moved(start.joints, end, limits_of(command), robot.bounds());
    return {QORIN_API_RESULT_OK, planned_command{{moved, blend_radius_of(command)}, {end, {}}, command.speed_max}};
}

/// As fast as told, or as the joints can keep up.
command_plan plan_at_speed_of_joints(const motion_command& command, const tcp_path& told, const motion::pose_path& path,
                                     const robot_state& robot, const joint_array& start)
{
    auto limits = limits_of(command);
    const auto way = motion::check_way(motion::planned_motion(motion::tcp_motion(path, limits, 0, 0, told.pose_type)),
                                       {robot.kinematics(), robot.bounds(), robot.tcp_from_flange()}, start);
    if (way.result != QORIN_API_RESULT_OK)
        return {way.result, {}};
    limits.speed_max = std::min(limits.speed_max, way.speed_limit);
    if (limits.speed_max < command.speed_max && std::max(told.speed_start, told.speed_end) > limits.speed_max)
        return {QORIN_API_RESULT_ERROR_MOTION_AUTO_SPEED_DOWN_FAILURE, {}};
    const motion::tcp_motion moved(path, limits, told.speed_start, told.speed_end, told.pose_type);
    return {QORIN_API_RESULT_OK, planned_command{{moved, blend_radius_of(command)},
                                                 {way.end_joints, path.direction_at(path.length())},
                                                 limits.speed_max}};
}

command_plan plan_tcp_command(const motion_command& command, const tcp_path& path, const robot_state& robot,
                              const command_start& start)
{
    if (leads_nowhere(path))
        return {QORIN_API_RESULT_ERROR_MOTION_TWO_POSITION_SAME, {}};
    if (is_circular(path.interpolator) &&
        (are_same(path.position_start, path.position_mid) || are_same(path.position_mid, path.position_end)))
        return {QORIN_API_RESULT_ERROR_MOTION_TWO_POSITION_SAME, {}};
    const pose tool = path.pose_type == QORIN_POSE_TYPE_TCP ? robot.tcp_from_flange() : pose{};
    const auto [result, way] = motion::path_of(path, placed(robot.flange_pose_at(start.joints), tool), start.arriving);
    return result == QORIN_API_RESULT_OK ? plan_at_speed_of_joints(command, path, *way, robot, start.joints)
                                         : command_plan{result, {}};
}
} // namespace

bool command_start::is_near(const command_start& other) const
{
    constexpr double invisible = 1e-6; // degrees, and of a direction
    const auto near = [](double a, double b) { return std::abs(a - b) < invisible; };
    return std::ranges::equal(joints, other.joints, near) && arriving.has_value() == other.arriving.has_value() &&
           (!arriving || std::ranges::equal(*arriving, *other.arriving, near));
}

bool arm_setup::operator==(const arm_setup& other) const
{
    return table.theta == other.table.theta && table.d == other.table.d && table.a == other.table.a &&
           table.alpha == other.table.alpha && tool == other.tool && bounds == other.bounds;
}

arm_setup setup_of(const robot_state& robot)
{
    arm_setup setup{robot.table(), robot.tcp_from_flange(), {}};
    const auto bounds = robot.bounds();
    for (std::size_t joint = 0; joint < bounds.size(); ++joint)
    {
        setup.bounds[0][joint] = bounds[joint].angle_min;
        setup.bounds[1][joint] = bounds[joint].angle_max;
        setup.bounds[2][joint] = bounds[joint].speed_max;
        setup.bounds[3][joint] = bounds[joint].acceleration_max;
    }
    return setup;
}

command_plan plan_command(const motion_command& command, const robot_state& robot, const command_start& start)
{
    const auto* joint = command.find<joint_path>();
    const auto* tcp = command.find<tcp_path>();
    if (joint ? !has_end(*joint) : !has_end(*tcp))
        return {QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY, {}};
    return joint ? plan_joint_command(command, *joint, robot, start) : plan_tcp_command(command, *tcp, robot, start);
}

bool goes_over(const motion_command& from, const motion_command& to)
{
    if (to.start || from.blending_stop_mode == QORIN_SWITCH_ON)
        return false;
    const auto* first = from.find<tcp_path>();
    const auto* second = to.find<tcp_path>();
    return blend_radius_of(from) > 0 || (first && second && first->speed_end > 0 && second->speed_start > 0);
}
} // namespace cbox_simulator
