// A tour of what an application does: a joint motion, lines and an arc with blending, an output that the arc switches
// half way, a pause, and the events of all that, awaited by a coroutine.
//
//   cpp_tour ADDRESS CONFIG

#include <coroutine>
#include <future>
#include <vector>

#include "session.hpp"

namespace
{
constexpr unsigned int lamp = 5; // the output that the arc switches
constexpr double radius = 150;   // millimetres

/// A coroutine whose end, or failure, a future tells once all that it held is given back.
struct task
{
    struct promise_type
    {
        std::promise<void> end;
        std::exception_ptr failure;
        task get_return_object() { return {end.get_future()}; }
        std::suspend_never initial_suspend() { return {}; }
        std::suspend_never final_suspend() noexcept
        {
            failure ? end.set_exception(failure) : end.set_value();
            return {};
        }
        void return_void() {}
        void unhandled_exception() { failure = std::current_exception(); }
    };
    std::future<void> end;
};

const char* name_of(QORIN_EVENT_SUBGRP subgroup)
{
    switch (subgroup)
    {
    case QORIN_EVENT_SUBGRP_MOTION_COMMAND_STARTED:
        return "started";
    case QORIN_EVENT_SUBGRP_MOTION_COMMAND_BLENDING_MOTION_ALMOST_COMPLETED:
        return "goes over into the next";
    case QORIN_EVENT_SUBGRP_MOTION_COMMAND_SETTLED_DOWN:
        return "at rest at its end";
    case QORIN_EVENT_SUBGRP_MOTION_COMMAND_PAUSE_SETTLED_DOWN:
        return "at rest, paused";
    default:
        return "on its way";
    }
}

/// A line to the side, half a circle downwards and across, and a line back: corners are rounded, half way a lamp is
/// lit.
std::vector<qorin::scoped<qorin::motion>> queue_motions(const qorin::robot& robot)
{
    const auto [x, y, z] = robot.pose_at(example::ready).value().position();
    const qorin::tcp_motion rounded{.speed_mm_s = 200, .acceleration_mm_s2 = 600, .blending_radius_mm = 40};
    auto aside = rounded, arc = rounded, back = rounded;
    aside.end = {x, y - radius, z};
    arc.path = QORIN_INTERPOLATOR_CIRCULAR;
    arc.middle = {x, y, z - radius};
    arc.end = {x, y + radius, z};
    arc.output = {.when = QORIN_IO_CONTROL_CONDITION_PERCENTAGE, .point = 50, .channel = lamp, .value = 1};
    back.end = {x, y, z};
    back.blending_radius_mm.reset();

    std::vector<qorin::scoped<qorin::motion>> motions; // must stand until they have run
    motions.push_back(
        robot.make(qorin::joint_motion{.end = example::ready, .speed_deg_s = 80, .acceleration_deg_s2 = 250}).value());
    for (const auto& one : {aside, arc, back})
        motions.push_back(robot.make(one).value());
    for (const auto& one : motions)
        one.queue().value();
    return motions;
}

/// As soon as the lamp is lit the arm rests for a moment. Each event is asked for ahead of what brings it about.
task run(const qorin::cbox& box, const qorin::robot& robot)
{
    box.set_digital_output(lamp, false).value();
    example::wait_for_frames(); // a lamp that is still lit from before would be taken for the arc's
    const auto motions = queue_motions(robot);
    auto end = box.next(motions.back().settled(), example::patience).value();
    auto paused = box.next({QORIN_EVENT_GRP_MOTION_COMMAND, QORIN_EVENT_SUBGRP_MOTION_COMMAND_PAUSE_SETTLED_DOWN},
                           example::patience)
                      .value();
    box.start_queue().value();
    example::await("the lamp", [&] { return box.digital_output(lamp).value(); });
    std::printf("the arc has lit the lamp half way: pause\n");
    robot.pause().value();
    if (!co_await paused)
        throw std::runtime_error("no pause");
    robot.resume().value();
    if (!co_await end)
        throw std::runtime_error("the motions have not ended");
    example::wait_for_frames();
    const auto tcp = robot.tcp().value();
    std::printf("done, with the TCP at %.1f %.1f %.1f\n", tcp.x_mm, tcp.y_mm, tcp.z_mm);
}
} // namespace

int main(int argc, char** argv)
{
    return example::program(argc, argv, 0, "cpp_tour ADDRESS CONFIG",
                            [](const qorin::cbox& box)
                            {
                                const auto control = example::take_control(box);
                                const auto robot = example::robot_under_power(box);
                                const auto events =
                                    box.on(QORIN_EVENT_GRP_MOTION_COMMAND, [](const qorin::event& one)
                                           { std::printf("motion %u %s\n", one.sender, name_of(one.subgroup)); })
                                        .value();
                                run(box, robot).end.get();
                            });
}
