#include "savrent/cc/math/vector3.h"

#include <ostream>

#include "savrent/cc/math/quaternion.h"

namespace savrent::cc::math
{
namespace
{
/// Keeps the quotient finite: the single-precision value of 1e-6.
constexpr double least_length_product = 1e-6F;
/// Cosine below which two directions count as opposite: the single-precision value of 1e-6 - 1.
constexpr double opposite_cosine = 1e-6F - 1.0F;
} // namespace

constinit const vector3 vector3::ZERO{0.0, 0.0, 0.0};
constinit const vector3 vector3::UNIT_X{1.0, 0.0, 0.0};
constinit const vector3 vector3::UNIT_Y{0.0, 1.0, 0.0};
constinit const vector3 vector3::UNIT_Z{0.0, 0.0, 1.0};
constinit const vector3 vector3::NEGATIVE_UNIT_X{-1.0, 0.0, 0.0};
constinit const vector3 vector3::NEGATIVE_UNIT_Y{0.0, -1.0, 0.0};
constinit const vector3 vector3::NEGATIVE_UNIT_Z{0.0, 0.0, -1.0};
constinit const vector3 vector3::UNIT_SCALE{1.0, 1.0, 1.0};

vector3 vector3::perpendicular() const
{
    vector3 result = crossProduct(UNIT_X);
    if (result.squaredLength() < 1e-12)
        result = crossProduct(UNIT_Y);
    result.normalise();
    return result;
}

vector3 vector3::randomDeviant(const radian& deviation, const vector3& up) const
{
    vector3 tilt_axis = up == ZERO ? perpendicular() : up;
    tilt_axis = quaternion(radian(util::UnitRandom() * util::TWO_PI), *this) * tilt_axis;
    return quaternion(deviation, tilt_axis) * *this;
}

radian vector3::angleBetween(const vector3& dest) const
{
    const double length_product = std::max(length() * dest.length(), least_length_product);
    return util::ACos(util::Clamp(dotProduct(dest) / length_product, -1.0, 1.0));
}

quaternion vector3::getRotationTo(const vector3& dest, const vector3& fallback_axis) const
{
    const vector3 from = normalisedCopy();
    const vector3 to = dest.normalisedCopy();
    const double cosine = from.dotProduct(to);
    if (cosine >= 1.0)
        return quaternion::IDENTITY;
    if (cosine < opposite_cosine)
    {
        if (fallback_axis != ZERO)
            return {radian(util::PI), fallback_axis};
        vector3 axis = UNIT_X.crossProduct(*this);
        if (axis.isZeroLength())
            axis = UNIT_Y.crossProduct(*this);
        axis.normalise();
        return {radian(util::PI), axis};
    }
    const double s = std::sqrt((1.0 + cosine) * 2.0);
    const vector3 cross = from.crossProduct(to) / s;
    quaternion result(s * 0.5, cross.x, cross.y, cross.z);
    result.normalise();
    return result;
}

bool vector3::positionEquals(const vector3& v, double tolerance) const
{
    return util::realEqual(x, v.x, tolerance) && util::realEqual(y, v.y, tolerance) &&
           util::realEqual(z, v.z, tolerance);
}

bool vector3::positionCloses(const vector3& v, double tolerance) const
{
    return distance(v) <= (length() + v.length()) * tolerance;
}

bool vector3::directionEquals(const vector3& v, const radian& tolerance) const
{
    return util::Abs(util::ACos(dotProduct(v))) <= tolerance;
}

vector3 vector3::primaryAxis() const
{
    const double abs_x = std::fabs(x);
    const double abs_y = std::fabs(y);
    const double abs_z = std::fabs(z);
    if (abs_x > abs_y && abs_x > abs_z)
        return x > 0.0 ? UNIT_X : NEGATIVE_UNIT_X;
    if (!(abs_x > abs_y) && abs_y > abs_z)
        return y > 0.0 ? UNIT_Y : NEGATIVE_UNIT_Y;
    return z > 0.0 ? UNIT_Z : NEGATIVE_UNIT_Z;
}

std::ostream& operator<<(std::ostream& out, const vector3& v)
{
    return out << "Vector3(" << v.x << ", " << v.y << ", " << v.z << ")";
}
} // namespace savrent::cc::math
