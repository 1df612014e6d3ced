/**
 * @file quaternion.h
 * A quaternion of doubles.
 */
#ifndef SAVRENT_CC_MATH_QUATERNION_H
#define SAVRENT_CC_MATH_QUATERNION_H

#include <cstddef>
#include <iosfwd>

#include "qorin/export.h"
#include "savrent/cc/math/matrix3.h"
#include "savrent/cc/math/util.h"
#include "savrent/cc/math/vector3.h"

namespace savrent::cc::math
{
/**
 * A quaternion, mostly a rotation.
 *
 * The order is w, x, y, z everywhere. Products are Hamilton's and apply the right factor first, as
 * matrices do. What treats it as a rotation takes it for a unit quaternion and does not normalise it.
 */
class QORIN_API quaternion
{
public:
    double w;
    double x;
    double y;
    double z;

    static const quaternion ZERO;
    static const quaternion IDENTITY;
    /**
     * Sines below it count as zero in Exp() and Log(). Slerp() takes quaternions as equal or opposite from an
     * absolute dot product of 1 minus it on, SlerpExtraSpins() as equal below this half angle in radians.
     */
    static constexpr double msEpsilon = 0.001;

    constexpr quaternion() : w(1.0), x(0.0), y(0.0), z(0.0) {}
    constexpr quaternion(double w0, double x0, double y0, double z0) : w(w0), x(x0), y(y0), z(z0) {}
    /// @param components w, x, y, z.
    constexpr explicit quaternion(const double* components)
        : w(components[0]), x(components[1]), y(components[2]), z(components[3])
    {
    }
    explicit quaternion(const matrix3& rotation) { FromRotationMatrix(rotation); }
    /// @param axis Unit.
    quaternion(const radian& rotation, const vector3& axis) { FromAngleAxis(rotation, axis); }
    quaternion(const vector3& x_axis, const vector3& y_axis, const vector3& z_axis)
    {
        FromAxes(x_axis, y_axis, z_axis);
    }
    /// @param axes The x, y and z axis.
    explicit quaternion(const vector3* axes) { FromAxes(axes); }

    constexpr void swap(quaternion& other)
    {
        const quaternion kept = *this;
        *this = other;
        other = kept;
    }
    /// Component by index: 0 is w, then x, y, z.
    constexpr double& operator[](std::size_t index) { return index == 0 ? w : (index == 1 ? x : (index == 2 ? y : z)); }
    constexpr double operator[](std::size_t index) const
    {
        return index == 0 ? w : (index == 1 ? x : (index == 2 ? y : z));
    }
    /// The components w, x, y, z, one after the other.
    constexpr double* ptr() { return &w; }
    [[nodiscard]] constexpr const double* ptr() const { return &w; }

    /// @name Conversions
    /// @{
    void FromRotationMatrix(const matrix3& rotation);
    void ToRotationMatrix(matrix3& rotation) const
    {
        const double tx = x + x;
        const double ty = y + y;
        const double tz = z + z;
        const double twx = tx * w;
        const double twy = ty * w;
        const double twz = tz * w;
        const double txx = tx * x;
        const double txy = ty * x;
        const double txz = tz * x;
        const double tyy = ty * y;
        const double tyz = tz * y;
        const double tzz = tz * z;
        rotation = {1.0 - (tyy + tzz), txy - twz, txz + twy, txy + twz,        1.0 - (txx + tzz),
                    tyz - twx,         txz - twy, tyz + twx, 1.0 - (txx + tyy)};
    }
    /// @param axis Unit; it is not normalised.
    void FromAngleAxis(const radian& rotation, const vector3& axis)
    {
        const double half = 0.5 * rotation.valueRadians();
        const double sine = std::sin(half);
        *this = {std::cos(half), sine * axis.x, sine * axis.y, sine * axis.z};
    }
    /// Angle 0 to two PI and unit axis; angle 0 about (1, 0, 0) if the vector part is zero.
    void ToAngleAxis(radian& rotation, vector3& axis) const;
    void ToAngleAxis(degree& rotation, vector3& axis) const;
    /// The rotation that has these unit axes as the columns of its matrix.
    void FromAxes(const vector3& x_axis, const vector3& y_axis, const vector3& z_axis);
    void FromAxes(const vector3* axes);
    /// The columns of the rotation matrix.
    void ToAxes(vector3& x_axis, vector3& y_axis, vector3& z_axis) const;
    void ToAxes(vector3* axes) const;
    [[nodiscard]] vector3 xAxis() const;
    [[nodiscard]] vector3 yAxis() const;
    [[nodiscard]] vector3 zAxis() const;
    /**
     * Turn about z, x and y.
     *
     * @param project True: the angle, seen along the axis, of the turned x, y or z axis. False: the
     *                angle of a product of three turns; getYaw() is then the middle one, -HALF_PI to HALF_PI.
     */
    [[nodiscard]] radian getRoll(bool project = true) const;
    [[nodiscard]] radian getPitch(bool project = true) const;
    [[nodiscard]] radian getYaw(bool project = true) const;
    /// @}

