#include "benchmarks/connection/server_process.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "simulator/control_box.h"

namespace benchmark_support
{
namespace
{
[[noreturn]] void serve(const std::string& address, double rate,
                        const std::function<void(cbox_simulator::control_box&)>& life, int ready)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    cbox_simulator::control_box_options options;
    options.address = address;
    options.rate = rate;
    cbox_simulator::control_box box(options);
    try
    {
        box.start();
    }
    catch (const std::exception& failure)
    {
        std::fprintf(stderr, "%s\n", failure.what());
        _exit(1);
    }
    const char go = 'g';
    if (write(ready, &go, 1) != 1)
        _exit(1);
    life(box);
    while (true)
        pause();
}
} // namespace

server_process::server_process(const std::string& address, double rate,
                               const std::function<void(cbox_simulator::control_box&)>& life)
{
    int ready[2];
    if (pipe(ready) != 0)
        std::abort();
    child_ = fork();
    if (child_ == 0)
        serve(address, rate, life, ready[1]);
    close(ready[1]);
    char go = 0;
    if (read(ready[0], &go, 1) != 1)
    {
        std::fprintf(stderr, "the simulated control box did not start\n");
        std::exit(1);
    }
    close(ready[0]);
}

server_process::~server_process()
{
    kill(child_, SIGKILL);
    waitpid(child_, nullptr, 0);
}

double in_own_process(const std::function<double()>& work)
{
    int result[2];
    if (pipe(result) != 0)
        std::abort();
    const pid_t child = fork();
    if (child == 0)
    {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        const double number = work();
        _exit(write(result[1], &number, sizeof(number)) == sizeof(number) ? 0 : 1);
    }
    close(result[1]);
    double number = -1;
    if (read(result[0], &number, sizeof(number)) != sizeof(number))
    {
        std::fprintf(stderr, "a measuring process ended without a result\n");
        std::exit(1);
    }
    close(result[0]);
    waitpid(child, nullptr, 0);
    return number;
}

double processor_seconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time)
    { return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}
} // namespace benchmark_support
