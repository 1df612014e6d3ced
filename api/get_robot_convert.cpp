#include "qorin/robot_conversion.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "api/api_call_robot_internal_data.h"
#include "api/frame_read.h"
#include "savrent/cc/math/custum_util.h"

namespace
{
using protocol::joint_limit;
using protocol::robot_data_t;
using qorin_api::hand_out;
using qorin_api::kinematics_use;
using qorin_api::read_robot;
using savrent::cc::math::vector3;
using savrent::cc::math_savrent::custum_util;
using savrent::ctrl::algorithm::robot_kinematics;

constexpr unsigned int steps_after_failure = 10; // of the walk to a target that is not found at once

using joint_buffer = std::array<double, joint_limit>;

struct pose
{
    vector3 position;
    vector3 orientation;
};

/**
 * Judges the robot. Its record stays null while no control box is connected: the pose of a flange does without one, and
 * that of a TCP is refused.
 */
QORIN_API_RESULT find_robot(unsigned int robot_id, QORIN_POSE_TYPE type, const robot_data_t*& robot)
{
    const QORIN_API_RESULT result = qorin_internal_robot_common_check(robot_id, &robot);
    if (result == QORIN_API_RESULT_OK && robot == nullptr && type == QORIN_POSE_TYPE_TCP)
        return QORIN_API_RESULT_ERROR_CBOX_ID_INVALID;
    return result;
}

/// Joints of a robot that fit in a joint_buffer, whatever count the control box tells.
std::uint32_t joint_count_of(const robot_data_t& robot)
{
    return std::min(std::uint32_t{robot.number_of_joints}, joint_limit);
}

pose tcp_from_flange_of(const robot_data_t& robot)
{
    pose tool;
    auto& [position, orientation] = tool;
    hand_out(robot, &robot_data_t::tcp_from_flange, &position.x, &position.y, &position.z, &orientation.x,
             &orientation.y, &orientation.z);
    return tool;
}

/// The pose that a caller asks for, from that of the flange. Any type but the TCP's means the flange, and then `robot`
/// may be null.
pose from_flange(const pose& flange, QORIN_POSE_TYPE type, const robot_data_t* robot)
{
    if (type != QORIN_POSE_TYPE_TCP)
        return flange;
    const pose tool = tcp_from_flange_of(*robot);
    pose tcp;
    custum_util::convert_flange_at_base_to_tcp_at_base(flange.position, flange.orientation, tool.position,
                                                       tool.orientation, tcp.position, tcp.orientation);
    return tcp;
}

/// The flange pose, which kinematics modules work on, from the pose that a caller gives; as above.
pose to_flange(const pose& given, QORIN_POSE_TYPE type, const robot_data_t* robot)
{
    if (type != QORIN_POSE_TYPE_TCP)
        return given;
    const pose tool = tcp_from_flange_of(*robot);
    pose flange;
    custum_util::convert_tcp_at_base_to_flange_at_base(given.position, given.orientation, tool.position,
                                                       tool.orientation, flange.position, flange.orientation);
    return flange;
}

/**
 * Solves along the straight line from the flange position of the reference joints to the target, each step from the
 * joints of the one before, so that each solve starts close to its answer. The orientation is the target's all along.
 *
 * @param joints  output: only written when all steps are solved.
 */
QORIN_API_RESULT walk(robot_kinematics& kinematics, std::uint32_t joint_count, const double* reference,
                      const pose& target, unsigned int steps, double* joints)
{
    pose start;
    kinematics.forward(reference, start.position, start.orientation);
    vector3 direction = target.position - start.position;
    const double distance = direction.normalise();

    joint_buffer walked = {};
    std::copy_n(reference, joint_count, walked.begin());
    for (unsigned int done = 0; done < steps; ++done)
    {
        const vector3 position = start.position + direction * ((done + 1.0) / steps * distance);
        if (!kinematics.inverse(position, target.orientation, walked.data(), walked.data()))
            return QORIN_API_RESULT_WARNING_ROBOT_INVERSE_FAILURE;
    }
    std::copy_n(walked.begin(), joint_count, joints);
    return QORIN_API_RESULT_OK;
}

/// What a trajectory is the path of: a move that interpolates each joint for itself.
struct joint_move
{
    std::uint32_t joint_count; ///< at most joint_limit
    const double* start;
    const double* end;

    /// @param ratio  0 at the start, 1 at the end.
    [[nodiscard]] joint_buffer at(double ratio) const
    {
        joint_buffer joints = {};
        for (std::uint32_t j = 0; j < joint_count; ++j)
            joints[j] = (end[j] - start[j]) * ratio + start[j];
        return joints;
    }
};
} // namespace

