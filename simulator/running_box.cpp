#include "simulator/running_box.h"

#include <algorithm>
#include <future>
#include <span>
#include <stdexcept>
#include <utility>

#include <boost/asio/post.hpp>

#include "simulator/frame/frame_renderer.h"
#include "simulator/printable.h"
#include "simulator/scene/scene.h"

namespace cbox_simulator
{
namespace asio = boost::asio;
using asio::ip::tcp;

namespace
{
constexpr double highest_rate = 10000;
constexpr double most_noise = 1000;
constexpr double shortest_cycle = 0.1;
constexpr double longest_cycle = 100;

// Frame and event have a link each. What a cycle tells waits this long behind the frame that shows it, so that the
// client has taken in the one when it is called with the other.
constexpr std::chrono::microseconds head_start_of_frames(500);

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

std::string version_of(const control_box_options& options)
{
    return options.faults.version_text.value_or(options.version_text);
}

const control_box_options& checked(const control_box_options& options)
{
    if (!(options.rate > 0 && options.rate <= highest_rate))
    {
        throw std::invalid_argument(
            fmt::format("{} frames a second are out of range: above 0 and up to {}", options.rate, highest_rate));
    }
    if (!(options.cycle >= shortest_cycle && options.cycle <= longest_cycle))
    {
        throw std::invalid_argument(fmt::format("a control cycle of {} milliseconds is out of range: {} to {}",
                                                options.cycle, shortest_cycle, longest_cycle));
    }
    if (!(options.noise >= 0 && options.noise <= most_noise))
        throw std::invalid_argument(fmt::format("noise of {} is out of range: 0 to {}", options.noise, most_noise));
    if (version_of(options).size() > longest_version_text)
    {
        throw std::invalid_argument(fmt::format("the version text {} is longer than {} characters",
                                                printable(version_of(options)), longest_version_text));
    }
    return options;
}

cycle_schedule schedule_of(const control_box_options& options)
{
    // A day is as good as never, and what is far longer does not fit the clock.
    static constexpr double longest_seconds = 86400;
    const auto lasting = [](double seconds)
    {
        return std::chrono::round<cycle_schedule::duration>(
            std::chrono::duration<double>(std::min(seconds, longest_seconds)));
    };
    return {lasting(options.cycle * 1e-3), lasting(1 / options.rate)};
}

arm_catalogue catalogue_for(const control_box_options& options)
{
    arm_catalogue catalogue;
    if (!options.kinematics.empty())
        catalogue.add_modules(options.kinematics);
    return catalogue;
}

/// That only known commands are named.
const fault_plan& checked(const fault_plan& faults, const command_table& commands)
{
    const auto check = [&](const std::string& name)
    {
        if (commands.find(name) == nullptr)
            throw std::invalid_argument(fmt::format("a fault is about {}, which is no command", printable(name)));
    };
    for (const auto& [name, answer] : faults.answers)
        check(name);
    for (const auto& [name, delay] : faults.reply_delays)
        check(name);
    return faults;
}

thread_local const control_box* owner_of_this_thread = nullptr;
} // namespace

running_box::running_box(const control_box_options& options)
    : log_(options.log, options.level), on_exit_(options.on_exit),
      model_(version_of(checked(options)), options.cycle * 1e3, catalogue_for(options)),
      environment_({model_, commands_, log_, counters_, faults_, [this] { clock_.catch_up(); },
                    [this] { deliver_events(); }, [this] { end_on_request(); }}),
      links_(io_, environment_), joint_chaser_(io_, environment_), control_channel_(io_, environment_),
      noise_(options.noise, options.seed),
      frames_(io_, faults_, options.seed,
              [this](std::span<const std::byte> frame)
              { links_.for_each_client([frame](client_session& client) { client.send_frame(frame); }); }),
      clock_(
          io_, schedule_of(options), [this](due_work due) { pass_moment(due); }, [this] { return wanted_pace(); }),
      farewell_timer_(io_)
{
    faults_ = checked(options.faults, commands_);
    if (!options.scene.empty())
        load_scene(model_, options.scene);
    const auto endpoint = endpoint_of(options);
    port_ = links_.listen(endpoint).port();
    joint_chaser_.listen(endpoint.address());
    if (options.control_port)
        control_channel_.listen(endpoint.address().to_v4(), *options.control_port);
}

void running_box::launch(const control_box* owner)
{
    clock_.start();
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
    run_here(
        [&]
        {
            clock_.catch_up();
            use(model_);
            deliver_events();
        });
}

void running_box::set_faults(const fault_plan& faults)
{
    run_here([&] { faults_ = checked(faults, commands_); });
}

void running_box::run_here(const std::function<void()>& work)
{
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

void running_box::pass_moment(due_work due)
{
    push_late_events(clock::now());
    if (due.cycle)
        model_.run_cycle();
    const bool news = model_.events().take_news();
    if (due.frame || news)
        send_frame();
    if (auto events = model_.events().take(); !events.empty())
        late_events_.push_back({clock::now() + head_start_of_frames, std::move(events)});
}

control_clock::pace running_box::wanted_pace()
{
    if (!model_.is_idle() || !late_events_.empty())
        return control_clock::pace::every_cycle;
    return counters_.clients_connected > 0 ? control_clock::pace::every_frame : control_clock::pace::at_leisure;
}

void running_box::send_frame()
{
    if (counters_.clients_connected == 0)
        return;
    render_frame(model_, frame_);
    noise_.put_on(frame_);
    const std::span bytes(reinterpret_cast<const std::byte*>(&frame_), sizeof frame_);
    frames_.pass(bytes);
}

void running_box::deliver_events()
{
    // A client that a push finds gone leaves, and what it held gives further events.
    for (auto events = model_.events().take(); !events.empty(); events = model_.events().take())
    {
        if (model_.events().take_news())
            send_frame();
        push_late_events(clock::time_point::max());
        push_events(events);
    }
    clock_.keep_pace();
}

void running_box::push_late_events(clock::time_point now)
{
    while (!late_events_.empty() && late_events_.front().due <= now)
    {
        const auto events = std::move(late_events_.front().events);
        late_events_.pop_front();
        push_events(events);
    }
}

void running_box::push_events(const std::vector<event_info>& events)
{
    for (const auto& event : events)
        links_.for_each_client([&](client_session& client) { client.push_event(event); });
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
    clock_.stop();
    farewell_timer_.cancel();
    links_.close();
    joint_chaser_.close();
    control_channel_.close();
    frames_.close();
}
} // namespace cbox_simulator
