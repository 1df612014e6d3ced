#include <array>
#include <cstring>
#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "api/internal_shared_data.h"
#include "qorin/qorin_api_rpc_client.h"
#include "rpc/cbox_registry.h"
#include "tests/rpc/connected_box.h"
#include "tests/support/robot_presence.h"

namespace
{
using bytes = std::vector<unsigned char>;

// Distances of the frame, counted by hand and not taken from its structs.
constexpr std::size_t frame_size = 29728;
constexpr std::size_t robot_count_at = 36;
constexpr std::size_t control_cycle_at = 336;
constexpr std::size_t number_of_joints_at = 4; // in the robot
constexpr std::size_t tool_module_at = 8;

std::size_t robot_at(unsigned int robot)
{
    return 2608 + 4728 * robot;
}

std::size_t joint_at(unsigned int robot, unsigned int joint)
{
    return robot_at(robot) + 1896 + 472 * joint;
}

/// Drives and tools are dealt out so that none has the number of its joint or robot.
unsigned int drive_of(unsigned int robot, unsigned int joint)
{
    return (5 * (6 * robot + joint) + 3) % 12;
}

std::size_t drive_at(unsigned int robot, unsigned int joint)
{
    return 16492 + 376 * drive_of(robot, joint);
}

std::size_t tool_at(unsigned int robot)
{
    return 20940 + 216 * (1 - robot);
}

unsigned char* mirror()
{
    return reinterpret_cast<unsigned char*>(qorin_internal_get_shared_data_for_write());
}

template <class Value>
void put(std::size_t offset, Value value)
{
    std::memcpy(mirror() + offset, &value, sizeof value);
}

template <class Value>
Value get(std::size_t offset)
{
    Value value;
    std::memcpy(&value, mirror() + offset, sizeof value);
    return value;
}

/// A connected control box whose mirror is full of words that all differ, and of which each pair is a proper double.
class robot_getters : public testing::Test
{
protected:
    robot_getters()
    {
        qorin_api_rpc::set_cur_cbox_id(box.id);
        for (unsigned int offset = 0; offset < frame_size; offset += 4)
            put(offset, 0x40000000U | ((offset / 4 + 1) * 0x9E3779U & 0xFFFFFFU));
        put(robot_count_at, 2U);
        for (unsigned int robot = 0; robot < 2; ++robot)
        {
            put(robot_at(robot) + number_of_joints_at, 6U);
            put(robot_at(robot) + tool_module_at, 1 - robot);
            for (unsigned int joint = 0; joint < 6; ++joint)
                put(joint_at(robot, joint), drive_of(robot, joint));
        }
    }

    static void make_robots_present()
    {
        test_support::make_robot_present(0);
        test_support::make_robot_present(1);
    }

    test_support::connected_box box;
};

struct answer
{
    QORIN_API_RESULT result;
    std::vector<bytes> outputs; ///< each as wide as its type, in order
    bool touched;               ///< an output has changed
};

/// Calls a getter of any signature; the parameters that are not outputs come from `inputs`.
template <class... Params>
answer call(QORIN_API_RESULT (*getter)(Params...), const std::vector<unsigned int>& inputs)
{
    std::array<std::array<unsigned char, 8>, sizeof...(Params)> slots;
    std::array<std::size_t, sizeof...(Params)> widths = {};
    for (auto& slot : slots)
        slot.fill(0xA5);
    const auto untouched = slots;

    std::size_t position = 0;
    std::size_t input = 0;
    const auto argument = [&]<class Param>(Param*) -> Param
    {
        const std::size_t at = position++;
        if constexpr (std::is_pointer_v<Param>)
        {
            widths[at] = sizeof(std::remove_pointer_t<Param>);
            return reinterpret_cast<Param>(slots[at].data());
        }
        else
            return static_cast<Param>(inputs.at(input++));
    };
    std::tuple<Params...> arguments{argument(static_cast<Params*>(nullptr))...};
    answer got = {std::apply(getter, arguments), {}, slots != untouched};
    for (std::size_t i = 0; i < sizeof...(Params); ++i)
        if (widths[i] != 0)
            got.outputs.emplace_back(slots[i].begin(), slots[i].begin() + static_cast<std::ptrdiff_t>(widths[i]));
    return got;
}

enum class source
{
    robot,
    joint_array, ///< of the robot, eight bytes per joint
    joint,
    drive,
    tool,
    frame
};

/// `with_record` is the sensor switch: no field of the robot, but judged as if it were one.
enum class check
{
    plain,
    with_joint,
    id_alone,
    with_record,
    none
};

struct row
{
    std::string name;
    std::function<answer(const std::vector<unsigned int>&)> wrapper;
    std::function<answer(const std::vector<unsigned int>&)> local;
    check judged;
    source from;
    std::vector<std::size_t> offsets; ///< of each output in its record
    std::size_t stride = 0;           ///< in the frame, from robot 0 to robot 1

