#include <gtest/gtest.h>

#include "arm_test_support.h"
#include "kinematics/arm_solver.h"

namespace
{
using namespace kinematics_test;

/// Every solution that is offered must be right, and there must be one near the reference.
void expect_exact_solutions(const arm_solver& solver, const flange_pose& pose, const joint_array& reference)
{
    const auto nearest = solver.inverse(pose, reference);
    ASSERT_TRUE(nearest) << shown{reference};
    EXPECT_TRUE(reaches(solver, *nearest, transform_of(pose))) << shown{*nearest};
    reaching_solutions(solver, pose);
}

/// Joint 3 with the forearm in line with the upper arm. The tables of our arms have no twist between joints 2 and 3.
double stretched_elbow(const dh_table& table)
{
    const double forearm = std::atan2(-std::sin(to_radians(table.alpha[2])) * table.d[3], table.a[2]);
    return -forearm * 180.0 / std::numbers::pi - table.theta[2];
}

/// The flange pose that puts the wrist centre at a point with the given orientation.
flange_pose pose_with_wrist_at(const dh_table& table, const Eigen::Vector3d& wrist,
                               const std::array<double, 3>& orientation)
{
    const Eigen::Vector3d flange =
        wrist + transform_of({{}, orientation}).linear() * Eigen::Vector3d(0.0, 0.0, table.d[5]);
    return {{flange.x(), flange.y(), flange.z()}, orientation};
}

constexpr double distances_from_singular_deg[] = {0.0, 1e-14, 1e-12, 1e-10, 1e-9, 1e-8, 1e-7, 1e-6, 1e-4, 1e-2};

class every_singular_arm : public every_arm
{
protected:
    /// Solves arms with one joint at, near and opposite to the angle where they are singular, the others anywhere.
    void expect_solutions_about(std::size_t joint, double angle)
    {
        for (const double distance : distances_from_singular_deg)
            for (int i = 0; i < 200; ++i)
            {
                joint_array joints = random_joints();
                joints[joint] = angle + (i % 2 == 0 ? distance : 180.0 - distance);
                expect_exact_solutions(solver, solver.forward(joints), joints);
            }
    }
};

TEST_P(every_singular_arm, solves_straight_wrists)
{
    expect_solutions_about(4, -table.theta[4]);
}

TEST_P(every_singular_arm, solves_stretched_and_folded_elbows)
{
    expect_solutions_about(2, stretched_elbow(table));
}

TEST_P(every_singular_arm, keeps_joint_4_of_the_reference_when_the_wrist_is_straight)
{
    joint_array joints{30.0, 10.0, stretched_elbow(table) + 80.0, 25.0, -table.theta[4], 40.0};
    joint_array reference = joints;
    reference[3] = -70.0;
    const auto found = solver.inverse(solver.forward(joints), reference);
    ASSERT_TRUE(found);
    EXPECT_DOUBLE_EQ(-70.0, (*found)[3]);
    EXPECT_TRUE(reaches(solver, *found, link_frames(table, joints).back()));
}

TEST_P(every_singular_arm, refuses_what_is_a_micrometre_beyond_the_stretched_elbow)
{
    // Leaning ahead: behind its base an arm with a shoulder ahead of joint 1 could turn round and have slack again.
    const double lean_ahead = table.alpha[0] < 0.0 ? 40.0 : -40.0;
    const joint_array joints{30.0, lean_ahead, stretched_elbow(table), 0.0, 50.0, 0.0};
    const auto frames = link_frames(table, joints);
    const Eigen::Vector3d outward = (frames[5].translation() - frames[2].translation()).normalized();
    flange_pose pose = solver.forward(joints);
    ASSERT_TRUE(solver.inverse(pose, joints));
    for (std::size_t i = 0; i < 3; ++i)
        pose.position[i] += 1e-3 * outward[static_cast<Eigen::Index>(i)];
    EXPECT_FALSE(solver.inverse(pose, joints));
    EXPECT_EQ(solution_set().valid, solver.inverse_all_solutions(pose).valid);
}

TEST_P(every_singular_arm, treats_a_wrist_over_the_axis_of_joint_1_by_its_arm_plane)
{
    const bool plane_is_beside_axis = table.d[1] + table.d[2] != 0.0;
    const double height = table.d[0] + 0.8 * (table.a[1] + table.d[3]);
    for (const double beside : {0.0, 1e-13, 1e-11, 1e-9, 1e-7, 1e-4})
    {
        const flange_pose pose = pose_with_wrist_at(table, {beside, -beside, height}, {20.0, 100.0, -50.0});
        const joint_array reference{77.0, 0.0, 0.0, 0.0, 0.0, 0.0};
        if (plane_is_beside_axis)
        {
            EXPECT_FALSE(solver.inverse(pose, reference));
            continue;
        }
        expect_exact_solutions(solver, pose, reference);
        if (beside == 0.0)
        {
            EXPECT_DOUBLE_EQ(77.0, (*solver.inverse(pose, reference))[0]);
        }
    }
}

TEST_P(every_singular_arm, gives_and_takes_orientations_at_the_gimbal_lock)
{
    for (const double ry : {90.0, -90.0, 90.0 - 1e-13, -90.0 + 1e-9, 89.999999})
    {
        const flange_pose pose =
            pose_with_wrist_at(table, {0.5 * table.a[1], 0.4 * table.a[1], table.d[0]}, {33.0, ry, 71.0});
        expect_exact_solutions(solver, pose, {});
        if (std::abs(ry) == 90.0)
        {
            const auto joints = solver.inverse(pose, {});
            ASSERT_TRUE(joints);
            const flange_pose given = solver.forward(*joints);
            EXPECT_NEAR(ry, given.orientation[1], 1e-9);
            EXPECT_EQ(0.0, given.orientation[2]);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(models, every_singular_arm, testing::ValuesIn(arm_models().begin(), arm_models().end()),
                         model_of);

TEST(arm_of_equal_links, folds_its_wrist_onto_the_shoulder)
{
    dh_table table = savrent::kinematics::arm_models()[1].table;
    table.d[3] = table.a[1];
    const arm_solver solver(table);
    for (const double beside : {0.0, 1e-12, 1e-10, 1e-8, 1e-6, 1e-3})
    {
        const flange_pose pose = pose_with_wrist_at(table, {beside, 0.0, table.d[0] + beside}, {10.0, 20.0, 30.0});
        const joint_array reference{15.0, 55.0, 100.0, 0.0, 0.0, 0.0};
        expect_exact_solutions(solver, pose, reference);
        if (beside == 0.0)
        {
            EXPECT_DOUBLE_EQ(55.0, (*solver.inverse(pose, reference))[1]);
        }
    }
}
} // namespace
