#include "tools/qorin/view/status_field.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>
#include <tuple>

#include <fmt/format.h>

#include "qorin/qorin_api_rpc_client.h"

namespace qorin_view
{
namespace
{
constexpr unsigned int robot_limit = 2;
constexpr unsigned int joint_limit = 6;
constexpr unsigned int plane_limit = 10;
constexpr std::size_t motion_name_size = 32;

/// How a field is read, and what it holds then.
struct content
{
    field_type type;
    std::size_t count;
    std::function<void(unsigned int, words)> read;
};

/// A getter with Count outputs behind the ids.
template <std::size_t Count, class Getter, class... Ids>
content numbers(Getter get, Ids... ids)
{
    const auto read = [=](unsigned int cbox_id, words into)
    {
        std::array<double, Count> values{};
        if (std::apply([&](auto&... value) { return get(cbox_id, ids..., &value...); }, values) == QORIN_API_RESULT_OK)
            std::ranges::transform(values, into.begin(), word_of);
    };
    return {field_type::number, Count, read};
}

template <class Value, class Getter, class... Ids>
content integer_of(Getter get, Ids... ids)
{
    const auto read = [=](unsigned int cbox_id, words into)
    {
        if (Value value{}; get(cbox_id, ids..., &value) == QORIN_API_RESULT_OK)
            into[0] = static_cast<std::uint32_t>(value);
    };
    return {field_type::integer, 1, read};
}

template <class Value>
content integer(QORIN_API_RESULT (*get)(unsigned int, Value*))
{
    return integer_of<Value>(get);
}

template <class Value>
content integer(QORIN_API_RESULT (*get)(unsigned int, unsigned int, Value*), unsigned int robot)
{
    return integer_of<Value>(get, robot);
}

/// A getter for one channel after the other: a bit each.
template <class Getter, class... Ids>
content bits(unsigned int count, Getter get, Ids... ids)
{
    const auto read = [=](unsigned int cbox_id, words into)
    {
        std::uint32_t all = 0;
        for (unsigned int channel = 0; channel < count; ++channel)
            if (unsigned int value = 0; get(cbox_id, ids..., channel, &value) == QORIN_API_RESULT_OK && value != 0)
                all |= 1U << channel;
        into[0] = all;
    };
    return {field_type::integer, 1, read};
}

/// A getter for one index after the other: a number each.
template <class Getter, class... Ids>
content each(unsigned int count, Getter get, Ids... ids)
{
    const auto read = [=](unsigned int cbox_id, words into)
    {
        for (unsigned int index = 0; index < count; ++index)
            if (double value = 0; get(cbox_id, ids..., index, &value) == QORIN_API_RESULT_OK)
                into[index] = word_of(value);
    };
    return {field_type::number, count, read};
}

/// Lower ends of the ranges of all joints, then the upper ones.
template <class Getter>
content ranges(Getter get, unsigned int robot)
{
    const auto read = [=](unsigned int cbox_id, words into)
    {
        for (unsigned int joint = 0; joint < joint_limit; ++joint)
            if (double one = 0, other = 0; get(cbox_id, robot, joint, &one, &other) == QORIN_API_RESULT_OK)
            {
                into[joint] = word_of(std::min(one, other));
                into[joint_limit + joint] = word_of(std::max(one, other));
            }
    };
    return {field_type::number, 2 * joint_limit, read};
}

/// A bit for each plane that stands, and normal and distance of each.
content planes(unsigned int robot)
{
    const auto read = [=](unsigned int cbox_id, words into)
    {
        std::ranges::fill(into, 0);
        for (unsigned int plane = 0; plane < plane_limit; ++plane)
        {
            std::array<double, 4> values{};
            auto& [x, y, z, distance] = values;
            if (qorin_rpc_robot_safety_limit_plane_norm_distance_get(cbox_id, robot, plane, &x, &y, &z, &distance) ==
                QORIN_API_RESULT_OK)
                std::ranges::transform(values, into.begin() + 4 * plane, word_of);
        }
    };
    return {field_type::number, 4 * plane_limit, read};
}

/// The four arrays of the Denavit-Hartenberg table one behind the other.
content table(unsigned int robot)
{
    const auto read = [=](unsigned int cbox_id, words into)
    {
        std::array<double, 4 * joint_limit> values{};
        double* const first = values.data();
        if (qorin_rpc_robot_kinematics_dh_parameter_get(cbox_id, robot, joint_limit, first, first + joint_limit,
                                                        first + 2 * joint_limit,
                                                        first + 3 * joint_limit) == QORIN_API_RESULT_OK)
            std::ranges::transform(values, into.begin(), word_of);
    };
    return {field_type::number, 4 * joint_limit, read};
}

content motion_name(unsigned int robot)
{
    const auto read = [=](unsigned int cbox_id, words into)
    {
        std::array<char, motion_name_size> name{};
        if (qorin_rpc_robot_current_motion_name_get(cbox_id, robot, name.data()) == QORIN_API_RESULT_OK)
            std::memcpy(into.data(), name.data(), name.size());
    };
    return {field_type::text, motion_name_size / sizeof(std::uint32_t), read};
}

void add(std::vector<status_field>& fields, std::string name, content what)
{
    fields.push_back({std::move(name), what.type, what.count, std::move(what.read)});
}

void add_box(std::vector<status_field>& fields)
{
    const auto box = [&](const char* name, content what) { add(fields, fmt::format("box.{}", name), std::move(what)); };
    box("model", integer(qorin_rpc_cbox_name_get));
    box("master_mode", integer(qorin_rpc_cbox_master_operational_mode_get));
    box("emergency_button", integer(qorin_rpc_cbox_emergency_button_state_get));
    box("power_button", integer(qorin_rpc_cbox_power_button_state_get));
    box("ecat", integer(qorin_rpc_cbox_ecat_connection_state_get));
    box("digital_input", bits(16, qorin_rpc_cbox_io_digital_input_get));
    box("digital_output", bits(16, qorin_rpc_cbox_io_digital_output_get));
    box("redundant_input", bits(16, qorin_rpc_cbox_redundant_io_digital_input_get));
    box("redundant_output", bits(16, qorin_rpc_cbox_redundant_io_digital_output_get));
    box("safety_input", bits(8, qorin_rpc_cbox_safety_module_redundant_io_digital_input_get));
    box("analog_input", each(2, qorin_rpc_cbox_io_analog_input_get));
    box("analog_output", each(2, qorin_rpc_cbox_io_analog_output_get));
}

void add_robot(std::vector<status_field>& fields, unsigned int id)
{
    const auto robot = [&](const char* name, content what)
    { add(fields, fmt::format("robots.{}.{}", id, name), std::move(what)); };
    robot("model", integer(qorin_rpc_robot_model_name_get, id));
    robot("joints", integer(qorin_rpc_robot_number_of_joints_get, id));
    robot("table", table(id));
    robot("servo", integer(qorin_rpc_robot_servo_switch_get, id));
    robot("control_mode", integer(qorin_rpc_robot_control_mode_get, id));
    robot("moving", integer(qorin_rpc_robot_state_moving_get, id));
    robot("safety", integer(qorin_rpc_robot_state_safety_get, id));
    robot("motion_name", motion_name(id));
    robot("speed_factor", numbers<1>(qorin_rpc_robot_speed_factor_get, id));
    robot("collision_detection", integer(qorin_rpc_robot_collision_detection_switch_get, id));
    robot("force_control", integer(qorin_rpc_robot_force_ctrl_switch_get, id));
    robot("joint_chaser", integer(qorin_rpc_robot_joint_chaser_state_get, id));
    robot("external_profiler", integer(qorin_rpc_robot_ext_profiler_switch_get, id));

    robot("joint_angle", each(joint_limit, qorin_rpc_robot_joint_angle_actual_get, id));
    robot("joint_angle_command", each(joint_limit, qorin_rpc_robot_joint_angle_command_get, id));
    robot("joint_speed", each(joint_limit, qorin_rpc_robot_joint_speed_actual_get, id));
    robot("joint_torque", each(joint_limit, qorin_rpc_robot_joint_torque_actual_get, id));
    robot("joint_current", each(joint_limit, qorin_rpc_robot_joint_current_get, id));
    robot("joint_temperature", each(joint_limit, qorin_rpc_robot_joint_temperature_get, id));
    robot("joint_range", ranges(qorin_rpc_robot_spec_joint_angle_get, id));
    robot("joint_safety_range", ranges(qorin_rpc_robot_safety_limit_joint_angle_get, id));
    robot("joint_speed_max", each(joint_limit, qorin_rpc_robot_spec_joint_speed_max_get, id));
    robot("joint_target_velocity", each(joint_limit, qorin_rpc_robot_joint_target_velocity_get, id));

    robot("tcp", numbers<6>(qorin_rpc_robot_tcp_pose_actual_get, id));
    robot("tcp_command", numbers<6>(qorin_rpc_robot_tcp_pose_command_get, id));
    robot("tcp_speed", numbers<3>(qorin_rpc_robot_tcp_pos_speed_actual_get, id));
    robot("tcp_turn", numbers<3>(qorin_rpc_robot_tcp_ort_speed_actual_get, id));
    robot("tcp_speed_max", numbers<1>(qorin_rpc_robot_spec_tcp_speed_max_get, id));
    robot("tcp_safety_speed_max", numbers<1>(qorin_rpc_robot_safety_limit_tcp_speed_max_get, id));
    robot("tool", numbers<6>(qorin_rpc_robot_tcp_from_flange_get, id));
    robot("payload", numbers<4>(qorin_rpc_robot_tcp_payload_get, id));
    robot("mount", numbers<2>(qorin_rpc_robot_installation_mount_get, id));

    robot("safety_limit", integer(qorin_rpc_robot_safety_limit_switch_get, id));
    robot("planes", planes(id));
    robot("bounding_shape", integer(qorin_rpc_robot_safety_limit_tcp_bounding_shape_switch_get, id));
    robot("force_sensor", integer(qorin_rpc_robot_force_torq_sensor_switch_get, id));
    robot("force", numbers<3>(qorin_rpc_robot_force_torq_sensor_actual_force_get, id));
    robot("tool_input", bits(4, qorin_rpc_robot_tool_io_digital_input_get, id));
    robot("tool_output", bits(4, qorin_rpc_robot_tool_io_digital_output_get, id));
}
} // namespace

std::vector<status_field> mirror_fields()
{
    std::vector<status_field> fields;
    add_box(fields);
    for (unsigned int id = 0; id < robot_limit; ++id)
        add_robot(fields, id);
    return fields;
}

std::size_t word_count(const std::vector<status_field>& fields)
{
    return std::accumulate(fields.begin(), fields.end(), std::size_t{0},
                           [](std::size_t sum, const status_field& field) { return sum + field.count; });
}
} // namespace qorin_view
