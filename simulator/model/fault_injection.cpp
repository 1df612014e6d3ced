#include "simulator/model/fault_injection.h"

namespace cbox_simulator
{
namespace
{
QORIN_API_RESULT press(button_panel& panel, bool pushed, std::uint32_t button)
{
    const auto state = pushed ? QORIN_BUTTON_STATE_PUSHED : QORIN_BUTTON_STATE_RELEASED;
    return button == 0 ? panel.set_emergency_button(state) : panel.set_amr_emergency_button(button - 1, state);
}

QORIN_API_RESULT report_error(box_model& model, std::uint32_t subgroup, std::uint32_t sender_id)
{
    if (subgroup <= QORIN_EVENT_SUBGRP_ERROR_INVALID ||
        subgroup > QORIN_EVENT_SUBGRP_ERROR_ECAT_SLAVE_CANNOT_MATCH_CURRENT_ROBOT)
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    model.events().post(QORIN_EVENT_GRP_ERROR, static_cast<QORIN_EVENT_SUBGRP>(subgroup), sender_id);
    return QORIN_API_RESULT_OK;
}
} // namespace

QORIN_API_RESULT inject_fault(box_model& model, injected_fault fault, std::uint32_t value_1, std::uint32_t value_2)
{
    const bool on = value_1 == 1;
    const bool is_on_or_off = value_1 <= 1;
    switch (fault)
    {
    case injected_fault::emergency_button:
        return is_on_or_off ? press(model.cbox(), on, value_2) : QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE;
    case injected_fault::power_button:
        return is_on_or_off
                   ? model.cbox().set_power_button(on ? QORIN_BUTTON_STATE_PUSHED : QORIN_BUTTON_STATE_RELEASED)
                   : QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE;
    case injected_fault::ecat_link_loss:
        return is_on_or_off ? model.set_ecat_link(!on) : QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE;
    case injected_fault::error_event:
        return report_error(model, value_1, value_2);
    }
    return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
}
} // namespace cbox_simulator
