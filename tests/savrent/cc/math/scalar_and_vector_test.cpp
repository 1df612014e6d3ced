#include <cstdlib>
#include <limits>
#include <sstream>
#include <type_traits>

#include "math_test_support.h"
#include "savrent/cc/math/angle.h"
#include "savrent/cc/math/axisAlignedBox.h"
#include "savrent/cc/math/operations.h"
#include "savrent/cc/math/plane.h"
#include "savrent/cc/math/ray.h"
#include "savrent/cc/math/sphere.h"

using namespace math_test;
using math::degree;
using math::radian;
using math::util;
using math::vector2;
using math::vector3;
using math::vector4;

static_assert(std::is_trivially_copyable_v<vector2> && std::is_trivially_copyable_v<vector3>);
static_assert(std::is_trivially_copyable_v<math::quaternion> && std::is_trivially_copyable_v<math::matrix4>);
static_assert(std::is_trivially_copyable_v<math::plane> && std::is_trivially_copyable_v<math::sphere>);
static_assert(sizeof(vector3) == 3 * sizeof(double) && sizeof(math::matrix3) == 9 * sizeof(double));
static_assert(sizeof(math::sphere) == 4 * sizeof(double) && sizeof(math::ray) == 6 * sizeof(double));

namespace
{
template <typename T>
std::string text(const T& value)
{
    std::ostringstream out;
    out << value;
    return out.str();
}

struct fixed_provider : util::randomValueProvider
{
    double value = 0.25;
    double getRandomUnit() override { return value; }
};

/// Puts the process-wide settings back.
struct process_settings : testing::Test
{
    ~process_settings() override
    {
        util::destroyTrigTables();
        util::setAngleUnit(util::AU_DEGREE);
        util::SetRandomValueProvider(nullptr);
    }
};
} // namespace

TEST(angle_types, mix_units_by_converting_the_other_one)
{
    EXPECT_DOUBLE_EQ((degree(90) + radian(util::HALF_PI)).valueDegrees(), 180.0);
    EXPECT_DOUBLE_EQ((radian(util::PI) - degree(90)).valueRadians(), util::HALF_PI);
    degree d(10);
    d += radian(util::PI);
    EXPECT_DOUBLE_EQ(d.valueDegrees(), 190.0);
    d = radian(1.0);
    EXPECT_DOUBLE_EQ(radian(d).valueRadians(), 1.0);
    EXPECT_EQ((6.0 / degree(3.0)).valueDegrees(), 2.0);
    EXPECT_EQ((degree(3.0) * degree(2.0)).valueDegrees(), 6.0);
    EXPECT_TRUE(radian(1.0) < radian(2.0) && radian(1.0) != radian(2.0) && radian(2.0) >= radian(2.0));
    EXPECT_EQ(text(radian(1.5)) + text(degree(-2.0)), "Radian(1.5)Degree(-2)");
}

TEST_F(process_settings, angle_units_follow_the_unit_of_the_process)
{
    const math::angle half_turn(180.0);
    EXPECT_DOUBLE_EQ(radian(half_turn).valueRadians(), util::PI);
    EXPECT_DOUBLE_EQ(radian(util::PI).valueAngleUnits(), 180.0);
    util::setAngleUnit(util::AU_RADIAN);
    EXPECT_EQ(radian(half_turn).valueRadians(), 180.0);
    EXPECT_DOUBLE_EQ(degree(180.0).valueAngleUnits(), util::PI);
    EXPECT_DOUBLE_EQ(degree(math::angle(util::PI)).valueDegrees(), 180.0);
}

TEST(util, clamps_inverse_functions_against_noise)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const struct
    {
        double value, arc_cosine, arc_sine;
    } rows[] = {{2.0, 0.0, util::HALF_PI},        {1.0, 0.0, util::HALF_PI},
                {-1.0, util::PI, -util::HALF_PI}, {-2.0, util::PI, -util::HALF_PI},
                {nan, util::PI, -util::HALF_PI},  {0.5, std::acos(0.5), std::asin(0.5)}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(util::ACos(row.value).valueRadians(), row.arc_cosine) << row.value;
        EXPECT_EQ(util::ASin(row.value).valueRadians(), row.arc_sine) << row.value;
    }
    EXPECT_TRUE(util::realEqual(1.0, 1.5, 0.5));
    EXPECT_FALSE(util::realEqual(1.0, 1.5, 0.4999));
    EXPECT_EQ(util::Clamp(5, 0, 3) * 10 + util::Clamp(-5, 0, 3), 30);
    EXPECT_EQ(util::Clamp(1, 3, 2), 3) << "low wins over high";
    EXPECT_DOUBLE_EQ(util::LogN(3.0, 81.0), 4.0);
    EXPECT_DOUBLE_EQ(util::Log2(8.0), 3.0);
    EXPECT_NEAR(util::gaussianDistribution(3.0, 1.0, 2.0), 0.1209853622595717, 1e-15);
}

