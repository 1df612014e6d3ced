#include "savrent/cc/math/vector2.h"

#include <ostream>

namespace savrent::cc::math
{
namespace
{
/// Keeps the quotient finite: the single-precision value of 1e-6.
constexpr double least_length_product = 1e-6F;
} // namespace

constinit const vector2 vector2::ZERO{0.0, 0.0};
constinit const vector2 vector2::UNIT_X{1.0, 0.0};
constinit const vector2 vector2::UNIT_Y{0.0, 1.0};
constinit const vector2 vector2::NEGATIVE_UNIT_X{-1.0, 0.0};
constinit const vector2 vector2::NEGATIVE_UNIT_Y{0.0, -1.0};
constinit const vector2 vector2::UNIT_SCALE{1.0, 1.0};

vector2 vector2::randomDeviant(const radian& deviation) const
{
    const double turn = deviation.valueRadians() * util::RangeRandom(-1.0, 1.0);
    const double cosine = std::cos(turn);
    const double sine = std::sin(turn);
    return {cosine * x - sine * y, sine * x + cosine * y};
}

radian vector2::angleBetween(const vector2& dest) const
{
    const double length_product = std::max(length() * dest.length(), least_length_product);
    return util::ACos(util::Clamp(dotProduct(dest) / length_product, -1.0, 1.0));
}

radian vector2::angleTo(const vector2& dest) const
{
    const radian between = angleBetween(dest);
    return crossProduct(dest) < 0.0 ? radian(util::TWO_PI) - between : between;
}

std::ostream& operator<<(std::ostream& out, const vector2& v)
{
    return out << "Vector2(" << v.x << ", " << v.y << ")";
}
} // namespace savrent::cc::math
