// A tour of what an application does: a robot under power, a joint motion, lines and an arc with blending, an output
// that the arc switches half way, a pause, and the events of all that. On a terminal the last line shows the robot
// live.
//
//   tour ADDRESS CONFIG
//
// The configuration's `client.kinematics_path` names the directory of the kinematics modules.

#include <deque>
#include <mutex>
#include <string>

#include <unistd.h>

#include "motion.h"

namespace
{
using namespace std::chrono_literals;
using clock = std::chrono::steady_clock;
using example::is_ok;
using example::position;

constexpr unsigned int lamp = 5; // the output that the arc switches
constexpr double radius = 150;   // millimetres
constexpr example::tempo swift{.speed = 80, .acceleration = 250};
constexpr example::tempo rounded{.speed = 200, .acceleration = 600, .blending = 40};
constexpr example::tempo lighting{.speed = 200, .acceleration = 600, .blending = 40, .output = {50, lamp, 1}};
constexpr example::tempo last{.speed = 200, .acceleration = 600};

/// Events on their way from the event thread to the screen. A callback must be quick, so it only stores them.
struct motion_event
{
    clock::time_point time;
    unsigned int subgroup;
    unsigned int command;
};
std::mutex g_events_mutex;
std::deque<motion_event> g_events;

void on_event(unsigned int /*group*/, unsigned int subgroup, unsigned int sender_id, int, int, int, int, int)
{
    std::lock_guard lock(g_events_mutex);
    g_events.push_back({clock::now(), subgroup, sender_id});
}

const char* name_of_event(unsigned int subgroup)
{
    switch (subgroup)
    {
    case QORIN_EVENT_SUBGRP_MOTION_COMMAND_STARTED:
        return "started";
    case QORIN_EVENT_SUBGRP_MOTION_COMMAND_BLENDING_MOTION_ALMOST_COMPLETED:
        return "goes over into the next";
    case QORIN_EVENT_SUBGRP_MOTION_COMMAND_PROFILE_COMPLETED:
        return "last target commanded";
    case QORIN_EVENT_SUBGRP_MOTION_COMMAND_SETTLED_DOWN:
        return "at rest at its end";
    case QORIN_EVENT_SUBGRP_MOTION_COMMAND_PUASE_PROFILE_COMPLETED:
        return "last target ahead of the pause";
    case QORIN_EVENT_SUBGRP_MOTION_COMMAND_PAUSE_SETTLED_DOWN:
        return "at rest, paused";
    default:
        return "";
    }
}

const char* name_of_state(QORIN_MOVING_STATE state)
{
    switch (state)
    {
    case QORIN_MOVING_STATE_IDLE:
        return "idle";
    case QORIN_MOVING_STATE_MOVING:
        return "moving";
    case QORIN_MOVING_STATE_PAUSING:
        return "pausing";
    case QORIN_MOVING_STATE_PAUSED:
        return "paused";
    default:
        return "stopped";
    }
}

/// What the user sees: lines that stay, and one below them that is written over and over.
class screen
{
public:
    screen(unsigned int cbox_id, unsigned int robot_id) : cbox_id_(cbox_id), robot_id_(robot_id)
    {
        qorin_rpc_system_event_group_callback_add(cbox_id, on_event, QORIN_EVENT_GRP_MOTION_COMMAND);
    }
    screen(const screen&) = delete;
    screen& operator=(const screen&) = delete;
    ~screen()
    {
        qorin_rpc_system_event_group_callback_remove(cbox_id_, on_event, QORIN_EVENT_GRP_MOTION_COMMAND);
        refresh();
        clear_line();
    }

    /// What the program does itself.
    void tell(const std::string& step)
    {
        refresh();
        print_line(clock::now(), step);
    }

    /// Events that have come, and the live line. Into a pipe or a file that goes once a second.
    void refresh()
    {
        for (std::lock_guard lock(g_events_mutex); !g_events.empty(); g_events.pop_front())
        {
            const auto& event = g_events.front();
            print_line(event.time, "  event " + std::to_string(event.subgroup) + "  motion " +
                                       std::to_string(event.command) + " " + name_of_event(event.subgroup));
        }
        if (on_terminal_)
            clear_line();
        if (on_terminal_ || clock::now() >= next_look_)
            print_look();
        if (!on_terminal_ && clock::now() >= next_look_)
            next_look_ = clock::now() + 1s;
        std::fflush(stdout);
    }

private:
    void clear_line() const
    {
        if (on_terminal_)
            std::printf("\r\033[K");
    }

    void print_line(clock::time_point time, const std::string& text) const
    {
        clear_line();
        std::printf("%5.2f s  %s\n", std::chrono::duration<double>(time - begin_).count(), text.c_str());
    }

