/**
 * @file math_benchmark.cpp
 * Each operation of the math library beside the same operation of Eigen.
 *
 * Both sides run the same loop over the same random values, so that nothing is folded at compile time,
 * and hand each result to the same barrier, so that nothing is left out.
 */
#include <array>
#include <cstddef>
#include <random>

#include <Eigen/Dense>
#include <benchmark/benchmark.h>

#include "savrent/cc/math/matrix3.h"
#include "savrent/cc/math/matrix4.h"
#include "savrent/cc/math/quaternion.h"
#include "savrent/cc/math/vector3.h"

namespace
{
namespace math = savrent::cc::math;

constexpr std::size_t count = 256;

/** The same inputs in the types of both libraries. */
template <typename Ours, typename Theirs>
struct inputs
{
    std::array<Ours, count> ours;
    std::array<Theirs, count> theirs;
};

std::mt19937_64 generator(20240611);

double number()
{
    return std::uniform_real_distribution<double>(-1.0, 1.0)(generator);
}

inputs<math::vector3, Eigen::Vector3d> vectors()
{
    inputs<math::vector3, Eigen::Vector3d> in;
    for (std::size_t i = 0; i < count; ++i)
    {
        in.theirs[i] = {number(), number(), number()};
        in.ours[i] = math::vector3(in.theirs[i].data());
    }
    return in;
}

inputs<math::quaternion, Eigen::Quaterniond> quaternions()
{
    inputs<math::quaternion, Eigen::Quaterniond> in;
    for (std::size_t i = 0; i < count; ++i)
    {
        Eigen::Quaterniond& q = in.theirs[i] = Eigen::Quaterniond(number(), number(), number(), number());
        q.normalize();
        in.ours[i] = {q.w(), q.x(), q.y(), q.z()};
    }
    return in;
}

/** Row-major on both sides of the copy, column-major as usual in Eigen's own type. */
template <typename Ours, typename Theirs>
void copy(const Theirs& from, Ours& to)
{
    for (Eigen::Index r = 0; r < from.rows(); ++r)
        for (Eigen::Index c = 0; c < from.cols(); ++c)
            to[static_cast<std::size_t>(r)][c] = from(r, c);
}

enum class kind
{
    plain,
    symmetric,
    rotation,
    affine
};

template <typename Ours, typename Theirs>
inputs<Ours, Theirs> matrices(kind k)
{
    inputs<Ours, Theirs> in;
    for (std::size_t i = 0; i < count; ++i)
    {
        Theirs m = Theirs::NullaryExpr([] { return number(); });
        if (k == kind::symmetric)
            m = (m + m.transpose()).eval();
        if (k == kind::rotation)
        {
            m = Eigen::HouseholderQR<Theirs>(m).householderQ();
            m.col(0) *= m.determinant();
        }
        if (k == kind::affine)
        {
            m.bottomRows(1).setZero();
            m(m.rows() - 1, m.cols() - 1) = 1.0;
        }
        in.theirs[i] = m;
        copy(m, in.ours[i]);
    }
    return in;
}

/** Runs an operation over pairs of neighbours. */
template <typename Values, typename Operation>
void run(benchmark::State& state, const Values& values, Operation operation)
{
    std::size_t i = 0;
    for (auto _ : state)
    {
        auto result = operation(values[i], values[(i + 1) % count], i);
        benchmark::DoNotOptimize(result);
        i = (i + 1) % count;
    }
}

template <typename Inputs, typename Ours, typename Theirs>
void pair_of_rows(const std::string& name, const Inputs& in, Ours ours, Theirs theirs)
{
    benchmark::RegisterBenchmark((name + "/ours").c_str(),
                                 [in, ours](benchmark::State& state) { run(state, in.ours, ours); });
    benchmark::RegisterBenchmark((name + "/eigen").c_str(),
                                 [in, theirs](benchmark::State& state) { run(state, in.theirs, theirs); });
}

void matrix4_rows()
{
    using m4 = math::matrix4;
    using e4 = Eigen::Matrix4d;
    const auto plain = matrices<m4, e4>(kind::plain);
    const auto affine = matrices<m4, e4>(kind::affine);
    pair_of_rows(
        "matrix4_product", plain, [](const m4& a, const m4& b, std::size_t) { return a * b; },
        [](const e4& a, const e4& b, std::size_t) { return e4(a * b); });
    pair_of_rows(
        "matrix4_inverse", plain, [](const m4& a, const m4&, std::size_t) { return a.inverse(); },
        [](const e4& a, const e4&, std::size_t) { return e4(a.inverse()); });
    pair_of_rows(
        "matrix4_inverse_affine", affine, [](const m4& a, const m4&, std::size_t) { return a.inverseAffine(); },
        [](const e4& a, const e4&, std::size_t) { return Eigen::Affine3d(a).inverse(Eigen::Affine).matrix().eval(); });
}

void matrix3_rows()
{
    using m3 = math::matrix3;
    using e3 = Eigen::Matrix3d;
    const auto plain = matrices<m3, e3>(kind::plain);
    const auto symmetric = matrices<m3, e3>(kind::symmetric);
    const auto rotations = matrices<m3, e3>(kind::rotation);
    const auto v = vectors();
    pair_of_rows(
        "matrix3_times_vector3", plain,
        [v = v.ours](const m3& a, const m3&, std::size_t i) { return math::vector3(a * v[i]); },
        [v = v.theirs](const e3& a, const e3&, std::size_t i) { return Eigen::Vector3d(a * v[i]); });
    pair_of_rows(
        "euler_zyx_to_matrix3", v,
        [](const math::vector3& a, const math::vector3&, std::size_t)
        {
            m3 result;
            result.FromEulerAnglesZYX(math::radian(a.x), math::radian(a.y), math::radian(a.z));
            return result;
        },
        [](const Eigen::Vector3d& a, const Eigen::Vector3d&, std::size_t)
        {
            return e3(Eigen::AngleAxisd(a.x(), Eigen::Vector3d::UnitZ()) *
                      Eigen::AngleAxisd(a.y(), Eigen::Vector3d::UnitY()) *
                      Eigen::AngleAxisd(a.z(), Eigen::Vector3d::UnitX()));
        });
    pair_of_rows(
        "euler_zyx_from_matrix3", rotations,
        [](const m3& a, const m3&, std::size_t)
        {
            math::radian z, y, x;
            a.ToEulerAnglesZYX(z, y, x);
            return math::vector3(z.valueRadians(), y.valueRadians(), x.valueRadians());
        },
        [](const e3& a, const e3&, std::size_t) { return Eigen::Vector3d(a.eulerAngles(2, 1, 0)); });
    pair_of_rows(
        "singular_values_3x3", plain,
        [](const m3& a, const m3&, std::size_t)
        {
            struct
            {
                m3 left, right;
                math::vector3 values;
            } svd;
            a.SingularValueDecomposition(svd.left, svd.values, svd.right);
            return svd;
        },
        [](const e3& a, const e3&, std::size_t)
        { return Eigen::JacobiSVD<e3>(a, Eigen::ComputeFullU | Eigen::ComputeFullV); });
    pair_of_rows(
        "symmetric_eigen_3x3", symmetric,
        [](const m3& a, const m3&, std::size_t)
        {
            struct
            {
                double values[3];
                math::vector3 vectors[3];
            } eigen;
            a.EigenSolveSymmetric(eigen.values, eigen.vectors);
            return eigen;
        },
        [](const e3& a, const e3&, std::size_t) { return Eigen::SelfAdjointEigenSolver<e3>(a); });
}

void quaternion_rows()
{
    using q = math::quaternion;
    using eq = Eigen::Quaterniond;
    const auto unit = quaternions();
    const auto v = vectors();
    pair_of_rows(
        "quaternion_product", unit, [](const q& a, const q& b, std::size_t) { return a * b; },
        [](const eq& a, const eq& b, std::size_t) { return a * b; });
    pair_of_rows(
        "quaternion_times_vector3", unit, [v = v.ours](const q& a, const q&, std::size_t i) { return a * v[i]; },
        [v = v.theirs](const eq& a, const eq&, std::size_t i) { return Eigen::Vector3d(a * v[i]); });
    pair_of_rows(
        "slerp", unit,
        [](const q& a, const q& b, std::size_t i) { return q::Slerp(static_cast<double>(i) / count, a, b, true); },
        [](const eq& a, const eq& b, std::size_t i) { return a.slerp(static_cast<double>(i) / count, b); });
    pair_of_rows(
        "matrix3_from_quaternion", unit,
        [](const q& a, const q&, std::size_t)
        {
            math::matrix3 m;
            a.ToRotationMatrix(m);
            return m;
        },
        [](const eq& a, const eq&, std::size_t) { return a.toRotationMatrix(); });
}
} // namespace

int main(int argc, char** argv)
{
    matrix4_rows();
    matrix3_rows();
    quaternion_rows();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
