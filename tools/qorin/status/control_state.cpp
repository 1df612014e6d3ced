#include "tools/qorin/status/control_state.h"

#include <fmt/format.h>

#include "qorin/system.h"
#include "tools/qorin/subcommands.h"
#include "tools/qorin/within.h"

namespace qorin_cli
{
bool may_command(unsigned int cbox_id, const std::string& address)
{
    const auto ask = [cbox_id]
    {
        QORIN_SWITCH controllable[32] = {}; // a command reads 128 bytes from an output
        const QORIN_API_RESULT result = qorin_rpc_system_controllable_get(cbox_id, controllable);
        return std::pair(result, controllable[0]);
    };
    const auto answer = within(std::chrono::seconds(2), ask);
    if (!answer)
        throw failure(fmt::format("the control box at {} does not answer", address));
    if (answer->first == static_cast<QORIN_API_RESULT>(0))
        throw failure(fmt::format("the control box at {} has closed the links", address));
    return answer->first == QORIN_API_RESULT_OK && answer->second == QORIN_SWITCH_ON;
}
} // namespace qorin_cli
