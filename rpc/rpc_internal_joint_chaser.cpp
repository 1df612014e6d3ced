#include "rpc/rpc_internal_joint_chaser.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstring>
#include <map>
#include <utility>

#include "protocol/chaser_datagram.h"
#include "qorin/robot_joint_chaser.h"
#include "qorin/robot_status.h"
#include "savrent/cc/immortal.h"
#include "savrent/cc/os_util.h"

namespace
{
using namespace std::chrono_literals;
using protocol::chaser_datagram;
using savrent::cc::udp;
using savrent::cc::os_util::sleep_for;

constexpr char built_in_address[] = QORIN_JOINT_CHASER_ADDRESS;
constexpr auto stop_time = 1s;       // lets the robot come to rest before the mode ends
constexpr auto switch_pause = 100ms; // lets a status frame with the new state arrive
constexpr unsigned int joint_limit = 6;
constexpr double farthest_target = 100.0; // degrees from where a joint is

void udp_deleter(udp* socket)
{
    socket->close();
    delete socket;
}

/// Whether the datagram gets anywhere is not known here, and nothing depends on it.
void send(const robot_joint_chaser_data_t& stream, std::uint64_t command, const double* joints)
{
    chaser_datagram datagram;
    datagram.command = command;
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
    {
        if (std::abs(targets[joint] - actual[joint]) > farthest_target)
            return QORIN_API_RESULT_ERROR_ROBOT_JOINT_PARAM_OUT_OF_RANGE;
    }
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
