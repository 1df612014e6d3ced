/**
 * @file matrix4.h
 * A 4 by 4 homogeneous matrix of doubles.
 */
#ifndef SAVRENT_CC_MATH_MATRIX4_H
#define SAVRENT_CC_MATH_MATRIX4_H

#include <cstddef>
#include <iosfwd>

#include "qorin/export.h"
#include "savrent/cc/math/matrix3.h"
#include "savrent/cc/math/quaternion.h"
#include "savrent/cc/math/vector3.h"
#include "savrent/cc/math/vector4.h"

namespace savrent::cc::math
{
class plane;

/**
 * A homogeneous transformation.
 *
 * Row-major: m[r][c] is row r, column c. Vectors are columns: the translation stands in column 3, and a
 * product applies its right factor first. An affine matrix has the last row 0, 0, 0, 1. Default
 * construction gives the identity. The affine forms take that last row for granted and are faster.
 */
class QORIN_API matrix4
{
public:
    static const matrix4 ZERO;
    /// All zero but the last element, which is 1.
    static const matrix4 ZEROAFFINE;
    static const matrix4 IDENTITY;
    /// From clip space, -1 to 1 with y upwards, to image space, 0 to 1 with y downwards.
    static const matrix4 CLIPSPACE2DTOIMAGESPACE;

    constexpr matrix4() : matrix4(1.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 0.0, 1.0) {}
    constexpr matrix4(double m00, double m01, double m02, double m03, double m10, double m11, double m12, double m13,
                      double m20, double m21, double m22, double m23, double m30, double m31, double m32, double m33)
        : m{{m00, m01, m02, m03}, {m10, m11, m12, m13}, {m20, m21, m22, m23}, {m30, m31, m32, m33}}
    {
    }
    constexpr explicit matrix4(const matrix3& rotation) : matrix4() { *this = rotation; }
    explicit matrix4(const quaternion& rotation) : matrix4()
    {
        matrix3 block;
        rotation.ToRotationMatrix(block);
        *this = block;
    }

    constexpr void makeIdentity() { *this = matrix4(); }
    constexpr void swap(matrix4& other)
    {
        const matrix4 kept = *this;
        *this = other;
        other = kept;
    }
    /// Row by index, 0 to 3.
    constexpr double* operator[](std::size_t row) { return m[row]; }
    constexpr const double* operator[](std::size_t row) const { return m[row]; }

    /// Writes the 3 by 3 block and leaves the rest.
    constexpr matrix4& operator=(const matrix3& block)
    {
        for (std::size_t r = 0; r < 3; ++r)
        {
            m[r][0] = block[r][0];
            m[r][1] = block[r][1];
            m[r][2] = block[r][2];
        }
        return *this;
    }
    /// Exact compare.
    constexpr bool operator==(const matrix4& other) const = default;
    constexpr bool operator!=(const matrix4& other) const { return !(*this == other); }

    /// @name Arithmetic
    /// @{
    [[nodiscard]] constexpr matrix4 concatenate(const matrix4& b) const
    {
        return {row_product(0, 0, b), row_product(0, 1, b), row_product(0, 2, b), row_product(0, 3, b),
                row_product(1, 0, b), row_product(1, 1, b), row_product(1, 2, b), row_product(1, 3, b),
                row_product(2, 0, b), row_product(2, 1, b), row_product(2, 2, b), row_product(2, 3, b),
                row_product(3, 0, b), row_product(3, 1, b), row_product(3, 2, b), row_product(3, 3, b)};
    }
    constexpr matrix4 operator*(const matrix4& b) const { return concatenate(b); }
    /// Projective: the point's image divided by its w. A w of zero gives infinities.
    constexpr vector3 operator*(const vector3& v) const
    {
        const double inverse_w = 1.0 / (m[3][0] * v.x + m[3][1] * v.y + m[3][2] * v.z + m[3][3]);
        return transformAffine(v) * inverse_w;
    }
    constexpr vector4 operator*(const vector4& v) const
    {
        return {m[0][0] * v.x + m[0][1] * v.y + m[0][2] * v.z + m[0][3] * v.w,
                m[1][0] * v.x + m[1][1] * v.y + m[1][2] * v.z + m[1][3] * v.w,
                m[2][0] * v.x + m[2][1] * v.y + m[2][2] * v.z + m[2][3] * v.w,
                m[3][0] * v.x + m[3][1] * v.y + m[3][2] * v.z + m[3][3] * v.w};
    }
    /// The plane of the transformed points, with a unit normal.
    plane operator*(const plane& p) const;
    matrix4 operator*(double scalar) const;
    matrix4 operator+(const matrix4& b) const;
    matrix4 operator-(const matrix4& b) const;

