// Gives the inline operations of the mathematics a symbol each, for programs that find them in the library and not in
// the headers. This file alone is compiled to keep inline functions that nobody calls.
#include "savrent/cc/math/angle.h"
#include "savrent/cc/math/axisAlignedBox.h"
#include "savrent/cc/math/custum_util.h"
#include "savrent/cc/math/degree.h"
#include "savrent/cc/math/matrix3.h"
#include "savrent/cc/math/matrix4.h"
#include "savrent/cc/math/operations.h"
#include "savrent/cc/math/plane.h"
#include "savrent/cc/math/planeBoundedVolume.h"
#include "savrent/cc/math/quaternion.h"
#include "savrent/cc/math/radian.h"
#include "savrent/cc/math/ray.h"
#include "savrent/cc/math/sphere.h"
#include "savrent/cc/math/util.h"
#include "savrent/cc/math/vector2.h"
#include "savrent/cc/math/vector3.h"
#include "savrent/cc/math/vector4.h"

namespace savrent::cc::math
{
// A template has the symbols of the types that it is asked for.
template QORIN_API double util::Clamp(double, double, double);
template QORIN_API float util::Clamp(float, float, float);
template QORIN_API int util::Clamp(int, int, int);

namespace
{
// Constants, and what the compiler writes itself, come into being where they are used.
[[gnu::used]] const double* const constants[] = {
    &util::POS_INFINITY,    &util::NEG_INFINITY, &util::PI,   &util::TWO_PI,     &util::HALF_PI,
    &util::fDeg2Rad,        &util::fRad2Deg,     &util::LOG2, &matrix3::EPSILON, &matrix3::msSvdEpsilon,
    &quaternion::msEpsilon,
};
[[gnu::used]] const unsigned int* const iterations = &matrix3::msSvdMaxIterations;
[[gnu::used]] const plane written_plane;
[[gnu::used]] const sphere written_sphere;
[[gnu::used]] const planeBoundedVolume written_volume;
} // namespace
} // namespace savrent::cc::math
