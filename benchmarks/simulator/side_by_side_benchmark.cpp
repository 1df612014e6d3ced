// How many simulated boxes run side by side at 1000 frames a second, each with two robots on TCP paths and in a process
// of its own, while this process reads all their frames. A frame is late when it comes more than a period behind its
// time.
//
//     side_by_side_benchmark [MOST BOXES [SECONDS A COUNT]]
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <list>
#include <memory>
#include <thread>
#include <vector>

#include <unistd.h>

#include "benchmarks/connection/raw_client.h"
#include "benchmarks/connection/server_process.h"
#include "benchmarks/simulator/to_and_fro.h"
#include "simulator/control_box.h"

namespace
{
using namespace std::chrono_literals;
using benchmark_support::raw_client;
using benchmark_support::server_process;
using benchmark_support::to_and_fro;
using clock_type = std::chrono::steady_clock;

constexpr clock_type::duration period = 1ms;

std::string address_of(int box)
{
    const auto pid = static_cast<unsigned int>(getpid());
    return "127." + std::to_string(64 + box) + "." + std::to_string(pid >> 8 & 255) + "." + std::to_string(pid & 255);
}

void keep_moving(cbox_simulator::control_box& box)
{
    std::unique_ptr<to_and_fro> robots;
    box.with_model([&](auto& model) { robots = std::make_unique<to_and_fro>(model); });
    for (;; std::this_thread::sleep_for(20ms))
        box.with_model([&](auto&) { robots->move_when_idle(); });
}

/// A box and when its frames came.
struct watched_box
{
    explicit watched_box(const std::string& address) : server(address, 1s / period, keep_moving)
    {
        arrivals.reserve(100'000);
        client = std::make_unique<raw_client>(address,
                                              [this](const auto&)
                                              {
                                                  if (arrivals.size() < arrivals.capacity())
                                                      arrivals.push_back(clock_type::now());
                                              });
    }

    std::vector<clock_type::time_point> arrivals;
    server_process server;
    std::unique_ptr<raw_client> client;
};

struct lateness
{
    std::size_t frames = 0;
    std::size_t late = 0;
    clock_type::duration most{};
};

/// Each frame is due a period after the one before; the earliest of all tells the clock. The first second is left out:
/// links and robots come to be in it.
lateness lateness_of(const std::vector<clock_type::time_point>& arrivals)
{
    constexpr std::size_t first = 1s / period;
    std::vector<clock_type::duration> delays;
    for (std::size_t i = first; i < arrivals.size(); ++i)
        delays.push_back(arrivals[i] - arrivals[first] - period * (i - first));
    const auto earliest = *std::ranges::min_element(delays);
    lateness found{delays.size(), 0, *std::ranges::max_element(delays) - earliest};
    for (const auto delay : delays)
        found.late += delay - earliest > period ? 1U : 0U;
    return found;
}

void count(int boxes, std::chrono::seconds time)
{
    std::list<watched_box> watched;
    for (int box = 0; box < boxes; ++box)
        watched.emplace_back(address_of(box));
    std::this_thread::sleep_for(1s + time);
    lateness sum;
    for (watched_box& each : watched)
    {
        each.client.reset(); // its thread adds no more
        const lateness found = lateness_of(each.arrivals);
        sum = {sum.frames + found.frames, sum.late + found.late, std::max(sum.most, found.most)};
    }
    std::printf("%5d %10zu %8zu %10.2f\n", boxes, sum.frames, sum.late,
                std::chrono::duration<double, std::milli>(sum.most).count());
    std::fflush(stdout);
}
} // namespace

int main(int argc, char** argv)
{
    const int most = argc > 1 ? std::atoi(argv[1]) : 6;
    const std::chrono::seconds time(argc > 2 ? std::atoi(argv[2]) : 10);
    std::printf("boxes     frames     late  latest ms\n");
    for (int boxes = 1; boxes <= most; ++boxes)
        count(boxes, time);
}
