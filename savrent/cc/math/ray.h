/**
 * @file ray.h
 * A ray in space.
 */
#ifndef SAVRENT_CC_MATH_RAY_H
#define SAVRENT_CC_MATH_RAY_H

#include <utility>

#include "qorin/export.h"
#include "savrent/cc/math/vector3.h"

namespace savrent::cc::math
{
class axisAlignedBox;
class plane;
class planeBoundedVolume;
class sphere;

/// The points origin + t * direction for t from 0 on. By default from the origin along z.
class QORIN_API ray
{
public:
    constexpr ray() : mDirection(0.0, 0.0, 1.0) {}
    /// @param direction Of any length; distances count in units of it.
    constexpr ray(const vector3& origin, const vector3& direction) : mOrigin(origin), mDirection(direction) {}

    constexpr void setOrigin(const vector3& origin) { mOrigin = origin; }
    [[nodiscard]] constexpr const vector3& getOrigin() const { return mOrigin; }
    constexpr void setDirection(const vector3& direction) { mDirection = direction; }
    [[nodiscard]] constexpr const vector3& getDirection() const { return mDirection; }
    [[nodiscard]] constexpr vector3 getPoint(double t) const { return mOrigin + mDirection * t; }
    constexpr vector3 operator*(double t) const { return getPoint(t); }

    /// Hit flag and distance, as util::intersects() tells.
    [[nodiscard]] std::pair<bool, double> intersects(const plane& p) const;
    [[nodiscard]] std::pair<bool, double> intersects(const planeBoundedVolume& volume) const;
    [[nodiscard]] std::pair<bool, double> intersects(const sphere& s) const;
    [[nodiscard]] std::pair<bool, double> intersects(const axisAlignedBox& box) const;

private:
    vector3 mOrigin;
    vector3 mDirection;
};
} // namespace savrent::cc::math

#endif
