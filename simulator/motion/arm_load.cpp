#include "simulator/motion/arm_load.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include <Eigen/Geometry>

#include "kinematics/angles.h"

namespace cbox_simulator::motion
{
namespace
{
using Eigen::Vector3d;
using savrent::kinematics::joint_count;
using savrent::kinematics::radians;

constexpr double metres = 1e-3; // from millimetres
constexpr std::array<double, joint_count> shares_of_mass{0.25, 0.30, 0.20, 0.12, 0.08, 0.05};
constexpr double load_ahead_of_flange = 0.1; // metres

// Shares of the rated torque.
constexpr double of_rubbing = 0.05;
constexpr double of_rubbing_at_top_speed = 0.05;
constexpr double of_motor_at_top_acceleration = 0.2;
constexpr double full_rubbing_at = 1.0; // degrees per second; it must not leap where a joint turns back

Vector3d vector(const std::array<double, 3>& values)
{
    return Vector3d::Map(values.data());
}

/// A link as it moves, with the joint that turns it at its near end.
struct moving_link
{
    Vector3d axis;
    Vector3d reach;  ///< From its near end to its far end.
    Vector3d effort; ///< Mass by acceleration of its middle, weight included.
};

/// Of a point that a turning body carries, beside the acceleration of the body's origin.
Vector3d acceleration_at(const Vector3d& point, const Vector3d& turning, const Vector3d& turning_faster)
{
    return turning_faster.cross(point) + turning.cross(turning.cross(point));
}
} // namespace

arm_load::arm_load(const savrent::kinematics::arm_model& arm, const savrent::kinematics::dh_table& table)
    : table_(table)
{
    const double mass = 6 + 4 * arm.payload;
    double lever_of_load = load_ahead_of_flange;
    double torque = 0;
    double beyond = arm.payload;
    for (std::size_t i = joint_count; i-- > 0;)
    {
        masses_[i] = mass * shares_of_mass[i];
        cos_alpha_[i] = std::cos(radians(table.alpha[i]));
        sin_alpha_[i] = std::sin(radians(table.alpha[i]));
        speed_max_[i] = arm.joints[i].speed_max;
        acceleration_max_[i] = arm.joints[i].acceleration_max;
        // Straight ahead each link adds all of its length to the levers of what is beyond it.
        const double length = (std::abs(table.a[i]) + std::abs(table.d[i])) * metres;
        torque += gravity * (beyond * (length + std::exchange(lever_of_load, 0.0)) + masses_[i] * length / 2);
        beyond += masses_[i];
        rated_[i] = torque;
    }
}

arm_load::joint_array arm_load::torques(const joint_course& course, const carried_mass& carried, const vector3& down,
                                        const pressing& pressed) const
{
    std::array<moving_link, joint_count> links;
    Eigen::Matrix3d frame = Eigen::Matrix3d::Identity();
    Vector3d tip = Vector3d::Zero();
    Vector3d turning = Vector3d::Zero();
    Vector3d turning_faster = Vector3d::Zero();
    // Standing against the weight is the same as being lifted.
    Vector3d lifting = -gravity * vector(down).normalized();
    for (std::size_t i = 0; i < joint_count; ++i)
    {
        auto& [axis, reach, effort] = links[i];
        const double angle = radians(course.angles[i] + table_.theta[i]);
        axis = frame.col(2);
        turning_faster += axis * radians(course.accelerations[i]) + turning.cross(axis) * radians(course.speeds[i]);
        turning += axis * radians(course.speeds[i]);
        const double c = std::cos(angle);
        const double s = std::sin(angle);
        const Vector3d x = frame.col(0) * c + frame.col(1) * s;
        const Vector3d y = frame.col(1) * c - frame.col(0) * s;
        frame << x, y * cos_alpha_[i] + axis * sin_alpha_[i], axis * cos_alpha_[i] - y * sin_alpha_[i];
        reach = (axis * table_.d[i] + x * table_.a[i]) * metres;
        const Vector3d swing = acceleration_at(reach, turning, turning_faster);
        effort = masses_[i] * (lifting + swing / 2);
        lifting += swing;
        tip += reach;
    }

    const Vector3d centre = frame * vector(carried.centre) * metres;
    const Vector3d weight = carried.mass * (lifting + acceleration_at(centre, turning, turning_faster));
    Vector3d force = weight + vector(pressed.force);
    Vector3d moment = centre.cross(weight) + vector(pressed.torque) +
                      (vector(pressed.at) * metres - tip).cross(vector(pressed.force));
    auto torques = torques_of_motors(course);
    for (std::size_t i = joint_count; i-- > 0;)
    {
        const auto& [axis, reach, effort] = links[i];
        moment += reach.cross(force) + (reach / 2).cross(effort);
        force += effort;
        torques[i] += axis.dot(moment);
    }
    return torques;
}

arm_load::joint_array arm_load::torques_of_motors(const joint_course& course) const
{
    joint_array torques{};
    for (std::size_t i = 0; i < joint_count; ++i)
    {
        const double rubbing = of_rubbing * std::clamp(course.speeds[i] / full_rubbing_at, -1.0, 1.0) +
                               of_rubbing_at_top_speed * course.speeds[i] / speed_max_[i];
        torques[i] =
            rated_[i] * (rubbing + of_motor_at_top_acceleration * course.accelerations[i] / acceleration_max_[i]);
    }
    return torques;
}
} // namespace cbox_simulator::motion
