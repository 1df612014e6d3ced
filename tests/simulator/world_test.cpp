#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/simulator/robot_commander.h"

namespace
{
using values = std::vector<double>;

struct world_test : testing::Test, commanded_box
{
    cbox_simulator::world& world = model.world();

    void run(int cycles)
    {
        for (int i = 0; i < cycles; ++i)
            model.run_cycle();
    }

    /// Subgroup, sender and the first two parameters of each event since the last time.
    std::vector<std::array<std::uint32_t, 4>> news()
    {
        std::vector<std::array<std::uint32_t, 4>> told;
        for (const auto& event : model.events().take())
            told.push_back({event.subgroup, event.sender_id, static_cast<std::uint32_t>(event.parameter[0]),
                            static_cast<std::uint32_t>(event.parameter[1])});
        return told;
    }

    std::string refusal(const std::string& point, const values& given)
    {
        const auto before = frame();
        try
        {
            world.set(point, given);
        }
        catch (const std::invalid_argument& error)
        {
            EXPECT_EQ(frame(), before) << point;
            return error.what();
        }
        return "";
    }
};

TEST_F(world_test, every_input_takes_a_value_and_has_it_and_a_box_without_robots_has_none_of_theirs)
{
    const auto set_all = [&]
    {
        std::size_t inputs = 0;
        std::vector<std::string> points;
        world.for_each_input([&](const std::string& point, const values&, bool) { points.push_back(point); });
        for (const auto& point : points)
        {
            if (point.starts_with("emergency_button") && point != "emergency_button 0")
                continue; // only with a mobile base
            values given(world.get(point).size(), 1);
            world.set(point, given);
            EXPECT_EQ(world.get(point), given) << point;
            ++inputs;
        }
        return inputs;
    };
    world.for_each_input([](const std::string& point, const values&, bool touched) { EXPECT_FALSE(touched) << point; });
    const auto without = set_all();
    create(401510);
    // Four digital and two analog inputs of the tool, what touches it, six drives of two values each.
    EXPECT_EQ(set_all(), without + 4 + 2 + 3 + 12);
}

TEST_F(world_test, shows_in_the_frame)
{
    create(401510);
    model.robots().find(0)->settings().ft_sensor.active = QORIN_SWITCH_ON;
    model.robots().find(0)->settings().force.coordinate = QORIN_REF_COORDINATE_TCP;
    world.set("digital_input 1 5", values{1});
    world.set("analog_input 0 1", values{2.5});
    world.set("force_torque 0", values{1, 2, 3, 4, 5, 6});
    world.set("rs485_rx", values{7, 255});
    EXPECT_EQ(model.cbox().all_io_modules()[1].digital_input, 1u << 5);
    EXPECT_EQ(model.cbox().all_io_modules()[0].analog_input[1], 2.5);
    EXPECT_EQ(model.cbox().rs485_rx_data()[1], 255);
    const std::array<double, 6> measured{1, 2, 3, 4, 5, 6};
    EXPECT_EQ((field<std::array<double, 6>>(21472 + 8)), measured);
    EXPECT_EQ((field<std::array<double, 6>>(2608 + 1264)), measured);
}

TEST_F(world_test, refuses_with_a_line_that_tells_why_and_changes_nothing)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    world.connect("digital_output 0 1", "digital_input 0 1");
    const struct
    {
        std::string point;
        values given;
        std::string reason;
    } cases[] = {
        {"", {1}, "a point is missing"},
        {"digtal_input 0 1", {1}, "no kind of point"},
        {"digital_input", {1}, "module(0-1) channel(0-15)"},
        {"digital_input 0 16", {1}, "is no point"},
        {"digital_input 2 0", {1}, "is no point"},
        {"digital_input 0 -1", {1}, "is no point"},
        {"digital_input 0 1 2", {1}, "is no point"},
        {"digital_input 0 99999999999", {1}, "is no point"},
        {"digital_input 0 0", {2}, "takes 0 or 1"},
        {"digital_input 0 0", {0.5}, "takes 0 or 1"},
        {"digital_input 0 0", {1, 1}, "takes 0 or 1"},
        {"digital_input 0 0", {}, "takes 0 or 1"},
        {"analog_input 0 0", {nan}, "takes a finite number"},
        {"input_integer 3", {4294967296.0}, "from 0 to 4294967295"},
        {"rs485_rx", {256}, "bytes from 0 to 255"},
        {"rs485_rx", values(65, 0), "1 to 64 bytes"},
        {"force_torque 0", {0, 0, 0, 0, 0}, "6 finite numbers"},
        {"contact_plane 0", {0, 0, 1, 0, 5, 0}, "no robot 0"},
        {"force_torque 0", {0, 0, 0, 0, 0, 0}, "no robot 0"},
        {"digital_output 0 0", {1}, "is an output"},
        {"digital_input 0 1", {1}, "is wired to digital_output 0 1"},
        {"emergency_button 3", {1}, "cannot be set now"},
    };
    for (const auto& [point, given, reason] : cases)
        EXPECT_NE(refusal(point, given).find(reason), std::string::npos) << point << ": " << refusal(point, given);
    EXPECT_THROW(world.connect("digital_input 0 0", "digital_input 0 2"), std::invalid_argument);
    EXPECT_THROW(world.connect("digital_output 0 0", "digital_output 0 2"), std::invalid_argument);
    EXPECT_THROW(world.connect("digital_output 0 0", "analog_input 0 0"), std::invalid_argument);
    EXPECT_THROW(world.connect("rs485_tx", "low_data_rx 0"), std::invalid_argument);
    EXPECT_THROW(world.connect("digital_output 0 0", "digital_input 0 1"), std::invalid_argument);
    EXPECT_THROW(world.disconnect("digital_input 0 7"), std::invalid_argument);
    EXPECT_THROW(world.name("digital_input", "digital_input 0 7"), std::invalid_argument);
    EXPECT_THROW(world.name("two words", "digital_input 0 7"), std::invalid_argument);
}

