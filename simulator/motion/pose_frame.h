#ifndef SIMULATOR_MOTION_POSE_FRAME_H
#define SIMULATOR_MOTION_POSE_FRAME_H

#include <Eigen/Geometry>

#include "kinematics/rotation.h"
#include "simulator/model/motion_command.h"
#include "simulator/model/pose.h"

// Between the plain values of the model and what one computes with.
namespace cbox_simulator::motion
{
[[nodiscard]] inline Eigen::Vector3d position_of(const pose& of)
{
    return Eigen::Vector3d::Map(of.data());
}

[[nodiscard]] inline Eigen::Quaterniond rotation_of(const pose& of)
{
    return Eigen::Quaterniond(savrent::kinematics::rotation_of({of[3], of[4], of[5]}));
}

[[nodiscard]] inline pose pose_of(const Eigen::Vector3d& position, const Eigen::Quaterniond& rotation)
{
    const auto orientation = savrent::kinematics::orientation_of(rotation.toRotationMatrix());
    return {position.x(), position.y(), position.z(), orientation[0], orientation[1], orientation[2]};
}

[[nodiscard]] inline vector3 vector3_of(const Eigen::Vector3d& vector)
{
    return {vector.x(), vector.y(), vector.z()};
}

[[nodiscard]] inline Eigen::Vector3d vector_of(const vector3& vector)
{
    return Eigen::Vector3d::Map(vector.data());
}
} // namespace cbox_simulator::motion

#endif
