#include "savrent/cc/math/matrix3.h"

#include <cmath>

namespace savrent::cc::math
{
namespace
{
/// Axes of a product of three plain rotations, by index.
struct euler_order
{
    std::size_t first;
    std::size_t middle;
    std::size_t last;

    /// 1 for a cyclic order, -1 for the others: the sign of the middle sine in the matrix.
    [[nodiscard]] constexpr double sign() const { return (first + 1) % 3 == middle ? 1.0 : -1.0; }
};

template <euler_order order>
bool to_euler(const matrix3& m, radian& a, radian& b, radian& c)
{
    constexpr std::size_t i = order.first;
    constexpr std::size_t j = order.middle;
    constexpr std::size_t k = order.last;
    constexpr double e = order.sign();
    b = util::ASin(e * m[i][k]);
    const bool below = b < radian(util::HALF_PI);
    if (below && b > radian(-util::HALF_PI))
    {
        a = util::ATan2(-e * m[j][k], m[k][k]);
        c = util::ATan2(-e * m[i][j], m[i][i]);
        return true;
    }
    // With c at 0, row j holds sin(a) * sin(b) and cos(a): the lower limit turns the sign.
    a = util::ATan2(below ? -m[j][i] : m[j][i], m[j][j]);
    c = 0.0;
    return false;
}

/// Multiplies by a plain rotation from the left, which mixes the two rows of the other axes.
template <std::size_t axis>
inline void turn_rows(double rows[3][3], double cosine, double sine)
{
    constexpr std::size_t i = (axis + 1) % 3;
    constexpr std::size_t j = (axis + 2) % 3;
    for (std::size_t column = 0; column < 3; ++column)
    {
        const double upper = rows[i][column];
        const double lower = rows[j][column];
        rows[i][column] = cosine * upper - sine * lower;
        rows[j][column] = sine * upper + cosine * lower;
    }
}

template <euler_order order>
matrix3 from_euler(const radian& a, const radian& b, const radian& c)
{
    double rows[3][3] = {{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}};
    turn_rows<order.last>(rows, util::Cos(c), util::Sin(c));
    turn_rows<order.middle>(rows, util::Cos(b), util::Sin(b));
    turn_rows<order.first>(rows, util::Cos(a), util::Sin(a));
    return matrix3(rows);
}

constexpr euler_order xyz{0, 1, 2};
constexpr euler_order xzy{0, 2, 1};
constexpr euler_order yxz{1, 0, 2};
constexpr euler_order yzx{1, 2, 0};
constexpr euler_order zxy{2, 0, 1};
constexpr euler_order zyx{2, 1, 0};

/// Axis of a half turn, from the diagonal element that is the largest.
vector3 half_turn_axis(const matrix3& m)
{
    std::size_t i = m[0][0] >= m[1][1] ? 0 : 1;
    if (m[2][2] > m[i][i])
        i = 2;
    const std::size_t j = i == 0 ? 1 : 0;
    const std::size_t k = i == 2 ? 1 : 2;
    const double r = std::sqrt(m[i][i] - m[j][j] - m[k][k] + 1.0);
    vector3 axis;
    axis[i] = 0.5 * r;
    axis[j] = (i < j ? m[i][j] : m[j][i]) / r;
    axis[k] = (i < k ? m[i][k] : m[k][i]) / r;
    return axis;
}
} // namespace

void matrix3::ToAngleAxis(vector3& axis, radian& rotation) const
{
    const double trace = m[0][0] + m[1][1] + m[2][2];
    rotation = util::ACos(0.5 * (trace - 1.0));
    if (!(rotation > radian(0.0)))
    {
        axis = vector3::UNIT_X;
    }
    else if (rotation < radian(util::PI))
    {
        axis = {m[2][1] - m[1][2], m[0][2] - m[2][0], m[1][0] - m[0][1]};
        axis.normalise();
    }
    else
    {
        axis = half_turn_axis(*this);
    }
}

void matrix3::ToAngleAxis(vector3& axis, degree& rotation) const
{
    radian radians;
    ToAngleAxis(axis, radians);
    rotation = radians;
}

void matrix3::FromAngleAxis(const vector3& axis, const radian& rotation)
{
    const double c = util::Cos(rotation);
    const double s = util::Sin(rotation);
    const double t = 1.0 - c;
    const double xy = axis.x * axis.y * t;
    const double xz = axis.x * axis.z * t;
    const double yz = axis.y * axis.z * t;
    const double xs = axis.x * s;
    const double ys = axis.y * s;
    const double zs = axis.z * s;
    *this = {axis.x * axis.x * t + c, xy - zs, xz + ys, xy + zs, axis.y * axis.y * t + c, yz - xs, xz - ys, yz + xs,
             axis.z * axis.z * t + c};
}

bool matrix3::ToEulerAnglesXYZ(radian& a, radian& b, radian& c) const
{
    return to_euler<xyz>(*this, a, b, c);
}
bool matrix3::ToEulerAnglesXZY(radian& a, radian& b, radian& c) const
{
    return to_euler<xzy>(*this, a, b, c);
}
bool matrix3::ToEulerAnglesYXZ(radian& a, radian& b, radian& c) const
{
    return to_euler<yxz>(*this, a, b, c);
}
bool matrix3::ToEulerAnglesYZX(radian& a, radian& b, radian& c) const
{
    return to_euler<yzx>(*this, a, b, c);
}
bool matrix3::ToEulerAnglesZXY(radian& a, radian& b, radian& c) const
{
    return to_euler<zxy>(*this, a, b, c);
}
bool matrix3::ToEulerAnglesZYX(radian& a, radian& b, radian& c) const
{
    return to_euler<zyx>(*this, a, b, c);
}

void matrix3::FromEulerAnglesXYZ(const radian& a, const radian& b, const radian& c)
{
    *this = from_euler<xyz>(a, b, c);
}
void matrix3::FromEulerAnglesXZY(const radian& a, const radian& b, const radian& c)
{
    *this = from_euler<xzy>(a, b, c);
}
void matrix3::FromEulerAnglesYXZ(const radian& a, const radian& b, const radian& c)
{
    *this = from_euler<yxz>(a, b, c);
}
void matrix3::FromEulerAnglesYZX(const radian& a, const radian& b, const radian& c)
{
    *this = from_euler<yzx>(a, b, c);
}
void matrix3::FromEulerAnglesZXY(const radian& a, const radian& b, const radian& c)
{
    *this = from_euler<zxy>(a, b, c);
}
void matrix3::FromEulerAnglesZYX(const radian& a, const radian& b, const radian& c)
{
    *this = from_euler<zyx>(a, b, c);
}
} // namespace savrent::cc::math
