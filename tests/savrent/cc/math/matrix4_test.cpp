#include <sstream>

#include "math_test_support.h"
#include "savrent/cc/math/plane.h"

using namespace math_test;
using math::matrix3;
using math::matrix4;
using math::quaternion;
using math::vector3;
using math::vector4;

TEST(matrix4, agrees_with_the_reference)
{
    random_source random;
    for (int i = 0; i < rounds; ++i)
    {
        const matrix4 a = random.matrix_4();
        const matrix4 b = random.matrix_4();
        const vector3 v = random.vector();
        const vector4 h(v.x, v.y, v.z, random.number());
        SCOPED_TRACE(testing::Message() << a << b << h);
        const Eigen::Matrix4d ea = reference(a);
        const Eigen::Matrix4d eb = reference(b);
        EXPECT_TRUE(close(a * b, (ea * eb).eval()));
        EXPECT_TRUE(close(a - b, (ea - eb).eval()) && close(a + b * 2.0, (ea + 2.0 * eb).eval()));
        EXPECT_TRUE(close(a * h, (ea * reference(h)).eval()));
        EXPECT_TRUE(close(h * a, (ea.transpose() * reference(h)).eval()));
        EXPECT_TRUE(close(a * v, (ea * reference(v).homogeneous()).eval().hnormalized().eval(), 1e-10));
        EXPECT_NEAR(a.determinant(), ea.determinant(), 1e-11);
        EXPECT_TRUE(close(a.inverse(), ea.inverse().eval(), 1e-9));
        EXPECT_TRUE(close(a.adjoint(), (ea.inverse() * ea.determinant()).eval(), 1e-9));
        EXPECT_EQ(a.hasNegativeScale(), ea.determinant() < 0.0);
    }
    EXPECT_EQ(matrix4::ZEROAFFINE.adjoint(), matrix4::ZERO);
}

TEST(matrix4, affine_forms_agree_with_the_general_ones)
{
    random_source random;
    for (int i = 0; i < rounds; ++i)
    {
        const matrix4 a = random.affine();
        const matrix4 b = random.affine();
        const vector3 v = random.vector();
        SCOPED_TRACE(testing::Message() << a << b << v);
        EXPECT_TRUE(close(a.inverseAffine(), reference(a).inverse().eval(), 1e-9));
        EXPECT_TRUE(close(a.concatenateAffine(b), reference(a * b)));
        EXPECT_TRUE(close(a.transformAffine(v), a * v));
        EXPECT_TRUE(close(a.transformAffine(vector4(v)), reference(a * vector4(v))));
        EXPECT_TRUE(close(a.transformDirectionAffine(v), a * v - a.getTrans()));

        const quaternion q = random.rotation();
        const vector3 scale = vector3(random.number(0.5, 2), random.number(0.5, 2), random.number(0.5, 2));
        matrix4 transform;
        transform.makeTransform(v, scale, q);
        EXPECT_TRUE(close(transform * b.getTrans(), q * (scale * b.getTrans()) + v));
        matrix4 back;
        back.makeInverseTransform(v, scale, q);
        EXPECT_TRUE(close(back * transform, reference(matrix4::IDENTITY)));
        vector3 position, scale_back;
        quaternion q_back;
        transform.decomposition(position, scale_back, q_back);
        EXPECT_TRUE(position == v && close(scale_back, scale));
        EXPECT_NEAR(std::fabs(q_back.Dot(q)), 1.0, 1e-12);

        // A plane moves with its points.
        const math::plane p(random.direction(), v);
        const math::plane image = a * p;
        const vector3 beside = v + p.normal.perpendicular();
        EXPECT_NEAR(image.getDistance(a * v), 0.0, 1e-10);
        EXPECT_NEAR(image.getDistance(a * beside), 0.0, 1e-10);
        EXPECT_NEAR(image.normal.length(), 1.0, 1e-12);
    }
}

TEST(matrix4, writes_only_what_a_setter_names)
{
    matrix4 m(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16);
    m = matrix3::ZERO;
    EXPECT_EQ(m, matrix4(0, 0, 0, 4, 0, 0, 0, 8, 0, 0, 0, 12, 13, 14, 15, 16));
    m.setScale({1, 2, 3});
    m.setTrans({7, 8, 9});
    EXPECT_EQ(m, matrix4(1, 0, 0, 7, 0, 2, 0, 8, 0, 0, 3, 9, 13, 14, 15, 16));
    m.makeTrans({1, 2, 3});
    EXPECT_EQ(m, matrix4::getTrans(1, 2, 3));
    EXPECT_TRUE(m.isAffine());
    m[3][3] = 1.0000001;
    EXPECT_FALSE(m.isAffine());
    EXPECT_FALSE(m.hasScale());
    EXPECT_TRUE(matrix4::getScale(1, 1.001, 1).hasScale());
    EXPECT_EQ(matrix4::CLIPSPACE2DTOIMAGESPACE * vector3(-1, 1, 0.25), vector3(0, 0, 0.25));
    std::ostringstream out;
    out << matrix4::getScale(2, 3, 4);
    EXPECT_EQ(out.str(), "Matrix4( row0:2 0 0 0 \n row1:0 3 0 0 \n row2:0 0 4 0 \n row3:0 0 0 1 \n)");
}

TEST(matrix4, rotation_builders)
{
    random_source random;
    for (int i = 0; i < rounds; ++i)
    {
        const vector3 from = random.vector();
        const vector3 to = random.vector();
        SCOPED_TRACE(testing::Message() << from << to);
        const Eigen::Matrix3d expected =
            Eigen::Quaterniond::FromTwoVectors(reference(from), reference(to)).toRotationMatrix();
        EXPECT_TRUE(close(matrix4::buildRotateFromTo(from, to).extract3x3Matrix(), expected, 1e-10));

        // The same rotation but for the one element that has x y in the place of x z.
        const vector3 axis = from.crossProduct(to).normalisedCopy();
        Eigen::Matrix3d flawed = expected;
        const double t = 1.0 - from.normalisedCopy().dotProduct(to.normalisedCopy());
        flawed(0, 2) += axis.x * (axis.y - axis.z) * t;
        EXPECT_TRUE(close(matrix4::buildRotateFromTo2(from, to).extract3x3Matrix(), flawed, 1e-7));
    }
    const vector3 oblique = vector3(1, 0, 1).normalisedCopy();
    const matrix3 m = matrix4::buildRotateFromAxisAngle(oblique, 90).extract3x3Matrix();
    EXPECT_NEAR(m[0][2], 0.0, 1e-15);
    EXPECT_NEAR(m[2][0], 0.5, 1e-15) << "so the matrix is not orthonormal";
    EXPECT_EQ(matrix4::buildRotateFromTo(vector3::UNIT_X, {3, 0, 0}), matrix4::IDENTITY);
}
