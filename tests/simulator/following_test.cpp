// What takes an arm along: forces, belts, and single timed targets from outside.
#include <algorithm>
#include <cmath>
#include <functional>
#include <string_view>

#include <gtest/gtest.h>

#include "simulator/frame/measurement_noise.h"
#include "simulator/model/pressed_force.h"
#include "tests/simulator/robot_commander.h"

namespace
{
/// The TCP stands at x 253, z 383, and its z axis points down.
struct following_test : robot_commander
{
    using vector3 = std::array<double, 3>;

    static constexpr std::uint32_t on = 400100, off = 400101, base = 401700, tcp = 401701;

    const cbox_simulator::robot_state& robot() const { return *model.robots().find(0); }
    cbox_simulator::axis_values pressed() const { return controlled_force(robot()); }
    vector3 measured() const { return field<vector3>(21472 + 8); }
    vector3 speed() const { return robot().commanded().tcp_velocity; }
    std::uint32_t state() const { return field<std::uint32_t>(2608 + 76); }
    void do_robot(const std::string& name, const carried& what)
    {
        EXPECT_EQ(result("robot_" + name, what), 100000u) << name;
    }
    void set(const std::string& point, const std::vector<double>& values) { model.world().set(point, values); }
    void press_along_z(double force, std::uint32_t coordinate = base)
    {
        do_robot("force_ctrl_coordinate_set", {{0, coordinate}});
        do_robot("force_ctrl_direction_switch_set", {{0, off, off, on, off, off, off}});
        do_robot("force_ctrl_force_set", {{0}, {0, 0, force, 0, 0, 0}});
        do_robot("force_ctrl_switch_set", {{0, on}});
    }
    /// As a share of what the joints can, in speed or acceleration.
    double effort() const
    {
        double most = 0;
        for (std::size_t joint = 0; joint < 6; ++joint)
        {
            const auto range = robot().range_of(joint);
            most = std::max({most, std::abs(robot().commanded().speeds[joint]) / range.speed_max,
                             std::abs(robot().commanded().accelerations[joint]) / range.acceleration_max});
        }
        return most;
    }
    /// The greatest of what is asked in each of the cycles.
    double greatest(double seconds, const std::function<double()>& asked)
    {
        double most = 0;
        for (int cycle = 0; cycle < std::lround(seconds * 1000); ++cycle)
        {
            model.run_cycle();
            most = std::max(most, asked());
        }
        return most;
    }
};

TEST_F(following_test, force_control_presses_as_told_and_no_faster_than_told)
{
    const struct
    {
        std::uint32_t coordinate;
        double force;
        double stiffness;
        double approach;
        double low_pass;
    } rows[] = {{base, -20, 50, 0, 0}, {tcp, 30, 100, 15, 0}, {base, -60, 150, 4, 0}, {base, -5, 10, 0, 30}};
    for (const auto& row : rows)
    {
        SCOPED_TRACE(testing::Message() << row.force << " N at " << row.stiffness << " N/mm");
        model.robots().set_joint_angles(0, {0, 0, 90, 0, 90, 0});
        set("contact_plane 0", {0, 0, 2, 380, row.stiffness, 0});
        do_robot("force_ctrl_approach_velocity_set", {{0}, {0, 0, row.approach, 0, 0, 0}});
        do_robot("force_ctrl_low_pass_filter_set", {{0}, {row.low_pass}});
        press_along_z(row.force, row.coordinate);
        // Without contact as fast as the damper lets the force go, if that is not too fast.
        const double free = std::abs(row.force) / std::sqrt(2.0);
        const double approach = std::min(row.approach > 0 ? row.approach : 10, free);
        EXPECT_NEAR(greatest(0.1, [&] { return std::abs(speed()[2]); }), approach, 0.01);
        EXPECT_LE(greatest(2, [&] { return std::abs(pressed()[2]); }), 1.4 * std::abs(row.force));
        EXPECT_NEAR(pressed()[2], row.force, 0.01 * std::abs(row.force));
        EXPECT_NEAR(pose()[2], 380 - std::abs(row.force) / row.stiffness, 0.05);
        EXPECT_EQ(state(), 400900u);
        do_robot("force_ctrl_switch_set", {{0, off}});
        come_to_rest();
        EXPECT_NEAR(pressed()[2], row.force, 0.02 * std::abs(row.force)) << "stays where it is";
    }
}

TEST_F(following_test, force_control_lies_over_commands_and_heeds_pauses_stops_and_reach)
{
    set("contact_plane 0", {0, 0, 1, 380, 20, 0.5});
    press_along_z(-10);
    pass(2);
    EXPECT_EQ(result("robot_jog_joint", {{0, 1, 400400}, {1, 1}}), 102019u);
    EXPECT_EQ(result("robot_ext_profiler_switch_set", {{0, on}}), 102034u);
    const auto start = pose();
    EXPECT_EQ(result("just_robot_tcp_move", {{0}, {50, start[0] + 60, start[1], 383, start[3], start[4], start[5]}}),
              100000u);
    pass(0.8);
    EXPECT_NEAR(pressed()[2], -10, 0.5);
    EXPECT_NEAR(pressed()[0], 5, 0.5) << "friction";
    EXPECT_EQ(result("robot_pause", {{0}, {0.2}}), 100000u);
    pass(1);
    set("contact_plane 0", {0, 0, 1, 370, 20, 0});
    EXPECT_EQ(greatest(0.5, [&] { return std::abs(speed()[2]); }), 0) << "held by the pause";
    EXPECT_EQ(result("robot_resume", {{0}}), 100000u);
    pass(4);
    EXPECT_EQ(state(), 400900u);
    EXPECT_NEAR(pose()[0], start[0] + 60, 1e-3);
    EXPECT_NEAR(pressed()[2], -10, 0.2);
    EXPECT_NEAR(pose()[2], 369.5, 0.02);

    // Out of reach it goes no further, and nothing is violated.
    set("contact_plane 0", {0, 0, 0, 0, 0, 0});
    do_robot("force_ctrl_force_set", {{0}, {0, 0, 500, 0, 0, 0}});
    do_robot("force_ctrl_approach_velocity_set", {{0}, {0, 0, 100, 0, 0, 0}});
    do_robot("force_ctrl_velocity_set", {{0}, {0, 0, 100, 0, 0, 0}});
    EXPECT_LE(greatest(5, [&] { return effort(); }), 1);
    EXPECT_EQ(greatest(0.1, [&] { return std::abs(speed()[2]); }), 0);
    EXPECT_GT(pose()[2], 500);
    EXPECT_EQ(field<std::uint32_t>(2608 + 112), 0u);
    do_robot("force_ctrl_force_set", {{0}, {0, 0, -50, 0, 0, 0}});
    pass(0.3);
    EXPECT_LT(speed()[2], -5);
    static_cast<void>(model.events().take());
    EXPECT_EQ(result("robot_stop", {{0}, {0}}), 100000u);
    EXPECT_EQ(greatest(0.02, [&] { return state() == 400905u ? std::abs(speed()[2]) : 0; }), 0) << "stops first";
    come_to_rest();
    EXPECT_EQ(field<std::uint32_t>(2608 + 40), off);
    EXPECT_EQ(state(), 400905u);
}

TEST_F(following_test, force_control_turns_the_tool_until_the_applications_sensor_feels_its_torque)
{
    do_robot("tcp_from_flange_set", {{0}, {30, 0, 50, 0, 0, 0}});
    do_robot("force_ctrl_coordinate_set", {{0, tcp}});
    do_robot("force_ctrl_direction_switch_set", {{0, off, off, off, off, off, on}});
    do_robot("force_ctrl_force_set", {{0}, {0, 0, 0, 0, 0, 2}});
    do_robot("ext_force_torq_sensor_switch_set", {{0, on}});
    const auto start = pose();
    do_robot("force_ctrl_switch_set", {{0, on}});
    pass(1);
    EXPECT_NEAR(robot().commanded().tcp_turning[2], -10, 1e-3) << "about an axis that points down";
    for (int axis = 0; axis < 3; ++axis)
        EXPECT_NEAR(pose()[axis], start[axis], 1e-6);
    do_robot("ext_force_torq_sensor_force_torque_set", {{0}, {0, 0, 0, 0, 0, 2}});
    pass(0.5);
    EXPECT_NEAR(robot().commanded().tcp_turning[2], 0, 1e-3);
}

TEST_F(following_test, sensors_know_the_load_and_their_biases)
{
    auto& settings = model.robots().find(0)->settings();
    settings.tcp_payload = {2, {0, 0, 50}};
    settings.ft_sensor.active = QORIN_SWITCH_ON;
    set("force_torque 0", {1, 2, 3, 0, 0, 0});
    const struct
    {
        std::string command;
        std::uint32_t value;
        double measured;   ///< along z, which points down
        double controlled; ///< along z of the base
    } rows[] = {{"", 0, 3 - 19.62, -3},
                {"force_torq_sensor_bias_switch_set", on, 0, -3},
                {"force_torq_sensor_bias_clear", off, 0, -3},
                {"force_torq_sensor_bias_clear", on, 3 - 19.62, -3},
                {"force_ctrl_sensorless_bias_set", on, 3 - 19.62, -3},
                {"force_torq_sensor_switch_set", off, 0, 0},
                {"force_ctrl_sensorless_bias_set", off, 0, -3}};
    for (const auto& row : rows)
    {
        if (!row.command.empty())
            do_robot(row.command, {{0, row.value}});
        EXPECT_NEAR(measured()[2], row.measured, 1e-9) << row.command;
        EXPECT_NEAR(pressed()[2], row.controlled, 1e-9) << row.command;
    }
    do_robot("force_ctrl_force_value_bias_set", {{0, off, off, on, off, off, off}});
    set("force_torque 0", {1, 2, 7, 0, 0, 0});
    EXPECT_NEAR(pressed()[2], -4, 1e-9);
}

TEST_F(following_test, conveyor_mode_rides_on_the_belt_and_takes_plain_tcp_motions_alone)
{
    do_robot("conveyor_encoder_info_set", {{0, 402800, 1}, {100, 1}});
    do_robot("conveyor_encoder_switch_set", {{0, on}});
    do_robot("conveyor_offset_start_pose_set", {{0}, {10, 0, 0, 0, 0, 90}}); // along y, to 100 mm/s at 500 mm/s2
    set("encoder_rate 1", {10000});
    const auto start = pose();
    do_robot("conveyor_mode_start", {{0}});
    double before = 0;
    EXPECT_LE(greatest(0.5,
                       [&]
                       {
                           const double change = (speed()[1] - before) * 1000;
                           before = speed()[1];
                           return std::abs(change);
                       }),
              501);
    EXPECT_NEAR(speed()[1], 100, 1e-3);
    EXPECT_NEAR(pose()[1], start[1] + 50 - 10, 0.2);

    const auto turn = make_turn(5);
    EXPECT_EQ(result("motion_command_queue_add", {{turn}}), 104006u);
    EXPECT_EQ(result("just_robot_joint_move", {{0, 6}, {50}, {}, {{9, 0, 90, 0, 90, 0}}}), 104006u);
    const carried line{{0}, {100, start[0] + 20, start[1] - 100, start[2], start[3], start[4], start[5]}};
    EXPECT_EQ(result("just_robot_blending_tcp_move", line), 104006u);
    EXPECT_EQ(result("just_robot_tcp_move", line), 100000u);
    pass(2.3);
    EXPECT_EQ(state(), 400900u);
    EXPECT_NEAR(pose()[0], start[0] + 20, 1e-3);
    EXPECT_NEAR(pose()[1], start[1] - 100 + 280 - 10, 0.2);
    set("encoder_rate 1", {-5000});
    pass(1);
    EXPECT_NEAR(speed()[1], -50, 1e-3);
    EXPECT_EQ(result("robot_conveyor_mode_end", {{0}}), 100000u);
    come_to_rest();
    EXPECT_EQ(speed()[1], 0);

    static_cast<void>(model.events().take());
    set("encoder_rate 1", {50000});
    do_robot("conveyor_mode_start", {{0}});
    pass(3);
    const auto events = model.events().take();
    EXPECT_EQ(std::ranges::count(events, 303007u, &cbox_simulator::event_info::subgroup), 1) << "out of reach";
    EXPECT_EQ(field<std::uint32_t>(2608 + 72), 402700u);
    EXPECT_EQ(state(), 400907u);
}

TEST_F(following_test, external_move_reaches_its_targets_in_their_times)
{
    const auto add = [&](double angle, double seconds) {
        return result("robot_ext_move_joint", {{0, 6}, {seconds}, {}, {{angle, 0, 90, 0, 90, 0}}});
    };
    const auto turning = [&] { return robot().commanded().speeds[0]; };
    const auto still_at = [&](double expected)
    {
        EXPECT_NEAR(angle(0), expected, 1e-6);
        EXPECT_EQ(turning(), 0);
    };
    do_robot("ext_move_switch_set", {{0, on}});
    EXPECT_EQ(add(20, 0.5), 100000u);
    EXPECT_EQ(add(20, -1), 102007u);
    EXPECT_EQ(add(500, 1), 104010u);
    pass(0.1);
    EXPECT_NEAR(angle(0), 1.1, 0.6);
    pass(0.5);
    still_at(20);
    EXPECT_EQ(state(), 400900u);

    // On the way through a target, and to a stop at each.
    for (const bool stops : {true, false})
    {
        do_robot("ext_move_stop_mode_set", {{0, stops ? on : off}});
        for (const double target : {30.0, 40.0, 50.0})
            EXPECT_EQ(add(target, 0.4), 100000u);
        pass(0.402);
        EXPECT_NEAR(turning(), stops ? 0 : 25, 2);
        pass(0.9);
        still_at(50);
        EXPECT_EQ(add(20, 1), 100000u);
        pass(1.1);
    }
    EXPECT_EQ(add(110, 0), 100000u);
    EXPECT_LE(greatest(2, [&] { return effort(); }), 1) << "as fast as the joint can";
    still_at(110);

    do_robot("ext_move_switch_set", {{0, off}});
    come_to_rest();
    auto target = pose();
    target[2] -= 30;
    const carried lower{{0, tcp + 100}, {target[0], target[1], target[2], target[3], target[4], target[5], 0.5}};
    EXPECT_EQ(result("robot_ext_move_pos_ort_euler_add", lower), 100000u);
    pass(1);
    EXPECT_NEAR(pose()[2], target[2] + 30, 1e-9) << "off";
    do_robot("ext_move_switch_set", {{0, on}});
    pass(0.6);
    EXPECT_NEAR(pose()[2], target[2], 1e-6);
    EXPECT_EQ(result("robot_ext_move_pos_ort_euler_add", {{0, tcp + 100}, {9000, 0, 0, 0, 0, 0, 1}}), 104010u);
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(add(angle(0), 1), 100000u);
    EXPECT_EQ(add(angle(0), 1), 102030u);
    EXPECT_EQ(result("robot_stop", {{0}, {0}}), 100000u);
    come_to_rest();
    EXPECT_EQ(ask("robot_ext_move_switch_get", {{0}}).value[0], off);
}

/// What the frames of some seconds are, with noise on them.
std::vector<std::size_t> frames_with_noise(std::uint64_t seed)
{
    struct scripted : following_test
    {
        void TestBody() override {}
    } box;
    cbox_simulator::measurement_noise noise(1, seed);
    std::vector<std::size_t> hashes;
    const auto watch = [&](int cycles)
    {
        for (int cycle = 0; cycle < cycles; ++cycle)
        {
            box.model.run_cycle();
            protocol::shared_data_t frame;
            cbox_simulator::render_frame(box.model, frame);
            noise.put_on(frame);
            hashes.push_back(std::hash<std::string_view>()({reinterpret_cast<const char*>(&frame), sizeof frame}));
        }
    };
    box.set("contact_plane 0", {0, 0, 1, 381, 50, 0.1});
    box.press_along_z(-20);
    watch(300);
    const auto start = box.pose();
    box.result("just_robot_tcp_move", {{0}, {80, start[0] + 30, start[1], start[2], start[3], start[4], start[5]}});
    box.result("just_robot_joint_move", {{1, 6}, {50}, {}, {{9, 0, 90, 0, 90, 0}}});
    watch(500);
    box.result("robot_stop", {{0}, {0}});
    watch(200);
    return hashes;
}

TEST(same_frames_test, the_same_seed_and_commands_give_the_same_frames_to_the_byte)
{
    const auto frames = frames_with_noise(7);
    EXPECT_EQ(frames_with_noise(7), frames);
    EXPECT_NE(frames_with_noise(8), frames);
}
} // namespace