QORIN_API_RESULT qorin_robot_util_joint_angle_to_pose_convert(unsigned int robot_id, QORIN_POSE_TYPE type,
                                                              const double* joints, double* position,
                                                              double* orientation)
{
    const robot_data_t* robot = nullptr;
    const QORIN_API_RESULT result = find_robot(robot_id, type, robot);
    if (result != QORIN_API_RESULT_OK)
        return result;
    const kinematics_use kinematics(robot_id);
    if (!kinematics)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    pose flange;
    kinematics->forward(joints, flange.position, flange.orientation);
    const pose asked = from_flange(flange, type, robot);
    std::copy_n(asked.position.ptr(), 3, position);
    std::copy_n(asked.orientation.ptr(), 3, orientation);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_robot_util_pose_to_joint_angle_convert(unsigned int robot_id, QORIN_POSE_TYPE type,
                                                              const double* reference, const double* position,
                                                              const double* orientation, double* joints)
{
    const robot_data_t* robot = nullptr;
    const QORIN_API_RESULT result = find_robot(robot_id, type, robot);
    if (result != QORIN_API_RESULT_OK)
        return result;
    const kinematics_use kinematics(robot_id);
    if (!kinematics)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    const pose target = to_flange({vector3(position), vector3(orientation)}, type, robot);
    if (kinematics->inverse(target.position, target.orientation, reference, joints))
        return QORIN_API_RESULT_OK;
    if (robot == nullptr) // nothing tells how many joints to walk with
        return QORIN_API_RESULT_ERROR_CBOX_ID_INVALID;
    return walk(*kinematics, joint_count_of(*robot), reference, target, steps_after_failure, joints);
}

QORIN_API_RESULT qorin_robot_util_pose_to_joint_angle_convert_iterative(unsigned int robot_id, QORIN_POSE_TYPE type,
                                                                        const double* reference, const double* position,
                                                                        const double* orientation, unsigned int steps,
                                                                        double* joints)
{
    return read_robot(robot_id,
                      [&](const robot_data_t& robot)
                      {
                          const kinematics_use kinematics(robot_id);
                          if (!kinematics)
                              return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
                          const pose target = to_flange({vector3(position), vector3(orientation)}, type, &robot);
                          return walk(*kinematics, joint_count_of(robot), reference, target, steps, joints);
                      });
}

QORIN_API_RESULT qorin_robot_util_pose_to_joint_all_possible_angle_convert(unsigned int robot_id,
                                                                           const double* position,
                                                                           const double* orientation, double* joints,
                                                                           bool* valid)
{
    const QORIN_API_RESULT result = qorin_internal_robot_common_check(robot_id, nullptr);
    if (result != QORIN_API_RESULT_OK)
        return result;
    const kinematics_use kinematics(robot_id);
    if (!kinematics)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    kinematics->inverse_all_solutions(vector3(position), vector3(orientation), joints, valid);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_robot_util_pose_to_posture_joint_angle_convert(unsigned int robot_id,
                                                                      QORIN_ROBOT_POSTURE posture,
                                                                      const double* position, const double* orientation,
                                                                      double* joints, bool* success)
{
    const QORIN_API_RESULT result = qorin_internal_robot_common_check(robot_id, nullptr);
    if (result != QORIN_API_RESULT_OK)
        return result;
    const kinematics_use kinematics(robot_id);
    if (!kinematics)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    *success = kinematics->inverse_from_posture(vector3(position), vector3(orientation), posture, joints);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_robot_util_position_trajectory_get(unsigned int robot_id, unsigned int joint_count,
                                                          const double* start_joints, const double* end_joints,
                                                          unsigned int point_count, QORIN_POSE_TYPE type, double* x,
                                                          double* y, double* z)
{
    return read_robot(robot_id,
                      [&](const robot_data_t& robot)
                      {
                          if (joint_count != robot.number_of_joints)
                              return QORIN_API_RESULT_ERROR_ROBOT_NUMBER_OF_JOINT_NOT_MATCHED;
                          const kinematics_use kinematics(robot_id);
                          if (!kinematics)
                              return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
                          const joint_move move = {std::min(joint_count, joint_limit), start_joints, end_joints};
                          for (unsigned int i = 0; i < point_count; ++i)
                          {
                              pose flange;
                              const joint_buffer joints = move.at(i / static_cast<double>(point_count - 1));
                              kinematics->forward(joints.data(), flange.position, flange.orientation);
                              const vector3 position = from_flange(flange, type, &robot).position;
                              x[i] = position.x;
                              y[i] = position.y;
                              z[i] = position.z;
                          }
                          return QORIN_API_RESULT_OK;
                      });
}
