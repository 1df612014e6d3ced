// Sets safety limits of a robot, reads them back from the status mirror, and takes them away again.
//
//   safety_limits ADDRESS CONFIG
//
// The configuration's `client.kinematics_path` names the directory of the kinematics modules. Nothing moves.

#include <cstdio>

#include "session.h"

namespace
{
using example::is_ok;

constexpr unsigned int first_joint = 0;

/// The first joint within 90 degrees, slow, and the TCP above the floor and no further out than a metre.
bool set_limits(unsigned int cbox_id, unsigned int robot_id, unsigned int (&planes)[2])
{
    unsigned int id[32] = {}; // 128 bytes are read from an output
    if (!is_ok("joint range",
               qorin_rpc_robot_safety_limit_joint_angle_set(cbox_id, robot_id, first_joint, -90.0, 90.0)) ||
        !is_ok("joint speed", qorin_rpc_robot_safety_limit_joint_speed_max_set(cbox_id, robot_id, first_joint, 45.0)) ||
        !is_ok("TCP speed", qorin_rpc_robot_safety_limit_tcp_speed_max_set(cbox_id, robot_id, 250.0)))
        return false;
    if (!is_ok("floor",
               qorin_rpc_robot_safety_limit_plane_create_with_norm_distance(cbox_id, robot_id, 0.0, 0.0, 1.0, 0.0, id)))
        return false;
    planes[0] = id[0];
    if (!is_ok("wall", qorin_rpc_robot_safety_limit_plane_create_with_norm_origin(cbox_id, robot_id, -1.0, 0.0, 0.0,
                                                                                  1000.0, 0.0, 0.0, id)))
        return false;
    planes[1] = id[0];
    return is_ok("limits on", qorin_rpc_robot_safety_limit_switch_set(cbox_id, robot_id, QORIN_SWITCH_ON));
}

void print_limits(unsigned int cbox_id, unsigned int robot_id, const unsigned int (&planes)[2])
{
    QORIN_SWITCH limits = QORIN_SWITCH_OFF;
    double low = 0;
    double high = 0;
    double joint_speed = 0;
    double tcp_speed = 0;
    qorin_rpc_robot_safety_limit_switch_get(cbox_id, robot_id, &limits);
    qorin_rpc_robot_safety_limit_joint_angle_get(cbox_id, robot_id, first_joint, &low, &high);
    qorin_rpc_robot_safety_limit_joint_speed_max_get(cbox_id, robot_id, first_joint, &joint_speed);
    qorin_rpc_robot_safety_limit_tcp_speed_max_get(cbox_id, robot_id, &tcp_speed);
    std::printf("limits %s: joint %u from %.1f to %.1f degrees at %.1f degrees/s, TCP at %.1f\n",
                limits == QORIN_SWITCH_ON ? "on" : "off", first_joint, low, high, joint_speed, tcp_speed);
    for (const unsigned int plane : planes)
    {
        double normal[3] = {};
        double distance = 0;
        if (is_ok("plane", qorin_rpc_robot_safety_limit_plane_norm_distance_get(cbox_id, robot_id, plane, &normal[0],
                                                                                &normal[1], &normal[2], &distance)))
            std::printf("plane %u: normal %.1f %.1f %.1f, distance %.1f\n", plane, normal[0], normal[1], normal[2],
                        distance);
    }
}

bool remove_limits(unsigned int cbox_id, unsigned int robot_id)
{
    return is_ok("remove planes", qorin_rpc_robot_safety_limit_plane_remove_all(cbox_id, robot_id)) &&
           is_ok("limits off", qorin_rpc_robot_safety_limit_switch_set(cbox_id, robot_id, QORIN_SWITCH_OFF));
}
} // namespace

int main(int argc, char** argv)
{
    example::take_arguments(argc, argv, 0, "safety_limits ADDRESS CONFIG");
    unsigned int cbox_id = 0;
    unsigned int robot_id = 0;
    if (!example::open_session(argv[1], argv[2], cbox_id) ||
        !example::create_robot(cbox_id, QORIN_ROBOT_MODEL_ARM_C, robot_id))
        return 1;

    unsigned int planes[2] = {};
    bool done = set_limits(cbox_id, robot_id, planes);
    example::wait_for_frames();
    print_limits(cbox_id, robot_id, planes);
    done = remove_limits(cbox_id, robot_id) && done;

    const bool ended = example::destroy_robot(cbox_id, robot_id);
    return example::close_session(cbox_id) && ended && done ? 0 : 1;
}
