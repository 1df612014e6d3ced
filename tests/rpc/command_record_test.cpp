// Commands that differ in kind, byte for byte: written out by hand, so that no rule of marshalling is trusted.
#include <array>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qorin/qorin_api_rpc_client.h"
#include "tests/rpc/connected_box.h"
#include "tests/rpc/expected_record.h"

namespace
{
using test_support::connected_box;
using test_support::expect_record;
using test_support::reply_with;
using test_support::room;

class command_record : public testing::Test
{
protected:
    command_record() { box.always_reply(reply_with(QORIN_API_RESULT_OK)); }

    protocol::request_record last() { return box.request(box.request_count() - 1); }

    connected_box box;
    room<char> name{"press"};
    room<double> numbers{1.5, -2.25, 0, 4};
    room<unsigned int> words{3, 0, 0xFFFFFFFF};
    room<unsigned short> registers{0x1234, 0xFFFF};
    room<unsigned char> bytes{0xFE, 0x01};
};

TEST_F(command_record, numbers_of_each_kind)
{
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_cbox_reset(box.id));
    expect_record(last(), {{0, "qorin_cbox_reset"}});

    qorin_rpc_cbox_io_analog_output_set(box.id, 2, 1.5);
    expect_record(last(), {{0, "qorin_cbox_io_analog_output_set"}, {0x80, {2u}}, {0x100, {1.5}}});

    qorin_rpc_gen_cbox_io_analog_input_mode_set(box.id, 1, 2, QORIN_ANALOG_IO_MODE_CURRENT, -3, 0.25);
    expect_record(last(), {{0, "qorin_gen_cbox_io_analog_input_mode_set"},
                           {0x80, {1u, 2u, std::uint32_t{QORIN_ANALOG_IO_MODE_CURRENT}, 0xFFFFFFFDu}},
                           {0x100, {0.25}}});

    qorin_rpc_robot_tool_io_power_voltage_set(box.id, 1, QORIN_TOOL_POWER_VOLTAGE_OPTION_24, static_cast<char>(-1));
    expect_record(last(), {{0, "qorin_robot_tool_io_power_voltage_set"},
                           {0x80, {1u, std::uint32_t{QORIN_TOOL_POWER_VOLTAGE_OPTION_24}, 0xFFFFFFFFu}}});

    qorin_rpc_robot_joint_target_velocity_rpm_set(box.id, 0, 4, 10.0);
    expect_record(last(), {{0, "qorin_robot_joint_target_velocity_rpm_set"}, {0x80, {0u, 4u}}, {0x100, {10.0}}});

    qorin_rpc_robot_force_ctrl_force_value_bias_set(box.id, 1, QORIN_SWITCH_ON, QORIN_SWITCH_OFF, QORIN_SWITCH_OFF,
                                                    QORIN_SWITCH_ON, QORIN_SWITCH_OFF, QORIN_SWITCH_ON);
    expect_record(last(), {{0, "qorin_robot_force_ctrl_force_value_bias_set"},
                           {0x80, {1u, 400100u, 400101u, 400101u, 400100u, 400101u, 400100u}}});
}

TEST_F(command_record, texts_and_arrays)
{
    qorin_rpc_cbox_ext_modbus_server_start(box.id, name.data(), 0xFFF0);
    expect_record(last(), {{0, "qorin_cbox_ext_modbus_server_start"}, {0x80, {0xFFF0u}}, {0x200, "press"}});

    qorin_rpc_cbox_ext_modbus_client_register_io_set(box.id, name.data(), 6, registers.data());
    expect_record(
        last(),
        {{0, "qorin_cbox_ext_modbus_client_register_io_set"}, {0x80, {6u}}, {0x200, "press"}, {0x280, {0xFFFF1234u}}});

    qorin_rpc_gen_cbox_io_digital_output_multiple_set(box.id, 1, 40, words.data(), words.data());
    expect_record(last(), {{0, "qorin_gen_cbox_io_digital_output_multiple_set"},
                           {0x80, {1u, 40u}},
                           {0x200, {3u, 0u, 0xFFFFFFFFu}},
                           {0x280, {3u, 0u, 0xFFFFFFFFu}}});

    qorin_rpc_motion_command_robot_tcp_free_path_points_set(box.id, 5, 20, numbers.data(), numbers.data(),
                                                            numbers.data());
    expect_record(last(), {{0, "qorin_motion_command_robot_tcp_free_path_points_set"},
                           {0x80, {5u, 20u}},
                           {0x1200, {1.5, -2.25, 0.0, 4.0}},
                           {0x1280, {1.5, -2.25, 0.0, 4.0}},
                           {0x1300, {1.5, -2.25, 0.0, 4.0}}});

    qorin_rpc_robot_ext_move_joint(box.id, 1, 6, numbers.data(), -8.5);
    expect_record(
        last(),
        {{0, "qorin_robot_ext_move_joint"}, {0x80, {1u, 6u}}, {0x100, {-8.5}}, {0x1200, {1.5, -2.25, 0.0, 4.0}}});

    qorin_rpc_robot_tool_io_rs485_modbus_rtu_write(box.id, 1, 0xFF, 3, 0xFFFE, 5, 0x80, bytes.data());
    expect_record(last(), {{0, "qorin_robot_tool_io_rs485_modbus_rtu_write"},
                           {0x80, {1u, 0xFFu, 3u, 0xFFFEu, 5u, 0x80u}},
                           {0x200, {0x01FEu}}});

    const std::string longer(200, 'x'); // than its slot: cut there, without a terminator
    qorin_rpc_robot_recording_file_save(box.id, 0, 7, longer.c_str());
    expect_record(last(),
                  {{0, "qorin_robot_recording_file_save"}, {0x80, {0u, 7u}}, {0x200, std::string(128, 'x').c_str()}});
}

