#ifndef SAVRENT_CC_TIMER_H
#define SAVRENT_CC_TIMER_H

#include <chrono>

namespace savrent::cc
{
/// A stopwatch on the steady clock. It holds one time point: start and stop both take it.
class timer
{
public:
    void start() { since_ = std::chrono::steady_clock::now(); }
    void stop() { since_ = std::chrono::steady_clock::now(); }

    [[nodiscard]] double elapsed_microsec() const
    {
        const std::chrono::nanoseconds elapsed = std::chrono::steady_clock::now() - since_;
        return static_cast<double>(elapsed.count()) / 1000.0;
    }
    [[nodiscard]] double elapsed_millisec() const { return elapsed_microsec() / 1000.0; }
    [[nodiscard]] double elapsed_sec() const { return elapsed_millisec() / 1000.0; }

private:
    std::chrono::steady_clock::time_point since_;
};
} // namespace savrent::cc

#endif