TEST_F(process_settings, random_values_without_a_provider_are_whole_numbers)
{
    std::srand(7);
    const int raw = std::rand();
    std::srand(7);
    EXPECT_EQ(util::UnitRandom(), static_cast<double>(raw / 32767));
    fixed_provider provider;
    util::SetRandomValueProvider(&provider);
    EXPECT_EQ(util::RangeRandom(2.0, 6.0), 3.0);
    EXPECT_EQ(util::SymmetricRandom(), -0.5);
}

TEST_F(process_settings, trigonometric_tables_take_the_entry_below_the_angle)
{
    constexpr int size = 1024;
    EXPECT_EQ(util::Sin(0.7, true), std::sin(0.7)) << "no tables yet";
    util::setAngleUnit(util::AU_RADIAN);
    util::createTrigTables(size);
    EXPECT_EQ(util::getAngleUnit(), util::AU_DEGREE);
    const double step = util::TWO_PI / size;
    EXPECT_EQ(util::Sin(100.5 * step, true), std::sin(100 * step));
    EXPECT_EQ(util::Sin(-100.5 * step, true), util::mSinTable[size - 100 - 1]);
    EXPECT_EQ(util::Sin((size + 3.5) * step, true), util::mSinTable[3]);
    EXPECT_EQ(util::Cos(0.3, true), util::SinTable(0.3 + util::HALF_PI));
    EXPECT_EQ(util::Tan(-0.3, true), -util::Tan(0.3, true));
    EXPECT_EQ(util::Sin(100.5 * step), std::sin(100.5 * step)) << "not asked for";
    util::createTrigTables(4 * size);
    EXPECT_NEAR(util::SinTable(6.2), std::sin(6.2), 2e-3);
    util::createTrigTables(-1);
    util::buildTrigTables();
    EXPECT_EQ(util::Sin(0.7, true), std::sin(0.7)) << "no tables any more";
}

TEST(vectors, compute_by_component)
{
    random_source random;
    for (int i = 0; i < rounds; ++i)
    {
        const vector3 a = random.vector();
        const vector3 b = random.vector();
        const double s = random.number();
        SCOPED_TRACE(text(a) + text(b) + std::to_string(s));
        const Eigen::Vector3d ea = reference(a);
        const Eigen::Vector3d eb = reference(b);
        EXPECT_TRUE(close(a.crossProduct(b), ea.cross(eb).eval()));
        EXPECT_NEAR(a.dotProduct(b), ea.dot(eb), 1e-13);
        EXPECT_TRUE(close(s / a, (s * ea.cwiseInverse()).eval()));
        EXPECT_TRUE(close(s - a, (Eigen::Vector3d::Constant(s) - ea).eval()));
        EXPECT_TRUE(close(a / b, ea.cwiseQuotient(eb).eval()));
        EXPECT_NEAR(a.angleBetween(b).valueRadians(), std::atan2(ea.cross(eb).norm(), ea.dot(eb)), 1e-7);
        EXPECT_NEAR(a.reflect(b.normalisedCopy()).length(), a.length(), 1e-13);
        const math::quaternion turn_to = a.getRotationTo(b);
        EXPECT_TRUE(close(turn_to * a.normalisedCopy(), b.normalisedCopy(), 1e-9));
        EXPECT_NEAR(a.perpendicular().dotProduct(a), 0.0, 1e-13);
        const vector4 c(a.x, a.y, a.z, s);
        EXPECT_TRUE(close(2.0 / c, (2.0 * reference(c).cwiseInverse()).eval()));
    }
    const int whole[] = {1, 2, 3, 4};
    EXPECT_EQ(vector4(whole), vector4(1, 2, 3, 4));
    vector4 point(0.0);
    point = vector3(1, 2, 3);
    EXPECT_EQ(text(point) + text(point.xyz()) + text(point.xy()), "Vector4(1, 2, 3, 1)Vector3(1, 2, 3)Vector2(1, 2)");
}

