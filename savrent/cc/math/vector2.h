/**
 * @file vector2.h
 * A vector of two doubles.
 */
#ifndef SAVRENT_CC_MATH_VECTOR2_H
#define SAVRENT_CC_MATH_VECTOR2_H

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iosfwd>

#include "qorin/export.h"
#include "savrent/cc/math/util.h"

namespace savrent::cc::math
{
/// A vector or point of the plane. Default construction leaves the components unset.
class QORIN_API vector2
{
public:
    double x;
    double y;

    static const vector2 ZERO;
    static const vector2 UNIT_X;
    static const vector2 UNIT_Y;
    static const vector2 NEGATIVE_UNIT_X;
    static const vector2 NEGATIVE_UNIT_Y;
    static const vector2 UNIT_SCALE;

    vector2() = default;
    constexpr vector2(double x0, double y0) : x(x0), y(y0) {}
    constexpr explicit vector2(double scalar) : x(scalar), y(scalar) {}
    constexpr explicit vector2(const int* components) : x(components[0]), y(components[1]) {}
    constexpr explicit vector2(const double* components) : x(components[0]), y(components[1]) {}

    constexpr void swap(vector2& other)
    {
        const vector2 kept = *this;
        *this = other;
        other = kept;
    }

    /// Component by index, 0 to 1.
    constexpr double& operator[](std::size_t index) { return index == 0 ? x : y; }
    constexpr double operator[](std::size_t index) const { return index == 0 ? x : y; }
    /// The 2 components, one after the other.
    constexpr double* ptr() { return &x; }
    [[nodiscard]] constexpr const double* ptr() const { return &x; }

    constexpr vector2& operator=(double scalar)
    {
        x = y = scalar;
        return *this;
    }

    /// Exact compare.
    constexpr bool operator==(const vector2& other) const = default;
    constexpr bool operator!=(const vector2& other) const { return !(*this == other); }

    constexpr const vector2& operator+() const { return *this; }
    constexpr vector2 operator-() const { return {-x, -y}; }
    constexpr vector2 operator+(const vector2& v) const { return {x + v.x, y + v.y}; }
    constexpr vector2 operator-(const vector2& v) const { return {x - v.x, y - v.y}; }
    /// By component.
    constexpr vector2 operator*(const vector2& v) const { return {x * v.x, y * v.y}; }
    /// By component.
    constexpr vector2 operator/(const vector2& v) const { return {x / v.x, y / v.y}; }
    constexpr vector2 operator*(double scalar) const { return {x * scalar, y * scalar}; }
    /// Multiplies by the reciprocal; a zero divisor gives infinities, and NaN for zero components.
    constexpr vector2 operator/(double scalar) const { return *this * (1.0 / scalar); }

    constexpr vector2& operator+=(const vector2& v) { return *this = *this + v; }
    constexpr vector2& operator-=(const vector2& v) { return *this = *this - v; }
    constexpr vector2& operator*=(const vector2& v) { return *this = *this * v; }
    constexpr vector2& operator/=(const vector2& v) { return *this = *this / v; }
    constexpr vector2& operator+=(double scalar) { return *this = vector2(x + scalar, y + scalar); }
    constexpr vector2& operator-=(double scalar) { return *this = vector2(x - scalar, y - scalar); }
    constexpr vector2& operator*=(double scalar) { return *this = *this * scalar; }
    constexpr vector2& operator/=(double scalar) { return *this = *this / scalar; }

    /// True only if both components are less.
    constexpr bool operator<(const vector2& v) const { return x < v.x && y < v.y; }
    /// True only if both components are greater.
    constexpr bool operator>(const vector2& v) const { return x > v.x && y > v.y; }

    [[nodiscard]] constexpr double dotProduct(const vector2& v) const { return x * v.x + y * v.y; }
    /// The z component of the cross product in space: positive if v lies to the left.
    [[nodiscard]] constexpr double crossProduct(const vector2& v) const { return x * v.y - y * v.x; }
    [[nodiscard]] constexpr double squaredLength() const { return x * x + y * y; }
    [[nodiscard]] double length() const { return std::sqrt(squaredLength()); }
    [[nodiscard]] double distance(const vector2& v) const { return (*this - v).length(); }
    [[nodiscard]] constexpr double squaredDistance(const vector2& v) const { return (*this - v).squaredLength(); }
    /// Squared length below 1e-12.
    [[nodiscard]] constexpr bool isZeroLength() const { return squaredLength() < 1e-12; }
    [[nodiscard]] constexpr bool isNaN() const { return util::isNaN(x) || util::isNaN(y); }

    /// Makes the length 1 and returns the old one; a zero vector stays zero and returns 0.
    double normalise()
    {
        const double old_length = length();
        if (old_length > 0.0)
            *this *= 1.0 / old_length;
        return old_length;
    }
    [[nodiscard]] vector2 normalisedCopy() const
    {
        vector2 copy = *this;
        copy.normalise();
        return copy;
    }

    [[nodiscard]] constexpr vector2 midPoint(const vector2& v) const { return {(x + v.x) * 0.5, (y + v.y) * 0.5}; }
    /// Takes the smaller value of each component.
    constexpr void makeFloor(const vector2& v) { *this = {std::min(x, v.x), std::min(y, v.y)}; }
    /// Takes the larger value of each component.
    constexpr void makeCeil(const vector2& v) { *this = {std::max(x, v.x), std::max(y, v.y)}; }
    /// This vector turned by a quarter to the left.
    [[nodiscard]] constexpr vector2 perpendicular() const { return {-y, x}; }
    /// Mirrors at the line with this unit normal.
    [[nodiscard]] constexpr vector2 reflect(const vector2& normal) const
    {
        return *this - normal * (2.0 * dotProduct(normal));
    }

    /// This vector turned by a random share, from minus to plus one, of the angle.
    [[nodiscard]] vector2 randomDeviant(const radian& deviation) const;
    /// 0 to PI. For vectors whose lengths multiply to less than 1e-6 it tends to a quarter turn.
    [[nodiscard]] radian angleBetween(const vector2& dest) const;
    /// The turn to the left that leads to dest, 0 to two PI.
    [[nodiscard]] radian angleTo(const vector2& dest) const;
};

QORIN_API constexpr vector2 operator*(double scalar, const vector2& v)
{
    return v * scalar;
}
/// The scalar divided by each component.
QORIN_API constexpr vector2 operator/(double scalar, const vector2& v)
{
    return {scalar / v.x, scalar / v.y};
}
QORIN_API constexpr vector2 operator+(const vector2& v, double scalar)
{
    return {v.x + scalar, v.y + scalar};
}
QORIN_API constexpr vector2 operator+(double scalar, const vector2& v)
{
    return {scalar + v.x, scalar + v.y};
}
QORIN_API constexpr vector2 operator-(const vector2& v, double scalar)
{
    return {v.x - scalar, v.y - scalar};
}
QORIN_API constexpr vector2 operator-(double scalar, const vector2& v)
{
    return {scalar - v.x, scalar - v.y};
}

/// Writes "Vector2(x, y)".
QORIN_API std::ostream& operator<<(std::ostream& out, const vector2& v);
} // namespace savrent::cc::math

#endif
