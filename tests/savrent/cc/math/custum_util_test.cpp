#include <vector>

#include "math_test_support.h"
#include "savrent/cc/math/custum_util.h"

using namespace math_test;
using math::degree;
using math::matrix3;
using math::quaternion;
using math::radian;
using math::util;
using math::vector3;
using robot = savrent::cc::math_savrent::custum_util;

namespace
{
vector3 random_euler(random_source& random)
{
    return {random.number(-179, 179), random.number(-89, 89), random.number(-179, 179)};
}
} // namespace

TEST(pose_conversions, come_back_unchanged)
{
    random_source random;
    for (int i = 0; i < rounds; ++i)
    {
        const vector3 euler = random_euler(random);
        const vector3 position = random.vector() * 500.0;
        const vector3 offset_position = random.vector() * 50.0;
        const vector3 offset_euler = random_euler(random);
        SCOPED_TRACE(testing::Message() << position << euler << offset_position << offset_euler);
        matrix3 m;
        robot::convert_euler_angle_to_rot_mat(euler, m);
        const auto rad = [](double d) { return d * util::fDeg2Rad; };
        const Eigen::Matrix3d expected = (Eigen::AngleAxisd(rad(euler.z), Eigen::Vector3d::UnitZ()) *
                                          Eigen::AngleAxisd(rad(euler.y), Eigen::Vector3d::UnitY()) *
                                          Eigen::AngleAxisd(rad(euler.x), Eigen::Vector3d::UnitX()))
                                             .toRotationMatrix();
        EXPECT_TRUE(close(m, expected));
        vector3 back;
        EXPECT_TRUE(robot::convert_rot_mat_to_euler_angle(m, back));
        EXPECT_TRUE(close(back, euler, 1e-9));
        quaternion q;
        robot::convert_euler_angle_to_quaternion(euler, q);
        robot::convert_quaternion_to_euler_angle(q, back);
        EXPECT_TRUE(close(back, euler, 1e-9));
        vector3 axis;
        double angle = 0.0;
        robot::convert_rot_mat_to_axis_angle(m, axis, angle);
        matrix3 again;
        robot::convert_axis_angle_to_rot_mat(axis * 7.0, angle, again);
        EXPECT_TRUE(close(again, m, 1e-7));
        vector3 rotation_vector;
        robot::convert_quaternion_to_rot_vec(q * 2.0, rotation_vector);
        EXPECT_TRUE(
            close(quaternion(radian(rotation_vector.length()), rotation_vector.normalisedCopy()) * axis, axis, 1e-4));

        vector3 tcp, tcp_euler, flange, flange_euler;
        robot::convert_flange_at_base_to_tcp_at_base(position, euler, offset_position, offset_euler, tcp, tcp_euler);
        EXPECT_TRUE(close(tcp, (expected * reference(offset_position) + reference(position)).eval()));
        robot::convert_tcp_at_base_to_flange_at_base(tcp, tcp_euler, offset_position, offset_euler, flange,
                                                     flange_euler);
        EXPECT_TRUE(close(flange, position, 1e-7) && close(flange_euler, euler, 1e-6));
    }
}

TEST(pose_conversions, report_the_gimbal_lock)
{
    for (const double ry : {90.0, -90.0})
    {
        matrix3 m, rebuilt;
        robot::convert_euler_angle_to_rot_mat({20, ry, 50}, m);
        vector3 euler;
        EXPECT_FALSE(robot::convert_rot_mat_to_euler_angle(m, euler));
        EXPECT_EQ(euler.z, 0.0);
        robot::convert_euler_angle_to_rot_mat(euler, rebuilt);
        EXPECT_TRUE(close(rebuilt, m)) << euler;
    }
    vector3 euler;
    EXPECT_FALSE(robot::convert_rot_mat_to_euler_angle({0, 0, 0, 0, 0, 0, 1.5, 0, 0}, euler));
    EXPECT_EQ(euler.y, -90.0) << "noise beyond 1 is limited";
    EXPECT_TRUE(robot::convert_rot_mat_to_euler_angle({0, 0, 0, 0, 0, 0, 0.9999999999985, 0, 0}, euler));
    EXPECT_FALSE(robot::convert_rot_mat_to_euler_angle({0, 0, 0, 0, 0, 0, 0.9999999999995, 0, 0}, euler));
}

