#include "tools/qorin/view/live_box.h"

#include <chrono>
#include <future>
#include <optional>
#include <thread>
#include <utility>

#include "qorin/event_codes.h"
#include "qorin/system.h"
#include "tools/qorin/status/live_links.h"
#include "tools/qorin/view/robot_fields.h"

namespace qorin_view
{
namespace
{
/// What a connection has made of threads and sockets stays until the process ends.
constexpr unsigned int connection_limit = 100;

using namespace std::chrono_literals;

double seconds_since_epoch(std::chrono::system_clock::time_point time)
{
    return std::chrono::duration<double>(time.time_since_epoch()).count();
}

struct connection
{
    unsigned int cbox_id;
    qorin_cli::live_links links;
    std::vector<qorin_cli::status_field> fields;
    qorin_cli::robot_watch robots;
};

connection connect_and_listen(const qorin_cli::connection_options& options)
{
    const std::set<ino_t> before = qorin_cli::live_links::sockets();
    const unsigned int cbox_id = qorin_cli::connect(options);
    qorin_cli::collect_events(cbox_id);
    return {cbox_id, qorin_cli::live_links(options.address, before), qorin_cli::status_fields(cbox_id),
            qorin_cli::robot_watch(cbox_id)};
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
        // Who has the control is told by events alone.
        fields_ = {{"link.state", field_info::word},
                   {"link.frame_rate", "1/s"},
                   {"link.longest_gap", "ms"},
                   {"link.gaps", ""},
                   {"cbox.control", field_info::word}};
        add_robot_fields(fields_);
        for (const field_info& field : connection_.fields)
            fields_.push_back(field);
    }

    const std::vector<field_info>& fields() const override { return fields_; }
    std::string name() const override { return options_.address; }

    std::string control_software() const override
    {
        const char* const version = qorin_rpc_system_control_sw_version_get(connection_.cbox_id);
        return version == nullptr ? "" : version;
    }

    reading read(double /*time*/) override
    {
        take_new_connection();
        // A connection that is under way changes what getters look up: the mirror's values stay meanwhile.
        if (!pending_)
        {
            connection_.robots.look();
            mirror_ = qorin_cli::read_fields(connection_.fields);
        }
        const qorin_cli::live_links& links = connection_.links;
        values_ = {link_word(), links.frame_rate(), links.longest_gap(), static_cast<double>(links.gaps()), control_};
        add_robot_values(robots(), values_);
        values_.insert(values_.end(), mirror_.begin(), mirror_.end());
        return {seconds_since_epoch(std::chrono::system_clock::now()), values_};
    }

    void look() override { connection_.links.look(); }

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
        if (pending_ || connection_.links.link_state() == qorin_cli::live_links::state::connected)
            return;
        if (connection_count_ == connection_limit)
        {
            notice_ = "connected too often: start qorin view again";
            return;
        }
        ++connection_count_;
        pending_ = connect_aside(options_);
    }

private:
    [[nodiscard]] std::string link_word() const
    {
        constexpr const char* words[] = {"CONNECTED", "SILENT", "LOST"};
        return pending_ ? "CONNECTING" : words[static_cast<std::size_t>(connection_.links.link_state())];
    }

    [[nodiscard]] const standing_robots& robots()
    {
        if (!pending_)
            for (unsigned int id = 0; id < robots_.size(); ++id)
                robots_[id] = connection_.robots.is_known(id)
                                  ? standing_robot{standing::known, connection_.robots.describe(id)}
                              : connection_.robots.lacks_module(id) ? standing_robot{standing::no_module, {}}
                                                                    : standing_robot{};
        return robots_;
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
            control_.clear();
        }
        catch (const std::exception& error)
        {
            notice_ = error.what();
        }
    }

    void note_control(const qorin_cli::event& told)
    {
        if (told.subgroup == QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_TAKE)
            control_ = "TAKEN";
        if (told.subgroup == QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_RELEASE)
            control_ = "RELEASED";
    }

    qorin_cli::connection_options options_;
    connection connection_;
    std::optional<std::future<connection>> pending_;
    std::vector<field_info> fields_;
    std::vector<field_value> mirror_;
    std::vector<field_value> values_;
    standing_robots robots_{};
    std::string control_; ///< empty: not told yet
    std::uint64_t event_count_ = 0;
    unsigned int connection_count_ = 0;
    std::string notice_;
};
} // namespace

std::unique_ptr<status_source> make_live_box(const qorin_cli::connection_options& options)
{
    return std::make_unique<live_box>(options);
}
} // namespace qorin_view
