#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "simulator/control_box.h"
#include "tests/simulator/raw_client.h"
#include "tests/support/loopback.h"

namespace
{
using cbox_simulator::box_model;
using cbox_simulator::control_box;
using savrent::cc::val_obj::event_info;

class cbox_event_test : public testing::Test
{
protected:
    void SetUp() override
    {
        box.start();
        // The first client is number 1 and the second number 2.
        for (std::size_t count = 1; count <= 2; ++count)
        {
            clients.emplace_back(address);
            ASSERT_TRUE(raw::comes_true([&] { return box.counters().clients_connected == count; }));
        }
    }

    std::uint32_t call(std::size_t client, const std::string& wire_name, const std::vector<std::uint32_t>& values = {})
    {
        auto request = raw::request(wire_name);
        for (std::size_t index = 0; index < values.size(); ++index)
            request.value[index] = values[index];
        return clients[client].call(request).result;
    }

    /// The next event on a client's link must have this subgroup, the group that belongs to it, and this sender.
    static void expect_event(raw::client& client, std::uint32_t subgroup, std::uint32_t sender_id)
    {
        event_info event{};
        ASSERT_TRUE(client.event.receive(event)) << "instead of " << subgroup;
        EXPECT_EQ(event.subgroup + 0, subgroup);
        EXPECT_EQ(event.group + 0, subgroup / 1000 * 1000);
        EXPECT_EQ(event.sender_id + 0, sender_id);
        EXPECT_EQ(event.parameter[0] + 0, 0);
    }

