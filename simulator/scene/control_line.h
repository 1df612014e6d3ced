#ifndef SIMULATOR_SCENE_CONTROL_LINE_H
#define SIMULATOR_SCENE_CONTROL_LINE_H

#include <string>
#include <string_view>

#include "simulator/model/box_model.h"

namespace cbox_simulator
{
/**
 * Performs one line of the control channel, told without its end, and returns the answer, which is one line too: "ok",
 * with what was asked for behind it, or "error: " and why. What is refused changes nothing.
 *
 *     set POINT = NUMBER...     get POINT          name WORD = POINT
 *     wire INPUT = OUTPUT       unwire INPUT       save FILE          points
 */
[[nodiscard]] std::string answer_control_line(box_model& model, std::string_view line);
} // namespace cbox_simulator

#endif
