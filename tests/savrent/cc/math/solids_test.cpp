#include <sstream>

#include "math_test_support.h"
#include "savrent/cc/math/axisAlignedBox.h"
#include "savrent/cc/math/plane.h"
#include "savrent/cc/math/planeBoundedVolume.h"
#include "savrent/cc/math/ray.h"
#include "savrent/cc/math/sphere.h"

using namespace math_test;
using math::axisAlignedBox;
using math::plane;
using math::planeBoundedVolume;
using math::ray;
using math::sphere;
using math::util;
using math::vector2;
using math::vector3;
using hit = std::pair<bool, double>;

namespace
{
const axisAlignedBox unit_box(0, 0, 0, 1, 1, 1);

planeBoundedVolume volume_of(const axisAlignedBox& box)
{
    planeBoundedVolume volume(plane::POSITIVE_SIDE);
    for (const vector3& n : {vector3::UNIT_X, vector3::UNIT_Y, vector3::UNIT_Z})
    {
        volume.planes.emplace_back(n, box.getMaximum());
        volume.planes.emplace_back(-n, box.getMinimum());
    }
    return volume;
}
} // namespace

TEST(plane, keeps_the_sign_of_its_constant)
{
    EXPECT_EQ(plane(vector3::UNIT_Z, 5.0).d, -5.0);
    EXPECT_EQ(plane(0, 0, 1, 5).d, 5.0);
    EXPECT_EQ(plane(vector3::UNIT_Z, vector3(7, 8, 5)), plane(vector3::UNIT_Z, 5.0));
    EXPECT_EQ(plane({0, 0, 5}, {2, 0, 5}, {0, 3, 5}), plane(vector3::UNIT_Z, 5.0));
    const plane p(vector3::UNIT_Z, 5.0);
    EXPECT_EQ(p.getSide({9, 9, 5}), 0);
    EXPECT_EQ(p.getSide({9, 9, 6}), 1);
    EXPECT_EQ(p.getSide({9, 9, 4}), 2);
    EXPECT_EQ(p.getSide(axisAlignedBox(0, 0, 4, 1, 1, 6)), 3);
    EXPECT_EQ(p.getSide(axisAlignedBox(0, 0, 5, 1, 1, 6)), 3) << "touching";
    EXPECT_EQ(p.getSide(axisAlignedBox::BOX_NULL), 0);
    EXPECT_EQ(p.getSide(axisAlignedBox::BOX_INFINITE), 3);
    EXPECT_EQ(p.projectVector({1, 2, 3}), vector3(1, 2, 0));
    plane doubled(0, 0, 2, -10);
    EXPECT_EQ(doubled.normalise(), 2.0);
    EXPECT_EQ(doubled, p);
    EXPECT_EQ((-p).getDistance({0, 0, 6}), -1.0);
    EXPECT_TRUE(plane().isZero() && plane().normalise() == 0.0);
    std::ostringstream out;
    out << p << unit_box << axisAlignedBox() << axisAlignedBox::BOX_INFINITE;
    EXPECT_EQ(out.str(), "Plane(normal=Vector3(0, 0, 1), d=-5)AxisAlignedBox(min=Vector3(0, 0, 0), max=Vector3(1, 1, "
                         "1))AxisAlignedBox(null)AxisAlignedBox(infinite)");
}

TEST(axis_aligned_box, tells_null_finite_and_infinite_apart)
{
    axisAlignedBox box;
    EXPECT_TRUE(box.isNull() && box.getMinimum() == vector3(-0.5) && box.getMaximum() == vector3(0.5));
    EXPECT_EQ(box.volume(), 0.0);
    EXPECT_EQ(axisAlignedBox::BOX_INFINITE.volume(), util::POS_INFINITY);
    box.merge(vector3(1, 2, 3));
    EXPECT_EQ(box, axisAlignedBox(1, 2, 3, 1, 2, 3)) << "a point";
    box.merge(vector3(0, 4, 3));
    box.merge(axisAlignedBox::BOX_NULL);
    EXPECT_EQ(box, axisAlignedBox(0, 2, 3, 1, 4, 3));
    box.merge(axisAlignedBox::BOX_INFINITE);
    EXPECT_EQ(box, axisAlignedBox::BOX_INFINITE) << "whatever the corners hold";
    EXPECT_TRUE(axisAlignedBox().contains(axisAlignedBox()) && !axisAlignedBox().contains(unit_box));
    EXPECT_TRUE(axisAlignedBox::BOX_INFINITE.contains(axisAlignedBox::BOX_INFINITE));
    EXPECT_TRUE(!unit_box.contains(axisAlignedBox::BOX_INFINITE) && unit_box.contains(unit_box));
    EXPECT_TRUE(unit_box.contains(vector3(1, 1, 0)) && !unit_box.contains(vector3(1, 1, -1e-12)));
    EXPECT_EQ(unit_box.squaredDistance({2, 0.5, -2}), 5.0);
    EXPECT_EQ(axisAlignedBox().distance({2, 0.5, -2}), util::POS_INFINITY);
}

