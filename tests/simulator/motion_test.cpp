#include <array>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/simulator/robot_commander.h"

namespace
{
struct motion_test : robot_commander
{
    void expect_tcp(std::array<double, 3> position)
    {
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_NEAR(pose()[i], position[i], 1e-6) << i;
    }
};

TEST_F(motion_test, what_is_set_is_answered_and_what_cannot_be_is_refused)
{
    struct row
    {
        const char* name;
        std::vector<std::uint32_t> values; ///< Behind the id.
        std::vector<double> reals;
        carried bad;
        std::uint32_t refusal = 104004;
    };
    const double nan = std::nan("");
    const row rows[] = {
        {"velocity_profiler", {400501}, {}, {{400502}}, 104003},
        {"acc_max", {}, {7}, {{}, {0}}},
        {"jerk_percentage", {}, {100}, {{}, {100.5}}},
        {"blending_stop_mode", {400100}, {}, {{400102}}},
        {"robot_tcp_position_start", {}, {1, -2, 3}, {{}, {1, nan, 3}}},
        {"robot_tcp_position_end", {}, {4, 5, 6}, {{}, {1, 2, nan}}},
        {"robot_tcp_interpolator", {400606}, {}, {{400607}}},
        {"robot_tcp_coordinate", {401701}, {}, {{401800}}},
        {"robot_orientation_mode", {402602}, {}, {{402603}}},
        {"robot_tcp_speed_end", {}, {8}, {{}, {-1}}},
        {"robot_tcp_welding_weaving_pattern", {402002}, {}, {{402003}}},
        {"robot_tcp_welding_left_amplitude", {}, {9}, {{}, {nan}}},
        {"robot_tcp_welding_zigzag_ratio", {}, {1, 2, 3, 4}, {{}, {1, 2, 3, nan}}},
        {"robot_tcp_welding_position_fix_swtich", {400100}, {1, 2, 3}, {{400100}, {4, 5, nan}}},
        {"robot_tcp_arc_sensing_data_source", {404504}, {}, {{404505}}},
    };
    const auto id = make("tcp_welding");
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        const std::string name = std::string("motion_command_") + row.name;
        carried good{{id}, row.reals};
        good.values.insert(good.values.end(), row.values.begin(), row.values.end());
        carried bad = row.bad;
        bad.values.insert(bad.values.begin(), id);
        EXPECT_EQ(result(name + "_set", good), 100000u);
        EXPECT_EQ(result(name + "_set", bad), row.refusal);
        const auto answer = ask(name + "_get", {{id}});
        for (std::size_t i = 0; i < row.values.size(); ++i)
            EXPECT_EQ(answer.value[i], row.values[i]);
        for (std::size_t i = 0; i < row.reals.size(); ++i)
            EXPECT_EQ(answer.real[i], row.reals[i]);
    }

    const std::string tracking = "motion_command_robot_tcp_arc_sensing_start_ref_period_";
    EXPECT_EQ(result(tracking + "set", {{id, 404600, 11}}) + result(tracking + "set", {{id, 404601, 12}}), 200000u);
    EXPECT_EQ(ask(tracking + "get", {{id, 404600}}).value[0], 11u);
    EXPECT_EQ(ask(tracking + "get", {{id, 404601}}).value[0], 12u);
    EXPECT_EQ(result(tracking + "set", {{id, 404602, 12}}), 104004u);

    EXPECT_EQ(result("motion_command_name_set", {{id}, {}, {"weld 1"}}), 100000u);
    EXPECT_EQ(ask("motion_command_name_get", {{id}}).value[0], 0x646C6577u) << "the bytes of \"weld\"";
    EXPECT_EQ(result("motion_command_start_condition_set", {{id, 402400, 15, 1}}), 100000u);
    EXPECT_EQ(result("motion_command_start_condition_set", {{id, 402402, 0, 1}}), 104007u);
    EXPECT_EQ(result("motion_command_start_condition_set", {{id, 402420, 4, 1}}), 104004u);
    EXPECT_EQ(result("motion_command_io_command_type_set", {{id, 402503, 402401, 1}, {50, 1}}), 100000u);
    EXPECT_EQ(result("motion_command_io_command_type_set", {{id, 402503, 402401, 1}, {101, 1}}), 104004u);
    for (const std::uint32_t condition : {402501u, 402502u, 402504u})
        EXPECT_EQ(result("motion_command_io_command_type_set", {{id, condition, 402401, 1}, {5, 1}}), 100000u);
    EXPECT_EQ(result("motion_command_io_command_type_set", {{id, 402500, 402401, 1}, {5, 1}}), 104004u);
}

