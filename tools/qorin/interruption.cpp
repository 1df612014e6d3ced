#include "tools/qorin/interruption.h"

#include <atomic>
#include <csignal>

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace qorin_cli
{
namespace
{
std::atomic<int> g_stopped = -1; ///< an event descriptor, readable once a signal has come
static_assert(std::atomic<int>::is_always_lock_free);

void request_stop(int /*signal*/)
{
    const eventfd_t one = 1;
    static_cast<void>(!write(g_stopped, &one, sizeof one));
}

bool wait_for_stop(const timespec& time)
{
    pollfd stopped = {g_stopped, POLLIN, 0};
    return ppoll(&stopped, 1, &time, nullptr) != 0;
}
} // namespace

void catch_interruption()
{
    g_stopped = eventfd(0, EFD_CLOEXEC);
    std::signal(SIGINT, request_stop);
    std::signal(SIGTERM, request_stop);
}

bool is_interrupted()
{
    return wait_for_stop({});
}

bool sleep_unless_interrupted(std::chrono::nanoseconds time)
{
    const auto seconds = std::chrono::floor<std::chrono::seconds>(time);
    return !wait_for_stop({seconds.count(), (time - seconds).count()});
}
} // namespace qorin_cli
