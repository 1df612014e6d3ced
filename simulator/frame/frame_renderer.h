#ifndef SIMULATOR_FRAME_FRAME_RENDERER_H
#define SIMULATOR_FRAME_FRAME_RENDERER_H

#include "protocol/status_frame.h"
#include "simulator/model/box_model.h"

namespace cbox_simulator
{
/// Overwrites the whole frame with what the model is now. What the model does not hold is zero or idle.
void render_frame(const box_model& model, protocol::shared_data_t& frame);
} // namespace cbox_simulator

#endif
