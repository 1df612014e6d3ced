#include "simulator/commands/families.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <utility>

#include "simulator/commands/robot_setters.h"
#include "simulator/commands/typed_command.h"

namespace cbox_simulator
{
namespace
{
using savrent::kinematics::joint_range;
using settings = robot_settings;

QORIN_API_RESULT plane_remove(robot_state& robot, std::uint32_t id)
{
    return robot.planes().remove(id);
}

QORIN_API_RESULT plane_remove_all(robot_state& robot)
{
    return robot.planes().remove_all();
}

QORIN_API_RESULT plane_create_with_origin(robot_state& robot, double norm_x, double norm_y, double norm_z,
                                          double origin_x, double origin_y, double origin_z, std::uint32_t& id)
{
    return robot.planes().create_through({norm_x, norm_y, norm_z}, {origin_x, origin_y, origin_z}, id);
}

QORIN_API_RESULT plane_create_with_distance(robot_state& robot, double norm_x, double norm_y, double norm_z,
                                            double distance, std::uint32_t& id)
{
    return robot.planes().create({norm_x, norm_y, norm_z}, distance, id);
}

template <auto limit>
QORIN_API_RESULT joint_limit_set(robot_state& robot, std::uint32_t joint, double value)
{
    if (joint >= robot.joint_count())
        return QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE;
    if (!is_magnitude(value))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    robot.settings().safety_joints[joint].*limit = value;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT joint_angle_set(robot_state& robot, std::uint32_t joint, double least, double greatest)
{
    if (joint >= robot.joint_count())
        return QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE;
    if (!is_possible(least) || !is_possible(greatest) || least > greatest)
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    auto& range = robot.settings().safety_joints[joint];
    range.angle_min = least;
    range.angle_max = greatest;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT velocity_in_reduced_mode_set(robot_state& robot, double tcp_speed, double joint_speed)
{
    if (!is_magnitude(tcp_speed) || !is_magnitude(joint_speed))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    robot.settings().reduced_mode.tcp_speed = tcp_speed;
    robot.settings().reduced_mode.joint_speed = joint_speed;
    return QORIN_API_RESULT_OK;
}

/// The joints from the first on: the count may leave the last ones as they are.
QORIN_API_RESULT collision_torque_in_reduced_mode_set(robot_state& robot, std::uint32_t count,
                                                      const block_of<double>& torques)
{
    if (count > robot.joint_count())
        return QORIN_API_RESULT_ERROR_ROBOT_NUMBER_OF_JOINT_NOT_MATCHED;
    const auto given = std::span(torques).first(count);
    if (!std::ranges::all_of(given, is_magnitude))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    std::ranges::copy(given, robot.settings().reduced_mode.collision_joint_torque.begin());
    return QORIN_API_RESULT_OK;
}

/// A shape comes into force by its switch.
template <QORIN_BOUNDING_SHAPE shape, class Indices>
struct bounding_shape_setter;

template <QORIN_BOUNDING_SHAPE shape, std::size_t... index>
struct bounding_shape_setter<shape, std::index_sequence<index...>>
{
    template <std::size_t>
    using real = double;

    static QORIN_API_RESULT set(robot_state& robot, QORIN_REF_COORDINATE coordinate, real<index>... values)
    {
        const bounding_shape told{shape, coordinate, {values...}};
        const auto judged = judge(told);
        if (judged == QORIN_API_RESULT_OK)
            robot.tcp_shape() = told;
        return judged;
    }
};

template <QORIN_BOUNDING_SHAPE shape>
constexpr auto bounding_shape_set = bounding_shape_setter<shape, std::make_index_sequence<value_count(shape)>>::set;

/// Without a shape none can be in force.
QORIN_API_RESULT bounding_shape_delete(robot_state& robot)
{
    if (!robot.tcp_shape())
        return QORIN_API_RESULT_WARNING_ROBOT_WORK_SPACE_ALREADY_DELETED;
    robot.tcp_shape().reset();
    robot.settings().switches.bounding_shape = QORIN_SWITCH_OFF;
    return QORIN_API_RESULT_OK;
}

constexpr auto switches = &settings::switches;
constexpr auto tcp = &settings::safety_tcp;
constexpr auto reduced_mode = &settings::reduced_mode;

constexpr command_row rows[] = {
    controlled<plane_remove_all>("qorin_robot_safety_limit_plane_remove_all"),
    controlled<bounding_shape_delete>("qorin_robot_safety_limit_tcp_bounding_shape_delete"),
    controlled<plane_remove>("qorin_robot_safety_limit_plane_remove"),
    controlled<keep<magnitude, tcp, &tcp_limits::acceleration_max>>("qorin_robot_safety_limit_tcp_acc_max_set"),
    controlled<keep<magnitude, tcp, &tcp_limits::speed_max>>("qorin_robot_safety_limit_tcp_speed_max_set"),
    controlled<keep<magnitude, reduced_mode, &reduced_mode_limits::collision_tcp_force>>(
        "qorin_robot_safety_limit_collision_detection_tcp_force_in_reduced_mode_set"),
    controlled<joint_limit_set<&joint_range::acceleration_max>>("qorin_robot_safety_limit_joint_acc_max_set"),
    controlled<joint_limit_set<&joint_range::speed_max>>("qorin_robot_safety_limit_joint_speed_max_set"),
    controlled<keep<possible, switches, &robot_switches::safety_limit>>("qorin_robot_safety_limit_switch_set"),
    controlled<keep<possible, switches, &robot_switches::bounding_shape>>(
        "qorin_robot_safety_limit_tcp_bounding_shape_switch_set"),
    controlled<velocity_in_reduced_mode_set>("qorin_robot_safety_limit_velocity_in_reduced_mode_set"),
    controlled<joint_angle_set>("qorin_robot_safety_limit_joint_angle_set"),
    controlled<plane_create_with_origin>("qorin_robot_safety_limit_plane_create_with_norm_origin"),
    controlled<plane_create_with_distance>("qorin_robot_safety_limit_plane_create_with_norm_distance"),
    controlled<bounding_shape_set<QORIN_BOUNDING_SHAPE_BOX>>("qorin_robot_safety_limit_tcp_bounding_box_set"),
    controlled<bounding_shape_set<QORIN_BOUNDING_SHAPE_SPHERE>>("qorin_robot_safety_limit_tcp_bounding_sphere_set"),
    controlled<bounding_shape_set<QORIN_BOUNDING_SHAPE_CYLINDER>>("qorin_robot_safety_limit_tcp_bounding_cylinder_set"),
    controlled<bounding_shape_set<QORIN_BOUNDING_SHAPE_CONE>>("qorin_robot_safety_limit_tcp_bounding_cone_set"),
    controlled<collision_torque_in_reduced_mode_set>(
        "qorin_robot_safety_limit_collision_detection_torque_in_reduced_mode_set"),
};
} // namespace

std::span<const command_row> safety_limit_commands()
{
    return rows;
}
} // namespace cbox_simulator
