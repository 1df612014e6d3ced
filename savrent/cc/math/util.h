/**
 * @file util.h
 * Scalar helpers, process-wide settings and intersection tests.
 */
#ifndef SAVRENT_CC_MATH_UTIL_H
#define SAVRENT_CC_MATH_UTIL_H

#include <algorithm>
#include <cmath>
#include <limits>
#include <list>
#include <utility>
#include <vector>

#include "qorin/export.h"
#include "savrent/cc/math/degree.h"
#include "savrent/cc/math/radian.h"

namespace savrent::cc::math
{
class axisAlignedBox;
class matrix4;
class plane;
class quaternion;
class ray;
class sphere;
class vector2;
class vector3;
class vector4;

/**
 * Scalar helpers, random numbers, optional trigonometric tables and the intersection tests of the solids.
 *
 * All members are static. The angle unit, the tables and the random value provider are process-wide
 * and unguarded: set them up, if at all, before threads use them.
 */
class QORIN_API util
{
public:
    /// Unit of plain numbers that stand for angles.
    enum angleUnit
    {
        AU_DEGREE = 0,
        AU_RADIAN = 1
    };

    /// Source of random numbers for UnitRandom(); owned by whoever installs it.
    class QORIN_API randomValueProvider
    {
    public:
        virtual ~randomValueProvider();
        /// A value from 0 to 1.
        virtual double getRandomUnit() = 0;
    };

    static constexpr double POS_INFINITY = std::numeric_limits<double>::infinity();
    static constexpr double NEG_INFINITY = -std::numeric_limits<double>::infinity();
    static constexpr double PI = detail::pi;
    static constexpr double TWO_PI = 2.0 * detail::pi;
    static constexpr double HALF_PI = 0.5 * detail::pi;
    static constexpr double fDeg2Rad = detail::radians_per_degree;
    static constexpr double fRad2Deg = detail::degrees_per_radian;
    /// Natural logarithm of 2.
    static constexpr double LOG2 = 0.69314718055994530942;

    static angleUnit msAngleUnit;
    static int mTrigTableSize;
    /// Table entries per radian.
    static double mTrigTableFactor;
    static double* mSinTable;
    /// Entry 0 of the tangents; entries from -(size - 1) on are there for negative angles.
    static double* mTanTable;
    static randomValueProvider* mRandProvider;

    /// @name Integers and floats
    /// @{
    static constexpr int IAbs(int value) { return value >= 0 ? value : -value; }
    static int ICeil(float value) { return static_cast<int>(std::ceil(value)); }
    static int IFloor(float value) { return static_cast<int>(std::floor(value)); }
    /// 1, -1 or 0.
    static constexpr int ISign(int value) { return value > 0 ? 1 : (value < 0 ? -1 : 0); }

    static double Abs(double value) { return std::fabs(value); }
    static degree Abs(const degree& value) { return degree(std::fabs(value.valueDegrees())); }
    static radian Abs(const radian& value) { return radian(std::fabs(value.valueRadians())); }
    static double Ceil(double value) { return std::ceil(value); }
    static double Floor(double value) { return std::floor(value); }

    /// 1, -1 or 0; also 0 for NaN.
    static constexpr double Sign(double value) { return value > 0.0 ? 1.0 : (value < 0.0 ? -1.0 : 0.0); }
    static constexpr radian Sign(const radian& value) { return radian(Sign(value.valueRadians())); }
    static constexpr degree Sign(const degree& value) { return degree(Sign(value.valueDegrees())); }

    static constexpr double Sqr(double value) { return value * value; }
    static double Sqrt(double value) { return std::sqrt(value); }
    /// The root of the raw value.
    static radian Sqrt(const radian& value) { return radian(std::sqrt(value.valueRadians())); }
    /// The root of the raw value.
    static degree Sqrt(const degree& value) { return degree(std::sqrt(value.valueDegrees())); }
    /// 1 / sqrt(value): infinity for 0.
    static double InvSqrt(double value) { return 1.0 / std::sqrt(value); }
    static double Pow(double base, double exponent) { return std::pow(base, exponent); }
    static double Exp(double value) { return std::exp(value); }
    static double Log(double value) { return std::log(value); }
    static double Log2(double value) { return std::log(value) / LOG2; }
    static double LogN(double base, double value) { return std::log(value) / std::log(base); }
    /// @}

