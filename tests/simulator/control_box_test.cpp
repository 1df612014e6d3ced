#include "simulator/control_box.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <limits>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "simulator/cycle_schedule.h"
#include "tests/simulator/commanded_box.h"
#include "tests/support/loopback.h"

namespace
{
using cbox_simulator::box_model;
using cbox_simulator::control_box;
using cbox_simulator::control_box_options;

/// A running box on this process's own address, whose lines are kept.
class control_box_test : public testing::Test
{
protected:
    control_box_options options()
    {
        control_box_options result;
        result.address = address;
        result.log = [this](cbox_simulator::log_level, std::string_view line)
        {
            const std::lock_guard lock(lines_mutex_);
            lines_.emplace_back(line);
        };
        result.on_exit = [this] { exits = exits + 1; };
        return result;
    }

    void SetUp() override { box.start(); }

    /// A request on a link that belongs to the right client is answered; frames come on its data link.
    void expect_served(raw::client& client)
    {
        EXPECT_EQ(client.call(raw::request("qorin_system_controllable_get")).result, QORIN_API_RESULT_OK);
        protocol::shared_data_t frame;
        ASSERT_TRUE(client.data.receive(frame));
        EXPECT_STREQ(frame.control_sw_version, "QORIN.v3.008.000.004_U2");
    }

    bool logged(const std::string& part)
    {
        const std::lock_guard lock(lines_mutex_);
        return std::any_of(lines_.begin(), lines_.end(),
                           [&](const auto& line) { return line.find(part) != std::string::npos; });
    }

