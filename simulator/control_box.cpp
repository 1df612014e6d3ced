#include "simulator/control_box.h"

#include <stdexcept>
#include <utility>

#include "simulator/running_box.h"

namespace cbox_simulator
{
control_box::control_box(control_box_options options) : options_(std::move(options)) {}

control_box::~control_box()
{
    stop();
}

std::unique_lock<std::mutex> control_box::guard() const
{
    // On the io thread the box cannot start or stop, and stop() holds the lock while it waits for that thread.
    return running_box::served_by_this_thread() == this ? std::unique_lock(lifecycle_, std::defer_lock)
                                                        : std::unique_lock(lifecycle_);
}

void control_box::start()
{
    const auto lock = guard();
    if (box_ && !box_->stopped())
        throw std::logic_error("the control box runs already");
    box_ = std::make_unique<running_box>(options_);
    box_->launch(this);
}

void control_box::stop()
{
    const auto lock = guard();
    if (box_)
        box_->stop();
}

std::uint16_t control_box::port() const
{
    const auto lock = guard();
    return box_ ? box_->port() : options_.port;
}

bool control_box::exit_requested() const
{
    const auto lock = guard();
    return box_ && box_->exited();
}

control_box_counters control_box::counters() const
{
    const auto lock = guard();
    return box_ ? snapshot(box_->counters()) : control_box_counters{};
}

void control_box::with_model(const std::function<void(box_model&)>& use)
{
    const auto lock = guard();
    if (!box_)
        throw std::logic_error("the control box was never started");
    box_->with_model(use);
}

void control_box::set_faults(const fault_plan& faults)
{
    const auto lock = guard();
    if (!box_)
        throw std::logic_error("the control box was never started");
    box_->set_faults(faults);
}

void control_box::push_event(const savrent::cc::val_obj::event_info& event)
{
    const auto lock = guard();
    if (box_)
        box_->with_model([&](box_model& model) { model.events().echo(event); });
}
} // namespace cbox_simulator