TEST(vectors, keep_their_behaviour_at_the_edges)
{
    vector3 zero;
    EXPECT_EQ(zero.normalise(), 0.0);
    EXPECT_EQ(zero.perpendicular(), vector3::ZERO);
    EXPECT_EQ(vector3::UNIT_X.perpendicular(), vector3::UNIT_X.crossProduct(vector3::UNIT_Y));
    EXPECT_EQ((vector3(1, -1, 2) / 0.0).y, util::NEG_INFINITY);
    EXPECT_TRUE(vector3(9e-7, 0, 0).isZeroLength());
    EXPECT_FALSE(vector2(1.1e-6, 0).isZeroLength());
    EXPECT_FALSE(vector3(1, 1, 3) < vector3(2, 2, 3));
    EXPECT_EQ(vector3(1e-4, 0, 0).angleBetween(vector3(1e-4, 0, 0)).valueRadians(),
              std::acos(1e-8 / 9.999999974752427e-07));
    EXPECT_EQ(vector2::UNIT_X.perpendicular(), vector2::UNIT_Y);
    EXPECT_DOUBLE_EQ(vector2::UNIT_X.angleTo(vector2::NEGATIVE_UNIT_Y).valueDegrees(), 270.0);
    EXPECT_TRUE(vector3::UNIT_X.positionCloses({1.5, 0, 0}, 0.2));
    EXPECT_FALSE(vector3::UNIT_X.positionCloses({1.5, 0, 0}, 0.19));
    EXPECT_TRUE(vector3::UNIT_X.directionEquals(vector3::UNIT_Y, degree(90)));
    const struct
    {
        vector3 v, axis;
    } axes[] = {{{3, 2, -1}, vector3::UNIT_X},          {{-3, 2, 1}, vector3::NEGATIVE_UNIT_X},
                {{2, -2, 1}, vector3::NEGATIVE_UNIT_Y}, {{2, 2, 2}, vector3::UNIT_Z},
                {{2, 1, 2}, vector3::UNIT_Z},           {{0, 0, 0}, vector3::NEGATIVE_UNIT_Z}};
    for (const auto& row : axes)
        EXPECT_EQ(row.v.primaryAxis(), row.axis) << row.v;
}

TEST_F(process_settings, opposite_vectors_turn_about_a_chosen_axis)
{
    EXPECT_TRUE(close(vector3::UNIT_X.getRotationTo({-1, 0, 0}) * vector3::UNIT_Z, vector3::UNIT_Z));
    EXPECT_TRUE(close(vector3::UNIT_Z.getRotationTo({0, 0, -1}, vector3::UNIT_X) * vector3::UNIT_X, vector3::UNIT_X));
    EXPECT_EQ(vector3::UNIT_Y.getRotationTo({0, 5, 0}), math::quaternion::IDENTITY);
    // Opposite begins at 1e-6 off in the cosine: 1.4 milliradians turn by PI, 1.5 by what is asked for.
    const math::quaternion about_y(radian(util::PI), vector3::UNIT_Y);
    EXPECT_EQ(vector3::UNIT_X.getRotationTo({-1, 0.0014, 0}, vector3::UNIT_Y), about_y);
    EXPECT_NEAR(vector3::UNIT_X.getRotationTo({-1, 0.0015, 0}, vector3::UNIT_Y).z, 1.0, 1e-6);
    fixed_provider quarter;
    util::SetRandomValueProvider(&quarter);
    // A quarter turn of the tilt axis y about z gives -x, about which z tilts to y.
    EXPECT_TRUE(close(vector3::UNIT_Z.randomDeviant(degree(90), vector3::UNIT_Y), vector3::UNIT_Y));
    const vector2 turned = vector2::UNIT_X.randomDeviant(degree(60)); // (2 * 0.25 - 1) of it
    EXPECT_NEAR(turned.angleTo(vector2::UNIT_X).valueDegrees(), 30.0, 1e-12);
}

TEST(operations, keep_their_types_and_bounds)
{
    EXPECT_EQ(math::lerp(10.0, 20.0, 0.1F), 10.0 * (1.0F - 0.1F) + 20.0 * 0.1F);
    EXPECT_TRUE(math::equals(0U, 1U, 2U) && math::equals(std::numeric_limits<int>::max(), 2147483645, 2));
    EXPECT_FALSE(math::equals(1, 4, 2));
    EXPECT_TRUE(math::iszero(-2, 2) && !math::isnotzero(0.5F, 0.5F));
    EXPECT_EQ(math::squareroot(17) + math::reciprocal_squareroot(4), 4);
    EXPECT_EQ(math::round_(-2.5F), -2.0F);
    EXPECT_EQ(math::round32(2.5F) * 100 + math::ceil32(1.1F) * 10 + math::floor32(1.9F), 321);
    EXPECT_EQ(math::min_(3, 1, 2) + math::max_(3, 1, 2), 4.0);
}
