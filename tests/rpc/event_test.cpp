#include "qorin/event.h"

#include <atomic>
#include <chrono>
#include <cstring>
#include <mutex>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "rpc/cbox_registry.h"
#include "rpc/qorin_rpc_client.h"
#include "rpc/qorin_rpc_event.h"
#include "tests/rpc/connected_box.h"
#include "tests/support/installation.h"

namespace
{
using namespace std::chrono_literals;
using savrent::cc::val_obj::event_info;
using test_support::connected_box;
using test_support::eventually;
using test_support::installation;
using test_support::reply_with;

constexpr unsigned int group = QORIN_EVENT_GRP_NOTIFICATION;
constexpr unsigned int subgroup = QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_TAKE;
constexpr unsigned int end_of_test = 999'999; ///< a group of no event but the last one of a test

/// What the callbacks saw, in their order.
std::mutex g_seen_mutex;
std::string g_seen;

void note(char name, unsigned int sender_id)
{
    std::lock_guard lock(g_seen_mutex);
    g_seen += name + std::to_string(sender_id) + " ";
}

std::string seen()
{
    std::lock_guard lock(g_seen_mutex);
    return g_seen;
}

template <char Name>
void callback(unsigned int, unsigned int, unsigned int sender_id, int, int, int, int, int)
{
    note(Name, sender_id);
}
constexpr qorin_event_callback callback_a = callback<'a'>;
constexpr qorin_event_callback callback_b = callback<'b'>;
constexpr qorin_event_callback callback_c = callback<'c'>;

event_info event(unsigned int event_group, unsigned int event_subgroup, unsigned int sender_id)
{
    event_info made = {};
    made.group = event_group;
    made.subgroup = event_subgroup;
    made.sender_id = sender_id;
    return made;
}

/// Whether an event of the group lies in the queue now.
bool occurred(unsigned int cbox_id, unsigned int event_group, bool remove = false)
{
    char flag = 9;
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_wait_event_group(cbox_id, event_group, 0, remove, &flag));
    return flag == 1;
}

/// Sends events and returns when the last of them has gone through the dispatcher.
void send_all(connected_box& box, std::initializer_list<event_info> events)
{
    for (const event_info& sent : events)
        box.send_event(sent);
    box.send_event(event(end_of_test, 0, 0));
    char flag = 0;
    qorin_rpc_system_wait_event_group(box.id, end_of_test, 5000, 1, &flag);
    ASSERT_EQ(1, flag);
}

TEST(event, runs_callbacks_in_three_passes_and_each_pass_in_order_of_registration)
{
    connected_box box;
    constexpr auto ok = QORIN_API_RESULT_OK;
    EXPECT_EQ(ok, qorin_rpc_system_event_group_subgroup_callback_add(box.id, callback_a, 1, subgroup));
    EXPECT_EQ(ok, qorin_rpc_system_event_group_callback_add(box.id, callback_c, group));
    EXPECT_EQ(ok, qorin_rpc_system_event_group_callback_add(box.id, callback_a, group));
    EXPECT_EQ(ok, qorin_rpc_system_event_callback_add(box.id, callback_b));
    EXPECT_EQ(ok, qorin_rpc_system_event_callback_add(box.id, callback_a));
    send_all(box, {event(group, subgroup, 1), event(group, 5, 2), event(6, subgroup, 3), event(7, 8, 4)});
    std::string expected = "b1 a1 c1 a1 a1 b2 a2 c2 a2 b3 a3 a3 b4 a4 b0 a0 ";
    EXPECT_EQ(expected, seen());

    // A second time the list for all events takes none, the others do.
    EXPECT_EQ(ok, qorin_rpc_system_event_callback_add(box.id, callback_a));
    EXPECT_EQ(ok, qorin_rpc_system_event_group_callback_add(box.id, callback_a, group));
    EXPECT_EQ(ok, qorin_rpc_system_event_group_subgroup_callback_add(box.id, callback_a, 1, subgroup));
    send_all(box, {event(group, subgroup, 5)});
    EXPECT_EQ(expected += "b5 a5 c5 a5 a5 a5 a5 b0 a0 ", seen());
}

