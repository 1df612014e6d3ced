#ifndef SIMULATOR_CONTROL_BOX_H
#define SIMULATOR_CONTROL_BOX_H

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>

#include "protocol/event_record.h"
#include "simulator/control_box_options.h"
#include "simulator/counters.h"
#include "simulator/model/box_model.h"

namespace cbox_simulator
{
class running_box;

/**
 * A simulated control box, to be embedded in a program or a test.
 *
 * Runs on a thread of its own between start() and stop(). All operations may be called from any thread, but of what
 * the box calls on its own thread the log sink must not call the box at all, and `on_exit` neither start() nor stop().
 *
 * When a client asks the control software to exit, the box lets its last events out, closes all links and takes no new
 * ones, and then calls `on_exit`. It still wants its stop().
 */
class control_box
{
public:
    explicit control_box(control_box_options options = {});
    ~control_box();
    control_box(const control_box&) = delete;
    control_box& operator=(const control_box&) = delete;

    /// Listens when it returns. A stopped box starts afresh: no state is carried over.
    /// Throws std::invalid_argument for a bad option, std::system_error when the address cannot be listened on (the
    /// text is one line either way) and std::logic_error when the box runs.
    void start();

    /// Closes all links and ends the thread. Does nothing when the box does not run. Model and counters stay readable.
    void stop();

    /// The port in use: what the system chose when the options say 0.
    [[nodiscard]] std::uint16_t port() const;

    /// Whether a client has asked the control software to exit.
    [[nodiscard]] bool exit_requested() const;

    [[nodiscard]] control_box_counters counters() const;

    /// Runs `use` on the box's thread, between two frames and two commands, and returns when it is done. What `use`
    /// throws comes out here. Throws std::logic_error when the box was never started. The events of what `use` changed
    /// are on their way to the clients then.
    void with_model(const std::function<void(box_model&)>& use);

    /// Puts other faults in force, on the box's thread: they meet what is sent, and the links that are made, from then
    /// on. Throws std::invalid_argument for a command that the box does not know, and std::logic_error when the box was
    /// never started. The version text stays as it is.
    void set_faults(const fault_plan& faults);

    /// Sends an event to every complete client, behind those that the model has given so far.
    void push_event(const savrent::cc::val_obj::event_info& event);

private:
    [[nodiscard]] std::unique_lock<std::mutex> guard() const;

    control_box_options options_;
    mutable std::mutex lifecycle_; ///< guards box_ against a start or stop from another thread
    std::unique_ptr<running_box> box_;
};
} // namespace cbox_simulator

#endif
