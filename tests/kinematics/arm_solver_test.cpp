#include "kinematics/arm_solver.h"

#include <limits>

#include <gtest/gtest.h>

#include "arm_test_support.h"

namespace
{
using namespace kinematics_test;

TEST(arm_models, are_nine_arms_of_growing_reach_that_the_inverse_knows)
{
    double previous = 0.0;
    int expected = QORIN_ROBOT_MODEL_ARM_A;
    for (const arm_model& arm : arm_models())
    {
        EXPECT_EQ(expected++, static_cast<int>(arm.model));
        EXPECT_EQ(&arm, find_arm_model(arm.model));
        EXPECT_TRUE(arm_solver(arm.table).has_closed_form()) << arm.model;
        for (const auto& joint : arm.joints)
        {
            EXPECT_LT(joint.angle_min, joint.angle_max);
            EXPECT_GT(joint.acceleration_max, joint.speed_max);
        }
        const double reach = arm.table.a[0] + arm.table.a[1] + std::hypot(arm.table.a[2], arm.table.d[3]);
        EXPECT_GT(reach, previous) << arm.model;
        previous = reach;
    }
    EXPECT_EQ(QORIN_ROBOT_MODEL_ARM_I + 1, expected);
    EXPECT_EQ(nullptr, find_arm_model(QORIN_ROBOT_MODEL_OHT));
}

TEST(arm_solver, forward_agrees_with_a_chain_of_elementary_transforms)
{
    std::mt19937_64 random(11);
    std::uniform_real_distribution angle(-180.0, 180.0);
    std::uniform_real_distribution length(-700.0, 700.0);
    for (int i = 0; i < 20'000; ++i)
    {
        dh_table table; // any six joints, no wrist in particular
        joint_array joints;
        for (std::size_t j = 0; j < joint_count; ++j)
        {
            table.theta[j] = angle(random);
            table.d[j] = length(random);
            table.a[j] = length(random);
            table.alpha[j] = angle(random);
            joints[j] = 2.0 * angle(random);
        }
        ASSERT_TRUE(reaches(arm_solver(table), joints, link_frames(table, joints).back())) << shown{joints};
    }
}

TEST_P(every_arm, reaches_random_poses_in_all_valid_postures)
{
    for (int i = 0, count = pose_count(); i < count && !HasFailure(); ++i)
    {
        const joint_array joints = random_joints();
        const solution_set solutions = reaching_solutions(solver, solver.forward(joints));
        EXPECT_TRUE(solutions.valid[observed_posture(table, joints).index()]) << shown{joints};
    }
}

TEST_P(every_arm, finds_back_to_the_joints_that_the_reference_is_near_to)
{
    std::uniform_real_distribution offset(-0.01, 0.01);
    for (int i = 0; i < 10'000; ++i)
    {
        const joint_array joints = random_joints(); // up to a turn off zero
        joint_array reference = joints;
        for (double& joint : reference)
            joint += offset(random);
        const auto found = solver.inverse(solver.forward(joints), reference);
        ASSERT_TRUE(found) << shown{joints};
        // Close to a singular pose another branch may be nearer still, yet never farther than the joints themselves.
        for (std::size_t j = 0; j < joint_count; ++j)
            ASSERT_NEAR(reference[j], (*found)[j], 0.03) << shown{joints};
    }
}

TEST_P(every_arm, answers_a_wanted_posture_with_that_posture)
{
    std::array<int, solution_count> found_count{};
    for (int i = 0; i < 5'000; ++i)
    {
        const flange_pose pose = solver.forward(random_joints());
        for (std::size_t p = 0; p < solution_count; ++p)
        {
            const posture wanted{(p & 4U) != 0, (p & 2U) != 0, (p & 1U) != 0};
            const auto joints = solver.inverse_from_posture(pose, wanted);
            if (!joints)
                continue;
            ASSERT_EQ(wanted, observed_posture(table, *joints)) << shown{*joints};
            ASSERT_TRUE(reaches(solver, *joints, transform_of(pose))) << shown{*joints};
            ++found_count[p];
        }
    }
    for (const int count : found_count)
        EXPECT_GT(count, 2'000);
}

INSTANTIATE_TEST_SUITE_P(models, every_arm, testing::ValuesIn(arm_models().begin(), arm_models().end()), model_of);

/// A random arm of the kind that the closed form knows: all signs, cranks and offsets that it allows.
dh_table random_solvable_table(std::mt19937_64& random)
{
    std::uniform_real_distribution angle(-180.0, 180.0);
    std::uniform_real_distribution length(100.0, 700.0);
    std::uniform_real_distribution offset(-90.0, 90.0);
    const auto sign = [&] { return random() % 2 == 0 ? 1.0 : -1.0; };
    dh_table table;
    for (double& theta : table.theta)
        theta = angle(random);
    table.d = {offset(random), offset(random), offset(random), sign() * length(random), 0.0, offset(random)};
    table.a = {offset(random), sign() * length(random), offset(random), 0.0, 0.0, offset(random)};
    table.alpha = {sign() * 90.0, sign() > 0.0 ? 0.0 : 180.0, angle(random), sign() * 90.0, sign() * 90.0,
                   angle(random)};
    return table;
}

TEST(arm_solver, solves_every_arm_of_its_kind)
{
    std::mt19937_64 random(12);
    std::uniform_real_distribution angle(-180.0, 180.0);
    for (int i = 0; i < 20'000; ++i)
    {
        const dh_table table = random_solvable_table(random);
        const arm_solver solver(table);
        ASSERT_TRUE(solver.has_closed_form());
        joint_array joints;
        for (double& joint : joints)
            joint = angle(random);
        const solution_set solutions = reaching_solutions(solver, solver.forward(joints));
        ASSERT_TRUE(solutions.valid[observed_posture(table, joints).index()]) << i;
        for (std::size_t s = 0; s < solution_count; ++s)
            ASSERT_TRUE(!solutions.valid[s] || s == observed_posture(table, solutions.joints[s]).index()) << i;
        ASSERT_FALSE(HasFailure()) << i;
    }
}

TEST(arm_solver, stays_within_half_a_turn_of_the_reference)
{
    const arm_model& arm = arm_models()[3];
    const arm_solver solver(arm.table);
    const joint_array joints{20.0, -35.0, 100.0, 15.0, 70.0, -60.0};
    const flange_pose pose = solver.forward(joints);
    for (const double turns : {-3.0, -1.0, 0.0, 2.0, 90.0})
    {
        joint_array reference = joints;
        for (double& joint : reference)
            joint += 360.0 * turns;
        const auto nearest = solver.inverse(pose, reference);
        ASSERT_TRUE(nearest);
        const solution_set all = solver.inverse_all_solutions(pose, reference);
        for (std::size_t j = 0; j < joint_count; ++j)
        {
            EXPECT_NEAR(reference[j], (*nearest)[j], 1e-9);
            for (const joint_array& solution : all.joints)
                EXPECT_NEAR(reference[j], solution[j], 180.0 + 1e-9);
        }
    }
}

TEST(arm_solver, refuses_what_it_cannot_solve)
{
    const dh_table table = arm_models()[6].table;
    const arm_solver solver(table);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    const flange_pose good{{600.0, 100.0, 500.0}, {180.0, 0.0, 0.0}};
    ASSERT_TRUE(solver.inverse(good, {}));

    const flange_pose targets[] = {
        {{5'000.0, 0.0, 500.0}, {}}, {{0.0, 0.0, -3'000.0}, {}},   {{1e300, 1e300, 0.0}, {}},
        {{nan, 0.0, 500.0}, {}},     {{600.0, 0.0, infinite}, {}}, {{600.0, 0.0, 500.0}, {0.0, nan, 0.0}},
    };
    for (const flange_pose& target : targets)
    {
        EXPECT_FALSE(solver.inverse(target, {})) << target.position[0];
        EXPECT_EQ(solution_set().valid, solver.inverse_all_solutions(target).valid) << target.position[0];
        EXPECT_FALSE(solver.inverse_from_posture(target, {}));
    }
    for (const double reference : {nan, infinite, 1e9})
        EXPECT_FALSE(solver.inverse(good, {0.0, reference, 0.0, 0.0, 0.0, 0.0})) << reference;
}

TEST(arm_solver, refuses_the_inverse_of_tables_of_another_kind_but_not_their_forward)
{
    using column = joint_array dh_table::*;
    const struct
    {
        const char* what;
        column quantity;
        std::size_t joint;
        double value;
    } cases[] = {
        {"joint 2 askew to joint 1", &dh_table::alpha, 0, -89.9},
        {"joint 3 askew to joint 2", &dh_table::alpha, 1, 90.0},
        {"no upper arm", &dh_table::a, 1, 0.0},
        {"wrist offset along x", &dh_table::a, 3, 20.0},
        {"wrist offset beside", &dh_table::d, 4, 90.0},
        {"wrist offset behind", &dh_table::a, 4, -1.0},
        {"wrist not at right angles", &dh_table::alpha, 3, 60.0},
        {"straight wrist", &dh_table::alpha, 4, 0.0},
    };
    const joint_array joints{10.0, 20.0, 30.0, 40.0, 50.0, 60.0};
    for (const auto& [what, quantity, joint, value] : cases)
    {
        dh_table table = arm_models()[1].table;
        (table.*quantity)[joint] = value;
        const arm_solver solver(table);
        EXPECT_FALSE(solver.has_closed_form()) << what;
        EXPECT_FALSE(solver.inverse(solver.forward(joints), joints)) << what;
        EXPECT_TRUE(reaches(solver, joints, link_frames(table, joints).back())) << what;
    }
}
} // namespace
