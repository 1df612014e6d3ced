#include <cmath>
#include <cstddef>

#include "savrent/cc/math/axisAlignedBox.h"
#include "savrent/cc/math/matrix4.h"
#include "savrent/cc/math/plane.h"
#include "savrent/cc/math/ray.h"
#include "savrent/cc/math/sphere.h"
#include "savrent/cc/math/util.h"

namespace savrent::cc::math
{
namespace
{
constexpr std::pair<bool, double> miss{false, 0.0};
constexpr std::pair<bool, double> at_once{true, 0.0};
/// Denominators below it mean that a ray runs along a plane.
constexpr double parallel_limit = std::numeric_limits<double>::epsilon();

/// Clips the ray by the half spaces of a convex volume, after Cyrus and Beck.
template <typename Planes>
std::pair<bool, double> clip_by_planes(const ray& r, const Planes& planes, bool normal_is_outside)
{
    const plane::side outside = normal_is_outside ? plane::POSITIVE_SIDE : plane::NEGATIVE_SIDE;
    double entry = 0.0;
    double exit = util::POS_INFINITY;
    for (const plane& p : planes)
    {
        const std::pair<bool, double> crossing = util::intersects(r, p);
        if (p.getSide(r.getOrigin()) == outside)
        {
            if (!crossing.first)
                return miss; // outside of this plane for good
            entry = std::max(entry, crossing.second);
        }
        else if (crossing.first && (p.normal.dotProduct(r.getDirection()) > 0.0) == normal_is_outside)
        {
            exit = std::min(exit, crossing.second);
        }
    }
    return entry <= exit ? std::pair{true, entry} : miss;
}

/// Keeps the nearer hit of a ray with the face of a box that lies across an axis.
void try_face(const ray& r, const axisAlignedBox& box, std::size_t axis, bool low_face, std::pair<bool, double>& best)
{
    const double face = low_face ? box.getMinimum()[axis] : box.getMaximum()[axis];
    const double from = r.getOrigin()[axis];
    const double along = r.getDirection()[axis];
    if (low_face ? !(from <= face && along > 0.0) : !(from >= face && along < 0.0))
        return;
    const double t = (face - from) / along;
    const vector3 point = r.getPoint(t);
    for (std::size_t other = 0; other < 3; ++other)
        if (other != axis && !(point[other] >= box.getMinimum()[other] && point[other] <= box.getMaximum()[other]))
            return;
    if (t >= 0.0 && (!best.first || t < best.second))
        best = {true, t};
}

/// Whether three signed areas do not have opposite signs: the point is on the same side of all edges.
bool same_side(double a, double b, double c)
{
    return (a >= 0.0 && b >= 0.0 && c >= 0.0) || (a <= 0.0 && b <= 0.0 && c <= 0.0);
}
} // namespace

std::pair<bool, double> util::intersects(const ray& r, const plane& p)
{
    const double denominator = p.normal.dotProduct(r.getDirection());
    if (std::fabs(denominator) < parallel_limit)
        return miss;
    const double v = (p.d + p.normal.dotProduct(r.getOrigin())) / denominator;
    return {v <= 0.0, -v};
}

std::pair<bool, double> util::intersects(const ray& r, const std::list<plane>& planes, bool normal_is_outside)
{
    return clip_by_planes(r, planes, normal_is_outside);
}

std::pair<bool, double> util::intersects(const ray& r, const std::vector<plane>& planes, bool normal_is_outside)
{
    return clip_by_planes(r, planes, normal_is_outside);
}

std::pair<bool, double> util::intersects(const ray& r, const sphere& s, bool discard_inside)
{
    const vector3 o = r.getOrigin() - s.getCenter();
    const double squared_radius = s.getRadius() * s.getRadius();
    if (o.squaredLength() <= squared_radius && discard_inside)
        return at_once;
    const double a = r.getDirection().dotProduct(r.getDirection());
    const double b = 2.0 * o.dotProduct(r.getDirection());
    const double c = o.dotProduct(o) - squared_radius;
    const double discriminant = b * b - 4.0 * a * c;
    if (discriminant < 0.0)
        return miss;
    const double root = std::sqrt(discriminant);
    const double near = (-b - root) / (2.0 * a);
    return {true, near < 0.0 ? (root - b) / (2.0 * a) : near};
}

std::pair<bool, double> util::intersects(const ray& r, const axisAlignedBox& box)
{
    if (box.isNull())
        return miss;
    if (box.isInfinite() || (r.getOrigin() > box.getMinimum() && r.getOrigin() < box.getMaximum()))
        return at_once;
    std::pair<bool, double> best = miss;
    for (std::size_t axis = 0; axis < 3; ++axis)
    {
        try_face(r, box, axis, true, best);
        try_face(r, box, axis, false, best);
    }
    return best;
}

bool util::intersects(const ray& r, const axisAlignedBox& box, double* entry, double* exit)
{
    if (box.isNull())
        return false;
    double start = 0.0;
    double end = POS_INFINITY;
    // The slab method; a ray that runs along a slab is in it for good or not at all.
    for (std::size_t axis = 0; axis < 3 && box.isFinite(); ++axis)
    {
        const double low = box.getMinimum()[axis] - r.getOrigin()[axis];
        const double high = box.getMaximum()[axis] - r.getOrigin()[axis];
        const double along = r.getDirection()[axis];
        if (along == 0.0)
        {
            if (low > 0.0 || high < 0.0)
                return false;
            continue;
        }
        const auto [first, last] = std::minmax({low / along, high / along});
        start = std::max(start, first);
        end = std::min(end, last);
        if (start > end)
            return false;
    }
    if (entry != nullptr)
        *entry = start;
    if (exit != nullptr)
        *exit = end;
    return true;
}

std::pair<bool, double> util::intersects(const ray& r, const vector3& a, const vector3& b, const vector3& c,
                                         bool positive_side, bool negative_side)
{
    // Moeller and Trumbore: the barycentric coordinates and the distance by Cramer's rule.
    const vector3 ab = b - a;
    const vector3 ac = c - a;
    const vector3 p = r.getDirection().crossProduct(ac);
    const double determinant = ab.dotProduct(p); // positive when the corners are seen counter-clockwise
    if (std::fabs(determinant) < parallel_limit || !(determinant > 0.0 ? positive_side : negative_side))
        return miss;
    const double inverse = 1.0 / determinant;
    const vector3 o = r.getOrigin() - a;
    const double u = o.dotProduct(p) * inverse;
    const vector3 q = o.crossProduct(ab);
    const double v = r.getDirection().dotProduct(q) * inverse;
    const double t = ac.dotProduct(q) * inverse;
    return u >= 0.0 && v >= 0.0 && u + v <= 1.0 && t >= 0.0 ? std::pair{true, t} : miss;
}

bool util::intersects(const sphere& s, const axisAlignedBox& box)
{
    if (!box.isFinite())
        return box.isInfinite();
    return s.getRadius() * s.getRadius() >= box.squaredDistance(s.getCenter());
}

bool util::intersects(const plane& p, const axisAlignedBox& box)
{
    return p.getSide(box) == plane::BOTH_SIDE;
}

bool util::intersects(const sphere& s, const plane& p)
{
    return std::fabs(p.getDistance(s.getCenter())) <= s.getRadius();
}

bool util::pointInTri2D(const vector2& p, const vector2& a, const vector2& b, const vector2& c)
{
    return same_side((b - a).crossProduct(p - a), (c - b).crossProduct(p - b), (a - c).crossProduct(p - c));
}

bool util::pointInTri3D(const vector3& p, const vector3& a, const vector3& b, const vector3& c, const vector3& normal)
{
    return same_side((b - a).crossProduct(p - a).dotProduct(normal), (c - b).crossProduct(p - b).dotProduct(normal),
                     (a - c).crossProduct(p - c).dotProduct(normal));
}

vector4 util::calculateFaceNormal(const vector3& v1, const vector3& v2, const vector3& v3)
{
    const vector3 normal = calculateBasicFaceNormal(v1, v2, v3);
    return {normal.x, normal.y, normal.z, -normal.dotProduct(v1)};
}

vector3 util::calculateBasicFaceNormal(const vector3& v1, const vector3& v2, const vector3& v3)
{
    return calculateBasicFaceNormalWithoutNormalize(v1, v2, v3).normalisedCopy();
}

vector4 util::calculateFaceNormalWithoutNormalize(const vector3& v1, const vector3& v2, const vector3& v3)
{
    const vector3 normal = calculateBasicFaceNormalWithoutNormalize(v1, v2, v3);
    return {normal.x, normal.y, normal.z, -normal.dotProduct(v1)};
}

vector3 util::calculateBasicFaceNormalWithoutNormalize(const vector3& v1, const vector3& v2, const vector3& v3)
{
    return (v2 - v1).crossProduct(v3 - v1);
}

vector3 util::calculateTangentSpaceVector(const vector3& position1, const vector3& position2, const vector3& position3,
                                          double u1, double v1, double u2, double v2, double u3, double v3)
{
    // Lengyel's method: solve edge = tangent * du + bitangent * dv for the tangent.
    const double du2 = u2 - u1;
    const double dv2 = v2 - v1;
    const double du3 = u3 - u1;
    const double dv3 = v3 - v1;
    const double determinant = du2 * dv3 - du3 * dv2;
    if (determinant == 0.0)
        return {};
    const vector3 tangent = ((position2 - position1) * dv3 - (position3 - position1) * dv2) / determinant;
    return tangent.normalisedCopy();
}

matrix4 util::buildReflectionMatrix(const plane& p)
{
    // Householder's reflection I - 2 n n^T, moved by -2 d n.
    const vector3& n = p.normal;
    return {1.0 - 2.0 * n.x * n.x,
            -2.0 * n.x * n.y,
            -2.0 * n.x * n.z,
            -2.0 * n.x * p.d,
            -2.0 * n.y * n.x,
            1.0 - 2.0 * n.y * n.y,
            -2.0 * n.y * n.z,
            -2.0 * n.y * p.d,
            -2.0 * n.z * n.x,
            -2.0 * n.z * n.y,
            1.0 - 2.0 * n.z * n.z,
            -2.0 * n.z * p.d,
            0.0,
            0.0,
            0.0,
            1.0};
}

matrix4 util::makeViewMatrix(const vector3& position, const quaternion& orientation, const matrix4* reflection)
{
    // The inverse of a rigid motion: the transposed rotation, and the position moved back through it.
    matrix3 rotation;
    orientation.ToRotationMatrix(rotation);
    const matrix3 turn_back = rotation.Transpose();
    matrix4 view(turn_back);
    view.setTrans(-(turn_back * position));
    return reflection != nullptr ? view * *reflection : view;
}

double util::boundingRadiusFromAABB(const axisAlignedBox& box)
{
    vector3 farthest = box.getMaximum();
    farthest.makeCeil(-box.getMaximum());
    farthest.makeCeil(box.getMinimum());
    farthest.makeCeil(-box.getMinimum());
    return farthest.length();
}
} // namespace savrent::cc::math
