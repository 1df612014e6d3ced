#ifndef SIMULATOR_MODEL_BUTTON_PANEL_H
#define SIMULATOR_MODEL_BUTTON_PANEL_H

#include <array>
#include <cstddef>
#include <cstdint>

#include "protocol/limits.h"
#include "qorin/enumerations.h"
#include "qorin/result.h"
#include "simulator/model/event_outbox.h"

namespace cbox_simulator
{
/**
 * The buttons that people press: on the box, and on the mobile base that carries some boxes.
 *
 * Each change posts an event. Its sender id tells the button: 0 is the box's own, 1 to 4 are those of the mobile base.
 * A state that is none is refused with QORIN_API_RESULT_ERROR_CBOX_INVALID_IO_VALUE.
 */
class button_panel
{
public:
    static constexpr std::size_t amr_button_count = protocol::amr_emergency_button_limit;

    explicit button_panel(event_outbox& events) : events_(events) { amr_emergency_buttons_.fill(released); }

    [[nodiscard]] QORIN_BUTTON_STATE power_button() const { return power_button_; }
    [[nodiscard]] QORIN_BUTTON_STATE emergency_button() const { return emergency_button_; }
    /// The button on the box alone, whatever else holds the emergency circuit open.
    [[nodiscard]] QORIN_BUTTON_STATE emergency_knob() const { return emergency_knob_; }
    [[nodiscard]] const auto& amr_emergency_buttons() const { return amr_emergency_buttons_; }

    QORIN_API_RESULT set_power_button(QORIN_BUTTON_STATE state);
    QORIN_API_RESULT set_emergency_button(QORIN_BUTTON_STATE state);

    /// Further buttons in the same circuit, wired to redundant inputs: while they hold it open the box's own button
    /// shows as pushed.
    void open_emergency_circuit(bool open);

    /// A button that is not there, because of its index or for lack of a mobile base, is refused with
    /// QORIN_API_RESULT_ERROR_CBOX_INVALID_AMR_EMG_NUMBER.
    QORIN_API_RESULT set_amr_emergency_button(std::uint32_t index, QORIN_BUTTON_STATE state);

    /// The buttons of a mobile base that goes are released.
    void set_mobile_base_present(bool present);

private:
    static constexpr QORIN_BUTTON_STATE released = QORIN_BUTTON_STATE_RELEASED;

    void change_emergency(QORIN_BUTTON_STATE& button, QORIN_BUTTON_STATE state, std::uint32_t sender_id);

    event_outbox& events_;
    QORIN_BUTTON_STATE power_button_ = released;
    QORIN_BUTTON_STATE emergency_button_ = released; ///< as the circuit is
    QORIN_BUTTON_STATE emergency_knob_ = released;
    bool circuit_open_ = false;
    std::array<QORIN_BUTTON_STATE, amr_button_count> amr_emergency_buttons_;
    bool mobile_base_present_ = false;
};
} // namespace cbox_simulator

#endif
