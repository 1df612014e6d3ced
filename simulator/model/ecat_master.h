#ifndef SIMULATOR_MODEL_ECAT_MASTER_H
#define SIMULATOR_MODEL_ECAT_MASTER_H

#include "qorin/enumerations.h"
#include "qorin/result.h"
#include "simulator/model/event_outbox.h"

namespace cbox_simulator
{
/**
 * The master of the box's EtherCAT network: its link to the modules, and the mode that it runs them in.
 *
 * The simulated network comes up at once: with the link the mode is operational, without it initial. Connection and
 * its loss post events.
 */
class ecat_master
{
public:
    explicit ecat_master(event_outbox& events) : events_(events) {}

    [[nodiscard]] QORIN_ECAT_CONN_STATE ecat_connection_state() const { return connection_state_; }
    [[nodiscard]] QORIN_OPERATIONAL_MODE operational_mode() const { return operational_mode_; }

    /// Refuses a number that is no state with QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE.
    QORIN_API_RESULT set_ecat_connection_state(QORIN_ECAT_CONN_STATE state);

    /// Without the link no mode but the initial one can be reached, and BEGIN is not a mode to be in: both are
    /// QORIN_API_RESULT_ERROR_CBOX_CANNOT_CHANGE_OPERATIONAL_STATE. Warns when the mode is what it was.
    QORIN_API_RESULT set_operational_mode(QORIN_OPERATIONAL_MODE mode);

private:
    event_outbox& events_;
    QORIN_ECAT_CONN_STATE connection_state_ = QORIN_ECAT_CONN_STATE_DISCONNECTED;
    QORIN_OPERATIONAL_MODE operational_mode_ = QORIN_OPERATIONAL_MODE_INIT;
};
} // namespace cbox_simulator

#endif
