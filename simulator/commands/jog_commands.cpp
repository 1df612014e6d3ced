#include "simulator/commands/families.h"

#include <cmath>
#include <memory>
#include <utility>

#include "simulator/commands/typed_command.h"
#include "simulator/commands/when_ready.h"
#include "simulator/model/planned_source.h"
#include "simulator/model/possible_values.h"
#include "simulator/motion/jog.h"

namespace cbox_simulator
{
namespace
{
using motion::jog_speed;
using motion::planned_motion;

/// What a jog is told of itself: its path, and how fast.
enum class jogged
{
    position,
    orientation
};

/// For a speed or an acceleration of 0. Millimetres or degrees, and seconds.
constexpr jog_speed usual_speed{};

/// The arm must be free for it, which it is not while a motion, points from outside or a conveyor have it.
template <class... Values>
QORIN_API_RESULT judge_jog(box_model& model, const robot_state& robot, const jog_speed& told, Values... values)
{
    const auto& kept = robot.settings();
    if (!is_at_rest(robot.moving_state()) || !model.motion_of(robot).is_free() ||
        kept.switches.joint_chaser == QORIN_SWITCH_ON || robot.ext_move().active() == QORIN_SWITCH_ON ||
        robot.profiler().active() == QORIN_SWITCH_ON || kept.conveyor_mode == QORIN_CONVEYOR_MODE_ON)
        return QORIN_API_RESULT_ROBOT_UNABLE_JOG_STATE;
    return (is_possible(values) && ...) && is_magnitude(told.speed) && is_magnitude(told.acceleration)
               ? QORIN_API_RESULT_OK
               : QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
}

jog_speed told_or_usual(const jog_speed& told)
{
    return {told.speed > 0 ? told.speed : usual_speed.speed,
            told.acceleration > 0 ? told.acceleration : usual_speed.acceleration};
}

QORIN_API_RESULT start(box_model& model, robot_state& robot, planned_motion planned, const jog_speed& told)
{
    model.motion_of(robot).start(std::unique_ptr<motion_source>(
        std::make_unique<planned_source>(std::move(planned), told.speed, told.acceleration)));
    return QORIN_API_RESULT_OK;
}

vector3 seen_from_base(const robot_state& robot, QORIN_REF_COORDINATE coordinate, const vector3& vector)
{
    if (coordinate == QORIN_REF_COORDINATE_BASE)
        return vector;
    const auto& tcp = robot.commanded().tcp;
    const auto turned = placed({0, 0, 0, tcp[3], tcp[4], tcp[5]}, {vector[0], vector[1], vector[2], 0, 0, 0});
    return {turned[0], turned[1], turned[2]};
}

/// As far as the distance, or to where the arm can go no further on that way.
planned_motion plan_jog(jogged what, const robot_state& robot, const vector3& along, const jog_speed& told,
                        double distance = motion::no_end)
{
    const motion::moving_arm arm{robot.kinematics(), robot.bounds(), robot.tcp_from_flange()};
    const auto& joints = robot.commanded().joints;
    return what == jogged::position ? motion::jog_position(arm, joints, along, told, distance)
                                    : motion::jog_orientation(arm, joints, along, told, distance);
}

QORIN_API_RESULT jog_joint(box_model& model, robot_state& robot, std::uint32_t joint, QORIN_DIRECTION direction,
                           double speed, double acceleration)
{
    if (joint >= robot.joint_count())
        return QORIN_API_RESULT_ERROR_ROBOT_JOINT_INDEX_OUT_OF_RANGE;
    const jog_speed told{speed, acceleration};
    if (const auto result = judge_jog(model, robot, told, direction); result != QORIN_API_RESULT_OK)
        return result;
    const auto used = told_or_usual(told);
    return start(model, robot, motion::jog_joint(robot.commanded().joints, joint, direction, used, robot.bounds()),
                 used);
}

/// The first three doubles are the way in the told coordinate: of the position in millimetres, or the turn as a vector
/// along its axis in degrees.
template <jogged what>
QORIN_API_RESULT jog_tcp(box_model& model, robot_state& robot, QORIN_REF_COORDINATE coordinate, double x, double y,
                         double z, double speed, double acceleration)
{
    const jog_speed told{speed, acceleration};
    if (const auto result = judge_jog(model, robot, told, coordinate, x, y, z); result != QORIN_API_RESULT_OK)
        return result;
    const vector3 way = seen_from_base(robot, coordinate, {x, y, z});
    const double length = std::hypot(way[0], way[1], way[2]);
    if (length == 0)
        return QORIN_API_RESULT_ERROR_ROBOT_VECTOR_SIZE_ZERO;
    const auto used = told_or_usual(told);
    return start(model, robot, plan_jog(what, robot, way, used, length), used);
}

template <jogged what, std::size_t axis>
QORIN_API_RESULT jog_tcp_axis(box_model& model, robot_state& robot, QORIN_REF_COORDINATE coordinate,
                              QORIN_DIRECTION direction, double speed, double acceleration)
{
    const jog_speed told{speed, acceleration};
    if (const auto result = judge_jog(model, robot, told, coordinate, direction); result != QORIN_API_RESULT_OK)
        return result;
    vector3 along{};
    along[axis] = direction == QORIN_DIRECTION_POSITIVE ? 1 : -1;
    const auto used = told_or_usual(told);
    return start(model, robot, plan_jog(what, robot, seen_from_base(robot, coordinate, along), used), used);
}

/// Jogs have a result of their own for a robot that is not ready.
template <auto handler>
constexpr auto jog = when_ready<handler, QORIN_API_RESULT_ROBOT_UNABLE_JOG_STATE>;

using enum jogged;

constexpr command_row rows[] = {
    controlled<jog<jog_joint>>("qorin_robot_jog_joint"),
    controlled<jog<jog_tcp<position>>>("qorin_robot_jog_tcp_position"),
    controlled<jog<jog_tcp<orientation>>>("qorin_robot_jog_tcp_orientation"),
    controlled<jog<jog_tcp_axis<position, 0>>>("qorin_robot_jog_tcp_position_x"),
    controlled<jog<jog_tcp_axis<position, 1>>>("qorin_robot_jog_tcp_position_y"),
    controlled<jog<jog_tcp_axis<position, 2>>>("qorin_robot_jog_tcp_position_z"),
    controlled<jog<jog_tcp_axis<orientation, 0>>>("qorin_robot_jog_tcp_orientation_x"),
    controlled<jog<jog_tcp_axis<orientation, 1>>>("qorin_robot_jog_tcp_orientation_y"),
    controlled<jog<jog_tcp_axis<orientation, 2>>>("qorin_robot_jog_tcp_orientation_z"),
};
} // namespace

std::span<const command_row> jog_commands()
{
    return rows;
}
} // namespace cbox_simulator
