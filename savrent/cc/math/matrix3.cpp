#include "savrent/cc/math/matrix3.h"

#include <cmath>

namespace savrent::cc::math
{
constinit const matrix3 matrix3::ZERO{0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0};
constinit const matrix3 matrix3::IDENTITY{1.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 1.0};

bool matrix3::Inverse(matrix3& result, double tolerance) const
{
    const matrix3 adjoint(m[1][1] * m[2][2] - m[1][2] * m[2][1], m[0][2] * m[2][1] - m[0][1] * m[2][2],
                          m[0][1] * m[1][2] - m[0][2] * m[1][1], m[1][2] * m[2][0] - m[1][0] * m[2][2],
                          m[0][0] * m[2][2] - m[0][2] * m[2][0], m[0][2] * m[1][0] - m[0][0] * m[1][2],
                          m[1][0] * m[2][1] - m[1][1] * m[2][0], m[0][1] * m[2][0] - m[0][0] * m[2][1],
                          m[0][0] * m[1][1] - m[0][1] * m[1][0]);
    const double determinant = m[0][0] * adjoint[0][0] + m[0][1] * adjoint[1][0] + m[0][2] * adjoint[2][0];
    if (std::fabs(determinant) <= tolerance)
    {
        result = adjoint;
        return false;
    }
    result = adjoint * (1.0 / determinant);
    return true;
}

matrix3 matrix3::Inverse(double tolerance) const
{
    matrix3 result;
    Inverse(result, tolerance);
    return result;
}

bool matrix3::hasScale() const
{
    for (std::size_t column = 0; column < 3; ++column)
        if (!util::realEqual(GetColumn(column).squaredLength(), 1.0, 1e-4))
            return true;
    return false;
}

void matrix3::Orthonormalize()
{
    vector3 q0 = GetColumn(0);
    q0 *= util::InvSqrt(q0.squaredLength());
    vector3 q1 = GetColumn(1);
    q1 -= q0 * q0.dotProduct(q1);
    q1 *= util::InvSqrt(q1.squaredLength());
    vector3 q2 = GetColumn(2);
    const double along_0 = q0.dotProduct(q2);
    const double along_1 = q1.dotProduct(q2);
    q2 -= q0 * along_0 + q1 * along_1;
    q2 *= util::InvSqrt(q2.squaredLength());
    FromAxes(q0, q1, q2);
}

void matrix3::QDUDecomposition(matrix3& q, vector3& d, vector3& u) const
{
    // Gram-Schmidt gives Q R with an upper triangle R; its diagonal is the scale, and what is left
    // of R after division by the diagonal is the shear.
    const matrix3 a = *this; // an output may be this matrix
    q = a;
    q.Orthonormalize();
    if (q.Determinant() < 0.0)
        q = -q;
    const matrix3 r = q.Transpose() * a;
    d = {r[0][0], r[1][1], r[2][2]};
    const double inverse_d0 = 1.0 / d.x;
    u = {r[0][1] * inverse_d0, r[0][2] * inverse_d0, r[1][2] / d.y};
}

double matrix3::MaxCubicRoot(const double coefficients[3])
{
    // The trigonometric solution of the depressed cubic t^3 - 3 p t + 2 q = 0 with x = t - c2 / 3.
    const double shift = coefficients[2] / 3.0;
    const double p = shift * shift - coefficients[1] / 3.0;
    const double q = shift * shift * shift - 0.5 * (shift * coefficients[1] - coefficients[0]);
    if (!(p > 0.0))
        return -shift; // three equal roots
    const double root_p = std::sqrt(p);
    const double third = util::ACos(-q / (p * root_p)).valueRadians() / 3.0;
    return 2.0 * root_p * std::cos(third) - shift;
}

double matrix3::SpectralNorm() const
{
    // The largest root of the characteristic cubic of A transposed times A, scaled against overflow.
    double largest = 0.0;
    for (const auto& row : m)
        for (const double element : row)
            largest = std::fmax(largest, std::fabs(element));
    if (!(largest > 0.0))
        return 0.0;
    const matrix3 scaled = *this * (1.0 / largest);
    const matrix3 p = scaled.Transpose() * scaled;
    const double coefficients[3] = {-p.Determinant(),
                                    p[0][0] * p[1][1] - p[0][1] * p[1][0] + p[0][0] * p[2][2] - p[0][2] * p[2][0] +
                                        p[1][1] * p[2][2] - p[1][2] * p[2][1],
                                    -(p[0][0] + p[1][1] + p[2][2])};
    return largest * std::sqrt(MaxCubicRoot(coefficients));
}
} // namespace savrent::cc::math
