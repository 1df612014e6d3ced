/**
 * @file math_test_support.h
 * Seeded random values, conversions to the reference library, and printing for the math tests.
 */
#ifndef TESTS_SAVRENT_CC_MATH_MATH_TEST_SUPPORT_H
#define TESTS_SAVRENT_CC_MATH_MATH_TEST_SUPPORT_H

#include <ostream>
#include <random>

#include <Eigen/Dense>
#include <gtest/gtest.h>

#include "savrent/cc/math/matrix3.h"
#include "savrent/cc/math/matrix4.h"
#include "savrent/cc/math/quaternion.h"
#include "savrent/cc/math/vector3.h"

namespace math_test
{
namespace math = savrent::cc::math;

constexpr int rounds = 500;

/// Values that are the same in every run; one source for each test.
class random_source
{
public:
    double number(double low = -2.0, double high = 2.0)
    {
        return std::uniform_real_distribution<double>(low, high)(generator_);
    }
    math::vector3 vector() { return {number(), number(), number()}; }
    math::vector3 direction() { return vector().normalisedCopy(); }
    math::quaternion rotation()
    {
        math::quaternion q(number(), number(), number(), number());
        q.normalise();
        return q;
    }
    math::matrix3 matrix()
    {
        return {number(), number(), number(), number(), number(), number(), number(), number(), number()};
    }
    math::matrix4 matrix_4()
    {
        math::matrix4 m;
        for (std::size_t r = 0; r < 4; ++r)
            for (std::size_t c = 0; c < 4; ++c)
                m[r][c] = number();
        return m;
    }
    math::matrix4 affine()
    {
        math::matrix4 m(matrix());
        m.setTrans(vector());
        return m;
    }

private:
    std::mt19937_64 generator_{20240611};
};

inline Eigen::Vector3d reference(const math::vector3& v)
{
    return {v.x, v.y, v.z};
}
inline Eigen::Vector4d reference(const math::vector4& v)
{
    return {v.x, v.y, v.z, v.w};
}
inline Eigen::Vector4d reference(const math::quaternion& q)
{
    return {q.w, q.x, q.y, q.z};
}
inline Eigen::Quaterniond turn(const math::quaternion& q)
{
    return {q.w, q.x, q.y, q.z};
}
inline Eigen::Matrix3d reference(const math::matrix3& m)
{
    return Eigen::Map<const Eigen::Matrix<double, 3, 3, Eigen::RowMajor>>(m[0]);
}
inline Eigen::Matrix4d reference(const math::matrix4& m)
{
    return Eigen::Map<const Eigen::Matrix<double, 4, 4, Eigen::RowMajor>>(m[0]);
}

/// Compares by element, relative to the size of what is expected, and prints both.
template <typename Actual, typename Expected>
testing::AssertionResult close(const Actual& actual, const Expected& expected, double tolerance = 1e-12)
{
    const auto value = reference(actual);
    const double error = (value - expected).cwiseAbs().maxCoeff();
    if (error <= tolerance * (1.0 + expected.cwiseAbs().maxCoeff()))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "got\n" << value << "\nexpected\n" << expected << "\nerror " << error;
}
inline testing::AssertionResult close(const math::vector3& actual, const math::vector3& expected,
                                      double tolerance = 1e-12)
{
    return close(actual, reference(expected), tolerance);
}
inline testing::AssertionResult close(const math::matrix3& actual, const math::matrix3& expected,
                                      double tolerance = 1e-12)
{
    return close(actual, reference(expected), tolerance);
}
} // namespace math_test

namespace savrent::cc::math
{
inline void PrintTo(const matrix3& m, std::ostream* out)
{
    *out << math_test::reference(m);
}
} // namespace savrent::cc::math

#endif
