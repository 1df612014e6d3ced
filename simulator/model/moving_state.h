#ifndef SIMULATOR_MODEL_MOVING_STATE_H
#define SIMULATOR_MODEL_MOVING_STATE_H

#include "qorin/enumerations.h"

namespace cbox_simulator
{
/// False also while a motion is paused: there is still one to go on with.
[[nodiscard]] constexpr bool is_at_rest(QORIN_MOVING_STATE state)
{
    return state == QORIN_MOVING_STATE_IDLE || state == QORIN_MOVING_STATE_STOPPED;
}
} // namespace cbox_simulator

#endif
