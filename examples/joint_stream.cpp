// Streams a sine to the first joint of a robot at 250 Hz and tells how well the robot followed.
//
//   joint_stream ADDRESS CONFIG [SECONDS [MODEL]]
//
// MODEL is the number of an arm model, 401510 to 401518. The configuration's `client.kinematics_path` names the
// directory of the kinematics modules.

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <thread>

#include "session.h"

namespace
{
using example::is_ok;

constexpr auto period = std::chrono::milliseconds(4);
constexpr double amplitude = 10.0;       // degrees
constexpr double seconds_per_wave = 4.0; // the joint's highest speed is then 16 degrees per second
constexpr double tolerated_error = 5.0;  // degrees
constexpr double needed_share = 0.9;     // a busy machine delivers a target late now and then

struct stream_report
{
    int sent = 0;
    int followed = 0; ///< targets at whose time the joint was no further off than tolerated
    double largest_error = 0;
};

/// False when the library refused a target; it has ended the stream then.
bool stream_sine(unsigned int cbox_id, unsigned int robot_id, double seconds, stream_report& report)
{
    double targets[6] = {}; // six in any case: a move reads them all
    for (unsigned int joint = 0; joint < 6; ++joint)
        qorin_rpc_robot_joint_angle_actual_get(cbox_id, robot_id, joint, &targets[joint]);
    const double middle = targets[0];

    const auto begin = std::chrono::steady_clock::now();
    const int count = static_cast<int>(seconds / std::chrono::duration<double>(period).count());
    for (int tick = 0; tick < count; ++tick)
    {
        const double elapsed = tick * std::chrono::duration<double>(period).count();
        targets[0] = middle + amplitude * std::sin(2 * std::numbers::pi * elapsed / seconds_per_wave);
        if (!is_ok("move", qorin_rpc_robot_joint_chaser_move(cbox_id, robot_id, 6, targets)))
            return false;
        ++report.sent;
        std::this_thread::sleep_until(begin + (tick + 1) * period);

        double actual = 0;
        qorin_rpc_robot_joint_angle_actual_get(cbox_id, robot_id, 0, &actual);
        const double error = std::abs(targets[0] - actual);
        report.followed += error <= tolerated_error;
        report.largest_error = std::max(report.largest_error, error);
    }
    return true;
}

/// The stream, with the chaser switched on before and off after it, under power. Its address comes ahead of all that.
bool chase(unsigned int cbox_id, unsigned int robot_id, const char* address, double seconds, stream_report& report)
{
    if (!is_ok("servo on", qorin_rpc_robot_servo_switch_set(cbox_id, robot_id, QORIN_SWITCH_ON)) ||
        !is_ok("set address", qorin_rpc_robot_joint_chaser_ip_set(cbox_id, robot_id, address)) ||
        !is_ok("chaser on", qorin_rpc_robot_joint_chaser_switch_set(cbox_id, robot_id, QORIN_SWITCH_ON)))
        return false;
    const bool streamed = stream_sine(cbox_id, robot_id, seconds, report);
    return is_ok("chaser off", qorin_rpc_robot_joint_chaser_switch_set(cbox_id, robot_id, QORIN_SWITCH_OFF)) &&
           streamed;
}
} // namespace

int main(int argc, char** argv)
{
    example::take_arguments(argc, argv, 2, "joint_stream ADDRESS CONFIG [SECONDS [MODEL]]");
    const double seconds = argc > 3 ? example::number(argv[3]) : 3.0;
    const QORIN_ROBOT_MODEL model = argc > 4 ? example::robot_model(argv[4]) : QORIN_ROBOT_MODEL_ARM_C;

    unsigned int cbox_id = 0;
    unsigned int robot_id = 0;
    if (!example::open_session(argv[1], argv[2], cbox_id) || !example::create_robot(cbox_id, model, robot_id))
        return 1;

    stream_report report;
    const bool streamed = chase(cbox_id, robot_id, argv[1], seconds, report);
    std::printf("sent %d targets, followed %d, largest error %.3f degrees\n", report.sent, report.followed,
                report.largest_error);

    const bool ended = example::destroy_robot(cbox_id, robot_id);
    const bool released = example::close_session(cbox_id);
    return streamed && ended && released && report.followed >= needed_share * report.sent ? 0 : 1;
}
