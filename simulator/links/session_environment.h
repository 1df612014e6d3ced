#ifndef SIMULATOR_LINKS_SESSION_ENVIRONMENT_H
#define SIMULATOR_LINKS_SESSION_ENVIRONMENT_H

#include <functional>

#include "simulator/commands/command_table.h"
#include "simulator/counters.h"
#include "simulator/links/fault_plan.h"
#include "simulator/log.h"
#include "simulator/model/box_model.h"

namespace cbox_simulator
{
/// What a client's session needs of the box that it belongs to. Owned by the box, outlives every session.
struct session_environment
{
    box_model& model;
    const command_table& commands;
    const console_log& log;
    box_counters& counters;
    fault_plan& faults;                   ///< what is to go wrong on the links
    std::function<void()> catch_up;       ///< to be called before the model is touched: lets due cycles pass
    std::function<void()> deliver_events; ///< sends what the model's outbox holds to all complete clients
    std::function<void()> exit_requested; ///< called when the reply to the exit command is on its way
};
} // namespace cbox_simulator

#endif