TEST_F(world_test, a_wired_input_follows_its_output_in_the_next_cycle)
{
    world.name("gripper_closed", "digital_input 0 5");
    world.connect("digital_output 0 2", "gripper_closed");
    world.connect("rs485_tx", "rs485_rx");
    world.connect("analog_output 1 0", "analog_input 1 1");
    EXPECT_TRUE(model.is_idle());
    model.cbox().set_digital_output(0, 2, 1);
    model.cbox().set_analog_output(1, 0, 3.5);
    model.cbox().set_rs485_tx_data(2, {8, 9});
    EXPECT_FALSE(model.is_idle());
    run(1);
    EXPECT_TRUE(model.is_idle());
    EXPECT_EQ(world.get("gripper_closed"), values{1});
    EXPECT_EQ(world.get("analog_input 1 1"), values{3.5});
    EXPECT_EQ(model.cbox().rs485_rx_data()[1], 9);
    world.disconnect("gripper_closed");
    world.set("gripper_closed", values{0});
    run(1);
    EXPECT_EQ(world.get("gripper_closed"), values{0});
}

TEST_F(world_test, redundant_lines_act_and_tell_once)
{
    create(401510);
    auto& cbox = model.cbox();
    cbox.assign_redundant_input(0, 0, 1, QORIN_CBOX_IO_REDUNDANT_IN_REDUCED_MODE);
    cbox.assign_redundant_input(0, 2, 3, QORIN_CBOX_IO_REDUNDANT_IN_EMERGENCY_STOP);
    cbox.assign_redundant_output(0, 4, 5, QORIN_CBOX_IO_REDUNDANT_OUT_REDUCED_MODE);
    cbox.assign_safety_input(0, 0, 1, QORIN_SAFETY_MODULE_IO_REDUNDANT_IN_PAUSE_RESUME);
    cbox.assign_safety_input(0, 2, 3, QORIN_SAFETY_MODULE_IO_REDUNDANT_IN_ENABLE_SWITCH);
    static_cast<void>(news());
    const auto* robot = model.robots().find(0);

    // Each row sets one line, lets a moment pass, and names what is told.
    const struct
    {
        std::string line;
        double value;
        std::uint32_t told;
    } rows[] = {
        {"redundant_input 0 0", 1, 306002}, {"redundant_input 0 1", 1, 0}, {"redundant_input 0 0", 0, 0},
        {"redundant_input 0 1", 0, 306003}, {"safety_input 0", 1, 306006}, {"safety_input 1", 1, 0},
        {"safety_input 0", 0, 0},           {"safety_input 1", 0, 306007}, {"safety_input 2", 1, 0},
        {"safety_input 3", 1, 306004},      {"safety_input 2", 0, 306005}, {"safety_input 3", 0, 0},
    };
    for (const auto& [line, value, told] : rows)
    {
        world.set(line, values{value});
        EXPECT_FALSE(model.is_idle() && told != 0) << line;
        run(20);
        const auto events = news();
        ASSERT_EQ(events.size(), told != 0 ? 1 : 0) << line;
        if (told != 0)
            EXPECT_EQ(events.front()[0], told) << line;
        const bool reduced = told == 306002 || (line == "redundant_input 0 1" && value == 1);
        if (reduced)
            EXPECT_TRUE(robot->settings().reduced_mode.in_force);
        if (reduced)
            EXPECT_EQ(world.get("redundant_output 0 4"), values{1});
    }
    EXPECT_EQ(world.get("redundant_output 0 4"), values{0});
    EXPECT_TRUE(model.is_idle());

    world.set("redundant_input 0 3", values{1});
    run(1);
    EXPECT_EQ(news().front()[0], 307003u); // the emergency circuit opens as by the button
    EXPECT_EQ(cbox.emergency_button(), QORIN_BUTTON_STATE_PUSHED);
    EXPECT_FALSE(model.is_idle()) << "the difference of the lines is being measured";
    run(99);
    EXPECT_TRUE(news().empty());
    run(300);
    using event = std::array<std::uint32_t, 4>;
    EXPECT_EQ(news(), (std::vector<event>{{306008, 0, 2, 3}}));
    EXPECT_TRUE(model.is_idle());
    world.set("redundant_input 0 3", values{0});
    run(1);
    EXPECT_EQ(cbox.emergency_button(), QORIN_BUTTON_STATE_RELEASED);
}