    /// @name Limits
    /// @{
    static constexpr float saturate(float value) { return value < 0.0F ? 0.0F : (value > 1.0F ? 1.0F : value); }
    static constexpr double saturate(double value) { return value < 0.0 ? 0.0 : (value > 1.0 ? 1.0 : value); }
    /// The larger of low and the smaller of value and high.
    template <typename T>
    static constexpr T Clamp(T value, T low, T high)
    {
        return std::max(std::min(value, high), low);
    }
    /// True if the absolute difference is at most the tolerance, the bound included.
    static bool realEqual(double a, double b, double tolerance = std::numeric_limits<double>::epsilon())
    {
        return std::fabs(b - a) <= tolerance;
    }
    static constexpr bool isNaN(double value) { return value != value; }
    /// @}

    /// @name Angles; "angle units" are degrees unless setAngleUnit() said otherwise
    /// @{
    static constexpr double DegreesToRadians(double degrees) { return degrees * fDeg2Rad; }
    static constexpr double RadiansToDegrees(double radians) { return radians * fRad2Deg; }
    static void setAngleUnit(angleUnit unit);
    static angleUnit getAngleUnit();
    static double AngleUnitsToRadians(double units);
    static double RadiansToAngleUnits(double radians);
    static double AngleUnitsToDegrees(double units);
    static double DegreesToAngleUnits(double degrees);
    /// @}

    /// @name Trigonometry in radians; tables are used only when asked for and built
    /// @{
    static double Sin(double radians, bool use_tables = false)
    {
        return use_tables && mSinTable != nullptr ? SinTable(radians) : std::sin(radians);
    }
    static double Sin(const radian& value, bool use_tables = false) { return Sin(value.valueRadians(), use_tables); }
    static double Cos(double radians, bool use_tables = false)
    {
        return use_tables && mSinTable != nullptr ? SinTable(radians + HALF_PI) : std::cos(radians);
    }
    static double Cos(const radian& value, bool use_tables = false) { return Cos(value.valueRadians(), use_tables); }
    static double Tan(double radians, bool use_tables = false)
    {
        return use_tables && mTanTable != nullptr ? TanTable(radians) : std::tan(radians);
    }
    static double Tan(const radian& value, bool use_tables = false) { return Tan(value.valueRadians(), use_tables); }

    /// Arc cosine that noise cannot turn into NaN: PI unless the value is above -1 (so for NaN too), 0 from 1 on.
    static radian ACos(double value)
    {
        if (!(value > -1.0))
            return radian(PI);
        return radian(value < 1.0 ? std::acos(value) : 0.0);
    }
    /// Arc sine, limited like ACos(): -HALF_PI unless the value is above -1 (so for NaN too), HALF_PI from 1 on.
    static radian ASin(double value)
    {
        if (!(value > -1.0))
            return radian(-HALF_PI);
        return radian(value < 1.0 ? std::asin(value) : HALF_PI);
    }
    static radian ATan(double value) { return radian(std::atan(value)); }
    static radian ATan2(double y, double x) { return radian(std::atan2(y, x)); }

    /**
     * Builds tables of sine and tangent over one turn and sets the angle unit to degrees.
     *
     * Tables of the same size are built once and kept until destroyTrigTables(); another size replaces them.
     *
     * @param size Number of entries. Below 1 there are no tables, as after destroyTrigTables().
     */
    static void createTrigTables(int size = 4096);
    static void destroyTrigTables();
    /// Fills the allocated tables, if there are any; createTrigTables() calls it.
    static void buildTrigTables();
    /// The sine's table entry below the angle. Needs tables, and an angle whose entry number fits an int.
    static double SinTable(double radians);
    /// The tangent's table entry on the zero side of the angle. Needs what SinTable() needs.
    static double TanTable(double radians);
    /// @}

    /// @name Random
    /// @{
    /**
     * A value from the provider.
     *
     * Without one it is rand() / 32767 in integers, so a whole number that is mostly far above 1:
     * settled behaviour that callers with a seeded rand() count on. Install a provider for unit values.
     */
    static double UnitRandom();
    static double RangeRandom(double low, double high) { return (high - low) * UnitRandom() + low; }
    static double SymmetricRandom() { return 2.0 * UnitRandom() - 1.0; }
    /// Installs a provider, or none with null. The caller keeps it alive as long as it is installed.
    static void SetRandomValueProvider(randomValueProvider* provider);
    /// @}

