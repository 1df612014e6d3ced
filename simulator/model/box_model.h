#ifndef SIMULATOR_MODEL_BOX_MODEL_H
#define SIMULATOR_MODEL_BOX_MODEL_H

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "qorin/enumerations.h"
#include "qorin/result.h"
#include "simulator/model/cbox_state.h"
#include "simulator/model/event_outbox.h"
#include "simulator/model/fieldbus.h"
#include "simulator/model/motion_command_set.h"
#include "simulator/model/motion_queue.h"
#include "simulator/model/robot_set.h"
#include "simulator/model/service_data.h"
#include "simulator/model/user_memory.h"

namespace cbox_simulator
{
/// Numbers clients from 1 in the order of their first link. Never reused within a box's life.
using client_id = std::uint64_t;

/// The control software's system, as a client had it made.
struct created_system
{
    QORIN_CBOX_MODEL model = QORIN_CBOX_MODEL_NONE;
    std::uint32_t robot_capacity = 0;
};

/**
 * What the simulated control box is at this moment: state, and the operations that commands perform on it.
 *
 * Knows nothing of links or frames: what is worth an event is left in the outbox. Owned by the control box and touched
 * on its io thread only.
 */
class box_model
{
public:
    box_model(std::string version_text, double control_cycle_us);
    box_model(const box_model&) = delete;
    box_model& operator=(const box_model&) = delete;

    [[nodiscard]] const std::string& version_text() const { return version_text_; }
    [[nodiscard]] double control_cycle_us() const { return control_cycle_us_; }
    [[nodiscard]] const std::optional<created_system>& system() const { return system_; }
    [[nodiscard]] const std::optional<client_id>& control_owner() const { return control_owner_; }
    [[nodiscard]] bool exit_requested() const { return exit_requested_; }
    [[nodiscard]] const cbox_state& cbox() const { return cbox_; }
    [[nodiscard]] cbox_state& cbox() { return cbox_; }
    [[nodiscard]] const robot_set& robots() const { return robots_; }
    [[nodiscard]] robot_set& robots() { return robots_; }
    [[nodiscard]] const fieldbus& fieldbuses() const { return fieldbuses_; }
    [[nodiscard]] fieldbus& fieldbuses() { return fieldbuses_; }
    [[nodiscard]] cbox_simulator::user_memory& user_memory() { return user_memory_; }
    [[nodiscard]] cbox_simulator::service_data& service_data() { return service_data_; }
    [[nodiscard]] motion_command_set& motion_commands() { return motion_commands_; }
    [[nodiscard]] motion_queue& motions() { return motions_; }
    [[nodiscard]] const recording_files& files() const { return files_; }
    [[nodiscard]] recording_files& files() { return files_; }
    [[nodiscard]] event_outbox& events() { return events_; }

    /// Needs no control, as it comes before the first take; yet nobody may do it under another client's hands.
    /// The EtherCAT network comes up with the system and goes down with it.
    QORIN_API_RESULT create_system(client_id client, const created_system& system);
    /// Clients release before they destroy, so that control is not needed here either. The system's robots
    /// and motion commands end with it.
    QORIN_API_RESULT destroy_system(client_id client);
    QORIN_API_RESULT reset_system(client_id client);

    /// The EtherCAT link is there to be lost and restored only while a system stands:
    /// QORIN_API_RESULT_ERROR_SYSTEM_CONTROL_SW_NOT_INIT otherwise.
    QORIN_API_RESULT set_ecat_link(bool connected);

    /// The system makes room for its robots: without one it is QORIN_API_RESULT_ERROR_SYSTEM_CONTROL_SW_NOT_INIT, and
    /// robot_set::create() decides otherwise.
    QORIN_API_RESULT create_robot(QORIN_ROBOT_MODEL model, std::uint32_t& id);
    /// As robot_set::destroy(). The motion commands of the robot end with it.
    QORIN_API_RESULT destroy_robot(std::uint32_t id);

    /// Who has the control changes with an event, whose sender id is the client.
    QORIN_API_RESULT take_control(client_id client);
    QORIN_API_RESULT release_control(client_id client);
    [[nodiscard]] bool holds_control(client_id client) const { return control_owner_ == client; }

    /// Lets one control cycle pass. A recording that has run out of its time gives an event, whose sender id is the
    /// robot.
    void run_cycle();

    /// The flag is acted upon by whoever serves the links, once the reply is on its way.
    QORIN_API_RESULT request_exit(client_id client);

    /// The reply to the command under way shall wait that long. Whoever sends the reply takes the delay, once.
    void delay_reply(std::chrono::milliseconds delay) { reply_delay_ = delay; }
    [[nodiscard]] std::chrono::milliseconds take_reply_delay() { return std::exchange(reply_delay_, {}); }

    /// To be told of every client that is gone, so that what it held becomes free. True when that was the control.
    bool forget_client(client_id client);

private:
    [[nodiscard]] bool held_by_another(client_id client) const;
    void notify(QORIN_EVENT_SUBGRP subgroup, client_id sender = 0);

    std::string version_text_;
    double control_cycle_us_;
    std::optional<created_system> system_;
    std::optional<client_id> control_owner_;
    bool exit_requested_ = false;
    event_outbox events_;
    cbox_state cbox_{events_};
    robot_set robots_;
    fieldbus fieldbuses_;
    cbox_simulator::user_memory user_memory_;
    cbox_simulator::service_data service_data_{cbox_};
    std::chrono::milliseconds reply_delay_{};
    recording_files files_;
    motion_command_set motion_commands_;
    motion_queue motions_{robots_, cbox_, events_};
};
} // namespace cbox_simulator

#endif
