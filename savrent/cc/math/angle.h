/**
 * @file angle.h
 * An angle in the process-wide unit.
 */
#ifndef SAVRENT_CC_MATH_ANGLE_H
#define SAVRENT_CC_MATH_ANGLE_H

#include "qorin/export.h"
#include "savrent/cc/math/radian.h"
#include "savrent/cc/math/util.h"

namespace savrent::cc::math
{
/**
 * A number that is read as an angle in the unit of util::setAngleUnit(), degrees at start.
 *
 * The unit is asked at each conversion, not at construction.
 */
class QORIN_API angle
{
public:
    double mAngle; ///< in the current angle unit

    constexpr explicit angle(double value) : mAngle(value) {}

    operator radian() const { return radian(util::AngleUnitsToRadians(mAngle)); }
    operator degree() const { return degree(util::AngleUnitsToDegrees(mAngle)); }
};
} // namespace savrent::cc::math

#endif
