#include <algorithm>

#include "math_test_support.h"

using namespace math_test;
using math::matrix3;
using math::radian;
using math::util;
using math::vector3;

namespace
{
struct euler_order
{
    const char* name;
    std::size_t axes[3];
    void (matrix3::*from)(const radian&, const radian&, const radian&);
    bool (matrix3::*to)(radian&, radian&, radian&) const;
};

const euler_order euler_orders[] = {
    {"XYZ", {0, 1, 2}, &matrix3::FromEulerAnglesXYZ, &matrix3::ToEulerAnglesXYZ},
    {"XZY", {0, 2, 1}, &matrix3::FromEulerAnglesXZY, &matrix3::ToEulerAnglesXZY},
    {"YXZ", {1, 0, 2}, &matrix3::FromEulerAnglesYXZ, &matrix3::ToEulerAnglesYXZ},
    {"YZX", {1, 2, 0}, &matrix3::FromEulerAnglesYZX, &matrix3::ToEulerAnglesYZX},
    {"ZXY", {2, 0, 1}, &matrix3::FromEulerAnglesZXY, &matrix3::ToEulerAnglesZXY},
    {"ZYX", {2, 1, 0}, &matrix3::FromEulerAnglesZYX, &matrix3::ToEulerAnglesZYX},
};

/// A random matrix of a rank: 3, or sums of fewer products.
matrix3 matrix_of_rank(random_source& random, int rank)
{
    if (rank == 3)
        return random.matrix();
    matrix3 sum = matrix3::ZERO;
    for (int i = 0; i < rank; ++i)
    {
        matrix3 product;
        matrix3::TensorProduct(random.vector(), random.vector(), product);
        sum = sum + product;
    }
    return sum;
}
} // namespace

TEST(matrix3, agrees_with_the_reference_on_linear_algebra)
{
    random_source random;
    for (int i = 0; i < rounds; ++i)
    {
        const matrix3 a = random.matrix();
        const matrix3 b = random.matrix();
        const vector3 v = random.vector();
        SCOPED_TRACE(testing::PrintToString(a));
        const Eigen::Matrix3d ea = reference(a);
        EXPECT_TRUE(close(a * b, (ea * reference(b)).eval()));
        EXPECT_TRUE(close(a - b, (ea - reference(b)).eval()));
        EXPECT_TRUE(close(a * v, (ea * reference(v)).eval()));
        EXPECT_TRUE(close(v * a, (ea.transpose() * reference(v)).eval()));
        EXPECT_NEAR(a.Determinant(), ea.determinant(), 1e-12);
        matrix3 inverse;
        ASSERT_TRUE(a.Inverse(inverse, 0.0));
        EXPECT_TRUE(close(inverse, ea.inverse().eval(), 1e-10));
        matrix3 q = a;
        q.Orthonormalize();
        EXPECT_TRUE(close(q.Transpose() * q, matrix3::IDENTITY, 1e-10));
        EXPECT_NEAR(q.GetColumn(0).dotProduct(a.GetColumn(0)), a.GetColumn(0).length(), 1e-12);

        vector3 d, u;
        a.QDUDecomposition(q, d, u);
        EXPECT_NEAR(q.Determinant(), 1.0, 1e-10);
        const matrix3 scale(d.x, 0, 0, 0, d.y, 0, 0, 0, d.z);
        EXPECT_TRUE(close(q * scale * matrix3(1, u.x, u.y, 0, 1, u.z, 0, 0, 1), a, 1e-9));
    }
}

TEST(matrix3, gives_the_adjoint_when_there_is_no_inverse)
{
    matrix3 result;
    EXPECT_FALSE(matrix3::ZERO.Inverse(result));
    const matrix3 flat(1, 0, 0, 0, 2, 0, 0, 0, 0);
    EXPECT_EQ(flat.Inverse(), matrix3(0, 0, 0, 0, 0, 0, 0, 0, 2));
    EXPECT_FALSE((matrix3::IDENTITY * 0.5).Inverse(result, 0.125)) << "the tolerance is inclusive";
    EXPECT_TRUE((matrix3::IDENTITY * 0.5).Inverse(result, 0.1249));
    EXPECT_FALSE(matrix3(1.00004, 0, 0, 0, 1, 0, 0, 0, 1).hasScale());
    EXPECT_TRUE(matrix3(1, 0, 0, 0, 1, 0, 0, 0, 1.00006).hasScale());
}

TEST(matrix3, euler_angles_are_products_in_the_order_of_the_name)
{
    random_source random;
    for (const euler_order& order : euler_orders)
    {
        for (int i = 0; i < rounds / 5; ++i)
        {
            const radian a(random.number(-3, 3));
            const radian b(random.number(-1.5, 1.5));
            const radian c(random.number(-3, 3));
            SCOPED_TRACE(testing::Message() << order.name << " " << a << b << c);
            matrix3 m;
            (m.*order.from)(a, b, c);
            const auto& axes = order.axes;
            const auto axis = [](std::size_t k) { return Eigen::Vector3d::Unit(static_cast<Eigen::Index>(k)); };
            const Eigen::Matrix3d expected = (Eigen::AngleAxisd(a.valueRadians(), axis(axes[0])) *
                                              Eigen::AngleAxisd(b.valueRadians(), axis(axes[1])) *
                                              Eigen::AngleAxisd(c.valueRadians(), axis(axes[2])))
                                                 .toRotationMatrix();
            EXPECT_TRUE(close(m, expected));
            radian a2, b2, c2;
            EXPECT_TRUE((m.*order.to)(a2, b2, c2));
            EXPECT_TRUE(close(vector3(a2.mRad, b2.mRad, c2.mRad), vector3(a.mRad, b.mRad, c.mRad), 1e-10));
        }
    }
}

