#include "simulator/commands/families.h"

#include <algorithm>
#include <array>

#include "simulator/commands/robot_setters.h"
#include "simulator/commands/typed_command.h"
#include "simulator/commands/when_ready.h"

namespace cbox_simulator
{
namespace
{
using settings = robot_settings;

QORIN_API_RESULT profiler_period_set(box_model& model, robot_state& robot, std::uint32_t milliseconds)
{
    return robot.profiler().set_period(milliseconds, model.control_cycle_us());
}

QORIN_API_RESULT profiler_switch_set(robot_state& robot, QORIN_SWITCH value)
{
    return robot.profiler().set_active(value);
}

QORIN_API_RESULT profiler_tcp_type_set(robot_state& robot, QORIN_POSE_TYPE value)
{
    return robot.profiler().set_pose_type(value);
}

QORIN_API_RESULT judge_joints(const robot_state& robot, std::uint32_t count, const block_of<double>& angles)
{
    if (count != robot.joint_count())
        return QORIN_API_RESULT_ERROR_ROBOT_NUMBER_OF_JOINT_NOT_MATCHED;
    return std::all_of(angles.begin(), angles.begin() + count, possible)
               ? QORIN_API_RESULT_OK
               : QORIN_API_RESULT_ERROR_ROBOT_JOINT_PARAM_OUT_OF_RANGE;
}

QORIN_API_RESULT add_pose(robot_state& robot, const pose& point)
{
    return is_finite(point) ? robot.profiler().add({profiler_point::kind::pose, point})
                            : QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
}

QORIN_API_RESULT profiler_joint_add(robot_state& robot, std::uint32_t count, const block_of<double>& angles)
{
    if (const auto judged = judge_joints(robot, count, angles); judged != QORIN_API_RESULT_OK)
        return judged;
    profiler_point point{profiler_point::kind::joints, {}};
    std::copy_n(angles.begin(), count, point.values.begin());
    return robot.profiler().add(point);
}

QORIN_API_RESULT profiler_euler_add(robot_state& robot, double x, double y, double z, double rx, double ry, double rz)
{
    return add_pose(robot, {x, y, z, rx, ry, rz});
}

/// The quaternion's scalar part comes last.
QORIN_API_RESULT profiler_quaternion_add(robot_state& robot, double x, double y, double z, double qx, double qy,
                                         double qz, double qw)
{
    if (qx == 0 && qy == 0 && qz == 0 && qw == 0)
        return QORIN_API_RESULT_ERROR_ROBOT_VECTOR_SIZE_ZERO;
    const auto orientation = orientation_of_quaternion(qx, qy, qz, qw);
    return add_pose(robot, {x, y, z, orientation[0], orientation[1], orientation[2]});
}

QORIN_API_RESULT move_switch_set(robot_state& robot, QORIN_SWITCH value)
{
    return robot.ext_move().set_active(value);
}

QORIN_API_RESULT move_stop_mode_set(robot_state& robot, QORIN_SWITCH value)
{
    return robot.ext_move().set_stop_mode(value);
}

template <auto value>
QORIN_API_RESULT move_get(robot_state& robot, QORIN_SWITCH& kept)
{
    kept = (robot.ext_move().*value)();
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT add_target(robot_state& robot, const robot_state::joint_array& joints, double seconds)
{
    if (!is_possible(seconds, number_range::not_negative))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    return robot.can_stand_at(joints) ? robot.ext_move().add({joints, seconds})
                                      : QORIN_API_RESULT_ERROR_MOTION_OUT_OF_ANGLE_RANGE;
}

/// The joints that are nearest to those of the target before.
QORIN_API_RESULT add_target_pose(robot_state& robot, QORIN_POSE_TYPE type, const pose& target, double seconds)
{
    if (!is_possible(type) || !is_finite(target))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    const auto& ahead = robot.ext_move().last();
    const auto flange = type == QORIN_POSE_TYPE_TCP ? outer_of(target, robot.tcp_from_flange()) : target;
    const auto joints = robot.joints_at(flange, ahead ? ahead->joints : robot.commanded().joints);
    return joints ? add_target(robot, *joints, seconds) : QORIN_API_RESULT_ERROR_MOTION_OUT_OF_ANGLE_RANGE;
}

QORIN_API_RESULT move_euler_add(robot_state& robot, QORIN_POSE_TYPE type, double x, double y, double z, double rx,
                                double ry, double rz, double seconds)
{
    return add_target_pose(robot, type, {x, y, z, rx, ry, rz}, seconds);
}

QORIN_API_RESULT move_quaternion_add(robot_state& robot, QORIN_POSE_TYPE type, double x, double y, double z, double qx,
                                     double qy, double qz, double qw, double seconds)
{
    if (qx == 0 && qy == 0 && qz == 0 && qw == 0)
        return QORIN_API_RESULT_ERROR_ROBOT_VECTOR_SIZE_ZERO;
    const auto orientation = orientation_of_quaternion(qx, qy, qz, qw);
    return add_target_pose(robot, type, {x, y, z, orientation[0], orientation[1], orientation[2]}, seconds);
}

QORIN_API_RESULT move_joint(robot_state& robot, std::uint32_t count, const block_of<double>& angles, double seconds)
{
    if (const auto judged = judge_joints(robot, count, angles); judged != QORIN_API_RESULT_OK)
        return judged;
    robot_state::joint_array joints{};
    std::copy_n(angles.begin(), count, joints.begin());
    return add_target(robot, joints, seconds);
}

template <QORIN_CONVEYOR_MODE mode>
QORIN_API_RESULT conveyor_mode_set(robot_state& robot)
{
    robot.settings().conveyor_mode = mode;
    return QORIN_API_RESULT_OK;
}

// Encoders are the box's: the robot needs to be one, and no more.

QORIN_API_RESULT conveyor_encoder_switch_set(box_model& model, robot_state&, QORIN_SWITCH value)
{
    return model.cbox().set_conveyor_encoder_switch(value);
}

QORIN_API_RESULT conveyor_encoder_info_set(box_model& model, robot_state&, QORIN_CONVEYOR_ENCODER_TYPE type,
                                           double scale_divisor, double scale_factor, std::int32_t encoder)
{
    return model.cbox().set_up_conveyor_encoder(static_cast<std::uint32_t>(encoder), type, scale_divisor, scale_factor);
}

constexpr command_row rows[] = {
    controlled<profiler_period_set>("qorin_robot_ext_profiler_period_set"),
    controlled<while_standing<when_ready<profiler_switch_set>>>("qorin_robot_ext_profiler_switch_set"),
    controlled<profiler_euler_add>("qorin_robot_ext_profiler_pos_ort_euler_add"),
    controlled<profiler_joint_add>("qorin_robot_ext_profiler_joint_add"),
    controlled<profiler_tcp_type_set>("qorin_robot_ext_profiler_tcp_type_set"),
    controlled<profiler_quaternion_add>("qorin_robot_ext_profiler_pos_ort_quat_add"),
    controlled<while_standing<when_ready<move_switch_set>>>("qorin_robot_ext_move_switch_set"),
    controlled<move_stop_mode_set>("qorin_robot_ext_move_stop_mode_set"),
    controlled<move_get<&external_move::active>>("qorin_robot_ext_move_switch_get"),
    controlled<move_get<&external_move::stop_mode>>("qorin_robot_ext_move_stop_mode_get"),
    controlled<when_ready<move_euler_add>>("qorin_robot_ext_move_pos_ort_euler_add"),
    controlled<when_ready<move_quaternion_add>>("qorin_robot_ext_move_pos_ort_quat_add"),
    controlled<when_ready<move_joint>>("qorin_robot_ext_move_joint"),
    controlled<while_standing<when_ready<conveyor_mode_set<QORIN_CONVEYOR_MODE_ON>>>>(
        "qorin_robot_conveyor_mode_start"),
    controlled<conveyor_mode_set<QORIN_CONVEYOR_MODE_OFF>>("qorin_robot_conveyor_mode_end"),
    controlled<conveyor_encoder_switch_set>("qorin_robot_conveyor_encoder_switch_set"),
    controlled<keep_six<possible, &settings::conveyor_start_offset>>("qorin_robot_conveyor_offset_start_pose_set"),
    controlled<conveyor_encoder_info_set>("qorin_robot_conveyor_encoder_info_set"),
};
} // namespace

std::span<const command_row> external_motion_commands()
{
    return rows;
}
} // namespace cbox_simulator
