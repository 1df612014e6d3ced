#ifndef SIMULATOR_MOTION_JOINT_WAY_H
#define SIMULATOR_MOTION_JOINT_WAY_H

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "kinematics/dh_table.h"

namespace cbox_simulator::motion
{
/// The farthest way of a joint. Degrees.
[[nodiscard]] inline double farthest(const savrent::kinematics::joint_array& from,
                                     const savrent::kinematics::joint_array& to)
{
    double way = 0;
    for (std::size_t joint = 0; joint < savrent::kinematics::joint_count; ++joint)
        way = std::max(way, std::abs(to[joint] - from[joint]));
    return way;
}
} // namespace cbox_simulator::motion

#endif
