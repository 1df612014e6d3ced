#include "simulator/motion/weave.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "tests/simulator/random_motions.h"

namespace
{
using namespace motion_test;

welding_weave swinging(QORIN_WELDING_WEAVING_PATTERN pattern, double left, double right, double frequency)
{
    welding_weave told;
    told.motion_switch = QORIN_SWITCH_ON;
    told.pattern = pattern;
    told.left_amplitude = left;
    told.right_amplitude = right;
    told.frequency = frequency;
    return told;
}

/// Along x with the tool looking down: left is y, up is z.
constexpr path_point on_way{{0, 0, 0, 180, 0, 0}, QORIN_POSE_TYPE_TCP, {1, 0, 0}};

constexpr auto patterns = {QORIN_WELDING_WEAVING_PATTERN_ZIGZAG, QORIN_WELDING_WEAVING_PATTERN_SINE_WAVE,
                           QORIN_WELDING_WEAVING_PATTERN_ELLIPSE};

TEST(weave, swings_to_both_sides_and_starts_and_ends_on_the_way)
{
    for (const auto pattern : patterns)
    {
        SCOPED_TRACE(pattern);
        weave swing(swinging(pattern, 5, 3, 2));
        double left = 0;
        double right = 0;
        for (int i = 1; i <= 4000; ++i)
        {
            swing.advance(cycle, (4000 - i) * cycle);
            const pose now = swing.laid_over(on_way);
            left = std::max(left, now[1]);
            right = std::min(right, now[1]);
            if (i == 1 || i == 4000)
            {
                EXPECT_LT(at(now).norm(), 1e-3);
            }
            ASSERT_NEAR(now[2], 0, 1e-12);
            ASSERT_LE(std::abs(now[0]), pattern == QORIN_WELDING_WEAVING_PATTERN_ELLIPSE ? 2.0 : 1e-12);
            ASSERT_EQ(now[3], 180);
        }
        EXPECT_NEAR(left, 5, 1e-3);
        EXPECT_NEAR(right, -3, 1e-3);
        EXPECT_NEAR(swing.sections(), pattern == QORIN_WELDING_WEAVING_PATTERN_ZIGZAG ? 4 * 2 * 4 : 0, 1);
    }
}

TEST(weave, stays_at_the_sides_and_shares_its_period_as_told)
{
    welding_weave told = swinging(QORIN_WELDING_WEAVING_PATTERN_ZIGZAG, 4, 4, 1);
    told.zigzag_ratio = {1, 2, 3, 4};
    told.left_stop_settling_time = 0.3;
    told.middle_stop_settling_time = 0.2;
    weave swing(told);
    std::vector<int> began;
    int at_left = 0;
    for (int i = 1; i <= 2000; ++i)
    {
        const auto before = swing.sections();
        swing.advance(cycle, 10);
        if (swing.sections() != before)
            began.push_back(i);
        at_left += std::abs(swing.laid_over(on_way)[1] - 4) < 1e-9 ? 1 : 0;
    }
    ASSERT_GE(began.size(), 4u);
    const int expected[] = {400, 800, 1100, 1700}; // each section, and its stay
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(began[i], expected[i], 2);
    EXPECT_NEAR(at_left, 300, 3 + 100) << "and again later";
}

TEST(weave, takes_changes_without_a_leap)
{
    random_motions random(31);
    for (int i = 0; i < 30; ++i)
    {
        SCOPED_TRACE(i);
        welding_weave told =
            swinging(*(patterns.begin() + i % 3), random.between(3, 6), random.between(3, 6), random.between(1.5, 3));
        told.middle_stop_settling_time = random.toss() ? 0 : 0.1;
        weave swing(told);
        Vector3d before = Vector3d::Zero();
        Vector3d speed = Vector3d::Zero();
        for (int k = 1; k <= 3000; ++k)
        {
            if (random.between(0, 1) < 0.002)
            {
                told.left_amplitude = random.between(3, 6);
                told.right_amplitude = random.between(3, 6);
                told.frequency = random.between(1.5, 3);
                told.left_stop_settling_time = random.toss() ? 0 : 0.1;
                told.middle_stop_settling_time = random.toss() ? 0 : 0.1;
                told.vertical_offset = random.between(-2, 2);
                told.horizontal_offset = random.between(-2, 2);
                told.offset = random.vector(2);
                swing.change(told);
            }
            swing.advance(cycle, (3000 - k) * cycle);
            const Vector3d now = at(swing.laid_over(on_way));
            const Vector3d change = (now - before) / cycle - speed;
            ASSERT_LT(change.norm(), 9) << k << ": at rounded turns at most";
            speed += change;
            before = now;
        }
        EXPECT_LT(before.norm(), 1e-12);
    }
}

TEST(weave, knows_left_and_up_from_tool_tilt_and_a_fixed_position)
{
    const auto offset_at = [](welding_weave told, double vertical, double horizontal, path_point point)
    {
        told.vertical_offset = vertical;
        told.horizontal_offset = horizontal;
        weave swing(told);
        swing.advance(1, 1);
        return at(swing.laid_over(point));
    };
    welding_weave told;
    EXPECT_LT((offset_at(told, 2, 1, on_way) - Vector3d(0, 1, 2)).norm(), 1e-12);
    told.plane_tilt_angle = 90;
    EXPECT_LT((offset_at(told, 2, 1, on_way) - Vector3d(0, -2, 1)).norm(), 1e-12);
    told.plane_tilt_angle = 0;
    told.position_fix_switch = QORIN_SWITCH_ON;
    told.position_fix = {70, 0, 500};
    EXPECT_LT((offset_at(told, 2, 1, on_way) - Vector3d(0, -2, 1)).norm(), 1e-12) << "left is where the point lies";
    told.position_fix_switch = QORIN_SWITCH_OFF;
    path_point upwards = on_way;
    upwards.direction = {0, 0, 1};
    EXPECT_NEAR(offset_at(told, 0, 1, upwards).norm(), 1, 1e-12) << "along the tool, there is still a left";
}
} // namespace
