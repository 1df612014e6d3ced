#ifndef SAVRENT_CC_THREAD_HELP_H
#define SAVRENT_CC_THREAD_HELP_H

#include <functional>
#include <memory>
#include <thread>

#include <signal.h>

namespace savrent::cc
{
/// Keeps all signals from the calling thread while it lives, and for good from the threads that are started meanwhile.
class signals_blocked
{
public:
    signals_blocked();
    ~signals_blocked();
    signals_blocked(const signals_blocked&) = delete;
    signals_blocked& operator=(const signals_blocked&) = delete;

private:
    sigset_t before_;
};

/**
 * Names, cores, priorities and periodic tasks. Every failure here is a line and a continuation.
 *
 * Periodic tasks are started and joined by one thread at a time.
 */
class thread_help
{
public:
    /// Pins a thread (a native handle) to one core. An impossible core only costs the pinning.
    static void set_affinity(unsigned long thread, unsigned int core);
    static void set_this_thread_affinity(unsigned int core);

    /// Names a thread with at most 15 characters, and pins the calling thread to core 2. A longer name only warns.
    static void set_name(unsigned long thread, const char* name);
    static void set_this_thread_name(const char* name);

    /// Keeps the scheduling policy and sets the priority. @return true.
    static bool set_priority(unsigned long thread, int priority);
    static bool set_priority(const std::thread::id& thread, int priority);

    /**
     * Runs `body` every `period_us` microseconds on a thread of its own, at real-time priority on core 1 where the
     * process has the right to it. Wake-up times are absolute: the period does not drift with the body's length.
     */
    static std::shared_ptr<std::thread> run_periodic_task(std::shared_ptr<std::function<void()>> body,
                                                          unsigned int period_us, const char* name);

    /// Ends and joins a periodic task.
    static void join_periodic_task(std::shared_ptr<std::thread> thread);
};
} // namespace savrent::cc

#endif