    [[nodiscard]] bool has_joint() const
    {
        return from == source::joint_array || from == source::joint || from == source::drive;
    }

    [[nodiscard]] std::size_t offset(std::size_t output, unsigned int robot, unsigned int joint) const
    {
        switch (from)
        {
        case source::robot:
            return robot_at(robot) + offsets[output];
        case source::joint_array:
            return robot_at(robot) + offsets[output] + 8 * joint;
        case source::joint:
            return joint_at(robot, joint) + offsets[output];
        case source::drive:
            return drive_at(robot, joint) + offsets[output];
        case source::tool:
            return tool_at(robot) + offsets[output];
        case source::frame:
            return offsets[output] + stride * robot;
        }
        return 0;
    }

    [[nodiscard]] answer ask_local(unsigned int robot, unsigned int joint = 0) const
    {
        return local(has_joint() ? std::vector{robot, joint} : std::vector{robot});
    }

    [[nodiscard]] answer ask(unsigned int cbox_id, unsigned int robot, unsigned int joint = 0) const
    {
        return wrapper(has_joint() ? std::vector{cbox_id, robot, joint} : std::vector{cbox_id, robot});
    }
};

std::vector<std::size_t> elements(std::size_t count, std::size_t first, std::size_t width = 8)
{
    std::vector<std::size_t> offsets;
    for (std::size_t i = 0; i < count; ++i)
        offsets.push_back(first + width * i);
    return offsets;
}

#define GETTER(name)                                                                                                   \
#name, [](const std::vector <unsigned int>& inputs)                                                                \
    { return call(qorin_rpc_##name, inputs); }, [](const std::vector <unsigned int>& inputs)                           \
    { return call(qorin_##name, inputs); }

const std::vector<row>& rows()
{
    using enum source;
    static const std::vector<row> all = {
        {GETTER(robot_servo_switch_get), check::plain, robot, {20}},
        {GETTER(robot_speed_factor_get), check::plain, robot, {120}},
        {GETTER(robot_acc_dec_auto_adjustment_get), check::plain, robot, {128}},
        {GETTER(robot_installation_mount_get), check::plain, robot, {256, 264}},
        {GETTER(robot_control_mode_get), check::plain, robot, {16}},
        {GETTER(robot_joint_chaser_state_get), check::plain, robot, {56}},
        {GETTER(robot_model_name_get), check::plain, robot, {12}},
        {GETTER(robot_number_of_joints_get), check::plain, robot, {4}},
        {GETTER(robot_state_moving_get), check::plain, robot, {76}},
        {GETTER(robot_force_ctrl_switch_get), check::plain, robot, {40}},
        {GETTER(robot_force_ctrl_coordinate_get), check::plain, robot, {1168}},
        {GETTER(robot_force_ctrl_force_get), check::plain, robot, elements(6, 784)},
        {GETTER(robot_force_ctrl_velocity_get), check::plain, robot, elements(6, 832)},
        {GETTER(robot_force_ctrl_acc_get), check::plain, robot, elements(6, 880)},
        {GETTER(robot_force_ctrl_dec_get), check::plain, robot, elements(6, 928)},
        {GETTER(robot_force_ctrl_stiffness_get), check::plain, robot, elements(6, 976)},
        {GETTER(robot_force_ctrl_damping_ratio_get), check::plain, robot, elements(6, 1024)},
        {GETTER(robot_force_ctrl_inertia_get), check::plain, robot, elements(6, 1072)},
        {GETTER(robot_force_ctrl_approach_velocity_get), check::plain, robot, elements(6, 1120)},
        {GETTER(robot_force_ctrl_direction_switch_get), check::plain, robot, elements(6, 760, 4)},
        {GETTER(robot_force_ctrl_low_pass_filter_get), check::plain, robot, {1176}},
        {GETTER(robot_force_ctrl_sensorless_bias_get), check::plain, robot, {1232}},
        {GETTER(robot_force_ctrl_force_value_bias_get), check::plain, robot, elements(6, 1236, 4)},
        {GETTER(robot_force_ctrl_actual_force_get), check::plain, robot, elements(3, 1264)},
        {GETTER(robot_force_ctrl_actual_torq_get), check::plain, robot, elements(3, 1288)},
        {GETTER(robot_ext_profiler_buffer_size_get), check::plain, robot, {64}},
        {GETTER(robot_ext_profiler_tcp_type_get), check::plain, robot, {68}},
        {GETTER(robot_ext_profiler_switch_get), check::plain, robot, {48}},
        {GETTER(robot_collision_detection_switch_get), check::plain, robot, {28}},
        {GETTER(robot_collision_detection_threshold_tcp_resultant_force_get), check::plain, robot, {1456}},
        {GETTER(robot_collision_detection_threshold_tcp_force_get), check::plain, robot, elements(6, 1408)},
        {GETTER(robot_collision_mitigation_switch_get), check::plain, robot, {32}},
        {GETTER(robot_spec_tcp_speed_max_get), check::plain, robot, {136}},
        {GETTER(robot_spec_tcp_acc_max_get), check::plain, robot, {144}},
        {GETTER(robot_safety_limit_tcp_speed_max_get), check::plain, robot, {152}},
        {GETTER(robot_safety_limit_tcp_acc_max_get), check::plain, robot, {160}},
        {GETTER(robot_safety_limit_velocity_in_reduced_mode_get), check::plain, robot, {1824, 1816}},
        {GETTER(robot_safety_limit_collision_detection_tcp_force_in_reduced_mode_get), check::plain, robot, {1880}},
        {GETTER(robot_safety_crc32_get), check::plain, robot, {1888}},
        {GETTER(robot_tcp_from_flange_get), check::plain, robot, elements(6, 272)},
        {GETTER(robot_tcp_payload_get), check::plain, robot, elements(4, 224)},
        {GETTER(robot_tcp_pose_command_get), check::plain, robot, elements(6, 320)},
        {GETTER(robot_tcp_pose_actual_get), check::plain, robot, elements(6, 368)},
        {GETTER(robot_flange_pose_command_get), check::plain, robot, elements(6, 512)},
        {GETTER(robot_flange_pose_actual_get), check::plain, robot, elements(6, 560)},
        {GETTER(robot_tcp_pos_speed_command_get), check::plain, robot, elements(3, 416)},
        {GETTER(robot_tcp_ort_speed_command_get), check::plain, robot, elements(3, 440)},
        {GETTER(robot_tcp_pos_speed_actual_get), check::plain, robot, elements(3, 464)},
        {GETTER(robot_tcp_ort_speed_actual_get), check::plain, robot, elements(3, 488)},
        {GETTER(robot_conveyor_mode_get), check::plain, robot, {72}},
        {GETTER(motion_command_robot_weaving_event_get), check::plain, robot, {52}},

        {GETTER(robot_joint_target_velocity_get), check::with_joint, joint_array, {608}},
        {GETTER(robot_joint_target_acceleration_get), check::with_joint, joint_array, {656}},
        {GETTER(robot_collision_detection_threshold_joint_torque_get), check::with_joint, joint_array, {1360}},
        {GETTER(robot_joint_angle_command_get), check::plain, joint, {16}},
        {GETTER(robot_joint_speed_command_get), check::plain, joint, {24}},
        {GETTER(robot_joint_acc_command_get), check::plain, joint, {32}},
        {GETTER(robot_joint_angle_actual_get), check::plain, joint, {56}},
        {GETTER(robot_joint_speed_actual_get), check::plain, joint, {64}},
        {GETTER(robot_joint_acc_actual_get), check::plain, joint, {72}},
        {GETTER(robot_joint_torque_actual_get), check::plain, joint, {80}},
        {GETTER(robot_spec_joint_angle_get), check::plain, joint, {104, 96}},
        {GETTER(robot_spec_joint_speed_max_get), check::plain, joint, {112}},
        {GETTER(robot_spec_joint_acc_max_get), check::plain, joint, {120}},
        {GETTER(robot_safety_limit_joint_angle_get), check::plain, joint, {144, 136}},
        {GETTER(robot_safety_limit_joint_speed_max_get), check::plain, joint, {152}},
        {GETTER(robot_safety_limit_joint_acc_max_get), check::plain, joint, {160}},
        {GETTER(robot_dynamics_friction_feedrate_get), check::plain, joint, {432}},
        {GETTER(robot_joint_voltage_get), check::plain, drive, {36}},
        {GETTER(robot_joint_current_get), check::plain, drive, {44}},
        {GETTER(robot_joint_temperature_get), check::plain, drive, {52}},
        {GETTER(robot_joint_error_code_get), check::plain, drive, elements(4, 68, 2)},
        {GETTER(ts_robot_joint_velocity_feedforward_ratio_get), check::plain, drive, {276}},
        {GETTER(ts_robot_joint_torque_feedforward_ratio_get), check::plain, drive, {284}},

        {GETTER(robot_tool_io_power_voltage_current_get), check::plain, tool, {184, 188}},
        {GETTER(robot_tool_io_led_color_get), check::plain, tool, {196, 200, 204}},

        {GETTER(robot_tool_io_rs485_setup_get), check::none, frame, elements(6, 29508, 4)},
        {GETTER(robot_tool_io_rs485_status_get),
         check::none,
         frame,
         {29532, 29536, 29540, 29544, 29548, 29552, 29556, 29560, 29564}},
        {GETTER(robot_tool_io_rs485_control_get), check::none, frame, elements(6, 29568, 4)},

        {GETTER(robot_safety_limit_switch_get), check::id_alone, frame, {2592}, 4},
        {GETTER(robot_safety_limit_tcp_bounding_shape_switch_get), check::id_alone, frame, {2048}, 264},
        {GETTER(robot_force_torq_sensor_switch_get), check::with_record, frame, {21472}, 192},
        {GETTER(robot_force_torq_sensor_actual_force_get), check::id_alone, frame, elements(3, 21480), 192},
        {GETTER(robot_force_torq_sensor_actual_torq_get), check::id_alone, frame, elements(3, 21504), 192},
        {GETTER(robot_ext_force_torq_sensor_switch_get), check::id_alone, frame, {24664}, 56},
        {GETTER(robot_conveyor_encoder_switch_get), check::id_alone, frame, {24612}},
    };
    return all;
}

void expect_fields(const answer& got, const row& getter, unsigned int robot, unsigned int joint)
{
    SCOPED_TRACE(getter.name + ", robot " + std::to_string(robot) + ", joint " + std::to_string(joint));
    EXPECT_EQ(QORIN_API_RESULT_OK, got.result);
    ASSERT_EQ(getter.offsets.size(), got.outputs.size());
    for (std::size_t output = 0; output < got.outputs.size(); ++output)
    {
        const unsigned char* field = mirror() + getter.offset(output, robot, joint);
        EXPECT_EQ(bytes(field, field + got.outputs[output].size()), got.outputs[output]) << "output " << output;
    }
}

void expect_refused(QORIN_API_RESULT result, const answer& got, const std::string& name)
{
    EXPECT_EQ(result, got.result) << name;
    EXPECT_FALSE(got.touched) << name;
}

TEST_F(robot_getters, each_output_is_the_field_of_its_robot_and_joint)
{
    make_robots_present();
    for (const row& getter : rows())
        for (unsigned int robot = 0; robot < 2; ++robot)
            for (unsigned int joint = 0; joint < (getter.has_joint() ? 6U : 1U); ++joint)
            {
                expect_fields(getter.ask(box.id, robot, joint), getter, robot, joint);
                expect_fields(getter.ask_local(robot, joint), getter, robot, joint);
            }
}

TEST_F(robot_getters, a_robot_that_was_not_created_is_refused_ahead_of_all_else)
{
    test_support::make_robot_present(0);
    for (const row& getter : rows())
    {
        if (getter.judged == check::none)
            EXPECT_EQ(QORIN_API_RESULT_OK, getter.ask_local(1).result) << getter.name;
        else
            expect_refused(QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID, getter.ask_local(1, 6), getter.name);
    }
}

TEST_F(robot_getters, a_third_robot_is_refused_whatever_the_control_box_has)
{
    make_robots_present();
    put(robot_count_at, 3U);
    for (const row& getter : rows())
    {
        if (getter.judged == check::none)
            expect_fields(getter.ask(box.id, 7), getter, 0, 0);
        else
            expect_refused(QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID, getter.ask(box.id, 2), getter.name);
    }
}

TEST_F(robot_getters, the_number_of_robots_counts_for_what_is_in_a_robot_record)
{
    make_robots_present();
    for (const unsigned int count : {0U, 1U})
    {
        put(robot_count_at, count);
        for (const row& getter : rows())
        {
            if (getter.judged == check::none || getter.judged == check::id_alone)
                expect_fields(getter.ask(box.id, count), getter, count, 0);
            else
                expect_refused(QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID, getter.ask(box.id, count), getter.name);
        }
    }
}

TEST_F(robot_getters, an_unknown_control_box_is_refused)
{
    make_robots_present();
    for (const row& getter : rows())
        expect_refused(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, getter.ask(box.id + 1, 0), getter.name);
}

TEST(robot_getters_alone, answer_with_no_control_box_connected)
{
    test_support::make_robot_present(0);
    for (const row& getter : rows())
        expect_refused(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, getter.ask_local(0), getter.name);
    EXPECT_EQ(nullptr, qorin_robot_tool_io_hw_name_get(0));
    EXPECT_EQ(nullptr, qorin_robot_joint_sw_version_get(0, 0));
}

TEST_F(robot_getters, only_checked_joints_are_bounded)
{
    make_robots_present();
    // Joint 6 of the first robot would begin where the second robot does.
    put(robot_at(1), drive_of(0, 6));
    for (const row& getter : rows())
    {
        if (getter.judged == check::with_joint)
            expect_refused(QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE, getter.ask(box.id, 0, 6),
                           getter.name);
        else if (getter.has_joint())
            expect_fields(getter.ask(box.id, 0, 6), getter, 0, 6);
    }
    put(robot_at(0) + number_of_joints_at, 4U);
    for (const row& getter : rows())
        if (getter.judged == check::with_joint)
        {
            expect_fields(getter.ask(box.id, 0, 3), getter, 0, 3);
            expect_refused(QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE, getter.ask(box.id, 0, 4),
                           getter.name);
        }
}

TEST_F(robot_getters, targets_in_revolutions_per_minute)
{
    make_robots_present();
    put(robot_at(1) + 608 + 8 * 2, 90.0);
    put(robot_at(1) + 656 + 8 * 5, -3.0);
    double value = 0;
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_joint_target_velocity_rpm_get(box.id, 1, 2, &value));
    EXPECT_EQ(15.0, value);
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_joint_target_acceleration_rpm_get(box.id, 1, 5, &value));
    EXPECT_EQ(-0.5, value);
    for (const auto getter :
         {qorin_rpc_robot_joint_target_velocity_rpm_get, qorin_rpc_robot_joint_target_acceleration_rpm_get})
        EXPECT_EQ(QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE, getter(box.id, 1, 6, &value));
    EXPECT_EQ(-0.5, value);
}

TEST_F(robot_getters, answers_made_from_the_control_mode_and_the_violation)
{
    make_robots_present();
    const struct
    {
        unsigned int control_mode;
        QORIN_SWITCH velocity_control;
        QORIN_SWITCH direct_teaching;
    } modes[] = {{403100, QORIN_SWITCH_OFF, QORIN_SWITCH_OFF}, {403103, QORIN_SWITCH_ON, QORIN_SWITCH_OFF},
                 {403106, QORIN_SWITCH_OFF, QORIN_SWITCH_OFF}, {403108, QORIN_SWITCH_OFF, QORIN_SWITCH_OFF},
                 {403109, QORIN_SWITCH_ON, QORIN_SWITCH_OFF},  {403110, QORIN_SWITCH_OFF, QORIN_SWITCH_ON},
                 {0, QORIN_SWITCH_OFF, QORIN_SWITCH_OFF}};
    for (const auto& mode : modes)
    {
        put(robot_at(1) + 16, mode.control_mode);
        QORIN_SWITCH velocity_control = {};
        QORIN_SWITCH direct_teaching = {};
        EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_velocity_control_switch_get(box.id, 1, &velocity_control));
        EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_direct_teaching_switch_get(box.id, 1, &direct_teaching));
        EXPECT_EQ(mode.velocity_control, velocity_control) << mode.control_mode;
        EXPECT_EQ(mode.direct_teaching, direct_teaching) << mode.control_mode;
    }
    for (const unsigned int violation : {0U, 1U, 0x80000000U})
    {
        put(robot_at(1) + 112, violation);
        QORIN_ROBOT_SAFETY_STATE state = {};
        EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_state_safety_get(box.id, 1, &state));
        EXPECT_EQ(violation == 0 ? 401000U : 401001U, state);
    }
}

