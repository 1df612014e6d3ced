// Solves the inverse kinematics of a pose in the client: all eight solutions, and the one near a reference.
//
//   cpp_inverse_kinematics ADDRESS CONFIG [X Y Z RX RY RZ]
//
// The pose is one of the flange, in millimetres and degrees, of an arm of model 401512; without it the arm takes one
// that it reaches. Nothing moves.

#include "session.hpp"

namespace
{
void print(const char* name, const qorin::joints& joints)
{
    std::printf("%-10s", name);
    for (const double angle : joints.degrees)
        std::printf(" %9.3f", angle);
    std::printf("\n");
}
} // namespace

int main(int argc, char** argv)
{
    // Six numbers or none: with some of them it is as if there were too many.
    return example::program(argc, argv, argc == 9 ? 6 : 0, "cpp_inverse_kinematics ADDRESS CONFIG [X Y Z RX RY RZ]",
                            [&](const qorin::cbox& box)
                            {
                                const auto number = [&](int index) { return example::number(argv[index], -1e9); };
                                const auto control = example::take_control(box);
                                const auto robot = example::create_robot(box);
                                const auto flange =
                                    argc == 9
                                        ? qorin::pose{number(3), number(4), number(5), number(6), number(7), number(8)}
                                        : robot.pose_at({35, 10, 75, -20, 50, 15}, QORIN_POSE_TYPE_FLANGE).value();
                                std::printf("flange at %.3f %.3f %.3f\n", flange.x_mm, flange.y_mm, flange.z_mm);
                                for (const auto& solution : robot.all_joints_at(flange).value())
                                    if (solution)
                                        print("solution", *solution);
                                const qorin::joints reference{0, 20, 60, 0, 40, 0};
                                print("from", reference);
                                print("to", robot.joints_at(flange, reference, QORIN_POSE_TYPE_FLANGE).value());
                            });
}
