#ifndef SIMULATOR_FRAME_CBOX_FRAME_H
#define SIMULATOR_FRAME_CBOX_FRAME_H

#include "protocol/status_frame.h"
#include "simulator/model/cbox_state.h"

namespace cbox_simulator
{
/// Writes the box's own state into a frame that was cleared before. Touches no field of the system or of robots.
void render_cbox(const cbox_state& cbox, protocol::shared_data_t& frame);
} // namespace cbox_simulator

#endif
