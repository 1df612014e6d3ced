#include <cmath>
#include <functional>
#include <vector>

#include <gtest/gtest.h>

#include "simulator/motion/command_path.h"
#include "simulator/motion/planned_motion.h"
#include "tests/simulator/random_motions.h"

namespace
{
using namespace motion_test;

pose_path path_told(const tcp_path& told, const pose& start, const std::optional<vector3>& arriving = {})
{
    const auto [result, path] = path_of(told, start, arriving);
    EXPECT_EQ(result, QORIN_API_RESULT_OK);
    return path.value_or(pose_path::line(start, start));
}

/// Along the whole path: what it is to keep, and that equal steps are equally long, turn equally much and lead in the
/// direction that the path tells.
void walk(const pose_path& path, const std::function<void(const pose&)>& keeps)
{
    constexpr int steps = 60;
    const double step = path.length() / steps;
    pose before = path.start();
    for (int i = 1; i <= steps; ++i)
    {
        const pose now = path.at(step * i);
        keeps(now);
        const double way = path.way() / steps;
        ASSERT_LE((at(now) - at(before)).norm(), way * (1 + 1e-7) + 1e-9);
        ASSERT_LE(turn_between(now, before), path.turn() / steps * (1 + 1e-6) + 1e-5);
        ASSERT_NEAR(turn_between(now, before), std::abs(path.turn() / steps), 1e-3 * path.turn() / steps + 1e-5);
        if (path.way() > 0)
        {
            const double small = path.length() * 1e-6;
            const Vector3d forward = at(path.at(step * (i - 0.5) + small)) - at(path.at(step * (i - 0.5)));
            ASSERT_NEAR(forward.norm(), path.way() * 1e-6, 1e-3 * forward.norm() + 1e-10);
            ASSERT_LT((forward.normalized() - vector_of(path.direction_at(step * (i - 0.5)))).norm(), 1e-3);
        }
        before = now;
    }
}

TEST(pose_path, keeps_to_its_line_or_its_circle_and_turns_at_a_steady_rate)
{
    random_motions random(11);
    for (int i = 0; i < 500; ++i)
    {
        SCOPED_TRACE(i);
        const pose start = random.placement();
        const pose end = random.placement();
        tcp_path told;
        told.position_end = {end[0], end[1], end[2]};
        if (random.toss())
            told.orientation_end = {end[3], end[4], end[5]};
        const pose_path line = path_told(told, start);
        const Vector3d along = (at(end) - at(start)).normalized();
        walk(line, [&](const pose& now) { ASSERT_LT((at(now) - at(start)).cross(along).norm(), 1e-9); });
        EXPECT_EQ(line.end(),
                  told.orientation_end ? end : (pose{end[0], end[1], end[2], start[3], start[4], start[5]}));

        told.position_mid = random.vector(800);
        told.interpolator = random.toss() ? QORIN_INTERPOLATOR_CIRCULAR : QORIN_INTERPOLATOR_CIRCLE;
        told.orientation_mode = random.toss() ? QORIN_ORIENTATION_MODE_AXIS : QORIN_ORIENTATION_MODE_SLERP;
        const pose_path arc = path_told(told, start);
        // Centre and plane from the three points alone: as far from each of them.
        const Vector3d mid = vector_of(*told.position_mid);
        Eigen::Matrix3d rows;
        rows << (mid - at(start)).transpose(), (at(end) - at(start)).transpose(),
            (mid - at(start)).cross(at(end) - at(start)).transpose();
        const Vector3d centre = rows.fullPivLu().solve(Vector3d((mid.squaredNorm() - at(start).squaredNorm()) / 2,
                                                                (at(end).squaredNorm() - at(start).squaredNorm()) / 2,
                                                                rows.row(2).dot(at(start))));
        const double radius = (at(start) - centre).norm();
        double nearest_mid = radius;
        walk(arc,
             [&](const pose& now)
             {
                 ASSERT_NEAR((at(now) - centre).norm(), radius, 1e-6 * std::max(1.0, radius / 1000));
                 ASSERT_NEAR(rows.row(2).normalized().dot(at(now) - centre), 0, 1e-6 * std::max(1.0, radius / 1000));
                 nearest_mid = std::min(nearest_mid, (at(now) - mid).norm());
             });
        EXPECT_LT(nearest_mid, arc.way() / 60) << "it leads through the middle";
        EXPECT_EQ(at(arc.end()), told.interpolator == QORIN_INTERPOLATOR_CIRCLE ? at(start) : at(end));
    }
}

TEST(pose_path, paces_itself_by_its_turn_where_that_is_more)
{
    const pose start{100, 0, 0, 0, 0, 0};
    tcp_path told;
    told.interpolator = QORIN_INTERPOLATOR_ORT_JOG;
    told.orientation_end = {0, 0, 90};
    const pose_path turn = path_told(told, start);
    EXPECT_NEAR(turn.length(), 90, 1e-9);
    EXPECT_NEAR(turn.at(30)[5], 30, 1e-9);
    EXPECT_EQ(at(turn.at(30)), at(start));
    EXPECT_EQ(turn.end(), (pose{100, 0, 0, 0, 0, 90}));
    told.interpolator = QORIN_INTERPOLATOR_LINEAR;
    told.position_end = {130, 0, 0};
    EXPECT_NEAR(path_told(told, start).length(), 90, 1e-9) << "30 mm take 90 degrees of time";
    EXPECT_NEAR(pose_path::turn_about(start, {0, 1, 0}, 400).at(390)[4], 30, 1e-9) << "more than one turn";
}

/// The ways that are told by other things than three points, each from the origin with the tool looking down.
TEST(command_path, reads_arcs_tangents_and_offsets)
{
    const pose down{0, 0, 0, 180, 0, 0};
    tcp_path told;
    told.position_end = {100, 0, 0};
    told.interpolator = QORIN_INTERPOLATOR_ARC;
    told.radius = 50;
    pose_path path = path_told(told, down);
    EXPECT_NEAR(path.way(), 50 * std::numbers::pi, 1e-9);
    EXPECT_NEAR(path.at(path.length() / 2)[1], -50, 1e-9) << "turning left, so that it bulges to the right";
    told.position_mid = {20, 1, 0};
    path = path_told(told, down);
    EXPECT_NEAR(path.at(path.length() / 2)[1], 50, 1e-9) << "towards mid";
    told.radius = 100;
    EXPECT_NEAR(path_told(told, down).way(), 100 * std::numbers::pi / 3, 1e-9);
    told.position_mid = {20, 150, 0};
    EXPECT_NEAR(path_told(told, down).way(), 100 * std::numbers::pi * 5 / 3, 1e-9) << "the longer one reaches mid";

    told.interpolator = QORIN_INTERPOLATOR_CIRCULAR_TO_TANGENT;
    told.position_mid = {0, 7, 0};
    path = path_told(told, down);
    EXPECT_NEAR(path.way(), 50 * std::numbers::pi, 1e-9);
    EXPECT_NEAR(path.direction_at(0)[1], 1, 1e-12);
    EXPECT_NEAR(path.direction_at(path.length())[1], -1, 1e-9);
    told.position_mid.reset();
    const double slanted = std::sqrt(0.5);
    EXPECT_NEAR(path_told(told, down, vector3{slanted, 0, slanted}).at(1e-6)[2], slanted * 1e-6, 1e-10);
    EXPECT_NEAR(path_told(told, down, vector3{1, 0, 0}).way(), 100, 1e-9) << "straight ahead";

    told = {};
    told.position_end = {10, 20, 30};
    told.orientation_end = {0, 0, 90};
    told.coordinate = QORIN_REF_COORDINATE_TCP;
    const pose start{1, 2, 3, 180, 0, 0};
    EXPECT_LT((at(path_told(told, start).end()) - Vector3d(11, -18, -27)).norm(), 1e-12);
    EXPECT_LT(turn_between(path_told(told, start).end(), {0, 0, 0, 180, 0, -90}), 1e-9);
    told.coordinate = QORIN_REF_COORDINATE_BASE;
    told.offset_mode = QORIN_SWITCH_ON;
    EXPECT_LT((at(path_told(told, start).end()) - Vector3d(11, 22, 33)).norm(), 1e-12);
    EXPECT_LT(turn_between(path_told(told, start).end(), {0, 0, 0, 180, 0, 90}), 1e-9);
    told.offset_mode = QORIN_SWITCH_OFF;
    told.position_end.reset();
    told.direction = {0, 0, -3};
    told.position_start = {5, 5, 5};
    EXPECT_EQ(path_told(told, start).end(), (pose{5, 5, 2, 0, 0, 90}));
}

TEST(command_path, turns_the_tool_with_the_direction_along_a_seam)
{
    const pose start{100, 0, 0, 180, 0, 0};
    for (const auto interpolator :
         {QORIN_INTERPOLATOR_CIRCULAR, QORIN_INTERPOLATOR_CIRCLE, QORIN_INTERPOLATOR_FREE_PATH})
        for (const auto mode : {QORIN_ORIENTATION_MODE_AXIS, QORIN_ORIENTATION_MODE_AUTO})
        {
            tcp_path told;
            told.interpolator = interpolator;
            told.orientation_mode = mode;
            told.position_mid = {0, 100, 0};
            told.position_end = {-100, 0, 0};
            told.free_path_points = {{0, 100, 0}, {-100, 0, 0}, {-200, 50, 0}};
            const pose_path path = path_told(told, start);
            const auto seen_from_tool = [&](double length) -> Vector3d {
                return cbox_simulator::motion::rotation_of(path.at(length)).conjugate() *
                       vector_of(path.direction_at(length));
            };
            for (int i = 1; i <= 20; ++i)
                ASSERT_LT((seen_from_tool(path.length() / 20 * i) - seen_from_tool(0)).norm(), 1e-6) << i;
        }
    tcp_path told;
    told.position_mid = {0, 100, 0};
    told.position_end = {-100, 0, 0};
    told.orientation_end = {180, 0, 90};
    told.interpolator = QORIN_INTERPOLATOR_CIRCULAR;
    told.orientation_mode = QORIN_ORIENTATION_MODE_AXIS;
    const pose_path path = path_told(told, start);
    EXPECT_EQ(path.end(), (pose{-100, 0, 0, 180, 0, 90})) << "180 degrees with the seam, less 90 on the way";
    EXPECT_NEAR(turn_between(path.at(path.length() / 2), {0, 0, 0, 180, 0, 45}), 0, 1e-9);
    EXPECT_NEAR(turn_between(path.at(path.length() * 0.99), path.end()), 0.9, 1e-6);
}

TEST(command_path, leads_smoothly_through_free_points_and_straight_where_they_are)
{
    random_motions random(12);
    for (int i = 0; i < 16; ++i)
    {
        const pose start = random.placement();
        tcp_path told;
        told.interpolator = QORIN_INTERPOLATOR_FREE_PATH;
        Vector3d last = at(start);
        const int count = 1 + i % 16;
        for (int k = 0; k < count; ++k)
            told.free_path_points.push_back(vector3_of(
                last += Vector3d(random.between(20, 100), random.between(-40, 40), random.between(-40, 40))));
        const pose_path path = path_told(told, start);
        std::vector<double> nearest(told.free_path_points.size(), 1e9);
        constexpr int steps = 400;
        for (int k = 0; k <= steps; ++k)
            for (std::size_t point = 0; point < nearest.size(); ++point)
                nearest[point] =
                    std::min(nearest[point],
                             (at(path.at(path.length() / steps * k)) - vector_of(told.free_path_points[point])).norm());
        for (const double gap : nearest)
            EXPECT_LT(gap, path.length() / steps);
        walk(path, [](const pose&) {});
        EXPECT_EQ(vector3_of(at(path.end())), told.free_path_points.back());
    }
    tcp_path told;
    told.interpolator = QORIN_INTERPOLATOR_FREE_PATH;
    told.free_path_points = {{1, 0, 0}, {101, 0, 0}, {102, 0, 0}};
    EXPECT_NEAR(path_told(told, {}).way(), 102, 1e-9);
}

TEST(command_path, refuses_what_makes_no_way)
{
    const pose start{};
    const auto refusal =
        [&](QORIN_INTERPOLATOR interpolator, std::optional<vector3> mid, std::optional<vector3> end, double radius = 0)
    {
        tcp_path told;
        told.interpolator = interpolator;
        told.position_mid = mid;
        told.position_end = end;
        told.radius = radius;
        return path_of(told, start).result;
    };
    const vector3 a{10, 0, 0};
    const vector3 b{20, 0, 0};
    EXPECT_EQ(refusal(QORIN_INTERPOLATOR_LINEAR, {}, {}), 200005u);
    EXPECT_EQ(refusal(QORIN_INTERPOLATOR_CIRCULAR, {}, a), 200005u);
    EXPECT_EQ(refusal(QORIN_INTERPOLATOR_CIRCULAR_TO_TANGENT, {}, a), 200005u);
    EXPECT_EQ(refusal(QORIN_INTERPOLATOR_ORT_JOG, {}, a), 200005u);
    EXPECT_EQ(refusal(QORIN_INTERPOLATOR_FREE_PATH, {}, a), 200005u);
    EXPECT_EQ(refusal(QORIN_INTERPOLATOR_CIRCULAR, a, a), 104013u);
    EXPECT_EQ(refusal(QORIN_INTERPOLATOR_CIRCLE, vector3{}, a), 104013u);
    EXPECT_EQ(refusal(QORIN_INTERPOLATOR_CIRCULAR, a, b), 102008u);
    EXPECT_EQ(refusal(QORIN_INTERPOLATOR_ARC, {}, b, 9.99), 104004u);
    EXPECT_EQ(refusal(QORIN_INTERPOLATOR_CIRCULAR_TO_TANGENT, vector3{-1, 0, 0}, a), 104014u);
}

TEST(tcp_motion, keeps_its_speed_and_ends_on_the_very_numbers)
{
    random_motions random(13);
    for (int i = 0; i < 600; ++i)
    {
        SCOPED_TRACE(i);
        const pose start = random.placement();
        const pose end = random.placement();
        const motion_limits limits = random.limits();
        const planned_motion motion{tcp_motion(pose_path::line(start, end), limits)};
        EXPECT_EQ(motion.at(0).point->target, start);
        EXPECT_EQ(motion.at(motion.duration()).point->target, end);
        pose before = start;
        for (int k = 1; k <= 50; ++k)
        {
            const pose now = motion.at(motion.duration() / 50 * k).point->target;
            const double most = limits.speed_max * motion.duration() / 50 * (1 + 1e-9);
            ASSERT_LE((at(now) - at(before)).norm(), most + 1e-9);
            ASSERT_LE(turn_between(now, before), most + 1e-5);
            before = now;
        }
    }
}
} // namespace
