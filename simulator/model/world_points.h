#ifndef SIMULATOR_MODEL_WORLD_POINTS_H
#define SIMULATOR_MODEL_WORLD_POINTS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "qorin/result.h"
#include "simulator/model/cbox_state.h"
#include "simulator/model/fieldbus.h"
#include "simulator/model/robot_set.h"

/// The points where the box meets the world: inputs, which the world sets, and outputs, which it sees.
namespace cbox_simulator
{
/// What of the model has terminals.
struct parts_with_terminals
{
    cbox_state& cbox;
    fieldbus& fieldbuses;
    robot_set& robots;
};

/// What a point carries, always as numbers.
enum class point_value : std::uint8_t
{
    bit,     ///< 0 or 1
    integer, ///< a whole number from 0 to the kind's greatest
    real,    ///< any finite number
    axes,    ///< six finite numbers
    bytes    ///< as many as the kind has room for, or fewer: the first ones change
};

using point_index = std::array<std::uint32_t, 2>;

/// One row of the table of points. An index that the kind does not have has no name.
struct point_kind
{
    using setter = QORIN_API_RESULT (*)(const parts_with_terminals&, const point_index&, std::span<const double>);
    using getter = void (*)(const parts_with_terminals&, const point_index&, std::vector<double>&);

    std::string_view name;
    std::array<std::string_view, 2> index_names;
    point_index index_limits; ///< how many there are of each
    point_value carries;
    std::uint32_t limit; ///< the greatest integer, or the room for bytes
    getter get;          ///< clears the values first
    setter set;          ///< null for an output; index and values have been judged, and a robot is there
    double rest = 0;     ///< what its values are before anybody sets them

    [[nodiscard]] bool is_input() const { return set != nullptr; }
    [[nodiscard]] std::size_t index_count() const;
    [[nodiscard]] bool is_of_robot() const { return index_names[0] == "robot"; }
};

[[nodiscard]] std::span<const point_kind> point_kinds();
} // namespace cbox_simulator

#endif