TEST_F(motion_test, a_command_needs_its_id_its_kind_and_its_robot)
{
    const auto joint = ask("motion_command_robot_joint_create").value[0];
    const auto tcp = ask("motion_command_robot_tcp_create").value[0];
    EXPECT_NE(joint, tcp);
    EXPECT_EQ(result("motion_command_acc_max_set", {{tcp + 1}, {5}}), 104002u);
    EXPECT_EQ(result("motion_command_robot_robot_id_set", {{tcp + 1, 0}}), 104002u);
    EXPECT_EQ(result("motion_command_robot_robot_id_set", {{joint, 2}}), 102000u);
    EXPECT_EQ(result("motion_command_robot_joint_angle_end_set", {{joint, 0}, {5}}), 104001u);
    EXPECT_EQ(result("motion_command_robot_weaving_event_set", {{joint, 400100}}), 104001u);
    EXPECT_EQ(result("motion_command_robot_tcp_adjusted_speed_get", {{tcp}}), 104001u);
    EXPECT_EQ(result("motion_command_robot_tcp_adjusted_speed_get", {{joint}}), 104002u);
    EXPECT_EQ(result("motion_command_queue_add", {{joint}}), 200005u) << "nothing set";
    EXPECT_EQ(result("motion_command_acc_max_set", {{joint}, {5}}), 100000u) << "not the robot's";
    EXPECT_EQ(result("motion_command_queue_add", {{joint}}), 104001u);
    EXPECT_EQ(result("motion_command_robot_robot_id_set", {{joint, 1}}), 100000u);
    EXPECT_EQ(result("motion_command_robot_joint_angle_end_set", {{joint, 6}, {5}}), 104004u);
    EXPECT_EQ(result("motion_command_robot_tcp_radius_set", {{joint}, {5}}), 104002u) << "of another kind";
    EXPECT_EQ(result("motion_command_robot_weaving_event_set", {{joint, 400100}}), 100000u);
    EXPECT_EQ(field<std::uint32_t>(2608 + 4728 + 52), 400100u);

    const auto copy = ask("motion_command_deep_copy", {{joint}}).value[0];
    EXPECT_EQ(result("motion_command_acc_max_set", {{copy}, {6}}), 100000u);
    EXPECT_EQ(ask("motion_command_acc_max_get", {{joint}}).real[0], 5);
    EXPECT_EQ(result("motion_command_destroy", {{joint}}), 100000u);
    EXPECT_EQ(result("motion_command_destroy", {{joint}}), 104002u);
    EXPECT_EQ(ask("motion_command_robot_robot_id_get", {{copy}}).value[0], 1u);
    EXPECT_EQ(destroy(1), 100000u);
    EXPECT_EQ(result("motion_command_acc_max_get", {{copy}}), 104002u) << "went with its robot";
    EXPECT_EQ(result("motion_command_acc_max_get", {{tcp}}), 100000u);
    std::uint32_t refusal = 100000;
    for (int count = 0; count < 1001 && refusal == 100000; ++count)
        refusal = result("motion_command_deep_copy", {{tcp}});
    EXPECT_EQ(refusal, 104000u);
    EXPECT_EQ(result("motion_command_destroy_all"), 100000u);
    EXPECT_EQ(result("motion_command_acc_max_get", {{tcp}}), 104002u);
}

TEST_F(motion_test, a_flush_runs_the_queue_in_its_order_or_not_at_all)
{
    EXPECT_EQ(result("motion_command_queue_flush"), 200005u);
    const auto first = make_turn(30);
    const auto second = make_turn(-10, 0, 1);
    for (const auto id : {first, second})
        EXPECT_EQ(result("motion_command_queue_add", {{id}}), 100000u);
    EXPECT_EQ(result("motion_command_destroy", {{first}}), 100000u) << "it is queued as it stood";
    model.robots().set_servo(0, QORIN_SWITCH_OFF);
    EXPECT_EQ(result("motion_command_queue_flush"), 104008u);
    EXPECT_EQ(angle(0), 0);
    EXPECT_TRUE(model.events().take().empty());
    model.robots().set_servo(0, QORIN_SWITCH_ON);
    model.set_ecat_link(false);
    EXPECT_EQ(result("motion_command_queue_flush"), 104008u);
    model.set_ecat_link(true);
    EXPECT_EQ(result("motion_command_queue_flush"), 100000u);
    come_to_rest();
    EXPECT_EQ(angle(0), 30);
    EXPECT_EQ(angle(1), -10);
    EXPECT_EQ(angle(2), 90) << "without an end it stays";
    EXPECT_EQ(result("motion_command_queue_flush"), 200005u);

    EXPECT_EQ(result("motion_command_queue_add", {{second}}), 100000u);
    EXPECT_EQ(result("motion_command_queue_clear"), 100000u);
    EXPECT_EQ(result("motion_command_queue_flush"), 200005u);
    EXPECT_EQ(result("motion_command_is_runnable", {{make_turn(156, 0, 2)}}), 104010u);
}

