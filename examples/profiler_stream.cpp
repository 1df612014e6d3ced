// Streams a circle to a robot through the external profiler: a pose each 4 milliseconds, from a buffer that is kept
// full, so that the program need not be in time with the arm.
//
//   profiler_stream ADDRESS CONFIG [SECONDS]
//
// The configuration's `client.kinematics_path` names the directory of the kinematics modules.

#include <algorithm>
#include <cmath>
#include <numbers>

#include "motion.h"

namespace
{
using example::is_ok;
using example::position;

constexpr unsigned int period = 4; // milliseconds
constexpr double radius = 60;      // millimetres
constexpr double needed = 1;       // millimetres that the arm may be off the circle

struct stream_report
{
    int sent = 0;
    int waits = 0; ///< for room in the buffer
    double farthest = 0;
};

/// Where the circle begins and ends, and the orientation that the TCP keeps.
struct circle
{
    position start;
    double rx = 0, ry = 0, rz = 0;

    /// From 0 to 1 once round, in the plane of y and z.
    [[nodiscard]] position at(double share) const
    {
        // It starts and ends at rest.
        const double turn = 2 * std::numbers::pi * share - std::sin(2 * std::numbers::pi * share);
        return {start[0], start[1] + radius * std::sin(turn), start[2] - radius * (1 - std::cos(turn))};
    }

    /// How far off the circle a TCP is.
    [[nodiscard]] double distance_to(const position& tcp) const
    {
        return std::hypot(tcp[0] - start[0], std::hypot(tcp[1] - start[1], tcp[2] - start[2] + radius) - radius);
    }
};

void look(unsigned int cbox_id, unsigned int robot_id, const circle& way, stream_report& report)
{
    report.farthest = std::max(report.farthest, way.distance_to(example::tcp_now(cbox_id, robot_id)));
}

/// A full buffer is no failure: the same point again, a little later.
bool stream(unsigned int cbox_id, unsigned int robot_id, const circle& way, double seconds, stream_report& report)
{
    const int points = std::max(static_cast<int>(seconds * 1000 / period), 1);
    while (report.sent < points)
    {
        const auto [x, y, z] = way.at(static_cast<double>(report.sent + 1) / points);
        const QORIN_API_RESULT added =
            qorin_rpc_robot_ext_profiler_pos_ort_euler_add(cbox_id, robot_id, x, y, z, way.rx, way.ry, way.rz);
        if (added == QORIN_API_RESULT_ERROR_ROBOT_EXT_PROFILER_BUF_FULL)
        {
            ++report.waits;
            std::this_thread::sleep_for(std::chrono::milliseconds(20 * period));
        }
        else if (!is_ok("point", added))
            return false;
        else
            ++report.sent;
        look(cbox_id, robot_id, way, report);
    }
    return true;
}

/// What still waits when the profiler goes off is forgotten.
bool await_empty_buffer(unsigned int cbox_id, unsigned int robot_id, const circle& way, stream_report& report)
{
    example::wait_for_frames(); // the last point shows in the mirror
    unsigned int waiting = 1;
    for (unsigned int waited = 0; waiting > 0 && waited < example::patience; waited += period)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(period));
        if (!is_ok("buffer", qorin_rpc_robot_ext_profiler_buffer_size_get(cbox_id, robot_id, &waiting)))
            return false;
        look(cbox_id, robot_id, way, report);
    }
    example::wait_for_frames(); // the arm comes to the last point
    return waiting == 0;
}

bool go_round(unsigned int cbox_id, unsigned int robot_id, double seconds, stream_report& report)
{
    circle way;
    qorin_rpc_robot_tcp_pose_actual_get(cbox_id, robot_id, &way.start[0], &way.start[1], &way.start[2], &way.rx,
                                        &way.ry, &way.rz);
    if (!is_ok("period", qorin_rpc_robot_ext_profiler_period_set(cbox_id, robot_id, period)) ||
        !is_ok("TCP", qorin_rpc_robot_ext_profiler_tcp_type_set(cbox_id, robot_id, QORIN_POSE_TYPE_TCP)) ||
        !is_ok("profiler on", qorin_rpc_robot_ext_profiler_switch_set(cbox_id, robot_id, QORIN_SWITCH_ON)))
        return false;
    const bool streamed =
        stream(cbox_id, robot_id, way, seconds, report) && await_empty_buffer(cbox_id, robot_id, way, report);
    const bool off =
        is_ok("profiler off", qorin_rpc_robot_ext_profiler_switch_set(cbox_id, robot_id, QORIN_SWITCH_OFF));
    const auto end = example::tcp_now(cbox_id, robot_id);
    return streamed && off && std::hypot(end[1] - way.start[1], end[2] - way.start[2]) < needed;
}

bool run(unsigned int cbox_id, unsigned int robot_id, double seconds)
{
    if (!example::go_ready(cbox_id, robot_id))
        return false;
    stream_report report;
    const bool done = go_round(cbox_id, robot_id, seconds, report);
    std::printf("sent %d points, waited %d times for room, at most %.3f mm off the circle\n", report.sent, report.waits,
                report.farthest);
    if (!done)
        std::fprintf(stderr, "the arm has not come round\n");
    return done && report.farthest < needed;
}
} // namespace

int main(int argc, char** argv)
{
    example::take_arguments(argc, argv, 1, "profiler_stream ADDRESS CONFIG [SECONDS]");
    const double seconds = argc > 3 ? example::number(argv[3], 1) : 3;
    return example::with_robot(
        argv[1], argv[2], [&](unsigned int cbox_id, unsigned int robot_id) { return run(cbox_id, robot_id, seconds); });
}
