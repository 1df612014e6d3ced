#include "simulator/tool_calibration.h"

#include <cmath>

#include <Eigen/Core>
#include <Eigen/SVD>

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
    const auto count = static_cast<Eigen::Index>(flange_poses.size());
    Eigen::Matrix3d mean_rotation = Eigen::Matrix3d::Zero();
    Eigen::Vector3d mean_position = Eigen::Vector3d::Zero();
    for (const auto& each : flange_poses)
    {
        mean_rotation += rotation_in(each) / static_cast<double>(count);
        mean_position += Eigen::Vector3d::Map(each.data()) / static_cast<double>(count);
    }
    Eigen::MatrixXd turns(3 * count, 3);
    Eigen::VectorXd shifts(3 * count);
    for (Eigen::Index i = 0; i < count; ++i)
    {
        const auto& each = flange_poses[static_cast<std::size_t>(i)];
        turns.middleRows<3>(3 * i) = rotation_in(each) - mean_rotation;
        shifts.segment<3>(3 * i) = mean_position - Eigen::Vector3d::Map(each.data());
    }

    const double scale = std::sqrt(static_cast<double>(count));
    const auto solver = turns.jacobiSvd(Eigen::ComputeThinU | Eigen::ComputeThinV);
    if (!(solver.singularValues()(2) > least_diversity * scale))
        return {};
    const Eigen::Vector3d tip = solver.solve(shifts);
    return tool_position{{tip.x(), tip.y(), tip.z()}, (turns * tip - shifts).norm() / scale};
}

std::array<double, 3> tool_orientation_from(const pose& flange_pose, const std::array<double, 3>& tool_orientation)
{
    return savrent::kinematics::orientation_of(rotation_in(flange_pose).transpose() * rotation_of(tool_orientation));
}
} // namespace cbox_simulator
