#include "simulator/model/path_offset.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

#include <Eigen/Geometry>

#include "kinematics/angles.h"
#include "kinematics/rotation.h"
#include "simulator/model/pose_rotation.h"
#include "simulator/model/pressed_force.h"

namespace cbox_simulator
{
namespace
{
using Eigen::Matrix3d;
using Eigen::Vector3d;
using savrent::kinematics::radians;

/// For what an application has not told. Lengths are millimetres, turns degrees.
struct usual_values
{
    double velocity;
    double acceleration;
    double deceleration;
    double approach_velocity;
    double stiffness; ///< Newtons a millimetre, newton metres a degree.
    double inertia;   ///< Kilograms, kilogram square metres.
    double touching;  ///< From here on the arm touches something: newtons, newton metres.
    double units;     ///< Of the motion in a metre, or a radian.
};
constexpr usual_values along{20, 500, 2000, 10, 100, 5, 1, 1000};
constexpr usual_values about{20, 500, 2000, 10, 1, 0.01, 0.1, 180 / std::numbers::pi};

constexpr double usual_belt_acceleration = 1000; // millimetres per second squared
constexpr double usual_damping_ratio = 1;
/// A belt may take joints to that many times their speed before the arm counts as carried out of reach. What is less is
/// for the safety limits.
constexpr double leeway = 1.5;

// What the arm could still go, and within which time, before it presses no further.
constexpr double room_ahead = 10;          // millimetres or degrees
constexpr double room_ahead_in_time = 0.1; // seconds

double told_or(double told, double usual)
{
    return told > 0 ? told : usual;
}

/**
 * How fast the arm goes along one axis to press as hard as it is told: as a mass that this force and the present one
 * push, in a damper that is right for the stiffness of what it presses on.
 */
double next_velocity(const force_control& told, std::size_t axis, double present, double velocity, double seconds)
{
    const auto& usual = axis < 3 ? along : about;
    const double inertia = told_or(told.inertia[axis], usual.inertia);
    const double stiffness = told_or(told.stiffness[axis], usual.stiffness) * usual.units;
    const double damping = 2 * told_or(told.damping_ratio[axis], usual_damping_ratio) * std::sqrt(stiffness * inertia);
    const double push = (told.force[axis] - present) / inertia * usual.units;
    const double pushed = (velocity + push * seconds) / (1 + damping / inertia * seconds);
    const double fastest = told_or(told.velocity[axis], usual.velocity);
    const double approach = std::min(told_or(told.approach_velocity[axis], usual.approach_velocity), fastest);
    const double limit = std::abs(present) < usual.touching ? approach : fastest;
    return std::clamp(pushed, -limit, limit);
}

/// With no more than the acceleration that is told for it. Where there is no room joints have much to do for little.
double changed_in_time(const force_control& told, std::size_t axis, double from, double to, double seconds,
                       bool has_room)
{
    const auto& usual = axis < 3 ? along : about;
    const bool gently = std::abs(to) > std::abs(from) || !has_room;
    const double most = gently ? told_or(told.acceleration[axis], usual.acceleration)
                               : told_or(told.deceleration[axis], usual.deceleration);
    return from + std::clamp(to - from, -most * seconds, most * seconds);
}

/// The way in which the belt runs, and within which the arm comes to its speed: told in a frame that is turned.
Vector3d run_up(const robot_state& robot)
{
    const auto& offset = robot.settings().conveyor_start_offset;
    return rotation_of(offset) * Vector3d::Map(offset.data());
}

Vector3d belt_direction(const robot_state& robot)
{
    const Vector3d way = run_up(robot);
    return way.norm() > 0 ? Vector3d(way.normalized())
                          : Vector3d(rotation_of(robot.settings().conveyor_start_offset).col(0));
}
} // namespace

bool is_taken_along(const robot_state& robot)
{
    return robot.settings().force.active == QORIN_SWITCH_ON || robot.settings().conveyor_mode == QORIN_CONVEYOR_MODE_ON;
}

void path_offset::begin(const joint_array& undisturbed)
{
    forget();
    begun_ = true;
    undisturbed_ = undisturbed;
}

bool path_offset::moves() const
{
    return belt_velocity_ != decltype(belt_velocity_){} || press_velocity_ != axis_values{};
}

double path_offset::time_to_rest() const
{
    double time = belt_acceleration_ > 0 ? Vector3d::Map(belt_velocity_.data()).norm() / belt_acceleration_ : 0;
    for (std::size_t axis = 0; axis < press_velocity_.size(); ++axis)
        time = std::max(time, std::abs(press_velocity_[axis]) / (axis < 3 ? along : about).deceleration);
    return time;
}

std::optional<path_offset::joint_array> path_offset::laid_over(const joint_array& undisturbed, const robot_state& robot,
                                                               double seconds, bool held)
{
    undisturbed_ = undisturbed;
    follow_belt(robot, seconds, held);
    for (std::size_t axis = 0; axis < belt_velocity_.size(); ++axis)
        displacement_.way[axis] += belt_velocity_[axis] * seconds;
    const auto further = pressed_further(robot, seconds, held);
    if (const auto joints = displaced(robot, further, seconds))
    {
        displacement_ = further;
        return joints;
    }
    press_velocity_ = {};
    return displaced(robot, displacement_, seconds * leeway);
}

void path_offset::follow_belt(const robot_state& robot, double seconds, bool held)
{
    const double speed = robot.settings().belt_speed;
    const bool on_belt = robot.settings().conveyor_mode == QORIN_CONVEYOR_MODE_ON;
    if (on_belt && !on_belt_)
    {
        const double length = run_up(robot).norm();
        belt_acceleration_ = length > 0 && speed != 0 ? speed * speed / (2 * length) : usual_belt_acceleration;
    }
    on_belt_ = on_belt;
    const Vector3d wanted = on_belt && !held ? Vector3d(belt_direction(robot) * speed) : Vector3d(Vector3d::Zero());
    auto velocity = Vector3d::Map(belt_velocity_.data());
    const Vector3d change = wanted - velocity;
    const double most = belt_acceleration_ * seconds;
    if (change.norm() <= most)
        velocity = wanted;
    else
        velocity += change.normalized() * most;
}

path_offset::displacement path_offset::pressed_further(const robot_state& robot, double seconds, bool held)
{
    const auto& told = robot.settings().force;
    const bool presses = told.active == QORIN_SWITCH_ON && !held;
    if (!presses && press_velocity_ == axis_values{})
    {
        filtered_.reset();
        return displacement_;
    }

    auto wanted = presses ? wanted_velocity(robot, seconds) : axis_values{};
    const bool room = wanted == axis_values{} || has_room(robot, wanted);
    if (!room)
        wanted = {};
    axis_values step{};
    for (std::size_t axis = 0; axis < wanted.size(); ++axis)
    {
        auto& velocity = press_velocity_[axis];
        velocity = changed_in_time(told, axis, velocity, wanted[axis], seconds, room);
        step[axis] = velocity * seconds;
    }
    return moved(robot, step);
}

axis_values path_offset::wanted_velocity(const robot_state& robot, double seconds)
{
    const auto& told = robot.settings().force;
    const auto present = controlled_force(robot);
    if (!filtered_)
        filtered_ = present;
    const double share =
        told.low_pass_filter > 0 ? 1 - std::exp(-2 * std::numbers::pi * told.low_pass_filter * seconds) : 1;
    axis_values wanted{};
    for (std::size_t axis = 0; axis < present.size(); ++axis)
    {
        auto& felt = (*filtered_)[axis];
        felt += share * (present[axis] - felt);
        if (told.direction[axis] == QORIN_SWITCH_ON)
            wanted[axis] = next_velocity(told, axis, felt, press_velocity_[axis], seconds);
    }
    return wanted;
}

/// Whether the arm could go on so for longer than it takes to come to rest. Where it can go no further its joints would
/// have to stop too suddenly.
bool path_offset::has_room(const robot_state& robot, const axis_values& velocity) const
{
    axis_values ahead{};
    for (std::size_t axis = 0; axis < velocity.size(); ++axis)
        if (velocity[axis] != 0)
            ahead[axis] = std::copysign(room_ahead, velocity[axis]) + velocity[axis] * room_ahead_in_time;
    return displaced(robot, moved(robot, ahead), 0).has_value();
}

path_offset::displacement path_offset::moved(const robot_state& robot, const axis_values& by) const
{
    const bool by_tcp = robot.settings().force.coordinate == QORIN_REF_COORDINATE_TCP;
    const Matrix3d axes = by_tcp ? rotation_of(robot.commanded().tcp) : Matrix3d(Matrix3d::Identity());
    auto result = displacement_;
    Vector3d::Map(result.way.data()) += axes * Vector3d::Map(&by[0]);
    const Vector3d turn = axes * Vector3d::Map(&by[3]) * radians(1);
    if (const double angle = turn.norm(); angle > 0)
        Matrix3d::Map(result.turn.data()) =
            Eigen::AngleAxisd(angle, turn / angle) * Matrix3d(Matrix3d::Map(displacement_.turn.data()));
    return result;
}

std::optional<path_offset::joint_array> path_offset::displaced(const robot_state& robot, const displacement& by,
                                                               double seconds) const
{
    const auto tcp = placed(robot.flange_pose_at(undisturbed_), robot.tcp_from_flange());
    pose moved;
    Vector3d::Map(moved.data()) = Vector3d::Map(tcp.data()) + Vector3d::Map(by.way.data());
    const auto orientation = savrent::kinematics::orientation_of(Matrix3d::Map(by.turn.data()) * rotation_of(tcp));
    std::ranges::copy(orientation, moved.begin() + 3);
    const auto& before = robot.commanded().joints;
    const auto joints = robot.joints_at(outer_of(moved, robot.tcp_from_flange()), before);
    if (!joints || !robot.can_stand_at(*joints))
        return {};
    for (std::size_t joint = 0; joint < joints->size() && seconds > 0; ++joint)
        if (std::abs((*joints)[joint] - before[joint]) > robot.range_of(joint).speed_max * seconds)
            return {};
    return joints;
}
} // namespace cbox_simulator
