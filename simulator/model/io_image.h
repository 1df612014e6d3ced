#ifndef SIMULATOR_MODEL_IO_IMAGE_H
#define SIMULATOR_MODEL_IO_IMAGE_H

#include <cstdint>

#include "qorin/enumerations.h"
#include "simulator/model/cbox_state.h"
#include "simulator/model/robot_state.h"

namespace cbox_simulator
{
/**
 * The inputs and outputs that a motion command can name, wherever they are: the first I/O module and the safety module
 * of the box, and the module at the flange of the robot that moves. Digital ones are 0 and 1.
 *
 * Channels have been judged when they were told; one that is not there reads 0 and takes no value.
 */
[[nodiscard]] double io_value(const cbox_state& cbox, const robot_state& robot, QORIN_IO_TYPE type,
                              std::uint32_t channel);
void set_io_value(cbox_state& cbox, robot_state& robot, QORIN_IO_TYPE type, std::uint32_t channel, double value);
} // namespace cbox_simulator

#endif
