// Sets safety limits of a robot, reads them back from the status, and takes them away again.
//
//   cpp_safety_limits ADDRESS CONFIG
//
// Nothing moves.

#include "session.hpp"

int main(int argc, char** argv)
{
    return example::program(argc, argv, 0, "cpp_safety_limits ADDRESS CONFIG",
                            [](const qorin::cbox& box)
                            {
                                const auto control = example::take_control(box);
                                const auto robot = example::create_robot(box);
                                const auto limits = robot.limits();
                                limits.set_joint_range_deg(0, {-90, 90}).value();
                                limits.set_joint_speed_deg_s(0, 45).value();
                                limits.set_tcp_speed_mm_s(250).value();
                                const auto floor = limits.add({.normal_z = 1, .distance_mm = 0}).value();
                                const auto wall = limits.add({.normal_x = -1, .distance_mm = -1000}).value();
                                limits.switch_on().value();
                                example::wait_for_frames();

                                const auto [from, to] = limits.joint_range_deg(0).value();
                                std::printf(
                                    "limits %s: joint 0 from %.1f to %.1f degrees at %.1f degrees/s, TCP at %.1f\n",
                                    limits.is_on().value() ? "on" : "off", from, to,
                                    limits.joint_speed_deg_s(0).value(), limits.tcp_speed_mm_s().value());
                                for (const auto id : {floor, wall})
                                {
                                    const auto plane = limits.at(id).value();
                                    std::printf("plane %u: normal %.1f %.1f %.1f, distance %.1f\n", id.number,
                                                plane.normal_x, plane.normal_y, plane.normal_z, plane.distance_mm);
                                }
                                limits.remove_all_planes().value();
                                limits.switch_on(false).value();
                            });
}
