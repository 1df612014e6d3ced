// What it takes to hold and move an arm, against the work that it does.
#include <cmath>

#include <gtest/gtest.h>

#include "kinematics/arm_solver.h"
#include "kinematics/rotation.h"
#include "simulator/motion/arm_load.h"
#include "tests/simulator/random_motions.h"

namespace
{
using namespace motion_test;
using cbox_simulator::motion::arm_load;

constexpr std::array<double, 3> down{0.3, -0.4, -0.8};
constexpr joint_array still{};

/// Kinetic and potential energy of what is carried, and the work done by pressing, for a steady course.
struct course
{
    const savrent::kinematics::arm_solver& solver;
    carried_mass carried;
    joint_array angles;
    joint_array speeds;
    joint_array accelerations;

    joint_array angles_at(double time) const
    {
        joint_array at{};
        for (std::size_t i = 0; i < joint_count; ++i)
            at[i] = angles[i] + speeds[i] * time + accelerations[i] * time * time / 2;
        return at;
    }
    /// Metres.
    Vector3d mass_at(double time) const
    {
        const auto flange = solver.forward(angles_at(time));
        return (Vector3d::Map(flange.position.data()) +
                savrent::kinematics::rotation_of(flange.orientation) * Vector3d::Map(carried.centre.data())) /
               1000;
    }
    double energy_at(double time) const
    {
        constexpr double step = 1e-5;
        const Vector3d velocity = (mass_at(time + step) - mass_at(time - step)) / (2 * step);
        return carried.mass * (velocity.squaredNorm() / 2 -
                               arm_load::gravity * Vector3d::Map(down.data()).normalized().dot(mass_at(time)));
    }
};

TEST(arm_load_test, what_is_carried_and_pressed_takes_the_power_that_it_gets)
{
    const auto& arm = *savrent::kinematics::find_arm_model(QORIN_ROBOT_MODEL_ARM_C);
    const savrent::kinematics::arm_solver solver(arm.table);
    const arm_load load(arm);
    random_motions random(3);
    for (int round = 0; round < 300; ++round)
    {
        course moved{solver, {random.between(0, 6), random.vector(200)}, random.joints(bounds_of(arm)), {}, {}};
        for (std::size_t i = 0; i < joint_count; ++i)
        {
            moved.speeds[i] = random.between(-100, 100);
            moved.accelerations[i] = random.between(-500, 500);
        }
        const auto flange = solver.forward(moved.angles);
        const pressing pressed{random.vector(50), {}, flange.position};
        const joint_course now{moved.angles, moved.speeds, moved.accelerations};
        const auto without = load.torques(now, {}, down, {});
        const auto with = load.torques(now, moved.carried, down, pressed);
        double power = 0;
        for (std::size_t i = 0; i < joint_count; ++i)
            power += (with[i] - without[i]) * savrent::kinematics::radians(moved.speeds[i]);

        constexpr double step = 1e-4;
        const auto ahead = solver.forward(moved.angles_at(step)).position;
        const auto behind = solver.forward(moved.angles_at(-step)).position;
        double wanted = (moved.energy_at(step) - moved.energy_at(-step)) / (2 * step);
        for (std::size_t axis = 0; axis < 3; ++axis)
            wanted += pressed.force[axis] * (ahead[axis] - behind[axis]) / 1000 / (2 * step);
        EXPECT_NEAR(power, wanted, 1e-3 * (1 + std::abs(wanted))) << "round " << round;
    }
}

TEST(arm_load_test, an_arm_stands_within_its_rated_torque_and_is_heaviest_when_stretched_out)
{
    constexpr std::array<double, 3> floor{0, 0, -1};
    constexpr joint_array upright{};
    constexpr joint_array stretched{0, 90, 0, 0, 0, 0};
    for (const auto& arm : savrent::kinematics::arm_models())
    {
        if (arm.table.theta[2] != -90)
            continue; // not straight up at zero
        const arm_load load(arm);
        const carried_mass full{arm.payload, {0, 0, 100}};
        const auto held = load.torques({stretched, still, still}, full, floor, {});
        EXPECT_NEAR(std::abs(held[1]), load.rated_torques()[1], 0.3 * load.rated_torques()[1]) << arm.model;
        EXPECT_NEAR(held[0], 0, 1e-9);
        const auto standing = load.torques({upright, still, still}, full, floor, {});
        for (std::size_t i = 0; i < joint_count; ++i)
        {
            EXPECT_LE(std::abs(held[i]), load.rated_torques()[i] * (1 + 1e-9)) << arm.model << ", joint " << i;
            EXPECT_LE(std::abs(standing[i]), std::abs(held[i]) + 1e-9) << arm.model << ", joint " << i;
        }
    }
}
} // namespace
