#include "tools/qorin/status/status_fields.h"

#include <algorithm>
#include <utility>

#include <fmt/format.h>
#include <fnmatch.h>

#include "qorin/qorin_api_rpc_client.h"
#include "tools/qorin/status/enumeration_names.h"
#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
using reader = std::function<field_value()>;

/// A getter with one output, a number.
template <class Output, class Getter, class... Indexes>
reader number_of(Getter getter, Indexes... indexes)
{
    return [=]() -> field_value
    {
        Output output{};
        if (getter(indexes..., &output) != QORIN_API_RESULT_OK)
            return {};
        return static_cast<double>(output);
    };
}

/// A getter with one output, a member of an enumeration.
template <class Output, class Getter, class... Indexes>
reader word_of(std::string_view beginning, Getter getter, Indexes... indexes)
{
    return [=]() -> field_value
    {
        Output output{};
        if (getter(indexes..., &output) != QORIN_API_RESULT_OK)
            return {};
        return member_name(output, beginning);
    };
}

template <class Getter, class... Indexes>
reader switch_of(Getter getter, Indexes... indexes)
{
    return word_of<QORIN_SWITCH>("QORIN_SWITCH_", getter, indexes...);
}

/// A getter of one channel, asked for all of them.
template <class Getter, class... Indexes>
reader bits_of(unsigned int channels, Getter getter, Indexes... indexes)
{
    return [=]() -> field_value
    {
        unsigned int bits = 0;
        for (unsigned int channel = 0; channel < channels; ++channel)
        {
            unsigned int bit = 0;
            if (getter(indexes..., channel, &bit) != QORIN_API_RESULT_OK)
                return {};
            bits |= (bit & 1) << channel;
        }
        return static_cast<double>(bits);
    };
}

/// One of several outputs of a getter.
template <std::size_t Outputs, class Getter, class... Indexes>
reader output_of(std::size_t which, Getter getter, Indexes... indexes)
{
    return [=]() -> field_value
    {
        std::array<double, Outputs> outputs{};
        const auto ask = [&]<std::size_t... Place>(std::index_sequence<Place...>)
        {
            return getter(indexes..., &outputs[Place]...);
        };
        if (ask(std::make_index_sequence<Outputs>{}) != QORIN_API_RESULT_OK)
            return {};
        return outputs[which];
    };
}

reader motion_name_of(unsigned int cbox, unsigned int robot)
{
    return [=]() -> field_value
    {
        char name[32] = {};
        if (qorin_rpc_robot_current_motion_name_get(cbox, robot, name) != QORIN_API_RESULT_OK)
            return {};
        return std::string(name);
    };
}

/// The four words of a drive in hexadecimal, "0" while all are.
reader errors_of(unsigned int cbox, unsigned int robot, unsigned int joint)
{
    return [=]() -> field_value
    {
        unsigned short code[4] = {};
        if (qorin_rpc_robot_joint_error_code_get(cbox, robot, joint, &code[0], &code[1], &code[2], &code[3]) !=
            QORIN_API_RESULT_OK)
            return {};
        if (std::ranges::all_of(code, [](unsigned short word) { return word == 0; }))
            return "0";
        return fmt::format("{:x}", fmt::join(code, " "));
    };
}

/// Nothing where no plane stands.
reader plane_of(unsigned int cbox, unsigned int robot, unsigned int plane, std::size_t which)
{
    return output_of<4>(which, qorin_rpc_robot_safety_limit_plane_norm_distance_get, cbox, robot, plane);
}

/// What a joint that the robot does not have tells is without meaning.
reader of_joint(unsigned int cbox, unsigned int robot, unsigned int joint, reader read)
{
    return [=, read = std::move(read)]() -> field_value
    {
        unsigned int joints = 0;
        qorin_rpc_robot_number_of_joints_get(cbox, robot, &joints);
        return joint < joints ? read() : field_value();
    };
}

class field_list
{
public:
    void number(const std::string& name, const char* unit, const reader& read) { add(name, unit, read, false); }
    void bits(const std::string& name, const reader& read) { add(name, field_info::bits, read, false); }
    void word(const std::string& name, const reader& read) { add(name, field_info::word, read, false); }
    void setting(const std::string& name, const char* unit, const reader& read) { add(name, unit, read, true); }

    void add(const std::string& name, const char* unit, const reader& read, bool is_setting)
    {
        fields.push_back({{beginning + name, unit}, read, is_setting});
    }

    std::string beginning; ///< of the names of what is added
    std::vector<status_field> fields;
};

