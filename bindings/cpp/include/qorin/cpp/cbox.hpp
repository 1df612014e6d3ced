#ifndef QORIN_CPP_CBOX_HPP
#define QORIN_CPP_CBOX_HPP

#include <chrono>
#include <concepts>
#include <string>
#include <string_view>
#include <thread>
#include <utility>

#include "qorin/cbox.h"
#include "qorin/cbox_io.h"
#include "qorin/cpp/options.hpp"
#include "qorin/cpp/robot.hpp"
#include "qorin/user_memory.h"

namespace qorin::inline QORIN_LAYER
{
/// The control of a control box, in which one client is at a time.
class control : detail::bound<cbox_id>
{
public:
    explicit control(cbox_id box) : bound(box) {}

protected:
    result<void> end() const { return set<qorin_rpc_system_control_release>(); }
};

/// What the user memory holds by a name. The type tells which one counts; a text can be kept, and not read back.
struct user_value
{
    QORIN_USER_DATA_TYPE type{};
    int integer = 0;
    bool truth = false;
    double real = 0;
    int wide = 0; ///< Of QORIN_USER_DATA_TYPE_LONGLONG, of which 32 bits travel.
};

/// Values that a control box keeps by name, for its clients and programs to share.
class user_memory : detail::bound<cbox_id>
{
public:
    explicit user_memory(cbox_id box) : bound(box) {}

    [[nodiscard]] result<void> set(std::string_view name, int value) const
    {
        return keep(name, QORIN_USER_DATA_TYPE_INT, value, "", 0, 0.0);
    }
    [[nodiscard]] result<void> set(std::string_view name, std::same_as<bool> auto value) const
    {
        return keep(name, QORIN_USER_DATA_TYPE_BOOL, 0, "", static_cast<char>(value), 0.0);
    }
    [[nodiscard]] result<void> set(std::string_view name, double value) const
    {
        return keep(name, QORIN_USER_DATA_TYPE_DOUBLE, 0, "", 0, value);
    }
    [[nodiscard]] result<void> set(std::string_view name, std::string_view value) const
    {
        return keep(name, QORIN_USER_DATA_TYPE_STRING, 0, value, 0, 0.0);
    }
    [[nodiscard]] result<void> set(std::string_view name, const char* value) const
    {
        return set(name, std::string_view(value));
    }

    [[nodiscard]] result<user_value> get(std::string_view name) const
    {
        const auto all = bound::set<qorin_rpc_get_user_memory>(name);
        if (!all)
            return unexpected(all.error());
        const auto& [type, integer, text, truth, real, wide] = *all;
        return user_value{type, integer, truth != 0, real, static_cast<int>(wide)};
    }
    [[nodiscard]] result<void> erase(std::string_view name) const
    {
        return bound::set<qorin_rpc_delete_user_memory>(name);
    }
    [[nodiscard]] result<void> clear() const { return bound::set<qorin_rpc_clear_user_memory>(); }

private:
    [[nodiscard]] result<void> keep(std::string_view name, QORIN_USER_DATA_TYPE type, int integer,
                                    std::string_view text, char truth, double real) const
    {
        return bound::set<qorin_rpc_set_user_memory>(name, type, integer, text, truth, real, 0L);
    }
};

/// What to do with a robot that a program has left on the control box, where there is room for no other.
enum class left_over
{
    keep,
    destroy
};

/**
 * A connection to a control box, by its id. Connections last until the process ends, so this may be copied at will.
 *
 * After an error with is_lost_link() the connection is dead: the status stands still, events do not come, and commands
 * go on answering with that error.
 */
class cbox : detail::bound<cbox_id>
{
public:
    /// A connection that stands.
    explicit cbox(cbox_id id) : bound(id) {}

