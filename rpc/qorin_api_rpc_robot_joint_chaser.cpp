// The joint chaser: a stream of joint targets beside the three links, and the command that switches it.
#include "qorin/robot_joint_chaser.h"

#include "qorin/robot_status.h"
#include "rpc/wrapper.h"

using qorin_api_rpc::command;
using qorin_api_rpc::logged_local_call;

QORIN_API_RESULT qorin_rpc_robot_joint_chaser_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                         QORIN_SWITCH value)
{
    const auto set = [&] { return qorin_rpc_internal_robot_joint_chaser_switch_set(cbox_id, robot_id, value); };
    return logged_local_call<"qorin_robot_joint_chaser_switch_set">(set, cbox_id, robot_id, value);
}

QORIN_API_RESULT qorin_rpc_robot_joint_chaser_ip_set(unsigned int cbox_id, unsigned int robot_id, const char* address)
{
    const auto set = [&] { return qorin_rpc_internal_robot_joint_chaser_ip_set(cbox_id, robot_id, address); };
    return logged_local_call<"qorin_robot_joint_chaser_ip_set">(set, cbox_id, robot_id, address);
}

QORIN_API_RESULT qorin_rpc_robot_joint_chaser_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                         QORIN_SWITCH* value)
{
    return qorin_rpc_internal_robot_joint_chaser_switch_get(cbox_id, robot_id, value);
}

QORIN_API_RESULT qorin_rpc_robot_joint_chaser_move(unsigned int cbox_id, unsigned int robot_id, unsigned int count,
                                                   const double* joints)
{
    return qorin_rpc_internal_robot_joint_chaser_move(cbox_id, robot_id, count, joints);
}

QORIN_API_RESULT qorin_rpc_robot_joint_chaser_state_set(unsigned int cbox_id, unsigned int robot_id, QORIN_SWITCH state)
{
    return command<"qorin_robot_joint_chaser_state_set">(cbox_id, robot_id, state);
}
