/**
 * @file planeBoundedVolume.h
 * A convex volume.
 */
#ifndef SAVRENT_CC_MATH_PLANEBOUNDEDVOLUME_H
#define SAVRENT_CC_MATH_PLANEBOUNDEDVOLUME_H

#include <utility>
#include <vector>

#include "qorin/export.h"
#include "savrent/cc/math/axisAlignedBox.h"
#include "savrent/cc/math/plane.h"
#include "savrent/cc/math/sphere.h"

namespace savrent::cc::math
{
/// A convex volume, bounded by planes with unit normals. Without planes it is all of space.
class QORIN_API planeBoundedVolume
{
public:
    std::vector<plane> planes;
    /// The side of each plane that is not in the volume.
    plane::side outside = plane::NEGATIVE_SIDE;

    planeBoundedVolume() = default;
    explicit planeBoundedVolume(plane::side outside_of_planes) : outside(outside_of_planes) {}

    /// False only if the box lies wholly outside of one plane, so true for some boxes near an edge. Null: false.
    [[nodiscard]] bool intersects(const axisAlignedBox& box) const;
    /// False only if the sphere lies wholly outside of one plane, so true for some spheres near an edge.
    [[nodiscard]] bool intersects(const sphere& s) const;
    /// Hit flag and distance; an origin inside gives (true, 0).
    [[nodiscard]] std::pair<bool, double> intersects(const ray& r) const;
};
} // namespace savrent::cc::math

#endif
