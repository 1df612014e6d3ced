#ifndef SIMULATOR_MODEL_ROBOT_SET_H
#define SIMULATOR_MODEL_ROBOT_SET_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "protocol/limits.h"
#include "qorin/enumerations.h"
#include "qorin/result.h"
#include "simulator/kinematics/arm_catalogue.h"
#include "simulator/model/robot_state.h"

namespace cbox_simulator
{
/**
 * The robots of the box by their ids, which are the places of their records in the frame.
 *
 * An operation on an id without a robot is QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID; what else it refuses is told at
 * robot_state. Owned by the model.
 */
class robot_set
{
public:
    static constexpr std::size_t robot_limit = protocol::robot_limit;

    explicit robot_set(const arm_catalogue& arms) : arms_(arms) {}

    /// The robot gets the lowest free id below the capacity, which is written to `id`. What is not in the
    /// catalogue and a robot without a free id are
    /// QORIN_API_RESULT_ERROR_ROBOT_CREATION_FAILURE.
    QORIN_API_RESULT create(QORIN_ROBOT_MODEL model, std::uint32_t capacity, std::uint32_t& id);
    QORIN_API_RESULT destroy(std::uint32_t id);
    void destroy_all() { robots_ = {}; }

    /// Null when there is no such robot; otherwise good until it is destroyed.
    [[nodiscard]] const robot_state* find(std::uint32_t id) const;
    [[nodiscard]] robot_state* find(std::uint32_t id);
    [[nodiscard]] bool exists(std::uint32_t id) const { return find(id) != nullptr; }

    /// How many records a frame needs, as they lie in the order of the ids: the highest id and one, or 0.
    [[nodiscard]] std::uint32_t record_count() const;

    QORIN_API_RESULT set_joint_angles(std::uint32_t id, const robot_state::joint_array& angles)
    {
        return change<&robot_state::set_joint_angles>(id, angles);
    }

    QORIN_API_RESULT set_tcp_from_flange(std::uint32_t id, const pose& tcp_from_flange)
    {
        return change<&robot_state::set_tcp_from_flange>(id, tcp_from_flange);
    }

    QORIN_API_RESULT set_table(std::uint32_t id, const robot_state::dh_table& table)
    {
        return change<&robot_state::set_table>(id, table);
    }

    QORIN_API_RESULT set_servo(std::uint32_t id, QORIN_SWITCH value)
    {
        return change<&robot_state::set_servo>(id, value);
    }

    /// Calls `use` with the id and the robot, in the order of the ids.
    template <class Use>
    void for_each(const Use& use)
    {
        for (std::uint32_t id = 0; id < robot_limit; ++id)
            if (auto* robot = find(id))
                use(id, *robot);
    }

private:
    template <auto operation, class Value>
    QORIN_API_RESULT change(std::uint32_t id, const Value& value)
    {
        auto* robot = find(id);
        return robot ? (robot->*operation)(value) : QORIN_API_RESULT_ERROR_ROBOT_ID_INVALID;
    }

    const arm_catalogue& arms_;
    std::array<std::optional<robot_state>, robot_limit> robots_;
};
} // namespace cbox_simulator

#endif
