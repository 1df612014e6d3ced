#include "simulator/control_clock.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace cbox_simulator
{
namespace
{
constexpr std::chrono::milliseconds leisure(20);
} // namespace

control_clock::control_clock(boost::asio::io_context& io, cycle_schedule schedule, std::function<void(due_work)> work,
                             std::function<pace()> wanted_pace)
    : timer_(io), schedule_(schedule), work_(std::move(work)), wanted_pace_(std::move(wanted_pace))
{
}

void control_clock::start()
{
    running_ = true;
    schedule_.start(clock::now());
    sleep_until(next_wake());
}

void control_clock::stop()
{
    running_ = false;
    timer_.cancel();
}

void control_clock::catch_up()
{
    if (!running_ || std::exchange(catching_up_, true))
        return;
    // What falls due meanwhile has its turn later: clients are not kept waiting by a machine that is too slow.
    const auto now = clock::now();
    for (auto due = schedule_.take_due(now); running_ && (due.cycle || due.frame); due = schedule_.take_due(now))
        work_(due);
    catching_up_ = false;
}

void control_clock::keep_pace()
{
    if (const auto wake = next_wake(); running_ && wake < wake_)
        sleep_until(wake);
}

control_clock::clock::time_point control_clock::next_wake() const
{
    const auto latest = std::max(schedule_.next_cycle(), clock::now() + leisure);
    switch (wanted_pace_())
    {
    case pace::every_cycle:
        return std::min(schedule_.next_cycle(), schedule_.next_frame());
    case pace::every_frame:
        return std::min(latest, schedule_.next_frame());
    case pace::at_leisure:
        break;
    }
    return latest;
}

void control_clock::sleep_until(clock::time_point wake)
{
    wake_ = wake;
    timer_.expires_at(wake);
    timer_.async_wait(
        [this](const boost::system::error_code& error)
        {
            // An expiry that was already on its way when the clock was stopped or set anew comes without an error.
            if (error || !running_ || clock::now() < wake_)
                return;
            catch_up();
            if (running_)
                sleep_until(next_wake());
        });
}
} // namespace cbox_simulator
