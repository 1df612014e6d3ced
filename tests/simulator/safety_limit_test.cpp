// What keeps an arm within its limits: the monitor of each cycle, reduced mode, collisions.
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/simulator/robot_commander.h"

namespace
{
using cbox_simulator::robot_state;

constexpr std::uint32_t on = QORIN_SWITCH_ON;

struct safety_limit_test : robot_commander
{
    robot_state& robot() { return *model.robots().find(0); }
    QORIN_MOVING_STATE state() { return robot().moving_state(); }
    std::uint32_t shown_violation() const { return field<std::uint32_t>(2608 + 112); }
    double tcp_speed()
    {
        const auto& [x, y, z] = robot().commanded().tcp_velocity;
        return std::hypot(x, y, z);
    }

    void tell(const std::string& name, const carried& what) { EXPECT_EQ(result(name, what), 100000u) << name; }
    void limit(const std::string& name, const carried& what) { tell("robot_safety_limit_" + name, what); }

    /// A line of the TCP, from where it stands.
    void run_line(double x, double y, double z, double speed)
    {
        const auto id = make("tcp");
        const auto start = robot().tcp_pose();
        tell("motion_command_robot_tcp_position_end_set", {{id}, {start[0] + x, start[1] + y, start[2] + z}});
        tell("motion_command_speed_max_set", {{id}, {speed}});
        for (const char* which : {"acc", "dec"})
            tell(std::string("motion_command_") + which + "_max_set", {{id}, {1000}});
        tell("motion_command_queue_add", {{id}});
        tell("motion_command_queue_flush", {});
    }

    void turn(std::size_t joint, double angle, double speed = 50)
    {
        auto joints = robot().commanded().joints;
        joints[joint] = angle;
        tell("just_robot_joint_move", {{0, 6}, {speed}, {}, {std::vector<double>(joints.begin(), joints.end())}});
    }

    using told_event = std::array<std::uint32_t, 3>;

    /// What has been told beside the life of commands.
    std::vector<told_event> news()
    {
        std::vector<told_event> found;
        for (const auto& event : model.events().take())
            if (event.group != QORIN_EVENT_GRP_MOTION_COMMAND)
                found.push_back({event.subgroup, event.sender_id, static_cast<std::uint32_t>(event.parameter[0])});
        return found;
    }

    void recover()
    {
        tell("robot_reset", {{0}});
        tell("robot_servo_switch_set", {{0, on}});
    }

    void reduce(bool reduced)
    {
        for (const std::uint32_t channel : {0u, 1u})
            model.cbox().set_redundant_input(0, channel, reduced ? 1 : 0);
    }

