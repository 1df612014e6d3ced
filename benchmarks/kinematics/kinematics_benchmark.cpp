#include <array>
#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include <benchmark/benchmark.h>

#include "kinematics/arm_models.h"
#include "kinematics/arm_solver.h"

#if defined(QORIN_BENCHMARK_WITH_KDL)
#include <kdl/chain.hpp>
#include <kdl/chainfksolverpos_recursive.hpp>
#include <kdl/chainiksolverpos_lma.hpp>
#include <kdl/chainiksolverpos_nr.hpp>
#include <kdl/chainiksolvervel_pinv.hpp>
#endif

// What a solve costs. Time is per pose; the aim for all eight solutions of a pose is 2 microseconds, and a tenth of a
// numeric solver's time for its one solution.
namespace
{
using namespace savrent::kinematics;

struct sample
{
    joint_array joints;
    joint_array reference; ///< Up to 5 degrees off: a seed that a numeric solver can do with.
    flange_pose pose;
};

const arm_model& arm()
{
    return *find_arm_model(QORIN_ROBOT_MODEL_ARM_G);
}

const std::vector<sample>& samples()
{
    static const std::vector<sample> made = []
    {
        std::mt19937_64 random(1);
        std::uniform_real_distribution unit(0.0, 1.0);
        const arm_solver solver(arm().table);
        std::vector<sample> list(1024);
        for (sample& s : list)
        {
            for (std::size_t j = 0; j < joint_count; ++j)
            {
                const joint_range& range = arm().joints[j];
                s.joints[j] = std::lerp(range.angle_min, range.angle_max, unit(random));
                s.reference[j] = s.joints[j] + 10.0 * unit(random) - 5.0;
            }
            s.pose = solver.forward(s.joints);
        }
        return list;
    }();
    return made;
}

/// Runs one solve per iteration over all samples in turn. A solve returns whether it succeeded.
template <typename solve>
void run_over_samples(benchmark::State& state, const solve& solve_one)
{
    std::size_t solved = 0;
    std::size_t i = 0;
    for ([[maybe_unused]] auto _ : state)
    {
        solved += solve_one(i) ? 1U : 0U;
        i = (i + 1) % samples().size();
    }
    state.counters["solved_percent"] = 100.0 * static_cast<double>(solved) / static_cast<double>(state.iterations());
}

void forward(benchmark::State& state)
{
    const arm_solver solver(arm().table);
    run_over_samples(state,
                     [&](std::size_t i)
                     {
                         benchmark::DoNotOptimize(solver.forward(samples()[i].joints));
                         return true;
                     });
}
BENCHMARK(forward);

void inverse_all_eight(benchmark::State& state)
{
    const arm_solver solver(arm().table);
    run_over_samples(state,
                     [&](std::size_t i)
                     {
                         const solution_set solutions = solver.inverse_all_solutions(samples()[i].pose);
                         benchmark::DoNotOptimize(&solutions);
                         return solutions.valid[0] || solutions.valid[2] || solutions.valid[4] || solutions.valid[6];
                     });
}
BENCHMARK(inverse_all_eight);

void inverse_near_reference(benchmark::State& state)
{
    const arm_solver solver(arm().table);
    run_over_samples(state, [&](std::size_t i)
                     { return solver.inverse(samples()[i].pose, samples()[i].reference).has_value(); });
}
BENCHMARK(inverse_near_reference);

#if defined(QORIN_BENCHMARK_WITH_KDL)
constexpr double metres = 1e-3; // per millimetre; the numeric solvers weigh lengths against radians
constexpr double radians = std::numbers::pi / 180.0;

KDL::Chain chain()
{
    KDL::Chain made;
    for (std::size_t j = 0; j < joint_count; ++j)
    {
        const dh_table& t = arm().table;
        made.addSegment(
            KDL::Segment(KDL::Joint(KDL::Joint::RotZ),
                         KDL::Frame::DH(t.a[j] * metres, t.alpha[j] * radians, t.d[j] * metres, t.theta[j] * radians)));
    }
    return made;
}

KDL::JntArray joints_of(const joint_array& values)
{
    KDL::JntArray joints(joint_count);
    for (std::size_t j = 0; j < joint_count; ++j)
        joints(static_cast<unsigned>(j)) = values[j] * radians;
    return joints;
}

struct kdl_sample
{
    KDL::JntArray joints;
    KDL::JntArray reference;
    KDL::Frame pose;
};

const std::vector<kdl_sample>& kdl_samples()
{
    static const std::vector<kdl_sample> made = []
    {
        std::vector<kdl_sample> list;
        for (const sample& s : samples())
        {
            const auto& [x, y, z] = s.pose.position;
            const auto& [rx, ry, rz] = s.pose.orientation;
            list.push_back({joints_of(s.joints), joints_of(s.reference),
                            KDL::Frame(KDL::Rotation::RPY(rx * radians, ry * radians, rz * radians),
                                       KDL::Vector(x * metres, y * metres, z * metres))});
        }
        return list;
    }();
    return made;
}

void kdl_forward(benchmark::State& state)
{
    const KDL::Chain arm_chain = chain();
    KDL::ChainFkSolverPos_recursive solver(arm_chain);
    double worst = 0.0;
    run_over_samples(state,
                     [&](std::size_t i)
                     {
                         KDL::Frame reached;
                         const bool solved = solver.JntToCart(kdl_samples()[i].joints, reached) >= 0;
                         benchmark::DoNotOptimize(&reached);
                         return solved;
                     });
    for (const kdl_sample& s : kdl_samples())
    {
        KDL::Frame reached;
        solver.JntToCart(s.joints, reached);
        worst = std::max(worst, (reached.p - s.pose.p).Norm());
    }
    state.counters["disagreement_mm"] = worst / metres; // near 0, or the two do not compute the same arm
}
BENCHMARK(kdl_forward);

void kdl_inverse_levenberg_marquardt(benchmark::State& state)
{
    const KDL::Chain arm_chain = chain();
    KDL::ChainIkSolverPos_LMA solver(arm_chain);
    KDL::JntArray found(joint_count);
    run_over_samples(state, [&](std::size_t i)
                     { return solver.CartToJnt(kdl_samples()[i].reference, kdl_samples()[i].pose, found) >= 0; });
}
BENCHMARK(kdl_inverse_levenberg_marquardt);

void kdl_inverse_newton_raphson(benchmark::State& state)
{
    const KDL::Chain arm_chain = chain();
    KDL::ChainFkSolverPos_recursive forward_solver(arm_chain);
    KDL::ChainIkSolverVel_pinv velocity_solver(arm_chain);
    KDL::ChainIkSolverPos_NR solver(arm_chain, forward_solver, velocity_solver);
    KDL::JntArray found(joint_count);
    run_over_samples(state, [&](std::size_t i)
                     { return solver.CartToJnt(kdl_samples()[i].reference, kdl_samples()[i].pose, found) >= 0; });
}
BENCHMARK(kdl_inverse_newton_raphson);
#endif
} // namespace

BENCHMARK_MAIN();