    [[nodiscard]] constexpr matrix4 transpose() const
    {
        return {m[0][0], m[1][0], m[2][0], m[3][0], m[0][1], m[1][1], m[2][1], m[3][1],
                m[0][2], m[1][2], m[2][2], m[3][2], m[0][3], m[1][3], m[2][3], m[3][3]};
    }
    [[nodiscard]] double determinant() const;
    [[nodiscard]] matrix4 adjoint() const;
    /// The adjoint over the determinant; not finite for a singular matrix.
    [[nodiscard]] matrix4 inverse() const;
    /// @}

    /// @name Translation and scale
    /// @{
    constexpr void setTrans(const vector3& v)
    {
        m[0][3] = v.x;
        m[1][3] = v.y;
        m[2][3] = v.z;
    }
    /// The translation of this matrix.
    [[nodiscard]] constexpr vector3 getTrans() const { return {m[0][3], m[1][3], m[2][3]}; }
    /// Makes this matrix a translation and nothing else.
    constexpr void makeTrans(const vector3& v) { *this = getTrans(v); }
    constexpr void makeTrans(double x, double y, double z) { *this = getTrans(x, y, z); }
    /// A new translation matrix.
    [[nodiscard]] static constexpr matrix4 getTrans(const vector3& v) { return getTrans(v.x, v.y, v.z); }
    [[nodiscard]] static constexpr matrix4 getTrans(double x, double y, double z)
    {
        return {1.0, 0.0, 0.0, x, 0.0, 1.0, 0.0, y, 0.0, 0.0, 1.0, z, 0.0, 0.0, 0.0, 1.0};
    }
    /// Writes the three diagonal elements and nothing else.
    constexpr void setScale(const vector3& v)
    {
        m[0][0] = v.x;
        m[1][1] = v.y;
        m[2][2] = v.z;
    }
    /// A new scale matrix.
    [[nodiscard]] static constexpr matrix4 getScale(const vector3& v) { return getScale(v.x, v.y, v.z); }
    [[nodiscard]] static constexpr matrix4 getScale(double x, double y, double z)
    {
        return {x, 0.0, 0.0, 0.0, 0.0, y, 0.0, 0.0, 0.0, 0.0, z, 0.0, 0.0, 0.0, 0.0, 1.0};
    }
    /// True unless each column of the 3 by 3 block has a squared length within 0.0001 of 1.
    [[nodiscard]] bool hasScale() const;
    /// Whether the matrix mirrors: its determinant is negative.
    [[nodiscard]] bool hasNegativeScale() const { return determinant() < 0.0; }
    /// @}

    /// @name Parts and transforms
    /// @{
    constexpr void extract3x3Matrix(matrix3& block) const
    {
        block = {m[0][0], m[0][1], m[0][2], m[1][0], m[1][1], m[1][2], m[2][0], m[2][1], m[2][2]};
    }
    [[nodiscard]] constexpr matrix3 extract3x3Matrix() const
    {
        matrix3 block;
        extract3x3Matrix(block);
        return block;
    }
    /// The quaternion of the 3 by 3 block, which is taken for a rotation.
    [[nodiscard]] quaternion extractQuaternion() const { return quaternion(extract3x3Matrix()); }
    /// Translation, scale and rotation of an affine matrix; a shear is dropped.
    void decomposition(vector3& position, vector3& scale, quaternion& orientation) const;
    /// Scales along the axes, then turns, then moves.
    void makeTransform(const vector3& position, const vector3& scale, const quaternion& orientation);
    /// The inverse of makeTransform() with the same arguments. A scale of zero gives infinities.
    void makeInverseTransform(const vector3& position, const vector3& scale, const quaternion& orientation);
    /// @}

