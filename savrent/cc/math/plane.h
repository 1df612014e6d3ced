/**
 * @file plane.h
 * A plane in space.
 */
#ifndef SAVRENT_CC_MATH_PLANE_H
#define SAVRENT_CC_MATH_PLANE_H

#include <iosfwd>

#include "qorin/export.h"
#include "savrent/cc/math/vector3.h"

namespace savrent::cc::math
{
class axisAlignedBox;

/**
 * A plane: the points p with normal . p + d = 0.
 *
 * Default construction gives zeros, which is no plane. Distances are in units of the normal's length.
 */
class QORIN_API plane
{
public:
    /// Where something lies; the positive side is the one that the normal points to.
    enum side
    {
        NO_SIDE = 0,
        POSITIVE_SIDE = 1,
        NEGATIVE_SIDE = 2,
        BOTH_SIDE = 3
    };

    vector3 normal;
    double d = 0.0;

    constexpr plane() = default;
    /// The plane a x + b y + c z + d0 = 0.
    constexpr plane(double a, double b, double c, double d0) : normal(a, b, c), d(d0) {}
    /// See redefine() for the three forms.
    constexpr plane(const vector3& plane_normal, double constant) { redefine(plane_normal, constant); }
    constexpr plane(const vector3& plane_normal, const vector3& point) { redefine(plane_normal, point); }
    plane(const vector3& p0, const vector3& p1, const vector3& p2) { redefine(p0, p1, p2); }

    /// d becomes the negative of the constant: with a unit normal, the constant is the distance from the origin.
    constexpr void redefine(const vector3& plane_normal, double constant)
    {
        normal = plane_normal;
        d = -constant;
    }
    /// Through a point, with the normal as it is.
    constexpr void redefine(const vector3& plane_normal, const vector3& point)
    {
        normal = plane_normal;
        d = -plane_normal.dotProduct(point);
    }
    /// Through three points, with a unit normal towards the side that sees them counter-clockwise.
    void redefine(const vector3& p0, const vector3& p1, const vector3& p2);

    /// Signed distance for a unit normal.
    [[nodiscard]] constexpr double getDistance(const vector3& point) const { return normal.dotProduct(point) + d; }
    /// Without tolerance: NO_SIDE for a distance of exactly 0.
    [[nodiscard]] side getSide(const vector3& point) const;
    /// For a box; BOTH_SIDE also when it touches.
    [[nodiscard]] side getSide(const vector3& centre, const vector3& half_size) const;
    /// NO_SIDE for a null box, BOTH_SIDE for an infinite one.
    [[nodiscard]] side getSide(const axisAlignedBox& box) const;

    /// Removes the part along the normal, which is taken as a unit vector.
    [[nodiscard]] vector3 projectVector(const vector3& v) const;
    /// Makes the normal's length 1, keeping the plane, and returns the old one; a zero normal stays.
    double normalise();
    /// Back to zeros.
    constexpr void zero() { *this = plane(); }
    /// Whether all four values are exactly zero.
    [[nodiscard]] constexpr bool isZero() const { return *this == plane(); }

    /// The same points with the sides exchanged.
    constexpr plane operator-() const { return {-normal.x, -normal.y, -normal.z, -d}; }
    /// Exact compare of the values.
    constexpr bool operator==(const plane& other) const = default;
    constexpr bool operator!=(const plane& other) const { return !(*this == other); }
};

/// Writes "Plane(normal=", the normal, ", d=", the value, ")".
QORIN_API std::ostream& operator<<(std::ostream& out, const plane& p);
} // namespace savrent::cc::math

#endif
