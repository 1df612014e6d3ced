#include "simulator/model/motion_plan.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "kinematics/angles.h"

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

joint_array end_of(const joint_path& path, joint_array joints)
{
    for (std::size_t joint = 0; joint < joints.size(); ++joint)
        joints[joint] = path.angle_end[joint].value_or(joints[joint]);
    return joints;
}

/// The end of a path that starts at a pose, both seen from the base.
pose end_of(const tcp_path& path, const pose& start)
{
    const bool from_tcp = path.coordinate == QORIN_REF_COORDINATE_TCP;
    pose end = from_tcp ? pose{} : start;
    if (path.direction)
    {
        if (path.position_start)
            std::ranges::copy(*path.position_start, end.begin());
        std::ranges::transform(*path.direction, end, end.begin(), std::plus{});
    }
    else if (path.position_end)
    {
        std::ranges::copy(*path.position_end, end.begin());
    }
    if (path.interpolator == QORIN_INTERPOLATOR_FREE_PATH && !path.free_path_points.empty())
        std::ranges::copy(path.free_path_points.back(), end.begin());
    if (path.orientation_end)
        std::ranges::copy(*path.orientation_end, end.begin() + 3);
    return from_tcp ? placed(start, end) : end;
}

/// Joints 4 and 6 then turn about one axis.
bool is_wrist_straight(const robot_state& robot, const joint_array& joints)
{
    constexpr double straight = 1e-6;
    return std::abs(std::sin(savrent::kinematics::radians(joints[4] + robot.table().theta[4]))) < straight;
}

QORIN_API_RESULT plan_tcp_end(const tcp_path& path, const robot_state& robot, joint_array& joints)
{
    if (is_circular(path.interpolator) &&
        (are_same(path.position_start, path.position_mid) || are_same(path.position_mid, path.position_end)))
        return QORIN_API_RESULT_ERROR_MOTION_TWO_POSITION_SAME;
    const pose tool = path.pose_type == QORIN_POSE_TYPE_TCP ? robot.tcp_from_flange() : pose{};
    const pose end = end_of(path, placed(robot.flange_pose_at(joints), tool));
    const auto solution = robot.joints_at(outer_of(end, tool), joints);
    if (!solution || !robot.can_stand_at(*solution))
        return QORIN_API_RESULT_ERROR_MOTION_OUT_OF_ANGLE_RANGE;
    if (is_wrist_straight(robot, *solution))
        return QORIN_API_RESULT_ERROR_MOTION_SINGULARITY_POINT;
    joints = *solution;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT plan_joint_end(const joint_path& path, const robot_state& robot, joint_array& joints)
{
    const auto end = end_of(path, joints);
    if (!robot.can_stand_at(end))
        return QORIN_API_RESULT_ERROR_MOTION_OUT_OF_ANGLE_RANGE;
    joints = end;
    return QORIN_API_RESULT_OK;
}
} // namespace

bool is_ready_to_move(const robot_state& robot, const cbox_state& cbox)
{
    const auto is_pushed = [](QORIN_BUTTON_STATE button) { return button == QORIN_BUTTON_STATE_PUSHED; };
    return robot.settings().switches.servo == QORIN_SWITCH_ON &&
           robot.settings().control_mode == QORIN_DRIVE_CONTROL_MODE_POSITION &&
           cbox.ecat_connection_state() == QORIN_ECAT_CONN_STATE_CONNECTED && !is_pushed(cbox.emergency_button()) &&
           std::ranges::none_of(cbox.amr_emergency_buttons(), is_pushed);
}

QORIN_API_RESULT plan_end(const motion_command& command, const robot_state& robot, joint_array& joints)
{
    const auto* joint = command.find<joint_path>();
    const auto* tcp = command.find<tcp_path>();
    if (joint ? !has_end(*joint) : !has_end(*tcp))
        return QORIN_API_RESULT_WARNING_MOTION_COMMAND_PARAMETERS_ARE_EMPTY;
    return joint ? plan_joint_end(*joint, robot, joints) : plan_tcp_end(*tcp, robot, joints);
}
} // namespace cbox_simulator
