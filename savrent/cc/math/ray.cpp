#include "savrent/cc/math/ray.h"

#include "savrent/cc/math/planeBoundedVolume.h"
#include "savrent/cc/math/util.h"

namespace savrent::cc::math
{
std::pair<bool, double> ray::intersects(const plane& p) const
{
    return util::intersects(*this, p);
}

std::pair<bool, double> ray::intersects(const planeBoundedVolume& volume) const
{
    return util::intersects(*this, volume.planes, volume.outside == plane::POSITIVE_SIDE);
}

std::pair<bool, double> ray::intersects(const sphere& s) const
{
    return util::intersects(*this, s);
}

std::pair<bool, double> ray::intersects(const axisAlignedBox& box) const
{
    return util::intersects(*this, box);
}
} // namespace savrent::cc::math
