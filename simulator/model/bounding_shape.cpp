#include "simulator/model/bounding_shape.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

#include <Eigen/Geometry>

#include "simulator/model/possible_values.h"

namespace cbox_simulator
{
namespace
{
using Eigen::Vector3d;

/// Three corners of each face of a box.
constexpr std::size_t faces[6][3] = {{0, 1, 2}, {4, 5, 6}, {0, 1, 5}, {1, 2, 6}, {2, 3, 7}, {3, 0, 4}};
constexpr std::size_t corner_count = 8;
/// Of the size of a box: what rounding may put a corner beyond a face.
constexpr double corner_tolerance = 1e-9;

Vector3d vector_at(const bounding_shape& shape, std::size_t index)
{
    return Vector3d::Map(&shape.values[index]);
}

Vector3d centre_of_box(const bounding_shape& box)
{
    Vector3d sum = Vector3d::Zero();
    for (std::size_t corner = 0; corner < corner_count; ++corner)
        sum += vector_at(box, 3 * corner);
    return sum / corner_count;
}

double outside_box(const bounding_shape& box, const Vector3d& point)
{
    const Vector3d centre = centre_of_box(box);
    double farthest = -std::numeric_limits<double>::infinity();
    for (const auto& face : faces)
    {
        const Vector3d corner = vector_at(box, 3 * face[0]);
        const Vector3d normal =
            (vector_at(box, 3 * face[1]) - corner).cross(vector_at(box, 3 * face[2]) - corner).normalized();
        const double sense = normal.dot(corner - centre) < 0 ? -1 : 1;
        farthest = std::max(farthest, sense * normal.dot(point - corner));
    }
    return farthest;
}

/// Each face has the centre on one side of it, with room, and no corner on the other.
bool is_box(const bounding_shape& told)
{
    const Vector3d centre = centre_of_box(told);
    const double size = (vector_at(told, 0) - centre).norm();
    if (!(outside_box(told, centre) < -corner_tolerance * size))
        return false;
    for (std::size_t corner = 0; corner < corner_count; ++corner)
        if (!(outside_box(told, vector_at(told, 3 * corner)) <= corner_tolerance * size))
            return false;
    return true;
}

/// Along an axis from its first point, and away from it.
struct axis_place
{
    double along;
    double away;
};

axis_place place_on_axis(const bounding_shape& shape, const Vector3d& point)
{
    const Vector3d axis = vector_at(shape, 3).normalized();
    const Vector3d way = point - vector_at(shape, 0);
    const double along = way.dot(axis);
    return {along, (way - along * axis).norm()};
}
} // namespace

QORIN_API_RESULT judge(const bounding_shape& told)
{
    const auto used = std::span(told.values).first(value_count(told.shape));
    if (!is_possible(told.coordinate) || !std::ranges::all_of(used, [](double value) { return is_possible(value); }))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    const auto is_length = [](double value) { return is_possible(value, number_range::positive); };
    switch (told.shape)
    {
    case QORIN_BOUNDING_SHAPE_BOX:
        return is_box(told) ? QORIN_API_RESULT_OK : QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    case QORIN_BOUNDING_SHAPE_SPHERE:
        return is_length(told.values[3]) ? QORIN_API_RESULT_OK : QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    case QORIN_BOUNDING_SHAPE_CYLINDER:
    case QORIN_BOUNDING_SHAPE_CONE:
        break;
    }
    if (vector_at(told, 3).isZero(0))
        return QORIN_API_RESULT_ERROR_ROBOT_VECTOR_SIZE_ZERO;
    return is_length(told.values[6]) && is_length(told.values[7]) ? QORIN_API_RESULT_OK
                                                                  : QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
}

double distance_outside(const bounding_shape& shape, const std::array<double, 3>& at)
{
    const Vector3d point = Vector3d::Map(at.data());
    if (shape.shape == QORIN_BOUNDING_SHAPE_BOX)
        return outside_box(shape, point);
    if (shape.shape == QORIN_BOUNDING_SHAPE_SPHERE)
        return (point - vector_at(shape, 0)).norm() - shape.values[3];
    const auto [along, away] = place_on_axis(shape, point);
    const double radius = shape.values[6];
    const double height = shape.values[7];
    if (shape.shape == QORIN_BOUNDING_SHAPE_CYLINDER)
        return std::max({away - radius, -along, along - height});
    const double slant = std::hypot(radius, height);
    return std::max((away * height - along * radius) / slant, along - height);
}
} // namespace cbox_simulator
