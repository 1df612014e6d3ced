#ifndef SIMULATOR_COMMANDS_MOTION_ARGUMENT_H
#define SIMULATOR_COMMANDS_MOTION_ARGUMENT_H

#include "simulator/commands/typed_command.h"
#include "simulator/model/motion_command.h"

/// A motion command as an argument: a value slot with its id.
namespace cbox_simulator
{
template <>
struct argument<motion_command&> : named_argument<motion_command, QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID>
{
    explicit argument(const command_call& call)
        : named_argument(call.model.motion_commands().find(call.request.next_u32()))
    {
    }
};

/// A part of a command. It belongs to the robot: without one there is none. A command of a kind without the part is as
/// unknown as an id without a command.
template <motion_part Part>
struct argument<Part&>
{
    static constexpr auto type = argument<motion_command&>::type;

    explicit argument(const command_call& call)
    {
        auto* command = call.model.motion_commands().find(call.request.next_u32());
        part = command ? command->find<Part>() : nullptr;
        if (part)
            refusal = command->robot_id ? QORIN_API_RESULT_OK : QORIN_API_RESULT_ERROR_ROBOT_ID_MUST_BE_SET_FIRST;
    }
    Part& get() { return *part; }
    void answer(reply_writer&) const {}

    Part* part;
    QORIN_API_RESULT refusal = QORIN_API_RESULT_ERROR_COULD_NOT_FIND_COMMAND_ID;
};
} // namespace cbox_simulator

#endif
