// Moves two robots of one control box at the same time.
//
//   cpp_two_robots ADDRESS CONFIG

#include <cmath>

#include "session.hpp"

namespace
{
constexpr qorin::joints targets[] = {{60, 20, 60, 0, 40, 0}, {-45, 10, 80, 0, 60, 0}};

qorin::scoped<qorin::robot> prepare(const qorin::cbox& box)
{
    auto robot = example::create_robot(box);
    robot.servo_on().value();
    return robot;
}

/// Each robot has a queue of its own, and one start is for both.
void move(const qorin::cbox& box, const qorin::robot& first, const qorin::robot& second)
{
    const auto of_first = first.make(qorin::joint_motion{.end = targets[0], .speed_deg_s = 30}).value();
    const auto of_second = second.make(qorin::joint_motion{.end = targets[1], .speed_deg_s = 30}).value();
    box.clear_queue().value();
    of_first.queue().value();
    of_second.queue().value();
    const auto begin = std::chrono::steady_clock::now();
    box.start_queue().value();
    for (const auto* motion : {&of_first, &of_second})
        if (!motion->await_end(example::patience).value())
            throw std::runtime_error("a robot has not come to its target");
    const std::chrono::duration<double> together = std::chrono::steady_clock::now() - begin;
    std::printf("motions of %.1f and %.1f s, both done after %.1f s\n", of_first.running_time_s().value(),
                of_second.running_time_s().value(), together.count());
    if (std::abs(first.joint_deg(0).value() - targets[0][0]) > 0.1 ||
        std::abs(second.joint_deg(0).value() - targets[1][0]) > 0.1)
        throw std::runtime_error("a robot is not where it shall be");
}
} // namespace

int main(int argc, char** argv)
{
    return example::program(argc, argv, 0, "cpp_two_robots ADDRESS CONFIG",
                            [](const qorin::cbox& box)
                            {
                                // A system is made for a number of robots. One that stands goes, with its robots.
                                const auto control = example::take_control(box);
                                box.destroy_system().value();
                                box.create_system(QORIN_CBOX_MODEL_3GEN_SIM, 2).value();
                                {
                                    const auto first = prepare(box);
                                    const auto second = prepare(box);
                                    move(box, first, second);
                                }
                                box.destroy_system().value();
                            });
}