    void print_look() const
    {
        QORIN_MOVING_STATE state{};
        unsigned int lit = 0;
        qorin_rpc_robot_state_moving_get(cbox_id_, robot_id_, &state);
        qorin_rpc_cbox_io_digital_output_get(cbox_id_, lamp, &lit);
        std::printf("joints"); // within 80 columns: a line that wraps cannot be written over
        for (const double joint : example::joints_now(cbox_id_, robot_id_))
            std::printf("%6.1f", joint);
        const auto [x, y, z] = example::tcp_now(cbox_id_, robot_id_);
        std::printf(" TCP%7.1f%7.1f%7.1f %-4s %s%s", x, y, z, lit != 0 ? "lamp" : "", name_of_state(state),
                    on_terminal_ ? "" : "\n");
    }

    unsigned int cbox_id_;
    unsigned int robot_id_;
    bool on_terminal_ = isatty(STDOUT_FILENO) != 0;
    clock::time_point begin_ = clock::now();
    clock::time_point next_look_ = begin_;
};

/// Waits for something with the screen alive.
template <class Happened>
bool await(const char* what, screen& shown, Happened&& happened)
{
    for (const auto end = clock::now() + std::chrono::milliseconds(example::patience); clock::now() < end;)
    {
        if (happened())
            return true;
        shown.refresh();
        std::this_thread::sleep_for(10ms);
    }
    std::fprintf(stderr, "waited in vain for %s\n", what);
    return false;
}

bool await_end(screen& shown, unsigned int cbox_id, unsigned int command)
{
    return await("the end of the last motion", shown,
                 [&]
                 {
                     char occurred = 0;
                     qorin_rpc_system_wait_event_group_subgroup_sender_id(
                         cbox_id, QORIN_EVENT_GRP_MOTION_COMMAND, QORIN_EVENT_SUBGRP_MOTION_COMMAND_SETTLED_DOWN,
                         command, 0, 1, &occurred);
                     return occurred != 0;
                 });
}

/// In whichever motion that is: where the machine is busy, the arm may be past the arc before it hears of the pause.
bool await_pause(screen& shown, unsigned int cbox_id)
{
    return await("the pause", shown,
                 [&]
                 {
                     char occurred = 0;
                     qorin_rpc_system_wait_event_group_subgroup(cbox_id, QORIN_EVENT_GRP_MOTION_COMMAND,
                                                                QORIN_EVENT_SUBGRP_MOTION_COMMAND_PAUSE_SETTLED_DOWN, 0,
                                                                1, &occurred);
                     return occurred != 0;
                 });
}

/// A line to the side, half a circle downwards and across, and a line back: corners are rounded, half way a lamp is
/// lit.
bool queue_motions(unsigned int cbox_id, unsigned int robot_id, example::motion_list& moves)
{
    position top{};
    if (!example::tcp_at(cbox_id, robot_id, example::ready, top))
        return false;
    const auto [x, y, z] = top;
    return moves.add_joint_motion(example::ready, swift) && moves.add_line({x, y - radius, z}, rounded) &&
           moves.add_arc({x, y, z - radius}, {x, y + radius, z}, lighting) && moves.add_line(top, last);
}

/// As soon as the lamp is lit the arm rests for a moment.
bool pause(screen& shown, unsigned int cbox_id, unsigned int robot_id)
{
    unsigned int value = 0;
    const auto is_lit = [&] { return qorin_rpc_cbox_io_digital_output_get(cbox_id, lamp, &value), value != 0; };
    if (!await("the lamp", shown, is_lit))
        return false;
    shown.tell("the arc has lit the lamp half way: pause");
    if (!is_ok("pause", qorin_rpc_robot_pause_auto_time(cbox_id, robot_id)) || !await_pause(shown, cbox_id))
        return false;
    const auto end = clock::now() + 700ms;
    await("the end of the pause", shown, [&] { return clock::now() >= end; });
    shown.tell("resume");
    return is_ok("resume", qorin_rpc_robot_resume(cbox_id, robot_id));
}

bool run(unsigned int cbox_id, unsigned int robot_id)
{
    screen shown(cbox_id, robot_id);
    shown.tell("connected, system and robot created, servo on");
    example::motion_list moves(cbox_id, robot_id);
    if (!is_ok("lamp off", qorin_rpc_cbox_io_digital_output_set(cbox_id, lamp, 0)))
        return false;
    example::wait_for_frames(); // a lamp that is still lit from before would be taken for the arc's
    if (!queue_motions(cbox_id, robot_id, moves) || !example::start_motions(cbox_id))
        return false;
    shown.tell("joints, line, arc and line are queued and started");
    if (!pause(shown, cbox_id, robot_id) || !await_end(shown, cbox_id, moves.last()))
        return false;
    example::wait_for_frames();
    const auto [x, y, z] = example::tcp_now(cbox_id, robot_id);
    char text[80];
    std::snprintf(text, sizeof text, "done, with the TCP at %.1f %.1f %.1f", x, y, z);
    shown.tell(text);
    return true;
}
} // namespace

int main(int argc, char** argv)
{
    example::take_arguments(argc, argv, 0, "tour ADDRESS CONFIG");
    return example::with_robot(argv[1], argv[2], run);
}
