#include "simulator/pose.h"

#include <algorithm>
#include <cmath>

#include <Eigen/Geometry>

#include "kinematics/rotation.h"

namespace cbox_simulator
{
pose placed(const pose& outer, const pose& local)
{
    namespace kinematics = savrent::kinematics;
    const Eigen::Matrix3d rotation = kinematics::rotation_of({outer[3], outer[4], outer[5]});
    const Eigen::Vector3d position = Eigen::Vector3d::Map(outer.data()) + rotation * Eigen::Vector3d::Map(local.data());
    const auto turned = kinematics::orientation_of(rotation * kinematics::rotation_of({local[3], local[4], local[5]}));
    return {position.x(), position.y(), position.z(), turned[0], turned[1], turned[2]};
}

pose inverted(const pose& local)
{
    namespace kinematics = savrent::kinematics;
    const Eigen::Matrix3d rotation = kinematics::rotation_of({local[3], local[4], local[5]}).transpose();
    const Eigen::Vector3d position = -(rotation * Eigen::Vector3d::Map(local.data()));
    const auto turned = kinematics::orientation_of(rotation);
    return {position.x(), position.y(), position.z(), turned[0], turned[1], turned[2]};
}

std::array<double, 3> orientation_of_quaternion(double x, double y, double z, double w)
{
    return savrent::kinematics::orientation_of(Eigen::Quaterniond(w, x, y, z).normalized().toRotationMatrix());
}

bool is_finite(const std::array<double, 6>& values)
{
    return std::ranges::all_of(values, [](double value) { return std::isfinite(value); });
}
} // namespace cbox_simulator