TEST_F(robot_getters, the_motion_name_ends_with_a_nul_and_nothing_is_written_behind_it)
{
    make_robots_present();
    for (const std::string& name : {std::string(), std::string("move"), std::string(31, 'n'), std::string(32, 'o')})
    {
        std::memset(mirror() + robot_at(1) + 80, 0, 32);
        std::memcpy(mirror() + robot_at(1) + 80, name.data(), name.size());
        char text[33];
        std::memset(text, '#', sizeof text);
        EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_current_motion_name_get(box.id, 1, text));
        const std::string expected = name.substr(0, 31);
        EXPECT_EQ(expected, text);
        EXPECT_EQ(std::string(sizeof text - expected.size() - 1, '#'),
                  std::string(text + expected.size() + 1, text + sizeof text));
    }
}

unsigned int profiler_period(unsigned int cbox_id, unsigned int cycles)
{
    put(robot_at(1) + 60, cycles);
    unsigned int period = 0;
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_ext_profiler_period_get(cbox_id, 1, &period));
    return period;
}

TEST_F(robot_getters, the_profiler_period_is_rounded_to_milliseconds)
{
    make_robots_present();
    put(control_cycle_at, 500.0);
    EXPECT_EQ(2U, profiler_period(box.id, 3));
    EXPECT_EQ(2U, profiler_period(box.id, 4));
    EXPECT_EQ(1U, profiler_period(box.id, 1));
    EXPECT_EQ(0U, profiler_period(box.id, 0));
}

