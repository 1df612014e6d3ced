#include "bindings/python/source/events.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include <pybind11/stl.h>

#include "bindings/python/source/raw.h"
#include "qorin/event.h"

namespace qorin_python
{
namespace
{
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr std::size_t boxes_most = 64;
constexpr std::size_t handlers_most = 64; ///< C functions that stand for handlers of the raw functions.
constexpr std::size_t past_most = 512;
constexpr std::size_t deliveries_most = 65536;

struct event
{
    std::array<unsigned int, 3> origin; ///< Group, subgroup and sender.
    std::array<int, 5> values;
};

struct event_filter
{
    std::array<std::optional<unsigned int>, 3> origin;

    [[nodiscard]] bool lets_through(const event& arrived) const
    {
        for (std::size_t part = 0; part < origin.size(); ++part)
            if (origin[part] && *origin[part] != arrived.origin[part])
                return false;
        return true;
    }
};

py::tuple numbers_of(const event& arrived)
{
    const auto& [group, subgroup, sender] = arrived.origin;
    const auto& [p1, p2, p3, p4, p5] = arrived.values;
    return py::make_tuple(group, subgroup, sender, p1, p2, p3, p4, p5);
}

/// A queue between an event thread, which must never wait for Python, and threads of Python. When it is full, the
/// oldest goes.
template <class Item, std::size_t most>
class mailbox
{
public:
    void put(const Item& item)
    {
        const std::lock_guard lock(mutex_);
        if (items_.size() == most)
            items_.pop_front();
        items_.push_back(item);
        changed_.notify_all();
    }

    /// The oldest that is wanted, or none when the time has run out or the mailbox is closed.
    template <class Wanted>
    std::optional<Item> take(Wanted is_wanted, milliseconds patience)
    {
        const auto end = steady_clock::now() + patience;
        std::unique_lock lock(mutex_);
        for (;;)
        {
            const auto found = std::find_if(items_.begin(), items_.end(), is_wanted);
            if (found != items_.end())
            {
                const Item item = *found;
                items_.erase(found);
                return item;
            }
            if (closed_ || changed_.wait_until(lock, end) == std::cv_status::timeout)
                return std::nullopt;
        }
    }

    void clear()
    {
        const std::lock_guard lock(mutex_);
        items_.clear();
    }

    void close()
    {
        const std::lock_guard lock(mutex_);
        closed_ = true;
        changed_.notify_all();
    }
    [[nodiscard]] bool is_closed()
    {
        const std::lock_guard lock(mutex_);
        return closed_;
    }

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Item> items_;
    bool closed_ = false;
};

struct delivery
{
    std::size_t target; ///< A control box, or behind these a handler of the raw functions.
    event arrived;
};

struct past_of_box
{
    mailbox<event, past_most> events;
    std::atomic<bool> has_listeners = false;
};

/// Event threads go on while the process ends: what they use is never destroyed.
struct post_office
{
    std::array<past_of_box, boxes_most> boxes;
    mailbox<delivery, deliveries_most> deliveries;
};

post_office& office()
{
    static auto* const immortal = new post_office;
    return *immortal;
}

template <std::size_t target>
void receive(unsigned int group, unsigned int subgroup, unsigned int sender, int p1, int p2, int p3, int p4, int p5)
{
    const event arrived{{group, subgroup, sender}, {p1, p2, p3, p4, p5}};
    if constexpr (target < boxes_most)
    {
        past_of_box& box = office().boxes[target];
        box.events.put(arrived);
        if (!box.has_listeners)
            return;
    }
    office().deliveries.put({target, arrived});
}

/// The interface hands nothing to a callback that would tell whose it is, so that each target has a function of its
/// own.
template <std::size_t... targets>
constexpr std::array<qorin_event_callback, sizeof...(targets)> make_receivers(std::index_sequence<targets...>)
{
    return {&receive<targets>...};
}
constexpr auto receivers = make_receivers(std::make_index_sequence<boxes_most + handlers_most>());

void open_box(std::size_t box)
{
    if (box >= boxes_most)
        throw std::runtime_error("a process has events of " + std::to_string(boxes_most) + " connections at most");
    unlocked("qorin_rpc_system_event_callback_add",
             [&] { return qorin_rpc_system_event_callback_add(static_cast<unsigned int>(box), receivers[box]); });
}

void close_box(std::size_t box)
{
    unlocked("qorin_rpc_system_event_callback_remove",
             [&] { return qorin_rpc_system_event_callback_remove(static_cast<unsigned int>(box), receivers[box]); });
    office().boxes.at(box).events.close();
}

py::object take_event(std::size_t box, std::optional<unsigned int> group, std::optional<unsigned int> subgroup,
                      std::optional<unsigned int> sender, unsigned int time_out)
{
    const event_filter filter{{group, subgroup, sender}};
    auto& past = office().boxes.at(box).events;
    std::optional<event> found;
    sliced(time_out,
           [&](unsigned int slice)
           {
               found = past.take([&](const event& one) { return filter.lets_through(one); }, milliseconds(slice));
               return found || past.is_closed();
           });
    return found ? py::object(numbers_of(*found)) : py::none();
}

/// For the thread of the handlers alone: the next event and whom it is for, or none when Python ends.
py::object next_delivery()
{
    auto& deliveries = office().deliveries;
    std::optional<delivery> next;
    while (!next && !deliveries.is_closed())
    {
        const without_lock released;
        next = deliveries.take([](const delivery&) { return true; }, milliseconds(1000));
    }
    return next ? py::object(py::make_tuple(next->target, numbers_of(next->arrived))) : py::none();
}
} // namespace

qorin_event_callback callback_of(const py::object& handler)
{
    const auto target = py::module_::import("qorin.events").attr("_target_of")(handler).cast<std::size_t>();
    if (target >= receivers.size())
        throw std::runtime_error("a process has " + std::to_string(handlers_most) + " raw handlers at most");
    return receivers[target];
}

void define_events(py::module_& module)
{
    module.attr("boxes_most") = boxes_most;
    module.def("open_box", &open_box);
    module.def("close_box", &close_box);
    module.def("listen", [](std::size_t box, bool on) { office().boxes.at(box).has_listeners = on; });
    module.def("forget_events", [](std::size_t box) { office().boxes.at(box).events.clear(); });
    module.def("take_event", &take_event);
    module.def("next_delivery", &next_delivery);
    module.def("end_deliveries", [] { office().deliveries.close(); });
}
} // namespace qorin_python
