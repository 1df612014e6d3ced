#ifndef SIMULATOR_MODEL_MOTION_COMMAND_SET_H
#define SIMULATOR_MODEL_MOTION_COMMAND_SET_H

#include <cstddef>
#include <cstdint>
#include <map>

#include "qorin/result.h"
#include "simulator/model/motion_command.h"

namespace cbox_simulator
{
/**
 * The motion commands of the box by their ids, which count from 1 and are not given twice.
 *
 * An id without a command is QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID, and no room for a further command
 * QORIN_API_RESULT_ERROR_COULD_NOT_CREATE_UNIQUE_COMMAND_ID. Owned by the model.
 */
class motion_command_set
{
public:
    static constexpr std::size_t command_limit = 1000;

    /// The copy can be of any command. Its id is written to `id` when there is room.
    QORIN_API_RESULT add(const motion_command& copied, std::uint32_t& id);
    QORIN_API_RESULT destroy(std::uint32_t id);
    void destroy_all() { commands_.clear(); }

    /// The commands of a robot that is gone go with it.
    void forget_robot(std::uint32_t robot_id);

    /// Null when there is no such command; otherwise good until it is destroyed.
    [[nodiscard]] motion_command* find(std::uint32_t id);

private:
    std::map<std::uint32_t, motion_command> commands_;
    std::uint32_t last_id_ = 0;
};
} // namespace cbox_simulator

#endif
