#include "qorin/qorin.hpp"

#include <atomic>
#include <chrono>
#include <coroutine>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "qorin/test_support.h"
#include "simulator/control_box.h"
#include "tests/support/loopback.h"

namespace
{
thread_local long g_allocations = 0;
} // namespace

// AddressSanitizer wants a new and a delete of its own, also for memory that a kinematics module gives back.
#ifndef __SANITIZE_ADDRESS__
// Not inlined: a compiler that sees both sides takes free() for the wrong partner of new.
__attribute__((noinline)) void* operator new(std::size_t size)
{
    ++g_allocations;
    if (void* memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

__attribute__((noinline)) void operator delete(void* memory) noexcept
{
    std::free(memory);
}

__attribute__((noinline)) void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}
#endif

namespace
{
using namespace std::chrono_literals;
using cbox_simulator::box_model;

constexpr qorin::joints ready{0, 20, 60, 0, 100, 0};
constexpr auto notification = QORIN_EVENT_GRP_NOTIFICATION;
constexpr auto told = QORIN_EVENT_SUBGRP_NOTIFICATION_FT_SENSOR_STATUS;

/// A simulated box in this process, and a directory for the logs of the library.
class layer_test : public testing::Test
{
protected:
    layer_test()
    {
        cbox_simulator::control_box_options how;
        how.address = address;
        box_.emplace(how);
        box_->start();
        options.log_directory = directory;
    }
    ~layer_test() override { std::filesystem::remove_all(directory); }

    void set_faults(std::initializer_list<std::string_view> faults)
    {
        cbox_simulator::fault_plan plan;
        for (const auto fault : faults)
            plan.add(fault);
        box_->set_faults(plan);
    }

    template <class Use>
    auto ask(Use use)
    {
        std::optional<decltype(use(std::declval<box_model&>()))> answer;
        box_->with_model([&](box_model& model) { answer = use(model); });
        return *answer;
    }

    qorin::cbox connect() { return qorin::cbox::connect(address, options).value(); }

    /// In control of a box with a system.
    qorin::cbox open()
    {
        const qorin::cbox box = connect();
        box.create_system(QORIN_CBOX_MODEL_3GEN_SIM).value();
        control_.emplace(box.take_control().value());
        return box;
    }
    qorin::scoped<qorin::robot> open_robot()
    {
        auto robot = open().create_robot(QORIN_ROBOT_MODEL_ARM_C).value();
        robot.servo_on().value();
        return robot;
    }

    const std::string address = test_support::own_address();
    const std::filesystem::path directory = std::filesystem::temp_directory_path() / ("qorin_layer_" + address);
    qorin::options options;

private:
    std::optional<cbox_simulator::control_box> box_;

protected:
    std::optional<qorin::scoped<qorin::control>> control_;
};

/// Goes on at once and ends by itself, as far as it comes.
struct coroutine
{
    struct promise_type
    {
        coroutine get_return_object() { return {}; }
        std::suspend_never initial_suspend() { return {}; }
        std::suspend_never final_suspend() noexcept { return {}; }
        void return_void() {}
        void unhandled_exception() { std::terminate(); }
    };
};

template <class Condition>
bool eventually(Condition condition)
{
    for (int look = 0; look < 2000 && !condition(); ++look)
        std::this_thread::sleep_for(1ms);
    return condition();
}

void send(const qorin::cbox& box, unsigned int sender, int value = 0)
{
    ASSERT_EQ(qorin_rpc_ts_event_echo(box.id().number, notification, told, sender, value, 2, 3, 4, 5),
              QORIN_API_RESULT_OK);
}

TEST_F(layer_test, a_session_moves_a_robot_and_gives_everything_back)
{
    {
        const auto box = open();
        EXPECT_TRUE(box.create_system(QORIN_CBOX_MODEL_3GEN_SIM).has_value()) << "it stands already";
        EXPECT_TRUE(box.in_control().value());
        const auto robot = box.create_robot(QORIN_ROBOT_MODEL_ARM_C).value();
        EXPECT_EQ(robot.model().value(), QORIN_ROBOT_MODEL_ARM_C);
        EXPECT_FALSE(box.create_robot(QORIN_ROBOT_MODEL_ARM_C).has_value()) << "no room for two";
        EXPECT_EQ(box.attach_robot({0}).value().model().value(), QORIN_ROBOT_MODEL_ARM_C);
        EXPECT_EQ(box.attach_robot({1}).error().code(), QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID);
        robot.servo_on().value();

        unsigned int motion_number = 0;
        {
            const auto bend = robot.make(qorin::joint_motion{.end = ready, .speed_deg_s = 90}).value();
            motion_number = bend.id().number;
            ASSERT_TRUE(bend.run(20s).value());
            EXPECT_TRUE(bend.run(20s).value()) << "once more, to where it is";
        }
        double speed[16] = {};
        EXPECT_EQ(qorin_rpc_motion_command_speed_max_get(box.id().number, motion_number, speed),
                  QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID);

        // The drives come to the command ever more slowly: until then two looks see two places.
        for (int look = 0; look < 100 && robot.tcp().value() != robot.tcp_commanded().value(); ++look)
            std::this_thread::sleep_for(50ms);
        const long allocations = g_allocations;
        const auto status = robot.status().value();
        EXPECT_EQ(status.tcp, robot.tcp().value());
        EXPECT_EQ(g_allocations, allocations);
        for (unsigned int joint = 0; joint < qorin::joint_count; ++joint)
        {
            EXPECT_NEAR(status.actual[joint], ready[joint], 1e-3) << joint;
            EXPECT_NEAR(status.commanded[joint], ready[joint], 1e-9) << joint;
        }
        EXPECT_TRUE(status.servo_on);
        EXPECT_EQ(status.moving, QORIN_MOVING_STATE_IDLE);
        EXPECT_EQ(status.flange, robot.flange().value());
        const auto tcp = robot.pose_at(ready).value();
        EXPECT_NEAR(status.tcp.x_mm, tcp.x_mm, 0.1);
        EXPECT_NEAR(status.tcp.z_mm, tcp.z_mm, 0.1);
        EXPECT_NEAR(status.tcp.ry_deg, tcp.ry_deg, 0.1);

        auto lower = tcp.position();
        lower.z_mm -= 50;
        const auto line = robot.make(qorin::tcp_motion{.end = lower, .speed_mm_s = 200}).value();
        ASSERT_TRUE(line.run(20s).value());
        const auto below =
            robot.joints_at({lower.x_mm, lower.y_mm, lower.z_mm, tcp.rx_deg, tcp.ry_deg, tcp.rz_deg}, ready);
        EXPECT_NEAR(robot.joint_deg(1).value(), below.value()[1], 1e-3);
        const auto all = robot.all_joints_at(robot.flange().value()).value();
        EXPECT_TRUE(std::ranges::any_of(all, [&](const auto& one)
                                        { return one && std::abs((*one)[2] - below.value()[2]) < 0.01; }));

        const auto slow = robot.make(qorin::joint_motion{.end = {}, .speed_deg_s = 5}).value();
        EXPECT_FALSE(slow.run(100ms).value()) << "on its way";
        robot.pause().value();
        EXPECT_TRUE(eventually([&] { return robot.moving().value() == QORIN_MOVING_STATE_PAUSED; }));
        robot.stop(100ms).value();
        EXPECT_TRUE(eventually([&] { return robot.moving().value() == QORIN_MOVING_STATE_STOPPED; }));
    }
    EXPECT_FALSE(ask([](box_model& model) { return model.robots().exists(0); }));
    auto released = std::move(*control_);
    EXPECT_TRUE(released.give_back().has_value());
    EXPECT_TRUE(released.give_back().has_value()) << "is done once";
    EXPECT_FALSE(ask([](box_model& model) { return model.control_owner().has_value(); }));
}

TEST_F(layer_test, what_is_told_of_a_motion_lands_in_its_own_place)
{
    const auto robot = open_robot();
    const auto weld = robot
                          .make(qorin::welding_motion{.path = {.end = {{1, 2, 3}},
                                                               .end_orientation = {{4, 5, 6}},
                                                               .path = QORIN_INTERPOLATOR_ARC,
                                                               .middle = {{7, 8, 9}},
                                                               .radius_mm = 10,
                                                               .speed_mm_s = 11,
                                                               .acceleration_mm_s2 = 12,
                                                               .jerk_percent = 13,
                                                               .blending_radius_mm = 14},
                                                      .left_amplitude_mm = 15,
                                                      .right_amplitude_mm = 16,
                                                      .frequency_hz = 17,
                                                      .left_stop_s = 0.18,
                                                      .middle_stop_s = 0.19,
                                                      .right_stop_s = 0.20,
                                                      .plane_tilt_deg = 21})
                          .value();
    const auto id = weld.id();
    const auto number = [&]<auto Get>()
    {
        return qorin::detail::command<Get>(qorin::cbox_id{0}, id).value();
    };
#define NUMBER(name) number.operator()<qorin_rpc_motion_command_##name##_get>()
    EXPECT_EQ(NUMBER(robot_tcp_position_end), std::tuple(1.0, 2.0, 3.0));
    EXPECT_EQ(NUMBER(robot_tcp_orientation_end), std::tuple(4.0, 5.0, 6.0));
    EXPECT_EQ(NUMBER(robot_tcp_interpolator), QORIN_INTERPOLATOR_ARC);
    EXPECT_EQ(NUMBER(robot_tcp_position_mid), std::tuple(7.0, 8.0, 9.0));
    EXPECT_EQ(NUMBER(robot_tcp_radius), 10);
    EXPECT_EQ(NUMBER(speed_max), 11);
    EXPECT_EQ(NUMBER(acc_max), 12);
    EXPECT_EQ(NUMBER(dec_max), 12);
    EXPECT_EQ(NUMBER(jerk_percentage), 13);
    EXPECT_EQ(NUMBER(radius_for_blending), 14);
    EXPECT_EQ(NUMBER(blending_motion_mode), QORIN_SWITCH_ON);
    EXPECT_EQ(NUMBER(robot_tcp_welding_weaving_motion_switch), QORIN_SWITCH_ON);
    EXPECT_EQ(NUMBER(robot_tcp_welding_left_amplitude), 15);
    EXPECT_EQ(NUMBER(robot_tcp_welding_right_amplitude), 16);
    EXPECT_EQ(NUMBER(robot_tcp_welding_frequency), 17);
    EXPECT_EQ(NUMBER(robot_tcp_welding_left_stop_settling_time), 0.18);
    EXPECT_EQ(NUMBER(robot_tcp_welding_middle_stop_settling_time), 0.19);
    EXPECT_EQ(NUMBER(robot_tcp_welding_right_stop_settling_time), 0.20);
    EXPECT_EQ(NUMBER(robot_tcp_welding_plane_tilt_angle), 21);

    // What is refused on the way leaves nothing behind.
    const auto refused = robot.make(qorin::joint_motion{.end = ready, .speed_deg_s = -1});
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().function(), "qorin_rpc_motion_command_speed_max_set");
    double speed[16] = {};
    EXPECT_EQ(qorin_rpc_motion_command_speed_max_get(0, id.number + 1, speed),
              QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID);
    const std::vector<qorin::position> points(17);
    EXPECT_EQ(robot.make(qorin::tcp_motion{.through = points}).error().code(),
              QORIN_API_RESULT_ERROR_MOTION_COMMAND_OUT_OF_RANGE);
}

TEST_F(layer_test, signals_limits_memory_recordings_and_streams_are_read_back_as_they_were_set)
{
    const auto robot = open_robot();
    const qorin::cbox box(qorin::cbox_id{0});
    box.set_digital_output(3, true).value();
    EXPECT_TRUE(eventually([&] { return box.digital_output(3).value(); }));
    EXPECT_FALSE(box.digital_output(2).value());
    EXPECT_EQ(qorin_rpc_ts_cbox_io_digital_input_set(0, 5, 1), QORIN_API_RESULT_OK);
    EXPECT_TRUE(eventually([&] { return box.digital_input(5).value(); }));
    robot.set_digital_output(1, true).value();
    EXPECT_TRUE(eventually([&] { return robot.digital_output(1).value(); }));

    const auto limits = robot.limits();
    limits.set_joint_range_deg(2, {-91, 92}).value();
    limits.switch_on().value();
    const auto wall = limits.add({0, 1, 0, 750}).value();
    EXPECT_TRUE(eventually([&] { return limits.is_on().value() && limits.at(wall).has_value(); }));
    EXPECT_EQ(limits.joint_range_deg(2).value().from, -91);
    EXPECT_EQ(limits.joint_range_deg(2).value().to, 92);
    EXPECT_EQ(limits.at(wall).value().distance_mm, 750);
    EXPECT_EQ(limits.at(wall).value().normal_y, 1);
    limits.remove(wall).value();
    robot.set_tool({1, 2, 3, 4, 5, 6}).value();
    EXPECT_TRUE(eventually([&] { return robot.tool().value() == qorin::pose{1, 2, 3, 4, 5, 6}; }));

    const auto memory = box.memory();
    const std::string long_name(200, 'n');
    memory.set("parts", -12).value();
    memory.set("share", 0.25).value();
    memory.set("open", true).value();
    memory.set(long_name, "text").value();
    EXPECT_EQ(memory.get("parts").value().integer, -12);
    EXPECT_EQ(memory.get("share").value().real, 0.25);
    EXPECT_TRUE(memory.get("open").value().truth);
    EXPECT_EQ(memory.get(long_name).value().type, QORIN_USER_DATA_TYPE_STRING);
    memory.erase("parts").value();
    EXPECT_EQ(memory.get("parts").error().code(), QORIN_API_RESULT_ERROR_KEY_NOT_FOUND);

    {
        const auto before = robot.joints().value();
        const auto recording = robot.create_recording().value();
        recording.start().value();
        ASSERT_TRUE(robot.make(qorin::joint_motion{.end = ready, .speed_deg_s = 90}).value().run(20s).value());
        recording.stop().value();
        EXPECT_NEAR(recording.end_joints().value()[4], 100, 1e-3);
        EXPECT_NEAR(recording.start_joints().value()[4], before[4], 1e-3);
    }
    double angle[16] = {};
    EXPECT_NE(qorin_rpc_robot_recording_angle_end_get(0, 0, 0, 4, angle), QORIN_API_RESULT_OK);

    {
        const auto stream = robot.stream_joints(address).value();
        qorin::joints target = ready;
        target[0] = 0.5;
        EXPECT_TRUE(
            eventually([&] { return stream.send(target) && std::abs(robot.joint_deg(0).value() - 0.5) < 0.01; }));
    }
    EXPECT_EQ(qorin::joint_stream({0}, {0}).send(ready).error().code(),
              QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE);
}

TEST_F(layer_test, failures_tell_what_they_are_and_a_lost_link_is_one_of_them)
{
    const auto box = connect();
    const auto refused = box.robot_at({0}).servo_on();
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().name(), "QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL");
    EXPECT_EQ(refused.error().text(), "You don't have the control.");
    EXPECT_FALSE(refused.error().advice().empty());
    EXPECT_EQ(refused.error().advice().find('<'), std::string::npos);
    try
    {
        refused.value();
        FAIL() << "value() of none";
    }
    catch (const qorin::failure& thrown)
    {
        EXPECT_TRUE(std::string_view(thrown.what()).starts_with("qorin_rpc_robot_servo_switch_set: 100003 QORIN_"));
        EXPECT_EQ(thrown.error(), refused.error());
    }
    EXPECT_EQ(box.robot_at({0}).joints().error().code(), QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID);
    EXPECT_EQ(qorin::cbox({7}).on({}, [](const qorin::event&) {}).error().code(),
              QORIN_API_RESULT_ERROR_CBOX_ID_INVALID);
    EXPECT_FALSE(qorin::cbox({7}).wait_for(notification, 1ms));
    EXPECT_EQ(box.wait_for({}, 1ms).error().code(), QORIN_API_RESULT_ERROR_NO_SUPPORT);

    set_faults({"answer:qorin_system_control_take:100002"});
    EXPECT_EQ(box.take_control().error().code(), QORIN_API_RESULT_ERROR_CONTROL_TAKE_FAILURE);
    set_faults({"close:command:0"});
    for (int turn = 0; turn < 3; ++turn)
    {
        const auto lost = box.in_control();
        ASSERT_FALSE(lost);
        EXPECT_TRUE(lost.error().is_lost_link());
        EXPECT_EQ(lost.error().name(), "LINK_LOST");
    }
}

