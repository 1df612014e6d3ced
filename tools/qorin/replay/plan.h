#ifndef TOOLS_QORIN_REPLAY_PLAN_H
#define TOOLS_QORIN_REPLAY_PLAN_H

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "tools/function_table/function_rows.h"
#include "tools/qorin/replay/call_log.h"

namespace qorin_cli::replay
{
/// An argument that is an id of the control box, which it gives anew.
struct id_argument
{
    std::size_t parameter;
    std::size_t maker; ///< the call whose output it was
};

/// What becomes of a call of the log.
struct planned_call
{
    const logged_call* logged = nullptr;
    const function_row* function = nullptr;
    std::vector<std::string> texts; ///< of the arguments
    unsigned int cbox_id = 0;       ///< as it was
    std::vector<id_argument> ids;
    std::optional<std::size_t> made_id; ///< the output that holds the id of what it makes
    std::string left_out;               ///< why it is not repeated; empty when it is
    bool is_missed = false;             ///< leaving it out changes what the rest does
};

struct replay_plan
{
    std::vector<planned_call> calls;    ///< all of the log
    std::size_t first = 0;              ///< the first one to repeat
    std::vector<std::string> addresses; ///< of the control boxes by their ids; empty when the log does not tell
};

/**
 * Decides for each call whether and how it is repeated.
 *
 * The log tells no output. Which call made the motion command, robot, recording or plane that a later one names is
 * concluded where only one conclusion fits: as many were made as there are new numbers, and numbers ascend.
 *
 * @param log        must outlive the plan.
 * @param from_line  calls ahead of this line are not repeated.
 */
[[nodiscard]] replay_plan plan_of(const call_log& log, std::size_t from_line);
} // namespace qorin_cli::replay

#endif
