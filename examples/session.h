#ifndef EXAMPLES_SESSION_H
#define EXAMPLES_SESSION_H

#include <chrono>
#include <csignal>
#include <cstdio>
#include <thread>

#include <qorin/qorin_api_rpc_client.h>

/// What the examples have in common: a connection with a system and the control, and a robot.
namespace example
{
/// Commands read 128 bytes from each text, array and output, so these stand in buffers of that size.
inline const char text[128] = "example";

/// Prints what is not OK, with the name of the step that it happened in.
inline bool is_ok(const char* step, QORIN_API_RESULT result)
{
    if (result != QORIN_API_RESULT_OK)
        std::fprintf(stderr, "%s: %u %s\n", step, static_cast<unsigned int>(result),
                     qorin_system_api_result_string_get(result));
    return result == QORIN_API_RESULT_OK;
}

/// Lets a few status frames arrive, so that getters tell what the last command has set.
inline void wait_for_frames()
{
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
}

/// Connects, makes the system unless it stands, and takes the control.
inline bool open_session(const char* address, const char* config, unsigned int& cbox_id)
{
    std::signal(SIGPIPE, SIG_IGN); // a lost link shall be a result, not the end of the program
    if (!is_ok("connect", qorin_rpc_system_cbox_connect(config, address, &cbox_id)))
        return false;
    const QORIN_API_RESULT created = qorin_rpc_gen_system_create(cbox_id, text, QORIN_CBOX_MODEL_3GEN_SIM);
    return (created == QORIN_API_RESULT_WARNING_SYSTEM_ALREADY_CREATED || is_ok("create system", created)) &&
           is_ok("take control", qorin_rpc_system_control_take(cbox_id));
}

inline bool close_session(unsigned int cbox_id)
{
    return is_ok("release control", qorin_rpc_system_control_release(cbox_id));
}

inline bool create_robot(unsigned int cbox_id, QORIN_ROBOT_MODEL model, unsigned int& robot_id)
{
    unsigned int id[32] = {};
    if (!is_ok("create robot", qorin_rpc_robot_create(cbox_id, model, text, 0, id)))
        return false;
    robot_id = id[0];
    wait_for_frames();
    return true;
}

inline bool destroy_robot(unsigned int cbox_id, unsigned int robot_id)
{
    return is_ok("destroy robot", qorin_rpc_robot_destroy(cbox_id, robot_id));
}
} // namespace example

#endif
