#include "savrent/cc/thread_help.h"

#include <atomic>
#include <bit>
#include <cerrno>
#include <cstring>
#include <future>
#include <map>

#include <pthread.h>
#include <sched.h>
#include <time.h>

#include "savrent/cc/debug_print.h"
#include "savrent/cc/immortal.h"
#include "savrent/cc/timer.h"

namespace savrent::cc
{
namespace
{
constexpr std::size_t name_size = 16;
constexpr int periodic_task_priority = 92;
constexpr double period_tolerance_us = 100.0;

/// The running flag of each periodic task. An entry stays when its task has ended, with the value false.
immortal<std::map<std::thread::id, std::atomic<bool>>> g_is_run_map;

unsigned long native_handle(const std::thread::id& thread)
{
    return std::bit_cast<unsigned long>(thread);
}

int read_scheduling(sched_param& parameters)
{
    int policy = 0;
    const int failure = pthread_getschedparam(pthread_self(), &policy, &parameters);
    if (failure != 0)
        QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_WARNING, "pthread_getschedparam failed: %d, %s\n", failure,
                          std::strerror(failure));
    return policy;
}

void make_real_time()
{
    sched_param before{};
    const int policy_before = read_scheduling(before);

    sched_param wanted{};
    wanted.sched_priority = periodic_task_priority;
    if (const int failure = pthread_setschedparam(pthread_self(), SCHED_FIFO, &wanted); failure != 0)
        QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_WARNING, "pthread_setschedparam failed: %d, %s\n", failure,
                          std::strerror(failure));

    sched_param after{};
    const int policy_after = read_scheduling(after);
    QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_INFO, "txrx thread policy: (%d->%d), prio: (%d->%d)\n", policy_before,
                      policy_after, before.sched_priority, after.sched_priority);
}

void advance(timespec& wake_up, unsigned int period_us)
{
    constexpr long second = 1'000'000'000;
    wake_up.tv_nsec += static_cast<long>(period_us) * 1000;
    wake_up.tv_sec += wake_up.tv_nsec / second;
    wake_up.tv_nsec %= second;
}

void periodic_task_impl(const std::function<void()>& body, unsigned int period_us, std::promise<void> started)
{
    std::atomic<bool>& is_running = (*g_is_run_map)[std::this_thread::get_id()];
    is_running.store(true, std::memory_order_relaxed);
    started.set_value();
    thread_help::set_this_thread_affinity(1);
    make_real_time();

    timer cycle;
    cycle.start();
    timespec wake_up{};
    clock_gettime(CLOCK_MONOTONIC, &wake_up);
    while (is_running.load(std::memory_order_relaxed))
    {
        const double elapsed = cycle.elapsed_microsec();
        cycle.start();
        if (elapsed > period_us + period_tolerance_us || elapsed < period_us - period_tolerance_us)
            QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_WARNING, "periodic task is out of range, elapsed time: %f[us]\n", elapsed);
        body();
        advance(wake_up, period_us);
        while (clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &wake_up, nullptr) == EINTR)
        {
        }
    }
}
} // namespace

signals_blocked::signals_blocked()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before_);
}

signals_blocked::~signals_blocked()
{
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

void thread_help::set_affinity(unsigned long thread, unsigned int core)
{
    char name[name_size] = "";
    pthread_getname_np(thread, name, sizeof(name));
    const int core_before = sched_getcpu();

    cpu_set_t cores;
    CPU_ZERO(&cores);
    if (core < CPU_SETSIZE)
        CPU_SET(core, &cores);
    // NOLINTNEXTLINE(bugprone-posix-return): a failure is no fault
    if (pthread_setaffinity_np(thread, sizeof(cores), &cores) < 0)
        QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_ERROR, "thread(%s) set inffinity failure\n", name);
    QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_INFO, "thread name : %s, set core#: %d, (core#: %d->%d)\n", name,
                      static_cast<int>(core), core_before, sched_getcpu());
}

void thread_help::set_this_thread_affinity(unsigned int core)
{
    set_affinity(pthread_self(), core);
}

void thread_help::set_name(unsigned long thread, const char* name)
{
    const std::size_t length = std::strlen(name);
    if (length >= name_size)
    {
        QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_WARNING, "%s: warning thread name is too long : %d\n", "set_name",
                          static_cast<int>(length));
        return;
    }
    char old_name[name_size] = "";
    char new_name[name_size] = "";
    pthread_getname_np(thread, old_name, sizeof(old_name));
    pthread_setname_np(thread, name);
    pthread_getname_np(thread, new_name, sizeof(new_name));
    QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_INFO, "thread set name : [%s->%s]\n", old_name, new_name);
    set_this_thread_affinity(2);
}

void thread_help::set_this_thread_name(const char* name)
{
    set_name(pthread_self(), name);
}

bool thread_help::set_priority(unsigned long thread, int priority)
{
    int policy = 0;
    sched_param parameters{};
    pthread_getschedparam(thread, &policy, &parameters);
    parameters.sched_priority = priority;
    pthread_setschedparam(thread, policy, &parameters);
    return true;
}

bool thread_help::set_priority(const std::thread::id& thread, int priority)
{
    return set_priority(native_handle(thread), priority);
}

std::shared_ptr<std::thread> thread_help::run_periodic_task(std::shared_ptr<std::function<void()>> body,
                                                            unsigned int period_us, const char* name)
{
    // The task has its entry before this returns: a join right after it must find the task running.
    std::promise<void> started;
    std::future<void> has_started = started.get_future();
    auto thread =
        std::make_shared<std::thread>([body = std::move(body), period_us, started = std::move(started)]() mutable
                                      { periodic_task_impl(*body, period_us, std::move(started)); });
    has_started.wait();
    set_name(thread->native_handle(), name);
    return thread;
}

void thread_help::join_periodic_task(std::shared_ptr<std::thread> thread) // NOLINT(performance-unnecessary-value-param)
{
    if (thread == nullptr)
    {
        QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_ERROR, "join_periodic_task failure, thread is nullptr\n");
        return;
    }
    const auto entry = g_is_run_map->find(thread->get_id());
    if (entry == g_is_run_map->end() || !entry->second.load(std::memory_order_relaxed))
    {
        QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_ERROR, "sync thread id is not running\n");
        return;
    }
    const auto handle = static_cast<int>(thread->native_handle());
    entry->second.store(false, std::memory_order_relaxed);
    thread->join();
    QORIN_DEBUG_PRINT(QORIN_LOG_TYPE_INFO, "sync thread join [%d]\n", handle);
}
} // namespace savrent::cc