    std::string address = test_support::own_address();
    std::atomic<int> exits = 0;

private:
    std::mutex lines_mutex_;
    std::vector<std::string> lines_;

protected:
    control_box box{options()};
};

TEST_F(control_box_test, clients_whose_links_arrive_interleaved_from_two_addresses_are_kept_apart)
{
    raw::link command_1(address, "127.0.0.1");
    raw::link command_2(address, "127.0.0.2");
    raw::link data_2(address, "127.0.0.2");
    raw::link event_2(address, "127.0.0.2");
    raw::link data_1(address, "127.0.0.1");

    const auto take = raw::request("qorin_system_control_take");
    protocol::reply_record reply;
    ASSERT_TRUE(command_1.send(&take, sizeof take)) << "early: it waits until the client is complete";
    ASSERT_TRUE(command_2.send(&take, sizeof take) && command_2.receive(reply));
    EXPECT_EQ(reply.result, QORIN_API_RESULT_OK);
    protocol::shared_data_t frame;
    EXPECT_TRUE(data_2.receive(frame));
    EXPECT_EQ(box.counters().clients_connected, 1u) << "the first client has two links only";

    raw::link event_1(address, "127.0.0.1");
    EXPECT_TRUE(data_1.receive(frame));
    ASSERT_TRUE(command_1.receive(reply));
    EXPECT_EQ(reply.result, QORIN_API_RESULT_ERROR_CONTROL_TAKE_FAILURE);
}

TEST_F(control_box_test, a_client_that_gave_up_while_connecting_leaves_no_links_to_the_next_one)
{
    for (int attempt = 0; attempt < 20; ++attempt)
    {
        std::optional<raw::client> fresh;
        const auto give_up_and_start_anew = [&]
        {
            {
                raw::link command(address);
                if (attempt % 3 == 1)
                    raw::link data(address);
                if (attempt % 3 == 2)
                {
                    const auto early = raw::request("qorin_system_control_take");
                    EXPECT_TRUE(command.send(&early, sizeof early));
                }
            }
            fresh.emplace(address);
        };
        if (attempt < 10)
            give_up_and_start_anew();
        else
        {
            // The box is held up meanwhile, so that it finds the old links and the new ones all at once.
            box.with_model([&](box_model&) { give_up_and_start_anew(); });
        }
        ASSERT_NO_FATAL_FAILURE(expect_served(*fresh)) << "attempt " << attempt;
    }
    EXPECT_EQ(box.counters().clients_accepted, 20u);
}

TEST_F(control_box_test, a_client_that_leaves_within_a_request_frees_the_control_and_harms_no_other)
{
    raw::client steady(address);
    {
        raw::client broken(address);
        EXPECT_EQ(broken.result_of("qorin_system_control_take"), QORIN_API_RESULT_OK);
        EXPECT_EQ(steady.result_of("qorin_system_control_take"), QORIN_API_RESULT_ERROR_CONTROL_TAKE_FAILURE);
        const auto half = raw::request("qorin_system_control_release");
        ASSERT_TRUE(broken.command.send(&half, sizeof half / 2));
        expect_served(steady);
    }
    ASSERT_TRUE(raw::comes_true([&] { return box.counters().clients_connected == 1; }));
    EXPECT_TRUE(raw::comes_true([&] { return logged("client 2 from 127.0.0.1 left"); }));
    EXPECT_EQ(steady.result_of("qorin_system_control_take"), QORIN_API_RESULT_OK);
    expect_served(steady);
}

TEST_F(control_box_test, an_unknown_command_is_refused_and_reported_in_printable_characters)
{
    raw::client client(address);
    EXPECT_EQ(client.result_of("qorin_system_memory_create"), QORIN_API_RESULT_ERROR_NO_SUPPORT);
    EXPECT_TRUE(logged("\"qorin_system_memory_create\""));
    EXPECT_EQ(client.result_of("a\x1b[2J\n"), QORIN_API_RESULT_ERROR_NO_SUPPORT);
    EXPECT_TRUE(logged("\"a\\x1B[2J\\x0A\""));
    EXPECT_EQ(client.result_of(std::string(128, 'x')), QORIN_API_RESULT_ERROR_NO_SUPPORT) << "no terminator";
    EXPECT_TRUE(logged('"' + std::string(128, 'x') + '"'));
    EXPECT_EQ(client.result_of(""), QORIN_API_RESULT_ERROR_NO_SUPPORT);
    expect_served(client);
}

TEST_F(control_box_test, each_command_is_judged_by_who_holds_the_control)
{
    enum who
    {
        anna,
        bert
    };
    struct step
    {
        who client;
        const char* wire_name;
        std::uint32_t value_0;
        std::uint32_t result;
        std::uint32_t output = 0;
        std::uint32_t value_1 = 0;
    };
    const step steps[] = {
        // The control is free.
        {anna, "qorin_system_controllable_get", 0, 100000, 400101},
        {anna, "qorin_system_control_release", 0, 200004},
        {anna, "qorin_system_reset", 0, 100003},
        {anna, "qorin_system_destroy", 0, 100000},
        {anna, "qorin_gen_system_create", 999, 100001},
        {anna, "qorin_gen_system_create", 401600, 100001},
        {anna, "qorin_gen_multi_robot_system_create", 401605, 100001, 0, 0},
        {anna, "qorin_gen_multi_robot_system_create", 401605, 100001, 0, 3},
        {anna, "qorin_gen_system_create", 401605, 100000},
        {bert, "qorin_gen_system_create", 401605, 200001},
        {bert, "qorin_gen_system_create", 401603, 200010},
        {bert, "qorin_gen_multi_robot_system_create", 401605, 200001},
        {bert, "qorin_gen_multi_robot_system_create", 401603, 200010},
        // Anna has it.
        {anna, "qorin_system_control_take", 0, 100000},
        {anna, "qorin_system_control_take", 0, 200002},
        {anna, "qorin_system_controllable_get", 0, 100000, 400100},
        {anna, "qorin_system_reset", 0, 100000},
        {anna, "qorin_gen_system_create", 401605, 200001},
        {bert, "qorin_system_control_take", 0, 100002},
        {bert, "qorin_system_control_release", 0, 100003},
        {bert, "qorin_system_controllable_get", 0, 100000, 400101},
        {bert, "qorin_system_reset", 0, 100003},
        {bert, "qorin_gen_system_create", 401605, 200001},
        {bert, "qorin_gen_multi_robot_system_create", 401603, 200010},
        {bert, "qorin_system_destroy", 0, 100003},
        {bert, "qorin_system_control_sw_exit", 0, 100003},
        // She gives it back, and both may do what is free.
        {anna, "qorin_system_control_release", 0, 100000},
        {anna, "qorin_system_control_release", 0, 200004},
        {bert, "qorin_system_destroy", 0, 100000},
        {bert, "qorin_gen_multi_robot_system_create", 401603, 100000, 0, 2},
        {bert, "qorin_system_control_take", 0, 100000},
        {anna, "qorin_system_control_take", 0, 100002},
        {bert, "qorin_system_destroy", 0, 100000},
        {anna, "qorin_gen_system_create", 401605, 100003},
        {anna, "qorin_gen_multi_robot_system_create", 401605, 100003},
    };
    raw::client clients[] = {raw::client(address), raw::client(address)};
    for (const auto& step : steps)
    {
        auto request = raw::request(step.wire_name, step.value_0);
        request.value[1] = step.value_1;
        const auto reply = clients[step.client].call(request);
        EXPECT_EQ(reply.result + 0, step.result) << step.wire_name << " at row " << &step - steps;
        EXPECT_EQ(reply.value[0] + 0, step.output) << step.wire_name << " at row " << &step - steps;
    }
    EXPECT_EQ(box.counters().commands_served, std::size(steps));
}

TEST_F(control_box_test, a_client_that_brings_too_few_links_is_dropped_and_the_next_one_gets_its_own)
{
    raw::link command(address);
    raw::link data(address);
    EXPECT_TRUE(data.ends());
    EXPECT_TRUE(command.ends());
    const char* line = "client 1 from 127.0.0.1 is dropped, as its three links did not come in time";
    EXPECT_TRUE(raw::comes_true([&] { return logged(line); }));
    raw::client next(address);
    expect_served(next);
    EXPECT_EQ(box.counters().clients_connected, 1u);
}

TEST(rendered_frame, tells_whether_a_system_stands_and_which)
{
    commanded_box box;
    const auto expect = [&](std::uint32_t model, std::uint32_t ecat, std::uint32_t mode)
    {
        EXPECT_EQ(box.field<std::uint32_t>(0x20), model);
        EXPECT_EQ(box.field<std::uint32_t>(0x016C), ecat);
        EXPECT_EQ(box.field<std::uint32_t>(0x3220), mode);
    };
    expect(401605, 400201, 403008);
    box.model.destroy_system(1);
    expect(401600, 400203, 403001);
    EXPECT_EQ(box.field<std::uint32_t>(0x24), 0u);
    EXPECT_EQ(box.field<std::uint32_t>(0x6004), 401101u);
    EXPECT_EQ(box.field<std::uint32_t>(0x03E8 + 368 + 36), 400101u) << "last safety plane of the second robot";
    EXPECT_EQ(box.field<double>(0x0150), 1000.0) << "the cycle in microseconds";
}

TEST_F(control_box_test, a_long_queue_does_not_hold_up_frames)
{
    raw::client client(address);
    const auto ask = [&](const std::string& name, const carried& what = {})
    { return client.call(request(name, what)); };
    ask("gen_system_create", {{QORIN_CBOX_MODEL_3GEN_SIM}});
    ask("system_control_take");
    ask("robot_create", {{QORIN_ROBOT_MODEL_ARM_A}});
    ask("robot_servo_switch_set", {{0, QORIN_SWITCH_ON}});
    std::uint32_t ids[2];
    for (int i = 0; i < 2; ++i)
    {
        ids[i] = ask("motion_command_robot_joint_create").value[0];
        ask("motion_command_robot_robot_id_set", {{ids[i], 0}});
        ask("motion_command_robot_joint_angle_end_set", {{ids[i], 0}, {10.0 * i}});
    }
    for (int i = 0; i < 1000; ++i)
        ASSERT_EQ(ask("motion_command_queue_add", {{ids[i % 2]}}).result, 100000u) << i;

    EXPECT_EQ(ask("motion_command_queue_add", {{ids[0]}}).result, 104008u) << "it is full";

    std::atomic<bool> flushed = false;
    std::chrono::steady_clock::duration longest_gap{};
    std::thread reader(
        [&]
        {
            protocol::shared_data_t frame;
            auto last = std::chrono::steady_clock::now();
            for (int after = 0; after < 10 && client.data.receive(frame); after += flushed ? 1 : 0)
            {
                const auto now = std::chrono::steady_clock::now();
                longest_gap = std::max(longest_gap, now - std::exchange(last, now));
            }
        });
    EXPECT_EQ(ask("motion_command_queue_flush").result, 100000u);
    flushed = true;
    reader.join();
    EXPECT_LT(longest_gap, std::chrono::milliseconds(500));
}

TEST_F(control_box_test, a_client_that_does_not_read_its_frames_disturbs_no_other_and_finds_whole_ones_later)
{
    raw::client idle(address, "127.0.0.1", 4096);
    raw::client reader(address);
    protocol::shared_data_t frame;
    const auto is_consistent = [&]
    {
        // The two words lie far apart, so that a torn frame mixes the states before and after a creation.
        const bool created = frame.cbox_name != QORIN_CBOX_MODEL_NONE;
        return std::strcmp(frame.control_sw_version, "QORIN.v3.008.000.004_U2") == 0 &&
               (frame.master_operational_mode == QORIN_OPERATIONAL_MODE_OPERATIONAL) == created &&
               frame.rs485_setup[4] == QORIN_SWITCH_OFF;
    };
    const auto change_state = [&]
    {
        box.with_model(
            [](box_model& model)
            {
                if (model.system())
                    model.destroy_system(1);
                else
                    model.create_system(1, {QORIN_CBOX_MODEL_3GEN_SIM, 1});
            });
    };
    for (int count = 0; count < 300; ++count)
    {
        change_state();
        ASSERT_TRUE(reader.data.receive(frame) && is_consistent()) << "frame " << count << " of the reader";
    }
    EXPECT_TRUE(raw::comes_true([&] { return box.counters().frames_skipped > 100; }));
    for (int count = 0; count < 100; ++count)
    {
        change_state();
        ASSERT_TRUE(idle.data.receive(frame) && is_consistent()) << "frame " << count << " of the idle client";
    }
    EXPECT_EQ(idle.result_of("qorin_system_control_take"), QORIN_API_RESULT_OK);
}

TEST_F(control_box_test, a_frame_that_shows_a_state_arrives_ahead_of_the_event_that_tells_of_it)
{
    raw::client client(address);
    protocol::shared_data_t frame{};
    ASSERT_TRUE(client.data.receive(frame));
    std::uint32_t told = 0;
    for (int change = 0; change < 50; ++change)
    {
        while (client.data.receive_last_arrived(frame)) // or the next one would have no room on its way
            continue;
        const auto push = request("ts_fault_inject", {{1, change % 2 == 0}});
        savrent::cc::val_obj::event_info event{};
        ASSERT_TRUE(client.call(push).result == QORIN_API_RESULT_OK && client.event.receive(event));
        told = change % 2 == 0 ? QORIN_BUTTON_STATE_PUSHED : QORIN_BUTTON_STATE_RELEASED;
        ASSERT_TRUE(client.data.receive_last_arrived(frame));
        ASSERT_EQ(frame.emergency_button_state + 0, told) << change;
    }
}

TEST(cycle_schedule, makes_up_for_every_cycle_and_for_few_frames)
{
    using namespace std::chrono_literals;
    using cbox_simulator::cycle_schedule;
    const cycle_schedule::time_point start{};
    cycle_schedule schedule(1ms, 4ms);
    schedule.start(start);
    const auto counted_until = [&](cycle_schedule::duration time)
    {
        int cycles = 0;
        int frames = 0;
        for (auto due = schedule.take_due(start + time); due.cycle || due.frame; due = schedule.take_due(start + time))
        {
            EXPECT_TRUE(due.cycle) << "a frame goes with the cycle of its moment";
            cycles += due.cycle ? 1 : 0;
            frames += due.frame ? 1 : 0;
        }
        return std::pair(cycles, frames);
    };
    EXPECT_EQ(counted_until(999us), std::pair(0, 0));
    EXPECT_EQ(counted_until(8ms), std::pair(8, 2));
    EXPECT_EQ(counted_until(150ms), std::pair(142, 1)) << "late: the last frame only";
    EXPECT_EQ(counted_until(10152ms).first, 1) << "asleep: nothing but the present";
    EXPECT_EQ(counted_until(10153ms).first, 1);
}

TEST_F(control_box_test, the_exit_command_is_answered_and_then_ends_every_link)
{
    raw::client bystander(address);
    raw::client client(address);
    EXPECT_EQ(client.result_of("qorin_system_control_sw_exit"), QORIN_API_RESULT_OK);
    for (auto* one : {&bystander, &client})
    {
        EXPECT_TRUE(one->command.ends());
        EXPECT_TRUE(one->data.ends());
        EXPECT_TRUE(one->event.ends());
    }
    EXPECT_TRUE(raw::comes_true([&] { return exits == 1; }));
    EXPECT_TRUE(box.exit_requested());
    EXPECT_THROW(raw::client late(address), std::runtime_error);
    box.stop();
    EXPECT_EQ(exits, 1);

    box.start();
    raw::client after_restart(address);
    expect_served(after_restart);
    EXPECT_FALSE(box.exit_requested());
}

TEST_F(control_box_test, a_box_that_cannot_run_as_asked_does_not_start)
{
    const auto refused = [&](auto change)
    {
        auto wanted = options();
        change(wanted);
        control_box(wanted).start();
    };
    EXPECT_THROW(refused([](auto&) {}), std::system_error) << "the port is taken";
    EXPECT_THROW(refused([](auto& wanted) { wanted.address = "192.0.2.1"; }), std::system_error) << "no own address";
    EXPECT_THROW(refused([](auto& wanted) { wanted.address = "nowhere"; }), std::invalid_argument);
    for (const double rate : {0.0, -1.0, 10001.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_THROW(refused([&](auto& wanted) { wanted.rate = rate; }), std::invalid_argument) << rate;
    for (const double cycle : {0.0, 0.09, 101.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_THROW(refused([&](auto& wanted) { wanted.cycle = cycle; }), std::invalid_argument) << cycle;
    EXPECT_THROW(refused([](auto& wanted) { wanted.version_text.assign(32, 'v'); }), std::invalid_argument);
}
} // namespace
