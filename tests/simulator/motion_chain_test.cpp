#include "simulator/motion/joint_way.h"
#include "simulator/motion/motion_chain.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "simulator/motion/command_path.h"
#include "simulator/motion/jog.h"
#include "tests/simulator/random_motions.h"

namespace
{
using namespace motion_test;

const savrent::kinematics::arm_model& arm_model_used()
{
    return *savrent::kinematics::find_arm_model(QORIN_ROBOT_MODEL_ARM_G);
}

struct motion_chain : testing::Test
{
    const arm_kinematics solver{arm_model_used().table};
    const moving_arm arm{solver, bounds_of(arm_model_used()), {10, 0, 150, 0, 0, 30}};
    const joint_array ready{0, 0, 0, 0, 90, 0};

    pose tcp_of(const joint_array& joints) const
    {
        const auto [p, o] = solver.forward(joints);
        return placed({p[0], p[1], p[2], o[0], o[1], o[2]}, arm.tool);
    }
    planned_motion planned(std::vector<motion_link> links) const
    {
        const chain_plan plan = plan_chain(std::move(links), solver, arm.tool);
        EXPECT_EQ(plan.result, QORIN_API_RESULT_OK);
        return plan.motion;
    }
    /// The joints at the end of a motion that the arm can follow in so many steps.
    joint_array follow(const planned_motion& motion, joint_array joints, int steps, double least_margin) const
    {
        const double step = motion.duration() / steps;
        for (int k = 1; k <= steps && step > 0; ++k)
        {
            const auto now = motion.at(step * k).to_joints(solver, arm.tool, joints);
            EXPECT_TRUE(now && is_within(arm.bounds, *now)) << step * k;
            if (!now)
                break;
            EXPECT_GE(speed_margin(arm.bounds, joints, *now, step), least_margin) << step * k;
            joints = *now;
        }
        return joints;
    }
    QORIN_API_RESULT refusal(std::vector<motion_link> links) const
    {
        return plan_chain(std::move(links), solver, arm.tool).result;
    }
};

/// A line or an arc from a pose.
pose_path any_path(random_motions& random, const pose& start, bool arcs)
{
    const auto near = [&] { return vector3_of(at(start) + vector_of(random.vector(200))); };
    tcp_path told;
    told.position_end = near();
    if (random.toss())
        told.orientation_end = {start[3] + random.between(-40, 40), start[4], start[5]};
    if (arcs && random.toss())
    {
        told.interpolator = QORIN_INTERPOLATOR_CIRCULAR;
        told.position_mid = near();
    }
    return *path_of(told, start).path;
}

Eigen::Quaterniond turn_from(const pose& a, const pose& b)
{
    return cbox_simulator::motion::rotation_of(b) * cbox_simulator::motion::rotation_of(a).conjugate();
}

TEST_F(motion_chain, blends_ways_within_the_radius_and_smoothly)
{
    random_motions random(21);
    for (int i = 0; i < 300; ++i)
    {
        SCOPED_TRACE(i);
        const bool arcs = i % 2 == 1;
        const pose start = random.placement();
        std::vector<motion_link> links;
        std::vector<tcp_motion> motions;
        pose from = start;
        double acceleration = 0;
        for (int k = 0; k < 4; ++k)
        {
            const motion_limits limits{random.size(10, 400), random.size(50, 4000), random.size(50, 4000),
                                       random.between(0, 100), QORIN_VELOCITY_PROFILE_ASYMMETRIC_S_CURVE};
            motions.emplace_back(any_path(random, from, arcs), limits);
            links.push_back({motions.back(), random.toss() ? random.size(0.5, 100) : 0});
            acceleration = std::max({acceleration, limits.acc_max, limits.dec_max});
            from = motions.back().path().end();
        }
        const planned_motion chain = planned(links);
        EXPECT_EQ(chain.at(0).point->target, start);
        EXPECT_EQ(chain.at(chain.duration()).point->target, from);
        const planned_motion again = planned(links);
        for (const double time : {0.2 * chain.duration(), 0.6 * chain.duration()})
            EXPECT_EQ(chain.at(time).point->target, again.at(time).point->target) << "the same bits";

        const auto times = chain.commands();
        for (std::size_t k = 0; k + 1 < times.size(); ++k)
        {
            EXPECT_EQ(times[k].blend_begin, times[k + 1].start);
            EXPECT_LE(times[k].start, times[k].blend_begin);
            EXPECT_LE(times[k].end, times[k + 1].blend_begin * (1 + 1e-12));
            EXPECT_EQ(times[k].end > times[k].blend_begin, links[k].blend_radius > 0);
            const double radius = links[k].blend_radius;
            for (int n = 0; n <= 20; ++n)
            {
                const double time = std::lerp(times[k].blend_begin, times[k].end, n / 20.0);
                ASSERT_LE((at(chain.at(time).point->target) - at(motions[k].path().end())).norm(),
                          radius * (1 + 1e-9) + 1e-9);
            }
        }
        if (arcs)
            acceleration = 4 * acceleration + 400 * 400 / 5.0; // and across the bends
        constexpr double h = 5e-4;
        const double step = chain.duration() / 200;
        for (double time = 0; time < chain.duration(); time += step)
        {
            const pose a = chain.at(time - h).point->target;
            const pose b = chain.at(time).point->target;
            const pose c = chain.at(time + h).point->target;
            ASSERT_LE((at(a) - 2 * at(b) + at(c)).norm() / (h * h), acceleration * (1 + 1e-6) + 1e-5) << time;
            const double turn = savrent::kinematics::degrees(turn_from(a, b).angularDistance(turn_from(b, c)));
            ASSERT_LE(turn / (h * h), 2 * acceleration + 400 * 8.0 + 10) << time;
        }
    }
}

TEST_F(motion_chain, blends_joint_motions_within_bounds)
{
    random_motions random(22);
    for (int i = 0; i < 300; ++i)
    {
        SCOPED_TRACE(i);
        std::vector<motion_link> links;
        std::vector<joint_array> corners{random.joints(arm.bounds)};
        motion_limits limits{random.size(10, 200), random.size(50, 2000), random.size(50, 2000),
                             random.between(0, 100)};
        for (int k = 0; k < 4; ++k)
        {
            corners.push_back(random.joints(arm.bounds));
            links.push_back(
                {joint_motion(corners[corners.size() - 2], corners.back(), limits, arm.bounds), random.size(0.1, 90)});
        }
        const planned_motion chain = planned(links);
        EXPECT_EQ(chain.at(chain.duration()).joints, corners.back());
        for (std::size_t k = 0; k + 1 < links.size(); ++k)
            for (int n = 0; n <= 20; ++n)
            {
                const auto times = chain.commands()[k];
                const joint_array now = chain.at(std::lerp(times.blend_begin, times.end, n / 20.0)).joints;
                ASSERT_LE(farthest(now, corners[k + 1]), links[k].blend_radius * (1 + 1e-9));
            }
        constexpr double h = 5e-4;
        for (double time = 0; time < chain.duration(); time += chain.duration() / 200)
        {
            const joint_array a = chain.at(time - h).joints;
            const joint_array b = chain.at(time).joints;
            const joint_array c = chain.at(time + h).joints;
            for (std::size_t joint = 0; joint < joint_count; ++joint)
            {
                const joint_bound& bound = arm.bounds[joint];
                ASSERT_LE(std::abs(c[joint] - b[joint]) / h,
                          std::min(limits.speed_max, bound.speed_max) * (1 + 1e-9) + 1e-9);
                ASSERT_LE(std::abs(a[joint] - 2 * b[joint] + c[joint]) / (h * h),
                          std::min(std::max(limits.acc_max, limits.dec_max), bound.acceleration_max) * (1 + 1e-6) +
                              1e-5)
                    << time << " joint " << joint;
            }
        }
    }
}

TEST_F(motion_chain, blends_joint_motions_with_ways_through_space)
{
    const joint_array beside{40, 10, -10, 5, 85, 20};
    const motion_limits joint_limits{60, 300, 300, 50};
    const motion_limits way_limits{200, 1000, 1000, 50};
    pose line_end = tcp_of(beside);
    line_end[2] -= 150;
    for (const double radius : {5.0, 30.0, 60.0})
    {
        const planned_motion chain =
            planned({{joint_motion(ready, beside, joint_limits, arm.bounds), radius},
                     {tcp_motion(pose_path::line(tcp_of(beside), line_end), way_limits), radius},
                     {tcp_motion(pose_path::line(line_end, tcp_of(beside)), way_limits), radius},
                     {joint_motion(beside, ready, joint_limits, arm.bounds)}});
        joint_array before = ready;
        joint_array speed{};
        for (double time = 0; time < chain.duration(); time += 5 * cycle)
        {
            const auto joints = chain.at(time).to_joints(solver, arm.tool, before);
            ASSERT_TRUE(joints);
            for (std::size_t joint = 0; joint < joint_count; ++joint)
            {
                const double now = ((*joints)[joint] - before[joint]) / (5 * cycle);
                ASSERT_NEAR(now, speed[joint], 10000 * cycle) << time << " joint " << joint;
                speed[joint] = now;
            }
            before = *joints;
            for (const auto& [corner, times] :
                 {std::pair{tcp_of(beside), chain.commands()[0]}, std::pair{line_end, chain.commands()[1]},
                  std::pair{tcp_of(beside), chain.commands()[2]}})
            {
                if (time >= times.blend_begin && time <= times.end)
                {
                    ASSERT_LE((at(tcp_of(before)) - at(corner)).norm(), radius * 1.02);
                }
            }
        }
        EXPECT_EQ(chain.at(chain.duration()).joints, ready);
    }
}

TEST_F(motion_chain, goes_through_at_told_speeds_where_it_can)
{
    const motion_limits limits{100, 200, 200, 50};
    const auto line = [&](double from, double to, double start_speed, double end_speed, double y = 0)
    {
        return motion_link{
            tcp_motion(pose_path::line({from, 0, 0, 0, 0, 0}, {to, y, 0, 0, 0, 0}), limits, start_speed, end_speed), 0};
    };
    const planned_motion chain = planned({line(0, 100, 70, 40), line(100, 200, 60, 90)});
    const double meeting = chain.commands()[0].end;
    for (const double beside : {-0.04, -0.02, 0.0, 0.01})
        EXPECT_NEAR(
            (at(chain.at(meeting + beside + cycle).point->target) - at(chain.at(meeting + beside).point->target))
                    .norm() /
                cycle,
            40, 0.5)
            << beside;
    EXPECT_NEAR(chain.at(1e-4).path_speed, 0, 0.1) << "the whole starts at rest";
    EXPECT_NEAR(chain.at(chain.duration() - 1e-4).path_speed, 0, 0.1);

    EXPECT_EQ(refusal({line(0, 100, 0, 40), line(100, 200, 40, 0, 10)}), 104014u);
    EXPECT_EQ(refusal({line(0, 2, 0, 90), line(2, 200, 90, 0)}), 104009u) << "too short for the speed";
    EXPECT_EQ(refusal({line(0, 200, 0, 90), line(200, 202, 90, 0)}), 104009u) << "too short to brake";
    auto of_flange = motion_link{
        tcp_motion(pose_path::line({100, 0, 0, 0, 0, 0}, {200, 0, 0, 0, 0, 0}), limits, 0, 0, QORIN_POSE_TYPE_FLANGE)};
    auto blending = line(0, 100, 0, 0);
    blending.blend_radius = 5;
    EXPECT_EQ(refusal({blending, of_flange}), 104005u);
}

TEST_F(motion_chain, tells_where_a_way_cannot_be_gone_or_must_be_slower)
{
    random_motions random(24);
    int slowed = 0;
    int refused = 0;
    for (int i = 0; i < 200; ++i)
    {
        SCOPED_TRACE(i);
        const joint_array start = random.joints(arm.bounds);
        pose end = tcp_of(start);
        Eigen::Vector3d::Map(end.data()) += vector_of(random.vector(400));
        motion_limits limits{random.size(20, 2000), 20000, 20000, 50};
        const auto check = [&]
        { return check_way(planned_motion(tcp_motion(pose_path::line(tcp_of(start), end), limits)), arm, start); };
        const way_report first = check();
        if (first.result != QORIN_API_RESULT_OK)
        {
            ++refused;
            continue;
        }
        slowed += first.speed_limit < limits.speed_max ? 1 : 0;
        limits.speed_max = std::min(limits.speed_max, first.speed_limit);
        const planned_motion motion{tcp_motion(pose_path::line(tcp_of(start), end), limits)};
        const joint_array reached = follow(motion, start, 500, 0.99);
        EXPECT_LT(farthest(reached, first.end_joints), 1e-6);
        EXPECT_LT((at(tcp_of(reached)) - at(end)).norm(), 1e-6);
    }
    EXPECT_GT(slowed, 10);
    EXPECT_GT(refused, 20);
}

TEST_F(motion_chain, jogs_up_to_where_the_arm_can_go_and_never_beyond)
{
    random_motions random(25);
    for (int i = 0; i < 60; ++i)
    {
        SCOPED_TRACE(i);
        const joint_array start = random.joints(arm.bounds);
        const jog_speed told{random.size(5, 200), random.size(50, 1000)};
        const auto joint = static_cast<std::size_t>(i) % joint_count;
        const planned_motion turn = jog_joint(start, joint, QORIN_DIRECTION_NEGATIVE, told, arm.bounds);
        EXPECT_EQ(turn.at(turn.duration()).joints[joint], arm.bounds[joint].angle_min);

        const double told_way = random.toss() ? no_end : random.between(0, 100);
        const planned_motion jog = random.toss() ? jog_position(arm, start, random.vector(1), told, told_way)
                                                 : jog_orientation(arm, start, random.vector(1), told, told_way);
        follow(jog, start, 300, 0.95);
    }
    // Downwards for a known way, and up to the reach.
    const planned_motion known = jog_position(arm, ready, {0, 0, -2}, {50, 200}, 30);
    EXPECT_NEAR(known.at(9).point->target[2], tcp_of(ready)[2] - 30, 1e-9);
    const planned_motion turn = jog_orientation(arm, ready, {0, 0, 1}, {20, 100}, 45);
    EXPECT_NEAR(turn_between(turn.at(9).point->target, tcp_of(ready)), 45, 1e-6);
}
} // namespace
