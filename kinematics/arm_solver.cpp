#include "kinematics/arm_solver.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "kinematics/closed_form_inverse.h"
#include "kinematics/rotation.h"

namespace savrent::kinematics
{
namespace
{
constexpr double reference_limit = 36'000.0; // degrees, a hundred turns

bool is_usable(const flange_pose& target, const joint_array& reference)
{
    const auto is_finite = [](double value) { return std::isfinite(value); };
    return std::ranges::all_of(target.position, is_finite) && std::ranges::all_of(target.orientation, is_finite) &&
           std::ranges::all_of(reference, [](double value) { return std::abs(value) <= reference_limit; });
}

/// The angle, full turns aside, within half a turn of the reference.
double nearest_turn(double angle, double reference)
{
    return angle - 360.0 * std::nearbyint((angle - reference) / 360.0);
}

joint_array joint_angles(const joint_array& rotations, const dh_table& table, const joint_array& reference)
{
    joint_array joints;
    for (std::size_t i = 0; i < joint_count; ++i)
        joints[i] = nearest_turn(degrees(rotations[i]) - table.theta[i], reference[i]);
    return joints;
}

wrist_target without_flange(const flange_pose& target, const dh_table& table, direction twist6)
{
    const Eigen::Matrix3d flange = rotation_of(target.orientation);
    wrist_target wrist;
    wrist.rotation = flange * rotation_zx({}, {twist6.c, -twist6.s});
    wrist.centre =
        Eigen::Vector3d::Map(target.position.data()) - wrist.rotation * Eigen::Vector3d(table.a[5], 0.0, table.d[5]);
    return wrist;
}

double squared_distance(const joint_array& a, const joint_array& b)
{
    double sum = 0.0;
    for (std::size_t i = 0; i < joint_count; ++i)
        sum += (a[i] - b[i]) * (a[i] - b[i]);
    return sum;
}
} // namespace

arm_solver::arm_solver(const dh_table& table) : table_(table), closed_form_(as_spherical_wrist_arm(table))
{
    for (std::size_t i = 0; i < joint_count; ++i)
        twists_[i] = direction_of(radians(table.alpha[i]));
}

flange_pose arm_solver::forward(const joint_array& joints) const
{
    Eigen::Matrix3d rotation = Eigen::Matrix3d::Identity();
    Eigen::Vector3d position = Eigen::Vector3d::Zero();
    for (std::size_t i = 0; i < joint_count; ++i)
    {
        const direction joint = direction_of(radians(joints[i] + table_.theta[i]));
        position += rotation * Eigen::Vector3d(table_.a[i] * joint.c, table_.a[i] * joint.s, table_.d[i]);
        rotation = rotation * rotation_zx(joint, twists_[i]);
    }
    return {{position.x(), position.y(), position.z()}, orientation_of(rotation)};
}

link_points arm_solver::links(const joint_array& joints) const
{
    link_points points;
    Eigen::Matrix3d rotation = Eigen::Matrix3d::Identity();
    Eigen::Vector3d position = Eigen::Vector3d::Zero();
    for (std::size_t i = 0; i < joint_count; ++i)
    {
        const direction joint = direction_of(radians(joints[i] + table_.theta[i]));
        position += rotation.col(2) * table_.d[i];
        Eigen::Vector3d::Map(points[2 * i].data()) = position;
        position += rotation * Eigen::Vector3d(table_.a[i] * joint.c, table_.a[i] * joint.s, 0.0);
        Eigen::Vector3d::Map(points[2 * i + 1].data()) = position;
        rotation = rotation * rotation_zx(joint, twists_[i]);
    }
    return points;
}

solution_set arm_solver::inverse_all_solutions(const flange_pose& target, const joint_array& reference) const
{
    solution_set solutions;
    if (!closed_form_ || !is_usable(target, reference))
        return solutions;
    const spherical_wrist_arm& arm = *closed_form_;
    const wrist_target goal = without_flange(target, table_, twists_[5]);
    const auto kept = [&](std::size_t joint) { return radians(reference[joint] + table_.theta[joint]); };

    for (const bool rear : {false, true})
    {
        const auto shoulder = solve_shoulder(arm, goal.centre, rear, kept(0));
        const auto triangle = shoulder ? solve_arm_triangle(arm, *shoulder) : std::nullopt;
        if (!triangle)
            continue;
        for (const bool below : {false, true})
        {
            const elbow_branch elbow = solve_elbow(arm, *triangle, rear, below, kept(1));
            const Eigen::Matrix3d forearm = forearm_rotation(arm, shoulder->rotation1, elbow);
            const wrist_branch nonflip = solve_wrist(arm, forearm.transpose() * goal.rotation, kept(3));
            const auto store = [&](bool is_nonflip, const wrist_branch& wrist)
            {
                const std::size_t place = posture{rear, below, is_nonflip}.index();
                solutions.joints[place] = joint_angles({shoulder->rotation1, elbow.rotation2, elbow.rotation3,
                                                        wrist.rotation4, wrist.rotation5, wrist.rotation6},
                                                       table_, reference);
                solutions.valid[place] = true;
            };
            store(true, nonflip);
            store(false, mirrored(nonflip));
        }
    }
    return solutions;
}

std::optional<joint_array> arm_solver::inverse(const flange_pose& target, const joint_array& reference) const
{
    const solution_set solutions = inverse_all_solutions(target, reference);
    const joint_array* nearest = nullptr;
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < solution_count; ++i)
    {
        const double distance = squared_distance(solutions.joints[i], reference);
        if (solutions.valid[i] && distance < least)
        {
            nearest = &solutions.joints[i];
            least = distance;
        }
    }
    return nearest ? std::optional(*nearest) : std::nullopt;
}

std::optional<joint_array> arm_solver::inverse_from_posture(const flange_pose& target, posture wanted) const
{
    const solution_set solutions = inverse_all_solutions(target);
    const std::size_t place = wanted.index();
    return solutions.valid[place] ? std::optional(solutions.joints[place]) : std::nullopt;
}
} // namespace savrent::kinematics