    std::string address = test_support::own_address();
    std::vector<raw::client> clients;
    control_box box{{.address = address}};
};

TEST_F(cbox_event_test, every_change_of_state_reaches_both_clients_once_and_in_order)
{
    call(0, "qorin_gen_system_create", {401604});
    call(0, "qorin_gen_system_create", {401604}); // stands already
    call(1, "qorin_system_control_take");
    call(1, "qorin_system_control_take"); // has it already
    box.with_model(
        [](box_model& model)
        {
            model.cbox().set_emergency_button(QORIN_BUTTON_STATE_PUSHED);
            model.cbox().set_emergency_button(QORIN_BUTTON_STATE_PUSHED);
            model.cbox().set_power_button(QORIN_BUTTON_STATE_PUSHED);
            model.cbox().set_emergency_button(QORIN_BUTTON_STATE_RELEASED);
            model.cbox().set_power_button(QORIN_BUTTON_STATE_RELEASED);
            model.cbox().set_amr_emergency_button(2, QORIN_BUTTON_STATE_PUSHED);
            model.cbox().set_ecat_connection_state(QORIN_ECAT_CONN_STATE_DISCONNECT_TRYING);
            model.cbox().set_ecat_connection_state(QORIN_ECAT_CONN_STATE_DISCONNECTED);
            model.cbox().set_ecat_connection_state(QORIN_ECAT_CONN_STATE_CONNECTED);
            model.cbox().set_ecat_connection_state(QORIN_ECAT_CONN_STATE_CONNECTED);
        });
    call(1, "qorin_system_control_release");
    call(0, "qorin_system_destroy");
    call(0, "qorin_system_destroy"); // is gone already
    call(0, "qorin_system_control_sw_exit");

    const std::array<std::uint32_t, 2> expected[] = {{308004, 0}, {308002, 0}, {308009, 2}, {307003, 0}, {307005, 0},
                                                     {307002, 0}, {307004, 0}, {307003, 3}, {308005, 0}, {308004, 0},
                                                     {308010, 2}, {307002, 3}, {308005, 0}, {308006, 0}};
    for (auto& client : clients)
    {
        for (const auto& [subgroup, sender_id] : expected)
            ASSERT_NO_FATAL_FAILURE(expect_event(client, subgroup, sender_id));
        EXPECT_TRUE(client.event.ends());
    }
}

TEST_F(cbox_event_test, a_client_that_vanishes_gives_the_control_back_with_an_event)
{
    call(1, "qorin_system_control_take");
    clients.pop_back();
    expect_event(clients[0], 308009, 2);
    expect_event(clients[0], 308010, 2);
}

TEST_F(cbox_event_test, the_last_event_reaches_a_client_that_is_far_behind_with_reading)
{
    constexpr int more_than_a_link_holds = 30000;
    box.with_model(
        [](box_model& model)
        {
            for (int count = 0; count < more_than_a_link_holds; ++count)
                model.events().post(QORIN_EVENT_GRP_MODBUS_NOTI, QORIN_EVENT_SUBGRP_MODBUS_NOTI_START_PROGRAM);
        });
    call(1, "qorin_system_control_sw_exit");
    event_info event{};
    int received = 0;
    while (clients[0].event.receive(event)) // leaves the last one there
        ++received;
    EXPECT_EQ(event.subgroup + 0, 308006u);
    EXPECT_LT(received, more_than_a_link_holds);
    EXPECT_TRUE(raw::comes_true([&] { return box.exit_requested(); })) << "although the other client never reads";
}

TEST_F(cbox_event_test, the_echo_carries_every_number)
{
    // Groups and numbers that nobody knows are carried too.
    EXPECT_EQ(call(0, "qorin_ts_event_echo", {4000000001u, 7, 4000000002u, 0x80000000u, ~0u, 1, 2, 0x7FFFFFFF}),
              100000u);
    std::uint32_t expected[100] = {4000000001u, 7, 4000000002u, 0x80000000u, ~0u, 1, 2, 0x7FFFFFFF};
    for (auto& client : clients)
    {
        std::uint32_t words[100];
        ASSERT_TRUE(client.event.receive(words));
        EXPECT_EQ(std::memcmp(words, expected, sizeof words), 0);
    }
}

TEST_F(cbox_event_test, an_injection_is_judged_and_ends_up_where_it_belongs)
{
    struct row
    {
        const char* wire_name;
        std::vector<std::uint32_t> values;
        std::uint32_t result;
    };
    const row rows[] = {
        {"cbox_io_digital_input_set", {1, 1}, 100000},
        {"cbox_io_digital_input_set", {0, 2}, 101005},
        {"gen_cbox_io_digital_input_set", {1, 2, 1}, 100000},
        {"gen_cbox_io_digital_input_set", {2, 0, 1}, 101004},
        {"cbox_redundant_io_digital_input_set", {3, 1}, 100000},
        {"gen_cbox_redundant_io_digital_input_set", {1, 4, 1}, 100000},
        {"cbox_redundant_io_digital_output_set", {5, 1}, 100000},
        {"gen_cbox_redundant_io_digital_output_set", {1, 6, 1}, 100000},
        {"gen_cbox_redundant_io_digital_output_set", {1, 6, 2}, 101005},
        {"safety_module_redundant_io_digital_input_set", {7, 1}, 100000},
        {"safety_module_redundant_io_digital_input_set", {8, 1}, 101004},
        {"epc_io_digital_input_set", {8, 1}, 100000},
        {"epc_io_digital_input_set", {16, 1}, 101004},
        {"fault_inject", {1, 1, 0}, 100000},
        {"fault_inject", {1, 2, 0}, 101005},
        {"fault_inject", {1, 1, 1}, 101009}, // no mobile base
        {"fault_inject", {2, 1, 0}, 100000},
        {"fault_inject", {3, 1, 0}, 100009}, // no system
        {"fault_inject", {4, 301028, 17}, 100000},
        {"fault_inject", {4, 301001, 17}, 102007},
        {"fault_inject", {4, 301061, 17}, 102007},
        {"fault_inject", {0, 0, 0}, 102007},
    };
    call(0, "qorin_system_control_take"); // and another one injects
    for (const auto& row : rows)
        EXPECT_EQ(call(1, std::string("qorin_ts_") + row.wire_name, row.values), row.result) << &row - rows;
    call(0, "qorin_gen_system_create", {401603});
    EXPECT_EQ(call(1, "qorin_ts_fault_inject", {3, 1, 0}), 100000u);

    box.with_model(
        [](box_model& model)
        {
            const auto& modules = model.cbox().all_io_modules();
            EXPECT_EQ(modules[0].digital_input, 1u << 1);
            EXPECT_EQ(modules[1].digital_input, 1u << 2);
            EXPECT_EQ(modules[0].redundant_digital_input, 1u << 3);
            EXPECT_EQ(modules[1].redundant_digital_input, 1u << 4);
            EXPECT_EQ(modules[0].redundant_digital_output, 1u << 5);
            EXPECT_EQ(modules[1].redundant_digital_output, 1u << 6);
            EXPECT_EQ(model.cbox().safety_redundant_word(), 1u << 15);
            EXPECT_EQ(model.cbox().epc_inputs(), 1u << 8);
        });
    const std::array<std::uint32_t, 2> expected[] = {{308009, 1}, {307003, 0}, {307005, 0}, {301028, 17},
                                                     {308004, 0}, {308002, 0}, {308005, 0}};
    for (const auto& [subgroup, sender_id] : expected)
        ASSERT_NO_FATAL_FAILURE(expect_event(clients[1], subgroup, sender_id));
}
} // namespace