    /// Connects to a control box at an IPv4 address, "127.0.0.1" and no name. Blocks for at least 2.3 seconds. To be
    /// called by one thread at a time, while no other is inside the library.
    [[nodiscard]] static result<cbox> connect(std::string_view address, const options& how = {})
    {
        const auto name = detail::name_of<qorin_rpc_system_cbox_connect>();
        if (!how.accept_other_versions && qorin_system_api_version_get() != header_version)
            return unexpected(error(QORIN_API_RESULT_ERROR_SW_VER_NOT_MATCHED, name));
        if (how.ignore_sigpipe)
            detail::ignore_sigpipe();
        const detail::kept_affinity unpinned;
        cbox_id id;
        const QORIN_API_RESULT code = detail::connect(std::string(address), how, &id.number);
        if (code != QORIN_API_RESULT_OK &&
            !(code == QORIN_API_RESULT_ERROR_SW_VER_NOT_MATCHED && how.accept_other_versions))
            return unexpected(error(code, name));
        return cbox(id);
    }

    [[nodiscard]] cbox_id id() const { return id_at<0>(); }

    // System and control.
    /// That it stands already is no error.
    [[nodiscard]] result<void> create_system(QORIN_CBOX_MODEL model, unsigned int robots = 1,
                                             std::string_view text = {}) const
    {
        const auto made = robots == 1 ? set<qorin_rpc_gen_system_create>(text, model)
                                      : set<qorin_rpc_gen_multi_robot_system_create>(text, model, robots);
        return made || made.error().code() == QORIN_API_RESULT_WARNING_SYSTEM_ALREADY_CREATED ? result<void>() : made;
    }
    [[nodiscard]] result<void> destroy_system() const { return set<qorin_rpc_system_destroy>(); }
    [[nodiscard]] result<void> reset() const { return set<qorin_rpc_system_reset>(); }
    [[nodiscard]] result<scoped<control>> take_control() const
    {
        const auto taken = set<qorin_rpc_system_control_take>();
        if (!taken)
            return unexpected(taken.error());
        return scoped(control(id()));
    }
    /// Whether this client may command. Also the question that a living control box answers.
    [[nodiscard]] result<bool> in_control() const { return set<qorin_rpc_system_controllable_get, bool>(); }

    // Robots.
    /// Returns when the status shows the robot. The other values are the control software's to define.
    [[nodiscard]] result<scoped<robot>> create_robot(QORIN_ROBOT_MODEL model, left_over there = left_over::keep,
                                                     std::string_view text = {}, unsigned int value = 0) const
    {
        const auto create = [&] { return set<qorin_rpc_robot_create, robot_id>(model, text, value); };
        auto made = create();
        if (!made && there == left_over::destroy &&
            made.error().code() == QORIN_API_RESULT_ERROR_ROBOT_CREATION_FAILURE && set<qorin_rpc_robot_destroy>(0u))
            made = create();
        if (!made)
            return unexpected(made.error());
        scoped created(robot(id(), *made));
        for (int look = 0; look < 1000 && !created.model(); ++look)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return created;
    }

    /// A robot that this process has created or attached, and that somebody else will destroy.
    [[nodiscard]] robot robot_at(robot_id id) const { return {this->id(), id}; }

    /// A robot that another program has created, or this one before it was restarted. Nobody else may ask for another
    /// control box meanwhile.
    [[nodiscard]] result<robot> attach_robot(robot_id id) const
    {
        if (const auto asked = get<qorin_rpc_cbox_name_get>(); !asked) // which makes it the one that is meant
            return unexpected(asked.error());
        const auto attached = detail::getter<qorin_robot_attach>(id);
        return attached ? result<robot>(robot_at(id)) : result<robot>(unexpected(attached.error()));
    }

    // Queue of motions.
    /// Starts what is queued, for all robots. Returns when the control box has answered, not at the end of the motions.
    [[nodiscard]] result<void> start_queue() const { return set<qorin_rpc_motion_command_queue_flush>(); }
    [[nodiscard]] result<void> clear_queue() const { return set<qorin_rpc_motion_command_queue_clear>(); }

