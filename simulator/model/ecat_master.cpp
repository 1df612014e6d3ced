#include "simulator/model/ecat_master.h"

#include "simulator/model/possible_values.h"

namespace cbox_simulator
{
QORIN_API_RESULT ecat_master::set_ecat_connection_state(QORIN_ECAT_CONN_STATE state)
{
    if (!is_possible(state))
        return QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE;
    if (state == connection_state_)
        return QORIN_API_RESULT_OK;
    connection_state_ = state;
    const bool connected = state == QORIN_ECAT_CONN_STATE_CONNECTED;
    operational_mode_ = connected ? QORIN_OPERATIONAL_MODE_OPERATIONAL : QORIN_OPERATIONAL_MODE_INIT;
    if (connected)
        events_.post(QORIN_EVENT_GRP_NOTIFICATION, QORIN_EVENT_SUBGRP_NOTIFICATION_ECAT_CONNECTED);
    else if (state == QORIN_ECAT_CONN_STATE_DISCONNECTED)
        events_.post(QORIN_EVENT_GRP_NOTIFICATION, QORIN_EVENT_SUBGRP_NOTIFICATION_ECAT_DISCONNECTED);
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT ecat_master::set_operational_mode(QORIN_OPERATIONAL_MODE mode)
{
    const bool connected = connection_state_ == QORIN_ECAT_CONN_STATE_CONNECTED;
    if (!is_possible(mode) || (!connected && mode != QORIN_OPERATIONAL_MODE_INIT))
        return QORIN_API_RESULT_ERROR_CBOX_CANNOT_CHANGE_OPERATIONAL_STATE;
    if (mode == operational_mode_)
        return QORIN_API_RESULT_WARNING_CBOX_OPERATION_MODE_ALREADY_CHANGED;
    operational_mode_ = mode;
    return QORIN_API_RESULT_OK;
}
} // namespace cbox_simulator