TEST(axis_angle, keeps_its_behaviour_at_the_edges)
{
    matrix3 m = matrix3::ZERO;
    robot::convert_axis_angle_to_rot_mat(vector3::ZERO, 30, m);
    EXPECT_EQ(m, matrix3::IDENTITY);
    robot::convert_axis_angle_to_rot_mat(vector3::UNIT_Z, -30, m);
    EXPECT_EQ(m, matrix3::IDENTITY) << "negative angles are below the limit";
    const struct
    {
        double angle, turned;
    } rows[] = {{200, 200}, {360, 0}, {450, 90}, {800, 1600}, {1085, 3255}};
    for (const auto& row : rows)
    {
        robot::convert_axis_angle_to_rot_mat({0, 0, 3}, row.angle, m);
        matrix3 expected;
        expected.FromAngleAxis(vector3::UNIT_Z, degree(row.turned));
        EXPECT_TRUE(close(m, expected)) << row.angle;
    }
    vector3 axis(1, 2, 3);
    double angle = 9.0;
    robot::convert_rot_mat_to_axis_angle(matrix3::IDENTITY * 1.1, axis, angle);
    EXPECT_TRUE(angle == 0.0 && axis == vector3::ZERO);
    robot::convert_rot_mat_to_axis_angle({-1, 0, 0, 0, -1, 0, 0, 0, 0.5}, axis, angle);
    EXPECT_TRUE(angle == 180.0 && axis == vector3::ZERO);
}

TEST(velocity, is_in_units_and_degrees_per_second)
{
    vector3 v;
    robot::calc_linear_velocity({1, 2, 3}, {2, 4, 6}, 0.5, v);
    EXPECT_EQ(v, vector3(2, 4, 6));
    const quaternion from(degree(70), vector3(0.6, 0.8, 0));
    robot::calc_angular_velocity(from, quaternion(degree(30), vector3::UNIT_Y) * from, 0.5, v);
    EXPECT_TRUE(close(v, vector3(0, 60, 0), 1e-6)) << "about the base's axis, to single precision";
    robot::calc_angular_velocity(from, quaternion(degree(0.0009), vector3::UNIT_Y) * from, 0.5, v);
    EXPECT_EQ(v, vector3::ZERO);
    robot::convert_quaternion_to_rot_vec({1.0, 1e-5, 0, 0}, v);
    EXPECT_EQ(v, vector3::ZERO) << "the sine is a float";
}

TEST(three_points, in_line_within_a_degree)
{
    const auto bend = [](double degrees)
    {
        const double rad = degrees * util::fDeg2Rad;
        return robot::is_straight_line_three_pts({-3, 0, 0}, {0, 0, 0}, {5 * std::cos(rad), 5 * std::sin(rad), 0});
    };
    EXPECT_TRUE(bend(0) && bend(0.5) && bend(-0.99) && bend(179.5) && bend(180));
    EXPECT_FALSE(bend(1.01) || bend(90) || bend(178.9));
    EXPECT_TRUE(robot::is_straight_line_three_pts({1, 2, 3}, {1, 2, 3}, {1, 2, 3}));
}

TEST(circle, is_found_through_random_points)
{
    random_source random;
    for (int i = 0; i < rounds; ++i)
    {
        const quaternion q = random.rotation();
        const vector3 centre = random.vector() * 100.0;
        const double radius = random.number(1.0, 50.0);
        const double mid_angle = random.number(15, 160);
        const double end_angle = mid_angle + random.number(15, 160);
        SCOPED_TRACE(testing::Message() << q << centre << radius << " " << mid_angle << " " << end_angle);
        const auto at = [&](double degrees)
        { return centre + q * (quaternion(degree(degrees), vector3::UNIT_Z) * vector3(radius, 0, 0)); };
        vector3 found;
        ASSERT_TRUE(robot::get_outer_circle_center(at(0), at(mid_angle), at(end_angle), found));
        EXPECT_TRUE(close(found, centre, 1e-9));
        double length = 0.0;
        EXPECT_TRUE(robot::get_arc_length(at(0), at(mid_angle), at(end_angle), centre, length));
        EXPECT_NEAR(length, radius * end_angle * util::fDeg2Rad, 1e-6 * length) << "pi is of single precision";
        vector3 point;
        EXPECT_TRUE(robot::get_point_on_circle_by_delta_distance(at(0), centre, q.zAxis() * 3.0, length, point));
        EXPECT_TRUE(close(point, at(end_angle), 1e-9));
        const double round = 2.0 * radius * 3.1415927410125732;
        robot::get_point_on_circle_by_delta_distance(at(0), centre, q.zAxis(), round + length, point);
        EXPECT_TRUE(close(point, at(end_angle), 1e-9)) << "one circumference is dropped";

        // A tool that points outwards at the start does so at the end.
        vector3 start_euler, end_euler;
        matrix3 end_axes;
        robot::convert_quaternion_to_euler_angle(q, start_euler);
        ASSERT_TRUE(robot::calc_end_ort_in_arc(at(0), at(mid_angle), at(end_angle), start_euler, end_euler));
        robot::convert_euler_angle_to_rot_mat(end_euler, end_axes);
        EXPECT_TRUE(close(end_axes.GetColumn(0), (at(end_angle) - centre).normalisedCopy(), 1e-6));
        EXPECT_TRUE(close(end_axes.GetColumn(2), q.zAxis(), 1e-6));
    }
}

