/**
 * @file vector4.h
 * A vector of four doubles.
 */
#ifndef SAVRENT_CC_MATH_VECTOR4_H
#define SAVRENT_CC_MATH_VECTOR4_H

#include <cstddef>
#include <iosfwd>

#include "qorin/export.h"
#include "savrent/cc/math/util.h"
#include "savrent/cc/math/vector2.h"
#include "savrent/cc/math/vector3.h"

namespace savrent::cc::math
{
/// A homogeneous point, or the four values of a plane. Default construction leaves the components unset.
class QORIN_API vector4
{
public:
    double x;
    double y;
    double z;
    double w;

    static const vector4 ZERO;

    vector4() = default;
    constexpr vector4(double x0, double y0, double z0, double w0) : x(x0), y(y0), z(z0), w(w0) {}
    constexpr explicit vector4(double scalar) : x(scalar), y(scalar), z(scalar), w(scalar) {}
    constexpr explicit vector4(const int* components)
        : x(components[0]), y(components[1]), z(components[2]), w(components[3])
    {
    }
    constexpr explicit vector4(const double* components)
        : x(components[0]), y(components[1]), z(components[2]), w(components[3])
    {
    }
    /// A point: w is 1.
    constexpr explicit vector4(const vector3& v) : x(v.x), y(v.y), z(v.z), w(1.0) {}

    constexpr void swap(vector4& other)
    {
        const vector4 kept = *this;
        *this = other;
        other = kept;
    }

    /// Component by index, 0 to 3.
    constexpr double& operator[](std::size_t index) { return index == 0 ? x : index == 1 ? y : index == 2 ? z : w; }
    constexpr double operator[](std::size_t index) const
    {
        return index == 0 ? x : index == 1 ? y : index == 2 ? z : w;
    }
    /// The 4 components, one after the other.
    constexpr double* ptr() { return &x; }
    [[nodiscard]] constexpr const double* ptr() const { return &x; }

    constexpr vector4& operator=(double scalar)
    {
        x = y = z = w = scalar;
        return *this;
    }
    /// A point: w becomes 1.
    constexpr vector4& operator=(const vector3& v) { return *this = vector4(v); }

    [[nodiscard]] constexpr vector3 xyz() const { return {x, y, z}; }
    [[nodiscard]] constexpr vector2 xy() const { return {x, y}; }

    /// Exact compare.
    constexpr bool operator==(const vector4& other) const = default;
    constexpr bool operator!=(const vector4& other) const { return !(*this == other); }

    constexpr const vector4& operator+() const { return *this; }
    constexpr vector4 operator-() const { return {-x, -y, -z, -w}; }
    constexpr vector4 operator+(const vector4& v) const { return {x + v.x, y + v.y, z + v.z, w + v.w}; }
    constexpr vector4 operator-(const vector4& v) const { return {x - v.x, y - v.y, z - v.z, w - v.w}; }
    /// By component.
    constexpr vector4 operator*(const vector4& v) const { return {x * v.x, y * v.y, z * v.z, w * v.w}; }
    /// By component.
    constexpr vector4 operator/(const vector4& v) const { return {x / v.x, y / v.y, z / v.z, w / v.w}; }
    constexpr vector4 operator*(double scalar) const { return {x * scalar, y * scalar, z * scalar, w * scalar}; }
    /// Multiplies by the reciprocal; a zero divisor gives infinities, and NaN for zero components.
    constexpr vector4 operator/(double scalar) const { return *this * (1.0 / scalar); }

    constexpr vector4& operator+=(const vector4& v) { return *this = *this + v; }
    constexpr vector4& operator-=(const vector4& v) { return *this = *this - v; }
    constexpr vector4& operator*=(const vector4& v) { return *this = *this * v; }
    constexpr vector4& operator/=(const vector4& v) { return *this = *this / v; }
    constexpr vector4& operator+=(double scalar)
    {
        return *this = vector4(x + scalar, y + scalar, z + scalar, w + scalar);
    }
    constexpr vector4& operator-=(double scalar)
    {
        return *this = vector4(x - scalar, y - scalar, z - scalar, w - scalar);
    }
    constexpr vector4& operator*=(double scalar) { return *this = *this * scalar; }
    constexpr vector4& operator/=(double scalar) { return *this = *this / scalar; }

    [[nodiscard]] constexpr double dotProduct(const vector4& v) const { return x * v.x + y * v.y + z * v.z + w * v.w; }
    [[nodiscard]] constexpr bool isNaN() const
    {
        return util::isNaN(x) || util::isNaN(y) || util::isNaN(z) || util::isNaN(w);
    }
};

QORIN_API constexpr vector4 operator*(double scalar, const vector4& v)
{
    return v * scalar;
}
/// The scalar divided by each component.
QORIN_API constexpr vector4 operator/(double scalar, const vector4& v)
{
    return {scalar / v.x, scalar / v.y, scalar / v.z, scalar / v.w};
}
QORIN_API constexpr vector4 operator+(const vector4& v, double scalar)
{
    return {v.x + scalar, v.y + scalar, v.z + scalar, v.w + scalar};
}
QORIN_API constexpr vector4 operator+(double scalar, const vector4& v)
{
    return {scalar + v.x, scalar + v.y, scalar + v.z, scalar + v.w};
}
QORIN_API constexpr vector4 operator-(const vector4& v, double scalar)
{
    return {v.x - scalar, v.y - scalar, v.z - scalar, v.w - scalar};
}
QORIN_API constexpr vector4 operator-(double scalar, const vector4& v)
{
    return {scalar - v.x, scalar - v.y, scalar - v.z, scalar - v.w};
}

/// Writes "Vector4(x, y, z, w)".
QORIN_API std::ostream& operator<<(std::ostream& out, const vector4& v);
} // namespace savrent::cc::math

#endif
