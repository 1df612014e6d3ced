#include <gtest/gtest.h>

#include "tests/simulator/robot_commander.h"

namespace
{
struct recording_test : robot_commander
{
    std::uint32_t on(const std::string& name, const carried& what) { return result("robot_recording_" + name, what); }
    double angle_of(const std::string& which, const carried& what)
    {
        const auto answer = ask("robot_recording_angle_" + which + "_get", what);
        EXPECT_EQ(answer.result, 100000u) << which;
        return answer.real[0];
    }
};

TEST_F(recording_test, a_recorded_motion_is_kept_played_and_saved)
{
    auto& robots = model.robots();
    const auto buffer = ask("robot_recording_create", {{0}}).value[0];
    EXPECT_EQ(on("angle_start_get", {{0, buffer, 0}}), 102022u);
    EXPECT_EQ(on("playback", {{0, buffer}}), 102022u);
    EXPECT_EQ(on("end", {{0, buffer}}), 102024u);
    EXPECT_EQ(on("start", {{0}}), 100000u);
    EXPECT_EQ(on("start", {{0}}), 102023u);
    EXPECT_EQ(on("end", {{0, buffer + 1}}), 102020u);
    for (const double angle : {0., 0., 0.1, 0.2, 0.25, 0.25, 0.25})
        robots.set_joint_angles(0, {angle, 0, 90, 0, 90, 0});
    EXPECT_EQ(on("end_without_error_check", {{0, buffer}}), 100000u);
    robots.set_joint_angles(0, {-40, 0, 90, 0, 90, 0});

    const auto entries = [&] { return ask("robot_recording_interpolate", {{0, buffer, 401901, 1}, {1}}).value[0]; };
    EXPECT_EQ(entries(), 8u);
    EXPECT_EQ(on("trim", {{0, buffer}}), 100000u);
    EXPECT_EQ(entries(), 4u);
    EXPECT_EQ(on("interpolate", {{0, buffer, 401901, 1}, {0}}), 102025u);
    EXPECT_EQ(on("interpolate", {{0, buffer, 401902, 1}, {1}}), 102007u);
    EXPECT_EQ(angle_of("start", {{0, buffer, 0}}), 0);
    EXPECT_EQ(angle_of("end", {{0, buffer, 0}}), 0.25);
    EXPECT_EQ(on("angle_end_get", {{0, buffer, 6}}), 103001u);
    EXPECT_EQ(on("angle_end_get", {{1, buffer, 0}}), 102020u) << "the other robot's buffers are its own";
    EXPECT_EQ(on("playback", {{0, buffer}}), 102042u);
    EXPECT_EQ(angle(0), -40);
    robots.set_joint_angles(0, {0.05, 0, 90, 0, 90, 0});
    EXPECT_EQ(on("playback", {{0, buffer}}), 100000u);
    come_to_rest();
    EXPECT_EQ(angle(0), 0.25);

    EXPECT_EQ(on("file_save", {{0, buffer}, {}, {"weld.rec"}}), 100000u);
    EXPECT_EQ(destroy(0), 100000u);
    EXPECT_EQ(create(401510), 100000u);
    EXPECT_EQ(on("angle_end_get", {{0, buffer, 0}}), 102020u) << "went with its robot";
    EXPECT_EQ(angle_of("end_from_file", {{0, 0}, {}, {"weld.rec"}}), 0.25);
    EXPECT_EQ(on("create_from_file", {{0}, {}, {"none"}}), 102010u);
    const auto loaded = ask("robot_recording_create_from_file", {{0}, {}, {"weld.rec"}}).value[0];
    EXPECT_EQ(angle_of("end", {{0, loaded, 0}}), 0.25);
    EXPECT_EQ(on("destroy", {{0, loaded}}), 100000u);
    EXPECT_EQ(on("destroy", {{0, loaded}}), 102020u);

    destroy(1);
    create(401511);
    EXPECT_EQ(on("create_from_file", {{1}, {}, {"weld.rec"}}), 102021u) << "of another arm";
}

TEST_F(recording_test, interpolation_changes_how_fast_what_was_moved_is_played)
{
    const auto buffer = ask("robot_recording_create", {{0}}).value[0];
    on("start", {{0}});
    const auto start = pose();
    const auto move = [&](double aside)
    {
        return result("just_robot_tcp_move",
                      {{0}, {100, start[0] + aside, start[1], start[2], start[3], start[4], start[5]}});
    };
    EXPECT_EQ(move(60), 100000u);
    pass(1.5);
    on("end", {{0, buffer}});
    on("trim", {{0, buffer}});
    const auto made = [&](std::uint32_t space, double factor) {
        return ask("robot_recording_interpolate", {{0, buffer, space, 0}, {factor}});
    };
    const auto recorded = made(401901, 1).value[0];
    EXPECT_EQ(made(401901, 1e-6).result, 102025u);
    EXPECT_EQ(made(401901, 100).result, 102026u);
    EXPECT_EQ(made(401900, 0.5).value[0], 2 * recorded - 1);
    EXPECT_EQ(made(401901, 1.5).value[0], static_cast<std::uint32_t>(std::ceil((2 * recorded - 2) / 1.5)) + 1);

    EXPECT_EQ(move(0), 100000u);
    come_to_rest();
    const auto answer = ask("robot_recording_playback", {{0, buffer}});
    EXPECT_EQ(answer.result, 100000u);
    for (std::uint32_t entry = 0; entry < answer.value[0] - 2; ++entry)
    {
        model.run_cycle();
        EXPECT_NEAR(pose()[2], start[2], 0.02) << "on the line";
    }
    EXPECT_EQ(field<std::uint32_t>(2608 + 76), 400901u);
    come_to_rest();
    EXPECT_NEAR(pose()[0], start[0] + 60, 1e-3);
}

TEST_F(recording_test, a_recording_that_becomes_too_long_is_told_once)
{
    const auto told = [&]
    {
        model.run_cycle();
        return model.events().take();
    };
    EXPECT_EQ(on("start", {{1}}), 100000u);
    auto& running = model.robots().find(1)->recordings();
    for (std::size_t length = 1; length < cbox_simulator::recordings::length_limit - 2; ++length)
        running.follow({});
    EXPECT_TRUE(told().empty());
    const auto events = told();
    ASSERT_EQ(events.size(), 1u);
    EXPECT_EQ(events[0].subgroup, 308011u);
    EXPECT_EQ(events[0].sender_id, 1u);
    EXPECT_TRUE(told().empty());
}
} // namespace