TEST(matrix3, euler_angles_at_either_limit_rebuild_the_rotation)
{
    for (const euler_order& order : euler_orders)
    {
        for (const double limit : {util::HALF_PI, -util::HALF_PI})
        {
            matrix3 m;
            (m.*order.from)(radian(0.4), radian(limit), radian(-1.1));
            radian a, b, c(9.0);
            EXPECT_FALSE((m.*order.to)(a, b, c)) << order.name << limit;
            EXPECT_EQ(c.valueRadians(), 0.0);
            matrix3 rebuilt;
            (rebuilt.*order.from)(a, b, c);
            EXPECT_TRUE(close(rebuilt, m)) << order.name << limit;
        }
    }
}

TEST(matrix3, axis_and_angle_survive_every_branch)
{
    random_source random;
    for (int i = 0; i < rounds; ++i)
    {
        const vector3 axis = random.direction();
        const double angle = random.number(0.01, 3.1);
        SCOPED_TRACE(testing::Message() << axis << " " << angle);
        matrix3 m;
        m.FromAngleAxis(axis, radian(angle));
        EXPECT_TRUE(close(m, Eigen::AngleAxisd(angle, reference(axis)).toRotationMatrix()));
        vector3 axis_back;
        radian angle_back;
        m.ToAngleAxis(axis_back, angle_back);
        matrix3 rebuilt;
        rebuilt.FromAngleAxis(axis_back, angle_back);
        EXPECT_TRUE(close(rebuilt, m, 1e-7));
    }
    vector3 axis;
    radian angle(1.0);
    matrix3::IDENTITY.ToAngleAxis(axis, angle);
    EXPECT_TRUE(angle == radian(0.0) && axis == vector3::UNIT_X);
    matrix3(-0.28, 0, 0.96, 0, -1, 0, 0.96, 0, 0.28).ToAngleAxis(axis, angle);
    EXPECT_TRUE(angle == radian(util::PI) && close(axis, vector3(0.6, 0, 0.8)));
    matrix3(0, 1, 0, 1, 0, 0, 0, 0, -1).ToAngleAxis(axis, angle); // a half turn with a tie of the diagonal
    EXPECT_TRUE(angle == radian(util::PI) && close(axis, vector3(1, 1, 0).normalisedCopy()));
}

TEST(matrix3, singular_values_agree_with_the_reference)
{
    random_source random;
    for (int i = 0; i < rounds; ++i)
    {
        const matrix3 a = matrix_of_rank(random, 3 - i % 4);
        SCOPED_TRACE(testing::PrintToString(a));
        const Eigen::Vector3d expected = Eigen::JacobiSVD<Eigen::Matrix3d>(reference(a)).singularValues();
        matrix3 left, right, composed;
        vector3 values;
        a.SingularValueDecomposition(left, values, right);
        EXPECT_TRUE(close(left.Transpose() * left, matrix3::IDENTITY));
        EXPECT_TRUE(close(right.Transpose() * right, matrix3::IDENTITY));
        EXPECT_TRUE(values.x >= 0 && values.y >= 0 && values.z >= 0) << values;
        // A dropped superdiagonal element is at most msSvdEpsilon times the sum of two values.
        const double tolerance = 4.0 * matrix3::msSvdEpsilon;
        composed.SingularValueComposition(left, values, right);
        EXPECT_TRUE(close(composed, a, tolerance));
        std::sort(values.ptr(), values.ptr() + 3, std::greater<>());
        EXPECT_TRUE(close(values, expected, tolerance));
        EXPECT_NEAR(a.SpectralNorm(), expected(0), 1e-7 * (1.0 + expected(0)));

        matrix3 bidiagonal = a;
        matrix3::Bidiagonalize(bidiagonal, left, right);
        EXPECT_TRUE(bidiagonal[1][0] == 0 && bidiagonal[2][0] == 0 && bidiagonal[2][1] == 0 && bidiagonal[0][2] == 0);
        EXPECT_TRUE(close(left * bidiagonal * right, a));
        matrix3::GolubKahanStep(bidiagonal, left, right);
        EXPECT_TRUE(close(left * bidiagonal * right, a)) << "a step changes the factors, not the product";
    }
    EXPECT_NEAR((matrix3::IDENTITY * 1e200).SpectralNorm(), 1e200, 1e188);
}

TEST(matrix3, symmetric_eigenvalues_agree_with_the_reference)
{
    random_source random;
    for (int i = 0; i < rounds; ++i)
    {
        matrix3 a = matrix_of_rank(random, 3 - i % 4);
        a = a + a.Transpose();
        if (i % 5 == 0)
            a[0][2] = a[2][0] = 0.0; // tridiagonal from the start
        SCOPED_TRACE(testing::PrintToString(a));
        double values[3];
        vector3 vectors[3];
        ASSERT_TRUE(a.EigenSolveSymmetric(values, vectors));
        for (int k = 0; k < 3; ++k)
        {
            EXPECT_TRUE(close(a * vectors[k], vectors[k] * values[k]));
            EXPECT_NEAR(vectors[k].length(), 1.0, 1e-13);
        }
        EXPECT_NEAR(vectors[0].dotProduct(vectors[1].crossProduct(vectors[2])), 1.0, 1e-12) << "right-handed";
        std::sort(values, values + 3);
        EXPECT_TRUE(
            close(vector3(values), Eigen::SelfAdjointEigenSolver<Eigen::Matrix3d>(reference(a)).eigenvalues().eval()));
    }
}
