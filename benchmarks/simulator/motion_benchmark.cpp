#include <array>
#include <cmath>

#include <benchmark/benchmark.h>

#include "kinematics/arm_models.h"
#include "simulator/motion/command_path.h"
#include "simulator/motion/drive_lag.h"
#include "simulator/motion/motion_chain.h"
#include "simulator/motion/rate_governor.h"
#include "simulator/motion/way_check.h"
#include "simulator/motion/weave.h"

// What motions cost: a control cycle of a moving robot, and what is done once for a command. A cycle is the time of the
// motion, the sample, its joints, and the lag of the drives; of a cycle of 1 millisecond it is to leave nearly all.
namespace
{
using namespace cbox_simulator;
using namespace cbox_simulator::motion;

constexpr double cycle = 1e-3;
constexpr joint_array ready{0, 0, 0, 0, 90, 0};
constexpr pose tool{10, 0, 150, 0, 0, 30};

const arm_kinematics& arm()
{
    static const arm_kinematics made(savrent::kinematics::find_arm_model(QORIN_ROBOT_MODEL_ARM_G)->table);
    return made;
}

joint_bounds bounds()
{
    joint_bounds made;
    for (std::size_t joint = 0; joint < joint_count; ++joint)
    {
        const auto& range = savrent::kinematics::find_arm_model(QORIN_ROBOT_MODEL_ARM_G)->joints[joint];
        made[joint] = {range.angle_min, range.angle_max, range.speed_max, range.acceleration_max};
    }
    return made;
}

pose start()
{
    const auto [p, o] = arm().forward(ready);
    return placed({p[0], p[1], p[2], o[0], o[1], o[2]}, tool);
}

/// 300 mm in which the tool turns by 40 degrees, on a way of the shape.
tcp_motion motion_on(QORIN_INTERPOLATOR shape)
{
    const pose from = start();
    tcp_path told;
    told.interpolator = shape;
    told.position_mid = {from[0] - 60, from[1] + 120, from[2] - 20};
    told.position_end = {from[0] - 100, from[1] + 250, from[2] - 100};
    told.orientation_end = {from[3] + 40, from[4], from[5]};
    told.free_path_points = {*told.position_mid, {from[0] - 70, from[1] + 200, from[2] - 60}, *told.position_end};
    return {*path_of(told, from).path, motion_limits{}};
}

/// A robot that moves on a way again and again.
class moving_robot
{
public:
    explicit moving_robot(planned_motion motion) : motion_(std::move(motion)), lag_(ready) {}

    void run_cycle()
    {
        time_ = std::fmod(time_ + governor_.advance(cycle), motion_.duration());
        joints_ = motion_.at(time_).to_joints(arm(), tool, joints_).value_or(joints_);
        lag_.follow(joints_, cycle);
    }

private:
    planned_motion motion_;
    rate_governor governor_;
    drive_lag lag_;
    joint_array joints_ = ready;
    double time_ = 0;
};

void cycle_on_joint_motion(benchmark::State& state)
{
    moving_robot robot{planned_motion(joint_motion(ready, {40, 10, -10, 5, 85, 20}, {}, bounds()))};
    for ([[maybe_unused]] auto _ : state)
        robot.run_cycle();
}
BENCHMARK(cycle_on_joint_motion);

void cycle_on(benchmark::State& state, QORIN_INTERPOLATOR shape)
{
    moving_robot robot{planned_motion(motion_on(shape))};
    for ([[maybe_unused]] auto _ : state)
        robot.run_cycle();
}
BENCHMARK_CAPTURE(cycle_on, line, QORIN_INTERPOLATOR_LINEAR);
BENCHMARK_CAPTURE(cycle_on, arc, QORIN_INTERPOLATOR_CIRCULAR);
BENCHMARK_CAPTURE(cycle_on, free_path, QORIN_INTERPOLATOR_FREE_PATH);

/// The aim is below 100 microseconds for all that a cycle does.
void cycle_of_two_robots_on_tcp_paths(benchmark::State& state)
{
    std::array robots{moving_robot(planned_motion(motion_on(QORIN_INTERPOLATOR_LINEAR))),
                      moving_robot(planned_motion(motion_on(QORIN_INTERPOLATOR_CIRCULAR)))};
    for ([[maybe_unused]] auto _ : state)
        for (moving_robot& robot : robots)
            robot.run_cycle();
}
BENCHMARK(cycle_of_two_robots_on_tcp_paths);

void weave_over_a_point(benchmark::State& state)
{
    welding_weave told;
    told.motion_switch = QORIN_SWITCH_ON;
    told.left_amplitude = told.right_amplitude = 3;
    told.frequency = 2;
    weave swing(told);
    const path_point point{start(), QORIN_POSE_TYPE_TCP, {0, 1, 0}};
    for ([[maybe_unused]] auto _ : state)
    {
        swing.advance(cycle, 1);
        benchmark::DoNotOptimize(swing.laid_over(point));
    }
}
BENCHMARK(weave_over_a_point);

/// Once for a command: its way with all that bounds the joints on it.
void plan_and_check_a_line(benchmark::State& state)
{
    const moving_arm moving{arm(), bounds(), tool};
    for ([[maybe_unused]] auto _ : state)
    {
        const planned_motion motion(motion_on(QORIN_INTERPOLATOR_LINEAR));
        benchmark::DoNotOptimize(check_way(motion, moving, ready));
    }
}
BENCHMARK(plan_and_check_a_line);

void plan_a_blend(benchmark::State& state)
{
    const tcp_motion first = motion_on(QORIN_INTERPOLATOR_LINEAR);
    const tcp_motion second(pose_path::line(first.path().end(), start()), {});
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(plan_chain({{first, 30}, {second, 0}}, arm(), tool).motion.duration());
}
BENCHMARK(plan_a_blend);
} // namespace

BENCHMARK_MAIN();
