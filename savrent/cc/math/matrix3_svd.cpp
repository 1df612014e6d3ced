#include "savrent/cc/math/matrix3.h"

#include <cmath>
#include <limits>

namespace savrent::cc::math
{
namespace
{
/// Squares below it have lost digits to underflow.
constexpr double smallest_square = 1e-280;

/// A plane rotation: cosine and sine.
struct givens
{
    double c = 1.0;
    double s = 0.0;

    /// The rotation that turns (x, z) to (length, 0).
    static givens onto_first(double x, double z)
    {
        const double squared = x * x + z * z;
        const double length = squared > smallest_square ? std::sqrt(squared) : std::hypot(x, z);
        if (!(length > 0.0))
            return {};
        const double inverse = 1.0 / length;
        return {x * inverse, z * inverse};
    }
};

/// a = a * G: column i takes c * i + s * j.
template <std::size_t i, std::size_t j>
inline void turn_columns(matrix3& a, const givens& g)
{
    for (std::size_t row = 0; row < 3; ++row)
    {
        const double first = a[row][i];
        const double second = a[row][j];
        a[row][i] = g.c * first + g.s * second;
        a[row][j] = g.c * second - g.s * first;
    }
}

/// a = G transposed * a: row i takes c * i + s * j.
template <std::size_t i, std::size_t j>
inline void turn_rows(matrix3& a, const givens& g)
{
    for (std::size_t column = 0; column < 3; ++column)
    {
        const double first = a[i][column];
        const double second = a[j][column];
        a[i][column] = g.c * first + g.s * second;
        a[j][column] = g.c * second - g.s * first;
    }
}

/// The Householder vector that reflects v onto an axis, scaled so that the reflection is I - h h^T.
vector3 householder(const vector3& v, std::size_t onto)
{
    const double length = v.length();
    if (!(length > 0.0))
        return {};
    vector3 h = v;
    h[onto] += v[onto] < 0.0 ? -length : length;
    return h * (1.0 / std::sqrt(length * std::fabs(h[onto])));
}

/// a = (I - h h^T) * a
void reflect_rows(matrix3& a, const vector3& h)
{
    const vector3 along = h * a;
    for (std::size_t row = 0; row < 3; ++row)
    {
        a[row][0] -= h[row] * along.x;
        a[row][1] -= h[row] * along.y;
        a[row][2] -= h[row] * along.z;
    }
}

/// a = a * (I - h h^T)
void reflect_columns(matrix3& a, const vector3& h)
{
    const vector3 along = a * h;
    for (std::size_t row = 0; row < 3; ++row)
    {
        a[row][0] -= along[row] * h.x;
        a[row][1] -= along[row] * h.y;
        a[row][2] -= along[row] * h.z;
    }
}

/// Diagonalises the upper triangular 2 by 2 block at rows and columns i, j with one rotation on each side.
template <std::size_t i, std::size_t j>
void diagonalise_block(matrix3& b, matrix3& left, matrix3& right)
{
    // The right rotation is the Jacobi rotation of the block's transposed times itself; the left one then
    // turns the longer of the two orthogonal columns onto its axis.
    const double f = b[i][i];
    const double g = b[i][j];
    const double h = b[j][j];
    givens on_right;
    if (f * g != 0.0)
    {
        const double zeta = (g * g + h * h - f * f) / (2.0 * f * g);
        const double tangent = std::copysign(1.0, zeta) / (std::fabs(zeta) + std::sqrt(1.0 + zeta * zeta));
        on_right.c = 1.0 / std::sqrt(1.0 + tangent * tangent);
        on_right.s = -on_right.c * tangent;
    }
    turn_columns<i, j>(b, on_right);
    turn_rows<i, j>(right, on_right);
    const double first = b[i][i] * b[i][i] + b[j][i] * b[j][i];
    const double second = b[i][j] * b[i][j] + b[j][j] * b[j][j];
    const givens on_left =
        first >= second ? givens::onto_first(b[i][i], b[j][i]) : givens::onto_first(b[j][j], -b[i][j]);
    turn_rows<i, j>(b, on_left);
    turn_columns<i, j>(left, on_left);
}

/// Eigenvalue of the trailing 2 by 2 block of b transposed times b that is nearer to its last element.
double wilkinson_shift(const matrix3& b)
{
    const double upper = b[0][1] * b[0][1] + b[1][1] * b[1][1];
    const double lower = b[1][2] * b[1][2] + b[2][2] * b[2][2];
    const double beside = b[1][1] * b[1][2];
    const double half_gap = 0.5 * (upper - lower);
    const double reach = half_gap + std::copysign(std::sqrt(half_gap * half_gap + beside * beside), half_gap);
    return reach != 0.0 ? lower - beside * beside / reach : lower;
}
/**
 * Deflates a bidiagonal a of which one of the first two diagonal elements is zero to working precision.
 *
 * QR steps cannot get rid of the element beside such a zero; rotations with the rows below can.
 */
bool chase_zero_diagonal(matrix3& a, matrix3& left)
{
    const double size =
        std::fabs(a[0][0]) + std::fabs(a[0][1]) + std::fabs(a[1][1]) + std::fabs(a[1][2]) + std::fabs(a[2][2]);
    const double zero = std::numeric_limits<double>::epsilon() * size;
    if (std::fabs(a[1][1]) <= zero)
    {
        a[1][1] = 0.0;
        const givens g = givens::onto_first(a[2][2], a[1][2]);
        turn_rows<2, 1>(a, g);
        turn_columns<2, 1>(left, g);
        a[1][2] = 0.0;
        return true;
    }
    if (std::fabs(a[0][0]) <= zero)
    {
        a[0][0] = 0.0;
        const givens g = givens::onto_first(a[1][1], a[0][1]);
        turn_rows<1, 0>(a, g);
        turn_columns<1, 0>(left, g);
        const givens h = givens::onto_first(a[2][2], a[0][2]);
        turn_rows<2, 0>(a, h);
        turn_columns<2, 0>(left, h);
        a[0][1] = a[0][2] = 0.0;
        return true;
    }
    return false;
}
} // namespace

void matrix3::Bidiagonalize(matrix3& a, matrix3& left, matrix3& right)
{
    left = IDENTITY;
    right = IDENTITY;

    const vector3 first_column = householder(a.GetColumn(0), 0);
    reflect_rows(a, first_column);
    reflect_columns(left, first_column);

    const vector3 first_row = householder({0.0, a[0][1], a[0][2]}, 1);
    reflect_columns(a, first_row);
    reflect_rows(right, first_row);

    const givens second_column = givens::onto_first(a[1][1], a[2][1]);
    turn_rows<1, 2>(a, second_column);
    turn_columns<1, 2>(left, second_column);

    a[1][0] = a[2][0] = a[2][1] = a[0][2] = 0.0; // what is left there is rounding
}

void matrix3::GolubKahanStep(matrix3& a, matrix3& left, matrix3& right)
{
    if (chase_zero_diagonal(a, left))
        return;
    const givens shift = givens::onto_first(a[0][0] * a[0][0] - wilkinson_shift(a), a[0][0] * a[0][1]);
    turn_columns<0, 1>(a, shift);
    turn_rows<0, 1>(right, shift);

    // Chase the bulge down to the corner.
    const givens below = givens::onto_first(a[0][0], a[1][0]);
    turn_rows<0, 1>(a, below);
    turn_columns<0, 1>(left, below);

    const givens beside = givens::onto_first(a[0][1], a[0][2]);
    turn_columns<1, 2>(a, beside);
    turn_rows<1, 2>(right, beside);

    const givens last = givens::onto_first(a[1][1], a[2][1]);
    turn_rows<1, 2>(a, last);
    turn_columns<1, 2>(left, last);
    a[1][0] = a[2][0] = a[2][1] = a[0][2] = 0.0; // what is left there is rounding
}

void matrix3::SingularValueDecomposition(matrix3& left, vector3& values, matrix3& right) const
{
    matrix3 b = *this;
    Bidiagonalize(b, left, right);
    for (unsigned int iteration = 0; iteration < msSvdMaxIterations; ++iteration)
    {
        const bool upper_is_zero = std::fabs(b[0][1]) <= (std::fabs(b[0][0]) + std::fabs(b[1][1])) * msSvdEpsilon;
        const bool lower_is_zero = std::fabs(b[1][2]) <= (std::fabs(b[1][1]) + std::fabs(b[2][2])) * msSvdEpsilon;
        if (!upper_is_zero && !lower_is_zero)
        {
            GolubKahanStep(b, left, right);
            continue;
        }
        if (!lower_is_zero)
            diagonalise_block<1, 2>(b, left, right);
        else if (!upper_is_zero)
            diagonalise_block<0, 1>(b, left, right);
        break;
    }
    values = {b[0][0], b[1][1], b[2][2]};
    for (std::size_t i = 0; i < 3; ++i)
    {
        if (values[i] < 0.0)
        {
            values[i] = -values[i];
            right[i][0] = -right[i][0];
            right[i][1] = -right[i][1];
            right[i][2] = -right[i][2];
        }
    }
}

void matrix3::SingularValueComposition(const matrix3& left, const vector3& values, const matrix3& right)
{
    *this = left * matrix3(values.x, 0.0, 0.0, 0.0, values.y, 0.0, 0.0, 0.0, values.z) * right;
}
} // namespace savrent::cc::math
