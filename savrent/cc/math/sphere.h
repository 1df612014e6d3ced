/**
 * @file sphere.h
 * A sphere in space.
 */
#ifndef SAVRENT_CC_MATH_SPHERE_H
#define SAVRENT_CC_MATH_SPHERE_H

#include "qorin/export.h"
#include "savrent/cc/math/vector3.h"

namespace savrent::cc::math
{
class axisAlignedBox;
class plane;

/// A solid sphere, by default of radius 1 at the origin. Touching counts as intersecting.
class QORIN_API sphere
{
public:
    constexpr sphere() = default;
    constexpr sphere(const vector3& centre, double radius) : mRadius(radius), mCenter(centre) {}

    [[nodiscard]] constexpr double getRadius() const { return mRadius; }
    constexpr void setRadius(double radius) { mRadius = radius; }
    [[nodiscard]] constexpr const vector3& getCenter() const { return mCenter; }
    constexpr void setCenter(const vector3& centre) { mCenter = centre; }

    [[nodiscard]] constexpr bool intersects(const sphere& other) const
    {
        const double reach = mRadius + other.mRadius;
        return mCenter.squaredDistance(other.mCenter) <= reach * reach;
    }
    [[nodiscard]] constexpr bool intersects(const vector3& point) const
    {
        return mCenter.squaredDistance(point) <= mRadius * mRadius;
    }
    [[nodiscard]] bool intersects(const axisAlignedBox& box) const;
    [[nodiscard]] bool intersects(const plane& p) const;

    /// Grows to the smallest sphere that holds both.
    void merge(const sphere& other);

private:
    double mRadius = 1.0;
    vector3 mCenter;
};
} // namespace savrent::cc::math

#endif
