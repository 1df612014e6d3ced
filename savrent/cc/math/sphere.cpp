#include "savrent/cc/math/sphere.h"

#include "savrent/cc/math/util.h"

namespace savrent::cc::math
{
bool sphere::intersects(const axisAlignedBox& box) const
{
    return util::intersects(*this, box);
}

bool sphere::intersects(const plane& p) const
{
    return util::intersects(*this, p);
}

void sphere::merge(const sphere& other)
{
    const vector3 apart = other.mCenter - mCenter;
    const double squared_distance = apart.squaredLength();
    const double larger_by = other.mRadius - mRadius;
    if (larger_by * larger_by < squared_distance)
    {
        const double distance = std::sqrt(squared_distance);
        mCenter += apart * ((larger_by + distance) / (2.0 * distance));
        mRadius = 0.5 * (other.mRadius + distance + mRadius);
    }
    else if (larger_by > 0.0)
    {
        *this = other; // one holds the other, and the other is the larger one
    }
}
} // namespace savrent::cc::math
