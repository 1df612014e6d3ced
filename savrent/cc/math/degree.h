/**
 * @file degree.h
 * An angle in degrees.
 */
#ifndef SAVRENT_CC_MATH_DEGREE_H
#define SAVRENT_CC_MATH_DEGREE_H

#include <compare>
#include <iosfwd>

#include "qorin/export.h"
#include "savrent/cc/math/radian.h"

namespace savrent::cc::math
{
/**
 * An angle in degrees.
 *
 * The counterpart of radian, with the same operations. The two convert into each other by
 * util::fDeg2Rad and util::fRad2Deg; comparisons are exact and by the raw value.
 */
class QORIN_API degree
{
public:
    double mDeg; ///< degrees

    constexpr explicit degree(double degrees = 0.0) : mDeg(degrees) {}
    constexpr degree(const radian& other) : mDeg(other.valueDegrees()) {}

    constexpr degree& operator=(double degrees)
    {
        mDeg = degrees;
        return *this;
    }
    constexpr degree& operator=(const radian& other) { return *this = other.valueDegrees(); }

    [[nodiscard]] constexpr double valueDegrees() const { return mDeg; }
    [[nodiscard]] constexpr double valueRadians() const { return mDeg * detail::radians_per_degree; }
    /// The value in the process-wide unit of util::setAngleUnit().
    [[nodiscard]] double valueAngleUnits() const;

    constexpr const degree& operator+() const { return *this; }
    constexpr degree operator-() const { return degree(-mDeg); }

    constexpr degree operator+(const degree& other) const { return degree(mDeg + other.mDeg); }
    constexpr degree operator-(const degree& other) const { return degree(mDeg - other.mDeg); }
    constexpr degree operator+(const radian& other) const { return degree(mDeg + other.valueDegrees()); }
    constexpr degree operator-(const radian& other) const { return degree(mDeg - other.valueDegrees()); }
    constexpr degree& operator+=(const degree& other) { return *this = mDeg + other.mDeg; }
    constexpr degree& operator-=(const degree& other) { return *this = mDeg - other.mDeg; }
    constexpr degree& operator+=(const radian& other) { return *this = mDeg + other.valueDegrees(); }
    constexpr degree& operator-=(const radian& other) { return *this = mDeg - other.valueDegrees(); }

    constexpr degree operator*(double factor) const { return degree(mDeg * factor); }
    constexpr degree operator*(const degree& other) const { return degree(mDeg * other.mDeg); }
    constexpr degree& operator*=(double factor) { return *this = mDeg * factor; }
    constexpr degree operator/(double divisor) const { return degree(mDeg / divisor); }
    constexpr degree& operator/=(double divisor) { return *this = mDeg / divisor; }

    /// @name Raw values compared exactly
    /// @{
    constexpr bool operator==(const degree& other) const { return mDeg == other.mDeg; }
    constexpr bool operator!=(const degree& other) const { return mDeg != other.mDeg; }
    constexpr bool operator<(const degree& other) const { return mDeg < other.mDeg; }
    constexpr bool operator<=(const degree& other) const { return mDeg <= other.mDeg; }
    constexpr bool operator>(const degree& other) const { return mDeg > other.mDeg; }
    constexpr bool operator>=(const degree& other) const { return mDeg >= other.mDeg; }
    /// @}
};

QORIN_API constexpr degree operator*(double factor, const degree& value)
{
    return degree(factor * value.mDeg);
}
/// The number divided by the raw value.
QORIN_API constexpr degree operator/(double number, const degree& value)
{
    return degree(number / value.mDeg);
}

/// Writes "Degree(", the value, ")".
QORIN_API std::ostream& operator<<(std::ostream& out, const degree& value);

constexpr radian::radian(const degree& other) : mRad(other.valueRadians()) {}
constexpr radian& radian::operator=(const degree& other)
{
    return *this = other.valueRadians();
}
constexpr radian radian::operator+(const degree& other) const
{
    return radian(mRad + other.valueRadians());
}
constexpr radian radian::operator-(const degree& other) const
{
    return radian(mRad - other.valueRadians());
}
constexpr radian& radian::operator+=(const degree& other)
{
    return *this = mRad + other.valueRadians();
}
constexpr radian& radian::operator-=(const degree& other)
{
    return *this = mRad - other.valueRadians();
}
} // namespace savrent::cc::math

#endif
