#include <sstream>

#include "math_test_support.h"

using namespace math_test;
using math::degree;
using math::matrix3;
using math::quaternion;
using math::radian;
using math::util;
using math::vector3;

TEST(quaternion, agrees_with_the_reference_on_rotations)
{
    random_source random;
    for (int i = 0; i < rounds; ++i)
    {
        const quaternion p = random.rotation();
        const quaternion q = random.rotation();
        const vector3 v = random.vector();
        SCOPED_TRACE(testing::Message() << p << q << v);
        const Eigen::Quaterniond product = turn(p) * turn(q);
        EXPECT_TRUE(close(p * q, Eigen::Vector4d(product.w(), product.x(), product.y(), product.z())));
        EXPECT_TRUE(close(p * v, (turn(p) * reference(v)).eval()));
        matrix3 m;
        p.ToRotationMatrix(m);
        EXPECT_TRUE(close(m, turn(p).toRotationMatrix()));
        const quaternion back(m);
        EXPECT_NEAR(std::fabs(back.Dot(p)), 1.0, 1e-13);
        EXPECT_TRUE(close(p.xAxis(), m.GetColumn(0)) && close(p.yAxis(), m.GetColumn(1)) &&
                    close(p.zAxis(), m.GetColumn(2)));
        EXPECT_TRUE(close(p.Inverse() * p, reference(quaternion::IDENTITY)));
        EXPECT_TRUE(close(p.Log().Exp(), reference(p), 1e-9));
        degree angle;
        vector3 axis;
        p.ToAngleAxis(angle, axis);
        EXPECT_TRUE(close(quaternion(angle, axis), reference(p), 1e-7));
        const double t = random.number(0.0, 1.0);
        const Eigen::Quaterniond between = turn(p).slerp(t, turn(q));
        EXPECT_NEAR(
            std::fabs(quaternion::Slerp(t, p, q, true).Dot({between.w(), between.x(), between.y(), between.z()})), 1.0,
            1e-6);
        EXPECT_TRUE(quaternion::nlerp(t, p, q, true).equals(quaternion::Slerp(t, p, q, true), degree(30)));
    }
}

TEST(quaternion, matrix_branches_meet_at_half_turns)
{
    random_source random;
    for (const vector3& axis :
         {vector3::UNIT_X, vector3::UNIT_Y, vector3::UNIT_Z, random.direction(), random.direction()})
    {
        const quaternion half_turn(degree(180), axis);
        matrix3 m;
        half_turn.ToRotationMatrix(m);
        EXPECT_NEAR(std::fabs(quaternion(m).Dot(half_turn)), 1.0, 1e-13) << axis;
    }
}

TEST(quaternion, keeps_its_behaviour_at_the_edges)
{
    EXPECT_EQ(quaternion::ZERO.Inverse(), quaternion::ZERO);
    radian angle(1.0);
    vector3 axis;
    quaternion::IDENTITY.ToAngleAxis(angle, axis);
    EXPECT_TRUE(angle == radian(0.0) && axis == vector3::UNIT_X);
    quaternion doubled(0.0, 2.0, 0.0, 0.0);
    EXPECT_EQ(doubled.normalise(), 4.0) << "the squared length";
    EXPECT_EQ(doubled, quaternion(0, 1, 0, 0));
    const quaternion small(0.9999999, 0.0005, 0, 0);
    EXPECT_EQ(small.Log(), quaternion(0, 0.0005, 0, 0)) << "below msEpsilon the vector part stays";
    EXPECT_EQ(quaternion(0, 0.0005, 0, 0).Exp().x, 0.0005);
    EXPECT_EQ(quaternion(2, 3, 4, 5).Log(), quaternion(0, 3, 4, 5));
    EXPECT_TRUE(small.equals(-small, radian(1e-6)));
    EXPECT_FALSE(quaternion::IDENTITY.orientationEquals(quaternion::IDENTITY, 0.0)) << "strictly below";
    EXPECT_TRUE(quaternion(util::fDeg2Rad * math::radian(0.0), vector3::UNIT_X) == quaternion::IDENTITY);
    EXPECT_TRUE(quaternion(1, 2, 3, 4)[0] == 1.0 && quaternion(1, 2, 3, 4).ptr()[3] == 4.0);
    std::ostringstream out;
    out << quaternion(1, 2, 3, 4);
    EXPECT_EQ(out.str(), "Quaternion(1, 2, 3, 4)");
}

