// The joint chaser: a stream of joint targets beside the three links, and the command that switches it.
#include "qorin/robot_joint_chaser.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstring>
#include <map>
#include <memory>
#include <utility>

#include "protocol/chaser_datagram.h"
#include "qorin/robot_status.h"
#include "rpc/wrapper.h"
#include "savrent/cc/immortal.h"
#include "savrent/cc/os_util.h"
#include "savrent/cc/udp.h"

namespace
{
using namespace std::chrono_literals;
using protocol::joint_limit;
using qorin_api_rpc::command;
using qorin_api_rpc::logged_call;
using savrent::cc::udp;
using savrent::cc::os_util::sleep_for;

constexpr char built_in_address[] = QORIN_JOINT_CHASER_ADDRESS;
constexpr auto stop_time = 1s;            // lets the robot come to rest before the mode ends
constexpr auto switch_pause = 100ms;      // lets a status frame with the new state arrive
constexpr double farthest_target = 100.0; // degrees from where a joint is

/// The stream of joint targets to one robot.
struct robot_joint_chaser_data_t
{
    double joints[joint_limit] = {}; ///< goes out with the stop, and stays zero
    std::shared_ptr<udp> socket;
};

void udp_deleter(udp* socket)
{
    socket->close();
    delete socket;
}

/**
 * The stream of a robot, made at its first use and kept until the process ends.
 *
 * A stream that there is keeps its address, and `address` is not looked at. No lock: the first use of a robot's stream
 * must not come from two threads.
 */
robot_joint_chaser_data_t& _qorin_internal_get_chaser_data(unsigned int cbox_id, unsigned int robot_id,
                                                           const char* address)
{
    using stream_map = std::map<std::pair<unsigned int, unsigned int>, robot_joint_chaser_data_t>;
    static savrent::cc::immortal<stream_map> streams;

    const auto [place, is_new] = streams->try_emplace({cbox_id, robot_id});
    robot_joint_chaser_data_t& stream = place->second;
    if (is_new)
    {
        stream.socket = std::shared_ptr<udp>(new udp, udp_deleter);
        stream.socket->init(nullptr, 0, address, static_cast<unsigned short>(protocol::chaser_base_port + robot_id));
    }
    return stream;
}

/// Whether the datagram gets anywhere is not known here, and nothing depends on it.
void send(const robot_joint_chaser_data_t& stream, std::uint64_t kind, const double* joints)
{
    protocol::chaser_datagram datagram{kind, {}};
    std::memcpy(datagram.joints, joints, sizeof(datagram.joints));
    stream.socket->send(reinterpret_cast<const char*>(&datagram), sizeof(datagram));
}

bool is_on(unsigned int cbox_id, unsigned int robot_id)
{
    QORIN_SWITCH state = QORIN_SWITCH_OFF;
    qorin_rpc_internal_robot_joint_chaser_switch_get(cbox_id, robot_id, &state);
    return state == QORIN_SWITCH_ON;
}

/// Following a stream is no motion of the control box: it stays idle or stopped meanwhile.
bool is_at_rest(unsigned int cbox_id, unsigned int robot_id)
{
    QORIN_MOVING_STATE state = QORIN_MOVING_STATE_INVALID;
    qorin_rpc_robot_state_moving_get(cbox_id, robot_id, &state);
    return state == QORIN_MOVING_STATE_IDLE || state == QORIN_MOVING_STATE_STOPPED;
}

/// The joints, before anything else, so that a jump ends the stream whatever state the robot is in.
QORIN_API_RESULT check_targets(unsigned int cbox_id, unsigned int robot_id, unsigned int count, const double* targets)
{
    double actual[joint_limit] = {};
    for (unsigned int joint = 0; joint < count; ++joint)
    {
        const auto result = qorin_rpc_robot_joint_angle_actual_get(cbox_id, robot_id, joint, &actual[joint]);
        if (result != QORIN_API_RESULT_OK)
            return result;
    }
    for (unsigned int joint = 0; joint < count; ++joint)
        if (std::abs(targets[joint] - actual[joint]) > farthest_target)
            return QORIN_API_RESULT_ERROR_ROBOT_JOINT_PARAM_OUT_OF_RANGE;
    return QORIN_API_RESULT_OK;
}

/// Ends a stream that must not go on. `reason` comes back: it matters more than how the switching off went.
QORIN_API_RESULT stop_for(QORIN_API_RESULT reason, unsigned int cbox_id, unsigned int robot_id)
{
    if (is_on(cbox_id, robot_id))
        qorin_rpc_internal_robot_joint_chaser_switch_set(cbox_id, robot_id, QORIN_SWITCH_OFF);
    return reason;
}
} // namespace