TEST(circle, ties_and_failures)
{
    vector3 centre(9, 9, 9);
    EXPECT_TRUE(robot::get_outer_circle_center({1, 0, 0}, {0, 1, 0}, {-1, 0, 0}, centre));
    EXPECT_TRUE(close(centre, vector3::ZERO));
    // Neighbours that face each other across the centre, first the former, then the latter pair.
    EXPECT_TRUE(robot::get_outer_circle_center({1, 0, 0}, {-1, 0, 0}, {0, 1, 0}, centre));
    EXPECT_TRUE(close(centre, vector3::ZERO));
    EXPECT_TRUE(robot::get_outer_circle_center({0, 1, 0}, {1, 0, 0}, {-1, 0, 0}, centre));
    EXPECT_TRUE(close(centre, vector3::ZERO));
    EXPECT_FALSE(robot::get_outer_circle_center({0, 0, 0}, {1, 0, 0}, {2, 0, 0}, centre)) << "a line has none";
    vector3 euler;
    EXPECT_FALSE(robot::calc_end_ort_in_arc({0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {1, 2, 3}, euler));
    EXPECT_EQ(euler, vector3(1, 2, 3));
}

TEST(lines, projection_rotation_and_fillet)
{
    random_source random;
    for (int i = 0; i < rounds; ++i)
    {
        const vector3 a = random.vector();
        const vector3 b = random.vector();
        const vector3 corner = random.vector();
        SCOPED_TRACE(testing::Message() << a << b << corner);
        vector3 foot;
        robot::get_projection_p_onto_line_from_origin_to_q(corner, a, b, foot);
        EXPECT_NEAR((a - foot).dotProduct(b - corner), 0.0, 1e-11);
        EXPECT_TRUE(close((foot - corner).crossProduct(b - corner), vector3::ZERO, 1e-11));
        vector3 turned;
        robot::rotate_vector(a, b, 40, turned);
        EXPECT_TRUE(
            close(turned, (Eigen::AngleAxisd(40 * util::fDeg2Rad, reference(b).normalized()) * reference(a)).eval()));
        vector3 t1, t2, centre;
        ASSERT_TRUE(
            robot::get_tangent_pts_and_inscribed_circle_center_between_two_vectors(corner, a, b, 0.5, t1, t2, centre));
        EXPECT_NEAR(t1.distance(centre), 0.5, 1e-9);
        EXPECT_NEAR(t2.distance(centre), 0.5, 1e-9);
        EXPECT_NEAR((t1 - centre).normalisedCopy().dotProduct(a), 0.0, 1e-9);
        EXPECT_NEAR((t2 - centre).normalisedCopy().dotProduct(b), 0.0, 1e-9);
        EXPECT_GT((t1 - corner).dotProduct(a), 0.0);
    }
    vector3 untouched(1, 2, 3);
    EXPECT_FALSE(robot::get_tangent_pts_and_inscribed_circle_center_between_two_vectors(
        {}, vector3::UNIT_X, {-2, 0, 0}, 1, untouched, untouched, untouched));
    EXPECT_EQ(untouched, vector3(1, 2, 3));
}

TEST(bspline, passes_through_its_control_points_smoothly)
{
    random_source random;
    std::vector<vector3> control(6);
    for (vector3& point : control)
        point = random.vector();
    constexpr std::size_t per_span = 200;
    std::vector<vector3> points(5 * per_span + 1);
    ASSERT_TRUE(robot::get_points_by_bspline(control, points));
    for (std::size_t i = 0; i < control.size(); ++i)
        EXPECT_TRUE(close(points[i * per_span], control[i])) << i;
    const double h = 1.0 / per_span;
    const auto second = [&](std::size_t i) { return (points[i + 1] - points[i] * 2.0 + points[i - 1]) / (h * h); };
    for (std::size_t i = 2; i + 1 < points.size(); ++i)
        EXPECT_LT((second(i) - second(i - 1)).length(), 100.0 * h) << "the curvature does not jump at " << i;
    EXPECT_LT(second(1).length(), 100.0 * h) << "not bent at its end";
    const std::vector<vector3> line = {{0, 0, 0}, {3, 0, 0}};
    std::vector<vector3> thirds(4);
    ASSERT_TRUE(robot::get_points_by_bspline(line, thirds));
    EXPECT_TRUE(close(thirds[1], vector3(1, 0, 0)));
    EXPECT_FALSE(robot::get_points_by_bspline(std::span(line).first(1), thirds));
}
