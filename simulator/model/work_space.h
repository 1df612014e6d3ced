#ifndef SIMULATOR_MODEL_WORK_SPACE_H
#define SIMULATOR_MODEL_WORK_SPACE_H

#include "simulator/model/robot_state.h"

namespace cbox_simulator
{
/**
 * Whether a step of the robot takes it out of its work space, or farther out where it is outside already: so an arm
 * that stands outside can be moved back.
 *
 * The arm has to stay on the side of each plane that the normal points to: its links with their thickness, but for the
 * column that never moves, the flange, the TCP, and the body of the tool. The TCP has to stay within the region.
 */
[[nodiscard]] bool leaves_work_space(const robot_state& robot, const stance& from, const stance& to);
} // namespace cbox_simulator

#endif
