#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/simulator/robot_commander.h"

namespace
{
using six = std::array<double, 6>;
constexpr std::size_t record_size = 4728;
constexpr std::size_t record_1 = 2608 + record_size;
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

/// Robot 1 is spoken to, so that a command for the wrong robot shows.
struct robot_commands : robot_commander
{
    protocol::reply_record ask(const std::string& name, const carried& what = {})
    {
        return robot_commander::ask("robot_" + name, what);
    }
    std::uint32_t result(const std::string& name, const carried& what = {}) { return ask(name, what).result; }
};

struct shown_row
{
    std::string name;
    carried what;
    std::size_t offset; ///< in the frame
    std::vector<std::uint32_t> words;
    std::vector<double> shown;
};

TEST_F(robot_commands, what_is_set_shows_in_the_frame_of_its_robot)
{
    const six ramp{1, 2, 3, 4, 5, 6};
    const std::vector<double> six_reals(ramp.begin(), ramp.end());
    const std::vector<std::uint32_t> six_switches{400100, 400101, 400100, 400100, 400101, 400100};
    std::vector<std::uint32_t> robot_and_switches{1};
    robot_and_switches.insert(robot_and_switches.end(), six_switches.begin(), six_switches.end());
    constexpr std::size_t joint_2 = record_1 + 1896 + 2 * 472;
    const shown_row rows[] = {
        {"speed_factor_set", {{1}, {0.25}}, record_1 + 120, {}, {0.25}},
        {"servo_switch_set", {{1, 400101}}, record_1 + 20, {400101}, {}},
        {"installation_mount_set", {{1}, {30, 60}}, record_1 + 256, {}, {30, 60}},
        {"servo_switch_set", {{1, 400100}}, record_1 + 20, {400100}, {}},
        {"acc_dec_auto_adjustment_set", {{1, 400100}}, record_1 + 128, {400100}, {}},
        {"control_mode_set", {{1, 403106}}, record_1 + 16, {403106}, {}},
        {"velocity_control_switch_set", {{1, 400101}}, record_1 + 16, {403106}, {}},
        {"velocity_control_switch_set", {{1, 400100}}, record_1 + 16, {403109}, {}},
        {"direct_teaching_switch_set", {{1, 400101}}, record_1 + 16, {403109}, {}},
        {"direct_teaching_force_to_switch_on", {{1}}, record_1 + 16, {403110}, {}},
        {"direct_teaching_switch_set", {{1, 400101}}, record_1 + 16, {403108}, {}},
        {"joint_target_velocity_set", {{1, 2}, {7}}, record_1 + 608 + 16, {}, {7}},
        {"joint_target_velocity_rpm_set", {{1, 5}, {10}}, record_1 + 608, {}, {0, 0, 7, 0, 0, 60}},
        {"joint_target_acceleration_set", {{1, 0}, {8}}, record_1 + 656, {}, {8}},
        {"joint_target_acceleration_rpm_set", {{1, 1}, {2}}, record_1 + 656, {}, {8, 12}},
        {"collision_detection_switch_set", {{1, 400100}}, record_1 + 28, {400100}, {}},
        {"collision_mitigation_switch_set", {{1, 400100}}, record_1 + 32, {400100}, {}},
        {"collision_detection_threshold_tcp_resultant_force_set", {{1}, {77}}, record_1 + 1456, {}, {77}},
        {"collision_detection_threshold_joint_torque_set", {{1, 3}, {9}}, record_1 + 1360 + 24, {}, {9}},
        {"collision_detection_threshold_tcp_force_set", {{1}, six_reals}, record_1 + 1408, {}, six_reals},
        {"dynamics_friction_feedrate_set", {{1, 2}, {0.5}}, joint_2 + 432, {}, {0.5}},
        {"tcp_from_flange_set", {{1}, six_reals}, record_1 + 272, {}, six_reals},
        {"tcp_payload_set", {{1}, {2, 10, 20, 30}}, record_1 + 224, {}, {2, 10, 20, 30}},
        {"safety_limit_tcp_acc_max_set", {{1}, {900}}, record_1 + 160, {}, {900}},
        {"safety_limit_tcp_speed_max_set", {{1}, {800}}, record_1 + 152, {}, {800}},
        {"safety_limit_collision_detection_tcp_force_in_reduced_mode_set", {{1}, {55}}, record_1 + 1880, {}, {55}},
        {"safety_limit_joint_acc_max_set", {{1, 2}, {400}}, joint_2 + 160, {}, {400}},
        {"safety_limit_joint_speed_max_set", {{1, 2}, {100}}, joint_2 + 152, {}, {100}},
        {"safety_limit_joint_angle_set", {{1, 2}, {-80, 90}}, joint_2 + 136, {}, {90, -80}},
        {"safety_limit_velocity_in_reduced_mode_set", {{1}, {150, 15}}, record_1 + 1816, {}, {15, 150}},
        {"safety_limit_switch_set", {{1, 400100}}, 2592, {400101, 400100}, {}},
        {"safety_limit_tcp_bounding_shape_switch_set", {{1, 400100}}, 2048 + 264, {400100}, {}},
        {"safety_limit_tcp_bounding_sphere_set", {{1, 401701}, {1, 2, 3, 4}}, 2048 + 264, {400100}, {}},
        {"safety_limit_tcp_bounding_shape_delete", {{1}}, 2048 + 264, {400101}, {}},
        {"force_ctrl_low_pass_filter_set", {{1}, {12}}, record_1 + 1176, {}, {12}},
        {"force_ctrl_switch_set", {{1, 400100}}, record_1 + 40, {400100}, {}},
        {"force_ctrl_sensorless_bias_set", {{1, 400100}}, record_1 + 1232, {400100}, {}},
        {"force_ctrl_coordinate_set", {{1, 401701}}, record_1 + 1168, {401701}, {}},
        {"force_ctrl_force_set", {{1}, six_reals}, record_1 + 784, {}, six_reals},
        {"force_ctrl_velocity_set", {{1}, six_reals}, record_1 + 832, {}, six_reals},
        {"force_ctrl_acc_set", {{1}, six_reals}, record_1 + 880, {}, six_reals},
        {"force_ctrl_dec_set", {{1}, six_reals}, record_1 + 928, {}, six_reals},
        {"force_ctrl_stiffness_set", {{1}, six_reals}, record_1 + 976, {}, six_reals},
        {"force_ctrl_damping_ratio_set", {{1}, six_reals}, record_1 + 1024, {}, six_reals},
        {"force_ctrl_inertia_set", {{1}, six_reals}, record_1 + 1072, {}, six_reals},
        {"force_ctrl_approach_velocity_set", {{1}, six_reals}, record_1 + 1120, {}, six_reals},
        {"force_ctrl_direction_switch_set", {robot_and_switches}, record_1 + 760, six_switches, {}},
        {"force_ctrl_force_value_bias_set", {robot_and_switches}, record_1 + 1236, six_switches, {}},
        {"force_torq_sensor_switch_set", {{1, 400100}}, 21472 + 192, {400100}, {}},
        {"ext_force_torq_sensor_force_torque_set", {{1}, six_reals}, record_1 + 1264, {}, {0, 0, 0, 0, 0, 0}},
        {"ext_force_torq_sensor_switch_set", {{1, 400100}}, record_1 + 1264, {}, six_reals},
        {"ext_force_torq_sensor_switch_set", {{1, 400100}}, 24664 + 56, {400100}, {}},
        {"joint_chaser_state_set", {{1, 400100}}, record_1 + 56, {400100}, {}},
        {"joint_chaser_state_set", {{1, 400101}}, record_1 + 56, {400101}, {}},
        {"ext_profiler_switch_set", {{1, 400100}}, record_1 + 48, {400100}, {}},
        {"ext_profiler_period_set", {{1, 3}}, record_1 + 60, {3}, {}},
        {"ext_profiler_tcp_type_set", {{1, 401800}}, record_1 + 68, {401800}, {}},
        {"conveyor_mode_start", {{1}}, record_1 + 72, {402701}, {}},
        {"conveyor_mode_end", {{1}}, record_1 + 72, {402700}, {}},
        {"conveyor_encoder_switch_set", {{1, 400100}}, 24612, {400100}, {}},
        {"conveyor_encoder_info_set", {{1, 402801, 1}, {4096, 0.5}}, 24608, {1}, {}},
        {"conveyor_encoder_info_set", {{1, 402801, 1}, {4096, 0.5}}, 24616 + 24, {}, {4096, 0.5}},
    };
    const auto robot_0 = field<std::array<char, record_size>>(2608);
    for (const auto& row : rows)
    {
        EXPECT_EQ(result(row.name, row.what), 100000u) << row.name;
        for (std::size_t i = 0; i < row.words.size(); ++i)
            EXPECT_EQ(field<std::uint32_t>(row.offset + 4 * i), row.words[i]) << row.name;
        for (std::size_t i = 0; i < row.shown.size(); ++i)
            EXPECT_EQ(field<double>(row.offset + 8 * i), row.shown[i]) << row.name;

        // A robot that is not there, and a client without the control.
        auto wrong = request("robot_" + row.name, row.what);
        EXPECT_EQ(call(wrong, 2).result, 100003u) << row.name;
        wrong.value[0] = 2;
        EXPECT_EQ(call(wrong).result, 102000u) << row.name;
    }
    EXPECT_EQ((field<std::array<char, record_size>>(2608)), robot_0) << "robot 0 is left alone";
    const auto events = model.events().take();
    EXPECT_EQ(std::ranges::count(events, 308012u, &cbox_simulator::event_info::subgroup), 1);
}

TEST_F(robot_commands, what_cannot_be_is_refused_and_changes_nothing)
{
    struct refused_row
    {
        std::string name;
        carried what;
        std::uint32_t result;
    };
    const refused_row rows[] = {
        {"stop", {{1}, {-1}}, 102007},
        {"speed_factor_set", {{1}, {nan}}, 102007},
        {"control_mode_set", {{1, 403100}}, 102007},
        {"joint_target_velocity_set", {{1, 6}, {nan}}, 103001},
        {"joint_target_velocity_rpm_set", {{1, 0}, {1e308}}, 102007},
        {"home_joint_position_reset", {{1, 6}}, 103001},
        {"jog_joint", {{1, 6, 400400}}, 103001},
        {"jog_tcp_position_x", {{1, 401700, 7}}, 102007},
        {"collision_detection_threshold_tcp_force_set", {{1}, {1, 2, -3}}, 102007},
        {"tcp_payload_set", {{1}, {-1}}, 102012},
        {"tcp_payload_set", {{1}, {0, 0, 1, 0}}, 102013},
        {"tcp_payload_set", {{1}, {1000}}, 102014},
        {"tcp_payload_set", {{1}, {1, 0, 0, 1e9}}, 102015},
        {"safety_limit_joint_angle_set", {{1, 0}, {5, 4}}, 102007},
        {"safety_limit_tcp_bounding_cone_set", {{1, 7}}, 102007},
        {"safety_limit_tcp_bounding_box_set", {{1, 401700}, {0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 1, 0}}, 102007},
        {"safety_limit_tcp_bounding_sphere_set", {{1, 401700}, {1, 2, 3, 0}}, 102007},
        {"safety_limit_tcp_bounding_cylinder_set", {{1, 401700}, {0, 0, 0, 0, 0, 0, 1, 1}}, 102016},
        {"safety_limit_tcp_bounding_cone_set", {{1, 401700}, {0, 0, 0, 0, 0, 1, 1, -1}}, 102007},
        {"safety_limit_tcp_bounding_shape_delete", {{1}}, 200007},
        {"safety_limit_collision_detection_torque_in_reduced_mode_set", {{1, 7}}, 103000},
        {"force_ctrl_direction_switch_set", {{1, 400100, 400100}}, 102007},
        {"force_torq_sensor_filter_set", {{1, 403209}}, 102007},
        {"joint_chaser_state_set", {{1, 1}}, 102007},
        {"ext_profiler_period_set", {{1, 0}}, 102007},
        {"ext_profiler_joint_add", {{1, 5}}, 103000},
        {"ext_profiler_pos_ort_quat_add", {{1}, {1, 2, 3}}, 102016},
        {"conveyor_encoder_info_set", {{1, 402800, 2}, {1, 1}}, 106015},
        {"joint_dynamics_calibration_save", {{1, 0}}, 102039},
    };
    const auto before = frame();
    for (const auto& row : rows)
        EXPECT_EQ(result(row.name, row.what), row.result) << row.name;
    EXPECT_EQ((frame()), before);
}

TEST_F(robot_commands, planes_have_ids_and_a_normal_of_length_1)
{
    const std::string make = "safety_limit_plane_create_with_norm_distance";
    constexpr std::size_t block_1 = 1000 + 368;
    EXPECT_EQ(result("safety_limit_plane_remove", {{1, 0}}), 102018u) << "never held a plane";
    EXPECT_EQ(result("safety_limit_plane_remove_all", {{1}}), 200007u);
    EXPECT_EQ(result(make, {{1}, {0, 0, 0, 5}}), 102016u);
    for (std::uint32_t id = 0; id < 10; ++id)
        EXPECT_EQ(ask(make, {{1}, {0, 1, 0, id + 1.0}}).value[0], id);
    EXPECT_EQ(field<double>(block_1 + 40 + 32 * 2 + 24), -3.0) << "the constant term is the distance negated";
    EXPECT_EQ(result(make, {{1}, {0, 1, 0, 5}}), 102017u);
    EXPECT_EQ(result("safety_limit_plane_remove", {{1, 10}}), 102007u);
    EXPECT_EQ(result("safety_limit_plane_remove", {{1, 4}}), 100000u);
    EXPECT_EQ(result("safety_limit_plane_remove", {{1, 4}}), 200007u);
    EXPECT_EQ(field<std::uint32_t>(block_1 + 4 * 4), 400101u);
    const auto through = ask("safety_limit_plane_create_with_norm_origin", {{1}, {0, 3e200, 4e200, 7, 10, 20}});
    EXPECT_EQ(through.value[0], 4u) << "the freed id";
    EXPECT_EQ(field<std::uint32_t>(block_1 + 4 * 4), 400100u);
    const double expected[] = {0, 0.6, 0.8, -22};
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(field<double>(block_1 + 40 + 32 * 4 + 8 * i), expected[i], 1e-12);
    EXPECT_EQ(result("safety_limit_plane_remove_all", {{1}}), 100000u);
    EXPECT_EQ(field<std::uint32_t>(block_1), 400101u);
}

TEST_F(robot_commands, a_tool_is_found_from_the_poses_it_was_held_still_in)
{
    const std::array<double, 3> tip{12, -34, 156};
    const six turns[] = {{0, 0, 0, 180, 0, 0}, {0, 0, 0, 150, 20, 10}, {0, 0, 0, -160, -25, 40}, {0, 0, 0, 170, 0, 90}};
    std::vector<std::vector<double>> taught(6, std::vector<double>(4));
    auto one_axis = taught;
    for (std::size_t i = 0; i < std::size(turns); ++i)
    {
        const auto reached = cbox_simulator::placed(turns[i], {tip[0], tip[1], tip[2], 0, 0, 0});
        const double column[] = {400 - reached[0], 50 - reached[1], 300 - reached[2],
                                 turns[i][3],      turns[i][4],     turns[i][5]};
        for (std::size_t array = 0; array < 6; ++array)
            taught[array][i] = column[array];
        one_axis[5][i] = turns[i][5];
    }
    const std::string set = "tcp_from_flange_multiple_position_set";
    EXPECT_EQ(result(set, {{1, 4}, {}, {}, one_axis}), 102033u);
    for (const std::uint32_t count : {2u, 11u})
        EXPECT_EQ(result(set, {{1, count}, {}, {}, taught}), 102032u);
    const auto reply = ask(set, {{1, 4}, {}, {}, taught});
    EXPECT_EQ(reply.result, 100000u);
    EXPECT_NEAR(reply.real[0], 0, 1e-9) << "the poses agree";
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_NEAR(field<double>(record_1 + 272 + 8 * i), tip[i], 1e-9);

    EXPECT_EQ(result("tcp_from_flange_multiple_orientation_set", {{1}, {170, 10, 30}}), 100000u);
    const auto tool = field<six>(record_1 + 368);
    EXPECT_NEAR(tool[3], 170, 1e-9);
    EXPECT_NEAR(tool[4], 10, 1e-9);
    EXPECT_NEAR(tool[5], 30, 1e-9);
}

TEST_F(robot_commands, the_arm_takes_one_point_a_period_from_the_profiler)
{
    result("ext_profiler_period_set", {{1, 2}});
    result("tcp_from_flange_set", {{1}, {0, 0, 100, 0, 30, 0}});
    const auto waiting = [&] { return field<std::uint32_t>(record_1 + 64); };
    auto target = field<six>(record_1 + 368);
    target[0] += 20;
    const std::vector<double> near(target.begin(), target.end());
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(result("ext_profiler_pos_ort_euler_add", {{1}, near}), 100000u);
    EXPECT_EQ(result("ext_profiler_pos_ort_euler_add", {{1}, near}), 102030u);
    model.run_cycle();
    model.run_cycle();
    EXPECT_EQ(waiting(), 100u) << "the profiler is off";
    EXPECT_EQ(result("ext_profiler_switch_set", {{1, 400100}}), 100000u);
    EXPECT_EQ(result("jog_joint", {{1, 0, 400400}, {1, 1}}), 102019u);
    model.run_cycle();
    EXPECT_EQ(waiting(), 100u);
    model.run_cycle();
    EXPECT_EQ(waiting(), 99u);
    pass(0.5);
    EXPECT_EQ(waiting(), 0u);
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_NEAR(std::remainder(field<double>(record_1 + 368 + 8 * i) - target[i], 360), 0, 1e-6);

    EXPECT_EQ(result("ext_profiler_pos_ort_euler_add", {{1}, near}), 100000u);
    result("ext_profiler_switch_set", {{1, 400101}});
    EXPECT_EQ(waiting(), 0u);
    pass(0.005);
    result("ext_profiler_switch_set", {{1, 400100}});
    EXPECT_EQ(result("ext_profiler_joint_add", {{1, 6}, {}, {}, {{5, 6, 77, 8, 89, 10}}}), 100000u);
    const auto& robot = *model.robots().find(1);
    for (int cycle = 0; cycle < 800; ++cycle)
    {
        pass(0.001);
        for (std::size_t joint = 0; joint < 6; ++joint)
            EXPECT_LE(std::abs(robot.commanded().accelerations[joint]),
                      robot.range_of(joint).acceleration_max * (1 + 1e-6));
    }
    EXPECT_EQ(field<double>(record_1 + 1896 + 2 * 472 + 56), 77.0);
}

TEST_F(robot_commands, questions_are_answered_from_what_was_set)
{
    const auto answer = [&](const std::string& name) { return ask(name, {{1}}).value[0]; };
    EXPECT_EQ(answer("ext_move_switch_get"), 400101u);
    EXPECT_EQ(result("ext_move_switch_set", {{1, 400100}}), 100000u);
    EXPECT_EQ(answer("ext_move_switch_get"), 400100u);
    EXPECT_EQ(result("ext_move_stop_mode_set", {{1, 400101}}), 100000u);
    EXPECT_EQ(answer("ext_move_stop_mode_get"), 400101u);
    EXPECT_EQ(result("dynamics_dry_run_start", {{1, 3}, {2.5}}), 100000u);
    EXPECT_EQ(answer("dynamics_dry_run_state_get"), 400100u);
    EXPECT_EQ(result("dynamics_dry_run_start", {{1, 3}, {2.5}}), 102041u);
    EXPECT_EQ(result("dynamics_dry_run_end", {{1}}), 100000u);
    EXPECT_EQ(answer("dynamics_dry_run_state_get"), 400101u);
    EXPECT_EQ(result("dynamics_calibration_start", {{1}}), 100000u);
    EXPECT_EQ(result("dynamics_calibration_save", {{1}}), 100000u);

    model.cbox().set_ecat_connection_state(QORIN_ECAT_CONN_STATE_DISCONNECTED);
    EXPECT_EQ(result("servo_switch_set", {{1, 400100}}), 102035u);
    EXPECT_EQ(result("home_position_reset", {{1}}), 102035u);
}
} // namespace
