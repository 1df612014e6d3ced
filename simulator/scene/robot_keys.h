#ifndef SIMULATOR_SCENE_ROBOT_KEYS_H
#define SIMULATOR_SCENE_ROBOT_KEYS_H

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "simulator/model/robot_state.h"

namespace cbox_simulator
{
/// What a scene tells of a robot as a row of numbers, in the order in which it is to be set: ranges come before what
/// must lie within them.
struct robot_key
{
    std::string_view name;
    std::size_t count;
    QORIN_API_RESULT (*set)(robot_state&, std::span<const double>); ///< the numbers are finite
    std::vector<double> (*get)(robot_state&);
};

[[nodiscard]] std::span<const robot_key> robot_keys();
} // namespace cbox_simulator

#endif
