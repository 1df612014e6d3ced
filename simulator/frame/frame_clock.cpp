#include "simulator/frame/frame_clock.h"

#include <utility>

namespace cbox_simulator
{
namespace
{
// A machine that was away for longer than this does not get the missed frames in a burst.
constexpr int tolerated_lag_periods = 4;
} // namespace

frame_clock::frame_clock(boost::asio::io_context& io, std::chrono::nanoseconds period, std::function<void()> tick)
    : timer_(io), period_(period), tick_(std::move(tick))
{
}

void frame_clock::start()
{
    running_ = true;
    deadline_ = clock::now() + period_;
    wait_for_deadline();
}

void frame_clock::stop()
{
    running_ = false;
    timer_.cancel();
}

void frame_clock::wait_for_deadline()
{
    timer_.expires_at(deadline_);
    timer_.async_wait(
        [this](const boost::system::error_code& error)
        {
            // An expiry that was already on its way when the clock was stopped comes without an error.
            if (error || !running_)
            {
                return;
            }
            tick_();
            advance_deadline();
            wait_for_deadline();
        });
}

void frame_clock::advance_deadline()
{
    deadline_ += period_;
    const auto now = clock::now();
    if (now - deadline_ > tolerated_lag_periods * period_)
    {
        deadline_ = now + period_;
    }
}
} // namespace cbox_simulator
