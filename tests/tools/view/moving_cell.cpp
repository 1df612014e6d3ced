// Keeps the two robots of a cell moving until its input ends, and sends as many events as a line of it asks for:
//
//   moving_cell ADDRESS CONFIG

#include <cstdlib>
#include <iostream>
#include <string>

#include "examples/motion.h"

namespace
{
using namespace example;

/// Past the seam of a welder, and about a square of lines with round corners.
bool queue_round(motion_list& first, motion_list& second, unsigned int cbox_id)
{
    position corner{};
    const tempo line{.speed = 250, .acceleration = 900, .blending = 40};
    const tempo turn{.speed = 40, .acceleration = 120, .blending = 5};
    if (!first.add_joint_motion(ready, {.speed = 60, .acceleration = 200}) || !tcp_at(cbox_id, 0, ready, corner))
        return false;
    const auto [x, y, z] = corner;
    for (const position& next : {position{x, y + 250, z},
                                 {x + 120, y + 250, z - 150},
                                 {x + 120, y - 250, z - 150},
                                 {x, y - 250, z},
                                 {x, y, z}})
        if (!first.add_line(next, line))
            return false;
    return second.add_joint_motion({-50, 10, 80, 0, 60, 0}, turn) &&
           second.add_joint_motion({-20, 35, 60, 20, 75, 40}, turn) &&
           second.add_joint_motion({30, 20, 70, -20, 55, -30}, turn) &&
           second.add_joint_motion({0, 0, 90, 0, 60, 0}, {.speed = 40, .acceleration = 120});
}

bool move_once(unsigned int cbox_id)
{
    motion_list first(cbox_id, 0);
    motion_list second(cbox_id, 1);
    return queue_round(first, second, cbox_id) && start_motions(cbox_id) && await_end(cbox_id, first.last()) &&
           await_end(cbox_id, second.last());
}

bool begin(unsigned int cbox_id)
{
    for (unsigned int robot = 0; robot < 2; ++robot)
        if (!is_ok("attach", qorin_robot_attach(robot)) || !servo_on(cbox_id, robot))
            return false;
    return is_ok("output", qorin_rpc_cbox_io_digital_output_set(cbox_id, 4, 1)) && begin_motions(cbox_id);
}
} // namespace

int main(int argc, char** argv)
{
    take_arguments(argc, argv, 0, "moving_cell ADDRESS CONFIG");
    unsigned int cbox_id = 0;
    if (!open_session(argv[1], argv[2], cbox_id) || !begin(cbox_id))
        return 1;
    std::thread(
        [cbox_id]
        {
            while (move_once(cbox_id))
                continue;
            std::_Exit(1);
        })
        .detach();
    std::cout << "moving" << std::endl;
    for (std::string line; std::getline(std::cin, line);)
        for (unsigned int sender = 1; sender <= std::stoul(line); ++sender)
            if (!is_ok("echo",
                       qorin_rpc_ts_event_echo(cbox_id, QORIN_EVENT_GRP_ERROR,
                                               QORIN_EVENT_SUBGRP_ERROR_ECAT_SLAVE_FAULT, sender, 1, 2, 3, 4, 5)))
                return 1;
    std::_Exit(0); // the motions go on until then
}
