#ifndef TESTS_SIMULATOR_RANDOM_MOTIONS_H
#define TESTS_SIMULATOR_RANDOM_MOTIONS_H

#include <algorithm>
#include <cmath>
#include <random>

#include <Eigen/Geometry>

#include "kinematics/arm_models.h"
#include "simulator/motion/pose_frame.h"
#include "simulator/motion/way_check.h"

// Motions of every kind from one seed, and how far two places are apart.
namespace motion_test
{
using namespace cbox_simulator;
using namespace cbox_simulator::motion;
using Eigen::Vector3d;

inline constexpr double cycle = 1e-3; ///< Seconds.

inline joint_bounds bounds_of(const savrent::kinematics::arm_model& arm)
{
    joint_bounds bounds;
    for (std::size_t joint = 0; joint < joint_count; ++joint)
        bounds[joint] = {arm.joints[joint].angle_min, arm.joints[joint].angle_max, arm.joints[joint].speed_max,
                         arm.joints[joint].acceleration_max};
    return bounds;
}

class random_motions
{
public:
    explicit random_motions(unsigned seed) : random_(seed) {}

    double between(double least, double greatest) { return std::uniform_real_distribution(least, greatest)(random_); }
    bool toss() { return between(0, 1) < 0.5; }
    /// As likely to be small as to be large.
    double size(double least, double greatest) { return std::exp(between(std::log(least), std::log(greatest))); }

    motion_limits limits()
    {
        return {size(1, 500), size(10, 5000), size(10, 5000), toss() ? 0 : between(0, 100),
                toss() ? QORIN_VELOCITY_PROFILE_TRAPEZODAL : QORIN_VELOCITY_PROFILE_ASYMMETRIC_S_CURVE};
    }
    vector3 vector(double reach) { return {between(-reach, reach), between(-reach, reach), between(-reach, reach)}; }
    pose placement()
    {
        const vector3 position = vector(800);
        return {position[0], position[1], position[2], between(-180, 180), between(-90, 90), between(-180, 180)};
    }
    joint_array joints(const joint_bounds& bounds)
    {
        joint_array angles;
        for (std::size_t joint = 0; joint < joint_count; ++joint)
            angles[joint] =
                between(std::max(bounds[joint].angle_min, -170.0), std::min(bounds[joint].angle_max, 170.0));
        return angles;
    }

private:
    std::mt19937_64 random_;
};

inline Vector3d at(const pose& of)
{
    return position_of(of);
}
/// Degrees.
inline double turn_between(const pose& a, const pose& b)
{
    return savrent::kinematics::degrees(
        cbox_simulator::motion::rotation_of(a).angularDistance(cbox_simulator::motion::rotation_of(b)));
}
} // namespace motion_test

#endif
