// Conversions of joints and poses through the exported functions, over a simulated control box with its 1 kHz frame
// stream: what a solve costs once connection, robot check and tool stand around it.

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include <benchmark/benchmark.h>

#include "benchmarks/connection/server_process.h"
#include "qorin/qorin_api_rpc_client.h"
#include "tests/support/loopback.h"

namespace
{
constexpr std::size_t joint_count = 6;
constexpr unsigned int trajectory_points = 1000;

using joint_array = std::array<double, joint_count>;

struct sample
{
    joint_array joints;
    joint_array reference; ///< up to 5 degrees off
    std::array<double, 3> position;
    std::array<double, 3> orientation;
};

unsigned int g_cbox_id = 0;
unsigned int g_robot_id[32] = {}; // a command reads 128 bytes from an output

void require(const char* step, QORIN_API_RESULT result)
{
    if (result == QORIN_API_RESULT_OK)
        return;
    std::fprintf(stderr, "%s: %s\n", step, qorin_system_api_result_string_get(result));
    std::exit(1);
}

void make_robot(const std::filesystem::path& directory, const std::string& address)
{
    const std::string config = directory / "config.ini";
    std::ofstream(config) << "[client]\nlog_save_path=./log\nlog_print_out=off\nkinematics_path="
                          << QORIN_KINEMATICS_DIRECTORY << "\n";
    setenv("SAVRENT_V3", directory.c_str(), 1);
    const char text[128] = "conversion benchmark";
    require("connect", qorin_rpc_system_cbox_connect(config.c_str(), address.c_str(), &g_cbox_id));
    require("create system", qorin_rpc_gen_system_create(g_cbox_id, text, QORIN_CBOX_MODEL_3GEN_SIM));
    require("take control", qorin_rpc_system_control_take(g_cbox_id));
    require("create robot", qorin_rpc_robot_create(g_cbox_id, QORIN_ROBOT_MODEL_ARM_G, text, 0, g_robot_id));
    std::this_thread::sleep_for(std::chrono::milliseconds(50)); // a few frames with the robot in them
}

/// Poses of the flange of random joints, which all have a solution.
const std::vector<sample>& samples()
{
    static const std::vector<sample> made = []
    {
        std::mt19937_64 random(1);
        std::uniform_real_distribution angle(-90.0, 90.0);
        std::uniform_real_distribution difference(-5.0, 5.0);
        std::vector<sample> list(1024);
        for (sample& s : list)
        {
            for (std::size_t j = 0; j < joint_count; ++j)
            {
                s.joints[j] = angle(random);
                s.reference[j] = s.joints[j] + difference(random);
            }
            require("forward", qorin_rpc_robot_util_joint_angle_to_pose_convert(
                                   g_cbox_id, g_robot_id[0], QORIN_POSE_TYPE_FLANGE, s.joints.data(), s.position.data(),
                                   s.orientation.data()));
        }
        return list;
    }();
    return made;
}

/// One conversion per iteration, over all samples in turn.
template <class Convert>
void run_over_samples(benchmark::State& state, Convert&& convert)
{
    std::size_t i = 0;
    for ([[maybe_unused]] auto _ : state)
    {
        if (convert(samples()[i]) != QORIN_API_RESULT_OK)
            state.SkipWithError("no solution");
        i = (i + 1) % samples().size();
    }
}

void forward(benchmark::State& state, QORIN_POSE_TYPE type)
{
    std::array<double, 3> position = {};
    std::array<double, 3> orientation = {};
    run_over_samples(state,
                     [&](const sample& s)
                     {
                         return qorin_rpc_robot_util_joint_angle_to_pose_convert(
                             g_cbox_id, g_robot_id[0], type, s.joints.data(), position.data(), orientation.data());
                     });
}
BENCHMARK_CAPTURE(forward, flange, QORIN_POSE_TYPE_FLANGE);
BENCHMARK_CAPTURE(forward, tcp, QORIN_POSE_TYPE_TCP);

void inverse(benchmark::State& state, QORIN_POSE_TYPE type)
{
    joint_array found = {};
    run_over_samples(state,
                     [&](const sample& s)
                     {
                         return qorin_rpc_robot_util_pose_to_joint_angle_convert(g_cbox_id, g_robot_id[0], type,
                                                                                 s.reference.data(), s.position.data(),
                                                                                 s.orientation.data(), found.data());
                     });
}
BENCHMARK_CAPTURE(inverse, flange, QORIN_POSE_TYPE_FLANGE);
BENCHMARK_CAPTURE(inverse, tcp, QORIN_POSE_TYPE_TCP);

void inverse_all_eight(benchmark::State& state)
{
    std::array<double, 8 * joint_count> solutions = {};
    bool valid[8] = {};
    run_over_samples(state,
                     [&](const sample& s)
                     {
                         return qorin_rpc_robot_util_pose_to_joint_all_possible_angle_convert(
                             g_cbox_id, g_robot_id[0], s.position.data(), s.orientation.data(), solutions.data(),
                             valid);
                     });
}
BENCHMARK(inverse_all_eight);

void trajectory_of_1000_points(benchmark::State& state)
{
    std::vector<double> x(trajectory_points);
    std::vector<double> y(trajectory_points);
    std::vector<double> z(trajectory_points);
    run_over_samples(state,
                     [&](const sample& s)
                     {
                         return qorin_rpc_robot_util_position_trajectory_get(
                             g_cbox_id, g_robot_id[0], joint_count, s.joints.data(), s.reference.data(),
                             trajectory_points, QORIN_POSE_TYPE_TCP, x.data(), y.data(), z.data());
                     });
}
BENCHMARK(trajectory_of_1000_points)->Unit(benchmark::kMicrosecond);
} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    std::string directory = (std::filesystem::temp_directory_path() / "qorin_benchmark_XXXXXX").string();
    if (mkdtemp(directory.data()) == nullptr)
        return 1;
    const std::string address = test_support::own_address();
    const benchmark_support::server_process server(address, 1000.0);
    make_robot(directory, address);
    benchmark::RunSpecifiedBenchmarks();
    std::filesystem::remove_all(directory);
    return 0;
}