TEST(event, removes_by_name_from_the_list_for_all_and_the_first_one_of_a_key)
{
    connected_box box;
    for (const qorin_event_callback callback : {callback_a, callback_b, callback_c})
    {
        qorin_rpc_system_event_callback_add(box.id, callback);
        qorin_rpc_system_event_group_callback_add(box.id, callback, group);
        qorin_rpc_system_event_group_subgroup_callback_add(box.id, callback, group, subgroup);
    }
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_event_callback_remove(box.id, callback_b));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_event_callback_remove(box.id, callback_b));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_event_group_callback_remove(box.id, callback_c, group));
    EXPECT_EQ(QORIN_API_RESULT_OK,
              qorin_rpc_system_event_group_subgroup_callback_remove(box.id, callback_c, group, subgroup));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_event_group_callback_remove(box.id, callback_a, 12345));
    send_all(box, {event(group, subgroup, 1)});
    EXPECT_EQ("a1 c1 b1 c1 b1 c1 a0 c0 ", seen());
}

std::atomic<long> g_numbers = 0;

void callback_of_all_numbers(unsigned int event_group, unsigned int event_subgroup, unsigned int sender_id, int p1,
                             int p2, int p3, int p4, int p5)
{
    if (event_group == 11 && event_subgroup == 12 && sender_id == 13 && p1 == -1 && p2 == 2 && p3 == -3 && p4 == 4 &&
        p5 == -5)
        ++g_numbers;
}

TEST(event, hands_a_callback_all_numbers_of_the_record)
{
    connected_box box;
    qorin_rpc_system_event_callback_add(box.id, callback_of_all_numbers);
    event_info sent = event(11, 12, 13);
    for (int i = 0; i < 5; ++i)
        sent.parameter[i] = (i + 1) * (i % 2 == 0 ? -1 : 1);
    std::memset(sent.further_parameter, 0x77, sizeof(sent.further_parameter));
    send_all(box, {sent});
    EXPECT_EQ(1, g_numbers);
}

TEST(event, keeps_the_latest_513)
{
    connected_box box;
    box.send_event(event(1, 0, 1));
    box.send_event(event(2, 0, 2));
    for (unsigned int i = 3; i <= 513; ++i)
        box.send_event(event(3, 0, i));
    EXPECT_TRUE(eventually([&] { return occurred(box.id, 1); }));
    char flag = 0;
    qorin_rpc_system_wait_event_group_subgroup_sender_id(box.id, 3, 0, 513, 5000, 0, &flag);
    EXPECT_EQ(1, flag);
    EXPECT_TRUE(occurred(box.id, 1)) << "513 events have room";

    box.send_event(event(4, 0, 514));
    EXPECT_TRUE(eventually([&] { return occurred(box.id, 4); }));
    EXPECT_FALSE(occurred(box.id, 1)) << "the 514th pushes out the first";
    EXPECT_TRUE(occurred(box.id, 2));
}

TEST(event, a_wait_finds_past_events_oldest_first_and_takes_them_out_only_if_told)
{
    connected_box box;
    char flag = 9;
    box.send_event(event(group, subgroup, 1));
    box.send_event(event(group, subgroup, 2));
    ASSERT_TRUE(eventually([&] { return occurred(box.id, group); }));
    qorin_rpc_system_wait_event_group_subgroup_sender_id(box.id, group, subgroup, 2, 5000, 0, &flag);
    ASSERT_EQ(1, flag);

    EXPECT_TRUE(occurred(box.id, group, true)) << "takes the first";
    qorin_rpc_system_wait_event_group_subgroup_sender_id(box.id, group, subgroup, 1, 0, 0, &flag);
    EXPECT_EQ(0, flag);
    qorin_rpc_system_wait_event_group_subgroup(box.id, group, subgroup + 1, 0, 0, &flag);
    EXPECT_EQ(0, flag) << "group and subgroup are compared together";
    qorin_rpc_system_wait_event_group_subgroup(box.id, group, subgroup, 0, 1, &flag);
    EXPECT_EQ(1, flag);
    EXPECT_FALSE(occurred(box.id, group));

    box.send_event(event(group, subgroup, 3));
    ASSERT_TRUE(eventually([&] { return occurred(box.id, group); }));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_event_queue_clear(box.id));
    EXPECT_FALSE(occurred(box.id, group));
}