    /// @name Arithmetic
    /// @{
    /// Exact compare of all four: a quaternion differs from its negative, which is the same rotation.
    constexpr bool operator==(const quaternion& other) const = default;
    constexpr bool operator!=(const quaternion& other) const { return !(*this == other); }

    constexpr quaternion operator+(const quaternion& q) const { return {w + q.w, x + q.x, y + q.y, z + q.z}; }
    constexpr quaternion operator-(const quaternion& q) const { return {w - q.w, x - q.x, y - q.y, z - q.z}; }
    constexpr quaternion operator-() const { return {-w, -x, -y, -z}; }
    constexpr quaternion operator*(double scalar) const { return {w * scalar, x * scalar, y * scalar, z * scalar}; }
    constexpr quaternion operator*(const quaternion& q) const
    {
        return {w * q.w - x * q.x - y * q.y - z * q.z, w * q.x + x * q.w + y * q.z - z * q.y,
                w * q.y - x * q.z + y * q.w + z * q.x, w * q.z + x * q.y - y * q.x + z * q.w};
    }
    /// The vector turned by this unit quaternion.
    constexpr vector3 operator*(const vector3& v) const
    {
        const vector3 axis(x, y, z);
        const vector3 uv = axis.crossProduct(v);
        const vector3 uuv = axis.crossProduct(uv);
        return v + uv * (2.0 * w) + uuv * 2.0;
    }
    [[nodiscard]] constexpr double Dot(const quaternion& q) const { return w * q.w + x * q.x + y * q.y + z * q.z; }
    /// The squared length.
    [[nodiscard]] constexpr double Norm() const { return Dot(*this); }
    /// Makes the length 1 and returns the old Norm(). A zero quaternion becomes NaN.
    double normalise()
    {
        const double norm = Norm();
        *this = *this * (1.0 / std::sqrt(norm));
        return norm;
    }
    /// The conjugate over Norm(); ZERO for ZERO.
    [[nodiscard]] quaternion Inverse() const;
    /// The conjugate, which inverts a unit quaternion.
    [[nodiscard]] constexpr quaternion UnitInverse() const { return {w, -x, -y, -z}; }
    /// Exponential of a quaternion whose w is taken as 0.
    [[nodiscard]] quaternion Exp() const;
    /// Logarithm of a unit quaternion: w is 0.
    [[nodiscard]] quaternion Log() const;
    /// Whether the turn between two unit quaternions, sign ignored, is at most the tolerance.
    [[nodiscard]] bool equals(const quaternion& q, const radian& tolerance) const;
    /// Whether 1 minus the squared dot product of two unit quaternions is below the tolerance.
    [[nodiscard]] bool orientationEquals(const quaternion& q, double tolerance) const;
    [[nodiscard]] constexpr bool isNaN() const
    {
        return util::isNaN(w) || util::isNaN(x) || util::isNaN(y) || util::isNaN(z);
    }
    /// @}

    /// @name Interpolation between unit quaternions, t from 0 (p) to 1 (q)
    /// @{
    /**
     * Spherical at constant speed; nearly equal or opposite quaternions are joined straight and normalised.
     * @param shortest_path False keeps the sign of q, which may lead the long way round.
     */
    static quaternion Slerp(double t, const quaternion& p, const quaternion& q, bool shortest_path = false);
    /// Spherical with extra half turns of the quaternion; p if both are nearly equal. Takes no shortest path.
    static quaternion SlerpExtraSpins(double t, const quaternion& p, const quaternion& q, int spins);
    /// Inner control quaternions a and b at q1 for Squad().
    static void Intermediate(const quaternion& q0, const quaternion& q1, const quaternion& q2, quaternion& a,
                             quaternion& b);
    /// Spherical quadrangle from p to q with the inner control quaternions a and b.
    static quaternion Squad(double t, const quaternion& p, const quaternion& a, const quaternion& b,
                            const quaternion& q, bool shortest_path = false);
    /// Straight and normalised: faster than Slerp(), with a speed that varies.
    static quaternion nlerp(double t, const quaternion& p, const quaternion& q, bool shortest_path = false);
    /// @}
};

QORIN_API constexpr quaternion operator*(double scalar, const quaternion& q)
{
    return q * scalar;
}

/// Writes "Quaternion(w, x, y, z)".
QORIN_API std::ostream& operator<<(std::ostream& out, const quaternion& q);
} // namespace savrent::cc::math

#endif
