#ifndef EXAMPLES_MOTION_H
#define EXAMPLES_MOTION_H

#include <algorithm>
#include <array>
#include <vector>

#include "session.h"

/// Motions of a robot, as the examples make, queue and await them.
namespace example
{
constexpr unsigned int patience = 30'000; // milliseconds for a motion

using joint_angles = std::array<double, 6>; // degrees
using position = std::array<double, 3>;     // millimetres, in the robot's base frame

/// Where the arm is bent enough to go on along straight lines, its tool downwards.
constexpr joint_angles ready{0, 20, 60, 0, 100, 0};

/// An output of the control box that a motion sets on its way.
struct output_on_the_way
{
    double percentage = -1; ///< Of the way, 0 to 100. None below 0.
    unsigned int channel = 0;
    unsigned int value = 0;
};

/// How a motion goes its way. What is 0 is left to the control box.
struct tempo
{
    double speed = 0;        ///< Degrees or millimetres a second.
    double acceleration = 0; ///< The same a second; the deceleration too.
    double blending = 0;     ///< Radius within which it goes over into the next motion.
    output_on_the_way output{};
};

/**
 * The motions of one robot, one behind the other.
 *
 * A motion command lasts until it is destroyed, and must stand while it runs: keep this until the robot rests. Each
 * call makes a command, fills it and queues it; false after a line about the step that went wrong.
 */
class motion_list
{
public:
    motion_list(unsigned int cbox_id, unsigned int robot_id) : cbox_id_(cbox_id), robot_id_(robot_id) {}
    motion_list(const motion_list&) = delete;
    motion_list& operator=(const motion_list&) = delete;

    ~motion_list()
    {
        for (const unsigned int command : commands_)
            is_ok("destroy motion", qorin_rpc_motion_command_destroy(cbox_id_, command));
    }

    /// The id of the last one.
    [[nodiscard]] unsigned int last() const { return commands_.back(); }

    bool add_joint_motion(const joint_angles& end, const tempo& how = {})
    {
        bool good = create(qorin_rpc_motion_command_robot_joint_create);
        for (unsigned int joint = 0; joint < end.size(); ++joint)
            good = good && is_ok("end", qorin_rpc_motion_command_robot_joint_angle_end_set(cbox_id_, last(), joint,
                                                                                           end[joint]));
        return good && queue(how);
    }

    /// A straight line of the TCP. What is not told, here the orientation, stays as it is.
    bool add_line(const position& end, const tempo& how = {})
    {
        return create_tcp_motion(QORIN_INTERPOLATOR_LINEAR, end) && queue(how);
    }

    /// An arc of the TCP through a point on the way.
    bool add_arc(const position& middle, const position& end, const tempo& how = {})
    {
        return create_tcp_motion(QORIN_INTERPOLATOR_CIRCULAR, end) &&
               is_ok("middle", qorin_rpc_motion_command_robot_tcp_position_mid_set(cbox_id_, last(), middle[0],
                                                                                   middle[1], middle[2])) &&
               queue(how);
    }

private:
    bool create(QORIN_API_RESULT (*create_command)(unsigned int, unsigned int*))
    {
        unsigned int id[32] = {};
        if (!is_ok("create motion", create_command(cbox_id_, id)))
            return false;
        commands_.push_back(id[0]);
        // The robot comes ahead of the parameters that are the robot's.
        return is_ok("robot", qorin_rpc_motion_command_robot_robot_id_set(cbox_id_, last(), robot_id_));
    }

    bool create_tcp_motion(QORIN_INTERPOLATOR interpolator, const position& end)
    {
        return create(qorin_rpc_motion_command_robot_tcp_create) &&
               is_ok("path", qorin_rpc_motion_command_robot_tcp_interpolator_set(cbox_id_, last(), interpolator)) &&
               is_ok("end",
                     qorin_rpc_motion_command_robot_tcp_position_end_set(cbox_id_, last(), end[0], end[1], end[2]));
    }

    bool set_tempo(const tempo& how)
    {
        if (how.speed > 0 && !is_ok("speed", qorin_rpc_motion_command_speed_max_set(cbox_id_, last(), how.speed)))
            return false;
        return how.acceleration <= 0 ||
               (is_ok("acceleration", qorin_rpc_motion_command_acc_max_set(cbox_id_, last(), how.acceleration)) &&
                is_ok("deceleration", qorin_rpc_motion_command_dec_max_set(cbox_id_, last(), how.acceleration)));
    }

    bool set_blending(double radius)
    {
        return radius <= 0 ||
               (is_ok("blending",
                      qorin_rpc_motion_command_blending_motion_mode_set(cbox_id_, last(), QORIN_SWITCH_ON)) &&
                is_ok("radius", qorin_rpc_motion_command_radius_for_blending_set(cbox_id_, last(), radius)));
    }

