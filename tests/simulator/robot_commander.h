#ifndef TESTS_SIMULATOR_ROBOT_COMMANDER_H
#define TESTS_SIMULATOR_ROBOT_COMMANDER_H

#include <array>
#include <cmath>
#include <utility>

#include <gtest/gtest.h>

#include "tests/simulator/commanded_box.h"

/// A box with two robots of the smallest arm that are ready to move: wrist at x 253, z 459, flange 76 below it.
struct robot_commander : testing::Test, commanded_box
{
    explicit robot_commander(cbox_simulator::arm_catalogue arms = {}) : commanded_box(2, std::move(arms))
    {
        for (std::uint32_t id = 0; id < 2; ++id)
        {
            create(401510);
            model.robots().set_servo(id, QORIN_SWITCH_ON);
        }
        static_cast<void>(model.events().take());
    }

    /// Lets the box's own time pass: nothing here waits for a clock on the wall.
    void pass(double seconds)
    {
        for (int cycle = 0; cycle < std::lround(seconds * 1000); ++cycle)
            model.run_cycle();
    }

    /// Until nothing moves or waits any more; a minute is too long for that.
    void come_to_rest()
    {
        for (int cycle = 0; cycle < 60'000 && !model.is_idle(); ++cycle)
            model.run_cycle();
        EXPECT_TRUE(model.is_idle());
    }

    /// A motion command of the kind.
    std::uint32_t make(const std::string& kind, std::uint32_t robot_id = 0)
    {
        const auto id = ask("motion_command_robot_" + kind + "_create").value[0];
        EXPECT_EQ(result("motion_command_robot_robot_id_set", {{id, robot_id}}), 100000u);
        return id;
    }

    std::uint32_t make_turn(double angle, std::uint32_t robot_id = 0, std::uint32_t joint = 0)
    {
        const auto id = make("joint", robot_id);
        EXPECT_EQ(result("motion_command_robot_joint_angle_end_set", {{id, joint}, {angle}}), 100000u);
        return id;
    }

    std::array<double, 6> pose() const { return field<std::array<double, 6>>(2608 + 320); }
    double angle(std::size_t joint) const { return field<double>(2608 + 1896 + 472 * joint + 56); }
};

#endif