TEST(axis_aligned_box, touching_boxes_intersect_in_a_null_box)
{
    const axisAlignedBox beside(1, 0, 0, 2, 1, 1);
    EXPECT_TRUE(unit_box.intersects(beside));
    EXPECT_TRUE(unit_box.intersection(beside).isNull());
    EXPECT_EQ(unit_box.intersection(axisAlignedBox(0.5, -1, 0.25, 2, 2, 2)), axisAlignedBox(0.5, 0, 0.25, 1, 1, 1));
    EXPECT_EQ(unit_box.intersection(axisAlignedBox::BOX_INFINITE), unit_box);
    EXPECT_FALSE(axisAlignedBox::BOX_INFINITE.intersects(axisAlignedBox()));
}

TEST(axis_aligned_box, corners_and_transforms_agree)
{
    random_source random;
    for (int i = 0; i < rounds; ++i)
    {
        axisAlignedBox box;
        box.merge(random.vector());
        box.merge(random.vector());
        const math::matrix4 m = random.affine();
        SCOPED_TRACE(testing::Message() << box << m);
        axisAlignedBox hull;
        const vector3* const corners = box.getAllCorners();
        for (int k = 0; k < 8; ++k)
            hull.merge(m * corners[k]);
        axisAlignedBox transformed = box;
        transformed.transform(m);
        EXPECT_EQ(transformed, hull);
        axisAlignedBox fast = box;
        fast.transformAffine(m);
        EXPECT_TRUE(close(fast.getMinimum(), hull.getMinimum()) && close(fast.getMaximum(), hull.getMaximum()));
    }
    const vector3 corners[] = {{0, 0, 0}, {0, 1, 0}, {1, 1, 0}, {1, 0, 0}, {1, 1, 1}, {0, 1, 1}, {0, 0, 1}, {1, 0, 1}};
    for (unsigned int k = 0; k < 8; ++k)
        EXPECT_EQ(unit_box.getCorner(static_cast<axisAlignedBox::CornerEnum>(k)), corners[k]) << k;
    EXPECT_EQ(axisAlignedBox(1, 1, 1, 2, 2, 2).getCorner(static_cast<axisAlignedBox::CornerEnum>(8)), vector3::ZERO);
    axisAlignedBox copy = unit_box;
    EXPECT_NE(copy.getAllCorners(), unit_box.getAllCorners()) << "each box owns its corners";
}

TEST(sphere, merges_to_the_smallest_sphere_around_both)
{
    sphere s({0, 0, 0}, 1);
    s.merge({{4, 0, 0}, 2});
    EXPECT_TRUE(s.getCenter() == vector3(2.5, 0, 0) && s.getRadius() == 3.5);
    s.merge({{2, 0, 0}, 1});
    EXPECT_EQ(s.getRadius(), 3.5) << "it is inside";
    s.merge({{0, 0, 0}, 9});
    EXPECT_TRUE(s.getCenter() == vector3::ZERO && s.getRadius() == 9.0);
    const sphere ball;
    EXPECT_TRUE(ball.intersects(vector3::UNIT_X) && ball.intersects(sphere({3, 0, 0}, 2)));
    EXPECT_TRUE(ball.intersects(plane(vector3::UNIT_X, 1.0)) && !ball.intersects(plane(vector3::UNIT_X, 1.01)));
    EXPECT_TRUE(ball.intersects(axisAlignedBox(1, 0, 0, 2, 2, 2)));
    EXPECT_FALSE(ball.intersects(axisAlignedBox(0.8, 0.8, 0, 2, 2, 2)));
}

TEST(ray_hits, planes_and_spheres_at_their_ties)
{
    const ray along_x(vector3::ZERO, vector3::UNIT_X);
    EXPECT_EQ(along_x.intersects(plane(vector3::UNIT_X, 3.0)), hit(true, 3.0));
    EXPECT_EQ(along_x.intersects(plane(vector3::UNIT_X, -3.0)), hit(false, -3.0)) << "the distance is given anyway";
    EXPECT_EQ(along_x.intersects(plane(vector3::UNIT_Y, 0.0)), hit(false, 0.0)) << "it runs along the plane";
    EXPECT_TRUE(along_x.intersects(plane(vector3::UNIT_X, 0.0)).first) << "it starts on the plane";
    EXPECT_EQ(along_x.intersects(sphere({3, 0, 0}, 1)), hit(true, 2.0));
    EXPECT_EQ(along_x.intersects(sphere({3, 1, 0}, 1)), hit(true, 3.0)) << "it grazes";
    EXPECT_EQ(along_x.intersects(sphere({3, 1.1, 0}, 1)), hit(false, 0.0));
    EXPECT_EQ(along_x.intersects(sphere()), hit(true, 0.0));
    EXPECT_EQ(util::intersects(along_x, sphere(), false), hit(true, 1.0)) << "out from inside";
    EXPECT_EQ(along_x.intersects(sphere({-3, 0, 0}, 1)), hit(true, -2.0)) << "behind, and a hit all the same";
    EXPECT_EQ(along_x * 2.0, vector3(2, 0, 0));
    EXPECT_EQ(ray().getDirection(), vector3::UNIT_Z);
}

