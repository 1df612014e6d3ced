// Streams a circle to a robot through the external profiler: a pose each 4 milliseconds, from a buffer that is kept
// full, so that the program need not be in time with the arm.
//
//   cpp_profiler_stream ADDRESS CONFIG [SECONDS]

#include <algorithm>
#include <cmath>
#include <numbers>

#include <qorin/functions.hpp>

#include "session.hpp"

namespace
{
namespace raw = qorin::raw; // the functions that no object of the layer has

constexpr unsigned int period = 4; // milliseconds
constexpr double radius = 60;      // millimetres

/// From 0 to 1 once round, in the plane of y and z. It starts and ends at rest.
qorin::pose on_circle(qorin::pose start, double share)
{
    const double turn = 2 * std::numbers::pi * share - std::sin(2 * std::numbers::pi * share);
    start.y_mm += radius * std::sin(turn);
    start.z_mm -= radius * (1 - std::cos(turn));
    return start;
}

double distance_to_circle(const qorin::pose& start, const qorin::pose& tcp)
{
    return std::hypot(tcp.x_mm - start.x_mm,
                      std::hypot(tcp.y_mm - start.y_mm, tcp.z_mm - start.z_mm + radius) - radius);
}

void go_round(const qorin::cbox& box, const qorin::robot& robot, int points)
{
    const auto start = robot.tcp().value();
    raw::robot_ext_profiler_period_set(box.id(), robot.id(), period).value();
    raw::robot_ext_profiler_tcp_type_set(box.id(), robot.id(), QORIN_POSE_TYPE_TCP).value();
    raw::robot_ext_profiler_switch_set(box.id(), robot.id(), QORIN_SWITCH_ON).value();
    double farthest = 0;
    int waits = 0;
    const auto look = [&] { farthest = std::max(farthest, distance_to_circle(start, robot.tcp().value())); };
    for (int sent = 0; sent < points; look())
    {
        const auto [x, y, z, rx, ry, rz] = on_circle(start, static_cast<double>(sent + 1) / points);
        const auto added = raw::robot_ext_profiler_pos_ort_euler_add(box.id(), robot.id(), x, y, z, rx, ry, rz);
        if (added)
            ++sent;
        else if (added.error().code() != QORIN_API_RESULT_ERROR_ROBOT_EXT_PROFILER_BUF_FULL)
            added.value();
        else if (++waits > 0) // a full buffer is no failure: the same point again, a little later
            std::this_thread::sleep_for(std::chrono::milliseconds(20 * period));
    }
    example::wait_for_frames(); // what still waits when the profiler goes off is forgotten
    const auto waiting = [&] { return raw::robot_ext_profiler_buffer_size_get(box.id(), robot.id()).value(); };
    example::await("an empty buffer", [&] { return look(), waiting() == 0; });
    example::wait_for_frames();
    raw::robot_ext_profiler_switch_set(box.id(), robot.id(), QORIN_SWITCH_OFF).value();
    std::printf("sent %d points, waited %d times for room, at most %.3f mm off the circle\n", points, waits, farthest);
    if (farthest > 1 || std::hypot(robot.tcp()->y_mm - start.y_mm, robot.tcp()->z_mm - start.z_mm) > 1)
        throw std::runtime_error("the arm has not come round");
}
} // namespace

int main(int argc, char** argv)
{
    return example::program(argc, argv, 1, "cpp_profiler_stream ADDRESS CONFIG [SECONDS]",
                            [&](const qorin::cbox& box)
                            {
                                const double seconds = argc > 3 ? example::number(argv[3], 1) : 3;
                                const auto control = example::take_control(box);
                                const auto robot = example::robot_under_power(box);
                                example::run(
                                    robot.make(qorin::joint_motion{.end = example::ready, .speed_deg_s = 90}).value());
                                go_round(box, robot, static_cast<int>(seconds * 1000 / period));
                            });
}