TEST_F(layer_test, a_connection_needs_its_configuration_and_its_version)
{
    options.config_file = directory / "none.ini";
    EXPECT_EQ(qorin::cbox::connect(address, options).error().code(), QORIN_API_RESULT_ERROR_CONFIG_FILE_LOAD_FAILURE);
    options.config_file.reset();
    EXPECT_EQ(qorin::cbox::connect("localhost", options).error().code(), QORIN_API_RESULT_ERROR_CBOX_ID_INVALID);
    const auto box = connect();
    EXPECT_EQ(box.id().number, 0u);
    EXPECT_FALSE(std::filesystem::is_empty(directory)) << "the logs of the configuration that is in memory alone";

    const auto text = qorin::error(QORIN_API_RESULT_ERROR_SW_VER_NOT_MATCHED, "").text();
    const std::string version(qorin::header_version);
    EXPECT_NE(text.find("Headers: " + version + ", library: " + version + ", control box: " + version),
              std::string::npos)
        << text;
}

TEST_F(layer_test, a_box_of_another_version_is_refused_unless_it_is_accepted)
{
    cbox_simulator::control_box_options how;
    how.address = test_support::own_address(1);
    how.version_text = "QORIN.v3.008.000.005_U2";
    cbox_simulator::control_box newer(how);
    newer.start();
    const auto refused = qorin::cbox::connect(how.address, options);
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().code(), QORIN_API_RESULT_ERROR_SW_VER_NOT_MATCHED);
    EXPECT_NE(refused.error().message().find("control box: QORIN.v3.008.000.005_U2"), std::string::npos);
    options.accept_other_versions = true;
    EXPECT_TRUE(qorin::cbox::connect(how.address, options).value().in_control().has_value());
}