    void begin_anew()
    {
        model.motions().forget_robot(0);
        robot() = robot_state(robot().arm());
        model.robots().set_servo(0, QORIN_SWITCH_ON);
        static_cast<void>(news());
    }
};

TEST_F(safety_limit_test, what_goes_beyond_a_limit_is_stopped_while_the_limits_are_switched_on)
{
    const auto& [x, y, z, rx, ry, rz] = robot().tcp_pose();
    // Four corners of the lower face in turn, then those above.
    const auto cube = [](double x0, double y0, double z0, double size)
    {
        std::vector<double> corners;
        for (const double dz : {0.0, size})
            for (const auto& [dx, dy] : {std::pair{0.0, 0.0}, {size, 0.0}, {size, size}, {0.0, size}})
                corners.insert(corners.end(), {x0 + dx, y0 + dy, z0 + dz});
        return corners;
    };
    struct limit_row
    {
        std::string name;
        carried what;
    };
    const auto floor = [height = z](double above) {
        return limit_row{"plane_create_with_norm_distance", {{0}, {0, 0, 1, height + above}}};
    };
    const auto region = [](const std::string& shape, const std::vector<double>& numbers) {
        return limit_row{"tcp_bounding_" + shape + "_set", {{0, 401700}, numbers}};
    };
    struct row
    {
        const char* name;
        double angle; ///< To which a joint turns, the one told or the first; 0: the TCP goes along a line.
        std::vector<limit_row> limits; ///< Set in the middle of it.
        std::uint32_t told;
        std::size_t joint = 0;
    };
    const row rows[] = {
        {"joint speed", 90, {{"joint_speed_max_set", {{0, 0}, {20}}}}, 303003},
        {"joint acceleration", 90, {{"joint_acc_max_set", {{0, 0}, {40}}}}, 303004},
        {"TCP speed", 0, {{"tcp_speed_max_set", {{0}, {100}}}}, 304006},
        {"TCP acceleration", 0, {{"tcp_acc_max_set", {{0}, {100}}}}, 304007},
        {"below", 0, {floor(-90)}, 303005},
        {"just not below", 0, {floor(-100)}, 0},
        {"elbow", -60, {{"plane_create_with_norm_origin", {{0}, {1, 0, 0, -100, 0, 0}}}}, 303005, 1},
        {"column alone", 60, {{"plane_create_with_norm_distance", {{0}, {0, 0, 1, 240}}}}, 0, 2},
        {"sphere", 0, {region("sphere", {x, y, z, 60})}, 303005},
        {"within a box", 0, {region("box", cube(x - 100, y - 100, z - 100, 200))}, 0},
        {"box", 0, {region("box", cube(x - 150, y - 150, z - 150, 180))}, 303005},
        {"cylinder", 0, {region("cylinder", {x, y, z - 500, 0, 0, 9, 50, 1000})}, 303005},
        {"cone", 0, {region("cone", {x, y, z - 120, 0, 0, 1, 120, 120})}, 303005},
        {"tool", 0, {floor(-120), {"tcp_bounding_box_set", {{0, 401701}, cube(-10, -10, 0, 30)}}}, 303005},
        {"round tool",
         0,
         {floor(-110), {"tcp_bounding_cylinder_set", {{0, 401701}, {0, 0, 0, 1, 0, 0, 20, 50}}}},
         303005},
    };
    for (const auto& row : rows)
    {
        for (const bool switched : {true, false})
        {
            SCOPED_TRACE(std::string(row.name) + (switched ? ", on" : ", off"));
            begin_anew();
            limit("switch_set", {{0, switched ? on : QORIN_SWITCH_OFF}});
            limit("tcp_bounding_shape_switch_set", {{0, on}});
            if (row.angle != 0)
                turn(row.joint, row.angle);
            else
                run_line(60, 80, -100, 250);
            pass(0.25);
            for (const auto& [name, what] : row.limits)
                limit(name, what);
            come_to_rest();
            const bool told = switched && row.told != 0;
            EXPECT_EQ(shown_violation(), told ? row.told : 0);
            EXPECT_EQ(state(), told ? QORIN_MOVING_STATE_EMG_STOPPED : QORIN_MOVING_STATE_IDLE);
            EXPECT_EQ(result("robot_servo_switch_set", {{0, on}}), told ? 104008u : 100000u);
            EXPECT_EQ(news(), told ? std::vector<told_event>({{row.told, 0, 0}}) : std::vector<told_event>());
            recover();
            EXPECT_EQ(shown_violation(), 0u);
            EXPECT_EQ(state(), QORIN_MOVING_STATE_IDLE);
        }
    }
}

TEST_F(safety_limit_test, an_arm_beyond_a_plane_can_only_be_moved_back)
{
    const double start = pose()[2];
    limit("switch_set", {{0, on}});
    limit("plane_create_with_norm_distance", {{0}, {0, 0, 2, start - 50}});
    run_line(0, 0, -80, 100);
    double where = start;
    for (; shown_violation() == 0; model.run_cycle())
        where = robot().commanded().tcp[2];
    EXPECT_NEAR(where, start - 50, 0.1) << "stopped in the cycle in which it crosses";
    come_to_rest();
    EXPECT_LT(pose()[2], start - 50);
    EXPECT_GT(pose()[2], start - 55) << "as fast as the joints can";
    for (const double way : {-10.0, 40.0})
    {
        recover();
        run_line(10, 0, way, 50);
        come_to_rest();
        EXPECT_EQ(shown_violation(), way < 0 ? 303005u : 0u);
    }
    EXPECT_GT(pose()[2], start - 50);
}

TEST_F(safety_limit_test, reduced_mode_slows_every_motion_down_and_lets_it_go_again)
{
    model.cbox().assign_redundant_input(0, 0, 1, QORIN_CBOX_IO_REDUNDANT_IN_REDUCED_MODE);
    struct row
    {
        const char* name;
        std::function<void()> move;
        double usual; ///< Of its speed, by itself.
        bool of_tcp;  ///< Which the limit of the TCP slows down, else that of the joints.
    };
    const row rows[] = {
        {"line", [&] { run_line(60, 200, -100, 80); }, 80, true},
        {"joints", [&] { turn(5, 200, 80); }, 80, false},
        {"arm with its TCP far out", [&] { turn(0, 120, 80); }, 353, true},
        {"velocity control",
         [&]
         {
             tell("robot_joint_target_velocity_set", {{0, 5}, {80}});
             tell("robot_velocity_control_switch_set", {{0, on}});
         },
         80, false},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        begin_anew();
        limit("velocity_in_reduced_mode_set", {{0}, {20, 25}});
        limit("switch_set", {{0, on}});
        const auto speed = [&] { return row.of_tcp ? tcp_speed() : std::abs(robot().commanded().speeds[5]); };
        const double reduced = row.of_tcp ? 20 : 25;
        row.move();
        pass(0.8);
        EXPECT_NEAR(speed(), row.usual, row.usual * 0.02);
        reduce(true);
        double before = speed();
        for (int cycle = 0; cycle < 1000; ++cycle)
        {
            model.run_cycle();
            EXPECT_LE(speed(), before * 1.0001) << cycle;
            EXPECT_GT(speed(), before - 8) << cycle << ": smoothly";
            before = speed();
            if (cycle > 510)
                ASSERT_NEAR(speed(), reduced, reduced * 0.001) << cycle;
        }
        reduce(false);
        pass(0.02);
        EXPECT_LT(speed(), 2 * reduced) << "not in an instant";
        pass(0.8);
        EXPECT_GT(speed(), row.usual * 0.8);
        reduce(true);
        tell("robot_pause", {{0}, {0.2}});
        pass(0.3);
        tell("robot_resume", {{0}});
        for (int cycle = 0; cycle < 400; ++cycle)
        {
            model.run_cycle();
            ASSERT_LT(speed(), reduced * 1.01) << cycle << ": from rest no faster";
        }
        reduce(false);
        tell("robot_stop_auto_time", {{0}});
        come_to_rest();
        EXPECT_EQ(shown_violation(), 0u);
    }
    begin_anew();
    limit("velocity_in_reduced_mode_set", {{0}, {0, 0}});
    reduce(true);
    turn(0, 10);
    pass(2);
    EXPECT_EQ(state(), QORIN_MOVING_STATE_MOVING);
    EXPECT_LT(angle(0), 0.1) << "a limit of 0 leaves a crawl";
    reduce(false);
    come_to_rest();
    EXPECT_EQ(angle(0), 10);
}

TEST_F(safety_limit_test, a_collision_is_what_exceeds_a_threshold_in_force)
{
    auto& cbox = model.cbox();
    cbox.assign_redundant_input(0, 0, 1, QORIN_CBOX_IO_REDUNDANT_IN_REDUCED_MODE);
    cbox.assign_redundant_output(0, 4, 5, QORIN_CBOX_IO_REDUNDANT_OUT_COLLISION_DETECTED);
    const auto output = [&] { return field<std::uint32_t>(13132 + 76) >> 4 & 3u; };
    struct row
    {
        std::uint32_t place, how_hard;
        bool detects, reduced;
        std::uint32_t told; ///< 0: nothing
        std::uint32_t where;
    };
    const row rows[] = {
        {2, 50, true, false, 0, 0},       {2, 51, true, false, 305002, 2},  {2, 51, false, false, 0, 0},
        {5, 13, true, false, 0, 0},       {5, 13, true, true, 305002, 5},   {7, 150, true, false, 0, 0},
        {7, 151, true, false, 305003, 1}, {11, 16, true, false, 305003, 5}, {6, 80, true, false, 0, 0},
        {6, 80, true, true, 305003, 6},
    };
    for (const auto& row : rows)
    {
        for (const bool moves : {true, false})
        {
            SCOPED_TRACE(std::to_string(row.place) + " " + std::to_string(row.how_hard) + (moves ? " moving" : ""));
            begin_anew();
            reduce(row.reduced);
            pass(0.002);
            static_cast<void>(news());
            tell("robot_collision_detection_switch_set", {{0, row.detects ? on : QORIN_SWITCH_OFF}});
            if (moves)
                turn(0, 30);
            pass(0.5);
            tell("ts_fault_inject", {{6, row.place, row.how_hard}});
            const double there = angle(0);
            come_to_rest();
            const bool hit = row.told != 0;
            EXPECT_EQ(news(), hit ? std::vector<told_event>({{row.told, 0, row.where}}) : std::vector<told_event>());
            EXPECT_EQ(shown_violation(), row.told);
            EXPECT_EQ(output(), hit ? 3u : 0u);
            EXPECT_EQ(state(), hit ? QORIN_MOVING_STATE_EMG_STOPPED : QORIN_MOVING_STATE_IDLE);
            EXPECT_EQ(robot().settings().switches.servo, on);
            if (moves)
                EXPECT_EQ(angle(0) < there + 10, hit);
            EXPECT_EQ(result("motion_command_is_runnable", {{make_turn(5)}}), hit ? 104008u : 100000u);
            tell("robot_collision_detection_clear", {{0}});
            EXPECT_EQ(shown_violation(), 0u);
            EXPECT_EQ(state(), QORIN_MOVING_STATE_IDLE);
            EXPECT_EQ(result("motion_command_is_runnable", {{make_turn(5)}}), 100000u);
            come_to_rest();
            EXPECT_EQ(output(), 0u);
        }
    }
    EXPECT_EQ(result("ts_fault_inject", {{6, 12, 100}}), 102007u);
    EXPECT_EQ(result("ts_fault_inject", {{6, 200, 100}}), 102000u);
}

TEST_F(safety_limit_test, a_joint_that_is_held_fast_stays_behind_until_that_is_noticed)
{
    tell("ts_fault_inject", {{7, 1, 1}});
    turn(1, 4);
    pass(2);
    EXPECT_EQ(state(), QORIN_MOVING_STATE_MOVING) << "near to its end, but it does not settle";
    tell("ts_fault_inject", {{7, 1, 0}});
    come_to_rest();
    EXPECT_EQ(angle(1), 4);
    tell("ts_fault_inject", {{7, 1, 1}});
    turn(1, 60);
    come_to_rest();
    EXPECT_EQ(news(), (std::vector<std::array<std::uint32_t, 3>>{{303008, 0, 1}}));
    EXPECT_EQ(shown_violation(), 303008u);
    EXPECT_EQ(angle(1), 4);
    EXPECT_EQ(robot().commanded().joints, robot().joint_angles()) << "there is nothing left to catch up with";
    tell("ts_fault_inject", {{7, 1, 0}});
    pass(0.1);
    EXPECT_EQ(angle(1), 4);
    tell("robot_reset", {{0}});
    tell("robot_servo_switch_set", {{0, on}});
    turn(1, 5);
    come_to_rest();
    EXPECT_EQ(angle(1), 5);
    EXPECT_EQ(result("ts_fault_inject", {{7, 6, 1}}), 103001u);
    EXPECT_EQ(result("ts_fault_inject", {{7, 1, 2}}), 101005u);
}

TEST_F(safety_limit_test, a_mitigated_collision_lets_the_arm_back_off)
{
    tell("robot_collision_detection_switch_set", {{0, on}});
    tell("robot_collision_mitigation_switch_set", {{0, on}});
    turn(0, 90);
    pass(1);
    tell("ts_fault_inject", {{6, 0, 99}});
    const double hit = angle(0);
    EXPECT_EQ(state(), QORIN_MOVING_STATE_EMG_STOPPING);
    EXPECT_EQ(result("robot_collision_detection_clear", {{0}}), 102005u);
    EXPECT_EQ(news(), (std::vector<told_event>{{305002, 0, 0}}));
    come_to_rest();
    EXPECT_EQ(news(), (std::vector<told_event>{{305004, 0, 0}}));
    EXPECT_NEAR(angle(0), hit - 5, 0.5) << "a tenth of a second back at 50 degrees a second";

    tell("robot_reset", {{0}});
    turn(0, 90);
    pass(1);
    tell("ts_fault_inject", {{6, 0, 99}});
    pass(0.2);
    const double where = angle(0);
    tell("robot_servo_switch_set", {{0, QORIN_SWITCH_OFF}});
    come_to_rest();
    EXPECT_NEAR(angle(0), where, 1) << "not without power";

    begin_anew();
    tell("robot_collision_detection_switch_set", {{0, on}});
    model.world().set("force_torque 0", std::vector{0.0, 0.0, 160.0, 0.0, 0.0, 0.0});
    EXPECT_FALSE(model.is_idle());
    for (int time = 0; time < 2; ++time)
    {
        come_to_rest();
        EXPECT_EQ(news(), (std::vector<told_event>{{305003, 0, 2}})) << "as long as it presses";
        tell("robot_collision_detection_clear", {{0}});
    }
}
} // namespace
