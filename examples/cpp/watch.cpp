// Watches a control box: events as they come, and the status once a second.
//
//   cpp_watch ADDRESS CONFIG [SECONDS]
//
// Ends on Ctrl-C, or after SECONDS.

#include <atomic>
#include <csignal>

#include "session.hpp"

namespace
{
std::atomic<bool> g_stop = false;

void print(const qorin::event& event)
{
    const auto& [v1, v2, v3, v4, v5] = event.values;
    std::printf("event %u %u from %u (%d %d %d %d %d)\n", event.group, event.subgroup, event.sender, v1, v2, v3, v4,
                v5);
    std::fflush(stdout);
}

void print_status(const qorin::cbox& box)
{
    std::printf("emergency button %s, inputs 0 to 15 ",
                box.emergency_button().value() == QORIN_BUTTON_STATE_PUSHED ? "pushed" : "free");
    for (unsigned int channel = 0; channel < 16; ++channel)
        std::printf("%c", box.digital_input(channel).value_or(false) ? '1' : '.');
    std::printf(", analog input 0 at %.3f\n", box.analog_input(0).value());
    std::fflush(stdout);
}
} // namespace

int main(int argc, char** argv)
{
    return example::program(argc, argv, 1, "cpp_watch ADDRESS CONFIG [SECONDS]",
                            [&](const qorin::cbox& box)
                            {
                                const std::chrono::duration<double> time(argc > 3 ? example::number(argv[3]) : 86400);
                                for (const int signal : {SIGINT, SIGTERM})
                                    std::signal(signal, [](int) { g_stop = true; });
                                // Printing may wait, as for a slow terminal: not on the thread that events come by.
                                const auto events = box.on({}, print, qorin::dispatch::own_thread).value();
                                const auto begin = std::chrono::steady_clock::now();
                                for (int look = 0; !g_stop && std::chrono::steady_clock::now() - begin < time; ++look)
                                {
                                    if (look % 10 == 0)
                                        print_status(box);
                                    std::this_thread::sleep_for(std::chrono::milliseconds(100));
                                }
                            });
}
