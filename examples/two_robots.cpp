// Moves two robots of one control box at the same time.
//
//   two_robots ADDRESS CONFIG
//
// The configuration's `client.kinematics_path` names the directory of the kinematics modules.

#include <cmath>

#include "motion.h"

namespace
{
using example::is_ok;

constexpr unsigned int robots = 2;
const example::joint_angles targets[robots] = {{60, 20, 60, 0, 40, 0}, {-45, 10, 80, 0, 60, 0}};

/// A system is made for a number of robots. One that stands may be for one alone: it goes, with its robots.
bool make_system(unsigned int cbox_id)
{
    return is_ok("destroy system", qorin_rpc_system_destroy(cbox_id)) &&
           is_ok("create system",
                 qorin_rpc_gen_multi_robot_system_create(cbox_id, example::text, QORIN_CBOX_MODEL_3GEN_SIM, robots));
}

bool prepare(unsigned int cbox_id, unsigned int (&ids)[robots])
{
    for (unsigned int& id : ids)
        if (!example::create_robot(cbox_id, QORIN_ROBOT_MODEL_ARM_C, id) || !example::servo_on(cbox_id, id))
            return false;
    return example::begin_motions(cbox_id);
}

/// Looks at both twice a second until the motion has settled.
bool watch_until_end(unsigned int cbox_id, const unsigned int (&ids)[robots], unsigned int command)
{
    char settled = 0;
    for (unsigned int waited = 0; settled == 0 && waited < example::patience; waited += 500)
    {
        const auto first = example::joints_now(cbox_id, ids[0]);
        const auto second = example::joints_now(cbox_id, ids[1]);
        std::printf("joint 0 of robot %u at %5.1f, of robot %u at %5.1f degrees\n", ids[0], first[0], ids[1],
                    second[0]);
        std::fflush(stdout);
        qorin_rpc_system_wait_event_group_subgroup_sender_id(cbox_id, QORIN_EVENT_GRP_MOTION_COMMAND,
                                                             QORIN_EVENT_SUBGRP_MOTION_COMMAND_SETTLED_DOWN, command,
                                                             500, 1, &settled);
    }
    return settled != 0;
}

/// Each robot has a queue of its own, and one start is for both.
bool run(unsigned int cbox_id, const unsigned int (&ids)[robots])
{
    example::motion_list first(cbox_id, ids[0]);
    example::motion_list second(cbox_id, ids[1]);
    if (!first.add_joint_motion(targets[0], {.speed = 30}) || !second.add_joint_motion(targets[1], {.speed = 30}))
        return false;
    const auto begin = std::chrono::steady_clock::now();
    if (!example::start_motions(cbox_id) || !watch_until_end(cbox_id, ids, first.last()) ||
        !example::await_end(cbox_id, second.last()))
        return false;
    const std::chrono::duration<double> together = std::chrono::steady_clock::now() - begin;

    double times[robots][16] = {};
    if (!is_ok("time", qorin_rpc_motion_command_running_time_get(cbox_id, first.last(), times[0])) ||
        !is_ok("time", qorin_rpc_motion_command_running_time_get(cbox_id, second.last(), times[1])))
        return false;
    std::printf("motions of %.1f and %.1f s, both done after %.1f s\n", times[0][0], times[1][0], together.count());
    for (unsigned int robot = 0; robot < robots; ++robot)
        if (std::abs(example::joints_now(cbox_id, ids[robot])[0] - targets[robot][0]) > 0.1)
            return false;
    return true;
}
} // namespace

int main(int argc, char** argv)
{
    example::take_arguments(argc, argv, 0, "two_robots ADDRESS CONFIG");
    unsigned int cbox_id = 0;
    unsigned int ids[robots] = {};
    if (!example::open_session(argv[1], argv[2], cbox_id) || !make_system(cbox_id))
        return 1;
    const bool done = prepare(cbox_id, ids) && run(cbox_id, ids);
    if (!done)
        std::fprintf(stderr, "the robots have not come to their targets\n");
    const bool ended = is_ok("destroy system", qorin_rpc_system_destroy(cbox_id)); // its robots come to rest and go
    return example::close_session(cbox_id) && ended && done ? 0 : 1;
}