    /// Density of the normal distribution.
    static double gaussianDistribution(double x, double offset = 0.0, double scale = 1.0);

    /// @name Intersections; a pair is the hit flag and the distance along the ray in units of its direction
    /// @{
    /// The distance is given also for a plane behind the origin; a ray that runs along the plane gives (false, 0).
    static std::pair<bool, double> intersects(const ray& r, const plane& p);
    /**
     * A ray and a convex volume bounded by planes.
     * @param normal_is_outside Whether the normals point out of the volume.
     */
    static std::pair<bool, double> intersects(const ray& r, const std::list<plane>& planes, bool normal_is_outside);
    static std::pair<bool, double> intersects(const ray& r, const std::vector<plane>& planes, bool normal_is_outside);
    /**
     * The nearer crossing that is not behind the origin; behind a sphere the farther one, a negative distance.
     * @param discard_inside Whether an origin within the sphere answers (true, 0) at once.
     */
    static std::pair<bool, double> intersects(const ray& r, const sphere& s, bool discard_inside = true);
    /// An origin strictly inside, and an infinite box, give (true, 0).
    static std::pair<bool, double> intersects(const ray& r, const axisAlignedBox& box);
    /**
     * Entry and exit of a ray in a box, each null if not wanted; untouched when the box is missed.
     *
     * The entry is 0 for an origin inside; an infinite box is left at infinity. Grazing a face is a hit.
     */
    static bool intersects(const ray& r, const axisAlignedBox& box, double* entry, double* exit);
    /**
     * A ray and a triangle, borders included.
     *
     * @param positive_side Whether a triangle counts that is seen counter-clockwise.
     * @param negative_side Whether a triangle counts that is seen clockwise.
     */
    static std::pair<bool, double> intersects(const ray& r, const vector3& a, const vector3& b, const vector3& c,
                                              bool positive_side = true, bool negative_side = true);
    static bool intersects(const sphere& s, const axisAlignedBox& box);
    /// Whether the box has points on both sides, or touches.
    static bool intersects(const plane& p, const axisAlignedBox& box);
    static bool intersects(const sphere& s, const plane& p);
    /// @}

    /// @name Triangles, borders included; the winding does not matter
    /// @{
    static bool pointInTri2D(const vector2& p, const vector2& a, const vector2& b, const vector2& c);
    /// @param p A point in the plane of the triangle. @param normal Normal of that plane, of any length.
    static bool pointInTri3D(const vector3& p, const vector3& a, const vector3& b, const vector3& c,
                             const vector3& normal);
    /// The plane of a face as (normal, d), the normal of unit length and towards counter-clockwise corners.
    static vector4 calculateFaceNormal(const vector3& v1, const vector3& v2, const vector3& v3);
    static vector3 calculateBasicFaceNormal(const vector3& v1, const vector3& v2, const vector3& v3);
    /// As above with the normal as the cross product leaves it: its length is twice the area.
    static vector4 calculateFaceNormalWithoutNormalize(const vector3& v1, const vector3& v2, const vector3& v3);
    static vector3 calculateBasicFaceNormalWithoutNormalize(const vector3& v1, const vector3& v2, const vector3& v3);
    /**
     * Unit direction along which the texture coordinate u grows on a triangle.
     *
     * Zero when the texture coordinates are collinear.
     */
    static vector3 calculateTangentSpaceVector(const vector3& position1, const vector3& position2,
                                               const vector3& position3, double u1, double v1, double u2, double v2,
                                               double u3, double v3);
    /// @}

    /// Mirrors points at a plane with a unit normal.
    static matrix4 buildReflectionMatrix(const plane& p);
    /**
     * World to view, for a right-handed view that looks along its negative z.
     * @param reflection Applied to the world first; null for none.
     */
    static matrix4 makeViewMatrix(const vector3& position, const quaternion& orientation,
                                  const matrix4* reflection = nullptr);
    /// Radius of the sphere about the world's origin that holds a finite box.
    static double boundingRadiusFromAABB(const axisAlignedBox& box);
};
} // namespace savrent::cc::math

#endif
