#include "qorin/robot_safety_status.h"

#include <algorithm>
#include <cstring>

#include "api/frame_read.h"

namespace
{
using protocol::joint_data_t;
using protocol::robot_data_t;
using protocol::safety_plane_block_t;
using protocol::safety_shape_block_t;
using protocol::shared_data_t;
using qorin_api::hand_out;
using qorin_api::read_frame_of_robot;
using qorin_api::read_joint;
using qorin_api::read_joint_element;
using qorin_api::read_robot;
using qorin_api::read_robot_with_joint;
} // namespace

QORIN_API_RESULT qorin_robot_state_safety_get(unsigned int robot_id, QORIN_ROBOT_SAFETY_STATE* state)
{
    return read_robot(
        robot_id, [&](const robot_data_t& robot)
        { *state = robot.safety_violation == 0 ? QORIN_ROBOT_SAFETY_STATE_SAFE : QORIN_ROBOT_SAFETY_STATE_NOT_SAFE; });
}

QORIN_API_RESULT qorin_robot_safety_crc32_get(unsigned int robot_id, unsigned int* crc32)
{
    return read_robot(robot_id, &robot_data_t::safety_crc32, crc32);
}

QORIN_API_RESULT qorin_robot_safety_limit_switch_get(unsigned int robot_id, QORIN_SWITCH* limit_switch)
{
    return read_frame_of_robot(robot_id, &shared_data_t::safety_limit_switch, robot_id, limit_switch);
}

QORIN_API_RESULT qorin_robot_safety_limit_tcp_speed_max_get(unsigned int robot_id, double* speed_max)
{
    return read_robot(robot_id, &robot_data_t::safety_tcp_speed_max, speed_max);
}

QORIN_API_RESULT qorin_robot_safety_limit_tcp_acc_max_get(unsigned int robot_id, double* acc_max)
{
    return read_robot(robot_id, &robot_data_t::safety_tcp_acc_max, acc_max);
}

QORIN_API_RESULT qorin_robot_safety_limit_joint_angle_get(unsigned int robot_id, unsigned int joint, double* angle_1,
                                                          double* angle_2)
{
    return read_joint(robot_id, joint, &joint_data_t::safety_angle, angle_2, angle_1);
}

QORIN_API_RESULT qorin_robot_safety_limit_joint_speed_max_get(unsigned int robot_id, unsigned int joint,
                                                              double* speed_max)
{
    return read_joint(robot_id, joint, &joint_data_t::safety_speed_max, speed_max);
}

QORIN_API_RESULT qorin_robot_safety_limit_joint_acc_max_get(unsigned int robot_id, unsigned int joint, double* acc_max)
{
    return read_joint(robot_id, joint, &joint_data_t::safety_acc_max, acc_max);
}

QORIN_API_RESULT qorin_robot_safety_limit_velocity_in_reduced_mode_get(unsigned int robot_id, double* velocity_1,
                                                                       double* velocity_2)
{
    return read_robot(robot_id, &robot_data_t::velocity_in_reduced_mode, velocity_2, velocity_1);
}

QORIN_API_RESULT qorin_robot_safety_limit_collision_detection_tcp_force_in_reduced_mode_get(unsigned int robot_id,
                                                                                            double* force)
{
    return read_robot(robot_id, &robot_data_t::collision_tcp_force_in_reduced_mode, force);
}

QORIN_API_RESULT qorin_robot_safety_limit_collision_detection_torque_in_reduced_mode_get(unsigned int robot_id,
                                                                                         unsigned int count,
                                                                                         double* torque)
{
    const auto read = [&](const robot_data_t& robot)
    {
        // The frame tells the number of joints, and it may tell more than it holds.
        const std::size_t torques = std::min(count, protocol::joint_limit);
        std::memcpy(torque, robot.collision_torque_in_reduced_mode, torques * sizeof(double));
    };
    return read_robot_with_joint(robot_id, count, read);
}

QORIN_API_RESULT qorin_robot_safety_limit_tcp_bounding_shape_switch_get(unsigned int robot_id,
                                                                        QORIN_SWITCH* shape_switch)
{
    const auto read = [&](const shared_data_t& frame)
    { hand_out(frame.safety_shapes[robot_id], &safety_shape_block_t::tcp_bounding_shape_switch, shape_switch); };
    return read_frame_of_robot(robot_id, read);
}

QORIN_API_RESULT qorin_robot_safety_limit_plane_norm_distance_get(unsigned int robot_id, unsigned int plane,
                                                                  double* norm_x, double* norm_y, double* norm_z,
                                                                  double* distance)
{
    const auto read = [&](const shared_data_t& frame)
    {
        if (plane >= protocol::safety_plane_limit)
            return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
        const safety_plane_block_t& block = frame.safety_planes[robot_id];
        if (block.plane_switch[plane] == QORIN_SWITCH_OFF)
            return QORIN_API_RESULT_ERROR_ROBOT_INVAILD_WORK_SPACE_ID;
        *norm_x = block.plane[plane][0];
        *norm_y = block.plane[plane][1];
        *norm_z = block.plane[plane][2];
        *distance = -block.plane[plane][3];
        return QORIN_API_RESULT_OK;
    };
    return read_frame_of_robot(robot_id, read);
}

QORIN_API_RESULT qorin_robot_safety_limit_plane_norm_origin_get(unsigned int /*robot_id*/, unsigned int /*plane*/,
                                                                double* /*norm_x*/, double* /*norm_y*/,
                                                                double* /*norm_z*/, double* /*origin_x*/,
                                                                double* /*origin_y*/, double* /*origin_z*/)
{
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_robot_collision_detection_switch_get(unsigned int robot_id, QORIN_SWITCH* detection_switch)
{
    return read_robot(robot_id, &robot_data_t::collision_detection_switch, detection_switch);
}

QORIN_API_RESULT qorin_robot_collision_detection_threshold_tcp_resultant_force_get(unsigned int robot_id, double* force)
{
    return read_robot(robot_id, &robot_data_t::collision_threshold_tcp_resultant_force, force);
}

QORIN_API_RESULT qorin_robot_collision_detection_threshold_tcp_force_get(unsigned int robot_id, double* x, double* y,
                                                                         double* z, double* rx, double* ry, double* rz)
{
    return read_robot(robot_id, &robot_data_t::collision_threshold_tcp_force, x, y, z, rx, ry, rz);
}

QORIN_API_RESULT qorin_robot_collision_detection_threshold_joint_torque_get(unsigned int robot_id, unsigned int joint,
                                                                            double* torque)
{
    return read_joint_element(robot_id, joint, &robot_data_t::collision_threshold_joint_torque, torque);
}

QORIN_API_RESULT qorin_robot_collision_mitigation_switch_get(unsigned int robot_id, QORIN_SWITCH* mitigation_switch)
{
    return read_robot(robot_id, &robot_data_t::collision_mitigation_switch, mitigation_switch);
}
