// Streams a sine to the first joint of a robot at 250 Hz and tells how well the robot followed.
//
//   cpp_joint_stream ADDRESS CONFIG [SECONDS]

#include <algorithm>
#include <cmath>
#include <numbers>

#include "session.hpp"

namespace
{
constexpr auto period = std::chrono::milliseconds(4);
constexpr double amplitude = 10.0;       // degrees
constexpr double seconds_per_wave = 4.0; // the joint's highest speed is then 16 degrees per second

void stream(const qorin::robot& robot, const qorin::joint_stream& to, double seconds)
{
    qorin::joints target = robot.joints().value();
    const double middle = target[0];
    double farthest = 0;
    int followed = 0;
    const auto begin = std::chrono::steady_clock::now();
    const int count = static_cast<int>(seconds / std::chrono::duration<double>(period).count());
    for (int tick = 0; tick < count; ++tick)
    {
        const double elapsed = tick * std::chrono::duration<double>(period).count();
        target[0] = middle + amplitude * std::sin(2 * std::numbers::pi * elapsed / seconds_per_wave);
        to.send(target).value();
        std::this_thread::sleep_until(begin + (tick + 1) * period);
        const double off = std::abs(target[0] - robot.joint_deg(0).value());
        farthest = std::max(farthest, off);
        followed += off <= 5;
    }
    std::printf("sent %d targets, followed %d, largest error %.3f degrees\n", count, followed, farthest);
    if (followed < 0.9 * count) // a busy machine delivers a target late now and then
        throw std::runtime_error("the robot has not followed");
}
} // namespace

int main(int argc, char** argv)
{
    return example::program(argc, argv, 1, "cpp_joint_stream ADDRESS CONFIG [SECONDS]",
                            [&](const qorin::cbox& box)
                            {
                                const double seconds = argc > 3 ? example::number(argv[3]) : 3;
                                const auto control = example::take_control(box);
                                const auto robot = example::robot_under_power(box);
                                const auto to = robot.stream_joints(argv[1]).value(); // its end switches off
                                stream(robot, to, seconds);
                            });
}