    bool set_output(const output_on_the_way& output)
    {
        return output.percentage < 0 ||
               is_ok("output", qorin_rpc_motion_command_io_command_type_set(
                                   cbox_id_, last(), QORIN_IO_CONTROL_CONDITION_PERCENTAGE, output.percentage,
                                   QORIN_IO_TYPE_CBOX_DIGITAL_OUTPUT, output.channel, output.value));
    }

    bool queue(const tempo& how)
    {
        return set_tempo(how) && set_blending(how.blending) && set_output(how.output) &&
               is_ok("queue", qorin_rpc_motion_command_queue_add(cbox_id_, last()));
    }

    unsigned int cbox_id_;
    unsigned int robot_id_;
    std::vector<unsigned int> commands_;
};

/// What is queued, or was told, ahead of this program does not count.
inline bool begin_motions(unsigned int cbox_id)
{
    qorin_rpc_system_event_queue_clear(cbox_id);
    return is_ok("empty queue", qorin_rpc_motion_command_queue_clear(cbox_id));
}

inline bool servo_on(unsigned int cbox_id, unsigned int robot_id)
{
    return is_ok("servo on", qorin_rpc_robot_servo_switch_set(cbox_id, robot_id, QORIN_SWITCH_ON));
}

/// Starts what is queued, for all robots.
inline bool start_motions(unsigned int cbox_id)
{
    return is_ok("start", qorin_rpc_motion_command_queue_flush(cbox_id));
}

/// Waits until the robot rests at the end of a motion, and getters tell so. The event is taken out of the queue of
/// events.
inline bool await_end(unsigned int cbox_id, unsigned int command)
{
    char settled = 0;
    qorin_rpc_system_wait_event_group_subgroup_sender_id(cbox_id, QORIN_EVENT_GRP_MOTION_COMMAND,
                                                         QORIN_EVENT_SUBGRP_MOTION_COMMAND_SETTLED_DOWN, command,
                                                         patience, 1, &settled);
    if (settled == 0)
        std::fprintf(stderr, "motion %u has not settled within %u ms\n", command, patience);
    wait_for_frames();
    return settled != 0;
}

/// Where the arm will have its TCP, computed by the library's kinematics module: no motion, no traffic.
inline bool tcp_at(unsigned int cbox_id, unsigned int robot_id, const joint_angles& joints, position& tcp)
{
    double angles[16] = {};
    std::copy(joints.begin(), joints.end(), angles);
    double orientation[16] = {};
    double place[16] = {};
    if (!is_ok("pose", qorin_rpc_robot_util_joint_angle_to_pose_convert(cbox_id, robot_id, QORIN_POSE_TYPE_TCP, angles,
                                                                        place, orientation)))
        return false;
    tcp = {place[0], place[1], place[2]};
    return true;
}

inline position tcp_now(unsigned int cbox_id, unsigned int robot_id)
{
    position tcp{};
    double rx = 0, ry = 0, rz = 0;
    qorin_rpc_robot_tcp_pose_actual_get(cbox_id, robot_id, &tcp[0], &tcp[1], &tcp[2], &rx, &ry, &rz);
    return tcp;
}

inline joint_angles joints_now(unsigned int cbox_id, unsigned int robot_id)
{
    joint_angles joints{};
    for (unsigned int joint = 0; joint < joints.size(); ++joint)
        qorin_rpc_robot_joint_angle_actual_get(cbox_id, robot_id, joint, &joints[joint]);
    return joints;
}

/// Brings the arm to where lines can begin, and waits until it rests there.
inline bool go_ready(unsigned int cbox_id, unsigned int robot_id)
{
    motion_list moves(cbox_id, robot_id);
    return moves.add_joint_motion(ready, {.speed = 90, .acceleration = 300}) && start_motions(cbox_id) &&
           await_end(cbox_id, moves.last());
}

/// A robot under power for what is to be done, in a session of its own. Returns the status that the program ends with.
template <class Work>
int with_robot(const char* address, const char* config, Work&& work)
{
    unsigned int cbox_id = 0;
    unsigned int robot_id = 0;
    if (!open_session(address, config, cbox_id) || !create_robot(cbox_id, QORIN_ROBOT_MODEL_ARM_C, robot_id))
        return 1;
    const bool done = begin_motions(cbox_id) && servo_on(cbox_id, robot_id) && work(cbox_id, robot_id);
    if (!done)
        is_ok("stop", qorin_rpc_robot_stop_auto_time(cbox_id, robot_id));
    const bool destroyed = destroy_robot(cbox_id, robot_id);
    return close_session(cbox_id) && destroyed && done ? 0 : 1;
}
} // namespace example

#endif