TEST_F(layer_test, handlers_get_what_their_filter_lets_through_until_their_registration_ends)
{
    const auto box = connect();
    std::mutex mutex;
    std::vector<qorin::event> seen;
    std::atomic<int> of_sender = 0, own = 0, thrown = 0;
    std::thread::id event_thread, own_thread;
    auto all = box.on(notification,
                      [&](const qorin::event& one)
                      {
                          const std::lock_guard lock(mutex);
                          event_thread = std::this_thread::get_id();
                          seen.push_back(one);
                      })
                   .value();
    const auto one = box.on({notification, told, 7}, [&](const qorin::event&) { ++of_sender; }).value();
    const auto other_group = box.on(QORIN_EVENT_GRP_ERROR, [&](const qorin::event&) { ADD_FAILURE(); }).value();
    auto later = box.on(
                        {notification, told},
                        [&, first = true](const qorin::event& arrived) mutable
                        {
                            own_thread = std::this_thread::get_id();
                            EXPECT_EQ(arrived.sender, first ? 7u : 8u) << "in their order";
                            EXPECT_TRUE(box.wait_for(notification, 1s).value()) << "a wait is allowed here";
                            first = false;
                            ++own;
                        },
                        qorin::dispatch::own_thread)
                     .value();
    const auto bad = box.on({notification, told, 7},
                            [&](const qorin::event&)
                            {
                                ++thrown;
                                throw std::runtime_error("by the test");
                            })
                         .value();
    send(box, 7, -1);
    send(box, 8);
    ASSERT_TRUE(eventually([&] { return own == 2; }));
    EXPECT_EQ(of_sender, 1);
    EXPECT_EQ(thrown, 1);
    EXPECT_NE(own_thread, event_thread);
    {
        const std::lock_guard lock(mutex);
        ASSERT_EQ(seen.size(), 2u);
        EXPECT_EQ(seen[0].group, notification);
        EXPECT_EQ(seen[0].subgroup, told);
        EXPECT_EQ(seen[0].values, (std::array{-1, 2, 3, 4, 5}));
        EXPECT_EQ(seen[1].sender, 8u);
    }
    all.end();
    later.end(); // its waits take events away
    std::optional<qorin::registration> own_end;
    own_end = box.on({notification, told}, [&](const qorin::event&) { own_end.reset(); }).value();
    box.forget_events();
    send(box, 8);
    EXPECT_TRUE(box.wait_for({notification, told, 8}, 5s).value());
    EXPECT_FALSE(box.wait_for({notification, told, 8}, 1ms).value()) << "it was taken out of the queue";
    EXPECT_FALSE(own_end.has_value());
    EXPECT_EQ(seen.size(), 2u) << "ended";
}