void add_control_box(field_list& list, unsigned int cbox)
{
    list.beginning = "cbox.";
    list.word("model", word_of<QORIN_CBOX_MODEL>("QORIN_CBOX_MODEL_", qorin_rpc_cbox_name_get, cbox));
    list.word("ecat",
              word_of<QORIN_ECAT_CONN_STATE>("QORIN_ECAT_CONN_STATE_", qorin_rpc_cbox_ecat_connection_state_get, cbox));
    list.word("operational_mode", word_of<QORIN_OPERATIONAL_MODE>("QORIN_OPERATIONAL_MODE_",
                                                                  qorin_rpc_cbox_master_operational_mode_get, cbox));
    list.word("supply_48v", switch_of(qorin_rpc_cbox_safety_module_48v_smps_switch_get, cbox));
    constexpr const char* button = "QORIN_BUTTON_STATE_";
    list.word("emergency_button", word_of<QORIN_BUTTON_STATE>(button, qorin_rpc_cbox_emergency_button_state_get, cbox));
    list.word("power_button", word_of<QORIN_BUTTON_STATE>(button, qorin_rpc_cbox_power_button_state_get, cbox));
    for (unsigned int i = 0; i < 4; ++i)
        list.setting(fmt::format("amr_emergency_button{}", i), field_info::word,
                     word_of<QORIN_BUTTON_STATE>(button, qorin_rpc_cbox_amr_emergency_button_state_get, cbox, i));
    list.bits("digital_inputs", bits_of(16, qorin_rpc_cbox_io_digital_input_get, cbox));
    list.bits("digital_outputs", bits_of(16, qorin_rpc_cbox_io_digital_output_get, cbox));
    list.bits("redundant_inputs", bits_of(16, qorin_rpc_cbox_redundant_io_digital_input_get, cbox));
    list.bits("redundant_outputs", bits_of(16, qorin_rpc_cbox_redundant_io_digital_output_get, cbox));
    list.bits("safety_inputs", bits_of(8, qorin_rpc_cbox_safety_module_redundant_io_digital_input_get, cbox));
    for (unsigned int i = 0; i < 2; ++i)
    {
        list.number(fmt::format("analog_input{}", i), "V or mA",
                    number_of<double>(qorin_rpc_cbox_io_analog_input_get, cbox, i));
        list.number(fmt::format("analog_output{}", i), "V or mA",
                    number_of<double>(qorin_rpc_cbox_io_analog_output_get, cbox, i));
    }
}

void add_robot_states(field_list& list, unsigned int cbox, unsigned int robot)
{
    list.word("model", word_of<QORIN_ROBOT_MODEL>("QORIN_ROBOT_MODEL_", qorin_rpc_robot_model_name_get, cbox, robot));
    list.number("joints", "", number_of<unsigned int>(qorin_rpc_robot_number_of_joints_get, cbox, robot));
    list.word("servo", switch_of(qorin_rpc_robot_servo_switch_get, cbox, robot));
    list.word("moving",
              word_of<QORIN_MOVING_STATE>("QORIN_MOVING_STATE_", qorin_rpc_robot_state_moving_get, cbox, robot));
    list.word("motion", motion_name_of(cbox, robot));
    list.word("safety", word_of<QORIN_ROBOT_SAFETY_STATE>("QORIN_ROBOT_SAFETY_STATE_", qorin_rpc_robot_state_safety_get,
                                                          cbox, robot));
    list.word("control_mode", word_of<QORIN_DRIVE_CONTROL_MODE>("QORIN_DRIVE_CONTROL_MODE_",
                                                                qorin_rpc_robot_control_mode_get, cbox, robot));
    list.number("speed_factor", "", number_of<double>(qorin_rpc_robot_speed_factor_get, cbox, robot));
    list.word("joint_chaser", switch_of(qorin_rpc_robot_joint_chaser_state_get, cbox, robot));
    list.word("force_control", switch_of(qorin_rpc_robot_force_ctrl_switch_get, cbox, robot));
    list.word("external_profiler", switch_of(qorin_rpc_robot_ext_profiler_switch_get, cbox, robot));
    list.word("conveyor",
              word_of<QORIN_CONVEYOR_MODE>("QORIN_CONVEYOR_MODE_", qorin_rpc_robot_conveyor_mode_get, cbox, robot));
    list.word("collision_detection", switch_of(qorin_rpc_robot_collision_detection_switch_get, cbox, robot));
    list.word("safety_limits", switch_of(qorin_rpc_robot_safety_limit_switch_get, cbox, robot));
    list.word("bounding_shape", switch_of(qorin_rpc_robot_safety_limit_tcp_bounding_shape_switch_get, cbox, robot));
    list.word("force_sensor", switch_of(qorin_rpc_robot_force_torq_sensor_switch_get, cbox, robot));
    list.setting("spec_tcp_speed", "mm/s", number_of<double>(qorin_rpc_robot_spec_tcp_speed_max_get, cbox, robot));
    list.setting("safety_tcp_speed", "mm/s",
                 number_of<double>(qorin_rpc_robot_safety_limit_tcp_speed_max_get, cbox, robot));
    list.setting("safety_tcp_acceleration", "mm/s2",
                 number_of<double>(qorin_rpc_robot_safety_limit_tcp_acc_max_get, cbox, robot));
    list.setting("safety_crc32", "", number_of<unsigned int>(qorin_rpc_robot_safety_crc32_get, cbox, robot));
}

