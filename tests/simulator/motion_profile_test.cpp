#include <cmath>

#include <gtest/gtest.h>

#include "simulator/motion/drive_lag.h"
#include "simulator/motion/rate_governor.h"
#include "tests/simulator/random_motions.h"

namespace
{
using namespace motion_test;

constexpr double beyond = 1 + 1e-9;

/// The shortest time from one speed over a top to another one, written from the areas under the speeds.
double shortest_time(const motion_limits& limits, double length, double start, double end)
{
    const double up = limits.mean_acceleration();
    const double down = limits.mean_deceleration();
    const double top =
        std::min(limits.speed_max, std::sqrt((length + start * start / (2 * up) + end * end / (2 * down)) /
                                             (1 / (2 * up) + 1 / (2 * down))));
    const double ramps = (top * top - start * start) / (2 * up) + (top * top - end * end) / (2 * down);
    return (top - start) / up + (top - end) / down + (length - ramps) / top;
}

TEST(speed_profile, keeps_every_limit_and_takes_the_time_of_its_formula)
{
    random_motions random(1);
    for (int i = 0; i < 5000; ++i)
    {
        SCOPED_TRACE(i);
        const motion_limits limits = random.limits();
        const double length = random.size(1e-3, 2000);
        const double start = random.toss() ? 0 : random.between(0, limits.speed_max);
        const double end = random.toss() ? 0 : random.between(0, limits.speed_max);
        const speed_profile profile = speed_profile::plan(limits, length, start, end);
        const double duration = profile.duration();
        EXPECT_EQ(profile.at(0).speed, start);
        EXPECT_EQ(profile.at(duration).position, length);
        EXPECT_EQ(profile.at(duration * 2).speed, profile.end_speed());
        if (profile.end_speed() == end)
            EXPECT_NEAR(duration, shortest_time(limits, length, start, end), 1e-9 * duration);
        else
        {
            const double rate = end > start ? limits.mean_acceleration() : limits.mean_deceleration();
            EXPECT_NEAR(std::abs(profile.end_speed() * profile.end_speed() - start * start), 2 * rate * length,
                        1e-9 * (2 * rate * length + start * start));
        }

        const double share = limits.jerk_share();
        const double ramp_times[] = {(profile.top_speed() - start) / limits.mean_acceleration(),
                                     (profile.top_speed() - end) / limits.mean_deceleration()};
        const double most_jerk =
            std::max(2 * limits.acc_max / (share * ramp_times[0]), 2 * limits.dec_max / (share * ramp_times[1]));
        profile_sample before = profile.at(0);
        constexpr int steps = 200;
        const double step = duration / steps;
        for (int k = 1; k <= steps; ++k)
        {
            const profile_sample now = profile.at(step * k);
            ASSERT_LE(now.speed, limits.speed_max * beyond);
            ASSERT_GE(now.speed, -1e-9 * limits.speed_max);
            ASSERT_LE(now.acceleration, limits.acc_max * beyond);
            ASSERT_GE(now.acceleration, -limits.dec_max * beyond);
            if (share > 0 && profile.end_speed() == end)
            {
                ASSERT_LE(std::abs(now.jerk), most_jerk * beyond);
                ASSERT_LE(std::abs(now.acceleration - before.acceleration), most_jerk * step * (1 + 1e-6) + 1e-6);
            }
            const double fastest_change = std::max(limits.acc_max, limits.dec_max) * step * beyond;
            ASSERT_LE(std::abs(now.speed - before.speed), fastest_change + 1e-9 * limits.speed_max);
            ASSERT_NEAR(now.position - before.position, (now.speed + before.speed) / 2 * step,
                        fastest_change * step / 4 + 1e-9 * length);
            before = now;
        }
    }
}

TEST(speed_profile, changes_its_acceleration_in_the_told_share_of_each_ramp)
{
    const motion_limits limits{100, 200, 400, 40, QORIN_VELOCITY_PROFILE_ASYMMETRIC_S_CURVE};
    const speed_profile profile = speed_profile::plan(limits, 1000);
    const double up = 100 / (200 * 0.8); // seconds: the mean of the acceleration is 1 - 0.4 / 2 of its peak
    const double jerk = 200 / (up * 0.2);
    EXPECT_DOUBLE_EQ(profile.at(up * 0.1).acceleration, 100);
    EXPECT_DOUBLE_EQ(profile.at(up * 0.1).jerk, jerk);
    EXPECT_EQ(profile.at(up * 0.5).acceleration, 200);
    EXPECT_NEAR(profile.at(up * 0.9).jerk, -jerk, 1e-9);
    EXPECT_EQ(profile.at(up * 1.01).speed, 100);
    EXPECT_NEAR(profile.at(profile.duration() - up / 4).acceleration, -400, 1e-9);
    EXPECT_NEAR(profile.at(up).position, 50 * up, 1e-12) << "at half of the speed in the mean";

    const speed_profile short_way = speed_profile::plan(limits, 1, 100, 0);
    EXPECT_DOUBLE_EQ(short_way.end_speed(), std::sqrt(100 * 100 - 2 * 320 * 1)) << "as slow as it gets on the way";
}

TEST(joint_motion, has_all_joints_start_and_end_together_within_their_bounds)
{
    random_motions random(2);
    for (int i = 0; i < 2000; ++i)
    {
        SCOPED_TRACE(i);
        const auto& arm = savrent::kinematics::arm_models()[static_cast<std::size_t>(i) % 9];
        const joint_bounds bounds = bounds_of(arm);
        const joint_array start = random.joints(bounds);
        joint_array end = random.joints(bounds);
        if (random.toss())
            end[2] = start[2];
        const motion_limits limits = random.limits();
        const joint_motion motion(start, end, limits, bounds);
        EXPECT_EQ(motion.at(0), start);
        EXPECT_EQ(motion.at(motion.duration()), end);

        double slowest = 0;
        for (std::size_t joint = 0; joint < joint_count; ++joint)
        {
            joint_array alone = start;
            alone[joint] = end[joint];
            slowest = std::max(slowest, joint_motion(start, alone, limits, bounds).duration());
        }
        EXPECT_GE(motion.duration(), slowest * (1 - 1e-9));

        joint_array before = start;
        const double step = motion.duration() / 50;
        for (int k = 1; k <= 50; ++k)
        {
            const joint_array now = motion.at(step * k);
            for (std::size_t joint = 0; joint < joint_count; ++joint)
            {
                const double fastest = std::min(limits.speed_max, bounds[joint].speed_max);
                ASSERT_LE(std::abs(now[joint] - before[joint]), fastest * step * beyond + 1e-12);
                ASSERT_NEAR((now[joint] - start[joint]) * (end[0] - start[0]),
                            (now[0] - start[0]) * (end[joint] - start[joint]), 1e-8);
            }
            before = now;
        }
    }
}

TEST(rate_governor, never_leaps_nor_leaves_its_range_whatever_it_is_told_when)
{
    random_motions random(3);
    for (int i = 0; i < 300; ++i)
    {
        rate_governor governor;
        governor.start_at(random.between(0, 1));
        double shortest = 1;
        for (int k = 0; k < 2000; ++k)
        {
            if (random.between(0, 1) < 0.01)
            {
                const double told = random.size(0.02, 1);
                shortest = std::min(shortest, told);
                governor.go_to(random.toss() ? 0 : random.between(0, 2), told);
            }
            const double rate = governor.rate();
            const double passed = governor.advance(cycle);
            ASSERT_GE(governor.rate(), -1e-12);
            ASSERT_LE(governor.rate(), 2 + 1e-12);
            const double steepest = 1.5 * 2 / shortest;
            ASSERT_LE(std::abs(governor.rate() - rate), steepest * cycle * beyond);
            ASSERT_NEAR(passed, (rate + governor.rate()) / 2 * cycle,
                        20 / (shortest * shortest) * cycle * cycle * cycle);
        }
    }
}

TEST(rate_governor, reaches_a_rate_in_the_told_time_and_answers_the_same_time_for_any_cycle)
{
    const auto time_passed = [](int cycles)
    {
        rate_governor governor;
        governor.go_to(0, 0.5);
        double passed = 0;
        for (int i = 0; i < cycles; ++i)
            passed += governor.advance(0.6 / cycles);
        EXPECT_TRUE(governor.stands());
        return passed;
    };
    EXPECT_NEAR(time_passed(600), 0.25, 1e-12);
    EXPECT_NEAR(time_passed(7), 0.25, 1e-12);

    // As fast as a bound of acceleration allows: from 100 to rest at no more than 400.
    const double time = rate_governor::shortest_time(1, 100, 400);
    rate_governor governor;
    governor.go_to(0, time);
    governor.advance(time / 2);
    EXPECT_DOUBLE_EQ(governor.rate_slope() * 100, -400);
}

TEST(drive_lag, lies_behind_a_steady_speed_by_its_time_constant_and_settles)
{
    for (const double period : {1e-3, 2e-4, 5e-3})
    {
        drive_lag lag;
        joint_array command{};
        double time = 0;
        while (time < 0.1)
        {
            time += period;
            command[1] = 50 * time;
            lag.follow(command, period);
            const double exact = 50 * (time - drive_lag::time_constant * -std::expm1(-time / drive_lag::time_constant));
            ASSERT_NEAR(lag.actual()[1], exact, 1e-10) << period;
        }
        EXPECT_FALSE(lag.has_settled());
        for (int i = 0; i < 0.04 / period; ++i)
            lag.follow(command, period);
        EXPECT_TRUE(lag.has_settled());
        EXPECT_EQ(lag.actual()[0], 0);
    }
}
} // namespace
