/**
 * @file radian.h
 * An angle in radians.
 */
#ifndef SAVRENT_CC_MATH_RADIAN_H
#define SAVRENT_CC_MATH_RADIAN_H

#include <compare>
#include <iosfwd>

#include "qorin/export.h"

namespace savrent::cc::math
{
class degree;

namespace detail
{
inline constexpr double pi = 3.14159265358979323846;
inline constexpr double radians_per_degree = pi / 180.0;
inline constexpr double degrees_per_radian = 180.0 / pi;
} // namespace detail

/**
 * An angle in radians.
 *
 * A degree converts to it by itself, a plain number only by explicit construction, so that a unit
 * is never guessed. Comparisons are exact and by the raw value; nothing is reduced to one turn.
 */
class QORIN_API radian
{
public:
    double mRad; ///< radians

    constexpr explicit radian(double radians = 0.0) : mRad(radians) {}
    constexpr radian(const degree& other);

    constexpr radian& operator=(double radians)
    {
        mRad = radians;
        return *this;
    }
    constexpr radian& operator=(const degree& other);

    [[nodiscard]] constexpr double valueRadians() const { return mRad; }
    [[nodiscard]] constexpr double valueDegrees() const { return mRad * detail::degrees_per_radian; }
    /// The value in the process-wide unit of util::setAngleUnit().
    [[nodiscard]] double valueAngleUnits() const;

    constexpr const radian& operator+() const { return *this; }
    constexpr radian operator-() const { return radian(-mRad); }

    constexpr radian operator+(const radian& other) const { return radian(mRad + other.mRad); }
    constexpr radian operator-(const radian& other) const { return radian(mRad - other.mRad); }
    constexpr radian operator+(const degree& other) const;
    constexpr radian operator-(const degree& other) const;
    constexpr radian& operator+=(const radian& other) { return *this = mRad + other.mRad; }
    constexpr radian& operator-=(const radian& other) { return *this = mRad - other.mRad; }
    constexpr radian& operator+=(const degree& other);
    constexpr radian& operator-=(const degree& other);

    constexpr radian operator*(double factor) const { return radian(mRad * factor); }
    constexpr radian operator*(const radian& other) const { return radian(mRad * other.mRad); }
    constexpr radian& operator*=(double factor) { return *this = mRad * factor; }
    constexpr radian operator/(double divisor) const { return radian(mRad / divisor); }
    constexpr radian& operator/=(double divisor) { return *this = mRad / divisor; }

    /// @name Raw values compared exactly
    /// @{
    constexpr bool operator==(const radian& other) const { return mRad == other.mRad; }
    constexpr bool operator!=(const radian& other) const { return mRad != other.mRad; }
    constexpr bool operator<(const radian& other) const { return mRad < other.mRad; }
    constexpr bool operator<=(const radian& other) const { return mRad <= other.mRad; }
    constexpr bool operator>(const radian& other) const { return mRad > other.mRad; }
    constexpr bool operator>=(const radian& other) const { return mRad >= other.mRad; }
    /// @}
};

QORIN_API constexpr radian operator*(double factor, const radian& value)
{
    return radian(factor * value.mRad);
}
/// The number divided by the raw value.
QORIN_API constexpr radian operator/(double number, const radian& value)
{
    return radian(number / value.mRad);
}

/// Writes "Radian(", the value, ")".
QORIN_API std::ostream& operator<<(std::ostream& out, const radian& value);
} // namespace savrent::cc::math

// The two angle types convert into each other, so each header brings the other along.
#include "savrent/cc/math/degree.h" // IWYU pragma: export

#endif
