#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "simulator/control_box.h"
#include "tests/simulator/commanded_box.h"
#include "tests/support/loopback.h"

namespace
{
using words = std::vector<std::uint32_t>;

/// A box with one robot and EtherCAT network.
struct equipped_box : commanded_box
{
    equipped_box() { create(401510); }
};

const std::string ones_and_zero = block(words{1, 1, 0});
const std::string channels_0_3_0 = block(words{0, 3, 0});

TEST(peripherals, what_a_command_sets_is_all_that_changes_in_the_frame)
{
    struct frame_row
    {
        const char* name;
        carried given;
        std::size_t offset;
        std::string expected;
    };
    const std::string data(128, 'd');
    const frame_row rows[] = {
        {"robot_tool_io_digital_output_set", {{0, 3, 1}}, 0x524C, bytes_of(8u)},
        {"robot_tool_io_digital_output_multiple_set",
         {{0, 3}, {}, {channels_0_3_0, ones_and_zero}},
         0x524C,
         bytes_of(8u)},
        {"robot_tool_io_analog_output_set", {{0, 1}, {2.5}}, 0x5278, bytes_of(2.5)},
        {"robot_tool_io_analog_input_mode_set", {{0, 1, 400701}}, 0x525C, bytes_of(8u)},
        {"robot_tool_io_power_voltage_set", {{0, 400824, 1}}, 0x5284, bytes_of(400824u) + bytes_of(0.1)},
        {"robot_tool_io_led_color_set", {{0, 1, 2, 3}}, 0x5290, block(words{1, 2, 3})},
        {"robot_tool_io_rs485_set",
         {{0, 404803, 404908, 405003, 405102, 400100, 0xFFFFFFFE}},
         0x7344,
         block(words{404803, 404908, 405003, 405102, 400100, 0xFFFFFFFE})},
        {"robot_tool_io_rs485_control_cmd", {{0, 405204}}, 0x7380, block(words{0, 0, 0, 1, 0, 0})},
        {"robot_tool_io_rs485_io_tx_data_set", {{0, 64}, {}, {data}}, 0x73D9, std::string(64, 'd')},
        {"ts_robot_tool_io_digital_input_set", {{0, 2, 1}}, 0x522C, bytes_of(4u)},
        {"ts_robot_joint_velocity_feedforward_ratio_set", {{0, 5}, {0.25}}, 0x4180 + 376 * 5, bytes_of(0.25)},
        {"ts_robot_joint_torque_feedforward_ratio_set", {{0, 0}, {0.75}}, 0x4188, bytes_of(0.75)},
        {"cbox_master_operational_mode_set", {{403003}}, 0x3220, bytes_of(403003u)},
        {"cbox_io_digital_output_set", {{15, 1}}, 0x3394, bytes_of(0x8000u)},
        {"gen_cbox_io_digital_output_set", {{1, 2, 1}}, 0x3394 + 224, bytes_of(4u)},
        {"cbox_io_digital_output_multiple_set", {{2}, {}, {channels_0_3_0, ones_and_zero}}, 0x3394, bytes_of(9u)},
        {"gen_cbox_io_digital_output_multiple_set",
         {{1, 1}, {}, {channels_0_3_0, ones_and_zero}},
         0x3394 + 224,
         bytes_of(1u)},
        {"cbox_io_analog_output_set", {{1}, {1.5}}, 0x33C0, bytes_of(1.5)},
        {"gen_cbox_io_analog_output_set", {{1, 0}, {-1.5}}, 0x33B8 + 224, bytes_of(-1.5)},
        {"cbox_io_analog_input_mode_set", {{0, 400701, 0xFFFFFFFF}, {9}}, 0x33A4, bytes_of(4u)},
        {"gen_cbox_io_analog_output_mode_set", {{1, 1, 400701, 0}, {9}}, 0x33A4 + 224, bytes_of(2u)},
        {"gen_cbox_fsoe_io_digital_output_set", {{1, 405501, 1}}, 0x3394 + 224, bytes_of(1u)},
        {"cbox_ecat_io_link_tx_data_set", {{0, 64}, {}, {data}}, 0x5CE8, std::string(64, 'd')},
        {"cbox_ecat_io_link_wp_tx_data_set", {{15, 3}, {}, {data}}, 0x5C7D, "ddd"},
        {"cbox_ecat_low_data_io_tx_data_set", {{3, 32}, {}, {data}}, 0x5FA6, std::string(32, 'd')},
        {"cbox_ecat_io_link_control_bit_set", {{0}, {}, {block(words{0x12345})}}, 0x5CA6, "\x45\x23"},
        {"cbox_ecat_io_link_output_bit_set", {{0}, {}, {"ab"}}, 0x5CA4, "ab"},
    };
    for (const auto& row : rows)
    {
        equipped_box box;
        const auto set = [&] { EXPECT_EQ(box.result(row.name, row.given), 100000u) << row.name; };
        EXPECT_TRUE(box.changes_only(row.offset, row.expected, set)) << row.name;
    }
}

/// Commands one after the other on one box, and what the reply tells.
struct step
{
    const char* name;
    carried given;
    std::uint32_t result;
    words values = {};
    double real = 0;
};

void expect_steps(equipped_box& box, const std::vector<step>& steps)
{
    for (const auto& step : steps)
    {
        const auto reply = box.ask(step.name, step.given);
        const auto line = "step " + std::to_string(&step - steps.data()) + ' ' + step.name;
        EXPECT_EQ(reply.result, step.result) << line;
        for (std::size_t i = 0; i < step.values.size(); ++i)
            EXPECT_EQ(reply.value[i] + 0u, step.values[i]) << line << ", value " << i;
        EXPECT_EQ(reply.real[0], step.real) << line;
    }
}

TEST(peripherals, refusals_tell_why_and_leave_the_frame)
{
    equipped_box box;
    const auto before = box.frame();
    expect_steps(
        box,
        {
            {"robot_tool_io_digital_output_set", {{1, 9, 9}}, 102000},
            {"robot_tool_io_digital_output_set", {{0, 4, 2}}, 102028},
            {"robot_tool_io_digital_output_set", {{0, 3, 2}}, 102029},
            {"robot_tool_io_digital_output_multiple_set", {{0, 2}, {}, {block(words{0, 4}), ones_and_zero}}, 102028},
            {"robot_tool_io_digital_output_multiple_set", {{0, 33}, {}, {channels_0_3_0, ones_and_zero}}, 102028},
            {"robot_tool_io_analog_output_set", {{0, 1}, {NAN}}, 102029},
            {"robot_tool_io_power_voltage_set", {{0, 400813}}, 102029},
            {"robot_tool_io_rs485_set", {{0, 404803, 404913, 405003, 405102, 400100, 1}}, 102029},
            {"robot_tool_io_rs485_io_tx_data_set", {{0, 65}, {}, {"data"}}, 106016},
            {"ts_robot_joint_torque_feedforward_ratio_set", {{0, 6}, {1}}, 103001},
            {"cbox_io_digital_output_multiple_set", {{2}, {}, {block(words{0, 16}), ones_and_zero}}, 101004},
            {"gen_cbox_io_analog_output_mode_set", {{1, 1, 400702}}, 101005},
            {"cbox_state_manual_control_set", {{1}}, 101005},
            {"cbox_state_ui_program_set", {{404108}}, 101005},
            {"cbox_ecat_io_link_wp_tx_data_set", {{16, 200}, {}, {"data"}}, 106014},
            {"cbox_ecat_low_data_io_tx_data_set", {{3, 200}, {}, {"data"}}, 106016},
        });
    EXPECT_EQ(box.call(request("cbox_io_digital_output_set", {{0, 1}}), 2).result, 100003u);
    EXPECT_EQ(box.frame(), before);
    EXPECT_EQ(box.result("cbox_state_ui_program_set", {{404102}}), 100000u);
    EXPECT_EQ(box.model.cbox().ui_program(), QORIN_UI_PROGRAM_STATE_RUN);
}

TEST(peripherals, a_redundant_channel_has_one_function_at_a_time)
{
    equipped_box box;
    expect_steps(box, {
                          {"cbox_io_redundant_in_set", {{0, 0, 1, 402203}}, 101005},
                          {"cbox_io_redundant_in_set", {{0, 3, 3, 402200}}, 101004},
                          {"cbox_io_redundant_in_set", {{0, 0, 1, 402200}}, 100000},
                          {"cbox_io_redundant_in_set", {{0, 1, 2, 402201}}, 101007},
                          {"cbox_io_redundant_out_set", {{0, 0, 1, 402208}}, 100000},
                          {"cbox_io_redundant_in_remove", {{0, 0, 2}}, 101008},
                          {"cbox_io_redundant_in_remove", {{0, 0, 1}}, 100000},
                          {"cbox_io_redundant_out_remove_all", {{2}}, 101004},
                          {"cbox_io_redundant_out_remove_all", {{0}}, 100000},
                          {"cbox_safety_module_io_redundant_in_set", {{0, 0, 1, 402300}}, 100000},
                          {"cbox_safety_module_io_redundant_in_set", {{0, 2, 3, 402301}}, 100000},
                          {"cbox_safety_module_io_redundant_in_set", {{0, 4, 5, 402301}}, 100000},
                          {"cbox_safety_module_io_redundant_in_set", {{0, 6, 7, 402301}}, 100000},
                          {"cbox_safety_module_io_redundant_in_set", {{0, 0, 2, 402301}}, 101006},
                      });
    EXPECT_TRUE(box.model.cbox().redundant_inputs()[0].pairs().empty());
}

TEST(peripherals, fieldbus_questions_are_answered_from_what_was_set)
{
    equipped_box box;
    EXPECT_EQ(box.model.fieldbuses().registers.input_reals.set(63, 6.5), QORIN_API_RESULT_OK);
    const std::string registers = block(std::vector<std::uint16_t>{0x1111, 0x2222, 0x3333});
    expect_steps(box, {
                          {"cbox_ext_modbus_local_bit_set", {{65533, 3}, {}, {std::string("\1\0\7", 3)}}, 100000},
                          {"cbox_ext_modbus_local_bit_get", {{65533, 3}}, 100000, {0x010001}},
                          {"cbox_ext_modbus_local_bit_get", {{65533, 4}}, 106002, {0}},
                          {"cbox_ext_modbus_local_register_set", {{7, 3}, {}, {registers}}, 100000},
                          {"cbox_ext_modbus_local_register_get", {{8, 2}}, 100000, {0x33332222}},
                          {"cbox_ext_modbus_local_register_set", {{7, 65}, {}, {registers}}, 106002},
                          {"cbox_ext_modbus_client_create", {{502, 1}, {}, {"plc", "127.0.0.1", ""}}, 100000},
                          {"cbox_ext_modbus_client_create", {{502, 1}, {}, {"plc", "127.0.0.1", ""}}, 106004},
                          {"cbox_ext_modbus_client_status_get", {{}, {}, {"none"}}, 106003, {0}},
                          {"cbox_ext_modbus_client_status_get", {{}, {}, {"plc"}}, 100000, {403702}},
                          {"cbox_ext_modbus_client_seq_mode_switch_set", {{400100}, {}, {"plc"}}, 100000},
                          {"cbox_ext_modbus_client_seq_mode_switch_get", {{}, {}, {"plc"}}, 100000, {400100}},
                          {"cbox_ext_modbus_client_io_create", {{403504, 100, 4}, {}, {"out", "none"}}, 106003},
                          {"cbox_ext_modbus_client_io_create", {{403504, 100, 4}, {}, {"out", "plc"}}, 100000},
                          {"cbox_ext_modbus_client_io_create", {{403501, 0, 8}, {}, {"out", "plc"}}, 106006},
                          {"cbox_ext_modbus_client_io_create", {{403501, 65535, 2}, {}, {"in", "plc"}}, 106002},
                          {"cbox_ext_modbus_client_io_create", {{403501, 0, 8}, {}, {"in", "plc"}}, 100000},
                          {"cbox_modbus_client_io_type_get", {{}, {}, {"in"}}, 100000, {403501}},
                          {"cbox_ext_modbus_client_io_start", {{403605}, {}, {"out"}}, 100000},
                          {"cbox_ext_modbus_client_io_status_get", {{}, {}, {"out"}}, 100000, {403802}, 10},
                          {"cbox_modbus_client_io_status_get", {{}, {}, {"in"}}, 100000, {403801}},
                          {"cbox_ext_modbus_client_register_io_set", {{101}, {}, {"out", registers}}, 100000},
                          {"cbox_modbus_client_register_io_get", {{102}, {}, {"out"}}, 100000, {0x33332222}},
                          {"cbox_ext_modbus_client_register_io_get", {{103}, {}, {"out"}}, 100000, {0x3333}},
                          {"cbox_ext_modbus_client_register_io_get", {{99}, {}, {"out"}}, 106008},
                          {"cbox_ext_modbus_client_bit_io_get", {{100}, {}, {"out"}}, 106007},
                          {"cbox_ext_modbus_client_bit_io_set", {{0}, {}, {"in", "\1"}}, 106009},
                          {"cbox_ext_modbus_client_destroy", {{}, {}, {"plc"}}, 100000},
                          {"cbox_ext_modbus_client_io_stop", {{}, {}, {"out"}}, 106005},
                          {"cbox_ext_eip_adaptor_start", {{44818}, {}, {"any"}}, 100000},
                          {"cbox_ext_eip_adaptor_start", {{44818}, {}, {"any"}}, 106010},
                          {"cbox_ext_eip_adaptor_status", {}, 100000, {403905}},
                          {"cbox_ext_eip_scanner_status", {}, 100000, {403900}},
                          {"cbox_ext_eip_scanner_tx_data_set", {{3}, {}, {"abcd"}}, 100000},
                          {"cbox_ext_eip_scanner_tx_data_get", {{4}}, 100000, {0x636261}},
                          {"cbox_ext_eip_scanner_tx_data_get", {{129}}, 106016},
                          {"cbox_ext_output_float_register_set", {{5}, {2.5}}, 100000},
                          {"cbox_ext_output_float_register_get", {{5}}, 100000, {}, 2.5},
                          {"cbox_ext_output_bit_register_set", {{5, 2}}, 106002},
                          {"cbox_ext_output_int_register_set", {{64, 2}}, 106002},
                          {"cbox_ext_input_float_register_get", {{63}}, 100000, {}, 6.5},
                          {"robot_tool_io_rs485_modbus_rtu_write", {{0, 1, 16, 40, 1, 2}, {}, {"xyz"}}, 100000},
                          {"robot_tool_io_rs485_modbus_rtu_read", {{0, 1, 3, 40, 1, 4}}, 100000, {0x7978}},
                          {"ts_cbox_sdo_read", {{1, 0x6040, 0, 2}}, 106012},
                          {"ts_cbox_sdo_write", {{1, 0x6040, 0, 2, 15}}, 100000},
                          {"ts_cbox_sdo_read", {{1, 0x6040, 0, 2}}, 100000, {15}},
                          {"cbox_master_ecat_disconnect", {}, 100000},
                          {"ts_cbox_sdo_read", {{1, 0x6040, 0, 2}}, 106013},
                      });
    EXPECT_EQ(box.field<std::uint32_t>(0x16C), 400203u);
}

TEST(peripherals, user_memory_keeps_every_form_under_its_name)
{
    equipped_box box;
    const auto minus = [](std::uint32_t number) { return ~number + 1; };
    expect_steps(
        box,
        {
            {"get_user_memory", {{}, {}, {"key"}}, 105000, {0, 0, 0, 0, 0}},
            {"set_user_memory", {{404000}, {}, {"key"}}, 100001},
            {"set_user_memory", {{404002, minus(5), minus(1), minus(7)}, {0.5}, {"key", "hello"}}, 100000},
            {"get_user_memory", {{}, {}, {"key"}}, 100000, {404002, minus(5), 0x6C6C6568, minus(1), minus(7)}, 0.5},
            {"delete_user_memory", {{}, {}, {"key"}}, 100000},
            {"delete_user_memory", {{}, {}, {"key"}}, 105000},
        });
    for (std::uint32_t i = 0; i < 256; ++i)
        ASSERT_EQ(box.result("set_user_memory", {{404001, i}, {}, {std::to_string(i)}}), 100000u);
    expect_steps(box, {
                          {"set_user_memory", {{404001}, {}, {"one too many"}}, 105001},
                          {"set_user_memory", {{404001, 9}, {}, {"255"}}, 100000},
                          {"clear_user_memory", {}, 100000},
                          {"get_user_memory", {{}, {}, {"255"}}, 105000},
                      });
}

TEST(peripherals, a_sleep_keeps_its_caller_waiting_and_nobody_else)
{
    cbox_simulator::control_box_options options;
    options.address = test_support::own_address();
    cbox_simulator::control_box box(options);
    box.start();
    raw::client sleeper(options.address);
    raw::client other(options.address, "127.0.0.2");
    ASSERT_EQ(sleeper.result_of("qorin_system_control_take"), 100000u);
    const auto start = std::chrono::steady_clock::now();
    const auto elapsed = [&] { return std::chrono::steady_clock::now() - start; };
    const auto sleep = raw::request("qorin_rt_sleep", 1000);
    ASSERT_TRUE(sleeper.command.send(&sleep, sizeof sleep));
    EXPECT_EQ(other.result_of("qorin_system_control_take"), 100002u);
    EXPECT_LT(elapsed(), std::chrono::milliseconds(900));
    protocol::reply_record reply{};
    ASSERT_TRUE(sleeper.command.receive(reply));
    EXPECT_EQ(reply.result, 100000u);
    EXPECT_GE(elapsed(), std::chrono::milliseconds(1000));
    // A box that ends does not wait for a sleeper.
    const auto long_sleep = raw::request("qorin_rt_sleep", 0xFFFFFFFF);
    ASSERT_TRUE(sleeper.command.send(&long_sleep, sizeof long_sleep));
    EXPECT_EQ(other.result_of("qorin_system_controllable_get"), 100000u);
    box.stop();
}
} // namespace
