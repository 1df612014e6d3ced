#include "simulator/model/box_model.h"

#include <algorithm>
#include <utility>

#include "simulator/model/moving_state.h"

namespace cbox_simulator
{
namespace
{
std::chrono::milliseconds whole_milliseconds(double seconds)
{
    return std::chrono::ceil<std::chrono::milliseconds>(std::chrono::duration<double>(seconds));
}
} // namespace

box_model::box_model(std::string version_text, double control_cycle_us, arm_catalogue arms)
    : version_text_(std::move(version_text)), control_cycle_us_(control_cycle_us), arms_(std::move(arms))
{
}

QORIN_API_RESULT box_model::create_system(client_id client, const created_system& system)
{
    // A further application starts with its own creation, whoever has the control: what stands is only reported.
    if (system_)
        return system_->model == system.model ? QORIN_API_RESULT_WARNING_SYSTEM_ALREADY_CREATED
                                              : QORIN_API_RESULT_WARNING_CBOX_NAME_DIFFERENT;
    if (held_by_another(client))
        return QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL;
    if (!is_possible(system.model) || system.robot_capacity == 0 || system.robot_capacity > robot_set::robot_limit)
        return QORIN_API_RESULT_ERROR_NO_SUPPORT;
    system_ = system;
    cbox_.set_mobile_base_present(system.model == QORIN_CBOX_MODEL_3GEN_AMR);
    cbox_.set_ecat_connection_state(QORIN_ECAT_CONN_STATE_CONNECTED);
    notify(QORIN_EVENT_SUBGRP_NOTIFICATION_SYSTEM_INITIALIZED);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT box_model::destroy_system(client_id client)
{
    if (held_by_another(client))
        return QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL;
    if (!system_)
        return QORIN_API_RESULT_OK;
    robots_.for_each([this](std::uint32_t id, robot_state&) { destroy_robot(id); });
    ending_ = true;
    if (robots_.record_count() == 0)
        end_system();
    return QORIN_API_RESULT_OK;
}

void box_model::end_system()
{
    ending_ = false;
    motion_commands_.destroy_all();
    system_.reset();
    cbox_.set_mobile_base_present(false);
    cbox_.set_ecat_connection_state(QORIN_ECAT_CONN_STATE_DISCONNECTED);
}

QORIN_API_RESULT box_model::reset_system(client_id client)
{
    // An idle box has no error state to leave; only the right to reset is checked.
    return holds_control(client) ? QORIN_API_RESULT_OK : QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL;
}

QORIN_API_RESULT box_model::set_ecat_link(bool connected)
{
    if (!system_)
        return QORIN_API_RESULT_ERROR_SYSTEM_CONTROL_SW_NOT_INIT;
    if (!connected && robots_.record_count() > 0 && cbox_.emergency_button() != QORIN_BUTTON_STATE_PUSHED)
        events_.post(QORIN_EVENT_GRP_ERROR, QORIN_EVENT_SUBGRP_ERROR_CONTROL_BOX_ROBOT_DISCONNECTED);
    return cbox_.set_ecat_connection_state(connected ? QORIN_ECAT_CONN_STATE_CONNECTED
                                                     : QORIN_ECAT_CONN_STATE_DISCONNECTED);
}

QORIN_API_RESULT box_model::create_robot(QORIN_ROBOT_MODEL model, std::uint32_t& id)
{
    return system_ && !ending_ ? robots_.create(model, system_->robot_capacity, id)
                               : QORIN_API_RESULT_ERROR_SYSTEM_CONTROL_SW_NOT_INIT;
}

QORIN_API_RESULT box_model::destroy_robot(std::uint32_t id)
{
    auto* robot = robots_.find(id);
    if (!robot)
        return QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    robot->leave();
    motions_.executor(id).stop(motion_executor::stop_kind::ordinary);
    delay_reply(std::max(reply_delay_, whole_milliseconds(motions_.executor(id).time_to_rest())));
    let_leave(id);
    return QORIN_API_RESULT_OK;
}

void box_model::let_leave(std::uint32_t id)
{
    const auto* robot = robots_.find(id);
    if (!robot || !robot->is_leaving() || !motions_.executor(id).is_free())
        return;
    motions_.forget_robot(id);
    motion_commands_.forget_robot(id);
    robots_.destroy(id);
}

QORIN_API_RESULT box_model::take_control(client_id client)
{
    if (held_by_another(client))
        return QORIN_API_RESULT_ERROR_CONTROL_TAKE_FAILURE;
    // The name says the opposite of what the code tells: "already have control".
    if (holds_control(client))
        return QORIN_API_RESULT_WARNING_YOU_DONT_HAVE_THE_CONTROL;
    control_owner_ = client;
    notify(QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_TAKE, client);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT box_model::release_control(client_id client)
{
    if (held_by_another(client))
        return QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL;
    if (!control_owner_)
        return QORIN_API_RESULT_WARNING_YOU_ALREADY_RELEASED_THE_CONTROL;
    control_owner_.reset();
    robots_.for_each([this](std::uint32_t id, robot_state&)
                     { motions_.executor(id).stop(motion_executor::stop_kind::ordinary); });
    notify(QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_RELEASE, client);
    return QORIN_API_RESULT_OK;
}

motion_executor& box_model::motion_of(const robot_state& robot)
{
    std::uint32_t id = 0;
    while (robots_.find(id) != &robot)
        ++id;
    return motions_.executor(id);
}

bool box_model::chase(std::uint32_t robot_id, const robot_state::joint_array& targets)
{
    const auto* robot = robots_.find(robot_id);
    return robot && readiness_.hindrance_to(*robot) == hindrance::none && motions_.executor(robot_id).chase(targets);
}

void box_model::run_cycle()
{
    world_.run_cycle();
    redundant_functions_.run_cycle(control_cycle_us_ * 1e-6);
    robots_.for_each(
        [this](std::uint32_t id, robot_state& robot)
        {
            robot.settings().belt_speed = cbox_.belt_speed();
            heed_safeguard(id, robot);
            // A hand that lets go is told of once.
            const bool guided = is_guided(robot);
            if (std::exchange(guided_[id], guided) || guided)
                motions_.executor(id).guide_by_hand(robot.settings().touch.hand);
        });
    motions_.run_cycle(control_cycle_us_ * 1e-6);
    robots_.for_each(
        [this](std::uint32_t id, robot_state& robot)
        {
            if (robot.recordings().take_time_out())
                events_.post(QORIN_EVENT_GRP_NOTIFICATION, QORIN_EVENT_SUBGRP_NOTIFICATION_ROBOT_RECORDING_TIME_OUT,
                             id);
            let_leave(id);
        });
    if (ending_ && robots_.record_count() == 0)
        end_system();
}

bool box_model::is_idle() const
{
    for (std::uint32_t id = 0; id < robot_set::robot_limit; ++id)
        if (const auto* robot = robots_.find(id); robot && is_guided(*robot))
            return false;
    return !ending_ && motions_.are_idle() && world_.is_settled() && redundant_functions_.is_settled();
}

bool box_model::is_guided(const robot_state& robot) const
{
    return robot.settings().touch.hand != axis_values{} && !redundant_functions_.safeguard_pause() &&
           robot.settings().control_mode == QORIN_DRIVE_CONTROL_MODE_TORQUE &&
           readiness_.hindrance_to(robot, drive_use::any) == hindrance::none;
}

void box_model::heed_safeguard(std::uint32_t id, const robot_state& robot)
{
    auto& executor = motions_.executor(id);
    if (redundant_functions_.safeguard_pause())
    {
        if (is_paused(robot.moving_state()))
            return;
        executor.pause({});
        held_by_safeguard_[id] = is_paused(robot.moving_state());
    }
    else if (std::exchange(held_by_safeguard_[id], false))
        executor.resume();
}

QORIN_API_RESULT box_model::request_exit(client_id client)
{
    if (held_by_another(client))
        return QORIN_API_RESULT_ERROR_YOU_DONT_HAVE_THE_CONTROL;
    if (!std::exchange(exit_requested_, true))
        notify(QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_SW_EXIT);
    return QORIN_API_RESULT_OK;
}

bool box_model::forget_client(client_id client)
{
    return holds_control(client) && release_control(client) == QORIN_API_RESULT_OK;
}

bool box_model::held_by_another(client_id client) const
{
    return control_owner_ && *control_owner_ != client;
}

void box_model::notify(QORIN_EVENT_SUBGRP subgroup, client_id sender)
{
    events_.post(QORIN_EVENT_GRP_NOTIFICATION, subgroup, static_cast<std::uint32_t>(sender));
}
} // namespace cbox_simulator