TEST(event, a_wait_ends_when_its_time_is_over_or_its_event_comes)
{
    connected_box box;
    const auto wait = [&](unsigned int time_out)
    {
        char flag = 9;
        const auto begin = std::chrono::steady_clock::now();
        EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_wait_event_group(box.id, group, time_out, 0, &flag));
        EXPECT_EQ(0, flag);
        return std::chrono::steady_clock::now() - begin;
    };
    EXPECT_GE(wait(0), 1ms) << "looks twice, a millisecond apart";
    EXPECT_LT(wait(0), 500ms);
    EXPECT_GE(wait(100), 100ms);

    std::thread later(
        [&]
        {
            std::this_thread::sleep_for(100ms);
            box.send_event(event(group, subgroup, 1));
        });
    char flag = 9;
    qorin_rpc_system_wait_event_group(box.id, group, 10'000, 0, &flag);
    EXPECT_EQ(1, flag);
    later.join();
}

TEST(event, an_unknown_control_box_is_no_error_and_leaves_the_flag_alone)
{
    char flag = 9;
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_event_callback_add(5, callback_a));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_wait_event_group(5, group, 10'000, 0, &flag));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_wait_event_group_subgroup(5, group, subgroup, 10'000, 0, &flag));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_event_queue_clear(5));
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, qorin_rpc_ts_event_echo(5, 1, 2, 3, 4, 5, 6, 7, 8));

    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_system_wait_event_group(group, 10'000, 0, &flag));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_system_wait_event_group_subgroup(group, subgroup, 10'000, 0, &flag));
    EXPECT_EQ(QORIN_API_RESULT_OK,
              qorin_system_wait_event_group_subgroup_sender_id(group, subgroup, 1, 10'000, 0, &flag));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_system_event_queue_clear());
    EXPECT_EQ(9, flag);
}

TEST(event, registrations_are_logged_and_waits_are_not)
{
    const installation place;
    place.start_logging();
    connected_box box;
    box.always_reply(reply_with(QORIN_API_RESULT_OK));
    const std::string address = std::to_string(reinterpret_cast<std::uintptr_t>(callback_a));
    qorin_rpc_system_event_callback_add(0, callback_a);
    qorin_rpc_system_event_group_callback_add(0, callback_a, 301000);
    qorin_rpc_system_event_group_subgroup_callback_add(7, callback_a, 301000, 301001);
    (void)occurred(0, group);
    qorin_rpc_system_event_queue_clear(0);
    qorin_rpc_system_event_group_subgroup_callback_remove(0, nullptr, 301000, 301001);
    qorin_rpc_ts_event_echo(0, 1, 2, 3, -4, 5, -6, 7, -8);
    EXPECT_EQ((std::vector<std::string>{
                  "qorin_rpc_system_event_callback_add(0, " + address + ");\n",
                  "qorin_rpc_system_event_group_callback_add(0, " + address + ", 301000);\n",
                  "qorin_rpc_system_event_group_subgroup_callback_add(7, " + address + ", 301000, 301001);\n",
                  "qorin_rpc_system_event_group_subgroup_callback_remove(0, 0, 301000, 301001);\n",
                  "qorin_rpc_ts_event_echo(0, 1, 2, 3, -4, 5, -6, 7, -8);\n",
              }),
              place.calls());
    const protocol::request_record echo = box.request(0);
    EXPECT_STREQ("qorin_ts_event_echo", echo.wire_name);
    EXPECT_EQ(static_cast<std::uint32_t>(-8), echo.value[7]);
}

unsigned int g_commanded_id = 0;
std::atomic<unsigned int> g_command_result = 0;

void callback_that_commands(unsigned int, unsigned int, unsigned int, int, int, int, int, int)
{
    g_command_result = qorin_rpc_ts_event_echo(g_commanded_id, 1, 2, 3, 4, 5, 6, 7, 8);
}

TEST(event, a_callback_may_command)
{
    connected_box box;
    box.will_reply(reply_with(QORIN_API_RESULT_OK));
    g_commanded_id = box.id;
    // Registered without the call lock: holding it while the dispatcher is waited for is the one order that does not go
    // together with a callback that commands.
    qorin_api_rpc::get_cbox(box.id)->get_event()->event_group_callback_add(callback_that_commands, group);
    send_all(box, {event(group, subgroup, 1)});
    EXPECT_EQ(100000u, g_command_result);
}
} // namespace
