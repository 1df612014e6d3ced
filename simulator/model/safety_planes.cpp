#include "simulator/model/safety_planes.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "simulator/model/possible_values.h"

namespace cbox_simulator
{
namespace
{
using vector = std::array<double, 3>;

bool is_finite_vector(const vector& values)
{
    return std::ranges::all_of(values, [](double value) { return is_possible(value); });
}

/// The length of a long or a short vector can be out of a number's range, so that it is brought near 1 first.
vector of_length_1(vector values)
{
    const double largest = std::max({std::abs(values[0]), std::abs(values[1]), std::abs(values[2])});
    for (double& value : values)
        value /= largest;
    const double length = std::hypot(values[0], values[1], values[2]);
    for (double& value : values)
        value /= length;
    return values;
}

QORIN_API_RESULT judge_normal(const vector& normal)
{
    if (!is_finite_vector(normal))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    return normal == vector{} ? QORIN_API_RESULT_ERROR_ROBOT_VECTOR_SIZE_ZERO : QORIN_API_RESULT_OK;
}
} // namespace

QORIN_API_RESULT safety_planes::create(const vector& normal, double distance, std::uint32_t& id)
{
    if (const auto judged = judge_normal(normal); judged != QORIN_API_RESULT_OK)
        return judged;
    if (!is_possible(distance))
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    const auto free = std::ranges::find_if(places_, [](const place& each) { return each.state != place_state::held; });
    if (free == places_.end())
        return QORIN_API_RESULT_ERROR_ROBOT_WORK_SPACE_IS_FULL;
    *free = {place_state::held, {of_length_1(normal), -distance}};
    id = static_cast<std::uint32_t>(free - places_.begin());
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT safety_planes::create_through(const vector& normal, const vector& origin, std::uint32_t& id)
{
    if (const auto judged = judge_normal(normal); judged != QORIN_API_RESULT_OK)
        return judged;
    const auto unit = of_length_1(normal);
    return create(unit, std::inner_product(unit.begin(), unit.end(), origin.begin(), 0.0), id);
}

QORIN_API_RESULT safety_planes::remove(std::uint32_t id)
{
    if (id >= capacity)
        return QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE;
    auto& chosen = places_[id];
    if (chosen.state == place_state::unused)
        return QORIN_API_RESULT_ERROR_ROBOT_INVAILD_WORK_SPACE_ID;
    if (chosen.state == place_state::freed)
        return QORIN_API_RESULT_WARNING_ROBOT_WORK_SPACE_ALREADY_DELETED;
    chosen.state = place_state::freed;
    return QORIN_API_RESULT_OK;
}

QORIN_API_RESULT safety_planes::remove_all()
{
    auto result = QORIN_API_RESULT_WARNING_ROBOT_WORK_SPACE_ALREADY_DELETED;
    for (auto& each : places_)
    {
        if (each.state != place_state::held)
            continue;
        each.state = place_state::freed;
        result = QORIN_API_RESULT_OK;
    }
    return result;
}

const plane* safety_planes::find(std::size_t id) const
{
    return id < capacity && places_[id].state == place_state::held ? &places_[id].content : nullptr;
}
} // namespace cbox_simulator
