// Records what a robot does and plays it back, at full and at half speed.
//
//   record_and_play ADDRESS CONFIG
//
// Two joint motions stand for the hand that would guide a real arm. The configuration's `client.kinematics_path` names
// the directory of the kinematics modules.

#include <algorithm>
#include <cmath>

#include "motion.h"

namespace
{
using example::is_ok;
using example::joint_angles;

constexpr example::tempo brisk{.speed = 60, .acceleration = 200};
constexpr double tolerance = 0.1; // degrees

bool go(unsigned int cbox_id, unsigned int robot_id, const joint_angles& end)
{
    example::motion_list moves(cbox_id, robot_id);
    return moves.add_joint_motion(end, brisk) && example::start_motions(cbox_id) &&
           example::await_end(cbox_id, moves.last());
}

/// The recording goes into a buffer of the control box. Where the arm stands still at either end is trimmed off.
bool record(unsigned int cbox_id, unsigned int robot_id, unsigned int buffer)
{
    if (!is_ok("record", qorin_rpc_robot_recording_start(cbox_id, robot_id)))
        return false;
    const bool moved = go(cbox_id, robot_id, {40, 10, 80, 0, 60, 0}) && go(cbox_id, robot_id, {-30, 25, 50, 20, 90, 0});
    return is_ok("end of recording", qorin_rpc_robot_recording_end(cbox_id, robot_id, buffer)) && moved &&
           is_ok("trim", qorin_rpc_robot_recording_trim(cbox_id, robot_id, buffer));
}

using angle_question = QORIN_API_RESULT (*)(unsigned int, unsigned int, unsigned int, unsigned int, double*);

/// The joints at the start or at the end of a recording.
bool ask_joints(angle_question ask, unsigned int cbox_id, unsigned int robot_id, unsigned int buffer,
                joint_angles& joints)
{
    for (unsigned int joint = 0; joint < joints.size(); ++joint)
    {
        double angle[16] = {};
        if (!is_ok("angle", ask(cbox_id, robot_id, buffer, joint, angle)))
            return false;
        joints[joint] = angle[0];
    }
    return true;
}

/// No event tells of the end of a playback: the moving state does.
bool await_rest(unsigned int cbox_id, unsigned int robot_id)
{
    example::wait_for_frames();
    QORIN_MOVING_STATE state = QORIN_MOVING_STATE_MOVING;
    for (unsigned int waited = 0; waited < example::patience; waited += 5)
    {
        qorin_rpc_robot_state_moving_get(cbox_id, robot_id, &state);
        if (state == QORIN_MOVING_STATE_IDLE)
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    std::fprintf(stderr, "the playback has not ended within %u ms\n", example::patience);
    return false;
}

double distance_between(const joint_angles& one, const joint_angles& other)
{
    double farthest = 0;
    for (std::size_t joint = 0; joint < one.size(); ++joint)
        farthest = std::max(farthest, std::abs(one[joint] - other[joint]));
    return farthest;
}

/// From elsewhere than its start a recording is not played: the arm is brought there ahead of it.
bool play(unsigned int cbox_id, unsigned int robot_id, unsigned int buffer, double speed_factor)
{
    joint_angles start{};
    joint_angles end{};
    unsigned int entries[32] = {};
    if (!ask_joints(qorin_rpc_robot_recording_angle_start_get, cbox_id, robot_id, buffer, start) ||
        !ask_joints(qorin_rpc_robot_recording_angle_end_get, cbox_id, robot_id, buffer, end) ||
        !go(cbox_id, robot_id, start) ||
        !is_ok("speed factor", qorin_rpc_robot_speed_factor_set(cbox_id, robot_id, speed_factor)))
        return false;
    const auto begin = std::chrono::steady_clock::now();
    const bool played = is_ok("play", qorin_rpc_robot_recording_playback(cbox_id, robot_id, buffer, entries)) &&
                        await_rest(cbox_id, robot_id);
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    if (!is_ok("speed factor", qorin_rpc_robot_speed_factor_set(cbox_id, robot_id, 1)) || !played)
        return false;
    const double off = distance_between(example::joints_now(cbox_id, robot_id), end);
    std::printf("played %u entries with factor %.1f in %.1f s, %.3f degrees off the recorded end\n", entries[0],
                speed_factor, time.count(), off);
    std::fflush(stdout);
    return off < tolerance;
}

bool run(unsigned int cbox_id, unsigned int robot_id)
{
    unsigned int buffer[32] = {};
    if (!is_ok("create recording", qorin_rpc_robot_recording_create(cbox_id, robot_id, buffer)))
        return false;
    const bool done = record(cbox_id, robot_id, buffer[0]) && play(cbox_id, robot_id, buffer[0], 1) &&
                      play(cbox_id, robot_id, buffer[0], 0.5);
    return is_ok("destroy recording", qorin_rpc_robot_recording_destroy(cbox_id, robot_id, buffer[0])) && done;
}
} // namespace

int main(int argc, char** argv)
{
    example::take_arguments(argc, argv, 0, "record_and_play ADDRESS CONFIG");
    return example::with_robot(argv[1], argv[2], run);
}
