#ifndef SIMULATOR_FRAME_ROBOT_FUNCTIONS_FRAME_H
#define SIMULATOR_FRAME_ROBOT_FUNCTIONS_FRAME_H

#include <cstdint>

#include "protocol/status_frame.h"
#include "simulator/model/robot_state.h"

namespace cbox_simulator
{
/// What a robot is set up for beside its motions: work space, force control and its sensors, points from outside,
/// conveyor, velocity control.
void render_robot_functions(std::uint32_t id, const robot_state& robot, protocol::shared_data_t& frame);
} // namespace cbox_simulator

#endif
