// Turns the first joint of a robot by 10 degrees.
//
//   cpp_first_motion ADDRESS CONFIG

#include "session.hpp"

int main(int argc, char** argv)
{
    return example::program(argc, argv, 0, "cpp_first_motion ADDRESS CONFIG",
                            [](const qorin::cbox& box)
                            {
                                const auto control = example::take_control(box);
                                const auto robot = example::robot_under_power(box);
                                qorin::joints target = robot.joints().value();
                                const double from = target[0];
                                target[0] += 10;
                                example::run(robot.make(qorin::joint_motion{.end = target}).value());
                                std::printf("joint 0 from %.1f to %.1f degrees\n", from, robot.joint_deg(0).value());
                            });
}
