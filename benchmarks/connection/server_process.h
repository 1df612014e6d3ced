#ifndef BENCHMARKS_CONNECTION_SERVER_PROCESS_H
#define BENCHMARKS_CONNECTION_SERVER_PROCESS_H

#include <functional>
#include <string>

#include <sys/types.h>

namespace cbox_simulator
{
class control_box;
}

namespace benchmark_support
{
/// A simulated control box in a process of its own, so that its work does not count as a client's.
class server_process
{
public:
    /// @param rate  frames a second
    /// @param life  what the process does beside serving
    server_process(
        const std::string& address, double rate,
        const std::function<void(cbox_simulator::control_box&)>& life = [](auto&) {});
    ~server_process();
    server_process(const server_process&) = delete;
    server_process& operator=(const server_process&) = delete;

private:
    pid_t child_ = -1;
};

/// Runs `work` in a process of its own and hands back the number that it gives.
[[nodiscard]] double in_own_process(const std::function<double()>& work);

/// Processor time of this process so far, in seconds.
[[nodiscard]] double processor_seconds();
} // namespace benchmark_support

#endif
