#ifndef SIMULATOR_MODEL_STANCE_H
#define SIMULATOR_MODEL_STANCE_H

#include <array>

#include "kinematics/dh_table.h"
#include "simulator/model/pose.h"

namespace cbox_simulator
{
/// Joints and the poses that they make, and how both were moving when they came there. Degrees, millimetres, seconds.
struct stance
{
    savrent::kinematics::joint_array joints{};
    savrent::kinematics::joint_array speeds{};
    savrent::kinematics::joint_array accelerations{};
    pose flange{};
    pose tcp{};
    std::array<double, 3> tcp_velocity{};
    std::array<double, 3> tcp_turning{}; ///< About the axes of the base.

    /// Has come to rest, with nothing left of how it came there.
    [[nodiscard]] bool rests() const { return speeds == decltype(speeds){} && accelerations == decltype(speeds){}; }

    /// Forgets how it came there.
    void rest()
    {
        speeds = accelerations = {};
        tcp_velocity = tcp_turning = {};
    }
};
} // namespace cbox_simulator

#endif
