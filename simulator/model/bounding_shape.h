#ifndef SIMULATOR_MODEL_BOUNDING_SHAPE_H
#define SIMULATOR_MODEL_BOUNDING_SHAPE_H

#include <array>
#include <cstddef>

#include "qorin/enumerations.h"

namespace cbox_simulator
{
/// The body around a robot's TCP that the limits of the work space hold for. The box keeps the numbers as they come:
/// how many of them count and what they mean is the shape's.
struct bounding_shape
{
    static constexpr std::size_t most_values = 24; ///< those of a box

    QORIN_BOUNDING_SHAPE shape = QORIN_BOUNDING_SHAPE_BOX;
    QORIN_REF_COORDINATE coordinate = QORIN_REF_COORDINATE_BASE;
    std::array<double, most_values> values{};
};
} // namespace cbox_simulator

#endif