TEST(ray_hits, box_forms_agree)
{
    random_source random;
    const planeBoundedVolume volume = volume_of(unit_box);
    const std::list<plane> planes(volume.planes.begin(), volume.planes.end());
    int hits = 0;
    for (int i = 0; i < rounds; ++i)
    {
        const ray r(random.vector(), random.vector());
        SCOPED_TRACE(testing::Message() << r.getOrigin() << r.getDirection());
        const hit faces = r.intersects(unit_box);
        double entry = 0.0;
        double exit = 0.0;
        ASSERT_EQ(util::intersects(r, unit_box, &entry, &exit), faces.first);
        ASSERT_EQ(r.intersects(volume).first, faces.first);
        ASSERT_EQ(util::intersects(r, planes, true).first, faces.first);
        if (faces.first)
        {
            ++hits;
            EXPECT_NEAR(entry, faces.second, 1e-12);
            EXPECT_NEAR(r.intersects(volume).second, faces.second, 1e-12);
            EXPECT_NEAR(unit_box.distance(r.getPoint(exit)), 0.0, 1e-12);
            EXPECT_FALSE(unit_box.contains(r.getPoint(exit + 1e-6)));
        }
    }
    EXPECT_GT(hits, rounds / 20);
    EXPECT_EQ(ray({0, 0, -1}, vector3::UNIT_Z).intersects(unit_box), hit(true, 1.0)) << "along an edge";
    EXPECT_EQ(ray({0, 0.5, 0.5}, vector3::UNIT_X).intersects(unit_box), hit(true, 0.0)) << "from a face inwards";
    EXPECT_FALSE(ray({1, 0.5, 0.5}, vector3::UNIT_X).intersects(unit_box).first) << "from a face outwards";
    EXPECT_EQ(ray().intersects(axisAlignedBox::BOX_INFINITE), hit(true, 0.0));
    EXPECT_FALSE(ray().intersects(axisAlignedBox()).first);
}

TEST(triangles, rays_and_points)
{
    const vector3 a(0, 0, 0), b(1, 0, 0), c(0, 1, 0);
    random_source random;
    for (int i = 0; i < rounds; ++i)
    {
        const vector2 p(random.number(-0.5, 1.5), random.number(-0.5, 1.5));
        const bool inside = p.x >= 0.0 && p.y >= 0.0 && p.x + p.y <= 1.0;
        EXPECT_EQ(util::pointInTri2D(p, a.xy(), b.xy(), c.xy()), inside) << p;
        EXPECT_EQ(util::pointInTri2D(p, c.xy(), b.xy(), a.xy()), inside) << p;
        EXPECT_EQ(util::pointInTri3D({p.x, p.y, 0}, a, b, c, {0, 0, 3}), inside) << p;
        EXPECT_EQ(util::intersects(ray({p.x, p.y, 2}, {0, 0, -1}), a, b, c), inside ? hit(true, 2.0) : hit(false, 0.0))
            << p;
    }
    const ray from_below({0.25, 0.25, -2}, vector3::UNIT_Z);
    EXPECT_TRUE(util::intersects(from_below, a, b, c, false, true).first);
    EXPECT_FALSE(util::intersects(from_below, a, b, c, true, false).first);
    EXPECT_FALSE(util::intersects(ray({0.25, 0.25, 2}, vector3::UNIT_Z), a, b, c).first) << "behind";
    EXPECT_EQ(util::calculateFaceNormal({0, 0, 2}, {3, 0, 2}, {0, 3, 2}), math::vector4(0, 0, 1, -2));
    EXPECT_EQ(util::calculateFaceNormalWithoutNormalize({0, 0, 2}, {3, 0, 2}, {0, 3, 2}), math::vector4(0, 0, 9, -18));
    EXPECT_EQ(util::calculateTangentSpaceVector(a, b, c, 0, 0, 0, 2, 3, 0), vector3::UNIT_Y) << "u grows along y";
}

TEST(view_and_reflection, move_points_as_told)
{
    random_source random;
    for (int i = 0; i < rounds / 10; ++i)
    {
        const plane p(random.direction(), random.vector());
        const vector3 v = random.vector();
        const math::quaternion q = random.rotation();
        const vector3 eye = random.vector();
        SCOPED_TRACE(testing::Message() << p << v << q << eye);
        const math::matrix4 mirror = util::buildReflectionMatrix(p);
        EXPECT_NEAR(p.getDistance(mirror * v), -p.getDistance(v), 1e-12);
        EXPECT_TRUE(close(mirror * (mirror * v), v));
        const math::matrix4 view = util::makeViewMatrix(eye, q);
        EXPECT_TRUE(close(view * (eye + q * v), v));
        EXPECT_TRUE(close(util::makeViewMatrix(eye, q, &mirror) * v, view * (mirror * v)));
    }
    EXPECT_DOUBLE_EQ(util::boundingRadiusFromAABB({-3, 0, 0, 1, 4, 0}), 5.0);
}
