#ifndef SIMULATOR_MODEL_BOX_MODEL_H
#define SIMULATOR_MODEL_BOX_MODEL_H

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "qorin/enumerations.h"
#include "qorin/result.h"
#include "simulator/kinematics/arm_catalogue.h"
#include "simulator/model/cbox_state.h"
#include "simulator/model/client_id.h"
#include "simulator/model/event_outbox.h"
#include "simulator/model/fieldbus.h"
#include "simulator/model/motion_command_set.h"
#include "simulator/model/motion_queue.h"
#include "simulator/model/readiness.h"
#include "simulator/model/redundant_functions.h"
#include "simulator/model/robot_set.h"
#include "simulator/model/service_data.h"
#include "simulator/model/user_memory.h"
#include "simulator/model/world.h"

namespace cbox_simulator
{
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
    box_model(std::string version_text, double control_cycle_us, arm_catalogue arms = {});
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
    [[nodiscard]] cbox_simulator::world& world() { return world_; }
    [[nodiscard]] event_outbox& events() { return events_; }
    [[nodiscard]] const readiness_gate& readiness() const { return readiness_; }

    /// Needs no control, as it comes before the first take; yet nobody may do it under another client's hands.
    /// QORIN_API_RESULT_ERROR_NO_SUPPORT for what is no model of a box, and for no robots or more than a box has
    /// places. The EtherCAT network comes up with the system and goes down with it.
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
    /// As robot_set::destroy(). The motion commands of the robot end with it. One that moves is stopped and goes when
    /// it stands; the reply waits for that.
    QORIN_API_RESULT destroy_robot(std::uint32_t id);

    /// Who has the control changes with an event, whose sender id is the client. Robots that move are stopped when the
    /// control is given up.
    QORIN_API_RESULT take_control(client_id client);
    QORIN_API_RESULT release_control(client_id client);
    [[nodiscard]] bool holds_control(client_id client) const { return control_owner_ == client; }

    [[nodiscard]] motion_executor& motion_of(const robot_state& robot);

    /// A streamed target for the robot's chaser. False when it is not followed: no such robot, one that is not ready,
    /// or motion_executor::chase() refuses.
    bool chase(std::uint32_t robot_id, const robot_state::joint_array& targets);

    /// Lets one control cycle pass, after which wires and redundant channels have taken effect. Robots that are not
    /// ready any more are stopped, and those without link or safety lose their power. A recording that has run out of
    /// its time gives an event, whose sender id is the robot.
    void run_cycle();
    /// Whether the cycles until the next command change nothing.
    [[nodiscard]] bool is_idle() const;

    /// The flag is acted upon by whoever serves the links, once the reply is on its way.
    QORIN_API_RESULT request_exit(client_id client);

    /// The reply to the command under way shall wait that long. Whoever sends the reply takes the delay, once.
    void delay_reply(std::chrono::milliseconds delay) { reply_delay_ = delay; }
    [[nodiscard]] std::chrono::milliseconds take_reply_delay() { return std::exchange(reply_delay_, {}); }

    /// What the drives answer to being homed, for faults on request.
    [[nodiscard]] QORIN_API_RESULT homing_result() const { return homing_result_; }
    void set_homing_result(QORIN_API_RESULT result) { homing_result_ = result; }

    /// To be told of every client that is gone, so that what it held becomes free. True when that was the control.
    bool forget_client(client_id client);

private:
    [[nodiscard]] bool held_by_another(client_id client) const;
    void let_leave(std::uint32_t id);
    void end_system();
    /// A hand is at an arm that gives way to it.
    [[nodiscard]] bool is_guided(const robot_state& robot) const;
    void heed_safeguard(std::uint32_t id, const robot_state& robot);
    void notify(QORIN_EVENT_SUBGRP subgroup, client_id sender = 0);

    std::string version_text_;
    double control_cycle_us_;
    std::optional<created_system> system_;
    std::optional<client_id> control_owner_;
    bool exit_requested_ = false;
    bool ending_ = false; ///< The system is to be destroyed when its robots stand.
    event_outbox events_;
    cbox_state cbox_{events_};
    readiness_gate readiness_{cbox_, control_owner_};
    arm_catalogue arms_;
    robot_set robots_{arms_};
    fieldbus fieldbuses_;
    cbox_simulator::user_memory user_memory_;
    cbox_simulator::service_data service_data_{cbox_};
    std::chrono::milliseconds reply_delay_{};
    recording_files files_;
    motion_command_set motion_commands_;
    motion_queue motions_{robots_, readiness_, {cbox_, events_, motion_commands_}};
    QORIN_API_RESULT homing_result_ = QORIN_API_RESULT_OK;
    cbox_simulator::world world_{cbox_, fieldbuses_, robots_};
    redundant_functions redundant_functions_{cbox_, robots_, events_};
    std::array<bool, robot_set::robot_limit> guided_{};            ///< Robots that a hand guided in the last cycle.
    std::array<bool, robot_set::robot_limit> held_by_safeguard_{}; ///< Robots that go on when it is closed.
};
} // namespace cbox_simulator

#endif
