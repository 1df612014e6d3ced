#ifndef SIMULATOR_CONTROL_CLOCK_H
#define SIMULATOR_CONTROL_CLOCK_H

#include <functional>

#include <boost/asio/io_context.hpp>
#include <boost/asio/steady_timer.hpp>

#include "simulator/cycle_schedule.h"

namespace cbox_simulator
{
/**
 * Has the box's cycles and frames done when they are due.
 *
 * While nothing moves, cycles wait for the next frame, or for a fiftieth of a second when no client wants any: then
 * those that are due pass in one go, which costs next to nothing. Whoever touches the model in between lets the clock
 * catch up first, so that this cannot be told from outside. Lives on the io thread of the box that owns it, and must
 * outlive the io context's run.
 */
class control_clock
{
public:
    using clock = cycle_schedule::clock;

    /// How closely the work is to follow the time.
    enum class pace
    {
        every_cycle,
        every_frame,
        at_leisure
    };

    /// `work` does what is due at one moment; `wanted_pace` is asked after all of it.
    control_clock(boost::asio::io_context& io, cycle_schedule schedule, std::function<void(due_work)> work,
                  std::function<pace()> wanted_pace);

    void start();
    void stop();

    /// Does all that is due by now. Does nothing within itself, or while the clock is stopped.
    void catch_up();

    /// Wakes up sooner when the pace has become faster.
    void keep_pace();

private:
    [[nodiscard]] clock::time_point next_wake() const;
    void sleep_until(clock::time_point wake);

    boost::asio::steady_timer timer_;
    cycle_schedule schedule_;
    std::function<void(due_work)> work_;
    std::function<pace()> wanted_pace_;
    clock::time_point wake_;
    bool running_ = false;
    bool catching_up_ = false;
};
} // namespace cbox_simulator

#endif
