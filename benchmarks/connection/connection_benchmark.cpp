// The library beside raw sockets, over the same simulated control box with its 1 kHz frame stream.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include "benchmarks/connection/raw_client.h"
#include "benchmarks/connection/server_process.h"
#include "protocol/chaser_datagram.h"
#include "qorin/qorin_api_rpc_client.h"

namespace
{
using benchmark_support::raw_client;
using clock_type = std::chrono::steady_clock;

constexpr double frame_rate = 1000.0;
constexpr int round_trips = 4000;
constexpr int alternations = 10;
constexpr auto receiving_time = std::chrono::seconds(10);

struct delays
{
    std::vector<double> microseconds;

    template <class Operation>
    void measure(int count, Operation&& operation)
    {
        for (int i = 0; i < count; ++i)
        {
            const auto begin = clock_type::now();
            operation();
            microseconds.push_back(std::chrono::duration<double, std::micro>(clock_type::now() - begin).count());
        }
    }

    [[nodiscard]] double quantile(double part)
    {
        std::sort(microseconds.begin(), microseconds.end());
        return microseconds[static_cast<std::size_t>(part * static_cast<double>(microseconds.size() - 1))];
    }
};

std::string own_address()
{
    const auto pid = static_cast<unsigned int>(getpid());
    return "127." + std::to_string(64 + (pid >> 16 & 63)) + "." + std::to_string(pid >> 8 & 255) + "." +
           std::to_string(pid & 255);
}

unsigned int connect_library(const std::string& directory, const std::string& address)
{
    std::ofstream(directory + "/config.ini")
        << "[client]\nlog_save_path=" << directory
        << "/log\nlog_print_out=off\nkinematics_path=" QORIN_KINEMATICS_DIRECTORY "\n";
    setenv("SAVRENT_V3", directory.c_str(), 1);
    unsigned int cbox_id = 0;
    if (qorin_rpc_system_cbox_connect((directory + "/config.ini").c_str(), address.c_str(), &cbox_id) !=
        QORIN_API_RESULT_OK)
    {
        std::fprintf(stderr, "cannot connect to the simulated control box at %s\n", address.c_str());
        std::exit(1);
    }
    return cbox_id;
}

/// Keeps this thread off the core that the connection may have pinned it to: both sides shall be scheduled alike.
void run_anywhere()
{
    cpu_set_t all;
    CPU_ZERO(&all);
    for (unsigned int core = 0; core < std::thread::hardware_concurrency(); ++core)
        CPU_SET(core, &all);
    sched_setaffinity(0, sizeof(all), &all);
}

void benchmark_round_trips(const std::string& directory, const std::string& address)
{
    const unsigned int cbox_id = connect_library(directory, address);
    run_anywhere();
    raw_client raw(address);
    protocol::request_record request = {};
    std::strcpy(request.wire_name, "qorin_system_controllable_get");
    protocol::reply_record reply = {};
    QORIN_SWITCH controllable[32] = {};

    // In turns, so that whatever else the machine does falls on both.
    delays of_raw;
    delays of_library;
    for (int i = 0; i < alternations; ++i)
    {
        of_raw.measure(round_trips / alternations, [&] { raw.round_trip(request, reply); });
        of_library.measure(round_trips / alternations,
                           [&] { qorin_rpc_system_controllable_get(cbox_id, controllable); });
    }
    std::printf("%-34s %12s %12s %8s %8s\n", "command round trip, us", "raw", "library", "ratio", "aim");
    std::printf("%-34s %12.1f %12.1f %8.2f %8s\n", "  median", of_raw.quantile(0.5), of_library.quantile(0.5),
                of_library.quantile(0.5) / of_raw.quantile(0.5), "1.15");
    std::printf("%-34s %12.1f %12.1f %8.2f\n", "  99th percentile", of_raw.quantile(0.99), of_library.quantile(0.99),
                of_library.quantile(0.99) / of_raw.quantile(0.99));

    constexpr int reads = 5'000'000;
    unsigned int value = 0;
    unsigned int sum = 0;
    const auto begin = clock_type::now();
    for (unsigned int i = 0; i < reads; ++i)
    {
        qorin_rpc_cbox_io_digital_input_get(cbox_id, i & 15, &value);
        sum += value;
    }
    const double nanoseconds = std::chrono::duration<double, std::nano>(clock_type::now() - begin).count();
    std::printf("%-34s %12s %12.1f %8s %8s   (sum %u)\n", "getter, ns", "", nanoseconds / reads, "", "25", sum);
}

/// A robot that follows a stream of this process.
unsigned int make_chasing_robot(unsigned int cbox_id, const std::string& address)
{
    const char text[128] = "benchmark";
    unsigned int robot_id[32] = {};
    if (qorin_rpc_gen_system_create(cbox_id, text, QORIN_CBOX_MODEL_3GEN_SIM) != QORIN_API_RESULT_OK ||
        qorin_rpc_system_control_take(cbox_id) != QORIN_API_RESULT_OK ||
        qorin_rpc_robot_create(cbox_id, QORIN_ROBOT_MODEL_ARM_A, text, 0, robot_id) != QORIN_API_RESULT_OK ||
        qorin_rpc_robot_joint_chaser_ip_set(cbox_id, robot_id[0], address.c_str()) != QORIN_API_RESULT_OK ||
        qorin_rpc_robot_joint_chaser_switch_set(cbox_id, robot_id[0], QORIN_SWITCH_ON) != QORIN_API_RESULT_OK)
    {
        std::fprintf(stderr, "cannot make a robot that follows a stream\n");
        std::exit(1);
    }
    return robot_id[0];
}

/// A move of the joint chaser beside the same reads of the mirror and a plain datagram.
void benchmark_chaser(const std::string& directory, const std::string& address)
{
    const unsigned int cbox_id = connect_library(directory, address);
    run_anywhere();
    const unsigned int robot_id = make_chasing_robot(cbox_id, address);
    const int plain = socket(AF_INET, SOCK_DGRAM, 0);
    sockaddr_in box{};
    box.sin_family = AF_INET;
    box.sin_port = htons(static_cast<std::uint16_t>(protocol::chaser_base_port + robot_id));
    inet_pton(AF_INET, address.c_str(), &box.sin_addr);

    protocol::chaser_datagram datagram = {protocol::chaser_move, {}};
    double actual[6] = {};
    const auto read_mirror = [&]
    {
        QORIN_SWITCH chaser = QORIN_SWITCH_OFF;
        QORIN_MOVING_STATE moving = QORIN_MOVING_STATE_INVALID;
        for (unsigned int joint = 0; joint < 6; ++joint)
            qorin_rpc_robot_joint_angle_actual_get(cbox_id, robot_id, joint, &actual[joint]);
        qorin_rpc_robot_joint_chaser_state_get(cbox_id, robot_id, &chaser);
        qorin_rpc_robot_state_moving_get(cbox_id, robot_id, &moving);
    };
    read_mirror();
    std::memcpy(datagram.joints, actual, sizeof actual);
    double targets[6];
    std::memcpy(targets, actual, sizeof targets);

    delays of_plain;
    delays of_library;
    for (int i = 0; i < alternations; ++i)
    {
        of_plain.measure(round_trips / alternations,
                         [&]
                         {
                             read_mirror();
                             sendto(plain, &datagram, sizeof datagram, 0, reinterpret_cast<sockaddr*>(&box),
                                    sizeof box);
                         });
        of_library.measure(round_trips / alternations,
                           [&] { qorin_rpc_robot_joint_chaser_move(cbox_id, robot_id, 6, targets); });
    }
    close(plain);
    std::printf("%-34s %12.2f %12.2f %8.2f %8s\n", "joint chaser move, median us", of_plain.quantile(0.5),
                of_library.quantile(0.5), of_library.quantile(0.5) / of_plain.quantile(0.5), "1.30");
}

/// Processor time, in percent of one core, of `client` standing connected for a while.
template <class Client>
double receiving_share(Client&& client)
{
    return benchmark_support::in_own_process(
        [&]
        {
            [[maybe_unused]] const auto connection = client();
            const double before = benchmark_support::processor_seconds();
            const auto begin = clock_type::now();
            std::this_thread::sleep_for(receiving_time);
            const double elapsed = std::chrono::duration<double>(clock_type::now() - begin).count();
            return 100.0 * (benchmark_support::processor_seconds() - before) / elapsed;
        });
}
} // namespace

int main()
{
    std::string directory = (std::filesystem::temp_directory_path() / "qorin_benchmark_XXXXXX").string();
    if (mkdtemp(directory.data()) == nullptr)
        return 1;
    const std::string address = own_address();
    {
        const benchmark_support::server_process server(address, frame_rate);
        (void)benchmark_support::in_own_process(
            [&]
            {
                benchmark_round_trips(directory, address);
                std::fflush(stdout);
                return 0.0;
            });
    }
    {
        const benchmark_support::server_process server(address, frame_rate);
        (void)benchmark_support::in_own_process(
            [&]
            {
                benchmark_chaser(directory, address);
                std::fflush(stdout);
                return 0.0;
            });
    }
    {
        const benchmark_support::server_process server(address, frame_rate);
        const double of_raw = receiving_share([&] { return std::make_unique<raw_client>(address); });
        const double of_library = receiving_share([&] { return connect_library(directory, address); });
        std::printf("%-34s %12.2f %12.2f %8.2f %8s\n", "receiving 1 kHz frames, % of a core", of_raw, of_library,
                    of_library / of_raw, "1.10");
    }
    std::filesystem::remove_all(directory);
    return 0;
}
