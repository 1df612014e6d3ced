#ifndef SIMULATOR_MODEL_PROGRAM_STATE_H
#define SIMULATOR_MODEL_PROGRAM_STATE_H

#include "simulator/model/possible_values.h"

namespace cbox_simulator
{
/// What applications tell the box about themselves: that people control by hand, and how far the user interface's
/// program is. Applications share it through the box; no frame shows it.
class program_state
{
public:
    [[nodiscard]] QORIN_SWITCH manual_control() const { return manual_control_; }
    [[nodiscard]] QORIN_UI_PROGRAM_STATE ui_program() const { return ui_program_; }

    /// Both refuse what is no member with QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE.
    QORIN_API_RESULT set_manual_control(QORIN_SWITCH value)
    {
        if (!is_possible(value))
            return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE;
        manual_control_ = value;
        return QORIN_API_RESULT_OK;
    }

    QORIN_API_RESULT set_ui_program(QORIN_UI_PROGRAM_STATE state)
    {
        if (!is_possible(state))
            return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE;
        ui_program_ = state;
        return QORIN_API_RESULT_OK;
    }

private:
    QORIN_SWITCH manual_control_ = QORIN_SWITCH_OFF;
    QORIN_UI_PROGRAM_STATE ui_program_ = QORIN_UI_PROGRAM_STATE_UNDEFINED;
};
} // namespace cbox_simulator

#endif
