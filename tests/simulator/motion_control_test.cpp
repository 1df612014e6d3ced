// Robots that move: where they are at each moment, and what acts on them while they do.
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/simulator/robot_commander.h"

namespace
{
using cbox_simulator::robot_state;
using joint_array = robot_state::joint_array;

const joint_array ready = {0, 0, 90, 0, 90, 0};

struct motion_control : robot_commander
{
    robot_state& robot(std::uint32_t id = 0) { return *model.robots().find(id); }
    double commanded(std::size_t joint, std::uint32_t id = 0) { return robot(id).commanded().joints[joint]; }

    std::uint32_t make_line(double x, double y, double z, double speed = 100, double acceleration = 500)
    {
        const auto id = make("tcp");
        EXPECT_EQ(result("motion_command_robot_tcp_position_end_set", {{id}, {x, y, z}}), 100000u);
        EXPECT_EQ(result("motion_command_speed_max_set", {{id}, {speed}}), 100000u);
        EXPECT_EQ(result("motion_command_acc_max_set", {{id}, {acceleration}}), 100000u);
        EXPECT_EQ(result("motion_command_dec_max_set", {{id}, {acceleration}}), 100000u);
        return id;
    }

    std::uint32_t add(std::uint32_t id) { return result("motion_command_queue_add", {{id}}); }

    void run(const std::vector<std::uint32_t>& ids)
    {
        for (const auto id : ids)
            EXPECT_EQ(add(id), 100000u);
        EXPECT_EQ(result("motion_command_queue_flush"), 100000u);
    }

