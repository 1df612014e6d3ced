// Robots: creation and destruction, which keep the client's own records in step, and what is read from those.
#include "qorin/robot.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>

#include <unistd.h>

#include "api/api_call_robot_internal_data.h"
#include "api/internal_shared_data.h"
#include "rpc/rpc_internal.h"
#include "rpc/wrapper.h"
#include "savrent/cc/os_util.h"

namespace
{
using namespace std::chrono_literals;
using protocol::joint_data_t;
using protocol::joint_limit;
using protocol::robot_data_t;
using qorin_api::api_call_robot_internal_data;
using qorin_api::kinematics_use;
using qorin_api_rpc::from_mirror;
using qorin_api_rpc::logged_call;
using qorin_api_rpc::send_command;

constexpr auto frame_pause = 10ms; // lets a status frame with the new robot arrive

void set_dh_table(unsigned int robot_id, const double* parameter_1, const double* parameter_2,
                  const double* parameter_3, const double* parameter_4)
{
    if (const kinematics_use kinematics{robot_id})
        kinematics->set_dh_parameter(parameter_1, parameter_2, parameter_3, parameter_4);
}

/// Gives a robot's kinematics the table of the mirror. Joints that the mirror does not tell of are zero.
void take_dh_table(const protocol::shared_data_t& frame, unsigned int robot_id)
{
    double table[4][joint_limit] = {};
    if (robot_id < std::size(frame.robots))
    {
        const robot_data_t& robot = frame.robots[robot_id];
        const unsigned int told = robot.number_of_joints; // read once: the data thread may write meanwhile
        const unsigned int joints = std::min(told, joint_limit);
        for (unsigned int i = 0; i < joints; ++i)
        {
            const joint_data_t& joint = robot.joint[i];
            table[0][i] = joint.dh_parameter_1;
            table[1][i] = joint.dh_parameter_2;
            table[2][i] = joint.dh_parameter_3;
            table[3][i] = joint.dh_parameter_4;
        }
    }
    set_dh_table(robot_id, table[0], table[1], table[2], table[3]);
}

std::atomic<pid_t> g_module_process = 0; ///< the process that opened the modules

/**
 * Closes the modules of the robots that are left when the process ends.
 *
 * The receive threads end first: callbacks on them may ask for a robot. A process that was forked off leaves all to the
 * one that has the threads.
 */
void end_robots()
{
    if (g_module_process.load(std::memory_order_relaxed) != getpid())
        return;
    qorin_api_rpc::end_reception();
    api_call_robot_internal_data::get_instance()->close_all();
}

/// The robot's place on this side, once it stands on the control box. Nothing is undone there when this fails.
QORIN_API_RESULT make_record(unsigned int robot_id, QORIN_ROBOT_MODEL model)
{
    const auto registry = api_call_robot_internal_data::get_instance();
    const bool is_new = registry->get(robot_id) == nullptr;
    const QORIN_API_RESULT result = registry->create(robot_id, model);
    // Told after a module is mapped, so that it is closed before its own static objects are destroyed.
    if (result == QORIN_API_RESULT_OK && is_new)
    {
        g_module_process.store(getpid(), std::memory_order_relaxed);
        std::atexit(end_robots);
    }
    return result;
}

QORIN_API_RESULT make_record_of_new_robot(unsigned int cbox_id, unsigned int robot_id, QORIN_ROBOT_MODEL model)
{
    const QORIN_API_RESULT result = make_record(robot_id, model);
    if (result != QORIN_API_RESULT_OK)
        return result;
    savrent::cc::os_util::sleep_for(frame_pause);
    take_dh_table(*qorin_api_rpc::get_cbox(cbox_id)->get_shared_data(), robot_id);
    return QORIN_API_RESULT_OK;
}
} // namespace

// The id is taken from the reply and not from the caller's variable: the pointer may be null.
QORIN_API_RESULT qorin_rpc_robot_create(unsigned int cbox_id, QORIN_ROBOT_MODEL model, const char* text,
                                        unsigned int value, unsigned int* robot_id)
{
    const auto create = [&]
    {
        const auto result = send_command<"qorin_robot_create">(cbox_id, model, text, value, robot_id);
        return result == QORIN_API_RESULT_OK
                   ? make_record_of_new_robot(cbox_id, qorin_api_rpc::get_out_param()->value[0], model)
                   : result;
    };
    return logged_call<"qorin_robot_create">(create, cbox_id, model, text, value, robot_id);
}

// What changes the records runs under the call lock; there is no line, since nothing is asked of the control box.
QORIN_API_RESULT qorin_robot_attach(unsigned int robot_id)
{
    const std::lock_guard lock(no_mangle_qorin_api_call_recursive_lock::mtx);
    const protocol::shared_data_t* const frame = qorin_internal_get_shared_data();
    if (frame == nullptr || robot_id >= std::size(frame->robots) || robot_id >= frame->robot_count)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    const auto model = static_cast<QORIN_ROBOT_MODEL>(frame->robots[robot_id].model_name);
    const QORIN_API_RESULT result = make_record(robot_id, model);
    if (result == QORIN_API_RESULT_OK)
        take_dh_table(*frame, robot_id);
    return result;
}

QORIN_API_RESULT qorin_rpc_robot_destroy(unsigned int cbox_id, unsigned int robot_id)
{
    const auto destroy = [&]
    {
        const auto result = send_command<"qorin_robot_destroy">(cbox_id, robot_id);
        if (result == QORIN_API_RESULT_OK)
            api_call_robot_internal_data::get_instance()->destroy(robot_id);
        return result;
    };
    return logged_call<"qorin_robot_destroy">(destroy, cbox_id, robot_id);
}

QORIN_API_RESULT qorin_rpc_robot_kinematics_dh_parameter_set(unsigned int cbox_id, unsigned int robot_id,
                                                             unsigned int count, const double* parameter_1,
                                                             const double* parameter_2, const double* parameter_3,
                                                             const double* parameter_4)
{
    const auto set = [&]
    {
        const auto result = send_command<"qorin_robot_kinematics_dh_parameter_set">(
            cbox_id, robot_id, count, parameter_1, parameter_2, parameter_3, parameter_4);
        if (result != QORIN_API_RESULT_OK)
            return result;
        set_dh_table(robot_id, parameter_1, parameter_2, parameter_3, parameter_4);
        return result;
    };
    return logged_call<"qorin_robot_kinematics_dh_parameter_set">(set, cbox_id, robot_id, count, parameter_1,
                                                                  parameter_2, parameter_3, parameter_4);
}

QORIN_API_RESULT qorin_rpc_robot_kinematics_dh_parameter_get(unsigned int cbox_id, unsigned int robot_id,
                                                             unsigned int count, double* parameter_1,
                                                             double* parameter_2, double* parameter_3,
                                                             double* parameter_4)
{
    return from_mirror(cbox_id, qorin_robot_kinematics_dh_parameter_get, robot_id, count, parameter_1, parameter_2,
                       parameter_3, parameter_4);
}

QORIN_API_RESULT qorin_rpc_robot_motion_auto_adjust_swith_get(unsigned int cbox_id, unsigned int robot_id,
                                                              QORIN_SWITCH* auto_adjust)
{
    return from_mirror(cbox_id, qorin_robot_motion_auto_adjust_swith_get, robot_id, auto_adjust);
}

QORIN_API_RESULT qorin_rpc_robot_info_initialze(void)
{
    return QORIN_API_RESULT_ERROR_NO_SUPPORT;
}
