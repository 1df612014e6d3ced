#include "simulator/model/box_model.h"

#include <utility>

namespace cbox_simulator
{
box_model::box_model(std::string version_text, double control_cycle_us)
    : version_text_(std::move(version_text)), control_cycle_us_(control_cycle_us)
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
    motions_.clear();
    motion_commands_.destroy_all();
    robots_.destroy_all();
    system_.reset();
    cbox_.set_mobile_base_present(false);
    cbox_.set_ecat_connection_state(QORIN_ECAT_CONN_STATE_DISCONNECTED);
    return QORIN_API_RESULT_OK;
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
    return cbox_.set_ecat_connection_state(connected ? QORIN_ECAT_CONN_STATE_CONNECTED
                                                     : QORIN_ECAT_CONN_STATE_DISCONNECTED);
}

QORIN_API_RESULT box_model::create_robot(QORIN_ROBOT_MODEL model, std::uint32_t& id)
{
    return system_ ? robots_.create(model, system_->robot_capacity, id)
                   : QORIN_API_RESULT_ERROR_SYSTEM_CONTROL_SW_NOT_INIT;
}

QORIN_API_RESULT box_model::destroy_robot(std::uint32_t id)
{
    const auto result = robots_.destroy(id);
    if (result == QORIN_API_RESULT_OK)
    {
        motions_.forget_robot(id);
        motion_commands_.forget_robot(id);
    }
    return result;
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
    notify(QORIN_EVENT_SUBGRP_NOTIFICATION_CONTROL_RELEASE, client);
    return QORIN_API_RESULT_OK;
}

void box_model::run_cycle()
{
    robots_.run_cycle(control_cycle_us_ * 1e-6);
    for (std::uint32_t id = 0; id < robot_set::robot_limit; ++id)
    {
        auto* robot = robots_.find(id);
        if (robot && robot->recordings().take_time_out())
            events_.post(QORIN_EVENT_GRP_NOTIFICATION, QORIN_EVENT_SUBGRP_NOTIFICATION_ROBOT_RECORDING_TIME_OUT, id);
    }
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
