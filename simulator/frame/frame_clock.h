#ifndef SIMULATOR_FRAME_FRAME_CLOCK_H
#define SIMULATOR_FRAME_FRAME_CLOCK_H

#include <chrono>
#include <functional>

#include <boost/asio/io_context.hpp>
#include <boost/asio/steady_timer.hpp>

namespace cbox_simulator
{
/**
 * Calls its tick once each control cycle.
 *
 * The deadlines are absolute, so that the mean rate is exact although a single tick may come late. Lives on the io
 * thread of the box that owns it, and must outlive the io context's run.
 */
class frame_clock
{
public:
    frame_clock(boost::asio::io_context& io, std::chrono::nanoseconds period, std::function<void()> tick);

    void start();
    void stop();

private:
    using clock = std::chrono::steady_clock;

    void wait_for_deadline();
    void advance_deadline();

    boost::asio::steady_timer timer_;
    std::chrono::nanoseconds period_;
    std::function<void()> tick_;
    clock::time_point deadline_;
    bool running_ = false;
};
} // namespace cbox_simulator

#endif
