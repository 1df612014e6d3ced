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
    for (const double angle : {0., 0., 10., 20., 25., 25., 25.})
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
    EXPECT_EQ(angle_of("end", {{0, buffer, 0}}), 25);
    EXPECT_EQ(on("angle_end_get", {{0, buffer, 6}}), 103001u);
    EXPECT_EQ(on("angle_end_get", {{1, buffer, 0}}), 102020u) << "the other robot's buffers are its own";
    EXPECT_EQ(on("playback", {{0, buffer}}), 102042u);
    EXPECT_EQ(angle(0), -40);
    robots.set_joint_angles(0, {0.05, 0, 90, 0, 90, 0});
    EXPECT_EQ(on("playback", {{0, buffer}}), 100000u);
    EXPECT_EQ(angle(0), 25);

    EXPECT_EQ(on("file_save", {{0, buffer}, {}, "weld.rec"}), 100000u);
    EXPECT_EQ(destroy(0), 100000u);
    EXPECT_EQ(create(401510), 100000u);
    EXPECT_EQ(on("angle_end_get", {{0, buffer, 0}}), 102020u) << "went with its robot";
    EXPECT_EQ(angle_of("end_from_file", {{0, 0}, {}, "weld.rec"}), 25);
    EXPECT_EQ(on("create_from_file", {{0}, {}, "none"}), 102010u);
    const auto loaded = ask("robot_recording_create_from_file", {{0}, {}, "weld.rec"}).value[0];
    EXPECT_EQ(angle_of("end", {{0, loaded, 0}}), 25);
    EXPECT_EQ(on("destroy", {{0, loaded}}), 100000u);
    EXPECT_EQ(on("destroy", {{0, loaded}}), 102020u);

    destroy(1);
    create(401511);
    EXPECT_EQ(on("create_from_file", {{1}, {}, "weld.rec"}), 102021u) << "of another arm";
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
    for (std::size_t length = 1; length < cbox_simulator::recordings::length_limit - 1; ++length)
        running.follow({});
    EXPECT_TRUE(told().empty());
    running.follow({});
    const auto events = told();
    ASSERT_EQ(events.size(), 1u);
    EXPECT_EQ(events[0].subgroup, 308011u);
    EXPECT_EQ(events[0].sender_id, 1u);
    running.follow({});
    EXPECT_TRUE(told().empty());
}
} // namespace
