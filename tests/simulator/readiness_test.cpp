// What stands in the way of every source of motion, and who may send commands at all.
#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "tests/simulator/robot_commander.h"

namespace
{
struct readiness_test : robot_commander
{
    std::uint32_t switch_of(std::size_t offset) const { return field<std::uint32_t>(2608 + offset); }
    static constexpr std::size_t servo = 20, profiler = 48, chaser = 56;
};

/// Something that moves robot 0, and its answers when the robot is not ready.
struct source_row
{
    std::string name;
    carried what;
    std::uint32_t not_ready;
    std::uint32_t link_lost = 102035;
};

const std::vector<double> some_way(6, 1.0);

const source_row sources[] = {
    {"robot_joint_chaser_state_set", {{0, 400100}}, 104008},
    {"robot_ext_profiler_switch_set", {{0, 400100}}, 104008},
    {"robot_ext_move_switch_set", {{0, 400100}}, 104008},
    {"robot_ext_move_joint", {{0, 6}, {1}, {}, {some_way}}, 104008},
    {"robot_ext_move_pos_ort_euler_add", {{0, 401801}, {253, 0, 383, 180, 0, 0, 7}}, 104008},
    {"robot_ext_move_pos_ort_quat_add", {{0, 401801}, {253, 0, 383, 1, 0, 0, 0, 7}}, 104008},
    {"robot_jog_joint", {{0, 1, 400400}, {1, 1}}, 102019},
    {"robot_jog_tcp_position", {{0, 401700}, {1, 1, 1, 1, 1}}, 102019},
    {"robot_jog_tcp_orientation_y", {{0, 401700, 400400}, {1, 1}}, 102019},
    {"robot_velocity_control_switch_set", {{0, 400100}}, 104008},
    {"robot_direct_teaching_switch_set", {{0, 400100}}, 104008},
    {"robot_direct_teaching_force_to_switch_on", {{0}}, 104008},
    {"robot_force_ctrl_switch_set", {{0, 400100}}, 104008},
    {"robot_conveyor_mode_start", {{0}}, 104008},
    {"robot_dynamics_calibration_start", {{0}}, 102040},
    {"robot_joint_dynamics_calibration_start", {{0, 1}}, 102040},
    {"robot_dynamics_dry_run_start", {{0, 1}, {1}}, 102041},
    {"just_robot_joint_move", {{0, 6}, {1}, {}, {{5, 0, 90, 0, 90, 0}}}, 104008, 104008},
    {"robot_recording_playback", {{0, 1}}, 104008, 104008},
};

TEST_F(readiness_test, every_source_of_motion_is_refused_while_the_robot_is_not_ready)
{
    const auto press = [this](QORIN_BUTTON_STATE state) { model.cbox().set_emergency_button(state); };
    struct obstacle
    {
        std::string name;
        std::function<void(bool stands)> set;
    };
    const obstacle obstacles[] = {
        {"servo", [&](bool on) { model.robots().set_servo(0, on ? QORIN_SWITCH_OFF : QORIN_SWITCH_ON); }},
        {"button", [&](bool on) { press(on ? QORIN_BUTTON_STATE_PUSHED : QORIN_BUTTON_STATE_RELEASED); }},
        {"safety", [&](bool on) { model.robots().find(0)->set_safety_violation(on); }},
        {"mode",
         [&](bool on)
         {
             model.robots().find(0)->settings().control_mode =
                 on ? QORIN_DRIVE_CONTROL_MODE_HOMING : QORIN_DRIVE_CONTROL_MODE_POSITION;
         }},
        {"link", [&](bool on) { model.set_ecat_link(!on); }},
    };
    const std::set<std::string> own_mode{"robot_velocity_control_switch_set", "robot_direct_teaching_switch_set",
                                         "robot_direct_teaching_force_to_switch_on"};
    ask("robot_recording_create", {{0}});
    ask("robot_recording_start", {{0}});
    ask("robot_recording_end", {{0, 1}});
    for (const auto& obstacle : obstacles)
    {
        SCOPED_TRACE(obstacle.name);
        obstacle.set(true);
        const auto before = field<std::array<char, 4728>>(2608);
        for (const auto& source : sources)
        {
            if (obstacle.name != "mode" || !own_mode.contains(source.name))
                EXPECT_EQ(result(source.name, source.what),
                          obstacle.name == "link" ? source.link_lost : source.not_ready)
                    << source.name;
        }
        EXPECT_EQ((field<std::array<char, 4728>>(2608)), before);
        obstacle.set(false);
    }
    for (const auto& source : sources)
    {
        model.motions().forget_robot(0);
        *this->model.robots().find(0) = cbox_simulator::robot_state(model.robots().find(0)->arm());
        model.robots().set_servo(0, QORIN_SWITCH_ON);
        const auto answer = result(source.name, source.what);
        EXPECT_EQ(answer, source.name == "robot_recording_playback" ? 102020u : 100000u) << source.name;
    }
}

TEST_F(readiness_test, what_streams_to_a_robot_ends_with_its_readiness_its_stop_and_the_control)
{
    const auto start = [&]
    {
        model.cbox().set_emergency_button(QORIN_BUTTON_STATE_RELEASED);
        model.set_ecat_link(true);
        model.take_control(1);
        model.robots().find(0)->set_safety_violation(false);
        EXPECT_EQ(result("robot_servo_switch_set", {{0, 400100}}), 100000u);
        EXPECT_EQ(result("robot_ext_profiler_switch_set", {{0, 400100}}), 100000u);
        EXPECT_EQ(result("robot_joint_chaser_state_set", {{0, 400100}}), 100000u);
        EXPECT_TRUE(model.chase(0, {50, 0, 90, 0, 90, 0}));
        pass(0.001);
    };
    struct end
    {
        const char* name; ///< A command's, unless something else brings it about.
        carried what;
        std::function<void()> bring_about{};
        bool power = true;
    };
    const end ends[] = {
        {"robot_stop", {{0}, {0.1}}},
        {"robot_pause_auto_time", {{0}}},
        {"robot_emergency_stop", {{0}, {0.1}}},
        {"robot_servo_switch_set", {{0, 400101}}, {}, false},
        {"button", {}, [&] { model.cbox().set_emergency_button(QORIN_BUTTON_STATE_PUSHED); }, false},
        {"link", {}, [&] { model.set_ecat_link(false); }, false},
        {"safety", {}, [&] { model.robots().find(0)->set_safety_violation(true); }, false},
        {"mode", {}, [&] { model.robots().find(0)->settings().control_mode = QORIN_DRIVE_CONTROL_MODE_HOMING; }},
        {"release", {}, [&] { model.release_control(1); }},
        {"owner gone, and another at once",
         {},
         [&]
         {
             model.forget_client(1);
             model.take_control(2);
             model.release_control(2);
         }},
    };
    for (const auto& end : ends)
    {
        SCOPED_TRACE(end.name);
        start();
        const auto there = angle(0);
        EXPECT_GT(there, 0);
        if (end.bring_about)
            end.bring_about();
        else
            EXPECT_EQ(result(end.name, end.what), 100000u);
        pass(0.5);
        EXPECT_TRUE(model.is_idle());
        EXPECT_GE(angle(0), there);
        EXPECT_LT(angle(0), 10) << "on the way to 50";
        EXPECT_EQ(switch_of(chaser), 400101u);
        EXPECT_EQ(switch_of(profiler), 400101u);
        EXPECT_EQ(switch_of(servo), end.power ? 400100u : 400101u);
        EXPECT_FALSE(model.chase(0, {60, 0, 90, 0, 90, 0}));
        model.take_control(1);
        result("robot_reset", {{0}});
        model.robots().find(0)->settings().control_mode = QORIN_DRIVE_CONTROL_MODE_POSITION;
        model.robots().set_joint_angles(0, {0, 0, 90, 0, 90, 0});
    }
}

TEST_F(readiness_test, power_is_refused_and_ranges_hold_for_every_source)
{
    for (const std::uint32_t value : {400101u, 400100u})
    {
        model.cbox().set_emergency_button(QORIN_BUTTON_STATE_PUSHED);
        EXPECT_EQ(result("robot_servo_switch_set", {{0, value}}), value == 400100 ? 104008u : 100000u);
        model.cbox().set_emergency_button(QORIN_BUTTON_STATE_RELEASED);
    }
    model.robots().find(0)->set_safety_violation(true);
    EXPECT_EQ(field<std::uint32_t>(2608 + 112), 1u);
    EXPECT_EQ(result("robot_servo_switch_set", {{0, 400100}}), 104008u);
    EXPECT_EQ(result("robot_reset", {{0}}), 100000u);
    EXPECT_EQ(field<std::uint32_t>(2608 + 112), 0u);
    EXPECT_EQ(result("robot_servo_switch_set", {{0, 400100}}), 100000u);

    EXPECT_EQ(result("robot_safety_limit_joint_angle_set", {{0, 0}, {-10, 10}}), 100000u);
    EXPECT_EQ(result("just_robot_joint_move", {{0, 6}, {1}, {}, {{11, 0, 90, 0, 90, 0}}}), 104010u);
    EXPECT_EQ(result("robot_joint_chaser_state_set", {{0, 400100}}), 100000u);
    EXPECT_TRUE(model.chase(0, {90, 0, 90, 0, 90, 0}));
    pass(1);
    EXPECT_EQ(angle(0), 10);
    EXPECT_EQ(result("robot_joint_chaser_state_set", {{0, 400101}}), 100000u);
    pass(0.005);
    EXPECT_EQ(result("robot_ext_profiler_joint_add", {{0, 6}, {}, {}, {{-40, 0, 90, 0, 90, 0}}}), 100000u);
    EXPECT_EQ(result("robot_ext_profiler_switch_set", {{0, 400100}}), 100000u);
    pass(0.03);
    EXPECT_EQ(angle(0), 10) << "a point beyond the range is passed over";
}

TEST_F(readiness_test, a_command_without_the_control_is_refused_but_those_that_come_before_or_beside_it)
{
    const std::set<std::string_view> open{"qorin_gen_system_create",      "qorin_gen_multi_robot_system_create",
                                          "qorin_system_destroy",         "qorin_system_control_take",
                                          "qorin_system_control_release", "qorin_system_controllable_get",
                                          "qorin_system_control_sw_exit"};
    model.release_control(1);
    for (const auto& row : commands.rows())
    {
        const bool is_open = open.contains(row.wire_name) || row.wire_name.starts_with("qorin_ts_");
        if (!is_open)
            EXPECT_EQ(call(raw::request(std::string(row.wire_name))).result, 100003u) << row.wire_name;
        else if (row.wire_name.starts_with("qorin_ts_"))
            EXPECT_NE(call(raw::request(std::string(row.wire_name))).result, 100003u) << row.wire_name;
    }
}
} // namespace