    /// Cycles until something is so; a minute is too long.
    int cycles_until(const std::function<bool()>& condition)
    {
        int count = 0;
        for (; count < 60'000 && !condition(); ++count)
            model.run_cycle();
        EXPECT_TRUE(condition());
        return count;
    }

    /// Whether no joint is faster than it can, nor accelerates beyond so many times of what it can.
    bool joints_keep_up(double accelerations = std::numeric_limits<double>::infinity())
    {
        const auto& now = robot().commanded();
        for (std::size_t joint = 0; joint < 6; ++joint)
        {
            const auto& range = robot().arm().joints[joint];
            if (std::abs(now.speeds[joint]) > range.speed_max * 1.001 ||
                std::abs(now.accelerations[joint]) > range.acceleration_max * accelerations)
                return false;
        }
        return true;
    }

    QORIN_MOVING_STATE state() { return robot().moving_state(); }

    void begin_anew()
    {
        model.motions().forget_robot(0);
        robot() = robot_state(robot().arm());
        model.robots().set_servo(0, QORIN_SWITCH_ON);
        static_cast<void>(model.events().take());
    }
};

TEST_F(motion_control, the_arm_takes_its_time_and_the_measured_one_follows_the_commanded)
{
    const auto id = make_turn(40);
    run({id});
    EXPECT_EQ(result("motion_command_name_set", {{id}, {}, {"other"}}), 100000u) << "it runs as it was queued";
    const double planned = ask("motion_command_running_time_get", {{id}}).real[0];
    EXPECT_NEAR(planned, 40.0 / 50 + 50 / 75.0, 1e-9) << "ramps of 100 degrees per second squared, half of them jerk";
    double farthest_behind = 0;
    const auto cycles = cycles_until(
        [&]
        {
            farthest_behind = std::max(farthest_behind, commanded(0) - robot().joint_angles()[0]);
            return commanded(0) == 40;
        });
    EXPECT_EQ(cycles, std::ceil(planned * 1000));
    EXPECT_NEAR(farthest_behind, 50 * 0.004, 1e-3);
    EXPECT_NEAR(field<double>(2608 + 1896 + 24), 0, 1) << "commanded speed";
    come_to_rest();
    EXPECT_EQ(angle(0), 40);
    EXPECT_NEAR(ask("motion_command_running_time_get", {{id}}).real[0], planned, 0.0011);
}

TEST_F(motion_control, a_line_is_a_line_at_its_speed_with_its_name_in_the_frame)
{
    const auto start = robot().tcp_pose();
    const auto id = make_line(start[0] + 60, start[1] + 80, start[2]);
    result("motion_command_name_set", {{id}, {}, {"to the part"}});
    run({id});
    pass(0.4);
    const auto name = field<std::array<char, 32>>(2608 + 80);
    EXPECT_STREQ(name.data(), "to the part");
    const auto velocity = field<std::array<double, 3>>(2608 + 416);
    EXPECT_NEAR(velocity[0], 60, 1e-6);
    EXPECT_NEAR(velocity[1], 80, 1e-6);
    EXPECT_NEAR(velocity[2], 0, 1e-6);
    const auto tcp = robot().commanded().tcp;
    EXPECT_NEAR((tcp[0] - start[0]) * 80, (tcp[1] - start[1]) * 60, 1e-6);
    come_to_rest();
    EXPECT_NEAR(pose()[0], start[0] + 60, 1e-6);
    EXPECT_EQ(field<char>(2608 + 80), 0);
}

TEST_F(motion_control, robots_run_at_the_same_time)
{
    run({make_turn(20, 0), make_turn(-30, 1), make_turn(40, 0)});
    pass(0.5);
    EXPECT_GT(commanded(0, 0), 1);
    EXPECT_LT(commanded(0, 1), -1);
    come_to_rest();
    EXPECT_EQ(robot(0).joint_angles()[0], 40);
    EXPECT_EQ(robot(1).joint_angles()[0], -30);
}

TEST_F(motion_control, outputs_act_on_exactly_the_cycle_told)
{
    struct row
    {
        std::uint32_t condition;
        double when;
        std::function<bool()> is_due; ///< After a cycle.
    };
    int cycle = 0;
    double way = 0;
    const row rows[] = {
        {402501, 0, [&] { return cycle >= 1; }}, {402502, 0.25, [&] { return cycle >= 250; }},
        {402502, 99, [&] { return way >= 40; }}, {402503, 30, [&] { return way >= 40 * 0.3 - 1e-9; }},
        {402504, 0, [&] { return way >= 40; }},
    };
    for (const double factor : {1.0, 0.5})
    {
        for (const auto& row : rows)
        {
            if (factor < 1 && row.condition == 402502 && row.when < 1)
                continue; // of its own time, which runs half as fast
            SCOPED_TRACE(row.condition);
            begin_anew();
            EXPECT_EQ(result("robot_speed_factor_set", {{0}, {factor}}), 100000u);
            model.cbox().set_digital_output(0, 7, 0);
            const auto id = make_turn(40);
            EXPECT_EQ(result("motion_command_io_command_type_set", {{id, row.condition, 402401, 7}, {row.when, 1}}),
                      100000u);
            run({id});
            for (cycle = 0, way = 0; cycle < 5000 && !model.is_idle(); way = commanded(0))
            {
                const bool due = cycle > 0 && row.is_due();
                ASSERT_EQ((model.cbox().all_io_modules()[0].digital_output >> 7 & 1u) == 1, due)
                    << "cycle " << cycle << " at " << way;
                ++cycle;
                model.run_cycle();
            }
            EXPECT_EQ((field<std::uint32_t>(13132 + 72) >> 7) & 1u, 1u) << "the frame shows it";
        }
    }
}

TEST_F(motion_control, whatever_interrupts_it_neither_leaps_nor_leaves_the_way)
{
    std::mt19937 chance(7);
    const auto share = [&] { return std::uniform_real_distribution<>(0, 1)(chance); };
    const auto start = robot().tcp_pose();
    for (int round = 0; round < 12; ++round)
    {
        SCOPED_TRACE(round);
        begin_anew();
        EXPECT_EQ(result("robot_safety_limit_switch_set", {{0, 400100}}), 100000u);
        EXPECT_EQ(result("robot_speed_factor_set", {{0}, {1}}), 100000u);
        const bool line = round % 2 == 0;
        run({line ? make_line(start[0] + 40, start[1] - 90, start[2] + 30, 250) : make_turn(60)});
        bool stopped = false;
        double farthest = 0;
        for (int cycle = 0; cycle < 20'000 && !model.is_idle(); ++cycle)
        {
            if (share() < 0.01)
                result("robot_speed_factor_set", {{0}, {share()}});
            if (share() < 0.003)
                result("robot_pause", {{0}, {share() * 0.3}});
            if (share() < 0.004)
                result("robot_resume", {{0}});
            if (round > 7 && share() < 0.0005 && !std::exchange(stopped, true))
                result(round % 3 == 0 ? "robot_stop" : "robot_emergency_stop", {{0}, {share() * 0.2}});
            model.run_cycle();
            if (state() == QORIN_MOVING_STATE_PAUSED)
                result("robot_resume", {{0}});
            ASSERT_TRUE(joints_keep_up(2.2)) << cycle;
            const auto& tcp = robot().commanded().tcp;
            const double off = (tcp[0] - start[0]) * 90 + (tcp[1] - start[1]) * 40;
            ASSERT_NEAR(line ? off : 0, 0, 1e-4) << cycle;
            const double gone = line ? start[1] - tcp[1] : commanded(0);
            ASSERT_GE(gone, farthest - 1e-6) << cycle << ": nothing is gone twice";
            farthest = gone;
        }
        ASSERT_TRUE(model.is_idle());
        EXPECT_EQ(robot().safety_violation(), 0u);
        const bool at_end = line ? std::abs(pose()[0] - start[0] - 40) < 1e-6 : angle(0) == 60;
        EXPECT_TRUE(at_end || stopped);
    }
}

TEST_F(motion_control, a_stop_takes_as_long_as_it_is_told_and_never_less_than_the_joints_can)
{
    struct row
    {
        const char* name;
        carried what;
        double least, most; ///< Seconds.
    };
    // At 50 degrees a second; the motion slows down by 100 degrees per second squared, the joint by 900.
    const row rows[] = {
        {"robot_stop_auto_time", {{0}}, 0.7, 0.8},        {"robot_stop", {{0}, {1.5}}, 1.45, 1.55},
        {"robot_stop", {{0}, {0}}, 0.01, 0.12},           {"robot_emergency_stop", {{0}, {0.3}}, 0.28, 0.32},
        {"robot_emergency_stop", {{0}, {0}}, 0.01, 0.12}, {"robot_pause_auto_time", {{0}}, 0.7, 0.8},
        {"robot_pause", {{0}, {0.5}}, 0.48, 0.52},        {"robot_servo_switch_set", {{0, 400101}}, 0.01, 0.12},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        begin_anew();
        run({make_turn(150)});
        pass(1);
        EXPECT_EQ(result(row.name, row.what), 100000u);
        const double seconds = cycles_until([&] { return robot().commanded().speeds[0] == 0; }) * 0.001;
        EXPECT_GE(seconds, row.least);
        EXPECT_LE(seconds, row.most);
    }
}

TEST_F(motion_control, a_speed_factor_acts_at_once_and_on_what_comes)
{
    run({make_turn(100)});
    pass(1);
    EXPECT_EQ(result("robot_speed_factor_set", {{0}, {0.2}}), 100000u);
    pass(0.01);
    EXPECT_NEAR(robot().commanded().speeds[0], 50, 1) << "not in an instant";
    pass(0.7);
    EXPECT_NEAR(robot().commanded().speeds[0], 10, 1e-6);
    EXPECT_EQ(result("robot_speed_factor_set", {{0}, {0}}), 100000u);
    pass(1);
    EXPECT_EQ(robot().commanded().speeds[0], 0);
    EXPECT_EQ(state(), QORIN_MOVING_STATE_MOVING) << "as slow as can be, but not paused";
    for (const double bad : {-0.1, 1.1, std::nan("")})
        EXPECT_EQ(result("robot_speed_factor_set", {{0}, {bad}}), 102007u);
    EXPECT_EQ(result("robot_speed_factor_set", {{0}, {0.5}}), 100000u);
    come_to_rest();
    EXPECT_EQ(angle(0), 100);
    run({make_turn(50)});
    pass(1.5);
    EXPECT_NEAR(robot().commanded().speeds[0], -25, 1e-6);
}

TEST_F(motion_control, blended_commands_pass_their_corner_without_stopping)
{
    const auto start = robot().tcp_pose();
    const auto first = make_line(start[0] + 100, start[1], start[2]);
    const auto second = make_line(start[0] + 100, start[1] + 100, start[2]);
    EXPECT_EQ(result("motion_command_blending_motion_mode_set", {{first, 400100}}), 100000u);
    EXPECT_EQ(result("motion_command_radius_for_blending_set", {{first}, {20}}), 100000u);
    run({first, second});
    double slowest = 1000;
    double nearest = 1000;
    cycles_until(
        [&]
        {
            const auto& now = robot().commanded();
            const double gone = now.tcp[0] - start[0] + now.tcp[1] - start[1];
            if (gone > 30 && gone < 170)
                slowest = std::min(slowest, std::hypot(now.tcp_velocity[0], now.tcp_velocity[1]));
            nearest = std::min(nearest, std::hypot(now.tcp[0] - start[0] - 100, now.tcp[1] - start[1]));
            return model.is_idle();
        });
    EXPECT_GT(slowest, 20);
    EXPECT_GT(nearest, 1);
    EXPECT_LT(nearest, 20);
    EXPECT_NEAR(pose()[1], start[1] + 100, 1e-6);
}

TEST_F(motion_control, joints_that_cannot_keep_up_slow_a_line_down)
{
    const auto start = robot().tcp_pose();
    const auto id = make_line(start[0] + 120, start[1], start[2], 5000, 50000);
    EXPECT_EQ(ask("motion_command_robot_tcp_adjusted_speed_get", {{id}}).real[0], 5000) << "nobody has looked yet";
    EXPECT_EQ(result("motion_command_is_runnable", {{id}}), 100000u);
    const double adjusted = ask("motion_command_robot_tcp_adjusted_speed_get", {{id}}).real[0];
    EXPECT_LT(adjusted, 2000);
    EXPECT_EQ(ask("motion_command_speed_max_get", {{id}}).real[0], 5000);
    run({id});
    cycles_until(
        [&]
        {
            EXPECT_TRUE(joints_keep_up());
            return model.is_idle();
        });

    const auto fast = make_line(start[0], start[1], start[2], 5000, 50000);
    EXPECT_EQ(result("motion_command_robot_tcp_speed_start_set", {{fast}, {4000}}), 100000u);
    EXPECT_EQ(add(fast), 104012u);
}

TEST_F(motion_control, commands_that_cannot_follow_each_other_are_refused)
{
    const auto start = robot().tcp_pose();
    const auto first = make_line(start[0] + 50, start[1], start[2]);
    const auto corner = make_line(start[0] + 50, start[1] + 50, start[2]);
    EXPECT_EQ(result("motion_command_robot_tcp_speed_end_set", {{first}, {50}}), 100000u);
    EXPECT_EQ(result("motion_command_robot_tcp_speed_start_set", {{corner}, {50}}), 100000u);
    EXPECT_EQ(add(first), 100000u);
    EXPECT_EQ(add(corner), 104014u);
    EXPECT_EQ(result("motion_command_queue_clear"), 100000u);
    const auto flange = make_line(start[0] + 60, start[1], start[2] + 10);
    EXPECT_EQ(result("motion_command_robot_tcp_pose_type_set", {{flange, 401800}}), 100000u);
    const auto blended = make_line(start[0] + 50, start[1], start[2]);
    EXPECT_EQ(result("motion_command_blending_motion_mode_set", {{blended, 400100}}), 100000u);
    EXPECT_EQ(result("motion_command_radius_for_blending_set", {{blended}, {10}}), 100000u);
    EXPECT_EQ(add(blended), 100000u);
    EXPECT_EQ(add(flange), 104005u);
}

TEST_F(motion_control, a_way_is_looked_at_between_its_ends_too)
{
    const joint_array left = {60, 0, 90, 0, 90, 0};
    ASSERT_EQ(robot().set_joint_angles(left), QORIN_API_RESULT_OK);
    const auto start = robot().tcp_pose();
    EXPECT_EQ(add(make_line(start[0], -start[1], start[2])), 100000u);
    EXPECT_EQ(add(make_line(-start[0], start[1] + 1, start[2])), 104011u) << "close by the base's axis";
    EXPECT_EQ(result("motion_command_queue_clear"), 100000u);
    EXPECT_EQ(result("robot_safety_limit_joint_angle_set", {{0, 2}, {-155, 95}}), 100000u);
    EXPECT_EQ(add(make_line(start[0], -start[1], start[2])), 104010u) << "the elbow bends on the way";
}

TEST_F(motion_control, a_weave_swings_and_tells_its_sections)
{
    const auto start = robot().tcp_pose();
    const auto id = make("tcp_welding");
    const std::string welding = "motion_command_robot_tcp_welding_";
    EXPECT_EQ(result("motion_command_robot_tcp_position_end_set", {{id}, {start[0] + 80, start[1], start[2]}}),
              100000u);
    EXPECT_EQ(result("motion_command_speed_max_set", {{id}, {20}}), 100000u);
    EXPECT_EQ(result(welding + "weaving_motion_switch_set", {{id, 400100}}), 100000u);
    for (const char* side : {"left", "right"})
        EXPECT_EQ(result(welding + side + "_amplitude_set", {{id}, {2}}), 100000u);
    EXPECT_EQ(result(welding + "frequency_set", {{id}, {2}}), 100000u);
    EXPECT_EQ(result("motion_command_robot_weaving_event_set", {{id, 400100}}), 100000u);
    run({id});
    const auto widest_within = [&](double seconds)
    {
        double widest = 0;
        for (int cycle = 0; cycle < seconds * 1000; ++cycle)
        {
            model.run_cycle();
            widest = std::max(widest, std::abs(robot().commanded().tcp[1] - start[1]));
        }
        return widest;
    };
    pass(0.5);
    static_cast<void>(model.events().take());
    EXPECT_NEAR(widest_within(1), 2, 0.2);
    const auto events = model.events().take();
    EXPECT_EQ(events.size(), 8u) << "four sections a swing";
    EXPECT_EQ(events[0].subgroup, 302010u);
    EXPECT_EQ(events[0].sender_id, id);
    EXPECT_EQ(result(welding + "left_amplitude_set", {{id}, {9}}), 100000u) << "for the next time";
    for (const char* side : {"left", "right"})
        EXPECT_EQ(result(welding + side + "_amplitude_change", {{id}, {5}}), 100000u);
    pass(0.5);
    EXPECT_NEAR(widest_within(1), 5, 0.5);
    come_to_rest();
    EXPECT_NEAR(pose()[1], start[1], 1e-6);
}

TEST_F(motion_control, jogs_keep_on_until_their_target_a_stop_or_a_range)
{
    const auto stop = [&]
    {
        pass(0.2);
        EXPECT_EQ(result("robot_stop_auto_time", {{0}}), 100000u);
        come_to_rest();
    };
    const auto start = robot().tcp_pose();
    EXPECT_EQ(result("robot_jog_tcp_position", {{0, 401700}, {30, 40, 0, 80, 400}}), 100000u);
    come_to_rest();
    EXPECT_NEAR(pose()[0], start[0] + 30, 1e-6);
    EXPECT_NEAR(pose()[1], start[1] + 40, 1e-6);
    EXPECT_EQ(result("robot_jog_tcp_position_z", {{0, 401701, 400400}, {80, 400}}), 100000u);
    stop();
    EXPECT_LT(pose()[2], start[2] - 5) << "the tool looks down";
    EXPECT_NEAR(pose()[0], start[0] + 30, 1e-6);
    auto before = pose();
    EXPECT_EQ(result("robot_jog_tcp_orientation", {{0, 401700}, {0, 0, 15, 40, 200}}), 100000u);
    come_to_rest();
    EXPECT_NEAR(std::remainder(pose()[5] - before[5], 360), 15, 1e-6);
    EXPECT_NEAR(pose()[0], before[0], 1e-6);
    EXPECT_EQ(result("robot_jog_tcp_orientation_x", {{0, 401701, 400401}, {40, 200}}), 100000u);
    stop();
    EXPECT_EQ(result("robot_jog_joint", {{0, 1, 400401}, {100, 400}}), 100000u);
    come_to_rest();
    EXPECT_EQ(angle(1), robot().arm().joints[1].angle_min);
    before = pose();
    EXPECT_EQ(result("robot_jog_tcp_position_x", {{0, 401700, 400400}, {500, 1000}}), 100000u);
    come_to_rest();
    EXPECT_EQ(state(), QORIN_MOVING_STATE_IDLE) << "where it can go no further";
    EXPECT_EQ(result("robot_jog_tcp_position", {{0, 401700}, {0, 0, 0, 10, 10}}), 102016u);
    EXPECT_EQ(result("robot_jog_joint", {{0, 0, 400400}, {-1, 10}}), 102007u);
}

TEST_F(motion_control, velocity_control_turns_joints_as_told)
{
    EXPECT_EQ(result("robot_joint_target_velocity_set", {{0, 0}, {30}}), 100000u);
    EXPECT_EQ(result("robot_joint_target_acceleration_set", {{0, 0}, {60}}), 100000u);
    pass(0.1);
    EXPECT_EQ(commanded(0), 0) << "in position mode";
    EXPECT_EQ(result("robot_velocity_control_switch_set", {{0, 400100}}), 100000u);
    pass(0.25);
    EXPECT_NEAR(robot().commanded().speeds[0], 15, 0.1);
    EXPECT_EQ(state(), QORIN_MOVING_STATE_MOVING);
    EXPECT_EQ(result("robot_control_mode_set", {{0, 403108}}), 102034u);
    pass(0.75);
    EXPECT_NEAR(robot().commanded().speeds[0], 30, 1e-9);
    EXPECT_EQ(result("robot_joint_target_velocity_set", {{0, 0}, {0}}), 100000u);
    come_to_rest();
    EXPECT_EQ(state(), QORIN_MOVING_STATE_IDLE);
    EXPECT_EQ(result("robot_joint_target_velocity_rpm_set", {{0, 0}, {-20}}), 100000u);
    pass(5);
    EXPECT_EQ(commanded(0), robot().arm().joints[0].angle_min);
    EXPECT_EQ(result("robot_velocity_control_switch_set", {{0, 400101}}), 100000u);
    come_to_rest();
    EXPECT_EQ(field<double>(2608 + 608), 0) << "no target is left";
    EXPECT_EQ(field<std::uint32_t>(2608 + 16), 403108u);
}

TEST_F(motion_control, refusals_have_a_result_each_and_change_nothing)
{
    const auto servo = [this](bool on) { model.robots().set_servo(0, on ? QORIN_SWITCH_ON : QORIN_SWITCH_OFF); };
    struct row
    {
        const char* name;
        carried what;
        std::uint32_t refusal;
    };
    const auto all_refused = [&](const std::vector<row>& rows)
    {
        const auto before = frame();
        for (const auto& row : rows)
            EXPECT_EQ(result(row.name, row.what), row.refusal) << row.name;
        EXPECT_EQ(frame(), before);
        EXPECT_TRUE(model.events().take().empty());
    };
    const std::vector<std::vector<double>> table(4, std::vector<double>(6, 1));
    all_refused({{"robot_home_position_reset", {{0}}, 102006},
                 {"robot_home_position_auto_reset", {{0}}, 102006},
                 {"robot_home_joint_position_reset", {{0, 2}}, 102006},
                 {"robot_installation_mount_set", {{0}, {1, 2}}, 102006},
                 {"robot_kinematics_dh_parameter_set", {{0, 6}, {}, {}, table}, 102006}});
    servo(false);
    const auto fault = [&](std::uint32_t how) { return result("ts_fault_inject", {{5, how, 0}}); };
    EXPECT_EQ(fault(1), 100000u);
    all_refused({{"robot_home_position_reset", {{0}}, 102036}, {"robot_home_joint_position_reset", {{0, 2}}, 102036}});
    EXPECT_EQ(fault(2), 100000u);
    all_refused({{"robot_home_position_auto_reset", {{0}}, 102037}, {"ts_fault_inject", {{5, 3, 0}}, 101005}});
    EXPECT_EQ(fault(0), 100000u);
    EXPECT_EQ(result("robot_home_position_reset", {{0}}), 100000u);
    servo(true);

    const auto waiting = make_turn(20);
    run({make_turn(10)});
    pass(0.3);
    EXPECT_EQ(result("robot_pause", {{0}, {0}}), 100000u);
    pass(0.5);
    static_cast<void>(model.events().take());
    all_refused({{"robot_reset", {{0}}, 102005},
                 {"robot_control_mode_set", {{0, 403109}}, 102034},
                 {"robot_velocity_control_switch_set", {{0, 400100}}, 102034},
                 {"robot_direct_teaching_switch_set", {{0, 400100}}, 102034},
                 {"robot_direct_teaching_force_to_switch_on", {{0}}, 102034},
                 {"robot_joint_chaser_state_set", {{0, 400100}}, 102034},
                 {"robot_ext_profiler_switch_set", {{0, 400100}}, 102034},
                 {"robot_ext_move_switch_set", {{0, 400100}}, 102034},
                 {"robot_conveyor_mode_start", {{0}}, 102034},
                 {"robot_tcp_from_flange_set", {{0}, {1, 2, 3, 0, 0, 0}}, 102034},
                 {"robot_tcp_payload_set", {{0}, {1, 0, 0, 0}}, 102034},
                 {"robot_jog_joint", {{0, 0, 400400}, {1, 1}}, 102019},
                 {"just_robot_joint_move", {{0, 6}, {50}, {}, {{9, 0, 90, 0, 90, 0}}}, 104008},
                 {"robot_stop", {{0}, {-1}}, 102007},
                 {"robot_pause", {{0}, {std::nan("")}}, 102007},
                 {"robot_emergency_stop", {{0}, {-1}}, 102007}});
    EXPECT_EQ(result("robot_stop", {{0}, {0}}), 100000u);
    come_to_rest();
    for (const std::uint32_t chaser_state : {400100u, 400101u})
        EXPECT_EQ(result("robot_joint_chaser_state_set", {{0, chaser_state}}), 100000u) << "stopped, not paused";

    model.cbox().assign_safety_input(0, 2, 3, QORIN_SAFETY_MODULE_IO_REDUNDANT_IN_ENABLE_SWITCH);
    model.cbox().set_safety_redundant_input(2, 1);
    model.cbox().set_safety_redundant_input(3, 1);
    static_cast<void>(model.events().take());
    all_refused({{"robot_jog_joint", {{0, 0, 400400}, {1, 1}}, 102031},
                 {"robot_control_mode_set", {{0, 403109}}, 102031},
                 {"robot_velocity_control_switch_set", {{0, 400100}}, 102031},
                 {"robot_joint_chaser_state_set", {{0, 400100}}, 102031},
                 {"motion_command_queue_add", {{waiting}}, 104008}});
    model.cbox().set_safety_redundant_input(3, 0);
    EXPECT_EQ(add(waiting), 100000u);
}

TEST_F(motion_control, whatever_is_told_in_whatever_order_leaves_an_arm_that_can_be_moved)
{
    std::mt19937 chance(11);
    const auto one_of = [&](const auto& list) -> const auto&
    {
        return list[std::uniform_int_distribution<std::size_t>(0, std::size(list) - 1)(chance)];
    };
    const auto some = [&](double most) { return std::uniform_real_distribution<>(0, most)(chance); };
    const auto start = robot().tcp_pose();
    std::vector<std::uint32_t> ids;
    for (int i = 0; i < 6; ++i)
    {
        ids.push_back(i < 3
                          ? make_turn(some(120) - 60)
                          : make_line(start[0] + some(60), start[1] + some(120) - 60, start[2] + some(60), some(400)));
        result("motion_command_blending_motion_mode_set", {{ids.back(), i % 2 == 0 ? 400100u : 400101u}});
        result("motion_command_radius_for_blending_set", {{ids.back()}, {some(20)}});
    }
    ids.push_back(make_line(start[0], start[1], start[2]));
    ids.push_back(make_turn(0));
    model.cbox().assign_redundant_input(0, 0, 1, QORIN_CBOX_IO_REDUNDANT_IN_REDUCED_MODE);
    const auto some_switch = [&](double off) { return some(1) < off ? 400101u : 400100u; };
    struct deed
    {
        const char* name;
        carried what{};
    };
    for (int step = 0; step < 600; ++step)
    {
        const deed deeds[] = {
            {"motion_command_queue_add", {{one_of(ids)}}},
            {"motion_command_queue_add", {{one_of(ids)}}},
            {"motion_command_queue_flush"},
            {"motion_command_queue_flush"},
            {"motion_command_queue_clear"},
            {"just_robot_joint_move", {{0, 6}, {some(200)}, {}, {{some(90), 0, 90, 0, 90, 0}}}},
            {"just_robot_blending_joint_move", {{0, 6}, {some(200)}, {}, {{some(90), 9, 90, 0, 90, 0}}}},
            {"robot_jog_joint", {{0, 3, 400400}, {some(90), some(400)}}},
            {"robot_jog_tcp_position_y", {{0, 401701, 400401}, {some(300), some(900)}}},
            {"robot_stop", {{0}, {some(0.2)}}},
            {"robot_emergency_stop", {{0}, {some(0.1)}}},
            {"robot_pause_auto_time", {{0}}},
            {"robot_resume", {{0}}},
            {"robot_reset", {{0}}},
            {"robot_reset", {{0}}},
            {"robot_speed_factor_set", {{0}, {some(1)}}},
            {"robot_servo_switch_set", {{0, some_switch(0.05)}}},
            {"robot_servo_switch_set", {{0, 400100}}},
            {"robot_joint_chaser_state_set", {{0, some_switch(0.5)}}},
            {"robot_velocity_control_switch_set", {{0, some_switch(0.5)}}},
            {"robot_joint_target_velocity_set", {{0, 1}, {some(60) - 30}}},
            {"robot_direct_teaching_switch_set", {{0, some_switch(0.5)}}},
            {"robot_collision_detection_switch_set", {{0, some_switch(0.5)}}},
            {"robot_collision_mitigation_switch_set", {{0, some_switch(0.5)}}},
            {"robot_collision_detection_clear", {{0}}},
            {"robot_safety_limit_switch_set", {{0, some_switch(0.5)}}},
            {"ts_fault_inject", {{6, 2, 99}}},
        };
        const auto& deed = one_of(deeds);
        result(deed.name, deed.what);
        if (some(1) < 0.05)
            model.chase(0, {some(40), some(40), 90, some(40), 90, 0});
        if (some(1) < 0.05)
            model.motions().executor(0).guide_by_hand({some(20), 0, 0, 0, 0, 0});
        if (some(1) < 0.05)
            model.cbox().set_redundant_input(0, 0, some(1) < 0.5 ? 1 : 0);
        if (some(1) < 0.05)
            model.set_ecat_link(some(1) < 0.95);
        if (some(1) < 0.02)
            model.forget_client(1);
        model.take_control(1);
        for (auto cycles = static_cast<int>(some(1) < 0.2 ? some(600) : some(40)); cycles > 0; --cycles)
        {
            model.run_cycle();
            ASSERT_TRUE(robot().can_stand_at(robot().commanded().joints)) << step;
            ASSERT_TRUE(joints_keep_up(2.5)) << step;
        }
    }
    model.set_ecat_link(true);
    model.cbox().set_redundant_input(0, 0, 0);
    EXPECT_EQ(result("robot_stop_auto_time", {{0}}), 100000u);
    come_to_rest();
    for (const char* name : {"robot_velocity_control_switch_set", "robot_direct_teaching_switch_set"})
        EXPECT_EQ(result(name, {{0, 400101}}), 100000u);
    EXPECT_EQ(result("robot_reset", {{0}}), 100000u);
    EXPECT_EQ(result("robot_servo_switch_set", {{0, 400100}}), 100000u);
    EXPECT_EQ(result("robot_speed_factor_set", {{0}, {1}}), 100000u);
    EXPECT_EQ(result("just_robot_joint_move", {{0, 6}, {100}, {}, {{5, 0, 90, 0, 90, 0}}}), 100000u);
    come_to_rest();
    EXPECT_EQ(angle(0), 5);
}

TEST_F(motion_control, a_system_is_destroyed_when_its_robots_stand)
{
    run({make_turn(60)});
    pass(0.5);
    model.release_control(1);
    EXPECT_EQ(model.destroy_system(1), QORIN_API_RESULT_OK);
    EXPECT_GT(model.take_reply_delay().count(), 100) << "the reply waits for that";
    EXPECT_TRUE(model.system());
    EXPECT_EQ(robot().moving_state(), QORIN_MOVING_STATE_STOPPING);
    come_to_rest();
    EXPECT_FALSE(model.system());
    EXPECT_FALSE(model.robots().exists(0));
}

TEST_F(motion_control, a_recording_is_played_in_the_time_that_it_took)
{
    ask("robot_recording_create", {{0}});
    EXPECT_EQ(result("robot_recording_start", {{0}}), 100000u);
    run({make_turn(20)});
    pass(3);
    EXPECT_EQ(result("robot_recording_end", {{0, 1}}), 100000u);
    const auto entries = ask("robot_recording_interpolate", {{0, 1, 401901, 1}, {1}}).value[0];
    EXPECT_EQ(robot().set_joint_angles(ready), QORIN_API_RESULT_OK);
    EXPECT_EQ(result("robot_recording_playback", {{0, 1}}), 100000u);
    const auto cycles = cycles_until([&] { return state() == QORIN_MOVING_STATE_IDLE; });
    EXPECT_NEAR(cycles, entries, 50);
    EXPECT_EQ(angle(0), 20);
}
} // namespace