TEST_F(world_test, a_safeguard_with_a_reset_button_waits_for_it)
{
    model.cbox().assign_safety_input(0, 0, 1, QORIN_SAFETY_MODULE_IO_REDUNDANT_IN_PAUSE_RESUME);
    model.cbox().assign_redundant_input(0, 0, 1, QORIN_CBOX_IO_REDUNDANT_IN_SAFEGUARD_RESET);
    static_cast<void>(news());
    const auto set = [&](const std::string& kind, double value)
    {
        world.set(kind + "0", values{value});
        world.set(kind + "1", values{value});
        run(1);
        return news();
    };
    EXPECT_EQ(set("safety_input ", 1).at(0)[0], 306006u);
    EXPECT_TRUE(set("redundant_input 0 ", 1).empty()) << "pressed while it is open";
    EXPECT_TRUE(set("safety_input ", 0).empty());
    EXPECT_TRUE(set("redundant_input 0 ", 0).empty());
    EXPECT_EQ(set("redundant_input 0 ", 1).at(0)[0], 306007u);
}

/// Robots that move while the world acts on them.
struct world_with_robots_test : robot_commander
{
    cbox_simulator::world& world = model.world();
    const cbox_simulator::robot_state& robot = *model.robots().find(0);

    std::uint32_t move(double first_angle)
    {
        return result("just_robot_joint_move", {{0, 6}, {30}, {}, {{first_angle, 0, 90, 0, 90, 0}}});
    }
};

TEST_F(world_with_robots_test, a_hand_guides_the_arm_in_direct_teaching_alone)
{
    world.set("hand 0", values{10, 0, 0, 0, 0, -5});
    pass(0.5);
    EXPECT_EQ(angle(0), 0);
    EXPECT_TRUE(model.is_idle());
    ASSERT_EQ(result("robot_direct_teaching_switch_set", {{0, QORIN_SWITCH_ON}}), QORIN_API_RESULT_OK);
    EXPECT_FALSE(model.is_idle());
    pass(1);
    EXPECT_NEAR(angle(0), 10, 1);
    EXPECT_NEAR(angle(5), -5, 1);
    EXPECT_EQ(robot.moving_state(), QORIN_MOVING_STATE_IDLE);
    EXPECT_EQ(move(30), 104008u);
    world.set("hand 0", values{0, 0, 0, 0, 0, 0});
    come_to_rest();
    const double there = angle(0);
    pass(0.1);
    EXPECT_EQ(angle(0), there);
    EXPECT_EQ(result("robot_direct_teaching_switch_set", {{0, QORIN_SWITCH_OFF}}), QORIN_API_RESULT_OK);
    EXPECT_EQ(move(30), QORIN_API_RESULT_OK);
}

TEST_F(world_with_robots_test, an_open_safeguard_pauses_a_motion_that_goes_on_to_its_end_when_it_closes)
{
    model.cbox().assign_safety_input(0, 0, 1, QORIN_SAFETY_MODULE_IO_REDUNDANT_IN_PAUSE_RESUME);
    ASSERT_EQ(move(30), QORIN_API_RESULT_OK);
    pass(0.4);
    EXPECT_GT(angle(0), 0);
    world.set("safety_input 0", values{1});
    pass(2);
    EXPECT_EQ(robot.moving_state(), QORIN_MOVING_STATE_PAUSED);
    EXPECT_LT(angle(0), 30);
    result("robot_resume", {{0}});
    pass(1);
    EXPECT_EQ(robot.moving_state(), QORIN_MOVING_STATE_PAUSED) << "nobody can go on while it is open";
    world.set("safety_input 0", values{0});
    come_to_rest();
    EXPECT_NEAR(angle(0), 30, 1e-6);
}
} // namespace
