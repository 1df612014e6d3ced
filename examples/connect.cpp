// Connects to a control box, creates its system, takes control and gives it back.
//
//   connect ADDRESS CONFIG [HOLD_SECONDS]
//
// With HOLD_SECONDS the program keeps the control for that long, so that a second one can be seen to be refused.

#include <chrono>
#include <csignal>
#include <cstdio>
#include <thread>

#include "session.h"

namespace
{
bool report(const char* step, QORIN_API_RESULT result)
{
    std::printf("%-16s %u %s\n", step, static_cast<unsigned int>(result), qorin_system_api_result_string_get(result));
    return result == QORIN_API_RESULT_OK;
}

/// Control that is given back whichever way the program goes on.
bool work_with_control(unsigned int cbox_id, double hold_seconds)
{
    if (!report("take control", qorin_rpc_system_control_take(cbox_id)))
        return false;

    // An output parameter is read 128 bytes far before it is written, so it stands in a buffer of that size too.
    QORIN_SWITCH controllable[32] = {};
    report("controllable", qorin_rpc_system_controllable_get(cbox_id, controllable));
    std::printf("%-16s %s\n", "", controllable[0] == QORIN_SWITCH_ON ? "this program commands" : "it may not command");
    std::fflush(stdout);
    std::this_thread::sleep_for(std::chrono::duration<double>(hold_seconds));
    return report("release control", qorin_rpc_system_control_release(cbox_id));
}
} // namespace

int main(int argc, char** argv)
{
    example::take_arguments(argc, argv, 1, "connect ADDRESS CONFIG [HOLD_SECONDS]");
    const double hold_seconds = argc > 3 ? example::number(argv[3]) : 0;
    std::signal(SIGPIPE, SIG_IGN); // a lost link shall be a result, not the end of the program

    unsigned int cbox_id = 0;
    const QORIN_API_RESULT connected = qorin_rpc_system_cbox_connect(argv[2], argv[1], &cbox_id);
    report("connect", connected);
    if (connected != QORIN_API_RESULT_OK && connected != QORIN_API_RESULT_ERROR_SW_VER_NOT_MATCHED)
        return 1;
    std::printf("%-16s %s\n", "library", qorin_rpc_system_api_version_get(cbox_id));
    std::printf("%-16s %s\n", "control box", qorin_rpc_system_control_sw_version_get(cbox_id));

    const QORIN_API_RESULT created = qorin_rpc_gen_system_create(cbox_id, example::text, QORIN_CBOX_MODEL_3GEN_SIM);
    report("create system", created);
    if (created != QORIN_API_RESULT_OK && created != QORIN_API_RESULT_WARNING_SYSTEM_ALREADY_CREATED)
        return 1;
    return work_with_control(cbox_id, hold_seconds) ? 0 : 1;
}
