#include "tools/qorin/view/live_box.h"

#include <chrono>
#include <future>
#include <optional>
#include <thread>
#include <utility>

#include "qorin/qorin_api_rpc_client.h"
#include "tools/qorin/view/link_watch.h"

namespace qorin_view
{
namespace
{
using clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

double seconds_since_epoch(std::chrono::system_clock::time_point time)
{
    return std::chrono::duration<double>(time.time_since_epoch()).count();
}

/// Who is told to have the control: the control box does not say in its status, only in events.
enum class control_state : std::uint32_t
{
    unknown,
    taken,
    released
};

enum class robot_state : std::uint32_t
{
    none,
    attached,
    no_module ///< no kinematics module serves its model, so the library does not know it
};

struct connection
{
    unsigned int cbox_id;
    link_watch link;
};

connection connect_and_listen(const qorin_cli::connection_options& options)
{
    const std::set<ino_t> before = link_watch::sockets();
    const unsigned int cbox_id = qorin_cli::connect(options);
    qorin_cli::collect_events(cbox_id);
    return {cbox_id, link_watch(options.address, before)};
}

/// On a thread of its own: connecting takes seconds, or minutes where nobody answers, and the library binds the thread
/// that connects to a processor. Nobody waits for it when the process ends.
std::future<connection> connect_aside(const qorin_cli::connection_options& options)
{
    std::packaged_task<connection()> task([options] { return connect_and_listen(options); });
    auto future = task.get_future();
    std::thread(std::move(task)).detach();
    return future;
}

class live_box : public status_source
{
public:
    explicit live_box(const qorin_cli::connection_options& options)
        : options_(options), connection_(connect_aside(options).get())
    {
        add_own_fields();
        for (status_field& field : mirror_fields())
            fields_.push_back(std::move(field));
    }

    const std::vector<status_field>& fields() const override { return fields_; }
    std::string name() const override { return options_.address; }

    std::string control_software() const override
    {
        const char* const version = qorin_rpc_system_control_sw_version_get(connection_.cbox_id);
        return version == nullptr ? "" : version;
    }

    double read(double /*time*/, words into) override
    {
        take_new_connection();
        if (!pending_)
            attach_robots();
        for (const status_field& field : fields_)
        {
            // A connection that is under way changes what getters look up.
            if (!pending_ || field.name.starts_with("link."))
                field.read(connection_.cbox_id, into.first(field.count));
            into = into.subspan(field.count);
        }
        return seconds_since_epoch(std::chrono::system_clock::now());
    }

    void look() override { connection_.link.look(); }

    std::vector<event_record> take_events() override
    {
        std::vector<event_record> events;
        for (const qorin_cli::event& told : qorin_cli::take_events())
        {
            note_control(told);
            events.push_back({++event_count_, seconds_since_epoch(told.time), told});
        }
        return events;
    }

    std::string take_notice() override { return std::exchange(notice_, {}); }

    void connect_again() override
    {
        if (!pending_ && connection_.link.state() != link_state::connected)
            pending_ = connect_aside(options_);
    }

private:
    void add_own_fields()
    {
        const auto add = [this](const char* name, field_type type, std::function<std::uint32_t()> get) {
            fields_.push_back({name, type, 1, [get](unsigned int, words into) { into[0] = get(); }});
        };
        add("link.state", field_type::integer,
            [this]
            { return static_cast<std::uint32_t>(pending_ ? link_state::connecting : connection_.link.state()); });
        add("link.frame_rate", field_type::number, [this] { return word_of(connection_.link.frame_rate()); });
        add("link.longest_gap", field_type::number, [this] { return word_of(connection_.link.longest_gap()); });
        add("link.gaps", field_type::integer, [this] { return connection_.link.gaps(); });
        add("box.control", field_type::integer, [this] { return static_cast<std::uint32_t>(control_); });
        add("robots.0.state", field_type::integer, [this] { return static_cast<std::uint32_t>(robots_[0]); });
        add("robots.1.state", field_type::integer, [this] { return static_cast<std::uint32_t>(robots_[1]); });
    }

    void take_new_connection()
    {
        if (!pending_ || pending_->wait_for(0s) != std::future_status::ready)
            return;
        try
        {
            connection made = std::exchange(pending_, {})->get();
            // A box that was but silent may speak again, and each event would come twice.
            qorin_cli::stop_collecting_events(connection_.cbox_id);
            connection_ = std::move(made);
            control_ = control_state::unknown;
            next_attaching_ = {};
        }
        catch (const std::exception& error)
        {
            notice_ = error.what();
        }
    }

    void note_control(const qorin_cli::event& told)
    {
        if (told.subgroup == QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_TAKE)
            control_ = control_state::taken;
        if (told.subgroup == QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_RELEASE)
            control_ = control_state::released;
    }

    /// Again and again: robots come and go, and their tables change.
    void attach_robots()
    {
        const auto now = clock::now();
        if (now < next_attaching_)
            return;
        next_attaching_ = now + 500ms;
        // Asks something of this control box, which makes it the one whose robots are attached.
        QORIN_CBOX_MODEL model{};
        if (qorin_rpc_cbox_name_get(connection_.cbox_id, &model) != QORIN_API_RESULT_OK)
            return;
        for (unsigned int id = 0; id < robots_.size(); ++id)
        {
            // Looking for a module reads a directory and writes lines, so it is not done twice a second.
            if (robots_[id] == robot_state::no_module && now < next_search_)
                continue;
            robots_[id] = attach(id);
            if (robots_[id] == robot_state::no_module)
                next_search_ = now + 10s;
        }
    }

    static robot_state attach(unsigned int id)
    {
        switch (qorin_robot_attach(id))
        {
        case QORIN_API_RESULT_OK:
            return robot_state::attached;
        case QORIN_API_RESULT_ROBOT_CLIENT_KINEMATICS_MODULE_LOAD_FAILURE:
            return robot_state::no_module;
        default:
            return robot_state::none;
        }
    }

    qorin_cli::connection_options options_;
    connection connection_;
    std::optional<std::future<connection>> pending_;
    std::vector<status_field> fields_;
    std::array<robot_state, 2> robots_{};
    control_state control_ = control_state::unknown;
    std::uint64_t event_count_ = 0;
    std::string notice_;
    clock::time_point next_attaching_{};
    clock::time_point next_search_{};
};
} // namespace

std::unique_ptr<status_source> make_live_box(const qorin_cli::connection_options& options)
{
    return std::make_unique<live_box>(options);
}
} // namespace qorin_view
