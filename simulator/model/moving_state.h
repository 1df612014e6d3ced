#ifndef SIMULATOR_MODEL_MOVING_STATE_H
#define SIMULATOR_MODEL_MOVING_STATE_H

#include "qorin/enumerations.h"

namespace cbox_simulator
{
/// False also while a motion is paused: there is still one to go on with. The arm rests after an emergency stop too,
/// but is not to be moved before a reset.
[[nodiscard]] constexpr bool is_at_rest(QORIN_MOVING_STATE state)
{
    return state == QORIN_MOVING_STATE_IDLE || state == QORIN_MOVING_STATE_STOPPED ||
           state == QORIN_MOVING_STATE_EMG_STOPPED;
}

/// Or about to be.
[[nodiscard]] constexpr bool is_paused(QORIN_MOVING_STATE state)
{
    return state == QORIN_MOVING_STATE_PAUSING || state == QORIN_MOVING_STATE_PAUSED;
}

/// From an emergency stop to the reset after it.
[[nodiscard]] constexpr bool is_stopped_until_reset(QORIN_MOVING_STATE state)
{
    return state == QORIN_MOVING_STATE_EMG_STOPPING || state == QORIN_MOVING_STATE_EMG_STOPPED;
}
} // namespace cbox_simulator

#endif
