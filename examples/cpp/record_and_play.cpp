// Records what a robot does and plays it back, at full and at half speed.
//
//   cpp_record_and_play ADDRESS CONFIG
//
// Two joint motions stand for the hand that would guide a real arm.

#include <algorithm>
#include <cmath>

#include "session.hpp"

namespace
{
void go(const qorin::robot& robot, const qorin::joints& end)
{
    example::run(robot.make(qorin::joint_motion{.end = end, .speed_deg_s = 60, .acceleration_deg_s2 = 200}).value());
}

/// From elsewhere than its start a recording is not played: the arm is brought there ahead of it.
void play(const qorin::robot& robot, const qorin::recording& recording, double speed_factor)
{
    go(robot, recording.start_joints().value());
    robot.set_speed_factor(speed_factor).value();
    const auto begin = std::chrono::steady_clock::now();
    const unsigned int entries = recording.play().value();
    example::wait_for_frames(); // no event tells of the end of a playback: the moving state does
    example::await("the end of the playback", [&] { return robot.moving().value() == QORIN_MOVING_STATE_IDLE; });
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    robot.set_speed_factor(1).value();

    const auto end = recording.end_joints().value();
    const auto there = robot.joints().value();
    double off = 0;
    for (std::size_t joint = 0; joint < qorin::joint_count; ++joint)
        off = std::max(off, std::abs(there[joint] - end[joint]));
    std::printf("played %u entries with factor %.1f in %.1f s, %.3f degrees off the recorded end\n", entries,
                speed_factor, time.count(), off);
    std::fflush(stdout);
    if (off > 0.1)
        throw std::runtime_error("that is not where the recording ends");
}
} // namespace

int main(int argc, char** argv)
{
    return example::program(argc, argv, 0, "cpp_record_and_play ADDRESS CONFIG",
                            [](const qorin::cbox& box)
                            {
                                const auto control = example::take_control(box);
                                const auto robot = example::robot_under_power(box);
                                const auto recording = robot.create_recording().value();
                                recording.start().value();
                                go(robot, {40, 10, 80, 0, 60, 0});
                                go(robot, {-30, 25, 50, 20, 90, 0});
                                recording.stop().value();
                                recording.trim().value(); // where the arm stands still at either end
                                play(robot, recording, 1);
                                play(robot, recording, 0.5);
                            });
}
