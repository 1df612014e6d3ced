#include <benchmark/benchmark.h>

#include "benchmarks/simulator/to_and_fro.h"
#include "simulator/frame/frame_renderer.h"

// What a control cycle of the whole simulated box costs, and a frame. At a cycle of 1 millisecond, 10 microseconds are
// one percent of a core; sending the frame comes on top.
namespace
{
using namespace cbox_simulator;

struct moving_box
{
    box_model model{"version", 1000};
    benchmark_support::to_and_fro robots{model};
};

void cycle_at_rest(benchmark::State& state)
{
    moving_box box;
    for ([[maybe_unused]] auto _ : state)
        box.model.run_cycle();
}
BENCHMARK(cycle_at_rest);

void cycle_of_two_robots_on_tcp_paths(benchmark::State& state)
{
    moving_box box;
    for ([[maybe_unused]] auto _ : state)
    {
        box.robots.move_when_idle();
        box.model.run_cycle();
    }
}
BENCHMARK(cycle_of_two_robots_on_tcp_paths);

void the_same_within_watched_limits(benchmark::State& state)
{
    moving_box box;
    for (const std::uint32_t id : {0U, 1U})
        box.model.robots().find(id)->settings().switches.safety_limit = QORIN_SWITCH_ON;
    for ([[maybe_unused]] auto _ : state)
    {
        box.robots.move_when_idle();
        box.model.run_cycle();
    }
}
BENCHMARK(the_same_within_watched_limits);

void frame_of_two_robots(benchmark::State& state)
{
    moving_box box;
    protocol::shared_data_t frame;
    for ([[maybe_unused]] auto _ : state)
    {
        render_frame(box.model, frame);
        benchmark::DoNotOptimize(&frame);
    }
}
BENCHMARK(frame_of_two_robots);
} // namespace

BENCHMARK_MAIN();
