#include "simulator/model/tool_calibration.h"

#include <algorithm>
#include <cmath>

#include <Eigen/Core>
#include <Eigen/Eigenvalues>

#include "kinematics/rotation.h"

namespace cbox_simulator
{
namespace
{
using savrent::kinematics::rotation_of;

// Poses that turn by less than about a degree against each other would make the tip out of the noise of the teaching.
constexpr double least_diversity = 0.01;

Eigen::Matrix3d rotation_in(const pose& from)
{
    return rotation_of({from[3], from[4], from[5]});
}
} // namespace

std::optional<tool_position> tool_position_from(std::span<const pose> flange_poses)
{
    // The tip t is at p_i + R_i t = c in every pose. Taking the mean of all equations from each leaves t alone.
    const auto count = flange_poses.size();
    Eigen::Matrix3d mean_rotation = Eigen::Matrix3d::Zero();
    Eigen::Vector3d mean_position = Eigen::Vector3d::Zero();
    for (const auto& each : flange_poses)
    {
        mean_rotation += rotation_in(each) / static_cast<double>(count);
        mean_position += Eigen::Vector3d::Map(each.data()) / static_cast<double>(count);
    }
    const auto turn = [&](const pose& each) -> Eigen::Matrix3d { return rotation_in(each) - mean_rotation; };
    const auto shift = [&](const pose& each) -> Eigen::Vector3d
    { return mean_position - Eigen::Vector3d::Map(each.data()); };
    Eigen::Matrix3d normal = Eigen::Matrix3d::Zero();
    Eigen::Vector3d right_side = Eigen::Vector3d::Zero();
    for (const auto& each : flange_poses)
    {
        normal += turn(each).transpose() * turn(each);
        right_side += turn(each).transpose() * shift(each);
    }

    const Eigen::SelfAdjointEigenSolver<Eigen::Matrix3d> solver(normal); // eigenvalues ascending
    const double scale = std::sqrt(static_cast<double>(count));
    if (!(std::sqrt(std::max(solver.eigenvalues()(0), 0.0)) > least_diversity * scale))
        return {};
    const Eigen::Vector3d tip =
        solver.eigenvectors() * (solver.eigenvectors().transpose() * right_side).cwiseQuotient(solver.eigenvalues());
    double squares = 0;
    for (const auto& each : flange_poses)
        squares += (turn(each) * tip - shift(each)).squaredNorm();
    return tool_position{{tip.x(), tip.y(), tip.z()}, std::sqrt(squares) / scale};
}

std::array<double, 3> tool_orientation_from(const pose& flange_pose, const std::array<double, 3>& tool_orientation)
{
    return savrent::kinematics::orientation_of(rotation_in(flange_pose).transpose() * rotation_of(tool_orientation));
}
} // namespace cbox_simulator
