// The layer in C++ beside the same calls of the C interface, over the same connection.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <unistd.h>

#include "benchmarks/connection/server_process.h"
#include "qorin/qorin.hpp"
#include "qorin/qorin_api_rpc_client.h"

namespace
{
using clock_type = std::chrono::steady_clock;

constexpr int rounds = 401; ///< in turns, so that whatever else the machine does falls on both
double g_sum = 0;           ///< of what the calls give, so that none is left out

/// Median nanoseconds of one of `count` calls.
template <class Call>
void measure(std::vector<double>& times, int count, Call&& call)
{
    const auto begin = clock_type::now();
    for (int i = 0; i < count; ++i)
        call();
    times.push_back(std::chrono::duration<double, std::nano>(clock_type::now() - begin).count() / count);
}

double median(std::vector<double>& times)
{
    std::ranges::nth_element(times, times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2));
    return times[times.size() / 2];
}

template <class InC, class InLayer>
void compare(const char* what, int count, const char* aim, InC&& in_c, InLayer&& in_layer)
{
    std::vector<double> of_c;
    std::vector<double> of_layer;
    for (int round = 0; round < rounds; ++round)
    {
        measure(of_c, count, in_c);
        measure(of_layer, count, in_layer);
    }
    const double c = median(of_c);
    const double layer = median(of_layer);
    std::printf("%-34s %12.1f %12.1f %8.3f %8s\n", what, c, layer, layer / c, aim);
    std::fflush(stdout);
}

void benchmark_getters(unsigned int box, unsigned int id, const qorin::robot& robot)
{
    constexpr int reads = 5000;
    compare(
        "  joint angle", reads, "1.05",
        [&]
        {
            double angle = 0;
            if (qorin_rpc_robot_joint_angle_actual_get(box, id, 1, &angle) == QORIN_API_RESULT_OK)
                g_sum += angle;
        },
        [&]
        {
            if (const auto angle = robot.joint_deg(1))
                g_sum += *angle;
        });
    compare(
        "  six joint angles", reads, "1.05",
        [&]
        {
            double angles[6] = {};
            for (unsigned int joint = 0; joint < 6; ++joint)
                if (qorin_rpc_robot_joint_angle_actual_get(box, id, joint, &angles[joint]) != QORIN_API_RESULT_OK)
                    return;
            g_sum += angles[5];
        },
        [&]
        {
            if (const auto angles = robot.joints())
                g_sum += (*angles)[5];
        });
    compare(
        "  pose of the TCP", reads, "1.05",
        [&]
        {
            double x = 0, y = 0, z = 0, rx = 0, ry = 0, rz = 0;
            if (qorin_rpc_robot_tcp_pose_actual_get(box, id, &x, &y, &z, &rx, &ry, &rz) == QORIN_API_RESULT_OK)
                g_sum += x + rz;
        },
        [&]
        {
            if (const auto pose = robot.tcp())
                g_sum += pose->x_mm + pose->rz_deg;
        });
}

void benchmark_commands(unsigned int id, const qorin::cbox& box)
{
    constexpr int commands = 20;
    compare(
        "  question", commands, "",
        [&]
        {
            QORIN_SWITCH controllable[32] = {};
            if (qorin_rpc_system_controllable_get(id, controllable) == QORIN_API_RESULT_OK)
                g_sum += controllable[0] == QORIN_SWITCH_ON;
        },
        [&]
        {
            if (const auto mine = box.in_control())
                g_sum += *mine;
        });
    compare(
        "  two texts and four values", commands, "",
        [&]
        {
            const char name[128] = "benchmark";
            const char none[128] = "";
            g_sum += qorin_rpc_set_user_memory(id, name, QORIN_USER_DATA_TYPE_DOUBLE, 0, none, 0, 1.5, 0) ==
                     QORIN_API_RESULT_OK;
        },
        [&] { g_sum += box.memory().set("benchmark", 1.5).has_value(); });
}
} // namespace

int main()
{
    std::string directory = (std::filesystem::temp_directory_path() / "qorin_benchmark_XXXXXX").string();
    if (mkdtemp(directory.data()) == nullptr)
        return 1;
    const std::string address =
        "127." + std::to_string(64 + getpid() % 64) + "." + std::to_string(getpid() >> 8 & 255) + ".9";
    const benchmark_support::server_process server(address, 1000);
    const auto box = qorin::cbox::connect(address, {.log_directory = directory}).value();
    box.create_system(QORIN_CBOX_MODEL_3GEN_SIM).value();
    const auto control = box.take_control().value();
    const auto robot = box.create_robot(QORIN_ROBOT_MODEL_ARM_C).value();

    std::printf("%-34s %12s %12s %8s %8s\n", "ns a call, median", "C", "layer", "ratio", "aim");
    benchmark_getters(box.id().number, robot.id().number, robot);
    benchmark_commands(box.id().number, box);
    std::printf("%-34s %12.0f\n", "(sum)", g_sum);
    std::filesystem::remove_all(directory);
}