    // Status and I/O of the control box. Analog values are in volts or milliamperes, as the mode of the channel says.
    [[nodiscard]] result<QORIN_BUTTON_STATE> emergency_button() const
    {
        return get<qorin_rpc_cbox_emergency_button_state_get>();
    }
    [[nodiscard]] result<QORIN_ECAT_CONN_STATE> ecat_connection() const
    {
        return get<qorin_rpc_cbox_ecat_connection_state_get>();
    }
    [[nodiscard]] result<bool> digital_input(unsigned int channel) const
    {
        return get<qorin_rpc_cbox_io_digital_input_get, bool>(channel);
    }
    [[nodiscard]] result<bool> digital_output(unsigned int channel) const
    {
        return get<qorin_rpc_cbox_io_digital_output_get, bool>(channel);
    }
    [[nodiscard]] result<void> set_digital_output(unsigned int channel, bool on) const
    {
        return set<qorin_rpc_cbox_io_digital_output_set>(channel, static_cast<unsigned int>(on));
    }
    [[nodiscard]] result<double> analog_input(unsigned int channel) const
    {
        return get<qorin_rpc_cbox_io_analog_input_get>(channel);
    }
    [[nodiscard]] result<double> analog_output(unsigned int channel) const
    {
        return get<qorin_rpc_cbox_io_analog_output_get>(channel);
    }
    [[nodiscard]] result<void> set_analog_output(unsigned int channel, double value) const
    {
        return set<qorin_rpc_cbox_io_analog_output_set>(channel, value);
    }
    [[nodiscard]] user_memory memory() const { return user_memory(id()); }

    // Events.
    /// Calls the handler with each event that the filter lets through, for as long as the registration lives. The first
    /// one of a control box waits for a command that blocks. An exception that leaves the handler is told on standard
    /// error and ends nothing.
    template <std::invocable<const event&> Handler>
    [[nodiscard]] result<registration> on(const event_filter& filter, Handler call,
                                          dispatch where = dispatch::event_thread) const
    {
        if (!has_events())
            return unexpected(no_events());
        auto handler = std::make_shared<detail::handler>();
        handler->filter = filter;
        handler->call = [call = std::move(call)](const event* arrived) mutable { call(*arrived); };
        handler->where = where;
        return registration(id(), std::move(handler));
    }

    /// Blocks until such an event has come, or has lain in the queue of the latest 513 before, and takes it from there.
    /// False when the time has run out. The filter names a group, and a sender with its subgroup alone. Not from a
    /// handler on the event thread.
    [[nodiscard]] result<bool> wait_for(const event_filter& filter, std::chrono::nanoseconds time_out) const
    {
        char found = 0;
        const unsigned int patience = detail::milliseconds_of(time_out);
        if (!has_events())
            return unexpected(no_events());
        if (!filter.group || (filter.sender && !filter.subgroup)) // the C interface has no such waits
            return unexpected(
                error(QORIN_API_RESULT_ERROR_NO_SUPPORT, detail::name_of<qorin_rpc_system_wait_event_group>()));
        if (filter.sender)
            qorin_rpc_system_wait_event_group_subgroup_sender_id(id().number, *filter.group, *filter.subgroup,
                                                                 *filter.sender, patience, 1, &found);
        else if (filter.subgroup)
            qorin_rpc_system_wait_event_group_subgroup(id().number, *filter.group, *filter.subgroup, patience, 1,
                                                       &found);
        else
            qorin_rpc_system_wait_event_group(id().number, *filter.group, patience, 1, &found);
        return found != 0;
    }
    /// Forgets what lies in that queue.
    void forget_events() const { qorin_rpc_system_event_queue_clear(id().number); }

    /// The next such event, to be awaited by a coroutine.
    [[nodiscard]] result<next_event> next(const event_filter& filter, std::chrono::nanoseconds time_out) const
    {
        if (!has_events())
            return unexpected(no_events());
        return next_event(id(), filter, time_out);
    }

private:
    /// The C interface takes registrations and waits for any id, and nothing comes of them.
    [[nodiscard]] bool has_events() const
    {
        return qorin_rpc_system_api_version_get(id().number) != nullptr && detail::event_hub::of(id()) != nullptr;
    }
    [[nodiscard]] static error no_events()
    {
        return {QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, detail::name_of<qorin_rpc_system_event_callback_add>()};
    }
};
} // namespace qorin::inline QORIN_LAYER

#endif
