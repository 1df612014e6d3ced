#ifndef SIMULATOR_MOTION_MOTION_SAMPLE_H
#define SIMULATOR_MOTION_MOTION_SAMPLE_H

#include <optional>

#include "qorin/enumerations.h"
#include "simulator/kinematics/arm_kinematics.h"
#include "simulator/model/motion_command.h"
#include "simulator/model/pose.h"

namespace cbox_simulator::motion
{
/// A pose in space, of the TCP or of the flange, seen from the base, and where it is going.
struct path_point
{
    pose target{};
    QORIN_POSE_TYPE pose_type = QORIN_POSE_TYPE_TCP;
    vector3 direction{}; ///< Of travel, of length 1; 0 where the position does not move.
};

/**
 * Where a motion is at a moment: joints, or a pose in space. Where a joint motion and a way through space blend into
 * each other, both: the joints are then what is added to those of the pose.
 */
struct motion_sample
{
    using joint_array = savrent::kinematics::joint_array;

    std::optional<path_point> point;
    joint_array joints{};
    double path_speed = 0; ///< Along the way as planned: millimetres, or degrees of the joint that goes farthest.

    /// The joints of the sample, for a pose the solution nearest to the reference; nothing when it is out of reach.
    /// `tool` is the TCP seen from the flange.
    [[nodiscard]] std::optional<joint_array> to_joints(const arm_kinematics& solver, const pose& tool,
                                                       const joint_array& reference) const;
};
} // namespace cbox_simulator::motion

#endif
