#ifndef TESTS_KINEMATICS_ARM_TEST_SUPPORT_H
#define TESTS_KINEMATICS_ARM_TEST_SUPPORT_H

#include <array>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <ostream>
#include <random>
#include <string>

#include <Eigen/Geometry>
#include <gtest/gtest.h>

#include "kinematics/arm_models.h"
#include "kinematics/arm_solver.h"

namespace savrent::kinematics
{
/// Names the case of a test that runs for every model.
inline void PrintTo(const arm_model& arm, std::ostream* out)
{
    *out << arm.model;
}
} // namespace savrent::kinematics

// An arm once more, by chaining elementary transforms, so that the solver is judged by something that shares no code
// with it.
namespace kinematics_test
{
using namespace savrent::kinematics;

inline constexpr double position_tolerance = 1e-9; // millimetres
inline constexpr double rotation_tolerance = 1e-9; // radians

inline double to_radians(double degrees)
{
    return degrees * std::numbers::pi / 180.0;
}

/// Poses per model for the long property tests. Sanitizers slow a solve tenfold, so their builds take a tenth;
/// otherwise only the environment variable QORIN_KINEMATICS_TEST_POSES changes the number.
inline int pose_count()
{
    if (const char* text = std::getenv("QORIN_KINEMATICS_TEST_POSES"))
        return std::atoi(text);
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return 10'000;
#else
    return 100'000;
#endif
}

inline Eigen::AngleAxisd turn(double degrees, const Eigen::Vector3d& axis)
{
    return {to_radians(degrees), axis};
}

inline Eigen::Isometry3d transform_of(const flange_pose& pose)
{
    Eigen::Isometry3d transform = Eigen::Isometry3d::Identity();
    transform.translate(Eigen::Vector3d(pose.position[0], pose.position[1], pose.position[2]));
    transform.rotate(turn(pose.orientation[2], Eigen::Vector3d::UnitZ()));
    transform.rotate(turn(pose.orientation[1], Eigen::Vector3d::UnitY()));
    transform.rotate(turn(pose.orientation[0], Eigen::Vector3d::UnitX()));
    return transform;
}

/// Frames 0 (base) to 6 (flange).
inline std::array<Eigen::Isometry3d, 7> link_frames(const dh_table& table, const joint_array& joints)
{
    std::array<Eigen::Isometry3d, 7> frames;
    frames[0] = Eigen::Isometry3d::Identity();
    for (std::size_t i = 0; i < joint_count; ++i)
    {
        frames[i + 1] = frames[i] * turn(joints[i] + table.theta[i], Eigen::Vector3d::UnitZ()) *
                        Eigen::Translation3d(table.a[i], 0.0, table.d[i]) *
                        turn(table.alpha[i], Eigen::Vector3d::UnitX());
    }
    return frames;
}

inline double position_error(const Eigen::Isometry3d& a, const Eigen::Isometry3d& b)
{
    return (a.translation() - b.translation()).norm();
}

/// Angle between two rotations. For small angles the norm of the difference is sqrt(2) times it.
inline double rotation_error(const Eigen::Isometry3d& a, const Eigen::Isometry3d& b)
{
    return (a.linear() - b.linear()).norm() / std::numbers::sqrt2;
}

inline bool reaches(const arm_solver& solver, const joint_array& joints, const Eigen::Isometry3d& target)
{
    const Eigen::Isometry3d reached = transform_of(solver.forward(joints));
    // The comparisons are false for NaN.
    return position_error(reached, target) < position_tolerance && rotation_error(reached, target) < rotation_tolerance;
}

/// The posture seen in the links themselves.
inline posture observed_posture(const dh_table& table, const joint_array& joints)
{
    const auto frames = link_frames(table, joints);
    const Eigen::Vector3d ahead = frames[1].linear().col(0);
    const Eigen::Vector3d up = Eigen::Vector3d::UnitZ();
    const Eigen::Vector3d wrist = frames[5].translation();
    const Eigen::Vector3d to_wrist = wrist - frames[1].translation();
    const Eigen::Vector3d to_elbow = frames[2].translation() - frames[1].translation();
    const double elbow_left_of_line = to_wrist.dot(ahead) * to_elbow.dot(up) - to_wrist.dot(up) * to_elbow.dot(ahead);
    const bool rear = wrist.dot(ahead) < 0.0;
    return {rear, rear ? elbow_left_of_line > 0.0
                       : elbow_left_of_line<0.0, std::sin(to_radians(joints[4] + table.theta[4]))> 0.0};
}

inline joint_array random_joints(std::mt19937_64& random, const arm_model& arm)
{
    joint_array joints;
    for (std::size_t i = 0; i < joint_count; ++i)
    {
        const auto& range = arm.joints[i];
        joints[i] = std::uniform_real_distribution(range.angle_min, range.angle_max)(random);
    }
    return joints;
}

/// For the message of a failed check.
struct shown
{
    const joint_array& joints;

    friend std::ostream& operator<<(std::ostream& out, const shown& value)
    {
        out.precision(17);
        for (const double joint : value.joints)
            out << joint << ' ';
        return out;
    }
};

/// The solutions of a pose, each of which reaches it.
inline solution_set reaching_solutions(const arm_solver& solver, const flange_pose& pose)
{
    const solution_set solutions = solver.inverse_all_solutions(pose);
    const Eigen::Isometry3d target = transform_of(pose);
    for (std::size_t s = 0; s < solution_count; ++s)
        EXPECT_TRUE(!solutions.valid[s] || reaches(solver, solutions.joints[s], target))
            << "solution " << s << ": " << shown{solutions.joints[s]};
    return solutions;
}

/// A test for each model; a failure ends it.
class every_arm : public testing::TestWithParam<arm_model>
{
protected:
    joint_array random_joints() { return kinematics_test::random_joints(random, GetParam()); }

    const dh_table& table = GetParam().table;
    const arm_solver solver{table};
    std::mt19937_64 random{GetParam().model};
};

inline std::string model_of(const testing::TestParamInfo<arm_model>& tested)
{
    return std::to_string(tested.param.model);
}
} // namespace kinematics_test

#endif
