#include "savrent/cc/math/degree.h"

#include <ostream>

#include "savrent/cc/math/util.h"

namespace savrent::cc::math
{
double degree::valueAngleUnits() const
{
    return util::DegreesToAngleUnits(mDeg);
}

std::ostream& operator<<(std::ostream& out, const degree& value)
{
    return out << "Degree(" << value.mDeg << ")";
}
} // namespace savrent::cc::math