TEST_F(robot_getters, the_profiler_period_keeps_the_first_cycle)
{
    unsigned int period = 0;
    put(control_cycle_at, 250.0);
    EXPECT_EQ(QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID, qorin_rpc_robot_ext_profiler_period_get(box.id, 1, &period));
    make_robots_present();
    put(control_cycle_at, 1000.0);
    EXPECT_EQ(3U, profiler_period(box.id, 3));
    put(control_cycle_at, 500.0);
    EXPECT_EQ(3U, profiler_period(box.id, 3));
}

TEST_F(robot_getters, tool_inputs_and_outputs)
{
    make_robots_present();
    put(tool_at(1) + 96, 0b10101U);
    put(tool_at(1) + 128, 0b01010U);
    put(tool_at(1) + 144, 0b01010U);
    for (unsigned int channel = 0; channel < 4; ++channel)
    {
        unsigned int value = 2;
        EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_tool_io_digital_input_get(box.id, 1, channel, &value));
        EXPECT_EQ(channel % 2 == 0 ? 1U : 0U, value);
        EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_tool_io_digital_output_get(box.id, 1, channel, &value));
        EXPECT_EQ(channel % 2, value);
    }
    for (unsigned int channel = 0; channel < 2; ++channel)
    {
        double value = 0;
        EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_tool_io_analog_input_get(box.id, 1, channel, &value));
        EXPECT_EQ(get<double>(tool_at(1) + 148 + 8 * channel), value);
        EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_tool_io_analog_output_get(box.id, 1, channel, &value));
        EXPECT_EQ(get<double>(tool_at(1) + 164 + 8 * channel), value);

        QORIN_ANALOG_IO_MODE mode = {};
        int range = 17;
        double range_value = 18.0;
        EXPECT_EQ(QORIN_API_RESULT_OK,
                  qorin_rpc_robot_tool_io_analog_input_mode_get(box.id, 1, channel, &mode, &range, &range_value));
        EXPECT_EQ(400700U + channel, mode);
        EXPECT_EQ(17, range);
        EXPECT_EQ(18.0, range_value);
    }
}

