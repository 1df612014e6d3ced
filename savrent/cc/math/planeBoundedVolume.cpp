#include "savrent/cc/math/planeBoundedVolume.h"

#include <algorithm>

#include "savrent/cc/math/util.h"

namespace savrent::cc::math
{
bool planeBoundedVolume::intersects(const axisAlignedBox& box) const
{
    return !box.isNull() &&
           std::none_of(planes.begin(), planes.end(), [&](const plane& p) { return p.getSide(box) == outside; });
}

bool planeBoundedVolume::intersects(const sphere& s) const
{
    const double outwards = outside == plane::POSITIVE_SIDE ? 1.0 : -1.0;
    return std::none_of(planes.begin(), planes.end(),
                        [&](const plane& p) { return outwards * p.getDistance(s.getCenter()) > s.getRadius(); });
}

std::pair<bool, double> planeBoundedVolume::intersects(const ray& r) const
{
    return util::intersects(r, planes, outside == plane::POSITIVE_SIDE);
}
} // namespace savrent::cc::math
