#ifndef EXAMPLES_SESSION_H
#define EXAMPLES_SESSION_H

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <thread>

#include <qorin/qorin_api_rpc_client.h>

/// What the examples have in common: their arguments, a connection with a system and the control, and a robot.
namespace example
{
/// Commands read 128 bytes from each text, array and output, so these stand in buffers of that size.
inline const char text[128] = "example";

/// Goes on only with an address, a configuration and up to so many arguments more. Answers `--version` and `--help`.
inline void take_arguments(int argc, char** argv, int further, const char* usage)
{
    const std::string_view first = argc == 2 ? argv[1] : "";
    if (first == "--version")
        std::printf("%s\n", qorin_system_api_version_get());
    else if (first == "--help")
        std::printf("usage: %s\n", usage);
    else if (argc < 3 || argc > 3 + further)
        std::fprintf(stderr, "usage: %s\n", usage);
    else
        return;
    std::exit(first.starts_with("--") ? 0 : 1);
}

inline double number(const char* argument, double least = 0)
{
    char* end = nullptr;
    const double value = std::strtod(argument, &end);
    if (end != argument && *end == '\0' && value >= least && value < 1e9)
        return value;
    std::fprintf(stderr, "not a number from %g on: %s\n", least, argument);
    std::exit(1);
}

inline QORIN_ROBOT_MODEL robot_model(const char* argument)
{
    return static_cast<QORIN_ROBOT_MODEL>(number(argument));
}

/// Prints what is not OK, with the name of the step that it happened in.
inline bool is_ok(const char* step, QORIN_API_RESULT result)
{
    if (result != QORIN_API_RESULT_OK)
        std::fprintf(stderr, "%s: %u %s\n", step, static_cast<unsigned int>(result),
                     qorin_system_api_result_string_get(result));
    return result == QORIN_API_RESULT_OK;
}

/// Lets a few status frames arrive, so that getters tell what the last command has set or the last event has told.
inline void wait_for_frames()
{
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
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

/// A program that was killed leaves its robot on the control box, where there is room for no other: it goes first.
inline bool create_robot(unsigned int cbox_id, QORIN_ROBOT_MODEL model, unsigned int& robot_id)
{
    unsigned int id[32] = {};
    QORIN_API_RESULT created = qorin_rpc_robot_create(cbox_id, model, text, 0, id);
    if (created == QORIN_API_RESULT_ERROR_ROBOT_CREATION_FAILURE &&
        is_ok("destroy the robot that stands", qorin_rpc_robot_destroy(cbox_id, 0)))
        created = qorin_rpc_robot_create(cbox_id, model, text, 0, id);
    if (!is_ok("create robot", created))
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