    /// @name Affine forms
    /// @{
    /// Whether the last row is exactly 0, 0, 0, 1.
    [[nodiscard]] constexpr bool isAffine() const
    {
        return m[3][0] == 0.0 && m[3][1] == 0.0 && m[3][2] == 0.0 && m[3][3] == 1.0;
    }
    [[nodiscard]] matrix4 inverseAffine() const;
    [[nodiscard]] matrix4 concatenateAffine(const matrix4& b) const;
    /// Turns and scales a direction, without the translation.
    [[nodiscard]] constexpr vector3 transformDirectionAffine(const vector3& v) const
    {
        return {m[0][0] * v.x + m[0][1] * v.y + m[0][2] * v.z, m[1][0] * v.x + m[1][1] * v.y + m[1][2] * v.z,
                m[2][0] * v.x + m[2][1] * v.y + m[2][2] * v.z};
    }
    [[nodiscard]] constexpr vector3 transformAffine(const vector3& v) const
    {
        return {m[0][0] * v.x + m[0][1] * v.y + m[0][2] * v.z + m[0][3],
                m[1][0] * v.x + m[1][1] * v.y + m[1][2] * v.z + m[1][3],
                m[2][0] * v.x + m[2][1] * v.y + m[2][2] * v.z + m[2][3]};
    }
    [[nodiscard]] constexpr vector4 transformAffine(const vector4& v) const
    {
        return {m[0][0] * v.x + m[0][1] * v.y + m[0][2] * v.z + m[0][3] * v.w,
                m[1][0] * v.x + m[1][1] * v.y + m[1][2] * v.z + m[1][3] * v.w,
                m[2][0] * v.x + m[2][1] * v.y + m[2][2] * v.z + m[2][3] * v.w, v.w};
    }
    /// @}

    /// @name Rotation builders: new matrices
    /// @{
    /**
     * The shortest rotation that leads the direction of from to that of to.
     * For opposite vectors there is no axis and the block is the negated identity.
     */
    [[nodiscard]] static matrix4 buildRotateFromTo(const vector3& from, const vector3& to);
    /// buildRotateFromAxisAngle() about from x to by the angle between them, with the flaw told there.
    [[nodiscard]] static matrix4 buildRotateFromTo2(const vector3& from, const vector3& to);
    /**
     * Rotation about a unit axis by an angle in degrees, but for row 0, column 2.
     *
     * That element is x y (1 - cos) + y sin, where a rotation has x z (1 - cos) + y sin. Programs in the
     * field depend on it; use matrix3::FromAngleAxis() for a rotation.
     */
    [[nodiscard]] static matrix4 buildRotateFromAxisAngle(const vector3& axis, double degrees);
    /// @}

private:
    /// One element of the product; written out, so that the compiler pairs neighbours.
    [[nodiscard]] constexpr double row_product(std::size_t r, std::size_t c, const matrix4& b) const
    {
        return m[r][0] * b.m[0][c] + m[r][1] * b.m[1][c] + m[r][2] * b.m[2][c] + m[r][3] * b.m[3][c];
    }

    double m[4][4];
};

/// The row vector with the columns.
QORIN_API vector4 operator*(const vector4& v, const matrix4& a);

/// Writes "Matrix4(", a line " row" with number and elements for each row, ")".
QORIN_API std::ostream& operator<<(std::ostream& out, const matrix4& a);
} // namespace savrent::cc::math

#endif
