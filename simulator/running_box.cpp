#include "simulator/running_box.h"

#include <algorithm>
#include <future>
#include <span>
#include <stdexcept>
#include <utility>

#include <boost/asio/post.hpp>

#include "simulator/frame/frame_renderer.h"

namespace cbox_simulator
{
namespace asio = boost::asio;
using asio::ip::tcp;

namespace
{
constexpr double highest_rate = 10000;

// What a box that exits grants a slow client to take its last events, and how often it looks.
constexpr std::chrono::milliseconds longest_farewell(500);
constexpr std::chrono::milliseconds farewell_step(5);

constexpr std::size_t longest_version_text = sizeof(protocol::shared_data_t::control_sw_version) - 1;

tcp::endpoint endpoint_of(const control_box_options& options)
{
    boost::system::error_code error;
    const auto address = asio::ip::make_address_v4(options.address, error);
    if (error)
        throw std::invalid_argument(fmt::format("{} is no IPv4 address", printable(options.address)));
    return {address, options.port};
}

const control_box_options& checked(const control_box_options& options)
{
    if (!(options.rate > 0 && options.rate <= highest_rate))
    {
        throw std::invalid_argument(
            fmt::format("{} frames a second are out of range: above 0 and up to {}", options.rate, highest_rate));
    }
    if (options.version_text.size() > longest_version_text)
    {
        throw std::invalid_argument(fmt::format("the version text {} is longer than {} characters",
                                                printable(options.version_text), longest_version_text));
    }
    return options;
}

std::chrono::nanoseconds period_of(double rate)
{
    // A day is as good as never, and what is far longer does not fit the clock.
    constexpr double longest_seconds = 86400;
    const std::chrono::duration<double> seconds(std::min(1 / rate, longest_seconds));
    return std::chrono::duration_cast<std::chrono::nanoseconds>(seconds);
}

thread_local const control_box* owner_of_this_thread = nullptr;
} // namespace

running_box::running_box(const control_box_options& options)
    : log_(options.log, options.level), on_exit_(options.on_exit),
      model_(checked(options).version_text, 1e6 / options.rate),
      environment_({model_, commands_, log_, counters_, [this] { deliver_events(); }, [this] { end_on_request(); }}),
      links_(io_, environment_), joint_chaser_(io_, environment_),
      frame_clock_(io_, period_of(options.rate), [this] { run_cycle(); }), farewell_timer_(io_)
{
    const auto endpoint = endpoint_of(options);
    port_ = links_.listen(endpoint).port();
    joint_chaser_.listen(endpoint.address());
}

void running_box::launch(const control_box* owner)
{
    frame_clock_.start();
    thread_ = std::thread(
        [this, owner]
        {
            owner_of_this_thread = owner;
            io_.run();
        });
}

void running_box::stop()
{
    if (stopped())
        return;
    asio::post(io_, [this] { close(); });
    work_.reset();
    thread_.join();
}

void running_box::with_model(const std::function<void(box_model&)>& use)
{
    const auto work = [&]
    {
        use(model_);
        deliver_events();
    };
    if (stopped() || io_.get_executor().running_in_this_thread())
    {
        work();
        return;
    }
    std::packaged_task<void()> task(work);
    auto done = task.get_future();
    asio::post(io_, [&task] { task(); });
    done.get();
}

const control_box* running_box::served_by_this_thread()
{
    return owner_of_this_thread;
}

void running_box::run_cycle()
{
    model_.run_cycle();
    deliver_events();
    render_frame(model_, frame_);
    const std::span bytes(reinterpret_cast<const std::byte*>(&frame_), sizeof frame_);
    links_.for_each_client([bytes](client_session& client) { client.send_frame(bytes); });
}

void running_box::deliver_events()
{
    // A client that a push finds gone leaves, and what it held gives further events.
    for (auto events = model_.events().take(); !events.empty(); events = model_.events().take())
    {
        for (const auto& event : events)
            links_.for_each_client([&](client_session& client) { client.push_event(event); });
    }
}

void running_box::end_on_request()
{
    // Until it is over, the reply to any command comes by here.
    if (std::exchange(ending_, true))
        return;
    log_.write(log_level::info, "a client asked the control software to exit");
    farewell_deadline_ = clock::now() + longest_farewell;
    end_when_events_are_out();
}

void running_box::end_when_events_are_out()
{
    bool pending = false;
    links_.for_each_client([&](client_session& client) { pending = pending || client.has_pending_events(); });
    if (pending && clock::now() < farewell_deadline_)
    {
        farewell_timer_.expires_after(farewell_step);
        farewell_timer_.async_wait(
            [this](const boost::system::error_code&)
            {
                if (!closed_)
                    end_when_events_are_out();
            });
        return;
    }
    close();
    exited_ = true;
    if (on_exit_)
        on_exit_();
}

void running_box::close()
{
    closed_ = true;
    frame_clock_.stop();
    farewell_timer_.cancel();
    links_.close();
    joint_chaser_.close();
}
} // namespace cbox_simulator