TEST(quaternion, interpolates_the_long_way_unless_told_otherwise)
{
    const quaternion p(degree(0), vector3::UNIT_Z);
    const quaternion q(degree(240), vector3::UNIT_Z); // a negative dot product
    EXPECT_TRUE(quaternion::Slerp(0.5, p, q, false).equals({degree(120), vector3::UNIT_Z}, radian(1e-6)));
    EXPECT_TRUE(quaternion::Slerp(0.5, p, q, true).equals({degree(-60), vector3::UNIT_Z}, radian(1e-6)));
    EXPECT_NEAR(quaternion::Slerp(0.3, p * 1.5, p * 1.5).Norm(), 1.0, 1e-15) << "joined straight and normalised";
    // The dot products are 0.99905 and 0.99897, on either side of the limit.
    const quaternion near(degree(5.0), vector3::UNIT_Z);
    const quaternion farther(degree(5.2), vector3::UNIT_Z);
    EXPECT_TRUE(close(quaternion::Slerp(0.3, p, near), reference(quaternion::nlerp(0.3, p, near))));
    EXPECT_TRUE(close(quaternion::Slerp(0.3, p, farther), reference(quaternion(degree(1.56), vector3::UNIT_Z))));
    // One extra spin of the quaternion at t = 1 changes its sign and keeps the rotation.
    EXPECT_TRUE(close(quaternion::SlerpExtraSpins(1.0, p, q, 1), reference(-q)));
    EXPECT_EQ(quaternion::SlerpExtraSpins(0.7, p, p, 3), p);
}

TEST(quaternion, intermediate_controls_take_the_difference_of_the_logarithms)
{
    const auto about_z = [](double degrees) { return quaternion(degree(degrees), vector3::UNIT_Z); };
    quaternion a;
    quaternion b;
    quaternion::Intermediate(about_z(0), about_z(40), about_z(120), a, b);
    // Half angles of 20 and 40 degrees: a quarter of their difference is -5, so -10 degrees of turn.
    EXPECT_TRUE(close(a, reference(about_z(30))));
    EXPECT_TRUE(close(b, reference(about_z(50))));
    EXPECT_TRUE(close(quaternion::Squad(1.0, about_z(40), b, a, about_z(120)), reference(about_z(120))));
    // Outer 80, inner 40 degrees, and the weight 0.5 at t = 0.5.
    EXPECT_TRUE(close(quaternion::Squad(0.5, about_z(40), b, a, about_z(120)), reference(about_z(60))));
}

TEST(quaternion, angles_about_single_axes)
{
    for (const bool project : {true, false})
    {
        EXPECT_NEAR(quaternion(degree(35), vector3::UNIT_Z).getRoll(project).valueDegrees(), 35.0, 1e-12);
        EXPECT_NEAR(quaternion(degree(-50), vector3::UNIT_X).getPitch(project).valueDegrees(), -50.0, 1e-12);
        EXPECT_NEAR(quaternion(degree(70), vector3::UNIT_Y).getYaw(project).valueDegrees(), 70.0, 1e-12);
    }
    EXPECT_NEAR(quaternion(degree(110), vector3::UNIT_Y).getYaw(true).valueDegrees(), 110.0, 1e-12);
    EXPECT_NEAR(quaternion(degree(110), vector3::UNIT_Y).getYaw(false).valueDegrees(), 70.0, 1e-12);
    const quaternion q = quaternion(degree(20), vector3::UNIT_Z) * quaternion(degree(30), vector3::UNIT_Y) *
                         quaternion(degree(40), vector3::UNIT_X);
    EXPECT_NEAR(q.getRoll(false).valueDegrees(), 20.0, 1e-12);
    EXPECT_NEAR(q.getYaw(false).valueDegrees(), 30.0, 1e-12);
    EXPECT_NEAR(q.getPitch(false).valueDegrees(), 40.0, 1e-12);
    // The projected forms see the turned axis along the axis of the turn.
    EXPECT_NEAR(q.getRoll(true).mRad, std::atan2(q.xAxis().y, q.xAxis().x), 1e-12);
    EXPECT_NEAR(q.getPitch(true).mRad, std::atan2(q.yAxis().z, q.yAxis().y), 1e-12);
    EXPECT_NEAR(q.getYaw(true).mRad, std::atan2(q.zAxis().x, q.zAxis().z), 1e-12);
}
