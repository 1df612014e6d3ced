#include "qorin/robot_external_move_status.h"

#include <cmath>

#include "api/frame_read.h"

namespace
{
using protocol::robot_data_t;
using protocol::shared_data_t;
using qorin_api::frame_of;
using qorin_api::read_frame_of_robot;
using qorin_api::read_robot;
} // namespace

QORIN_API_RESULT qorin_robot_ext_profiler_switch_get(unsigned int robot_id, QORIN_SWITCH* profiler_switch)
{
    return read_robot(robot_id, &robot_data_t::ext_profiler_switch, profiler_switch);
}

QORIN_API_RESULT qorin_robot_ext_profiler_period_get(unsigned int robot_id, unsigned int* period)
{
    const auto read = [&](const robot_data_t& robot)
    {
        static const double cycle_ms = frame_of(robot, robot_id).control_cycle_us / 1000.0;
        // llround: what is too large for an integer comes out as some number.
        *period = static_cast<unsigned int>(std::llround(robot.ext_profiler_period * cycle_ms));
    };
    return read_robot(robot_id, read);
}

QORIN_API_RESULT qorin_robot_ext_profiler_buffer_size_get(unsigned int robot_id, unsigned int* size)
{
    return read_robot(robot_id, &robot_data_t::ext_profiler_buffer_size, size);
}

QORIN_API_RESULT qorin_robot_ext_profiler_tcp_type_get(unsigned int robot_id, QORIN_POSE_TYPE* type)
{
    return read_robot(robot_id, &robot_data_t::ext_profiler_tcp_type, type);
}

QORIN_API_RESULT qorin_robot_conveyor_mode_get(unsigned int robot_id, QORIN_CONVEYOR_MODE* mode)
{
    return read_robot(robot_id, &robot_data_t::conveyor_mode, mode);
}

QORIN_API_RESULT qorin_robot_conveyor_encoder_switch_get(unsigned int robot_id, QORIN_SWITCH* encoder_switch)
{
    return read_frame_of_robot(robot_id, &shared_data_t::conveyor_encoder_switch, encoder_switch);
}
