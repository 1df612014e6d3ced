/**
 * @file vector3.h
 * A vector of three doubles.
 */
#ifndef SAVRENT_CC_MATH_VECTOR3_H
#define SAVRENT_CC_MATH_VECTOR3_H

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iosfwd>

#include "qorin/export.h"
#include "savrent/cc/math/util.h"
#include "savrent/cc/math/vector2.h"

namespace savrent::cc::math
{
class quaternion;

/// A vector or point of space, a column where a matrix multiplies it. Default construction gives zero.
class QORIN_API vector3
{
public:
    double x;
    double y;
    double z;

    static const vector3 ZERO;
    static const vector3 UNIT_X;
    static const vector3 UNIT_Y;
    static const vector3 UNIT_Z;
    static const vector3 NEGATIVE_UNIT_X;
    static const vector3 NEGATIVE_UNIT_Y;
    static const vector3 NEGATIVE_UNIT_Z;
    static const vector3 UNIT_SCALE;

    constexpr vector3() : x(0.0), y(0.0), z(0.0) {}
    constexpr vector3(double x0, double y0, double z0) : x(x0), y(y0), z(z0) {}
    constexpr explicit vector3(double scalar) : x(scalar), y(scalar), z(scalar) {}
    constexpr explicit vector3(const int* components) : x(components[0]), y(components[1]), z(components[2]) {}
    constexpr explicit vector3(const double* components) : x(components[0]), y(components[1]), z(components[2]) {}

    constexpr void swap(vector3& other)
    {
        const vector3 kept = *this;
        *this = other;
        other = kept;
    }

    /// Component by index, 0 to 2.
    constexpr double& operator[](std::size_t index) { return index == 0 ? x : index == 1 ? y : z; }
    constexpr double operator[](std::size_t index) const { return index == 0 ? x : index == 1 ? y : z; }
    /// The 3 components, one after the other.
    constexpr double* ptr() { return &x; }
    [[nodiscard]] constexpr const double* ptr() const { return &x; }

    constexpr vector3& operator=(double scalar)
    {
        x = y = z = scalar;
        return *this;
    }

    constexpr void zero() { x = y = z = 0.0; }
    constexpr void set(double x0, double y0, double z0) { *this = {x0, y0, z0}; }
    constexpr void set(const vector3& v) { *this = v; }
    [[nodiscard]] constexpr vector2 xy() const { return {x, y}; }

    /// Exact compare.
    constexpr bool operator==(const vector3& other) const = default;
    constexpr bool operator!=(const vector3& other) const { return !(*this == other); }

    constexpr const vector3& operator+() const { return *this; }
    constexpr vector3 operator-() const { return {-x, -y, -z}; }
    constexpr vector3 operator+(const vector3& v) const { return {x + v.x, y + v.y, z + v.z}; }
    constexpr vector3 operator-(const vector3& v) const { return {x - v.x, y - v.y, z - v.z}; }
    /// By component.
    constexpr vector3 operator*(const vector3& v) const { return {x * v.x, y * v.y, z * v.z}; }
    /// By component.
    constexpr vector3 operator/(const vector3& v) const { return {x / v.x, y / v.y, z / v.z}; }
    constexpr vector3 operator*(double scalar) const { return {x * scalar, y * scalar, z * scalar}; }
    /// Multiplies by the reciprocal; a zero divisor gives infinities, and NaN for zero components.
    constexpr vector3 operator/(double scalar) const { return *this * (1.0 / scalar); }

    constexpr vector3& operator+=(const vector3& v) { return *this = *this + v; }
    constexpr vector3& operator-=(const vector3& v) { return *this = *this - v; }
    constexpr vector3& operator*=(const vector3& v) { return *this = *this * v; }
    constexpr vector3& operator/=(const vector3& v) { return *this = *this / v; }
    constexpr vector3& operator+=(double scalar) { return *this = vector3(x + scalar, y + scalar, z + scalar); }
    constexpr vector3& operator-=(double scalar) { return *this = vector3(x - scalar, y - scalar, z - scalar); }
    constexpr vector3& operator*=(double scalar) { return *this = *this * scalar; }
    constexpr vector3& operator/=(double scalar) { return *this = *this / scalar; }

    /// True only if all components are less.
    constexpr bool operator<(const vector3& v) const { return x < v.x && y < v.y && z < v.z; }
    /// True only if all components are greater.
    constexpr bool operator>(const vector3& v) const { return x > v.x && y > v.y && z > v.z; }

