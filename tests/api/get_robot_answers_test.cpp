#include "tests/api/robot_frame.h"

namespace
{
using namespace robot_frame;

TEST_F(robot_getters, targets_in_revolutions_per_minute)
{
    make_robots_present();
    put(robot_at(1) + 608 + 8 * 2, 90.0);
    put(robot_at(1) + 656 + 8 * 2, -3.0);
    const auto speed = call(qorin_rpc_robot_joint_target_velocity_rpm_get, {box.id, 1, 2});
    const auto acceleration = call(qorin_rpc_robot_joint_target_acceleration_rpm_get, {box.id, 1, 2});
    EXPECT_EQ(15.0, value_of<double>(speed));
    EXPECT_EQ(-0.5, value_of<double>(acceleration));
    for (const auto getter :
         {qorin_rpc_robot_joint_target_velocity_rpm_get, qorin_rpc_robot_joint_target_acceleration_rpm_get})
        expect_refused(QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE, call(getter, {box.id, 1, 6}), "joint 6");
}

TEST_F(robot_getters, answers_made_from_the_control_mode_and_the_violation)
{
    make_robots_present();
    const auto ask = [&](auto getter) { return value_of<unsigned int>(call(getter, {box.id, 1})); };
    const unsigned int modes[][3] = {// mode, velocity control, direct teaching
                                     {403100, 400101, 400101}, {403103, 400100, 400101}, {403106, 400101, 400101},
                                     {403108, 400101, 400101}, {403109, 400100, 400101}, {403110, 400101, 400100},
                                     {0, 400101, 400101}};
    for (const auto& [mode, velocity_control, direct_teaching] : modes)
    {
        put(robot_at(1) + 16, mode);
        EXPECT_EQ(velocity_control, ask(qorin_rpc_robot_velocity_control_switch_get)) << mode;
        EXPECT_EQ(direct_teaching, ask(qorin_rpc_robot_direct_teaching_switch_get)) << mode;
    }
    for (const unsigned int violation : {0U, 1U, 0x80000000U})
    {
        put(robot_at(1) + 112, violation);
        EXPECT_EQ(violation == 0 ? 401000U : 401001U, ask(qorin_rpc_robot_state_safety_get));
    }
}

TEST_F(robot_getters, answers_made_from_fields_judge_the_robot_too)
{
    test_support::make_robot_present(1);
    put(robot_count_at, 1U);
    const auto expect_judged = [&](auto getter, const std::vector<unsigned int>& more, const std::string& name)
    {
        for (const unsigned int robot : {0U, 1U, 2U})
        {
            std::vector<unsigned int> inputs = {box.id, robot};
            inputs.insert(inputs.end(), more.begin(), more.end());
            expect_refused(QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID, call(getter, inputs), name);
        }
    };
    expect_judged(qorin_rpc_robot_state_safety_get, {}, "state_safety");
    expect_judged(qorin_rpc_robot_velocity_control_switch_get, {}, "velocity_control");
    expect_judged(qorin_rpc_robot_direct_teaching_switch_get, {}, "direct_teaching");
    expect_judged(qorin_rpc_robot_current_motion_name_get, {}, "motion_name");
    expect_judged(qorin_rpc_robot_ext_profiler_period_get, {}, "ext_profiler_period");
    expect_judged(qorin_rpc_robot_joint_target_velocity_rpm_get, {6}, "target_velocity_rpm");
    expect_judged(qorin_rpc_robot_safety_limit_collision_detection_torque_in_reduced_mode_get, {6}, "torque");
    expect_judged(qorin_rpc_robot_tool_io_digital_input_get, {4}, "digital_input");
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

TEST_F(robot_getters, the_profiler_period_is_in_milliseconds_of_the_first_cycle)
{
    const auto period = [&](unsigned int cycles)
    {
        put(robot_at(1) + 60, cycles);
        return value_of<unsigned int>(call(qorin_rpc_robot_ext_profiler_period_get, {box.id, 1}));
    };
    put(control_cycle_at, 250.0); // of a robot that is not there: it does not count
    expect_refused(QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID, call(qorin_rpc_robot_ext_profiler_period_get, {box.id, 1}),
                   "no robot");
    make_robots_present();
    put(control_cycle_at, 500.0);
    EXPECT_EQ(2U, period(3)) << "rounded";
    put(control_cycle_at, 1000.0);
    EXPECT_EQ(2U, period(4)) << "the first cycle stands";
    EXPECT_EQ(1U, period(1));
    EXPECT_EQ(0U, period(0));
}

TEST_F(robot_getters, tool_inputs_and_outputs)
{
    make_robots_present();
    put(tool_at(1) + 96, 0b10101U);
    put(tool_at(1) + 128, 0b01010U);
    put(tool_at(1) + 144, 0b01001U);
    const auto ask = [&](auto getter, unsigned int channel) { return call(getter, {box.id, 1, channel}); };
    for (unsigned int channel = 0; channel < 4; ++channel)
    {
        EXPECT_EQ(1 - channel % 2, value_of<unsigned int>(ask(qorin_rpc_robot_tool_io_digital_input_get, channel)));
        EXPECT_EQ(channel % 2, value_of<unsigned int>(ask(qorin_rpc_robot_tool_io_digital_output_get, channel)));
    }
    for (unsigned int channel = 0; channel < 2; ++channel)
    {
        EXPECT_EQ(get<double>(tool_at(1) + 148 + 8 * channel),
                  value_of<double>(ask(qorin_rpc_robot_tool_io_analog_input_get, channel)));
        EXPECT_EQ(get<double>(tool_at(1) + 164 + 8 * channel),
                  value_of<double>(ask(qorin_rpc_robot_tool_io_analog_output_get, channel)));
        const answer mode = ask(qorin_rpc_robot_tool_io_analog_input_mode_get, channel);
        EXPECT_EQ(400700U + channel, value_of<unsigned int>(mode));
        EXPECT_EQ(bytes(4, 0xA5), mode.outputs[1]) << "the range is left alone";
        EXPECT_EQ(bytes(8, 0xA5), mode.outputs[2]);
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
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_EQ(get<double>(block + 40 + 32 * plane + 8 * i) * (i == 3 ? -1 : 1), value_of<double>(got, i));
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