TEST_F(layer_test, handlers_that_command_do_not_stand_still_against_registrations)
{
    const auto box = connect();
    for (const auto where : {qorin::dispatch::event_thread, qorin::dispatch::own_thread})
    {
        std::atomic<int> answered = 0;
        const auto asking =
            box.on(
                   {notification, told}, [&](const qorin::event&) { answered += box.in_control().has_value(); }, where)
                .value();
        std::atomic<bool> done = false;
        std::thread registering(
            [&]
            {
                while (!done)
                    static_cast<void>(box.on(
                                             {}, [](const qorin::event&) {}, where)
                                          .value());
            });
        for (unsigned int turn = 0; turn < 200; ++turn)
            send(box, turn);
        EXPECT_TRUE(eventually([&] { return answered == 200; })) << answered;
        done = true;
        registering.join();
    }
}

TEST_F(layer_test, coroutines_go_on_with_their_event_or_when_the_time_has_run_out)
{
    const auto box = connect();
    std::atomic<int> step = 0;
    const auto wait_twice = [&]() -> coroutine
    {
        auto first = box.next({notification, told, 7}, 10s).value();
        send(box, 7, 70); // may come ahead of the co_await
        std::this_thread::sleep_for(20ms);
        const auto arrived = co_await first;
        EXPECT_TRUE(arrived && arrived->values[0] == 70);
        step = 1;
        const auto second = co_await box.next({notification, told, 8}, 10s).value();
        EXPECT_TRUE(second && second->sender == 8);
        EXPECT_TRUE(box.in_control().has_value()) << "it may command where it goes on";
        step = 2;
        const auto begin = std::chrono::steady_clock::now();
        EXPECT_FALSE(co_await box.next({notification, told, 9}, 50ms).value());
        EXPECT_GE(std::chrono::steady_clock::now() - begin, 50ms);
        step = 3;
    };
    wait_twice();
    EXPECT_TRUE(eventually([&] { return step == 1; }));
    send(box, 7); // nobody waits for it any more
    send(box, 8);
    EXPECT_TRUE(eventually([&] { return step == 3; })) << step;
}
} // namespace
