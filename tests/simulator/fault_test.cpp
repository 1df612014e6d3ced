// What goes wrong between a box and its clients when it is asked to.
#include <chrono>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "simulator/control_box.h"
#include "tests/simulator/raw_client.h"
#include "tests/support/loopback.h"

namespace
{
using cbox_simulator::control_box;
using cbox_simulator::control_box_options;
using cbox_simulator::fault_plan;

constexpr std::size_t frame_size = sizeof(protocol::shared_data_t);

fault_plan plan_of(std::initializer_list<std::string_view> faults)
{
    fault_plan plan;
    for (const auto fault : faults)
        plan.add(fault);
    return plan;
}

struct fault_test : testing::Test
{
    void start(std::initializer_list<std::string_view> faults)
    {
        control_box_options options;
        options.address = address;
        options.faults = plan_of(faults);
        box.emplace(options);
        box->start();
    }

    bool can_connect()
    {
        try
        {
            raw::client client(address);
            return client.result_of("qorin_system_controllable_get") == 100000;
        }
        catch (const std::runtime_error&)
        {
            return false;
        }
    }

    /// How many bytes of a link come before its end, or before it has been silent for a while.
    static std::size_t bytes_before_the_end(raw::link& link)
    {
        std::size_t count = 0;
        for (unsigned char byte; link.receive(byte);)
            ++count;
        return count;
    }

    std::string address = test_support::own_address();
    std::optional<control_box> box;
};

TEST(fault_plan, refuses_what_is_no_fault_with_one_line)
{
    const std::pair<const char*, const char*> rows[] = {
        {"", "is none"},
        {"explode:data", "is none"},
        {"refuse", "wants a link"},
        {"refuse:third", "command, data or event"},
        {"refuse:data:0", "how many times"},
        {"close:data", "a number of bytes"},
        {"close:data:-1", "a number of bytes"},
        {"split:data:1", "more than it should"},
        {"delay:soon", "milliseconds"},
        {"answer:qorin_robot_stop", "a result"},
        {"answer::1", "a command"},
        {"lose:1.5", "a share, 0 to 1"},
        {"lose:nan", "a share"},
    };
    for (const auto& [text, reason] : rows)
    {
        try
        {
            fault_plan().add(text);
            ADD_FAILURE() << text << " is taken";
        }
        catch (const std::invalid_argument& error)
        {
            EXPECT_NE(std::string_view(error.what()).find(reason), std::string_view::npos) << error.what();
        }
    }
    EXPECT_EQ(plan_of({"version:QORIN:x"}).version_text, "QORIN:x");
}

TEST_F(fault_test, a_link_is_refused_as_often_as_asked)
{
    start({"refuse:data:1"});
    EXPECT_FALSE(can_connect());
    EXPECT_TRUE(raw::comes_true([&] { return can_connect(); }));
    box->set_faults(plan_of({"refuse:event"}));
    EXPECT_FALSE(can_connect());
    box->stop();

    start({"refuse:command:1"});
    EXPECT_FALSE(can_connect());
    EXPECT_TRUE(raw::comes_true([&] { return can_connect(); }));
}

TEST_F(fault_test, a_link_closes_at_its_byte_and_the_others_live_on)
{
    start({"close:data:100000", "close:event:400"});
    raw::client client(address);
    EXPECT_EQ(bytes_before_the_end(client.data), 100000u);
    box->push_event({});
    box->push_event({});
    EXPECT_EQ(bytes_before_the_end(client.event), 400u);
    EXPECT_EQ(client.result_of("qorin_system_controllable_get"), 100000u);
    EXPECT_EQ(box->counters().clients_connected, 1u);

    box->set_faults(plan_of({"close:command:700"}));
    protocol::reply_record reply;
    const auto request = raw::request("qorin_system_controllable_get");
    EXPECT_TRUE(client.command.send(&request, sizeof request));
    EXPECT_EQ(bytes_before_the_end(client.command), 700u - sizeof reply);
}

TEST_F(fault_test, a_link_goes_silent_and_stays_open)
{
    start({"stall:data:30000"});
    raw::client client(address);
    protocol::shared_data_t frame;
    EXPECT_TRUE(client.data.receive(frame));
    std::vector<unsigned char> rest(30000 - frame_size);
    for (auto& byte : rest)
        EXPECT_TRUE(client.data.receive(byte));
    EXPECT_TRUE(raw::comes_true([&] { return box->counters().frames_skipped > 100; }));
    EXPECT_EQ(client.result_of("qorin_system_controllable_get"), 100000u);
    EXPECT_FALSE(client.data.receive_last_arrived(frame.control_sw_version[0]));
}

TEST_F(fault_test, records_arrive_whole_in_single_bytes)
{
    start({"split:command", "split:data", "split:event"});
    raw::client client(address);
    EXPECT_EQ(client.result_of("qorin_gen_system_create", QORIN_CBOX_MODEL_3GEN_SIM), 100000u);
    savrent::cc::val_obj::event_info event;
    EXPECT_TRUE(client.event.receive(event));
    EXPECT_EQ(event.group + 0, 308000u);
    protocol::shared_data_t frame;
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_TRUE(client.data.receive(frame));
        EXPECT_STREQ(frame.control_sw_version, "QORIN.v3.008.000.004_U2");
    }
}

TEST_F(fault_test, replies_come_late_or_are_those_of_choice)
{
    start({"delay:300:qorin_rpc_system_control_take", "answer:qorin_system_control_release:190003"});
    raw::client client(address);
    const auto asked = std::chrono::steady_clock::now();
    EXPECT_EQ(client.result_of("qorin_system_control_take"), 100000u);
    EXPECT_GE(std::chrono::steady_clock::now() - asked, std::chrono::milliseconds(300));
    EXPECT_EQ(client.result_of("qorin_system_control_release"), 190003u);
    box->set_faults({});
    EXPECT_EQ(client.result_of("qorin_system_control_take"), 200002u) << "it was not released";
    EXPECT_THROW(box->set_faults(plan_of({"answer:qorin_nothing:1"})), std::invalid_argument);
    box->stop();
    EXPECT_THROW(start({"delay:1:qorin_nothing"}), std::invalid_argument);
}

TEST_F(fault_test, frames_come_late_or_get_lost_and_tell_another_version)
{
    start({"version:QORIN.v9", "late:200"});
    raw::client client(address);
    protocol::shared_data_t frame;
    EXPECT_TRUE(client.data.receive(frame));
    EXPECT_STREQ(frame.control_sw_version, "QORIN.v9");
    const auto start_of_change = std::chrono::steady_clock::now();
    EXPECT_EQ(client.result_of("qorin_gen_system_create", QORIN_CBOX_MODEL_3GEN_SIM), 100000u);
    while (frame.cbox_name != QORIN_CBOX_MODEL_3GEN_SIM)
        ASSERT_TRUE(client.data.receive(frame));
    EXPECT_GE(std::chrono::steady_clock::now() - start_of_change, std::chrono::milliseconds(190));

    box->set_faults(plan_of({"lose:1"}));
    const auto sent = [&] { return box->counters().frames_sent; };
    EXPECT_TRUE(raw::comes_true(
        [&]
        {
            const auto before = sent();
            usleep(50000);
            return sent() == before;
        }));
}
} // namespace
