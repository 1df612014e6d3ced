#include "savrent/cc/math/util.h"

#include <cstddef>
#include <cstdlib>

namespace savrent::cc::math
{
namespace
{
/// The divisor of rand() is the smallest RAND_MAX that a C library may have.
constexpr int smallest_rand_max = 32767;

std::vector<double> sine_store;
std::vector<double> tangent_store;
} // namespace

util::angleUnit util::msAngleUnit = util::AU_DEGREE;
int util::mTrigTableSize = 0;
double util::mTrigTableFactor = 0.0;
double* util::mSinTable = nullptr;
double* util::mTanTable = nullptr;
util::randomValueProvider* util::mRandProvider = nullptr;

util::randomValueProvider::~randomValueProvider() = default;

void util::setAngleUnit(angleUnit unit)
{
    msAngleUnit = unit;
}

util::angleUnit util::getAngleUnit()
{
    return msAngleUnit;
}

double util::AngleUnitsToRadians(double units)
{
    return msAngleUnit == AU_DEGREE ? units * fDeg2Rad : units;
}

double util::RadiansToAngleUnits(double radians)
{
    return msAngleUnit == AU_DEGREE ? radians * fRad2Deg : radians;
}

double util::AngleUnitsToDegrees(double units)
{
    return msAngleUnit == AU_RADIAN ? units * fRad2Deg : units;
}

double util::DegreesToAngleUnits(double degrees)
{
    return msAngleUnit == AU_RADIAN ? degrees * fDeg2Rad : degrees;
}

void util::createTrigTables(int size)
{
    msAngleUnit = AU_DEGREE;
    mTrigTableSize = size;
    mTrigTableFactor = size / TWO_PI;
    if (size < 1)
    {
        destroyTrigTables();
        return;
    }
    const auto entries = static_cast<std::size_t>(size);
    if (sine_store.size() == entries)
        return;
    sine_store.resize(entries);
    // The remainder of a negative angle is negative, so the tangents reach as far below entry 0 as above it.
    tangent_store.resize(2 * entries - 1);
    mSinTable = sine_store.data();
    mTanTable = tangent_store.data() + (size - 1);
    buildTrigTables();
}

void util::buildTrigTables()
{
    if (mSinTable == nullptr)
        return;
    for (int i = 0; i < mTrigTableSize; ++i)
    {
        const double radians = i * TWO_PI / mTrigTableSize;
        mSinTable[i] = std::sin(radians);
        mTanTable[i] = std::tan(radians);
        mTanTable[-i] = std::tan(-radians);
    }
}

void util::destroyTrigTables()
{
    mSinTable = nullptr;
    mTanTable = nullptr;
    sine_store = {};
    tangent_store = {};
}

double util::SinTable(double radians)
{
    if (radians >= 0.0)
        return mSinTable[static_cast<int>(radians * mTrigTableFactor) % mTrigTableSize];
    return mSinTable[mTrigTableSize - static_cast<int>(-radians * mTrigTableFactor) % mTrigTableSize - 1];
}

double util::TanTable(double radians)
{
    return mTanTable[static_cast<int>(radians * mTrigTableFactor) % mTrigTableSize];
}

double util::UnitRandom()
{
    return mRandProvider != nullptr
               ? mRandProvider->getRandomUnit()
               : static_cast<double>(std::rand() / smallest_rand_max); // NOLINT(bugprone-integer-division)
}

void util::SetRandomValueProvider(randomValueProvider* provider)
{
    mRandProvider = provider;
}

double util::gaussianDistribution(double x, double offset, double scale)
{
    const double distance = x - offset;
    return std::exp(-(distance * distance) / (2.0 * scale * scale)) / (std::sqrt(TWO_PI) * scale);
}
} // namespace savrent::cc::math
