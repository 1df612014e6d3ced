/**
 * @file axisAlignedBox.h
 * A box along the axes.
 */
#ifndef SAVRENT_CC_MATH_AXISALIGNEDBOX_H
#define SAVRENT_CC_MATH_AXISALIGNEDBOX_H

#include <iosfwd>

#include "qorin/export.h"
#include "savrent/cc/math/vector3.h"

namespace savrent::cc::math
{
class matrix4;
class plane;
class sphere;

/**
 * A box along the axes: nothing (null), finite, or all of space (infinite).
 *
 * The corner values of a box that is not finite mean nothing. Setting minimum or maximum as a whole makes
 * the box finite; that the minimum is not above the maximum is up to the caller. A box owns the array
 * that getAllCorners() fills, so one box must not be asked for it by two threads at once.
 */
class QORIN_API axisAlignedBox
{
public:
    enum extent
    {
        EXTENT_NULL = 0,
        EXTENT_FINITE = 1,
        EXTENT_INFINITE = 2
    };

    /// Corners by the ends of the three axes: the face of low z, then that of high z.
    enum CornerEnum : unsigned int
    {
        MIN_X_MIN_Y_MIN_Z = 0,
        MIN_X_MAX_Y_MIN_Z = 1,
        MAX_X_MAX_Y_MIN_Z = 2,
        MAX_X_MIN_Y_MIN_Z = 3,
        MAX_X_MAX_Y_MAX_Z = 4,
        MIN_X_MAX_Y_MAX_Z = 5,
        MIN_X_MIN_Y_MAX_Z = 6,
        MAX_X_MIN_Y_MAX_Z = 7
    };

    static const axisAlignedBox BOX_NULL;
    static const axisAlignedBox BOX_INFINITE;

    /// A null box.
    constexpr axisAlignedBox() : axisAlignedBox(EXTENT_NULL) {}
    constexpr explicit axisAlignedBox(extent e) : mMinimum(-0.5, -0.5, -0.5), mMaximum(0.5, 0.5, 0.5), mExtent(e) {}
    constexpr axisAlignedBox(const vector3& minimum, const vector3& maximum)
        : mMinimum(minimum), mMaximum(maximum), mExtent(EXTENT_FINITE)
    {
    }
    constexpr axisAlignedBox(double min_x, double min_y, double min_z, double max_x, double max_y, double max_z)
        : axisAlignedBox({min_x, min_y, min_z}, {max_x, max_y, max_z})
    {
    }
    axisAlignedBox(const axisAlignedBox& other);
    axisAlignedBox& operator=(const axisAlignedBox& other);
    ~axisAlignedBox();

    [[nodiscard]] const vector3& getMinimum() const { return mMinimum; }
    [[nodiscard]] const vector3& getMaximum() const { return mMaximum; }
    void setMinimum(const vector3& v);
    void setMinimum(double x, double y, double z) { setMinimum({x, y, z}); }
    void setMaximum(const vector3& v);
    void setMaximum(double x, double y, double z) { setMaximum({x, y, z}); }
    /// One coordinate; the extent stays what it is.
    void setMinimumX(double x) { mMinimum.x = x; }
    void setMinimumY(double y) { mMinimum.y = y; }
    void setMinimumZ(double z) { mMinimum.z = z; }
    void setMaximumX(double x) { mMaximum.x = x; }
    void setMaximumY(double y) { mMaximum.y = y; }
    void setMaximumZ(double z) { mMaximum.z = z; }
    void setExtents(const vector3& minimum, const vector3& maximum);
    void setExtents(double min_x, double min_y, double min_z, double max_x, double max_y, double max_z);

    /// The eight corners by CornerEnum. The array is the box's and is filled anew by each call.
    [[nodiscard]] const vector3* getAllCorners() const;
    /// A zero vector for a value above 7.
    [[nodiscard]] vector3 getCorner(CornerEnum corner) const;
    [[nodiscard]] vector3 getCenter() const { return (mMaximum + mMinimum) * 0.5; }
    /// Zero for a null box, infinities for an infinite one.
    [[nodiscard]] vector3 getSize() const;
    /// Zero for a null box, infinities for an infinite one.
    [[nodiscard]] vector3 getHalfSize() const { return getSize() * 0.5; }

    void setNull() { mExtent = EXTENT_NULL; }
    [[nodiscard]] bool isNull() const { return mExtent == EXTENT_NULL; }
    [[nodiscard]] bool isFinite() const { return mExtent == EXTENT_FINITE; }
    void setInfinite() { mExtent = EXTENT_INFINITE; }
    [[nodiscard]] bool isInfinite() const { return mExtent == EXTENT_INFINITE; }

    /// Grows to hold the other box.
    void merge(const axisAlignedBox& other);
    /// Grows to hold the point.
    void merge(const vector3& point);
    /// Becomes the hull of its eight transformed corners.
    void transform(const matrix4& matrix);
    /// As transform(), for an affine matrix and faster.
    void transformAffine(const matrix4& matrix);
    /// Multiplies both corners; a negative factor exchanges them, which is no box any more.
    void scale(const vector3& factor);

    /// Whether the boxes share a point; touching faces do.
    [[nodiscard]] bool intersects(const axisAlignedBox& other) const;
    [[nodiscard]] bool intersects(const sphere& s) const;
    [[nodiscard]] bool intersects(const plane& p) const;
    [[nodiscard]] bool intersects(const vector3& point) const { return contains(point); }
    /// The shared box; null when the boxes only touch.
    [[nodiscard]] axisAlignedBox intersection(const axisAlignedBox& other) const;
    /// 0 for a null box, infinity for an infinite one.
    [[nodiscard]] double volume() const;
    /// Faces included.
    [[nodiscard]] bool contains(const vector3& point) const;
    /// Faces included; a null box is in every box.
    [[nodiscard]] bool contains(const axisAlignedBox& other) const;
    /// Squared distance of a point from the box: 0 inside and for an infinite box, infinity for a null one.
    [[nodiscard]] double squaredDistance(const vector3& point) const;
    [[nodiscard]] double distance(const vector3& point) const { return std::sqrt(squaredDistance(point)); }

    /// Boxes that are not finite are equal if their extents are.
    bool operator==(const axisAlignedBox& other) const;
    bool operator!=(const axisAlignedBox& other) const { return !(*this == other); }

private:
    vector3 mMinimum;
    vector3 mMaximum;
    extent mExtent;
    mutable vector3* mCorners = nullptr;
};

/** Writes "AxisAlignedBox(min=" and ", max=" with the corners, or "AxisAlignedBox(null)", "AxisAlignedBox(infinite)".
 */
QORIN_API std::ostream& operator<<(std::ostream& out, const axisAlignedBox& box);
} // namespace savrent::cc::math

#endif
