// Streams a sine to the first joint of a robot at 250 Hz and tells how well the robot followed.
//
//   joint_stream ADDRESS CONFIG [SECONDS [MODEL]]
//
// MODEL is the number of an arm model, 401510 to 401518. The configuration's `client.kinematics_path` names the
// directory of the kinematics modules.

#include <algorithm>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <numbers>
#include <thread>

#include <qorin/qorin_api_rpc_client.h>

namespace
{
constexpr auto period = std::chrono::milliseconds(4);
constexpr double amplitude = 10.0;       // degrees
constexpr double seconds_per_wave = 2.0; // the joint's highest speed is then 31 degrees per second
constexpr double tolerated_error = 5.0;  // degrees

/// Commands read 128 bytes from each text and output, so these stand in buffers of that size.
const char text[128] = "joint stream example";

struct stream_report
{
    int sent = 0;
    int followed = 0; ///< targets at whose time the joint was no further off than tolerated
    double largest_error = 0;
};

bool is_ok(const char* step, QORIN_API_RESULT result)
{
    if (result != QORIN_API_RESULT_OK)
        std::fprintf(stderr, "%s: %u %s\n", step, static_cast<unsigned int>(result),
                     qorin_system_api_result_string_get(result));
    return result == QORIN_API_RESULT_OK;
}

/// Makes whatever stands ahead of a robot: the system and the control.
bool take_control(unsigned int cbox_id)
{
    const QORIN_API_RESULT created = qorin_rpc_gen_system_create(cbox_id, text, QORIN_CBOX_MODEL_3GEN_SIM);
    return (created == QORIN_API_RESULT_WARNING_SYSTEM_ALREADY_CREATED || is_ok("create system", created)) &&
           is_ok("take control", qorin_rpc_system_control_take(cbox_id));
}

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

/// The stream, with the chaser switched on before and off after it. Its address comes ahead of all that.
bool chase(unsigned int cbox_id, unsigned int robot_id, const char* address, double seconds, stream_report& report)
{
    if (!is_ok("set address", qorin_rpc_robot_joint_chaser_ip_set(cbox_id, robot_id, address)) ||
        !is_ok("chaser on", qorin_rpc_robot_joint_chaser_switch_set(cbox_id, robot_id, QORIN_SWITCH_ON)))
        return false;
    const bool streamed = stream_sine(cbox_id, robot_id, seconds, report);
    return is_ok("chaser off", qorin_rpc_robot_joint_chaser_switch_set(cbox_id, robot_id, QORIN_SWITCH_OFF)) &&
           streamed;
}
} // namespace

int main(int argc, char** argv)
{
    if (argc < 3)
    {
        std::fprintf(stderr, "usage: joint_stream ADDRESS CONFIG [SECONDS [MODEL]]\n");
        return 1;
    }
    std::signal(SIGPIPE, SIG_IGN);
    const double seconds = argc > 3 ? std::atof(argv[3]) : 3.0;
    const auto model =
        argc > 4 ? static_cast<QORIN_ROBOT_MODEL>(std::strtoul(argv[4], nullptr, 10)) : QORIN_ROBOT_MODEL_ARM_C;

    unsigned int cbox_id = 0;
    unsigned int robot_id[32] = {};
    if (!is_ok("connect", qorin_rpc_system_cbox_connect(argv[2], argv[1], &cbox_id)) || !take_control(cbox_id) ||
        !is_ok("create robot", qorin_rpc_robot_create(cbox_id, model, text, 0, robot_id)))
        return 1;
    std::this_thread::sleep_for(std::chrono::milliseconds(50)); // a few frames with the robot in them

    stream_report report;
    const bool streamed = chase(cbox_id, robot_id[0], argv[1], seconds, report);
    std::printf("sent %d targets, followed %d, largest error %.3f degrees\n", report.sent, report.followed,
                report.largest_error);

    const bool ended = is_ok("destroy robot", qorin_rpc_robot_destroy(cbox_id, robot_id[0]));
    const bool released = is_ok("release control", qorin_rpc_system_control_release(cbox_id));
    return streamed && ended && released && report.followed == report.sent ? 0 : 1;
}
