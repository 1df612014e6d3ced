#include "savrent/cc/math/quaternion.h"

#include <ostream>

namespace savrent::cc::math
{
constinit const quaternion quaternion::ZERO{0.0, 0.0, 0.0, 0.0};
constinit const quaternion quaternion::IDENTITY{1.0, 0.0, 0.0, 0.0};

void quaternion::FromRotationMatrix(const matrix3& rotation)
{
    const matrix3& m = rotation;
    const double trace = m[0][0] + m[1][1] + m[2][2];
    if (trace > 0.0)
    {
        const double r = std::sqrt(trace + 1.0);
        const double s = 0.5 / r;
        *this = {0.5 * r, (m[2][1] - m[1][2]) * s, (m[0][2] - m[2][0]) * s, (m[1][0] - m[0][1]) * s};
        return;
    }
    // The largest component comes from the diagonal, so that the division below is never by a small number.
    static constexpr std::size_t next[3] = {1, 2, 0};
    std::size_t i = m[1][1] > m[0][0] ? 1 : 0;
    if (m[2][2] > m[i][i])
        i = 2;
    const std::size_t j = next[i];
    const std::size_t k = next[j];
    const double r = std::sqrt(m[i][i] - m[j][j] - m[k][k] + 1.0);
    const double s = 0.5 / r;
    double* const vector_part[3] = {&x, &y, &z};
    *vector_part[i] = 0.5 * r;
    w = (m[k][j] - m[j][k]) * s;
    *vector_part[j] = (m[j][i] + m[i][j]) * s;
    *vector_part[k] = (m[k][i] + m[i][k]) * s;
}

void quaternion::ToAngleAxis(radian& rotation, vector3& axis) const
{
    const double squared_sine = x * x + y * y + z * z;
    if (squared_sine > 0.0)
    {
        rotation = 2.0 * util::ACos(w);
        axis = vector3(x, y, z) * util::InvSqrt(squared_sine);
    }
    else
    {
        rotation = 0.0;
        axis = vector3::UNIT_X;
    }
}

void quaternion::ToAngleAxis(degree& rotation, vector3& axis) const
{
    radian radians;
    ToAngleAxis(radians, axis);
    rotation = radians;
}

void quaternion::FromAxes(const vector3& x_axis, const vector3& y_axis, const vector3& z_axis)
{
    matrix3 rotation;
    rotation.FromAxes(x_axis, y_axis, z_axis);
    FromRotationMatrix(rotation);
}

void quaternion::FromAxes(const vector3* axes)
{
    FromAxes(axes[0], axes[1], axes[2]);
}

void quaternion::ToAxes(vector3& x_axis, vector3& y_axis, vector3& z_axis) const
{
    matrix3 rotation;
    ToRotationMatrix(rotation);
    x_axis = rotation.GetColumn(0);
    y_axis = rotation.GetColumn(1);
    z_axis = rotation.GetColumn(2);
}

void quaternion::ToAxes(vector3* axes) const
{
    ToAxes(axes[0], axes[1], axes[2]);
}

vector3 quaternion::xAxis() const
{
    const double ty = y + y;
    const double tz = z + z;
    return {1.0 - (ty * y + tz * z), ty * x + tz * w, tz * x - ty * w};
}

vector3 quaternion::yAxis() const
{
    const double tx = x + x;
    const double ty = y + y;
    const double tz = z + z;
    return {ty * x - tz * w, 1.0 - (tx * x + tz * z), tz * y + tx * w};
}

vector3 quaternion::zAxis() const
{
    const double tx = x + x;
    const double ty = y + y;
    const double tz = z + z;
    return {tz * x + ty * w, tz * y - tx * w, 1.0 - (tx * x + ty * y)};
}

radian quaternion::getRoll(bool project) const
{
    if (project)
        return util::ATan2(2.0 * z * w + 2.0 * x * y, 1.0 - (2.0 * y * y + 2.0 * z * z));
    return util::ATan2(2.0 * (x * y + w * z), w * w + x * x - y * y - z * z);
}

radian quaternion::getPitch(bool project) const
{
    if (project)
        return util::ATan2(2.0 * x * w + 2.0 * z * y, 1.0 - (2.0 * x * x + 2.0 * z * z));
    return util::ATan2(2.0 * (y * z + w * x), w * w - x * x - y * y + z * z);
}

radian quaternion::getYaw(bool project) const
{
    if (project)
        return util::ATan2(2.0 * y * w + 2.0 * x * z, 1.0 - (2.0 * x * x + 2.0 * y * y));
    return util::ASin(-2.0 * (x * z - w * y));
}

quaternion quaternion::Inverse() const
{
    const double norm = Norm();
    return norm > 0.0 ? UnitInverse() * (1.0 / norm) : ZERO;
}

quaternion quaternion::Exp() const
{
    const double length = std::sqrt(x * x + y * y + z * z);
    const double sine = std::sin(length);
    const double factor = std::fabs(sine) >= msEpsilon ? sine / length : 1.0;
    return {std::cos(length), factor * x, factor * y, factor * z};
}

quaternion quaternion::Log() const
{
    if (std::fabs(w) < 1.0)
    {
        const double half = util::ACos(w).valueRadians();
        const double sine = std::sin(half);
        if (std::fabs(sine) >= msEpsilon)
        {
            const double factor = half / sine;
            return {0.0, factor * x, factor * y, factor * z};
        }
    }
    return {0.0, x, y, z};
}

bool quaternion::equals(const quaternion& q, const radian& tolerance) const
{
    const double d = Dot(q);
    return util::Abs(util::ACos(2.0 * d * d - 1.0)) <= tolerance;
}

bool quaternion::orientationEquals(const quaternion& q, double tolerance) const
{
    const double d = Dot(q);
    return 1.0 - d * d < tolerance;
}

quaternion quaternion::Slerp(double t, const quaternion& p, const quaternion& q, bool shortest_path)
{
    double cosine = p.Dot(q);
    double sign = 1.0;
    if (cosine < 0.0 && shortest_path)
    {
        cosine = -cosine;
        sign = -1.0;
    }
    if (std::fabs(cosine) < 1.0 - msEpsilon)
    {
        const double sine = std::sqrt(1.0 - cosine * cosine);
        const double half = std::atan2(sine, cosine);
        const double inverse_sine = 1.0 / sine;
        const double share_p = std::sin((1.0 - t) * half) * inverse_sine;
        const double share_q = std::sin(t * half) * inverse_sine * sign;
        return p * share_p + q * share_q;
    }
    quaternion result = p * (1.0 - t) + q * (t * sign);
    result.normalise();
    return result;
}

quaternion quaternion::SlerpExtraSpins(double t, const quaternion& p, const quaternion& q, int spins)
{
    const double half = util::ACos(p.Dot(q)).valueRadians();
    if (std::fabs(half) < msEpsilon)
        return p;
    const double sine = std::sin(half);
    const double phase = util::PI * spins * t;
    return p * (std::sin((1.0 - t) * half - phase) / sine) + q * (std::sin(t * half + phase) / sine);
}

void quaternion::Intermediate(const quaternion& q0, const quaternion& q1, const quaternion& q2, quaternion& a,
                              quaternion& b)
{
    const quaternion arrival = (q0.UnitInverse() * q1).Log();
    const quaternion departure = (q1.UnitInverse() * q2).Log();
    // The difference of both, not the sum: the curves of existing programs depend on it.
    const quaternion bend = 0.25 * (arrival - departure);
    const quaternion centre = q1; // a and b may be the caller's q1
    a = centre * bend.Exp();
    b = centre * (-bend).Exp();
}

quaternion quaternion::Squad(double t, const quaternion& p, const quaternion& a, const quaternion& b,
                             const quaternion& q, bool shortest_path)
{
    const quaternion outer = Slerp(t, p, q, shortest_path);
    const quaternion inner = Slerp(t, a, b, false);
    return Slerp(2.0 * t * (1.0 - t), outer, inner, false);
}

quaternion quaternion::nlerp(double t, const quaternion& p, const quaternion& q, bool shortest_path)
{
    const quaternion target = p.Dot(q) < 0.0 && shortest_path ? -q : q;
    quaternion result = p + t * (target - p);
    result.normalise();
    return result;
}

std::ostream& operator<<(std::ostream& out, const quaternion& q)
{
    return out << "Quaternion(" << q.w << ", " << q.x << ", " << q.y << ", " << q.z << ")";
}
} // namespace savrent::cc::math
