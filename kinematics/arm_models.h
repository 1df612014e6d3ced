#ifndef KINEMATICS_ARM_MODELS_H
#define KINEMATICS_ARM_MODELS_H

#include <array>
#include <span>

#include "kinematics/dh_table.h"
#include "qorin/enumerations.h"

namespace savrent::kinematics
{
/// What a joint can do. Degrees, degrees per second, degrees per second squared.
struct joint_range
{
    double angle_min;
    double angle_max;
    double speed_max;
    double acceleration_max;
};

/// Data of one arm as it leaves the factory. A control box may put another table in force.
struct arm_model
{
    QORIN_ROBOT_MODEL model;
    dh_table table;
    std::array<joint_range, joint_count> joints;
    double payload; ///< Kilograms.
};

/// The arms in the order of their models, from the smallest reach to the largest. All have a spherical wrist.
[[nodiscard]] std::span<const arm_model> arm_models();

/// Null when the model is none of ours.
[[nodiscard]] const arm_model* find_arm_model(QORIN_ROBOT_MODEL model);
} // namespace savrent::kinematics

#endif
