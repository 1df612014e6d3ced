#include "savrent/cc/math/matrix3.h"

#include <cmath>
#include <limits>

namespace savrent::cc::math
{
namespace
{
constexpr int most_iterations = 32;

/// The first index from start on after which the tridiagonal matrix falls apart.
std::size_t end_of_block(const double diagonal[3], const double subdiagonal[3], std::size_t start)
{
    std::size_t end = start;
    while (end < 2)
    {
        const double neighbours = std::fabs(diagonal[end]) + std::fabs(diagonal[end + 1]);
        if (std::fabs(subdiagonal[end]) <= std::numeric_limits<double>::epsilon() * 0.5 * neighbours)
            break;
        ++end;
    }
    return end;
}

/// One QL sweep with Wilkinson's shift over the block from first to last, the rotations gathered in vectors.
void ql_sweep(double diagonal[3], double subdiagonal[3], std::size_t first, std::size_t last, matrix3& vectors)
{
    const double ratio = (diagonal[first + 1] - diagonal[first]) / (2.0 * subdiagonal[first]);
    const double reach = ratio + std::copysign(std::sqrt(ratio * ratio + 1.0), ratio);
    double g = diagonal[last] - diagonal[first] + subdiagonal[first] / reach;
    double sine = 1.0;
    double cosine = 1.0;
    double p = 0.0;
    for (std::size_t i = last; i-- > first;)
    {
        const double f = sine * subdiagonal[i];
        const double b = cosine * subdiagonal[i];
        const double length = std::sqrt(f * f + g * g);
        subdiagonal[i + 1] = length;
        if (!(length > 0.0))
        {
            // The shift was exact: the block has fallen apart here.
            diagonal[i + 1] -= p;
            subdiagonal[last] = 0.0;
            return;
        }
        sine = f / length;
        cosine = g / length;
        g = diagonal[i + 1] - p;
        const double r = (diagonal[i] - g) * sine + 2.0 * cosine * b;
        p = sine * r;
        diagonal[i + 1] = g + p;
        g = cosine * r - b;
        for (std::size_t row = 0; row < 3; ++row)
        {
            const double lower = vectors[row][i];
            const double upper = vectors[row][i + 1];
            vectors[row][i + 1] = sine * lower + cosine * upper;
            vectors[row][i] = cosine * lower - sine * upper;
        }
    }
    diagonal[first] -= p;
    subdiagonal[first] = g;
    subdiagonal[last] = 0.0;
}
} // namespace

void matrix3::Tridiagonal(double diagonal[3], double subdiagonal[3])
{
    // One Householder reflection, of the two elements beside the first diagonal element onto the nearer one.
    const double d = m[1][1];
    const double e = m[1][2];
    const double f = m[2][2];
    double b = m[0][1];
    double c = m[0][2];
    diagonal[0] = m[0][0];
    subdiagonal[2] = 0.0;
    if (c == 0.0)
    {
        diagonal[1] = d;
        diagonal[2] = f;
        subdiagonal[0] = b;
        subdiagonal[1] = e;
        *this = IDENTITY;
        return;
    }
    const double length = std::hypot(b, c);
    b /= length;
    c /= length;
    const double q = 2.0 * b * e + c * (f - d);
    diagonal[1] = d + c * q;
    diagonal[2] = f - c * q;
    subdiagonal[0] = length;
    subdiagonal[1] = e - b * q;
    *this = {1.0, 0.0, 0.0, 0.0, b, c, 0.0, c, -b};
}

bool matrix3::QLAlgorithm(double diagonal[3], double subdiagonal[3])
{
    for (std::size_t first = 0; first < 3; ++first)
    {
        for (int iteration = 0;; ++iteration)
        {
            const std::size_t last = end_of_block(diagonal, subdiagonal, first);
            if (last == first)
                break;
            if (iteration == most_iterations)
                return false;
            ql_sweep(diagonal, subdiagonal, first, last, *this);
        }
    }
    return true;
}

bool matrix3::EigenSolveSymmetric(double values[3], vector3 vectors[3]) const
{
    matrix3 transformed = *this;
    double subdiagonal[3];
    transformed.Tridiagonal(values, subdiagonal);
    const bool converged = transformed.QLAlgorithm(values, subdiagonal);
    for (std::size_t i = 0; i < 3; ++i)
        vectors[i] = transformed.GetColumn(i);
    if (vectors[0].dotProduct(vectors[1].crossProduct(vectors[2])) < 0.0)
        vectors[0] = -vectors[0];
    return converged;
}

void matrix3::TensorProduct(const vector3& u, const vector3& v, matrix3& out)
{
    for (std::size_t row = 0; row < 3; ++row)
    {
        out[row][0] = u[row] * v.x;
        out[row][1] = u[row] * v.y;
        out[row][2] = u[row] * v.z;
    }
}
} // namespace savrent::cc::math
