#ifndef SIMULATOR_MODEL_BOUNDING_SHAPE_H
#define SIMULATOR_MODEL_BOUNDING_SHAPE_H

#include <array>
#include <cstddef>

#include "qorin/enumerations.h"
#include "qorin/result.h"

namespace cbox_simulator
{
/**
 * A body that the work space is told by, in millimetres. In the base frame it is the region that the TCP has to stay
 * within; in the TCP's frame it is the body of the tool, which goes with the arm.
 *
 * box       eight corners: four of one face in turn, then those opposite to them, in the same order
 * sphere    centre, radius
 * cylinder  centre of one end, direction to the other end, radius, height
 * cone      tip, direction to the base, radius of the base, height
 */
struct bounding_shape
{
    static constexpr std::size_t most_values = 24; ///< those of a box

    QORIN_BOUNDING_SHAPE shape = QORIN_BOUNDING_SHAPE_BOX;
    QORIN_REF_COORDINATE coordinate = QORIN_REF_COORDINATE_BASE;
    std::array<double, most_values> values{};
};

/// How many numbers tell a shape.
[[nodiscard]] constexpr std::size_t value_count(QORIN_BOUNDING_SHAPE shape)
{
    switch (shape)
    {
    case QORIN_BOUNDING_SHAPE_SPHERE:
        return 4;
    case QORIN_BOUNDING_SHAPE_CYLINDER:
    case QORIN_BOUNDING_SHAPE_CONE:
        return 8;
    case QORIN_BOUNDING_SHAPE_BOX:
        break;
    }
    return bounding_shape::most_values;
}

/// QORIN_API_RESULT_ERROR_ROBOT_VECTOR_SIZE_ZERO for a direction that is none, and
/// QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE for what is no number, no coordinate, not above 0 though it is a
/// length, or for corners that are not those of a box.
[[nodiscard]] QORIN_API_RESULT judge(const bounding_shape& told);

/// How far a point is outside, below 0 within. Of a shape that was judged.
[[nodiscard]] double distance_outside(const bounding_shape& shape, const std::array<double, 3>& point);
} // namespace cbox_simulator

#endif