TEST_F(motion_test, a_tcp_motion_ends_at_its_pose)
{
    const std::string tcp = "motion_command_robot_tcp_";
    const auto run = [&](std::uint32_t id)
    {
        auto answer = result("motion_command_queue_add", {{id}});
        answer = answer == 100000u ? result("motion_command_queue_flush") : answer;
        come_to_rest();
        return answer;
    };
    expect_tcp({253, 0, 383});
    const auto id = make("tcp");
    EXPECT_EQ(run(id), 200005u);
    EXPECT_EQ(result(tcp + "position_end_set", {{id}, {300, 20, 350}}), 100000u);
    EXPECT_EQ(run(id), 100000u);
    expect_tcp({300, 20, 350});

    model.robots().set_tcp_from_flange(0, {0, 0, 100, 0, 0, 0});
    expect_tcp({300, 20, 250});
    EXPECT_EQ(result(tcp + "position_end_set_from_direction", {{id}, {-50, 0, 10}}), 100000u);
    EXPECT_EQ(run(id), 100000u);
    expect_tcp({250, 20, 260});
    EXPECT_EQ(result(tcp + "coordinate_set", {{id, 401701}}), 100000u);
    EXPECT_EQ(result(tcp + "position_end_set", {{id}, {0, 0, 60}}), 100000u);
    EXPECT_EQ(run(id), 100000u);
    expect_tcp({250, 20, 200}); // the tool looks down

    const auto refused = make("tcp");
    EXPECT_EQ(result(tcp + "position_end_set", {{refused}, {900, 0, 300}}), 100000u);
    EXPECT_EQ(run(refused), 104010u);
    EXPECT_EQ(result(tcp + "position_end_set", {{refused}, {300, 0, 300}}), 100000u);
    EXPECT_EQ(result(tcp + "position_start_set", {{refused}, {300, 0, 300}}), 100000u);
    EXPECT_EQ(run(refused), 104013u) << "it starts where it ends";
    EXPECT_EQ(result(tcp + "position_start_set", {{refused}, {300, 0, 301}}), 100000u);
    EXPECT_EQ(result(tcp + "interpolator_set", {{refused, 400606}}), 100000u);
    EXPECT_EQ(result(tcp + "free_path_points_set", {{refused, 17}}), 104004u);
    EXPECT_EQ(result(tcp + "free_path_points_set", {{refused, 2}, {}, {}, {{260, 270}, {0, 5}, {250, 240}}}), 100000u);
    EXPECT_EQ(run(refused), 100000u);
    expect_tcp({270, 5, 240});
    model.cbox().set_emergency_button(QORIN_BUTTON_STATE_PUSHED);
    EXPECT_EQ(run(refused), 104008u);
}

TEST_F(motion_test, a_motion_in_one_request)
{
    const std::vector<std::vector<double>> ready = {{0, 0, 90, 0, 90, 0}};
    const auto start = pose();
    const std::vector<double> line = {100, 240, -30, 400, start[3], start[4], start[5]};
    EXPECT_EQ(result("just_robot_joint_move", {{0, 5}, {1}, {}, ready}), 103000u);
    EXPECT_EQ(result("just_robot_joint_move", {{2, 6}, {1}}), 102000u);
    EXPECT_EQ(result("just_robot_joint_move", {{0, 6}, {0}, {}, ready}), 104004u);
    EXPECT_EQ(result("just_robot_blending_tcp_move", {{0}, line}), 100000u);
    EXPECT_EQ(result("just_robot_joint_move", {{0, 6}, {100}, {}, ready}), 104008u) << "it moves";
    come_to_rest();
    expect_tcp({240, -30, 400});
    EXPECT_EQ(result("just_robot_joint_move", {{0, 6}, {100}, {}, {{10, 0, 90, 0, 0, 0}}}), 100000u);
    come_to_rest();
    EXPECT_EQ(angle(0), 10);
    EXPECT_EQ(result("just_robot_tcp_move", {{0}, line}), 104011u) << "out of a stretched wrist";
}
} // namespace
