// What a client sees of the life of a motion command: states and events in their order.
#include <functional>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "tests/simulator/robot_commander.h"

namespace
{
const std::map<std::uint32_t, std::string> names = {
    {400900, "idle"},          {400901, "MOVING"},        {400902, "PAUSING"},      {400903, "PAUSED"},
    {400904, "STOPPING"},      {400905, "STOPPED"},       {400906, "EMG_STOPPING"}, {400907, "EMG_STOPPED"},
    {302002, "started"},       {302003, "almost"},        {302004, "profile"},      {302005, "settled"},
    {302006, "pause_profile"}, {302007, "pause_settled"}, {302008, "stop_profile"}, {302009, "stop_settled"},
    {303002, "joint_position"}};

struct motion_life : robot_commander
{
    /// A command that turns joint 0, by 20 degrees within about a second unless it is told to go farther.
    std::uint32_t add(bool blends = false, const std::string& also_on = {}, double angle = 20)
    {
        const auto id = ids.emplace_back(make_turn(angle * static_cast<double>(ids.size() + 1)));
        if (blends)
        {
            result("motion_command_blending_motion_mode_set", {{id, 400100}});
            result("motion_command_radius_for_blending_set", {{id}, {5}});
        }
        if (!also_on.empty())
            result("motion_command_" + also_on + "_set", {{id, 400100}});
        EXPECT_EQ(result("motion_command_queue_add", {{id}}), 100000u);
        return id;
    }

    void flush() { EXPECT_EQ(result("motion_command_queue_flush"), 100000u); }

    void live(double seconds)
    {
        for (int cycle = 0; cycle < std::lround(seconds * 1000); ++cycle)
        {
            see();
            model.run_cycle();
        }
        see();
    }

    /// The frame comes first.
    void see()
    {
        const auto* robot = model.robots().find(0);
        if (robot && robot->moving_state() != state)
        {
            state = robot->moving_state();
            seen += names.at(state) + ' ';
        }
        for (const auto& event : model.events().take())
        {
            if (event.group != 302000 && event.group != 303000)
                continue;
            const auto place = std::ranges::find(ids, event.sender_id);
            const auto number = place == ids.end() ? 0 : place - ids.begin() + 1;
            seen += std::to_string(number) + ':' + names.at(event.subgroup) + ' ';
        }
    }

    void begin_anew()
    {
        model.cbox().set_emergency_button(QORIN_BUTTON_STATE_RELEASED);
        model.set_ecat_link(true);
        model.take_control(1);
        model.motions().clear();
        destroy(0);
        pass(2);
        create(401510);
        model.robots().set_servo(0, QORIN_SWITCH_ON);
        static_cast<void>(model.events().take());
        ids.clear();
        state = 400900;
        seen.clear();
    }

