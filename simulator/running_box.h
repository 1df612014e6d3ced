#ifndef SIMULATOR_RUNNING_BOX_H
#define SIMULATOR_RUNNING_BOX_H

#include <atomic>
#include <chrono>
#include <deque>
#include <functional>
#include <thread>
#include <vector>

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/steady_timer.hpp>

#include "protocol/status_frame.h"
#include "simulator/control_box_options.h"
#include "simulator/control_clock.h"
#include "simulator/counters.h"
#include "simulator/frame/measurement_noise.h"
#include "simulator/links/control_channel.h"
#include "simulator/links/fault_plan.h"
#include "simulator/links/frame_passage.h"
#include "simulator/links/joint_chaser.h"
#include "simulator/links/link_acceptor.h"

namespace cbox_simulator
{
class control_box;

/**
 * A control box from one start to the next: what lives on the io thread, and that thread.
 *
 * Listens from its construction and serves from launch(). Owned by the control box, which guards launch() and stop()
 * against each other; the private part runs on the io thread.
 */
class running_box
{
public:
    /// Throws as control_box::start() tells.
    explicit running_box(const control_box_options& options);
    ~running_box() { stop(); }

    void launch(const control_box* owner);

    /// Closes all links and ends the thread, unless it has ended before.
    void stop();

    void with_model(const std::function<void(box_model&)>& use);

    void set_faults(const fault_plan& faults);

    [[nodiscard]] bool stopped() const { return !thread_.joinable(); }
    [[nodiscard]] std::uint16_t port() const { return port_; }
    [[nodiscard]] bool exited() const { return exited_; }
    [[nodiscard]] const box_counters& counters() const { return counters_; }

    /// The control box whose io thread the current thread is, if any.
    [[nodiscard]] static const control_box* served_by_this_thread();

private:
    /// On the io thread while the caller waits; in place when that is the caller, or has ended.
    void run_here(const std::function<void()>& work);
    using clock = std::chrono::steady_clock;

    /// Of a cycle whose frame has only just left.
    struct late_events
    {
        clock::time_point due;
        std::vector<event_info> events;
    };

    void pass_moment(due_work due);
    [[nodiscard]] control_clock::pace wanted_pace();
    void send_frame();
    void deliver_events();
    void push_late_events(clock::time_point now);
    void push_events(const std::vector<event_info>& events);
    void end_on_request();
    void end_when_events_are_out();
    void close();

    boost::asio::io_context io_{1};
    boost::asio::executor_work_guard<boost::asio::io_context::executor_type> work_ = boost::asio::make_work_guard(io_);
    console_log log_;
    std::function<void()> on_exit_;
    box_model model_;
    command_table commands_ = make_command_table();
    box_counters counters_;
    fault_plan faults_;
    session_environment environment_;
    link_acceptor links_;
    joint_chaser joint_chaser_;
    control_channel control_channel_;
    measurement_noise noise_;
    frame_passage frames_;
    control_clock clock_;
    std::deque<late_events> late_events_;
    boost::asio::steady_timer farewell_timer_;
    clock::time_point farewell_deadline_;
    bool ending_ = false; ///< a client asked for it, and last events may be on their way
    bool closed_ = false;
    protocol::shared_data_t frame_;
    std::uint16_t port_ = 0;
    std::atomic<bool> exited_ = false;
    std::thread thread_;
};
} // namespace cbox_simulator

#endif
