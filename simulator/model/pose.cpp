#include "simulator/model/pose.h"

#include <algorithm>
#include <cmath>

#include <Eigen/Geometry>

#include "kinematics/angles.h"
#include "kinematics/rotation.h"
#include "simulator/model/pose_rotation.h"

namespace cbox_simulator
{
namespace
{
namespace kinematics = savrent::kinematics;

pose pose_of(const Eigen::Vector3d& position, const Eigen::Matrix3d& rotation)
{
    const auto orientation = kinematics::orientation_of(rotation);
    return {position.x(), position.y(), position.z(), orientation[0], orientation[1], orientation[2]};
}
} // namespace

pose placed(const pose& outer, const pose& local)
{
    const Eigen::Matrix3d rotation = rotation_of(outer);
    return pose_of(Eigen::Vector3d::Map(outer.data()) + rotation * Eigen::Vector3d::Map(local.data()),
                   rotation * rotation_of(local));
}

pose outer_of(const pose& inner, const pose& local)
{
    const Eigen::Matrix3d rotation = rotation_of(inner) * rotation_of(local).transpose();
    return pose_of(Eigen::Vector3d::Map(inner.data()) - rotation * Eigen::Vector3d::Map(local.data()), rotation);
}

std::array<double, 3> orientation_of_quaternion(double x, double y, double z, double w)
{
    return savrent::kinematics::orientation_of(Eigen::Quaterniond(w, x, y, z).normalized().toRotationMatrix());
}

std::array<double, 3> turn_from_to(const pose& from, const pose& to)
{
    const Eigen::AngleAxisd turn(Eigen::Matrix3d(rotation_of(to) * rotation_of(from).transpose()));
    const Eigen::Vector3d vector = turn.axis() * kinematics::degrees(turn.angle());
    return {vector.x(), vector.y(), vector.z()};
}

bool is_finite(const std::array<double, 6>& values)
{
    return std::ranges::all_of(values, [](double value) { return std::isfinite(value); });
}
} // namespace cbox_simulator
