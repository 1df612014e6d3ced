#ifndef QORIN_CPP_EVENTS_HPP
#define QORIN_CPP_EVENTS_HPP

#include <algorithm>
#include <array>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <deque>
#include <exception>
#include <functional>
#include <limits>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

#include "qorin/cpp/values.hpp"
#include "qorin/event.h"

namespace qorin::inline QORIN_LAYER
{
struct event
{
    QORIN_EVENT_GRP group;
    QORIN_EVENT_SUBGRP subgroup;
    unsigned int sender; ///< As the values, its meaning depends on the event.
    std::array<int, 5> values;
};

/// Which events are meant: all, those of a group, of a subgroup in it, of one sender of that.
struct event_filter
{
    event_filter() = default;
    event_filter(QORIN_EVENT_GRP of_group) : group(of_group) {}
    event_filter(QORIN_EVENT_GRP of_group, QORIN_EVENT_SUBGRP of_subgroup, std::optional<unsigned int> of_sender = {})
        : group(of_group), subgroup(of_subgroup), sender(of_sender)
    {
    }

    [[nodiscard]] bool matches(const event& one) const
    {
        return group.value_or(one.group) == one.group && subgroup.value_or(one.subgroup) == one.subgroup &&
               sender.value_or(one.sender) == one.sender;
    }

    std::optional<QORIN_EVENT_GRP> group{};
    std::optional<QORIN_EVENT_SUBGRP> subgroup{};
    std::optional<unsigned int> sender{};
};

/**
 * Where a handler runs.
 *
 * On the event thread it gets each event at once, and holds up all others and all waits until it returns: it may
 * command, but neither wait for events nor call the functions of event.h. On a thread of the layer's own, one for each
 * control box, it may do both; events queue up there for as long as it takes.
 */
enum class dispatch
{
    event_thread,
    own_thread
};

namespace detail
{
struct handler
{
    event_filter filter;
    std::function<void(const event*)> call; ///< Null: the time has run out.
    dispatch where = dispatch::event_thread;
    bool once = false;
    std::optional<std::chrono::steady_clock::time_point> deadline{};

    std::recursive_mutex running{}; ///< Held in a call. A handler may take its own registration away.
    bool gone = false;
};

/**
 * The handlers of one control box.
 *
 * A callback of the C interface is a bare function: it carries no object and does not say which control box it is of.
 * So there is one such function and one of these for each control box that has ever had a handler, and both stay until
 * the process ends. Handlers come and go here, without the locks that a registration in the C interface takes: one that
 * commands cannot stand still against them.
 */
class event_hub
{
public:
    static constexpr unsigned int most = 16; ///< Control boxes of one process that can have handlers.

    /// Null when there are too many control boxes.
    static event_hub* of(cbox_id box)
    {
        static auto* const hubs = new std::array<event_hub, most>; // outlives the threads that may look at it
        return box.number < most ? &(*hubs)[box.number] : nullptr;
    }

    void add(cbox_id box, const std::shared_ptr<handler>& added)
    {
        // Not under the lock of this object, which the event thread wants while it holds what a registration waits for.
        std::call_once(registered_, [&] { qorin_rpc_system_event_callback_add(box.number, callbacks()[box.number]); });
        const std::lock_guard lock(mutex_);
        if (added->where == dispatch::own_thread && !has_thread_)
        {
            std::thread([this] { run_queue(); }).detach();
            has_thread_ = true;
        }
        handlers_.push_back(added);
        changed_.notify_one();
    }

    /// No call of it is running when this returns, unless this is called from within.
    void remove(const std::shared_ptr<handler>& removed)
    {
        {
            const std::lock_guard lock(mutex_);
            std::erase(handlers_, removed);
        }
        const std::lock_guard lock(removed->running);
        removed->gone = true;
    }

private:
    template <unsigned int Box>
    static void receive(unsigned int group, unsigned int subgroup, unsigned int sender, int p1, int p2, int p3, int p4,
                        int p5)
    {
        of({Box})->deliver({static_cast<QORIN_EVENT_GRP>(group),
                            static_cast<QORIN_EVENT_SUBGRP>(subgroup),
                            sender,
                            {p1, p2, p3, p4, p5}});
    }

    static const std::array<qorin_event_callback, most>& callbacks()
    {
        static constexpr auto all = []<unsigned int... Box>(std::integer_sequence<unsigned int, Box...>)
        {
            return std::array<qorin_event_callback, most>{&receive<Box>...};
        }
        (std::make_integer_sequence<unsigned int, most>());
        return all;
    }

    void deliver(const event& arrived)
    {
        std::vector<std::shared_ptr<handler>> here;
        {
            const std::lock_guard lock(mutex_);
            for (const auto& one : handlers_)
                if (one->filter.matches(arrived))
                {
                    if (one->where == dispatch::event_thread)
                        here.push_back(one);
                    else
                        queue_.emplace_back(one, arrived);
                }
            std::erase_if(handlers_, [&](const auto& one) { return one->once && one->filter.matches(arrived); });
            changed_.notify_one();
        }
        for (const auto& one : here)
            run(*one, &arrived);
    }