TEST_F(robot_getters, tool_channels_are_judged_behind_the_robot)
{
    test_support::make_robot_present(1);
    const auto ask = [&](auto getter, unsigned int robot, unsigned int channel) {
        return call(getter, {box.id, robot, channel});
    };
    const auto expect_bound = [&](auto getter, unsigned int channels, const std::string& name)
    {
        EXPECT_EQ(QORIN_API_RESULT_OK, ask(getter, 1, channels - 1).result) << name;
        expect_refused(QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_NUMBER, ask(getter, 1, channels), name);
        expect_refused(QORIN_API_RESULT_ERROR_ROBOT_INVALID_IO_NUMBER, ask(getter, 1, ~0U), name);
        expect_refused(QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID, ask(getter, 0, channels), name);
        expect_refused(QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID, ask(getter, 0, 0), name);
    };
    expect_bound(qorin_rpc_robot_tool_io_digital_input_get, 4, "digital input");
    expect_bound(qorin_rpc_robot_tool_io_digital_output_get, 4, "digital output");
    expect_bound(qorin_rpc_robot_tool_io_analog_input_get, 2, "analog input");
    expect_bound(qorin_rpc_robot_tool_io_analog_output_get, 2, "analog output");
    expect_bound(qorin_rpc_robot_tool_io_analog_input_mode_get, 2, "analog input mode");
}