    [[nodiscard]] constexpr double dotProduct(const vector3& v) const { return x * v.x + y * v.y + z * v.z; }
    /// Sum of the absolute products of the components.
    [[nodiscard]] double absDotProduct(const vector3& v) const
    {
        return std::fabs(x * v.x) + std::fabs(y * v.y) + std::fabs(z * v.z);
    }
    /// Right-handed: UNIT_X crossed with UNIT_Y is UNIT_Z.
    [[nodiscard]] constexpr vector3 crossProduct(const vector3& v) const
    {
        return {y * v.z - z * v.y, z * v.x - x * v.z, x * v.y - y * v.x};
    }
    [[nodiscard]] constexpr double squaredLength() const { return x * x + y * y + z * z; }
    [[nodiscard]] double length() const { return std::sqrt(squaredLength()); }
    [[nodiscard]] double distance(const vector3& v) const { return (*this - v).length(); }
    [[nodiscard]] constexpr double squaredDistance(const vector3& v) const { return (*this - v).squaredLength(); }
    /// Squared length below 1e-12.
    [[nodiscard]] constexpr bool isZeroLength() const { return squaredLength() < 1e-12; }
    [[nodiscard]] constexpr bool isNaN() const { return util::isNaN(x) || util::isNaN(y) || util::isNaN(z); }

    /// Makes the length 1 and returns the old one; a zero vector stays zero and returns 0.
    double normalise()
    {
        const double old_length = length();
        if (old_length > 0.0)
            *this *= 1.0 / old_length;
        return old_length;
    }
    [[nodiscard]] vector3 normalisedCopy() const
    {
        vector3 copy = *this;
        copy.normalise();
        return copy;
    }

    [[nodiscard]] constexpr vector3 midPoint(const vector3& v) const
    {
        return {(x + v.x) * 0.5, (y + v.y) * 0.5, (z + v.z) * 0.5};
    }
    /// Takes the smaller value of each component.
    constexpr void makeFloor(const vector3& v) { *this = {std::min(x, v.x), std::min(y, v.y), std::min(z, v.z)}; }
    /// Takes the larger value of each component.
    constexpr void makeCeil(const vector3& v) { *this = {std::max(x, v.x), std::max(y, v.y), std::max(z, v.z)}; }
    /// Mirrors at the plane through the origin with this unit normal.
    [[nodiscard]] constexpr vector3 reflect(const vector3& normal) const
    {
        return *this - normal * (2.0 * dotProduct(normal));
    }

    /// A unit vector at a right angle, built from UNIT_X, or from UNIT_Y for vectors along x; zero for zero.
    [[nodiscard]] vector3 perpendicular() const;
    /**
     * This unit vector tilted by the angle, in a random direction around it.
     *
     * @param up A vector at a right angle to this one, from which the direction is counted; ZERO takes any.
     */
    [[nodiscard]] vector3 randomDeviant(const radian& deviation, const vector3& up = ZERO) const;
    /// 0 to PI. For vectors whose lengths multiply to less than 1e-6 it tends to a quarter turn.
    [[nodiscard]] radian angleBetween(const vector3& dest) const;
    /**
     * The shortest turn that leads this vector's direction to that of dest.
     *
     * @param fallback_axis Unit axis of the half turn between opposite vectors; ZERO takes any.
     */
    [[nodiscard]] quaternion getRotationTo(const vector3& dest, const vector3& fallback_axis = ZERO) const;

    /// Each component within the tolerance, the bound included.
    [[nodiscard]] bool positionEquals(const vector3& v, double tolerance) const;
    /// The distance is at most the tolerance times the sum of both lengths.
    [[nodiscard]] bool positionCloses(const vector3& v, double tolerance) const;
    /// The angle between two unit vectors is at most the tolerance.
    [[nodiscard]] bool directionEquals(const vector3& v, const radian& tolerance) const;
    /// The signed unit vector of the axis with the largest component; of equal ones the later axis.
    [[nodiscard]] vector3 primaryAxis() const;
};

QORIN_API constexpr vector3 operator*(double scalar, const vector3& v)
{
    return v * scalar;
}
/// The scalar divided by each component.
QORIN_API constexpr vector3 operator/(double scalar, const vector3& v)
{
    return {scalar / v.x, scalar / v.y, scalar / v.z};
}
QORIN_API constexpr vector3 operator+(const vector3& v, double scalar)
{
    return {v.x + scalar, v.y + scalar, v.z + scalar};
}
QORIN_API constexpr vector3 operator+(double scalar, const vector3& v)
{
    return {scalar + v.x, scalar + v.y, scalar + v.z};
}
QORIN_API constexpr vector3 operator-(const vector3& v, double scalar)
{
    return {v.x - scalar, v.y - scalar, v.z - scalar};
}
QORIN_API constexpr vector3 operator-(double scalar, const vector3& v)
{
    return {scalar - v.x, scalar - v.y, scalar - v.z};
}

/// Writes "Vector3(x, y, z)".
QORIN_API std::ostream& operator<<(std::ostream& out, const vector3& v);
} // namespace savrent::cc::math

#endif