    static void run(handler& one, const event* arrived)
    try
    {
        const std::lock_guard lock(one.running);
        if (!one.gone)
            one.call(arrived);
    }
    catch (const std::exception& thrown)
    {
        std::fprintf(stderr, "qorin: an event handler threw: %s\n", thrown.what());
    }
    catch (...)
    {
        std::fprintf(stderr, "qorin: an event handler threw\n");
    }

    /// The handler whose time has run out first, or will.
    std::vector<std::shared_ptr<handler>>::iterator most_urgent()
    {
        const auto due = [](const auto& one)
        { return one->deadline.value_or(std::chrono::steady_clock::time_point::max()); };
        return std::ranges::min_element(handlers_, {}, due);
    }

    [[noreturn]] void run_queue()
    {
        std::unique_lock lock(mutex_);
        for (;;)
        {
            std::pair<std::shared_ptr<handler>, std::optional<event>> next;
            const auto urgent = most_urgent();
            if (!queue_.empty())
            {
                next = std::move(queue_.front());
                queue_.pop_front();
            }
            else if (urgent == handlers_.end() || !(*urgent)->deadline)
            {
                changed_.wait(lock);
                continue;
            }
            else if (const auto due = *(*urgent)->deadline; due > std::chrono::steady_clock::now())
            {
                changed_.wait_until(lock, due);
                continue;
            }
            else
            {
                next.first = *urgent;
                handlers_.erase(urgent);
            }
            lock.unlock();
            run(*next.first, next.second ? &*next.second : nullptr);
            next = {};
            lock.lock();
        }
    }

    std::once_flag registered_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<std::shared_ptr<handler>> handlers_;
    std::deque<std::pair<std::shared_ptr<handler>, std::optional<event>>> queue_;
    bool has_thread_ = false;
};

inline unsigned int milliseconds_of(std::chrono::nanoseconds time)
{
    const auto whole = std::chrono::ceil<std::chrono::milliseconds>(time).count();
    return static_cast<unsigned int>(std::clamp<decltype(whole)>(whole, 0, std::numeric_limits<unsigned int>::max()));
}
} // namespace detail

/// A handler is called for as long as its registration lives. When that ends, no call of it is running any more, unless
/// the handler itself has ended it.
class [[nodiscard]] registration
{
public:
    registration() = default;
    registration(cbox_id box, std::shared_ptr<detail::handler> handler)
        : hub_(detail::event_hub::of(box)), handler_(handler)
    {
        hub_->add(box, handler_);
    }
    registration(registration&&) noexcept = default;
    registration& operator=(registration&& other) noexcept
    {
        end();
        hub_ = other.hub_;
        handler_ = std::move(other.handler_);
        return *this;
    }
    ~registration() { end(); }

    void end()
    {
        if (const auto ended = std::exchange(handler_, nullptr))
            hub_->remove(ended);
    }

private:
    detail::event_hub* hub_ = nullptr;
    std::shared_ptr<detail::handler> handler_;
};

/**
 * An event to come, for coroutines: `co_await` gives it, or nothing when the time has run out.
 *
 * It counts from the making of this object on, not from the co_await: make it ahead of what brings the event about. The
 * coroutine goes on on the thread of dispatch::own_thread, where it may command.
 */
class [[nodiscard]] next_event
{
public:
    next_event(cbox_id box, const event_filter& filter, std::chrono::nanoseconds time_out)
    {
        auto handler = std::make_shared<detail::handler>();
        handler->filter = filter;
        handler->call = [state = state_](const event* arrived) { state->finish(arrived); };
        handler->where = dispatch::own_thread;
        handler->once = true;
        handler->deadline = std::chrono::steady_clock::now() + time_out;
        registration_ = registration(box, std::move(handler));
    }

    [[nodiscard]] bool await_ready() const
    {
        const std::lock_guard lock(state_->mutex);
        return state_->done;
    }

    /// Any handle that goes on when it is called.
    template <class Handle>
    [[nodiscard]] bool await_suspend(Handle coroutine)
    {
        const std::lock_guard lock(state_->mutex);
        if (!state_->done)
            state_->resume = coroutine;
        return !state_->done;
    }

    [[nodiscard]] std::optional<event> await_resume() const { return state_->arrived; }

private:
    struct shared_state
    {
        void finish(const event* given)
        {
            std::unique_lock lock(mutex);
            done = true;
            if (given != nullptr)
                arrived = *given;
            const auto go_on = std::exchange(resume, nullptr);
            lock.unlock();
            if (go_on)
                go_on();
        }

        std::mutex mutex;
        bool done = false;
        std::optional<event> arrived;
        std::function<void()> resume;
    };

    std::shared_ptr<shared_state> state_ = std::make_shared<shared_state>();
    registration registration_;
};
} // namespace qorin::inline QORIN_LAYER

#endif
