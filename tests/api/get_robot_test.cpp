#include <functional>

#include "tests/api/robot_frame.h"

namespace
{
using namespace robot_frame;

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
            return robot_at(robot) + offsets[output] + std::size_t{8} * joint;
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
#undef GETTER
    return all;
}

void expect_fields(const answer& got, const row& getter, unsigned int robot, unsigned int joint)
{
    SCOPED_TRACE(getter.name + ", robot " + std::to_string(robot) + ", joint " + std::to_string(joint));
    EXPECT_EQ(QORIN_API_RESULT_OK, got.result);
    ASSERT_EQ(getter.offsets.size(), got.outputs.size());
    for (std::size_t output = 0; output < got.outputs.size(); ++output)
    {
        const bytes& value = got.outputs[output];
        EXPECT_EQ(bytes_at(getter.offset(output, robot, joint), value.size()), value) << "output " << output;
    }
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

TEST_F(robot_getters, what_leaves_the_frame_reads_as_zeroes)
{
    make_robots_present();
    // Each of these joints, drives and tools is one that the end of the frame cuts, or lies beyond it.
    for (unsigned int robot = 0; robot < 2; ++robot)
        put(robot_at(robot) + number_of_joints_at, 0xFFFFFFFFU);
    for (const unsigned int joint : {43U, 44U, 53U, 54U, 2628U, 2722U, 3219U, 3313U, 3314U, 0x20000000U, 0xFFFFFFFEU})
        for (const row& getter : rows())
            for (unsigned int robot = 0; robot < 2 && getter.has_joint(); ++robot)
                expect_fields(getter.ask(box.id, robot, joint), getter, robot, joint);
    for (const unsigned int module : {35U, 36U, 40U, 41U, 0x08000000U, 0xFFFFFFFFU})
    {
        put(joint_at(0, 2), module);
        put(robot_at(0) + tool_module_at, module);
        for (const row& getter : rows())
            if (getter.from == source::drive || getter.from == source::tool)
                expect_fields(getter.ask(box.id, 0, 2), getter, 0, 2);
    }
    EXPECT_STREQ("", qorin_robot_tool_io_sw_version_get(0));
    EXPECT_STREQ("", qorin_robot_joint_sw_version_get(0, 2));
}
} // namespace
