#ifndef SIMULATOR_MODEL_SAFETY_PLANES_H
#define SIMULATOR_MODEL_SAFETY_PLANES_H

#include <array>
#include <cstddef>
#include <cstdint>

#include "protocol/limits.h"
#include "qorin/result.h"

namespace cbox_simulator
{
/// The points p with normal * p + constant = 0. The normal has length 1, so that -constant is the base's distance in
/// millimetres.
struct plane
{
    std::array<double, 3> normal{};
    double constant = 0;
};

/**
 * The planes that bound a robot's work space, by their ids.
 *
 * A normal may come in any length. One that is all 0 is QORIN_API_RESULT_ERROR_ROBOT_VECTOR_SIZE_ZERO, a number that is
 * not finite QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE. What is refused changes nothing.
 */
class safety_planes
{
public:
    static constexpr std::size_t capacity = protocol::safety_plane_limit;

    /// The plane gets the lowest free id, which is written to `id`. Without one it is
    /// QORIN_API_RESULT_ERROR_ROBOT_WORK_SPACE_IS_FULL.
    QORIN_API_RESULT create(const std::array<double, 3>& normal, double distance, std::uint32_t& id);
    QORIN_API_RESULT create_through(const std::array<double, 3>& normal, const std::array<double, 3>& origin,
                                    std::uint32_t& id);

    /// Of an id that holds no plane, one that held it once is told apart as
    /// QORIN_API_RESULT_WARNING_ROBOT_WORK_SPACE_ALREADY_DELETED from one that never did, which is
    /// QORIN_API_RESULT_ERROR_ROBOT_INVAILD_WORK_SPACE_ID. A number that is no id is
    /// QORIN_API_RESULT_ERROR_ROBOT_PARAM_OUT_OF_RANGE.
    QORIN_API_RESULT remove(std::uint32_t id);
    /// QORIN_API_RESULT_WARNING_ROBOT_WORK_SPACE_ALREADY_DELETED when there is none.
    QORIN_API_RESULT remove_all();

    /// Null when the id holds no plane.
    [[nodiscard]] const plane* find(std::size_t id) const;

private:
    enum class place_state : std::uint8_t
    {
        unused,
        held,
        freed
    };

    struct place
    {
        place_state state = place_state::unused;
        plane content;
    };

    std::array<place, capacity> places_;
};
} // namespace cbox_simulator

#endif