QORIN_API_RESULT qorin_rpc_internal_robot_joint_chaser_ip_set(unsigned int cbox_id, unsigned int robot_id,
                                                              const char* address)
{
    (void)_qorin_internal_get_chaser_data(cbox_id, robot_id, address);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_rpc_internal_robot_joint_chaser_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                                  QORIN_SWITCH value)
{
    const robot_joint_chaser_data_t& stream = _qorin_internal_get_chaser_data(cbox_id, robot_id, built_in_address);
    if (value == QORIN_SWITCH_OFF)
    {
        send(stream, protocol::chaser_stop, stream.joints);
        sleep_for(stop_time);
    }
    else if (!is_at_rest(cbox_id, robot_id))
        return QORIN_API_RESULT_ROBOT_IS_MOVING_STATE;

    const QORIN_API_RESULT result = qorin_rpc_robot_joint_chaser_state_set(cbox_id, robot_id, value);
    sleep_for(switch_pause);
    return result;
}

QORIN_API_RESULT qorin_rpc_internal_robot_joint_chaser_switch_get(unsigned int cbox_id, unsigned int robot_id,
                                                                  QORIN_SWITCH* value)
{
    return qorin_rpc_robot_joint_chaser_state_get(cbox_id, robot_id, value);
}

QORIN_API_RESULT qorin_rpc_internal_robot_joint_chaser_move(unsigned int cbox_id, unsigned int robot_id,
                                                            unsigned int count, const double* joints)
{
    if (joints == nullptr)
        return QORIN_API_RESULT_ERROR_ROBOT_JOINT_PARAM_OUT_OF_RANGE;

    const QORIN_API_RESULT checked = check_targets(cbox_id, robot_id, std::min(count, joint_limit), joints);
    if (checked != QORIN_API_RESULT_OK)
        return stop_for(checked, cbox_id, robot_id);
    if (!is_on(cbox_id, robot_id))
        return QORIN_API_RESULT_ERROR_MOTION_UNINSERTABLE_STATE;
    if (!is_at_rest(cbox_id, robot_id))
        return stop_for(QORIN_API_RESULT_ROBOT_IS_MOVING_STATE, cbox_id, robot_id);

    send(_qorin_internal_get_chaser_data(cbox_id, robot_id, built_in_address), protocol::chaser_move, joints);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT qorin_rpc_robot_joint_chaser_switch_set(unsigned int cbox_id, unsigned int robot_id,
                                                         QORIN_SWITCH value)
{
    const auto set = [&] { return qorin_rpc_internal_robot_joint_chaser_switch_set(cbox_id, robot_id, value); };
    return logged_call<"qorin_robot_joint_chaser_switch_set">(set, cbox_id, robot_id, value);
}

QORIN_API_RESULT qorin_rpc_robot_joint_chaser_ip_set(unsigned int cbox_id, unsigned int robot_id, const char* address)
{
    const auto set = [&] { return qorin_rpc_internal_robot_joint_chaser_ip_set(cbox_id, robot_id, address); };
    return logged_call<"qorin_robot_joint_chaser_ip_set">(set, cbox_id, robot_id, address);
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
