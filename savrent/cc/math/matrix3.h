/**
 * @file matrix3.h
 * A 3 by 3 matrix of doubles.
 */
#ifndef SAVRENT_CC_MATH_MATRIX3_H
#define SAVRENT_CC_MATH_MATRIX3_H

#include <cstddef>

#include "qorin/export.h"
#include "savrent/cc/math/util.h"
#include "savrent/cc/math/vector3.h"

namespace savrent::cc::math
{
/**
 * A 3 by 3 matrix, mostly a rotation.
 *
 * Row-major: m[r][c] is row r, column c. Vectors are columns, so a product applies its right factor
 * first. Default construction gives the identity. Angles are radian values unless the type says degree.
 */
class QORIN_API matrix3
{
public:
    static const matrix3 ZERO;
    static const matrix3 IDENTITY;
    static constexpr double EPSILON = 1e-06;
    /// Relative size below which the singular value solver drops a superdiagonal element.
    static constexpr double msSvdEpsilon = 0.0001;
    static constexpr unsigned int msSvdMaxIterations = 32;

    constexpr matrix3() : matrix3(1.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 1.0) {}
    constexpr explicit matrix3(const double rows[3][3])
        : matrix3(rows[0][0], rows[0][1], rows[0][2], rows[1][0], rows[1][1], rows[1][2], rows[2][0], rows[2][1],
                  rows[2][2])
    {
    }
    constexpr matrix3(double m00, double m01, double m02, double m10, double m11, double m12, double m20, double m21,
                      double m22)
        : m{{m00, m01, m02}, {m10, m11, m12}, {m20, m21, m22}}
    {
    }

    constexpr void swap(matrix3& other)
    {
        const matrix3 kept = *this;
        *this = other;
        other = kept;
    }

    /// Row by index, 0 to 2.
    constexpr double* operator[](std::size_t row) { return m[row]; }
    constexpr const double* operator[](std::size_t row) const { return m[row]; }
    [[nodiscard]] constexpr vector3 GetColumn(std::size_t column) const
    {
        return {m[0][column], m[1][column], m[2][column]};
    }
    constexpr void SetColumn(std::size_t column, const vector3& v)
    {
        m[0][column] = v.x;
        m[1][column] = v.y;
        m[2][column] = v.z;
    }
    /// Makes the three axes the columns.
    constexpr void FromAxes(const vector3& x_axis, const vector3& y_axis, const vector3& z_axis)
    {
        *this = {x_axis.x, y_axis.x, z_axis.x, x_axis.y, y_axis.y, z_axis.y, x_axis.z, y_axis.z, z_axis.z};
    }

    /// Exact compare.
    constexpr bool operator==(const matrix3& other) const = default;
    constexpr bool operator!=(const matrix3& other) const { return !(*this == other); }

    constexpr matrix3 operator+(const matrix3& b) const
    {
        return {m[0][0] + b.m[0][0], m[0][1] + b.m[0][1], m[0][2] + b.m[0][2], m[1][0] + b.m[1][0], m[1][1] + b.m[1][1],
                m[1][2] + b.m[1][2], m[2][0] + b.m[2][0], m[2][1] + b.m[2][1], m[2][2] + b.m[2][2]};
    }
    constexpr matrix3 operator-(const matrix3& b) const { return *this + -b; }
    constexpr matrix3 operator-() const
    {
        return {-m[0][0], -m[0][1], -m[0][2], -m[1][0], -m[1][1], -m[1][2], -m[2][0], -m[2][1], -m[2][2]};
    }
    constexpr matrix3 operator*(const matrix3& b) const
    {
        matrix3 product;
        for (std::size_t r = 0; r < 3; ++r)
            for (std::size_t c = 0; c < 3; ++c)
                product.m[r][c] = m[r][0] * b.m[0][c] + m[r][1] * b.m[1][c] + m[r][2] * b.m[2][c];
        return product;
    }
    /// Rows with the column vector.
    constexpr vector3 operator*(const vector3& v) const
    {
        return {m[0][0] * v.x + m[0][1] * v.y + m[0][2] * v.z, m[1][0] * v.x + m[1][1] * v.y + m[1][2] * v.z,
                m[2][0] * v.x + m[2][1] * v.y + m[2][2] * v.z};
    }
    constexpr matrix3 operator*(double s) const
    {
        return {m[0][0] * s, m[0][1] * s, m[0][2] * s, m[1][0] * s, m[1][1] * s,
                m[1][2] * s, m[2][0] * s, m[2][1] * s, m[2][2] * s};
    }

    [[nodiscard]] constexpr matrix3 Transpose() const
    {
        return {m[0][0], m[1][0], m[2][0], m[0][1], m[1][1], m[2][1], m[0][2], m[1][2], m[2][2]};
    }
    [[nodiscard]] constexpr double Determinant() const
    {
        return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) + m[0][1] * (m[1][2] * m[2][0] - m[1][0] * m[2][2]) +
               m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
    }
    /**
     * @param result The inverse, or the adjoint when there is none.
     * @return False if the absolute determinant is at most the tolerance.
     */
    bool Inverse(matrix3& result, double tolerance = EPSILON) const;
    /// The inverse, or the adjoint when the absolute determinant is at most the tolerance.
    [[nodiscard]] matrix3 Inverse(double tolerance = EPSILON) const;

    /// True unless each column's squared length is within 0.0001 of 1, the bound included.
    [[nodiscard]] bool hasScale() const;

