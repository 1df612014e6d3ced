// Solves the inverse kinematics of a pose in the client: all eight solutions, and an approach from a reference.
//
//   inverse_kinematics ADDRESS CONFIG [X Y Z RX RY RZ]
//
// The pose is one of the flange, in millimetres and degrees, of an arm of model 401512; without it the arm takes one
// that it reaches. The configuration's `client.kinematics_path` names the directory of the kinematics modules. Nothing
// moves.

#include <cstdio>
#include <optional>

#include "session.h"

namespace
{
using example::is_ok;

constexpr int joint_count = 6;
constexpr int solution_count = 8;
constexpr unsigned int steps = 20;
const double reference[joint_count] = {0, 20, 60, 0, 40, 0};

struct pose
{
    double position[3];
    double orientation[3];
};

pose pose_of(char** numbers)
{
    pose target = {};
    for (int i = 0; i < 3; ++i)
    {
        target.position[i] = example::number(numbers[i], -1e9);
        target.orientation[i] = example::number(numbers[i + 3], -1e9);
    }
    return target;
}

bool find_reachable_pose(unsigned int cbox_id, unsigned int robot_id, pose& target)
{
    const double joints[joint_count] = {35, 10, 75, -20, 50, 15};
    return is_ok("target", qorin_rpc_robot_util_joint_angle_to_pose_convert(
                               cbox_id, robot_id, QORIN_POSE_TYPE_FLANGE, joints, target.position, target.orientation));
}

void print_joints(const char* name, const double* joints)
{
    std::printf("%-10s", name);
    for (int joint = 0; joint < joint_count; ++joint)
        std::printf(" %9.3f", joints[joint]);
    std::printf("\n");
}

bool print_all_solutions(unsigned int cbox_id, unsigned int robot_id, const pose& target)
{
    double joints[solution_count][joint_count] = {};
    bool valid[solution_count] = {};
    if (!is_ok("all solutions", qorin_rpc_robot_util_pose_to_joint_all_possible_angle_convert(
                                    cbox_id, robot_id, target.position, target.orientation, joints[0], valid)))
        return false;
    std::printf("%-10s %9s %9s %9s %9s %9s %9s\n", "solution", "joint 0", "1", "2", "3", "4", "5");
    for (int i = 0; i < solution_count; ++i)
    {
        const char name[] = {static_cast<char>('0' + i), '\0'};
        if (valid[i])
            print_joints(name, joints[i]);
        else
            std::printf("%-10s %9s\n", name, "none");
    }
    return true;
}

/// Goes from the reference to the target in small steps, as a controller that follows a straight line would.
bool approach(unsigned int cbox_id, unsigned int robot_id, const pose& target)
{
    double joints[joint_count] = {};
    if (!is_ok("approach", qorin_rpc_robot_util_pose_to_joint_angle_convert_iterative(
                               cbox_id, robot_id, QORIN_POSE_TYPE_FLANGE, reference, target.position,
                               target.orientation, steps, joints)))
        return false;
    std::printf("\napproach in %u steps\n", steps);
    print_joints("from", reference);
    print_joints("to", joints);
    return true;
}

bool solve(unsigned int cbox_id, unsigned int robot_id, const std::optional<pose>& wanted)
{
    pose target = wanted.value_or(pose{});
    if (!wanted && !find_reachable_pose(cbox_id, robot_id, target))
        return false;
    std::printf("flange at %.3f %.3f %.3f, orientation %.3f %.3f %.3f\n\n", target.position[0], target.position[1],
                target.position[2], target.orientation[0], target.orientation[1], target.orientation[2]);
    return print_all_solutions(cbox_id, robot_id, target) && approach(cbox_id, robot_id, target);
}
} // namespace

int main(int argc, char** argv)
{
    // Six numbers or none: with some of them it is as if there were too many.
    example::take_arguments(argc, argv, argc == 9 ? 6 : 0, "inverse_kinematics ADDRESS CONFIG [X Y Z RX RY RZ]");
    const std::optional<pose> wanted = argc == 9 ? std::optional(pose_of(argv + 3)) : std::nullopt;

    unsigned int cbox_id = 0;
    unsigned int robot_id = 0;
    if (!example::open_session(argv[1], argv[2], cbox_id) ||
        !example::create_robot(cbox_id, QORIN_ROBOT_MODEL_ARM_C, robot_id))
        return 1;

    const bool solved = solve(cbox_id, robot_id, wanted);
    const bool ended = example::destroy_robot(cbox_id, robot_id);
    return example::close_session(cbox_id) && ended && solved ? 0 : 1;
}
