#ifndef SIMULATOR_MODEL_POSE_ROTATION_H
#define SIMULATOR_MODEL_POSE_ROTATION_H

#include <Eigen/Core>

#include "kinematics/rotation.h"
#include "simulator/model/pose.h"

namespace cbox_simulator
{
[[nodiscard]] inline Eigen::Matrix3d rotation_of(const pose& of)
{
    return savrent::kinematics::rotation_of({of[3], of[4], of[5]});
}
} // namespace cbox_simulator

#endif
