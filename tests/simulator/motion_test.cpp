#include <array>
#include <cmath>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/simulator/robot_commander.h"

namespace
{
struct motion_test : robot_commander
{
    /// A command of the kind for robot 0.
    std::uint32_t make(const std::string& kind)
    {
        const auto id = ask("motion_command_robot_" + kind + "_create").value[0];
        EXPECT_EQ(result("motion_command_robot_robot_id_set", {{id, 0}}), 100000u);
        return id;
    }

    std::uint32_t make_joint(std::uint32_t joint, double angle)
    {
        const auto id = make("joint");
        EXPECT_EQ(result("motion_command_robot_joint_angle_end_set", {{id, joint}, {angle}}), 100000u);
        return id;
    }

    /// Subgroup, less the group, and sender.
    using told = std::vector<std::pair<std::uint32_t, std::uint32_t>>;
    told events()
    {
        told list;
        for (const auto& event : model.events().take())
            list.emplace_back(event.subgroup - 302000, event.sender_id);
        return list;
    }

    void expect_tcp(std::array<double, 3> position)
    {
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_NEAR(pose()[i], position[i], 1e-8) << i;
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

    EXPECT_EQ(result("motion_command_name_set", {{id}, {}, "weld 1"}), 100000u);
    EXPECT_EQ(ask("motion_command_name_get", {{id}}).value[0], 0x646C6577u) << "the bytes of \"weld\"";
    EXPECT_EQ(result("motion_command_start_condition_set", {{id, 402400, 15, 1}}), 100000u);
    EXPECT_EQ(result("motion_command_start_condition_set", {{id, 402402, 0, 1}}), 104007u);
    EXPECT_EQ(result("motion_command_start_condition_set", {{id, 402420, 4, 1}}), 104004u);
    EXPECT_EQ(result("motion_command_io_command_type_set", {{id, 402503, 402401, 1}, {50, 1}}), 100000u);
    EXPECT_EQ(result("motion_command_io_command_type_set", {{id, 402503, 402401, 1}, {101, 1}}), 104004u);
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
    const auto first = make_joint(0, 30);
    const auto second = make_joint(1, -10);
    EXPECT_EQ(result("motion_command_blending_motion_mode_set", {{second, 400100}}), 100000u);
    for (const auto id : {first, second})
        EXPECT_EQ(result("motion_command_queue_add", {{id}}), 100000u);
    EXPECT_EQ(result("motion_command_destroy", {{first}}), 100000u) << "it is queued as it stood";
    model.robots().set_servo(0, QORIN_SWITCH_OFF);
    EXPECT_EQ(result("motion_command_queue_flush"), 104008u);
    EXPECT_EQ(angle(0), 0);
    EXPECT_EQ(events(), told{});
    model.robots().set_servo(0, QORIN_SWITCH_ON);
    model.set_ecat_link(false);
    EXPECT_EQ(result("motion_command_queue_flush"), 104008u);
    model.set_ecat_link(true);
    events();
    EXPECT_EQ(result("motion_command_queue_flush"), 100000u);
    EXPECT_EQ(angle(0), 30);
    EXPECT_EQ(angle(1), -10);
    EXPECT_EQ(angle(2), 90) << "without an end it stays";
    EXPECT_EQ(events(), (told{{2, first}, {4, first}, {5, first}, {2, second}, {3, second}, {4, second}, {5, second}}));
    EXPECT_EQ(result("motion_command_queue_flush"), 200005u);

    EXPECT_EQ(result("motion_command_queue_add", {{second}}), 100000u);
    EXPECT_EQ(result("motion_command_queue_clear"), 100000u);
    EXPECT_EQ(result("motion_command_queue_flush"), 200005u);
    EXPECT_EQ(result("motion_command_is_runnable", {{make_joint(2, 156)}}), 104010u);
}

TEST_F(motion_test, a_tcp_motion_ends_at_its_pose)
{
    const std::string tcp = "motion_command_robot_tcp_";
    const auto run = [&](std::uint32_t id)
    {
        const auto added = result("motion_command_queue_add", {{id}});
        return added == 100000u ? result("motion_command_queue_flush") : added;
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
    for (const char* point : {"mid", "end"})
        EXPECT_EQ(result(tcp + "position_" + point + "_set", {{refused}, {300, 0, 300}}), 100000u);
    EXPECT_EQ(result(tcp + "interpolator_set", {{refused, 400601}}), 100000u);
    EXPECT_EQ(run(refused), 104013u);
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
    EXPECT_EQ(result("just_robot_joint_move", {{0, 6}, {1}, {}, {{10, 0, 90, 0, 0, 0}}}), 100000u);
    EXPECT_EQ(angle(0), 10);
    EXPECT_EQ(events(), (told{{2, 0}, {4, 0}, {5, 0}}));
    const auto straight = pose();
    EXPECT_EQ(result("just_robot_joint_move", {{0, 5}, {1}, {}, {{20, 0, 90, 0, 0, 0}}}), 103000u);
    EXPECT_EQ(result("just_robot_joint_move", {{2, 6}, {1}}), 102000u);
    EXPECT_EQ(result("just_robot_joint_move", {{0, 6}, {1}, {}, {{0, 0, 90, 0, 90, 0}}}), 100000u);
    const auto ready = pose();
    EXPECT_EQ(result("just_robot_tcp_move",
                     {{0}, {1, straight[0], straight[1], straight[2], straight[3], straight[4], straight[5]}}),
              104011u);
    events();
    EXPECT_EQ(result("just_robot_blending_tcp_move", {{0}, {1, 240, -30, 400, ready[3], ready[4], ready[5]}}), 100000u);
    expect_tcp({240, -30, 400});
    EXPECT_EQ(events(), (told{{2, 0}, {3, 0}, {4, 0}, {5, 0}}));
}
} // namespace
