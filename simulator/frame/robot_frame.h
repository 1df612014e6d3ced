#ifndef SIMULATOR_FRAME_ROBOT_FRAME_H
#define SIMULATOR_FRAME_ROBOT_FRAME_H

#include "protocol/status_frame.h"
#include "simulator/model/robot_set.h"

namespace cbox_simulator
{
/// Writes the robots, their drives and their tool modules into a frame that was cleared before. The record of an id
/// without a robot is left alone.
void render_robots(const robot_set& robots, protocol::shared_data_t& frame);
} // namespace cbox_simulator

#endif
