#ifndef SIMULATOR_MOTION_ARM_LOAD_H
#define SIMULATOR_MOTION_ARM_LOAD_H

#include <array>

#include "kinematics/arm_models.h"

namespace cbox_simulator::motion
{
/// How the joints move. Degrees, seconds.
struct joint_course
{
    const savrent::kinematics::joint_array& angles;
    const savrent::kinematics::joint_array& speeds;
    const savrent::kinematics::joint_array& accelerations;
};

/// A mass at the flange: kilograms, and millimetres in the flange frame.
struct carried_mass
{
    double mass = 0;
    std::array<double, 3> centre{};
};

/// What an arm presses with: newtons and newton metres along the axes of the base, at a point of the base frame in
/// millimetres.
struct pressing
{
    std::array<double, 3> force{};
    std::array<double, 3> torque{};
    std::array<double, 3> at{};
};

/**
 * A plain model of what it takes to hold and to move an arm: what its links and its load weigh and how slow they are to
 * move, what it presses with, friction, and the motors' own inertia.
 *
 * Each link is a mass in the middle between its two joints. All together weigh six kilograms and four times as much as
 * the arm can carry. A joint's rated torque holds the whole arm beyond it, level and straight, with as much as it can
 * carry a hand's breadth in front of the flange; what motors and friction add is a share of it, and so is what an
 * ampere makes. A copy for each table; asking it costs less than a microsecond.
 */
class arm_load
{
public:
    using joint_array = savrent::kinematics::joint_array;
    using vector3 = std::array<double, 3>;

    static constexpr double gravity = 9.81;      ///< Metres per second squared.
    static constexpr double rated_current = 8.0; ///< Amperes of a drive at its joint's rated torque.

    explicit arm_load(const savrent::kinematics::arm_model& arm) : arm_load(arm, arm.table) {}
    arm_load(const savrent::kinematics::arm_model& arm, const savrent::kinematics::dh_table& table);

    /// What the joints need, in newton metres. Down is where weights go, of any length, in the base frame.
    [[nodiscard]] joint_array torques(const joint_course& course, const carried_mass& carried, const vector3& down,
                                      const pressing& pressed) const;
    [[nodiscard]] const joint_array& rated_torques() const { return rated_; }

private:
    [[nodiscard]] joint_array torques_of_motors(const joint_course& course) const;

    savrent::kinematics::dh_table table_;
    joint_array cos_alpha_{};
    joint_array sin_alpha_{};
    joint_array masses_{};
    joint_array rated_{};
    joint_array speed_max_{};
    joint_array acceleration_max_{};
};
} // namespace cbox_simulator::motion

#endif