    /// @name Decompositions
    /// @{
    /**
     * Householder reduction of a to upper bidiagonal form, in place.
     *
     * The input is left * a * right with the rotations (and reflections) that come out.
     */
    static void Bidiagonalize(matrix3& a, matrix3& left, matrix3& right);
    /// One implicit-shift QR step on a bidiagonal a; left * a * right stays what it was.
    static void GolubKahanStep(matrix3& a, matrix3& left, matrix3& right);
    /**
     * This matrix as left * diag(values) * right.
     *
     * @param left   Orthogonal.
     * @param values Not negative and in no order. Their absolute error is up to about msSvdEpsilon times
     *               the largest one, because smaller superdiagonal elements are dropped.
     * @param right  Orthogonal; its rows belong to the values.
     */
    void SingularValueDecomposition(matrix3& left, vector3& values, matrix3& right) const;
    /// Sets this matrix to left * diag(values) * right.
    void SingularValueComposition(const matrix3& left, const vector3& values, const matrix3& right);
    /// Gram-Schmidt on the columns in order. A zero column becomes not finite.
    void Orthonormalize();
    /**
     * This matrix as q * diag(d) * u by Gram-Schmidt.
     *
     * @param q A rotation: for a mirroring matrix all of q and d change their sign.
     * @param d Scale along the columns of q. Zero gives a u that is not finite.
     * @param u The shears u[0][1], u[0][2] and u[1][2] of an upper triangle with ones on its diagonal.
     */
    void QDUDecomposition(matrix3& q, vector3& d, vector3& u) const;
    /// The largest singular value.
    [[nodiscard]] double SpectralNorm() const;
    /// The largest root of x^3 + c[2] x^2 + c[1] x + c[0], for a cubic with three real roots.
    [[nodiscard]] static double MaxCubicRoot(const double coefficients[3]);
    /// @}

    /// @name Rotations
    /// @{
    /**
     * Axis and angle of a rotation; the angle is 0 to PI.
     *
     * The axis comes from the skew part, which fades towards PI: within about 1e-7 of PI, but not at PI
     * itself, it is mostly noise.
     *
     * @param axis Unit; (1, 0, 0) for the angle 0.
     */
    void ToAngleAxis(vector3& axis, radian& rotation) const;
    void ToAngleAxis(vector3& axis, degree& rotation) const;
    /// @param axis Unit; it is not normalised. Right-handed about the axis.
    void FromAngleAxis(const vector3& axis, const radian& rotation);

    /**
     * Angles a, b, c of a rotation that is the product of three plain ones in the order of the name:
     * XYZ is Rx(a) * Ry(b) * Rz(c).
     *
     * b is -HALF_PI to HALF_PI. At either limit only a combination of a and c is known: c is set to 0,
     * a takes it all, and the result is false. The angles rebuild the rotation in every case.
     */
    bool ToEulerAnglesXYZ(radian& a, radian& b, radian& c) const;
    bool ToEulerAnglesXZY(radian& a, radian& b, radian& c) const;
    bool ToEulerAnglesYXZ(radian& a, radian& b, radian& c) const;
    bool ToEulerAnglesYZX(radian& a, radian& b, radian& c) const;
    bool ToEulerAnglesZXY(radian& a, radian& b, radian& c) const;
    bool ToEulerAnglesZYX(radian& a, radian& b, radian& c) const;
    /// Sets the product of three plain rotations in the order of the name: XYZ is Rx(a) * Ry(b) * Rz(c).
    void FromEulerAnglesXYZ(const radian& a, const radian& b, const radian& c);
    void FromEulerAnglesXZY(const radian& a, const radian& b, const radian& c);
    void FromEulerAnglesYXZ(const radian& a, const radian& b, const radian& c);
    void FromEulerAnglesYZX(const radian& a, const radian& b, const radian& c);
    void FromEulerAnglesZXY(const radian& a, const radian& b, const radian& c);
    void FromEulerAnglesZYX(const radian& a, const radian& b, const radian& c);
    /// @}

    /// @name Symmetric eigenproblem
    /// @{
    /**
     * Householder reduction of this symmetric matrix to tridiagonal form; this becomes the transformation.
     * @param subdiagonal The two elements beside the diagonal, then 0.
     */
    void Tridiagonal(double diagonal[3], double subdiagonal[3]);
    /**
     * QL iteration with implicit shifts on a tridiagonal matrix; its rotations are gathered in this matrix.
     * @return False if an eigenvalue needs more than 32 iterations.
     */
    bool QLAlgorithm(double diagonal[3], double subdiagonal[3]);
    /**
     * Eigenvalues and eigenvectors of this matrix, which is taken as symmetric: its upper triangle counts.
     *
     * @param values  In no order.
     * @param vectors Unit, in the order of the values, and a right-handed set.
     * @return False if the iteration gave up; the outputs then hold its last state.
     */
    bool EigenSolveSymmetric(double values[3], vector3 vectors[3]) const;
    /// out[r][c] = u[r] * v[c].
    static void TensorProduct(const vector3& u, const vector3& v, matrix3& out);
    /// @}

private:
    double m[3][3];
};

/// The row vector with the columns.
QORIN_API constexpr vector3 operator*(const vector3& v, const matrix3& a)
{
    return {v.x * a[0][0] + v.y * a[1][0] + v.z * a[2][0], v.x * a[0][1] + v.y * a[1][1] + v.z * a[2][1],
            v.x * a[0][2] + v.y * a[1][2] + v.z * a[2][2]};
}
QORIN_API constexpr matrix3 operator*(double scalar, const matrix3& a)
{
    return a * scalar;
}
} // namespace savrent::cc::math

#endif
