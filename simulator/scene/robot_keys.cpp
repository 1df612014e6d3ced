#include "simulator/scene/robot_keys.h"

#include <algorithm>

namespace cbox_simulator
{
namespace
{
using number_list = std::span<const double>;
using savrent::kinematics::joint_count;
using savrent::kinematics::joint_range;

constexpr auto out_of_range = QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;

std::array<double, 6> six(number_list values)
{
    std::array<double, 6> array{};
    std::ranges::copy(values, array.begin());
    return array;
}

bool are_magnitudes(number_list values)
{
    return std::ranges::all_of(values, [](double value) { return value >= 0; });
}

template <auto member>
std::vector<double> limits(robot_state& robot)
{
    std::vector<double> values;
    for (const auto& joint : robot.settings().safety_joints)
        values.push_back(joint.*member);
    return values;
}

/// The bounds of an empty range are told one after the other, so that they are judged when both are known.
template <auto member, bool is_magnitude>
QORIN_API_RESULT set_limits(robot_state& robot, number_list values)
{
    if (is_magnitude && !are_magnitudes(values))
        return out_of_range;
    for (std::size_t joint = 0; joint < joint_count; ++joint)
        robot.settings().safety_joints[joint].*member = values[joint];
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT set_joint_maxima(robot_state& robot, number_list values)
{
    for (std::size_t joint = 0; joint < joint_count; ++joint)
        if (values[joint] < robot.settings().safety_joints[joint].angle_min)
            return out_of_range;
    return set_limits<&joint_range::angle_max, false>(robot, values);
}

QORIN_API_RESULT set_magnitudes(double& first, double& second, number_list values)
{
    if (!are_magnitudes(values))
        return out_of_range;
    first = values[0];
    second = values[1];
    return QORIN_API_RESULT_OK;
}

template <auto member>
constexpr robot_key switch_key(std::string_view name)
{
    return {name, 1,
            [](robot_state& robot, number_list values)
            {
                robot.settings().switches.*member = values[0] != 0 ? QORIN_SWITCH_ON : QORIN_SWITCH_OFF;
                return values[0] == 0 || values[0] == 1 ? QORIN_API_RESULT_OK : out_of_range;
            },
            [](robot_state& robot)
            { return std::vector{robot.settings().switches.*member == QORIN_SWITCH_ON ? 1.0 : 0.0}; }};
}

/// Six thresholds, of joints or of axes, and one of a force.
QORIN_API_RESULT set_thresholds(std::array<double, 6>& of_each, double& of_force, number_list values)
{
    if (!are_magnitudes(values))
        return out_of_range;
    of_each = six(values.first(6));
    of_force = values[6];
    return QORIN_API_RESULT_OK;
}

std::vector<double> thresholds(const std::array<double, 6>& of_each, double of_force)
{
    std::vector<double> values(of_each.begin(), of_each.end());
    values.push_back(of_force);
    return values;
}

constexpr robot_key keys[] = {
    {"tool", 6, [](robot_state& robot, number_list values) { return robot.set_tcp_from_flange(six(values)); },
     [](robot_state& robot)
     { return std::vector<double>(robot.tcp_from_flange().begin(), robot.tcp_from_flange().end()); }},
    {"payload", 4,
     [](robot_state& robot, number_list values) {
         return robot.set_payload({values[0], {values[1], values[2], values[3]}});
     },
     [](robot_state& robot)
     {
         const auto& [mass, centre] = robot.settings().tcp_payload;
         return std::vector{mass, centre[0], centre[1], centre[2]};
     }},
    {"mount", 2,
     [](robot_state& robot, number_list values)
     {
         robot.settings().installation_mount = {values[0], values[1]};
         return QORIN_API_RESULT_OK;
     },
     [](robot_state& robot)
     {
         const auto& mount = robot.settings().installation_mount;
         return std::vector{mount[0], mount[1]};
     }},
    {"joint_minima", joint_count, set_limits<&joint_range::angle_min, false>, limits<&joint_range::angle_min>},
    {"joint_maxima", joint_count, set_joint_maxima, limits<&joint_range::angle_max>},
    {"joint_speeds", joint_count, set_limits<&joint_range::speed_max, true>, limits<&joint_range::speed_max>},
    {"joint_accelerations", joint_count, set_limits<&joint_range::acceleration_max, true>,
     limits<&joint_range::acceleration_max>},
    {"tcp_limits", 2,
     [](robot_state& robot, number_list values)
     {
         auto& kept = robot.settings().safety_tcp;
         return set_magnitudes(kept.speed_max, kept.acceleration_max, values);
     },
     [](robot_state& robot)
     {
         const auto& kept = robot.settings().safety_tcp;
         return std::vector{kept.speed_max, kept.acceleration_max};
     }},
    {"reduced_mode", 2,
     [](robot_state& robot, number_list values)
     {
         auto& kept = robot.settings().reduced_mode;
         return set_magnitudes(kept.tcp_speed, kept.joint_speed, values);
     },
     [](robot_state& robot)
     {
         const auto& kept = robot.settings().reduced_mode;
         return std::vector{kept.tcp_speed, kept.joint_speed};
     }},
    switch_key<&robot_switches::safety_limit>("safety_limit"),
    switch_key<&robot_switches::bounding_shape>("bounding_shape"),
    switch_key<&robot_switches::collision_detection>("collision_detection"),
    switch_key<&robot_switches::collision_mitigation>("collision_mitigation"),
    {"collision_torques", joint_count,
     [](robot_state& robot, number_list values)
     {
         if (!are_magnitudes(values))
             return out_of_range;
         robot.settings().collision.joint_torque = six(values);
         return QORIN_API_RESULT_OK;
     },
     [](robot_state& robot)
     {
         const auto& kept = robot.settings().collision.joint_torque;
         return std::vector<double>(kept.begin(), kept.end());
     }},
    {"collision_forces", 7,
     [](robot_state& robot, number_list values)
     {
         auto& kept = robot.settings().collision;
         return set_thresholds(kept.tcp_force, kept.tcp_resultant_force, values);
     },
     [](robot_state& robot)
     {
         const auto& kept = robot.settings().collision;
         return thresholds(kept.tcp_force, kept.tcp_resultant_force);
     }},
    {"reduced_collision", 7,
     [](robot_state& robot, number_list values)
     {
         auto& kept = robot.settings().reduced_mode;
         return set_thresholds(kept.collision_joint_torque, kept.collision_tcp_force, values);
     },
     [](robot_state& robot)
     {
         const auto& kept = robot.settings().reduced_mode;
         return thresholds(kept.collision_joint_torque, kept.collision_tcp_force);
     }},
    {"joints", joint_count, [](robot_state& robot, number_list values) { return robot.set_joint_angles(six(values)); },
     [](robot_state& robot) { return std::vector<double>(robot.joint_angles().begin(), robot.joint_angles().end()); }},
};
} // namespace

std::span<const robot_key> robot_keys()
{
    return keys;
}
} // namespace cbox_simulator