void add_joint(field_list& list, unsigned int cbox, unsigned int robot, unsigned int joint)
{
    const auto of = [&](auto getter)
    { return of_joint(cbox, robot, joint, number_of<double>(getter, cbox, robot, joint)); };
    list.number("angle", "deg", of(qorin_rpc_robot_joint_angle_actual_get));
    list.number("angle_command", "deg", of(qorin_rpc_robot_joint_angle_command_get));
    list.number("speed", "deg/s", of(qorin_rpc_robot_joint_speed_actual_get));
    list.number("speed_command", "deg/s", of(qorin_rpc_robot_joint_speed_command_get));
    list.number("torque", "torque", of(qorin_rpc_robot_joint_torque_actual_get));
    list.number("current", "A", of(qorin_rpc_robot_joint_current_get));
    list.number("voltage", "V", of(qorin_rpc_robot_joint_voltage_get));
    list.number("temperature", "degC", of(qorin_rpc_robot_joint_temperature_get));
    list.word("errors", of_joint(cbox, robot, joint, errors_of(cbox, robot, joint)));
    const auto end = [&](std::size_t which, auto getter)
    { return of_joint(cbox, robot, joint, output_of<2>(which, getter, cbox, robot, joint)); };
    list.setting("spec_angle_1", "deg", end(0, qorin_rpc_robot_spec_joint_angle_get));
    list.setting("spec_angle_2", "deg", end(1, qorin_rpc_robot_spec_joint_angle_get));
    list.setting("spec_speed", "deg/s", of(qorin_rpc_robot_spec_joint_speed_max_get));
    list.setting("safety_angle_1", "deg", end(0, qorin_rpc_robot_safety_limit_joint_angle_get));
    list.setting("safety_angle_2", "deg", end(1, qorin_rpc_robot_safety_limit_joint_angle_get));
    list.setting("safety_speed", "deg/s", of(qorin_rpc_robot_safety_limit_joint_speed_max_get));
    list.setting("safety_acceleration", "deg/s2", of(qorin_rpc_robot_safety_limit_joint_acc_max_get));
}

void add_tcp(field_list& list, unsigned int cbox, unsigned int robot)
{
    constexpr const char* axes[] = {"x", "y", "z", "rx", "ry", "rz"};
    const auto add = [&](const char* name, const char* unit, const char* axis, const reader& read, bool is_setting)
    { list.add(fmt::format("{}.{}", name, axis), unit, read, is_setting); };
    for (std::size_t i = 0; i < 6; ++i)
    {
        const char* const unit = i < 3 ? "mm" : "deg";
        add("tcp", unit, axes[i], output_of<6>(i, qorin_rpc_robot_tcp_pose_actual_get, cbox, robot), false);
        add("tcp_command", unit, axes[i], output_of<6>(i, qorin_rpc_robot_tcp_pose_command_get, cbox, robot), false);
        add("tool", unit, axes[i], output_of<6>(i, qorin_rpc_robot_tcp_from_flange_get, cbox, robot), false);
    }
    constexpr const char* payload[] = {"mass", "x", "y", "z"};
    for (std::size_t i = 0; i < 4; ++i)
        add("payload", i == 0 ? "kg" : "mm", payload[i], output_of<4>(i, qorin_rpc_robot_tcp_payload_get, cbox, robot),
            false);
    for (std::size_t i = 0; i < 3; ++i)
    {
        add("tcp_speed", "mm/s", axes[i], output_of<3>(i, qorin_rpc_robot_tcp_pos_speed_actual_get, cbox, robot),
            false);
        add("force", "N", axes[i], output_of<3>(i, qorin_rpc_robot_force_torq_sensor_actual_force_get, cbox, robot),
            false);
        add("torque", "Nm", axes[i], output_of<3>(i, qorin_rpc_robot_force_torq_sensor_actual_torq_get, cbox, robot),
            false);
    }
}

void add_planes(field_list& list, unsigned int cbox, unsigned int robot)
{
    constexpr const char* parts[] = {"x", "y", "z", "distance"};
    for (unsigned int plane = 0; plane < plane_limit; ++plane)
        for (std::size_t i = 0; i < 4; ++i)
            list.setting(fmt::format("safety_plane{}.{}", plane, parts[i]), i < 3 ? "" : "mm",
                         plane_of(cbox, robot, plane, i));
}

