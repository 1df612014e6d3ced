// Watches a control box: events scroll by, and below them stands a status table that is redrawn.
//
//   watch ADDRESS CONFIG [SECONDS]
//
// Ends on Ctrl-C, or after SECONDS. Into a pipe or a file it writes the events, and the table once at the end.

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <deque>
#include <mutex>
#include <string>
#include <thread>

#include <unistd.h>

#include "session.h"

namespace
{
using namespace std::chrono_literals;

std::atomic<bool> g_stop = false;

void request_stop(int /*signal*/)
{
    g_stop = true;
}

/// Events on their way from the event thread to the screen. A callback must be quick, so it only stores a line.
std::mutex g_lines_mutex;
std::deque<std::string> g_lines;

const char* name_of_subgroup(unsigned int subgroup)
{
    switch (subgroup)
    {
    case QORIN_EVENT_SUBGRP_CONTROL_BOX_BUTTON_CHANGED_EMG_PUSHED:
        return "emergency button pushed";
    case QORIN_EVENT_SUBGRP_CONTROL_BOX_BUTTON_CHANGED_EMG_RELEASED:
        return "emergency button released";
    case QORIN_EVENT_SUBGRP_CONTROL_BOX_BUTTON_CHANGED_PWR_PUSHED:
        return "power button pushed";
    case QORIN_EVENT_SUBGRP_CONTROL_BOX_BUTTON_CHANGED_PWR_RELEASED:
        return "power button released";
    case QORIN_EVENT_SUBGRP_NOTIFICATION_SYSTEM_INITIALIZED:
        return "system initialised";
    case QORIN_EVENT_SUBGRP_NOTIFICATION_ECAT_CONNECTED:
        return "EtherCAT connected";
    case QORIN_EVENT_SUBGRP_NOTIFICATION_ECAT_DISCONNECTED:
        return "EtherCAT disconnected";
    case QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_TAKE:
        return "control taken";
    case QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_RELEASE:
        return "control released";
    case QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_SW_EXIT:
        return "control software exits";
    default:
        return "";
    }
}

void on_event(unsigned int group, unsigned int subgroup, unsigned int sender_id, int p1, int p2, int p3, int p4, int p5)
{
    char line[200];
    std::snprintf(line, sizeof(line), "event %u %u from %u (%d %d %d %d %d) %s", group, subgroup, sender_id, p1, p2, p3,
                  p4, p5, name_of_subgroup(subgroup));
    std::lock_guard lock(g_lines_mutex);
    g_lines.emplace_back(line);
}

const char* button(QORIN_BUTTON_STATE state)
{
    return state == QORIN_BUTTON_STATE_PUSHED ? "pushed" : state == QORIN_BUTTON_STATE_RELEASED ? "free" : "?";
}

/// A channel each: '1' for a set input, '.' for a clear one.
template <class Getter>
std::string channels(unsigned int cbox_id, Getter&& getter)
{
    std::string text;
    for (unsigned int channel = 0; channel < 16; ++channel)
    {
        unsigned int value = 0;
        text += getter(cbox_id, channel, &value) != QORIN_API_RESULT_OK ? '?' : value != 0 ? '1' : '.';
    }
    return text;
}

constexpr int table_lines = 6;

void print_table(unsigned int cbox_id)
{
    QORIN_BUTTON_STATE emergency{};
    QORIN_BUTTON_STATE power{};
    QORIN_ECAT_CONN_STATE ecat{};
    QORIN_CBOX_MODEL model{};
    double analog[2] = {};
    qorin_rpc_cbox_emergency_button_state_get(cbox_id, &emergency);
    qorin_rpc_cbox_power_button_state_get(cbox_id, &power);
    qorin_rpc_cbox_ecat_connection_state_get(cbox_id, &ecat);
    qorin_rpc_cbox_name_get(cbox_id, &model);
    for (unsigned int channel = 0; channel < 2; ++channel)
        qorin_rpc_cbox_io_analog_input_get(cbox_id, channel, &analog[channel]);

    std::printf("+--------------------+------------------+\n");
    std::printf("| model, EtherCAT    | %6u    %6u |\n", static_cast<unsigned int>(model),
                static_cast<unsigned int>(ecat));
    std::printf("| emergency, power   | %6s    %6s |\n", button(emergency), button(power));
    std::printf("| inputs 0 to 15     | %16s |\n", channels(cbox_id, qorin_rpc_cbox_io_digital_input_get).c_str());
    std::printf("| analog inputs 0, 1 | %7.3f  %7.3f |\n", analog[0], analog[1]);
    std::printf("+--------------------+------------------+\n");
}

void print_pending_events()
{
    std::lock_guard lock(g_lines_mutex);
    for (; !g_lines.empty(); g_lines.pop_front())
        std::printf("%s\n", g_lines.front().c_str());
}

void watch(unsigned int cbox_id, std::chrono::duration<double> time)
{
    const bool on_screen = isatty(STDOUT_FILENO) != 0;
    const auto begin = std::chrono::steady_clock::now();
    bool table_stands = false;
    while (!g_stop && std::chrono::steady_clock::now() - begin < time)
    {
        if (table_stands)
            std::printf("\033[%dA\033[J", table_lines); // back to the table's first line, and clear it
        print_pending_events();
        if (on_screen)
            print_table(cbox_id);
        table_stands = on_screen;
        std::fflush(stdout);
        std::this_thread::sleep_for(100ms);
    }
    if (table_stands)
        std::printf("\033[%dA\033[J", table_lines);
    print_pending_events();
    print_table(cbox_id);
}
} // namespace

int main(int argc, char** argv)
{
    example::take_arguments(argc, argv, 1, "watch ADDRESS CONFIG [SECONDS]");
    const std::chrono::duration<double> time(argc > 3 ? example::number(argv[3]) : 86400.0);
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGINT, request_stop);
    std::signal(SIGTERM, request_stop);

    unsigned int cbox_id = 0;
    const QORIN_API_RESULT connected = qorin_rpc_system_cbox_connect(argv[2], argv[1], &cbox_id);
    if (connected != QORIN_API_RESULT_OK && connected != QORIN_API_RESULT_ERROR_SW_VER_NOT_MATCHED)
    {
        std::fprintf(stderr, "cannot connect to %s: %s\n", argv[1], qorin_system_api_result_string_get(connected));
        return 1;
    }
    qorin_rpc_system_event_callback_add(cbox_id, on_event);
    watch(cbox_id, time);
    qorin_rpc_system_event_callback_remove(cbox_id, on_event);
    return 0;
}
