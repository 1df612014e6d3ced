#include "savrent/cc/math/vector4.h"

#include <ostream>

namespace savrent::cc::math
{
constinit const vector4 vector4::ZERO{0.0, 0.0, 0.0, 0.0};

std::ostream& operator<<(std::ostream& out, const vector4& v)
{
    return out << "Vector4(" << v.x << ", " << v.y << ", " << v.z << ", " << v.w << ")";
}
} // namespace savrent::cc::math
