#include "savrent/cc/math/plane.h"

#include <ostream>

#include "savrent/cc/math/axisAlignedBox.h"
#include "savrent/cc/math/matrix3.h"

namespace savrent::cc::math
{
void plane::redefine(const vector3& p0, const vector3& p1, const vector3& p2)
{
    normal = (p1 - p0).crossProduct(p2 - p0).normalisedCopy();
    d = -normal.dotProduct(p0);
}

plane::side plane::getSide(const vector3& point) const
{
    const double distance = getDistance(point);
    return distance < 0.0 ? NEGATIVE_SIDE : (distance > 0.0 ? POSITIVE_SIDE : NO_SIDE);
}

plane::side plane::getSide(const vector3& centre, const vector3& half_size) const
{
    const double distance = getDistance(centre);
    const double reach = normal.absDotProduct(half_size);
    return distance < -reach ? NEGATIVE_SIDE : (distance > reach ? POSITIVE_SIDE : BOTH_SIDE);
}

plane::side plane::getSide(const axisAlignedBox& box) const
{
    if (box.isNull())
        return NO_SIDE;
    return box.isInfinite() ? BOTH_SIDE : getSide(box.getCenter(), box.getHalfSize());
}

vector3 plane::projectVector(const vector3& v) const
{
    matrix3 along;
    matrix3::TensorProduct(normal, normal, along);
    return (matrix3::IDENTITY - along) * v;
}

double plane::normalise()
{
    const double length = normal.length();
    if (length > 0.0)
    {
        const double inverse = 1.0 / length;
        normal *= inverse;
        d *= inverse;
    }
    return length;
}

std::ostream& operator<<(std::ostream& out, const plane& p)
{
    return out << "Plane(normal=" << p.normal << ", d=" << p.d << ")";
}
} // namespace savrent::cc::math