    std::vector<std::uint32_t> ids;
    std::uint32_t state = 400900;
    std::string seen;
};

TEST_F(motion_life, has_its_events_and_states_in_their_order)
{
    const auto tell = [this](const char* name, carried what = {{0}})
    { EXPECT_EQ(result(name, what), 100000u) << name; };
    struct row
    {
        const char* name;
        std::function<void()> live;
        const char* seen;
    };
    const row rows[] = {
        {"run", [&] { add(), flush(), live(5); }, "MOVING 1:started 1:profile idle 1:settled "},
        {"one after the other", [&] { add(), add(), flush(), live(5); },
         "MOVING 1:started 1:profile 1:settled 2:started 2:profile idle 2:settled "},
        {"blended", [&] { add(true), add(), flush(), live(5); },
         "MOVING 1:started 1:almost 2:started 1:profile 2:profile idle 2:settled "},
        {"blended, with nothing to blend into", [&] { add(true), flush(), live(5); },
         "MOVING 1:started 1:almost 1:profile idle 1:settled "},
        {"blended, told to stop", [&] { add(true, "blending_stop_mode"), add(), flush(), live(5); },
         "MOVING 1:started 1:almost 1:profile 1:settled 2:started 2:profile idle 2:settled "},
        {"blended, started by itself", [&] { add(true, "blending_auto_start"), live(5); },
         "MOVING 1:started 1:almost 1:profile idle 1:settled "},
        {"blended into one that comes while it runs",
         [&] { add(true, {}, 60), flush(), live(0.3), add(false, {}, 60), flush(), live(5); },
         "MOVING 1:started 1:almost 2:started 1:profile 2:profile idle 2:settled "},
        {"followed by one that comes too late to blend",
         [&] { add(true), flush(), live(0.8), add(), flush(), live(5); },
         "MOVING 1:started 1:almost 1:profile 1:settled 2:started 2:profile idle 2:settled "},
        {"paused and resumed",
         [&]
         {
             add(), flush(), live(0.3);
             tell("robot_pause_auto_time"), live(1);
             tell("robot_resume"), live(5);
         },
         "MOVING 1:started PAUSING 1:pause_profile PAUSED 1:pause_settled MOVING 1:profile idle 1:settled "},
        {"paused and stopped",
         [&]
         {
             add(), flush(), live(0.3);
             tell("robot_pause", {{0}, {0.2}}), live(1);
             tell("robot_stop", {{0}, {0.2}}), live(5);
         },
         "MOVING 1:started PAUSING 1:pause_profile PAUSED 1:pause_settled STOPPING 1:stop_profile STOPPED "
         "1:stop_settled "},
        {"paused between two",
         [&]
         {
             add(), add(), flush(), live(1.033);
             tell("robot_pause_auto_time"), live(1);
             tell("robot_resume"), live(5);
         },
         "MOVING 1:started 1:profile PAUSING 1:settled 2:pause_profile PAUSED 2:pause_settled MOVING 2:started "
         "2:profile idle 2:settled "},
        {"stopped in an emergency, and reset",
         [&]
         {
             add(), flush(), live(0.3);
             tell("robot_emergency_stop", {{0}, {0.1}});
             EXPECT_EQ(result("robot_reset", {{0}}), 102005u);
             live(1);
             EXPECT_EQ(result("motion_command_is_runnable", {{ids[0]}}), 104008u);
             tell("robot_reset"), live(1);
             EXPECT_EQ(result("motion_command_is_runnable", {{ids[0]}}), 100000u);
         },
         "MOVING 1:started EMG_STOPPING 1:stop_profile EMG_STOPPED 1:stop_settled idle "},
        {"robot destroyed",
         [&]
         {
             add(), flush(), live(0.3);
             destroy(0);
             EXPECT_TRUE(model.robots().exists(0)) << "until it stands";
             live(5);
             EXPECT_FALSE(model.robots().exists(0));
         },
         "MOVING 1:started STOPPING 1:stop_profile 1:stop_settled "},
        {"beyond a range that was cut down on its way",
         [&]
         {
             add(), flush(), live(0.5);
             tell("robot_safety_limit_joint_angle_set", {{0, 0}, {-30, 12}}), live(5);
             EXPECT_LE(angle(0), 12);
             tell("robot_reset"), live(1);
         },
         "MOVING 1:started EMG_STOPPING 0:joint_position 1:stop_profile EMG_STOPPED 1:stop_settled idle "},
        {"held back by its start condition",
         [&]
         {
             const auto id = add();
             result("motion_command_queue_clear");
             result("motion_command_start_condition_set", {{id, 402400, 3, 1}});
             result("motion_command_queue_add", {{id}}), flush(), live(3);
             seen += "input ";
             model.cbox().set_digital_input(0, 3, 1);
             live(5);
             model.cbox().set_digital_input(0, 3, 0);
         },
         "MOVING input 1:started 1:profile idle 1:settled "},
        {"stopped while it is held back",
         [&]
         {
             const auto id = add();
             result("motion_command_queue_clear");
             result("motion_command_start_condition_set", {{id, 402400, 3, 1}});
             result("motion_command_queue_add", {{id}}), flush(), live(1);
             tell("robot_stop_auto_time"), live(1);
         },
         "MOVING STOPPING 1:stop_profile STOPPED 1:stop_settled "},
        {"dropped while another runs",
         [&] { add(), add(), flush(), live(0.3), tell("motion_command_queue_clear"), live(5); },
         "MOVING 1:started 1:profile idle 1:settled "},
        {"in one request",
         [&] {
             tell("just_robot_joint_move", {{0, 6}, {50}, {}, {{9, 0, 90, 0, 90, 0}}}), live(5);
         },
         "MOVING 0:started 0:profile idle 0:settled "},
        {"two in one request each that blend",
         [&]
         {
             tell("just_robot_blending_joint_move", {{0, 6}, {50}, {}, {{20, 0, 90, 0, 90, 0}}});
             tell("just_robot_blending_joint_move", {{0, 6}, {50}, {}, {{20, 9, 90, 0, 90, 0}}});
             live(5);
         },
         "MOVING 0:started 0:almost 0:started 0:almost 0:profile 0:profile idle 0:settled "},
        {"jog",
         [&] {
             tell("robot_jog_joint", {{0, 0, 400400}, {20, 50}}), live(1), tell("robot_stop_auto_time"), live(5);
         },
         "MOVING STOPPING 0:stop_profile STOPPED 0:stop_settled "},
        {"jog to the end of a range",
         [&]
         {
             tell("robot_jog_joint", {{0, 5, 400400}, {200, 900}}), live(8);
             EXPECT_EQ(angle(5), 360);
         },
         "MOVING idle "},
        {"refused",
         [&]
         {
             EXPECT_EQ(result("just_robot_joint_move", {{0, 6}, {50}, {}, {{999, 0, 90, 0, 90, 0}}}), 104010u);
             live(1);
         },
         ""},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        begin_anew();
        row.live();
        EXPECT_EQ(seen, row.seen);
    }
}

TEST_F(motion_life, is_cut_short_by_whatever_takes_power_or_control)
{
    struct row
    {
        const char* name;
        std::function<void()> cut_short;
        bool emergency;
        bool power;
    };
    const row rows[] = {
        {"stopped", [&] { result("robot_stop_auto_time", {{0}}); }, false, true},
        {"emergency button", [&] { model.cbox().set_emergency_button(QORIN_BUTTON_STATE_PUSHED); }, true, false},
        {"link lost", [&] { model.set_ecat_link(false); }, true, false},
        {"servo off",
         [&] {
             result("robot_servo_switch_set", {{0, 400101}});
         },
         false, false},
        {"control released", [&] { model.release_control(1); }, false, true},
        {"client gone", [&] { model.forget_client(1); }, false, true},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        begin_anew();
        add(), add(), flush(), live(0.3);
        row.cut_short();
        live(5);
        const std::string end = row.emergency ? "EMG_STOP" : "STOP";
        EXPECT_EQ(seen, "MOVING 1:started " + end + "PING 1:stop_profile " + end + "PED 1:stop_settled ");
        EXPECT_EQ(field<std::uint32_t>(2608 + 20), row.power ? 400100u : 400101u);
    }
}
} // namespace
