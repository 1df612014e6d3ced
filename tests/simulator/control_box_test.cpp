#include "simulator/control_box.h"

#include <algorithm>
#include <atomic>
#include <limits>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include <gtest/gtest.h>

#include "tests/simulator/raw_client.h"

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

    std::string address = raw::loopback_address();
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

TEST_F(control_box_test, an_event_reaches_the_event_link_of_every_client_in_order)
{
    raw::client first(address);
    raw::client second(address);
    ASSERT_TRUE(raw::comes_true([&] { return box.counters().clients_connected == 2; }));
    savrent::cc::val_obj::event_info event{};
    for (event.group = 0; event.group < 200; ++event.group)
    {
        box.push_event(event);
    }
    for (auto* client : {&first, &second})
    {
        for (std::uint32_t group = 0; group < 200; ++group)
        {
            ASSERT_TRUE(client->event.receive(event));
            ASSERT_EQ(event.group, group);
        }
    }
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
                {
                    raw::link data(address);
                }
                if (attempt % 3 == 2)
                {
                    const auto early = raw::request("qorin_system_control_take");
                    EXPECT_TRUE(command.send(&early, sizeof early));
                }
            }
            fresh.emplace(address);
        };
        if (attempt < 10)
        {
            give_up_and_start_anew();
        }
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
    };
    const step steps[] = {
        // The control is free.
        {anna, "qorin_system_controllable_get", 0, 100000, 400101},
        {anna, "qorin_system_control_release", 0, 200004},
        {anna, "qorin_system_reset", 0, 100003},
        {anna, "qorin_system_destroy", 0, 100000},
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
        {bert, "qorin_gen_multi_robot_system_create", 401603, 100000},
        {bert, "qorin_system_control_take", 0, 100000},
        {anna, "qorin_system_control_take", 0, 100002},
        {bert, "qorin_system_destroy", 0, 100000},
        {anna, "qorin_gen_system_create", 401605, 100003},
        {anna, "qorin_gen_multi_robot_system_create", 401605, 100003},
    };
    raw::client clients[] = {raw::client(address), raw::client(address)};
    for (const auto& step : steps)
    {
        const auto reply = clients[step.client].call(raw::request(step.wire_name, step.value_0));
        EXPECT_EQ(reply.result + 0, step.result) << step.wire_name << " at row " << &step - steps;
        EXPECT_EQ(reply.value[0] + 0, step.output) << step.wire_name << " at row " << &step - steps;
    }
    EXPECT_EQ(box.counters().commands_served, std::size(steps));
}

TEST_F(control_box_test, the_frame_tells_whether_a_system_stands_and_which)
{
    raw::client client(address);
    const auto word_at = [](const std::vector<unsigned char>& frame, std::size_t offset)
    {
        std::uint32_t word = 0;
        std::memcpy(&word, frame.data() + offset, sizeof word);
        return word;
    };
    const auto next_frame_with_model = [&](std::uint32_t model)
    {
        std::vector<unsigned char> bytes(29728);
        protocol::shared_data_t frame{};
        do
        {
            if (!client.data.receive(frame))
            {
                break;
            }
            std::memcpy(bytes.data(), &frame, sizeof frame);
        } while (word_at(bytes, 0x20) != model);
        return bytes;
    };
    const auto idle = next_frame_with_model(401600);
    EXPECT_EQ(word_at(idle, 0x24), 0u);
    EXPECT_EQ(word_at(idle, 0x016C), 400203u);
    EXPECT_EQ(word_at(idle, 0x3220), 403001u);
    EXPECT_EQ(word_at(idle, 0x6004), 401101u);
    EXPECT_EQ(word_at(idle, 0x03E8 + 368 + 36), 400101u) << "last safety plane of the second robot";
    double cycle_us = 0;
    std::memcpy(&cycle_us, idle.data() + 0x0150, sizeof cycle_us);
    EXPECT_EQ(cycle_us, 1000.0);

    auto two_robots = raw::request("qorin_gen_multi_robot_system_create", 401604);
    two_robots.value[1] = 2;
    EXPECT_EQ(client.call(two_robots).result, QORIN_API_RESULT_OK);
    const auto created = next_frame_with_model(401604);
    EXPECT_EQ(word_at(created, 0x016C), 400201u);
    EXPECT_EQ(word_at(created, 0x3220), 403008u);
    box.with_model([](box_model& model) { EXPECT_EQ(model.system()->robot_capacity, 2u); });
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
                {
                    model.destroy_system(1);
                }
                else
                {
                    model.create_system(1, {QORIN_CBOX_MODEL_3GEN_SIM, 1});
                }
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
    {
        EXPECT_THROW(refused([&](auto& wanted) { wanted.rate = rate; }), std::invalid_argument) << rate;
    }
    EXPECT_THROW(refused([](auto& wanted) { wanted.version_text.assign(32, 'v'); }), std::invalid_argument);
}
} // namespace