void add_tool(field_list& list, unsigned int cbox, unsigned int robot)
{
    list.bits("tool_inputs", bits_of(4, qorin_rpc_robot_tool_io_digital_input_get, cbox, robot));
    list.bits("tool_outputs", bits_of(4, qorin_rpc_robot_tool_io_digital_output_get, cbox, robot));
    for (unsigned int i = 0; i < 2; ++i)
        list.number(fmt::format("tool_analog_input{}", i), "V or mA",
                    number_of<double>(qorin_rpc_robot_tool_io_analog_input_get, cbox, robot, i));
}
} // namespace

std::vector<status_field> status_fields(unsigned int cbox_id)
{
    field_list list;
    add_control_box(list, cbox_id);
    for (unsigned int robot = 0; robot < robot_limit; ++robot)
    {
        const std::string beginning = fmt::format("robot{}.", robot);
        list.beginning = beginning;
        add_robot_states(list, cbox_id, robot);
        for (unsigned int joint = 0; joint < joint_limit; ++joint)
        {
            list.beginning = fmt::format("{}joint{}.", beginning, joint);
            add_joint(list, cbox_id, robot, joint);
        }
        list.beginning = beginning;
        add_tcp(list, cbox_id, robot);
        add_planes(list, cbox_id, robot);
        add_tool(list, cbox_id, robot);
    }
    return std::move(list.fields);
}

std::vector<field_value> read_fields(const std::vector<status_field>& fields)
{
    constexpr int tries = 10;
    std::vector<field_value> values;
    for (const status_field& field : fields)
        values.push_back(field.read());
    // Where a robot moves, each frame changes what is in these units.
    const auto is_place = [](const status_field& field)
    { return !field.is_setting && (field.unit == "deg" || field.unit == "mm"); };
    bool is_whole = false;
    for (int turn = 0; turn < tries && !is_whole; ++turn)
    {
        is_whole = true;
        for (std::size_t i = 0; i < fields.size(); ++i)
        {
            if (!is_place(fields[i]))
                continue;
            field_value now = fields[i].read();
            is_whole = is_whole && now == values[i];
            values[i] = std::move(now);
        }
    }
    return values;
}

bool matches_any(const std::string& name, const std::vector<std::string>& patterns)
{
    return std::ranges::any_of(patterns, [&](const std::string& pattern)
                               { return fnmatch(pattern.c_str(), name.c_str(), 0) == 0; });
}

void expect_matches(const std::vector<std::string>& names, const std::vector<std::string>& patterns)
{
    for (const std::string& pattern : patterns)
        if (std::ranges::none_of(names, [&](const std::string& name) { return matches_any(name, {pattern}); }))
            throw failure(fmt::format("no field is called {}", pattern), status_usage);
}

void robot_watch::look()
{
    const auto now = clock::now();
    if (now < next_look_)
        return;
    next_look_ = now + std::chrono::milliseconds(100);
    // Searching for a module reads a directory and writes lines.
    const bool may_search = now >= next_search_;
    QORIN_CBOX_MODEL model{};
    qorin_rpc_cbox_name_get(cbox_id_, &model); // what follows is for the control box that was asked last
    for (unsigned int robot = 0; robot < robot_limit; ++robot)
    {
        if (lacks_module_[robot] && !may_search)
            continue;
        // One that is known gets its table anew, which another program may have changed.
        lacks_module_[robot] =
            qorin_robot_attach(robot) == QORIN_API_RESULT_ROBOT_CLIENT_KINEMATICS_MODULE_LOAD_FAILURE;
        if (lacks_module_[robot])
            next_search_ = now + std::chrono::seconds(10);
    }
}

bool robot_watch::is_known(unsigned int robot) const
{
    unsigned int joints = 0;
    return qorin_rpc_robot_number_of_joints_get(cbox_id_, robot, &joints) == QORIN_API_RESULT_OK;
}

robot_description robot_watch::describe(unsigned int robot) const
{
    robot_description told;
    QORIN_ROBOT_MODEL model{};
    qorin_rpc_robot_model_name_get(cbox_id_, robot, &model);
    told.model = member_name(model, "QORIN_ROBOT_MODEL_");
    qorin_rpc_robot_number_of_joints_get(cbox_id_, robot, &told.joints);
    qorin_rpc_robot_kinematics_dh_parameter_get(cbox_id_, robot, joint_limit, told.dh[0].data(), told.dh[1].data(),
                                                told.dh[2].data(), told.dh[3].data());
    return told;
}
} // namespace qorin_cli
