#include "savrent/cc/math/axisAlignedBox.h"

#include <ostream>

#include "savrent/cc/math/matrix4.h"
#include "savrent/cc/math/util.h"

namespace savrent::cc::math
{
namespace
{
bool none_above(const vector3& low, const vector3& high)
{
    return low.x <= high.x && low.y <= high.y && low.z <= high.z;
}
} // namespace

constinit const axisAlignedBox axisAlignedBox::BOX_NULL{EXTENT_NULL};
constinit const axisAlignedBox axisAlignedBox::BOX_INFINITE{EXTENT_INFINITE};

axisAlignedBox::axisAlignedBox(const axisAlignedBox& other)
    : mMinimum(other.mMinimum), mMaximum(other.mMaximum), mExtent(other.mExtent)
{
}

axisAlignedBox& axisAlignedBox::operator=(const axisAlignedBox& other) // NOLINT(bugprone-unhandled-self-assignment)
{
    mMinimum = other.mMinimum;
    mMaximum = other.mMaximum;
    mExtent = other.mExtent;
    return *this;
}

axisAlignedBox::~axisAlignedBox()
{
    delete[] mCorners;
}

void axisAlignedBox::setMinimum(const vector3& v)
{
    mExtent = EXTENT_FINITE;
    mMinimum = v;
}

void axisAlignedBox::setMaximum(const vector3& v)
{
    mExtent = EXTENT_FINITE;
    mMaximum = v;
}

void axisAlignedBox::setExtents(const vector3& minimum, const vector3& maximum)
{
    setMinimum(minimum);
    setMaximum(maximum);
}

void axisAlignedBox::setExtents(double min_x, double min_y, double min_z, double max_x, double max_y, double max_z)
{
    setExtents({min_x, min_y, min_z}, {max_x, max_y, max_z});
}

const vector3* axisAlignedBox::getAllCorners() const
{
    if (mCorners == nullptr)
        mCorners = new vector3[8];
    for (unsigned int i = 0; i < 8; ++i)
        mCorners[i] = getCorner(static_cast<CornerEnum>(i));
    return mCorners;
}

vector3 axisAlignedBox::getCorner(CornerEnum corner) const
{
    switch (corner)
    {
    case MIN_X_MIN_Y_MIN_Z:
        return mMinimum;
    case MIN_X_MAX_Y_MIN_Z:
        return {mMinimum.x, mMaximum.y, mMinimum.z};
    case MAX_X_MAX_Y_MIN_Z:
        return {mMaximum.x, mMaximum.y, mMinimum.z};
    case MAX_X_MIN_Y_MIN_Z:
        return {mMaximum.x, mMinimum.y, mMinimum.z};
    case MAX_X_MAX_Y_MAX_Z:
        return mMaximum;
    case MIN_X_MAX_Y_MAX_Z:
        return {mMinimum.x, mMaximum.y, mMaximum.z};
    case MIN_X_MIN_Y_MAX_Z:
        return {mMinimum.x, mMinimum.y, mMaximum.z};
    case MAX_X_MIN_Y_MAX_Z:
        return {mMaximum.x, mMinimum.y, mMaximum.z};
    }
    return {};
}

vector3 axisAlignedBox::getSize() const
{
    if (isFinite())
        return mMaximum - mMinimum;
    return vector3(isNull() ? 0.0 : util::POS_INFINITY);
}

void axisAlignedBox::merge(const axisAlignedBox& other)
{
    if (other.isNull() || isInfinite())
        return;
    if (other.isInfinite())
    {
        setInfinite();
    }
    else if (isNull())
    {
        setExtents(other.mMinimum, other.mMaximum);
    }
    else
    {
        mMinimum.makeFloor(other.mMinimum);
        mMaximum.makeCeil(other.mMaximum);
    }
}

void axisAlignedBox::merge(const vector3& point)
{
    if (isNull())
    {
        setExtents(point, point);
    }
    else if (isFinite())
    {
        mMaximum.makeCeil(point);
        mMinimum.makeFloor(point);
    }
}

void axisAlignedBox::transform(const matrix4& matrix)
{
    if (!isFinite())
        return;
    const axisAlignedBox old = *this;
    setNull();
    // A walk along edges, so that from one corner to the next one coordinate changes.
    static constexpr CornerEnum walk[8] = {MIN_X_MIN_Y_MIN_Z, MIN_X_MIN_Y_MAX_Z, MIN_X_MAX_Y_MAX_Z, MIN_X_MAX_Y_MIN_Z,
                                           MAX_X_MAX_Y_MIN_Z, MAX_X_MAX_Y_MAX_Z, MAX_X_MIN_Y_MAX_Z, MAX_X_MIN_Y_MIN_Z};
    for (const CornerEnum corner : walk)
        merge(matrix * old.getCorner(corner));
}

void axisAlignedBox::transformAffine(const matrix4& matrix)
{
    if (!isFinite())
        return;
    // The centre moves like a point; the half size is stretched by the absolute block.
    const vector3 half = getHalfSize();
    const vector3 centre = matrix.transformAffine(getCenter());
    vector3 reach;
    for (std::size_t row = 0; row < 3; ++row)
        reach[row] = half.absDotProduct(vector3(matrix[row]));
    setExtents(centre - reach, centre + reach);
}

void axisAlignedBox::scale(const vector3& factor)
{
    if (isFinite())
        setExtents(mMinimum * factor, mMaximum * factor);
}

bool axisAlignedBox::intersects(const axisAlignedBox& other) const
{
    if (isNull() || other.isNull())
        return false;
    if (isInfinite() || other.isInfinite())
        return true;
    return none_above(mMinimum, other.mMaximum) && none_above(other.mMinimum, mMaximum);
}

bool axisAlignedBox::intersects(const sphere& s) const
{
    return util::intersects(s, *this);
}

bool axisAlignedBox::intersects(const plane& p) const
{
    return util::intersects(p, *this);
}

axisAlignedBox axisAlignedBox::intersection(const axisAlignedBox& other) const
{
    if (isNull() || other.isNull())
        return {};
    if (isInfinite())
        return other;
    if (other.isInfinite())
        return *this;
    vector3 minimum = mMinimum;
    vector3 maximum = mMaximum;
    minimum.makeCeil(other.mMinimum);
    maximum.makeFloor(other.mMaximum);
    return minimum < maximum ? axisAlignedBox(minimum, maximum) : axisAlignedBox();
}

double axisAlignedBox::volume() const
{
    if (isInfinite())
        return util::POS_INFINITY;
    const vector3 size = getSize();
    return size.x * size.y * size.z;
}

bool axisAlignedBox::contains(const vector3& point) const
{
    return isInfinite() || (isFinite() && none_above(mMinimum, point) && none_above(point, mMaximum));
}

bool axisAlignedBox::contains(const axisAlignedBox& other) const
{
    if (other.isNull() || isInfinite())
        return true;
    if (isNull() || other.isInfinite())
        return false;
    return none_above(mMinimum, other.mMinimum) && none_above(other.mMaximum, mMaximum);
}

double axisAlignedBox::squaredDistance(const vector3& point) const
{
    if (!isFinite())
        return isNull() ? util::POS_INFINITY : 0.0;
    vector3 nearest = point;
    nearest.makeCeil(mMinimum);
    nearest.makeFloor(mMaximum);
    return nearest.squaredDistance(point);
}

bool axisAlignedBox::operator==(const axisAlignedBox& other) const
{
    return mExtent == other.mExtent && (!isFinite() || (mMinimum == other.mMinimum && mMaximum == other.mMaximum));
}

std::ostream& operator<<(std::ostream& out, const axisAlignedBox& box)
{
    if (box.isFinite())
        return out << "AxisAlignedBox(min=" << box.getMinimum() << ", max=" << box.getMaximum() << ")";
    return out << (box.isNull() ? "AxisAlignedBox(null)" : "AxisAlignedBox(infinite)");
}
} // namespace savrent::cc::math
