#include "savrent/cc/math/matrix4.h"

#include <cmath>
#include <ostream>

#include "savrent/cc/math/operations.h"
#include "savrent/cc/math/plane.h"

namespace savrent::cc::math
{
namespace
{
/// Two doubles that the processor multiplies at once.
using pair_t = double __attribute__((vector_size(16)));

inline pair_t both(double value)
{
    return pair_t{value, value};
}

/**
 * Determinant and adjoint by Laplace's expansion along two pairs of rows.
 *
 * The upper pair and the lower pair need the same arithmetic, and so do neighbouring columns of the
 * adjoint: each runs as the two halves of a pair_t.
 */
class laplace_expansion
{
public:
    explicit laplace_expansion(const matrix4& a)
    {
        pair_t first[4];
        pair_t second[4];
        for (std::size_t c = 0; c < 4; ++c)
        {
            first[c] = pair_t{a[0][c], a[2][c]};
            second[c] = pair_t{a[1][c], a[3][c]};
            turned_upper[c] = pair_t{a[1][c], a[0][c]};
            turned_lower[c] = pair_t{a[3][c], a[2][c]};
        }
        minors[0] = first[0] * second[1] - first[1] * second[0];
        minors[1] = first[0] * second[2] - first[2] * second[0];
        minors[2] = first[0] * second[3] - first[3] * second[0];
        minors[3] = first[1] * second[2] - first[2] * second[1];
        minors[4] = first[1] * second[3] - first[3] * second[1];
        minors[5] = first[2] * second[3] - first[3] * second[2];
    }

    [[nodiscard]] double determinant() const
    {
        return minors[0][0] * minors[5][1] - minors[1][0] * minors[4][1] + minors[2][0] * minors[3][1] +
               minors[3][0] * minors[2][1] - minors[4][0] * minors[1][1] + minors[5][0] * minors[0][1];
    }

    /// The adjoint times a factor.
    [[nodiscard]] matrix4 adjoint(double factor) const
    {
        matrix4 result;
        // The columns of the upper rows pair with the minors of the lower ones, and the other way round.
        write_columns<0, 1>(turned_upper, factor, result);
        write_columns<2, 0>(turned_lower, factor, result);
        return result;
    }

private:
    template <std::size_t column, int half>
    void write_columns(const pair_t (&turned)[4], double factor, matrix4& result) const
    {
        pair_t m[6];
        for (std::size_t k = 0; k < 6; ++k)
            m[k] = both(minors[k][half]);
        // The factor comes last, so that the division that makes it runs beside the products.
        const pair_t signs{factor, -factor};
        store<column>(result[0], (turned[1] * m[5] - turned[2] * m[4] + turned[3] * m[3]) * signs);
        store<column>(result[1], (turned[2] * m[2] - turned[0] * m[5] - turned[3] * m[1]) * signs);
        store<column>(result[2], (turned[0] * m[4] - turned[1] * m[2] + turned[3] * m[0]) * signs);
        store<column>(result[3], (turned[1] * m[1] - turned[0] * m[3] - turned[2] * m[0]) * signs);
    }
    template <std::size_t column>
    static void store(double* row, const pair_t& value)
    {
        row[column] = value[0];
        row[column + 1] = value[1];
    }