TEST_F(robot_getters, rs485_data_is_bounded_by_its_size_alone)
{
    const struct
    {
        QORIN_API_RESULT (*getter)(unsigned int, unsigned int, unsigned char, unsigned char*);
        std::size_t offset;
    } streams[] = {{qorin_rpc_robot_tool_io_rs485_io_rx_data_get, 29593},
                   {qorin_rpc_robot_tool_io_rs485_io_tx_data_get, 29657}};
    for (const auto& stream : streams)
        for (const unsigned char size : bytes{0, 1, 63, 64})
        {
            bytes data(65, 0xA5);
            EXPECT_EQ(QORIN_API_RESULT_OK, stream.getter(box.id, 7, size, data.data()));
            bytes expected(65, 0xA5);
            std::memcpy(expected.data(), mirror() + stream.offset, size);
            EXPECT_EQ(expected, data);
            EXPECT_EQ(QORIN_API_RESULT_ERROR_INVALID_DATA_SIZE, stream.getter(box.id, 7, 65, data.data()));
            EXPECT_EQ(expected, data);
        }
}

TEST_F(robot_getters, a_safety_plane_is_its_normal_and_the_negated_constant)
{
    make_robots_present();
    put(robot_count_at, 0U);
    const std::size_t block = 1000 + 368;
    put(block + 4 * 3, 400101U);
    const auto ask = [&](unsigned int robot, unsigned int plane) {
        return call(qorin_rpc_robot_safety_limit_plane_norm_distance_get, {box.id, robot, plane});
    };
    for (const unsigned int plane : {0U, 4U, 9U})
    {
        const answer got = ask(1, plane);
        EXPECT_EQ(QORIN_API_RESULT_OK, got.result);
        ASSERT_EQ(4U, got.outputs.size());
        for (std::size_t i = 0; i < 4; ++i)
        {
            double value = 0;
            std::memcpy(&value, got.outputs[i].data(), sizeof value);
            EXPECT_EQ(get<double>(block + 40 + 32 * plane + 8 * i) * (i == 3 ? -1 : 1), value);
        }
    }
    expect_refused(QORIN_API_RESULT_ERROR_ROBOT_INVAILD_WORK_SPACE_ID, ask(1, 3), "off");
    expect_refused(QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE, ask(1, 10), "out of range");
    expect_refused(QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID, ask(2, 10), "robot first");
}

