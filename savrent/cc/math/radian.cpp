#include "savrent/cc/math/radian.h"

#include <ostream>

#include "savrent/cc/math/util.h"

namespace savrent::cc::math
{
double radian::valueAngleUnits() const
{
    return util::RadiansToAngleUnits(mRad);
}

std::ostream& operator<<(std::ostream& out, const radian& value)
{
    return out << "Radian(" << value.mRad << ")";
}
} // namespace savrent::cc::math
