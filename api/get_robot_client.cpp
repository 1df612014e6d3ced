// Getters that answer from the client's own record of a robot, not from the status mirror.
#include "qorin/robot.h"

#include "api/api_call_robot_internal_data.h"
#include "api/internal_robot_common.h"
#include "api/internal_robot_state.h"

namespace
{
using qorin_api::_api_robot_data;
using qorin_api::api_call_robot_internal_data;

/// The shape of these getters: the robot is judged, and then its record is read.
template <class Read>
QORIN_API_RESULT read_record(unsigned int robot_id, const protocol::robot_data_t** robot_data, Read&& read)
{
    const QORIN_API_RESULT result = qorin_internal_robot_common_check(robot_id, robot_data);
    if (result != QORIN_API_RESULT_OK)
        return result;
    read(*api_call_robot_internal_data::get_instance()->get(robot_id));
    return QORIN_API_RESULT_OK;
}

/// For getters that want a robot that was created, whatever the mirror says about it.
template <class Read>
QORIN_API_RESULT read_created(unsigned int robot_id, Read&& read)
{
    return read_record(robot_id, nullptr, read);
}

/// For getters that want the robot in the mirror too.
template <class Read>
QORIN_API_RESULT read_mirrored(unsigned int robot_id, Read&& read)
{
    const protocol::robot_data_t* robot_data = nullptr;
    return read_record(robot_id, &robot_data, read);
}

/// Hands a recording getter on to the control software's side of it.
template <class... LocalParams, class... Params>
QORIN_API_RESULT recorded_angle(QORIN_API_RESULT (*internal_getter)(unsigned int, LocalParams...),
                                unsigned int robot_id, Params... params)
{
    const QORIN_API_RESULT result = qorin_internal_robot_common_check(robot_id, nullptr);
    return result == QORIN_API_RESULT_OK ? internal_getter(robot_id, params...) : result;
}
} // namespace

QORIN_API_RESULT qorin_robot_motion_auto_adjust_swith_get(unsigned int robot_id, QORIN_SWITCH* auto_adjust)
{
    return read_created(robot_id, [&](_api_robot_data& robot) { *auto_adjust = robot.auto_adjust_switch; });
}

QORIN_API_RESULT qorin_robot_kinematics_dh_parameter_get(unsigned int robot_id, unsigned int /*count*/,
                                                         double* parameter_1, double* parameter_2, double* parameter_3,
                                                         double* parameter_4)
{
    const qorin_api::kinematics_use kinematics(robot_id);
    if (!kinematics)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    return read_created(robot_id, [&](_api_robot_data&)
                        { kinematics->get_dh_parameter(parameter_1, parameter_2, parameter_3, parameter_4); });
}

QORIN_API_RESULT qorin_robot_ext_move_switch_get(unsigned int robot_id, QORIN_SWITCH* ext_move)
{
    return read_mirrored(robot_id, [&](_api_robot_data& robot) { *ext_move = robot.ext_move_switch; });
}

QORIN_API_RESULT qorin_robot_ext_move_stop_mode_get(unsigned int robot_id, QORIN_SWITCH* stop_mode)
{
    return read_mirrored(robot_id, [&](_api_robot_data& robot) { *stop_mode = robot.ext_move_stop_mode; });
}

QORIN_API_RESULT qorin_robot_dynamics_dry_run_state_get(unsigned int robot_id, QORIN_SWITCH* dry_run)
{
    return read_created(robot_id, [&](_api_robot_data&)
                        { *dry_run = is_dry_run(robot_id) ? QORIN_SWITCH_ON : QORIN_SWITCH_OFF; });
}

QORIN_API_RESULT qorin_robot_recording_angle_start_get(unsigned int robot_id, unsigned int buffer_id,
                                                       unsigned int joint, double* angle)
{
    return recorded_angle(qorin_internal_robot_recording_angle_start_get, robot_id, buffer_id, joint, angle);
}

QORIN_API_RESULT qorin_robot_recording_angle_end_get(unsigned int robot_id, unsigned int buffer_id, unsigned int joint,
                                                     double* angle)
{
    return recorded_angle(qorin_internal_robot_recording_angle_end_get, robot_id, buffer_id, joint, angle);
}

QORIN_API_RESULT qorin_robot_recording_angle_start_from_file_get(unsigned int robot_id, const char* file,
                                                                 unsigned int joint, double* angle)
{
    return recorded_angle(qorin_internal_robot_recording_angle_start_from_file_get, robot_id, file, joint, angle);
}

QORIN_API_RESULT qorin_robot_recording_angle_end_from_file_get(unsigned int robot_id, const char* file,
                                                               unsigned int joint, double* angle)
{
    return recorded_angle(qorin_internal_robot_recording_angle_end_from_file_get, robot_id, file, joint, angle);
}
