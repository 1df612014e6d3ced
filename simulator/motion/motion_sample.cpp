#include "simulator/motion/motion_sample.h"

#include <algorithm>
#include <functional>

namespace cbox_simulator::motion
{
std::optional<motion_sample::joint_array> motion_sample::to_joints(const arm_kinematics& solver, const pose& tool,
                                                                   const joint_array& reference) const
{
    if (!point)
        return joints;
    const pose flange =
        point->pose_type == QORIN_POSE_TYPE_TCP && tool != pose{} ? outer_of(point->target, tool) : point->target;
    joint_array near = reference;
    std::ranges::transform(reference, joints, near.begin(), std::minus{});
    auto solution = solver.inverse({{flange[0], flange[1], flange[2]}, {flange[3], flange[4], flange[5]}}, near);
    if (solution)
        std::ranges::transform(*solution, joints, solution->begin(), std::plus{});
    return solution;
}
} // namespace cbox_simulator::motion
