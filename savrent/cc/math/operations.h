/**
 * @file operations.h
 * Scalar helpers as free functions.
 */
#ifndef SAVRENT_CC_MATH_OPERATIONS_H
#define SAVRENT_CC_MATH_OPERATIONS_H

#include <algorithm>
#include <cmath>

#include "qorin/export.h"
#include "savrent/cc/math/util.h"

namespace savrent::cc::math
{
/// @name Angles
/// @{
QORIN_API constexpr double degToRad(double degrees)
{
    return degrees * util::fDeg2Rad;
}
QORIN_API constexpr double radToDeg(double radians)
{
    return radians * util::fRad2Deg;
}
/// @}

/// @name Limits
/// @{
QORIN_API constexpr double min_(double a, double b)
{
    return std::min(a, b);
}
QORIN_API constexpr double min_(double a, double b, double c)
{
    return std::min(std::min(a, b), c);
}
QORIN_API constexpr double max_(double a, double b)
{
    return std::max(a, b);
}
QORIN_API constexpr double max_(double a, double b, double c)
{
    return std::max(std::max(a, b), c);
}
QORIN_API inline double abs_(double value)
{
    return std::fabs(value);
}
/// The larger of low and the smaller of value and high.
QORIN_API constexpr double clamp(double value, double low, double high)
{
    return util::Clamp(value, low, high);
}
QORIN_API constexpr void swap(double& a, double& b)
{
    const double kept = a;
    a = b;
    b = kept;
}
/// @}

/// From a (t is 0) to b (t is 1); 1 - t is computed in single precision.
QORIN_API constexpr double lerp(double a, double b, float t)
{
    const float rest = 1.0F - t;
    return a * static_cast<double>(rest) + b * static_cast<double>(t);
}

/// @name Compare with a tolerance, the bound included
/// @{
QORIN_API constexpr bool equals(double a, double b, double tolerance)
{
    return a + tolerance >= b && a - tolerance <= b;
}
QORIN_API constexpr bool equals(float a, float b, float tolerance)
{
    return a + tolerance >= b && a - tolerance <= b;
}
// Integers are widened, so that neither end of the range wraps around.
QORIN_API constexpr bool equals(int a, int b, int tolerance)
{
    const long long middle = a;
    return middle + tolerance >= b && middle - tolerance <= b;
}
QORIN_API constexpr bool equals(unsigned int a, unsigned int b, unsigned int tolerance)
{
    const long long middle = a;
    return middle + tolerance >= b && middle - tolerance <= b;
}
QORIN_API inline bool iszero(double a, double tolerance)
{
    return std::fabs(a) <= tolerance;
}
QORIN_API inline bool iszero(float a, float tolerance)
{
    return std::fabs(a) <= tolerance;
}
QORIN_API constexpr bool iszero(int a, int tolerance)
{
    return equals(a, 0, tolerance);
}
QORIN_API constexpr bool iszero(unsigned int a, unsigned int tolerance)
{
    return a <= tolerance;
}
QORIN_API inline bool isnotzero(float a, float tolerance)
{
    return std::fabs(a) > tolerance;
}
/// @}

/// @name Roots; each in its own type, so the forms for int cut the fraction off
/// @{
QORIN_API inline double squareroot(double value)
{
    return std::sqrt(value);
}
QORIN_API inline float squareroot(float value)
{
    return std::sqrt(value);
}
/// @param value Not negative.
QORIN_API inline int squareroot(int value)
{
    return static_cast<int>(std::sqrt(static_cast<double>(value)));
}
QORIN_API inline double reciprocal_squareroot(double value)
{
    return 1.0 / std::sqrt(value);
}
QORIN_API inline float reciprocal_squareroot(float value)
{
    return 1.0F / std::sqrt(value);
}
/// 1 for 1 and 0 for more. @param value Above 0.
QORIN_API inline int reciprocal_squareroot(int value)
{
    return static_cast<int>(reciprocal_squareroot(static_cast<double>(value)));
}
QORIN_API constexpr double reciprocal(double value)
{
    return 1.0 / value;
}
/// Single precision is the approximation.
QORIN_API constexpr float reciprocal_approxim(float value)
{
    return 1.0F / value;
}
/// @}

/// @name Rounding; halves go up, also below zero. The forms with 32 need a value that fits an int.
/// @{
QORIN_API inline float round_(float value)
{
    return std::floor(value + 0.5F);
}
QORIN_API inline int floor32(float value)
{
    return static_cast<int>(std::floor(value));
}
QORIN_API inline int ceil32(float value)
{
    return static_cast<int>(std::ceil(value));
}
QORIN_API inline int round32(float value)
{
    return static_cast<int>(round_(value));
}
/// @}
} // namespace savrent::cc::math

#endif
