#include "simulator/model/button_panel.h"

#include "simulator/model/possible_values.h"

namespace cbox_simulator
{
QORIN_API_RESULT button_panel::set_power_button(QORIN_BUTTON_STATE state)
{
    if (!is_possible(state))
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE;
    if (power_button_ != state)
        events_.post(QORIN_EVENT_GRP_CONTROL_BOX_BUTTON_CHANGED,
                     state == released ? QORIN_EVENT_SUBGRP_CONTROL_BOX_BUTTON_CHANGED_PWR_RELEASED
                                       : QORIN_EVENT_SUBGRP_CONTROL_BOX_BUTTON_CHANGED_PWR_PUSHED);
    power_button_ = state;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT button_panel::set_emergency_button(QORIN_BUTTON_STATE state)
{
    if (!is_possible(state))
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE;
    emergency_knob_ = state;
    change_emergency(emergency_button_, circuit_open_ ? QORIN_BUTTON_STATE_PUSHED : state, 0);
    return QORIN_API_RESULT_OK;
}

void button_panel::open_emergency_circuit(bool open)
{
    circuit_open_ = open;
    change_emergency(emergency_button_, open ? QORIN_BUTTON_STATE_PUSHED : emergency_knob_, 0);
}

QORIN_API_RESULT button_panel::set_amr_emergency_button(std::uint32_t index, QORIN_BUTTON_STATE state)
{
    if (!mobile_base_present_ || index >= amr_button_count)
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_AMR_EMG_NUMBER;
    if (!is_possible(state))
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE;
    change_emergency(amr_emergency_buttons_[index], state, index + 1);
    return QORIN_API_RESULT_OK;
}

void button_panel::set_mobile_base_present(bool present)
{
    mobile_base_present_ = present;
    if (present)
        return;
    for (std::uint32_t index = 0; index < amr_button_count; ++index)
        change_emergency(amr_emergency_buttons_[index], released, index + 1);
}

void button_panel::change_emergency(QORIN_BUTTON_STATE& button, QORIN_BUTTON_STATE state, std::uint32_t sender_id)
{
    if (button != state)
        events_.post(QORIN_EVENT_GRP_CONTROL_BOX_BUTTON_CHANGED,
                     state == released ? QORIN_EVENT_SUBGRP_CONTROL_BOX_BUTTON_CHANGED_EMG_RELEASED
                                       : QORIN_EVENT_SUBGRP_CONTROL_BOX_BUTTON_CHANGED_EMG_PUSHED,
                     sender_id);
    button = state;
}
} // namespace cbox_simulator