TEST_F(robot_getters, the_origin_of_a_plane_is_never_written)
{
    expect_refused(QORIN_API_RESULT_OK, call(qorin_rpc_robot_safety_limit_plane_norm_origin_get, {box.id, 9, 99}), "");
    expect_refused(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID,
                   call(qorin_rpc_robot_safety_limit_plane_norm_origin_get, {box.id + 1, 9, 99}), "");
}

TEST_F(robot_getters, reduced_mode_torques_end_one_short_of_the_joints)
{
    make_robots_present();
    const auto expect_read = [&](unsigned int count, std::size_t written)
    {
        std::array<double, 8> torque = {};
        auto expected = torque;
        std::memcpy(expected.data(), mirror() + robot_at(1) + 1832, written * sizeof(double));
        EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_robot_safety_limit_collision_detection_torque_in_reduced_mode_get(
                                           box.id, 1, count, torque.data()));
        EXPECT_EQ(expected, torque);
    };
    expect_read(0, 0);
    expect_read(5, 5);
    double torque = 1.0;
    EXPECT_EQ(QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE,
              qorin_rpc_robot_safety_limit_collision_detection_torque_in_reduced_mode_get(box.id, 1, 6, &torque));
    EXPECT_EQ(1.0, torque);

    put(robot_at(1) + number_of_joints_at, 9U);
    expect_read(8, 6);
}

TEST_F(robot_getters, texts_stand_in_the_mirror)
{
    test_support::make_robot_present(1);
    const auto at = [](std::size_t offset) { return reinterpret_cast<const char*>(mirror() + offset); };
    EXPECT_EQ(at(tool_at(1)), qorin_robot_tool_io_hw_name_get(1));
    EXPECT_EQ(at(tool_at(1) + 32), qorin_robot_tool_io_hw_version_get(1));
    EXPECT_EQ(at(tool_at(1) + 64), qorin_robot_tool_io_sw_version_get(1));
    EXPECT_EQ(at(drive_at(1, 4)), qorin_robot_joint_sw_version_get(1, 4));

    for (const auto getter :
         {qorin_robot_tool_io_hw_name_get, qorin_robot_tool_io_hw_version_get, qorin_robot_tool_io_sw_version_get})
        EXPECT_EQ(nullptr, getter(0));
    EXPECT_EQ(nullptr, qorin_robot_joint_sw_version_get(0, 4));
}
} // namespace