    pair_t minors[6]; ///< by columns 01, 02, 03, 12, 13, 23; of the upper, then of the lower rows
    pair_t turned_upper[4];
    pair_t turned_lower[4];
};
} // namespace

constinit const matrix4 matrix4::ZERO{0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0};
constinit const matrix4 matrix4::ZEROAFFINE{0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0,
                                            0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 1.0};
constinit const matrix4 matrix4::IDENTITY{1.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0,
                                          0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 0.0, 1.0};
constinit const matrix4 matrix4::CLIPSPACE2DTOIMAGESPACE{0.5, 0.0, 0.0, 0.5, 0.0, -0.5, 0.0, 0.5,
                                                         0.0, 0.0, 1.0, 0.0, 0.0, 0.0,  0.0, 1.0};

plane matrix4::operator*(const plane& p) const
{
    const vector4 image = inverse().transpose() * vector4(p.normal.x, p.normal.y, p.normal.z, p.d);
    plane result;
    result.normal = image.xyz();
    result.d = image.w / result.normal.normalise();
    return result;
}

matrix4 matrix4::operator*(double scalar) const
{
    matrix4 result;
    for (std::size_t r = 0; r < 4; ++r)
        for (std::size_t c = 0; c < 4; ++c)
            result[r][c] = m[r][c] * scalar;
    return result;
}

matrix4 matrix4::operator+(const matrix4& b) const
{
    matrix4 result;
    for (std::size_t r = 0; r < 4; ++r)
        for (std::size_t c = 0; c < 4; ++c)
            result[r][c] = m[r][c] + b[r][c];
    return result;
}

matrix4 matrix4::operator-(const matrix4& b) const
{
    return *this + b * -1.0;
}

double matrix4::determinant() const
{
    return laplace_expansion(*this).determinant();
}

matrix4 matrix4::adjoint() const
{
    return laplace_expansion(*this).adjoint(1.0);
}

matrix4 matrix4::inverse() const
{
    const laplace_expansion expansion(*this);
    return expansion.adjoint(1.0 / expansion.determinant());
}

bool matrix4::hasScale() const
{
    return extract3x3Matrix().hasScale();
}

void matrix4::decomposition(vector3& position, vector3& scale, quaternion& orientation) const
{
    matrix3 rotation;
    vector3 shear;
    extract3x3Matrix().QDUDecomposition(rotation, scale, shear);
    orientation = quaternion(rotation);
    position = getTrans();
}

void matrix4::makeTransform(const vector3& position, const vector3& scale, const quaternion& orientation)
{
    matrix3 r;
    orientation.ToRotationMatrix(r);
    *this = {r[0][0] * scale.x,
             r[0][1] * scale.y,
             r[0][2] * scale.z,
             position.x,
             r[1][0] * scale.x,
             r[1][1] * scale.y,
             r[1][2] * scale.z,
             position.y,
             r[2][0] * scale.x,
             r[2][1] * scale.y,
             r[2][2] * scale.z,
             position.z,
             0.0,
             0.0,
             0.0,
             1.0};
}

void matrix4::makeInverseTransform(const vector3& position, const vector3& scale, const quaternion& orientation)
{
    // Undone in reverse: move back, turn back, scale back.
    const quaternion turn_back = orientation.Inverse();
    const vector3 factor = 1.0 / scale;
    const vector3 move = turn_back * -position * factor;
    matrix3 r;
    turn_back.ToRotationMatrix(r);
    *this = {r[0][0] * factor.x,
             r[0][1] * factor.x,
             r[0][2] * factor.x,
             move.x,
             r[1][0] * factor.y,
             r[1][1] * factor.y,
             r[1][2] * factor.y,
             move.y,
             r[2][0] * factor.z,
             r[2][1] * factor.z,
             r[2][2] * factor.z,
             move.z,
             0.0,
             0.0,
             0.0,
             1.0};
}

matrix4 matrix4::inverseAffine() const
{
    // The inverse of the block by its adjoint, then the translation moved back through it.
    const double c00 = m[1][1] * m[2][2] - m[1][2] * m[2][1];
    const double c10 = m[1][2] * m[2][0] - m[1][0] * m[2][2];
    const double c20 = m[1][0] * m[2][1] - m[1][1] * m[2][0];
    const double s = 1.0 / (m[0][0] * c00 + m[0][1] * c10 + m[0][2] * c20);
    const double r00 = c00 * s;
    const double r10 = c10 * s;
    const double r20 = c20 * s;
    const double r01 = (m[0][2] * m[2][1] - m[0][1] * m[2][2]) * s;
    const double r11 = (m[0][0] * m[2][2] - m[0][2] * m[2][0]) * s;
    const double r21 = (m[0][1] * m[2][0] - m[0][0] * m[2][1]) * s;
    const double r02 = (m[0][1] * m[1][2] - m[0][2] * m[1][1]) * s;
    const double r12 = (m[0][2] * m[1][0] - m[0][0] * m[1][2]) * s;
    const double r22 = (m[0][0] * m[1][1] - m[0][1] * m[1][0]) * s;
    const vector3 t = getTrans();
    return {r00, r01, r02, -(r00 * t.x + r01 * t.y + r02 * t.z), r10, r11, r12, -(r10 * t.x + r11 * t.y + r12 * t.z),
            r20, r21, r22, -(r20 * t.x + r21 * t.y + r22 * t.z), 0.0, 0.0, 0.0, 1.0};
}

matrix4 matrix4::concatenateAffine(const matrix4& b) const
{
    matrix4 product;
    for (std::size_t r = 0; r < 3; ++r)
    {
        for (std::size_t c = 0; c < 4; ++c)
            product[r][c] = m[r][0] * b[0][c] + m[r][1] * b[1][c] + m[r][2] * b[2][c];
        product[r][3] += m[r][3];
    }
    return product;
}

matrix4 matrix4::buildRotateFromTo(const vector3& from, const vector3& to)
{
    const vector3 f = from.normalisedCopy();
    const vector3 t = to.normalisedCopy();
    const vector3 v = t.crossProduct(f); // its length is the sine
    const vector3 u = v.normalisedCopy();
    const double c = f.dotProduct(t);
    const double k = 1.0 - c;
    matrix4 result;
    result = matrix3(c + k * u.x * u.x, k * u.x * u.y + v.z, k * u.x * u.z - v.y, //
                     k * u.x * u.y - v.z, c + k * u.y * u.y, k * u.y * u.z + v.x, //
                     k * u.x * u.z + v.y, k * u.y * u.z - v.x, c + k * u.z * u.z);
    return result;
}

matrix4 matrix4::buildRotateFromTo2(const vector3& from, const vector3& to)
{
    const vector3 f = from.normalisedCopy();
    const vector3 t = to.normalisedCopy();
    const double degrees = radToDeg(std::acos(f.dotProduct(t)));
    return buildRotateFromAxisAngle(f.crossProduct(t).normalisedCopy(), degrees);
}

matrix4 matrix4::buildRotateFromAxisAngle(const vector3& axis, double degrees)
{
    const double rotation = degToRad(degrees);
    const double c = std::cos(rotation);
    const double s = std::sin(rotation);
    const double t = 1.0 - c;
    const double x = axis.x;
    const double y = axis.y;
    const double z = axis.z;
    matrix4 result;
    result = matrix3(x * x * t + c, x * y * t - z * s, x * y * t + y * s, //
                     x * y * t + z * s, y * y * t + c, y * z * t - x * s, //
                     x * z * t - y * s, y * z * t + x * s, z * z * t + c);
    return result;
}

vector4 operator*(const vector4& v, const matrix4& a)
{
    return a.transpose() * v;
}

std::ostream& operator<<(std::ostream& out, const matrix4& a)
{
    out << "Matrix4(";
    for (std::size_t r = 0; r < 4; ++r)
    {
        out << " row" << r << ":";
        for (std::size_t c = 0; c < 4; ++c)
            out << a[r][c] << " ";
        out << "\n";
    }
    return out << ")";
}
} // namespace savrent::cc::math
