// Takes parts from one place to another: straight down and up, over in a blended way, the gripper at an output.
//
//   pick_and_place ADDRESS CONFIG [PARTS]
//
// A part may be taken when input 0 is 1; the simulated control box is told so by this program. The gripper is at
// output 0. The configuration's `client.kinematics_path` names the directory of the kinematics modules.

#include "motion.h"

namespace
{
using example::is_ok;
using example::position;

constexpr unsigned int part_sensor = 0; // digital input
constexpr unsigned int gripper = 0;     // digital output
constexpr double depth = 100;           // millimetres from above a part down to it
constexpr double distance = 240;        // and from the one place to the other
constexpr example::tempo over{.speed = 400, .acceleration = 1500, .blending = 30};
constexpr example::tempo down_to_grip{.speed = 200, .acceleration = 800, .output = {100, gripper, 1}};
constexpr example::tempo down_to_let_go{.speed = 200, .acceleration = 800, .output = {100, gripper, 0}};

position below(const position& place)
{
    return {place[0], place[1], place[2] - depth};
}

/// Input 0 belongs to the world outside the control box; a real one needs nobody to play it.
bool bring_part(unsigned int cbox_id, unsigned int value)
{
    return is_ok("bring a part", qorin_rpc_ts_cbox_io_digital_input_set(cbox_id, part_sensor, value));
}

bool await_part(unsigned int cbox_id)
{
    unsigned int there = 0;
    for (unsigned int waited = 0; there == 0 && waited < example::patience; waited += 10)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        qorin_rpc_cbox_io_digital_input_get(cbox_id, part_sensor, &there);
    }
    if (there == 0)
        std::fprintf(stderr, "no part has come\n");
    return there != 0;
}

/// Over to a place in the rounded way, and straight down to it. The arm rests when the gripper closes or opens there.
bool visit(unsigned int cbox_id, unsigned int robot_id, const position& from, const position& place,
           const example::tempo& down)
{
    example::motion_list moves(cbox_id, robot_id);
    return moves.add_line(from, over) && moves.add_line(place, over) && moves.add_line(below(place), down) &&
           example::start_motions(cbox_id) && example::await_end(cbox_id, moves.last());
}

/// Whether the gripper is as it shall be.
bool report(unsigned int cbox_id, unsigned int robot_id, int part, unsigned int gripper_shall_be)
{
    unsigned int output = 0;
    qorin_rpc_cbox_io_digital_output_get(cbox_id, gripper, &output);
    const auto [x, y, z] = example::tcp_now(cbox_id, robot_id);
    std::printf("part %d at %.1f %.1f %.1f, gripper %s\n", part, x, y, z, output != 0 ? "closed" : "open");
    std::fflush(stdout);
    if (output != gripper_shall_be)
        std::fprintf(stderr, "the gripper has not followed\n");
    return output == gripper_shall_be;
}

bool run(unsigned int cbox_id, unsigned int robot_id, int parts)
{
    position above{};
    if (!is_ok("open gripper", qorin_rpc_cbox_io_digital_output_set(cbox_id, gripper, 0)) ||
        !example::tcp_at(cbox_id, robot_id, example::ready, above) || !example::go_ready(cbox_id, robot_id))
        return false;
    const position source{above[0], above[1] - distance / 2, above[2]};
    const position target{above[0], above[1] + distance / 2, above[2]};
    for (int part = 1; part <= parts; ++part)
        if (!bring_part(cbox_id, 1) || !await_part(cbox_id) ||
            !visit(cbox_id, robot_id, part == 1 ? above : target, source, down_to_grip) ||
            !report(cbox_id, robot_id, part, 1) || !bring_part(cbox_id, 0) ||
            !visit(cbox_id, robot_id, source, target, down_to_let_go) || !report(cbox_id, robot_id, part, 0))
            return false;
    return true;
}
} // namespace

int main(int argc, char** argv)
{
    example::take_arguments(argc, argv, 1, "pick_and_place ADDRESS CONFIG [PARTS]");
    const int parts = argc > 3 ? static_cast<int>(example::number(argv[3])) : 2;
    return example::with_robot(
        argv[1], argv[2], [&](unsigned int cbox_id, unsigned int robot_id) { return run(cbox_id, robot_id, parts); });
}
