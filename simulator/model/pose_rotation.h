#ifndef SIMULATOR_MODEL_POSE_ROTATION_H
#define SIMULATOR_MODEL_POSE_ROTATION_H

#include <array>

#include <Eigen/Core>

#include "kinematics/rotation.h"

namespace cbox_simulator
{
/// How what has that pose is turned: its axes as columns, seen from where the pose is told.
[[nodiscard]] inline Eigen::Matrix3d rotation_of(const std::array<double, 6>& of)
{
    return savrent::kinematics::rotation_of({of[3], of[4], of[5]});
}
} // namespace cbox_simulator

#endif
