#include "simulator/commands/external_motion_commands.h"

#include <algorithm>
#include <array>

#include "simulator/commands/robot_setters.h"
#include "simulator/commands/typed_command.h"

namespace cbox_simulator
{
namespace
{
using savrent::kinematics::joint_count;
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

QORIN_API_RESULT judge_joints(std::uint32_t count, const block_of<double>& angles)
{
    if (count != joint_count)
        return QORIN_API_RESULT_ERROR_ROBOT_NUMBER_OF_JOINT_NOT_MATCHED;
    return std::all_of(angles.begin(), angles.begin() + joint_count, possible)
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
    if (const auto judged = judge_joints(count, angles); judged != QORIN_API_RESULT_OK)
        return judged;
    profiler_point point{profiler_point::kind::joints, {}};
    std::copy_n(angles.begin(), point.values.size(), point.values.begin());
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

template <auto value>
QORIN_API_RESULT move_get(robot_state& robot, QORIN_SWITCH& kept)
{
    kept = robot.settings().ext_move.*value;
    return QORIN_API_RESULT_OK;
}

template <class... Values>
QORIN_API_RESULT judge_target(Values... values)
{
    return (is_possible(values) && ...) ? QORIN_API_RESULT_OK : QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
}

// A timed target is judged and not kept: the simulated arm does not move in time.

QORIN_API_RESULT move_euler_add(robot_state&, QORIN_POSE_TYPE type, double a, double b, double c, double d, double e,
                                double f, double g)
{
    return judge_target(type, a, b, c, d, e, f, g);
}

QORIN_API_RESULT move_quaternion_add(robot_state&, QORIN_POSE_TYPE type, double a, double b, double c, double d,
                                     double e, double f, double g, double h)
{
    return judge_target(type, a, b, c, d, e, f, g, h);
}

QORIN_API_RESULT move_joint(robot_state&, std::uint32_t count, const block_of<double>& angles, double value)
{
    const auto judged = judge_joints(count, angles);
    return judged == QORIN_API_RESULT_OK ? judge_target(value) : judged;
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

constexpr auto ext_move = &settings::ext_move;

constexpr command_row rows[] = {
    controlled<profiler_period_set>("qorin_robot_ext_profiler_period_set"),
    controlled<profiler_switch_set>("qorin_robot_ext_profiler_switch_set"),
    controlled<profiler_euler_add>("qorin_robot_ext_profiler_pos_ort_euler_add"),
    controlled<profiler_joint_add>("qorin_robot_ext_profiler_joint_add"),
    controlled<profiler_tcp_type_set>("qorin_robot_ext_profiler_tcp_type_set"),
    controlled<profiler_quaternion_add>("qorin_robot_ext_profiler_pos_ort_quat_add"),
    controlled<keep<possible, ext_move, &external_move::active>>("qorin_robot_ext_move_switch_set"),
    controlled<keep<possible, ext_move, &external_move::stop_mode>>("qorin_robot_ext_move_stop_mode_set"),
    open_to_all<move_get<&external_move::active>>("qorin_robot_ext_move_switch_get"),
    open_to_all<move_get<&external_move::stop_mode>>("qorin_robot_ext_move_stop_mode_get"),
    controlled<move_euler_add>("qorin_robot_ext_move_pos_ort_euler_add"),
    controlled<move_quaternion_add>("qorin_robot_ext_move_pos_ort_quat_add"),
    controlled<move_joint>("qorin_robot_ext_move_joint"),
    controlled<conveyor_mode_set<QORIN_CONVEYOR_MODE_ON>>("qorin_robot_conveyor_mode_start"),
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
