// Creates a robot and prints its joints, poses and tool as tables.
//
//   cpp_robot_status ADDRESS CONFIG [MODEL]
//
// MODEL is the number of an arm model, 401510 to 401518. Nothing moves.

#include <qorin/functions.hpp>

#include "session.hpp"

namespace
{
void print(const char* name, const qorin::pose& pose)
{
    std::printf("%-16s %10.3f %10.3f %10.3f %10.3f %10.3f %10.3f\n", name, pose.x_mm, pose.y_mm, pose.z_mm, pose.rx_deg,
                pose.ry_deg, pose.rz_deg);
}

void print(const qorin::cbox& box, const qorin::robot& robot)
{
    const auto status = robot.status().value(); // all of it at one moment, but for a frame that comes in between
    std::printf("%-6s %10s %10s %21s\n", "joint", "deg", "deg/s", "range");
    for (unsigned int joint = 0; joint < robot.joints_in_all().value(); ++joint)
    {
        const auto range = qorin::raw::robot_spec_joint_angle_get(box.id(), robot.id(), joint).value();
        std::printf("%-6u %10.3f %10.3f %10.1f %10.1f\n", joint, status.actual[joint], status.speed_deg_s[joint],
                    range.angle_1, range.angle_2);
    }
    std::printf("\n%-16s %10s %10s %10s %10s %10s %10s\n", "pose", "x", "y", "z", "rx", "ry", "rz");
    print("TCP", status.tcp);
    print("flange", status.flange);
    print("TCP from flange", robot.tool().value());
    std::printf("servo %s, payload %.1f kg\n", status.servo_on ? "on" : "off", robot.payload().value().mass_kg);
}
} // namespace

int main(int argc, char** argv)
{
    return example::program(argc, argv, 1, "cpp_robot_status ADDRESS CONFIG [MODEL]",
                            [&](const qorin::cbox& box)
                            {
                                const auto model = argc > 3 ? static_cast<QORIN_ROBOT_MODEL>(example::number(argv[3]))
                                                            : QORIN_ROBOT_MODEL_ARM_C;
                                const auto control = example::take_control(box);
                                const auto robot = example::create_robot(box, model);
                                std::printf("robot %u, model %u\n", robot.id().number, robot.model().value());
                                print(box, robot);
                            });
}