TEST_F(command_record, long_parameter_lists)
{
    qorin_rpc_robot_safety_limit_tcp_bounding_box_set(box.id, 1, QORIN_REF_COORDINATE_TCP, 1, 2, 3, 4, 5, 6, 7, 8, 9,
                                                      10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24);
    expect_record(last(), {{0, "qorin_robot_safety_limit_tcp_bounding_box_set"},
                           {0x80, {1u, std::uint32_t{QORIN_REF_COORDINATE_TCP}}},
                           {0x100, {1.,  2.,  3.,  4.,  5.,  6.,  7.,  8.,  9.,  10., 11., 12.,
                                    13., 14., 15., 16., 17., 18., 19., 20., 21., 22., 23., 24.}}});

    qorin_rpc_robot_ext_move_pos_ort_quat_add(box.id, 0, QORIN_POSE_TYPE_TCP, 1, 2, 3, 4, 5, 6, 7, 8);
    expect_record(last(), {{0, "qorin_robot_ext_move_pos_ort_quat_add"},
                           {0x80, {0u, 401801u}},
                           {0x100, {1., 2., 3., 4., 5., 6., 7., 8.}}});

    double result[16] = {0.5};
    const double* a = numbers.data();
    qorin_rpc_robot_tcp_from_flange_multiple_position_set(box.id, 1, 4, a, a, a, a, a, a, result);
    const auto record = last();
    EXPECT_STREQ("qorin_robot_tcp_from_flange_multiple_position_set", record.wire_name);
    EXPECT_EQ(1u, record.value[0]);
    EXPECT_EQ(4u, record.value[1]);
    for (std::size_t block = 0; block < 6; ++block)
        EXPECT_EQ(0, std::memcmp(record.double_block[block], a, 128)) << block;
    const double before[16] = {0.5};
    EXPECT_EQ(0, std::memcmp(record.double_block[6], before, 128)) << "an output is read too";
    EXPECT_EQ(0.0, result[0]);
}

TEST(command_reply, fills_outputs_by_their_order_whatever_the_result_is)
{
    connected_box box;
    auto reply = reply_with(QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE);
    for (std::uint32_t slot = 0; slot < 32; ++slot)
    {
        reply.record.value[slot] = 70 + slot;
        reply.record.real[slot] = 0.5 + slot;
    }
    box.always_reply(reply);
    double x[16], y[16], z[16];
    QORIN_SWITCH fix[32];
    EXPECT_EQ(QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE,
              qorin_rpc_motion_command_robot_tcp_welding_position_fix_swtich_get(box.id, 1, fix, x, y, z));
    EXPECT_EQ(70u, fix[0]);
    EXPECT_EQ((std::array{0.5, 1.5, 2.5}), (std::array{x[0], y[0], z[0]}));

    room<char> name{"point"};
    QORIN_MODBUS_CLIENT_IO_STATUS status[32];
    qorin_rpc_cbox_ext_modbus_client_io_status_get(box.id, name.data(), status, x);
    EXPECT_EQ(70u, status[0]);
    EXPECT_EQ(0.5, x[0]);

    room<unsigned char> bits;
    bits.fill(9);
    qorin_rpc_cbox_ext_modbus_client_bit_io_get(box.id, name.data(), 0, bits.data());
    EXPECT_EQ((std::array<unsigned char, 5>{70, 0, 0, 0, 9}),
              (std::array<unsigned char, 5>{bits[0], bits[1], bits[2], bits[3], bits[4]}));

    box.cut(test_support::link::command);
    unsigned int id[32] = {5};
    EXPECT_EQ(0u, qorin_rpc_motion_command_robot_joint_create(box.id, id)) << "the link is lost";
    EXPECT_EQ(0u, id[0]);
    id[0] = 5;
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, qorin_rpc_motion_command_robot_joint_create(99, id));
    EXPECT_EQ(5u, id[0]);
}

} // namespace
