#ifndef SIMULATOR_MODEL_CBOX_STATE_H
#define SIMULATOR_MODEL_CBOX_STATE_H

#include <cstdint>

#include "simulator/model/button_panel.h"
#include "simulator/model/conveyor_encoders.h"
#include "simulator/model/ecat_devices.h"
#include "simulator/model/ecat_master.h"
#include "simulator/model/io_modules.h"
#include "simulator/model/program_state.h"
#include "simulator/model/redundant_io.h"
#include "simulator/model/rs485_port.h"
#include "simulator/model/safety_module.h"

namespace cbox_simulator
{
/**
 * The control box as hardware: all that can be read and set on it, robots aside.
 *
 * Made of its parts by inheritance, so that whoever plays the outside world sees one set of operations. An operation
 * that refuses changes nothing. Owned by the model; no system need stand, as the terminals are there without one.
 */
class cbox_state : public button_panel,
                   public ecat_master,
                   public io_modules,
                   public safety_module,
                   public ecat_devices,
                   public conveyor_encoders,
                   public redundant_io,
                   public rs485_port,
                   public program_state
{
public:
    static constexpr std::uint32_t epc_input_count = 16;

    explicit cbox_state(event_outbox& events) : button_panel(events), ecat_master(events) {}

    /// The inputs of the box's built-in computer, bit n is channel n. The computer uses them itself: no frame shows
    /// them.
    [[nodiscard]] std::uint32_t epc_inputs() const { return epc_inputs_; }

    QORIN_API_RESULT set_epc_input(std::uint32_t channel, std::uint32_t value)
    {
        return set_channel(epc_inputs_, {epc_input_count}, channel, value);
    }

private:
    std::uint32_t epc_inputs_ = 0;
};
} // namespace cbox_simulator

#endif
